// What the converter takes beside plain numbers, and what the user changes of his conversions while
// it is open.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "converter/converter_model.h"
#include "settings/keys.h"
#include "settings/settings_store.h"
#include "support/stored_conversions.h"
#include "support/unit_places.h"

namespace kav::converter_input_test {
namespace {

using test::Places, test::PlacesOf, test::StoreConversions;
using Texts = std::vector<std::u16string>;

constexpr int kLength = 6;
constexpr int kMeters = 16;
constexpr int kUserDefined = 14;

class ConverterInputTest : public testing::Test {
 protected:
  ConverterModel Model(std::u16string text, UnitPositions remembered) {
    return {store_, std::move(text), remembered};
  }
  /// Miles to kilometers.
  ConverterModel Miles(std::u16string text) { return Model(std::move(text), {kLength, 18, 14}); }

  MemorySettingsStore store_;
};

TEST_F(ConverterInputTest, AnExpressionIsTakenAsItsValue) {
  const struct {
    std::u16string text, result;
  } rows[] = {
      {u"1/2", u"0.5"},     {u" 2*3 ", u"6"},
      {u"2^10", u"1024"},   {u"(1+2)*3", u"9"},
      {u"sqrt(16)", u"4"},  {u"1,234,567*2", u"2469134"},
      {u"sin(30)", u"0.5"}, {u"2*Pi", u"6.28318530718"},
      {u"3!", u"6"},
  };
  store_.Set(kDisplayType, 0);
  store_.Set(kPrecision, 12);
  for (const auto& row : rows) {
    const ConverterModel model = Model(row.text, {kLength, kMeters, kMeters});
    EXPECT_EQ(model.TextRefusal(), std::nullopt) << Narrow(row.text);
    EXPECT_EQ(model.Result(), row.result) << Narrow(row.text);
    EXPECT_EQ(model.Text(), row.text);
  }
  store_.Set(kAngleType, 2);
  ConverterModel radians = Miles(u"sin(Pi/2)");
  EXPECT_EQ(radians.Result(), u"1.609344");
}

TEST_F(ConverterInputTest, AnExpressionWithoutAValueIsRefused) {
  for (const std::u16string_view text :
       {u"1/0", u"1/", u"(1", u"sqrt(-1)", u"ans", u"x", u"1,5*2", u"[M1]", u"M:f(1)", u"10^999"}) {
    const ConverterModel model = Miles(std::u16string(text));
    EXPECT_TRUE(model.TextRefusal()) << Narrow(text);
    EXPECT_EQ(model.ShownResult(), u"") << Narrow(text);
    EXPECT_TRUE(model.OkRefusal()) << Narrow(text);
  }
}

TEST_F(ConverterInputTest, WhatTheUserChangedIsTakenAndWhatIsChosenStays) {
  StoreConversions(store_, {{"inch -> cm", "2.54"}, {"dozen -> piece", "12"}});
  ConverterModel miles = Miles(u"2");
  ConverterModel own = Model(u"2", {kUserDefined, 1, -1});
  const std::u16string chosen = own.Inputs()[1];
  StoreConversions(store_, {{"new -> one", "3"}, {"x -> y", "7"}, {Narrow(chosen), "5"}});
  miles.TakeUserConversions();
  EXPECT_EQ(PlacesOf(miles.Positions()), (Places{kLength, 18, 14}));
  own.TakeUserConversions();
  EXPECT_EQ(own.Inputs(), (Texts{u"new -> one", u"x -> y", chosen}));
  EXPECT_EQ(PlacesOf(own.Positions()), (Places{kUserDefined, 2, -1}));
  EXPECT_EQ(own.Result(), u"10");
  EXPECT_EQ(own.Text(), u"2");
  StoreConversions(store_, {{"new -> one", "3"}});
  own.TakeUserConversions();
  EXPECT_EQ(own.Result(), u"6") << "the first, where the chosen one is gone";
  StoreConversions(store_, {});
  own.TakeUserConversions();
  EXPECT_EQ(PlacesOf(own.Positions()), (Places{0, 0, 0}));
  miles.TakeUserConversions();
  EXPECT_EQ(miles.ChooseCategory(kUserDefined), u"Not exist saved user-define unit convert");
}

}  // namespace
}  // namespace kav::converter_input_test
