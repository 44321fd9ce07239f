#include "converter/converter_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <string_view>
#include <vector>

#include "settings/keys.h"
#include "settings/settings_store.h"
#include "support/stored_conversions.h"
#include "support/unit_places.h"

namespace kav::converter_model_test {
namespace {

using test::Places, test::PlacesOf, test::StoreConversions;
using Texts = std::vector<std::u16string>;

constexpr int kLength = 6;
constexpr int kTemperature = 11;
constexpr int kUserDefined = 14;
constexpr std::u16string_view kCannotBeShown = u"Out of range(overflow or underflow)";
constexpr std::u16string_view kRefused = u"Converting value is error";

int PlaceOf(const Texts& texts, std::u16string_view text) {
  const auto found = std::find(texts.begin(), texts.end(), text);
  EXPECT_NE(found, texts.end()) << std::string(text.begin(), text.end());
  return static_cast<int>(found - texts.begin());
}

class ConverterModelTest : public testing::Test {
 protected:
  ConverterModel Model(std::u16string text = u"1", UnitPositions remembered = {}) {
    return {store_, std::move(text), remembered};
  }
  /// Miles to kilometers.
  ConverterModel Miles(std::u16string text) { return Model(std::move(text), {kLength, 18, 14}); }
  void SetFormat(int type, int precision) {
    store_.Set(kDisplayType, type);
    store_.Set(kPrecision, precision);
  }

  MemorySettingsStore store_;
};

/// Chooses the entries of those names.
void Choose(ConverterModel& model, std::u16string_view category, std::u16string_view input,
            std::u16string_view output = {}) {
  EXPECT_EQ(model.ChooseCategory(PlaceOf(ConverterModel::Categories(), category)), std::nullopt);
  model.ChooseInput(PlaceOf(model.Inputs(), input));
  if (!output.empty()) model.ChooseOutput(PlaceOf(model.Outputs(), output));
}

TEST_F(ConverterModelTest, OffersAllCategoriesInTheirOrder) {
  EXPECT_EQ(ConverterModel::Categories(),
            (Texts{u"01. Area", u"02. Bit and Bytes", u"03. Density", u"04. Energy (Work)",
                   u"05. Flow Rate (By Volume)", u"06. Force", u"07. Length",
                   u"08. Mass and Weight", u"09. Power", u"10. Pressure and Stress", u"11. Speed",
                   u"12. Temperature", u"13. Torque", u"14. Volume", u"15. User Define"}));
}

TEST_F(ConverterModelTest, ShowsInTheUsersFormatAndHandsOverWithoutSeparators) {
  const struct {
    std::u16string_view category, input, output;
    std::u16string text, shown, result;
  } rows[] = {
      {u"07. Length", u"Miles", u"Kilometers", u"1", u"1.609344", u"1.609344"},
      {u"02. Bit and Bytes", u"Kilobytes", u"Bits", u"1", u"8,192", u"8192"},
      {u"02. Bit and Bytes", u"Megabytes", u"Bytes", u"-1", u"-1,048,576", u"-1048576"},
      {u"02. Bit and Bytes", u"Terabytes", u"Bits", u"1", u"8.7960930e+12", u"8.7960930e+12"},
      {u"14. Volume", u"Cubic Meters", u"Liters", u"1,234.5", u"1,234,500", u"1234500"},
      {u"07. Length", u"Meters", u"Kilometers", u"0", u"0", u"0"},
      {u"12. Temperature", u"Celsius -> Fahrenheit", u"", u"100", u"212", u"212"},
      {u"12. Temperature", u"Celsius -> Fahrenheit", u"", u"-40", u"-40", u"-40"},
      {u"12. Temperature", u"Fahrenheit -> Celsius", u"", u"-40", u"-40", u"-40"},
      {u"12. Temperature", u"Celsius -> Kelvin", u"", u"1000", u"1,273.15", u"1273.15"},
  };
  for (const auto& row : rows) {
    ConverterModel model = Model(row.text);
    Choose(model, row.category, row.input, row.output);
    EXPECT_EQ(model.ShownResult(), row.shown);
    EXPECT_EQ(model.Result(), row.result);
    EXPECT_EQ(model.OkRefusal(), std::nullopt);
  }
}

TEST_F(ConverterModelTest, TheDisplayTypeDecidesOnlyWhatIsShown) {
  const struct {
    int type, precision;
    std::u16string shown;
  } rows[] = {{0, 7, u"1609344"},
              {1, 2, u"1609344.00"},
              {2, 3, u"1.609e+06"},
              {3, 7, u"1,609,344"},
              {4, 3, u"1.609E+006"}};
  for (const auto& row : rows) {
    SetFormat(row.type, row.precision);
    ConverterModel model = Model(u"1000");
    Choose(model, u"07. Length", u"Miles", u"Meters");
    EXPECT_EQ(model.ShownResult(), row.shown);
    EXPECT_EQ(model.Result(), u"1609344");
  }
}

TEST_F(ConverterModelTest, ReadsWhateverAnyDisplayTypeShows) {
  const struct {
    std::u16string text, result;
  } rows[] = {{u"1609.344", u"1"},     {u"1,609.344", u"1"},     {u"  1609.344  ", u"1"},
              {u"1.609344e+03", u"1"}, {u"1.609344E+003", u"1"}, {u"-1.609344E+003", u"-1"},
              {u"160934.4e-02", u"1"}};
  for (const auto& row : rows) {
    ConverterModel model = Model(row.text);
    Choose(model, u"07. Length", u"Meters", u"Miles");
    EXPECT_EQ(model.TextRefusal(), std::nullopt);
    EXPECT_EQ(model.Result(), row.result);
  }
}

TEST_F(ConverterModelTest, ATextThatIsNoNumberGivesNoResultAndNotZero) {
  const std::u16string texts[] = {u"",      u"   ", u"inf",   u"-inf",    u"nan",
                                  u"0x10",  u"abc", u"-",     u"1e",      u"1 2",
                                  u"1.2.3", u"2*",  u"1,5.2", u"١",       u".",
                                  u"1\n2",  u"--1", u"1e5x",  u"1\u00a0", std::u16string(1, 0)};
  for (const auto& text : texts) {
    ConverterModel model = Miles(text);
    EXPECT_EQ(model.TextRefusal(), u"Not a number");
    EXPECT_EQ(model.ShownResult(), u"");
    EXPECT_EQ(model.Result(), std::nullopt);
    EXPECT_EQ(model.OkRefusal(), kRefused);
    EXPECT_EQ(model.Text(), text);
  }
}

TEST_F(ConverterModelTest, ACommaThatCouldBeADecimalOneIsRefused) {
  const std::u16string refusal = u"The comma in \"1,5\" can be read in two ways. Write 1.5 or 15.";
  const ConverterModel model = Miles(u"1,5");
  EXPECT_EQ(model.TextRefusal(), refusal);
  EXPECT_EQ(model.OkRefusal(), refusal);
  EXPECT_EQ(model.Result(), std::nullopt);
  EXPECT_EQ(Miles(u"1,234").OkRefusal(),
            u"The comma in \"1,234\" can be read in two ways. Write 1.234 or 1234.");
}

TEST_F(ConverterModelTest, ATextThatIsNoNumberIsRefusedAlsoWithNothingSelected) {
  EXPECT_EQ(Model(u"x").OkRefusal(), kRefused);
}

TEST_F(ConverterModelTest, AValueThatCannotBeShownIsSaidAndRefused) {
  ConverterModel model = Model(u"1e300");
  Choose(model, u"07. Length", u"Parsecs", u"Picometers");
  EXPECT_EQ(model.ShownResult(), kCannotBeShown);
  EXPECT_EQ(model.Result(), std::nullopt);
  EXPECT_EQ(model.OkRefusal(), kRefused);
  model.ChooseInput(model.Positions().output);
  EXPECT_EQ(model.ShownResult(), u"1.0000000e+300");
  EXPECT_EQ(model.OkRefusal(), std::nullopt);
}

TEST_F(ConverterModelTest, ANumberBeyondTheRangeCannotBeShown) {
  ConverterModel model = Miles(u"1e999");
  EXPECT_EQ(model.TextRefusal(), std::nullopt);
  EXPECT_EQ(model.ShownResult(), kCannotBeShown);
  EXPECT_EQ(model.OkRefusal(), kRefused);
}

TEST_F(ConverterModelTest, WithNothingSelectedItClosesWithoutAResult) {
  ConverterModel model = Model(u"5");
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{-1, -1, -1}));
  EXPECT_EQ(model.Inputs(), Texts{});
  EXPECT_EQ(model.Outputs(), Texts{});
  EXPECT_FALSE(model.CanSwap());
  EXPECT_EQ(model.ShownResult(), u"");
  EXPECT_EQ(model.Result(), std::nullopt);
  EXPECT_EQ(model.OkRefusal(), std::nullopt);
}

TEST_F(ConverterModelTest, EveryChangeIsInTheResultAtOnce) {
  ConverterModel model = Miles(u"1");
  EXPECT_EQ(model.ShownResult(), u"1.609344");
  model.SetText(u"10");
  EXPECT_EQ(model.ShownResult(), u"16.09344");
  model.ChooseInput(PlaceOf(model.Inputs(), u"Meters"));
  EXPECT_EQ(model.ShownResult(), u"0.01");
  model.ChooseOutput(PlaceOf(model.Outputs(), u"Centimeters"));
  EXPECT_EQ(model.ShownResult(), u"1,000");
  model.ChooseOutput(-1);
  EXPECT_EQ(model.ShownResult(), u"");
}

TEST_F(ConverterModelTest, AnOverflowIsForgottenWithTheTextThatMadeIt) {
  ConverterModel model = Miles(u"1e999");
  model.SetText(u"1");
  EXPECT_EQ(model.OkRefusal(), std::nullopt);
  EXPECT_EQ(model.Result(), u"1.609344");
}

TEST_F(ConverterModelTest, AUnitConvertedToItselfIsUnchanged) {
  ConverterModel model = Model(u"0.1");
  for (int category = 0; category < kUserDefined; ++category) {
    ASSERT_EQ(model.ChooseCategory(category), std::nullopt);
    for (int unit = 0; unit < static_cast<int>(model.Outputs().size()); ++unit) {
      model.ChooseInput(unit);
      model.ChooseOutput(unit);
      EXPECT_EQ(model.Result(), u"0.1") << category << ' ' << unit;
    }
  }
}

TEST_F(ConverterModelTest, ACategoryLoadsBothListsAndSelectsTheirFirstUnits) {
  ConverterModel model = Miles(u"1");
  EXPECT_EQ(model.ChooseCategory(5), std::nullopt);
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{5, 0, 0}));
  EXPECT_EQ(model.Inputs(), (Texts{u"Dynes", u"Kilograms Force", u"Kilonewtons", u"Kips",
                                   u"Meganewtons", u"Newtons", u"Poundals", u"Pounds Force",
                                   u"Tonnes Force", u"Tons Force (UK)", u"Tons Force (US)"}));
  EXPECT_EQ(model.Outputs(), model.Inputs());
  EXPECT_EQ(model.ShownResult(), u"1");
}

TEST_F(ConverterModelTest, TheCategoryThatIsChosenAlreadyStaysAsItIs) {
  ConverterModel model = Miles(u"1");
  EXPECT_EQ(model.ChooseCategory(kLength), std::nullopt);
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{kLength, 18, 14}));
}

TEST_F(ConverterModelTest, ACategoryThatThereIsNotSelectsNothing) {
  for (const int category : {-1, 15, INT_MIN, INT_MAX}) {
    ConverterModel model = Miles(u"1");
    EXPECT_EQ(model.ChooseCategory(category), std::nullopt);
    EXPECT_EQ(PlacesOf(model.Positions()), (Places{-1, -1, -1}));
    EXPECT_EQ(model.Inputs(), Texts{});
  }
}

TEST_F(ConverterModelTest, RememberedPositionsThatThereAreNotSelectNothing) {
  const struct {
    UnitPositions remembered, selected;
  } rows[] = {
      {{kLength, 23, 0}, {kLength, 23, 0}},
      {{kLength, 24, 0}, {kLength, -1, 0}},
      {{kLength, 0, 24}, {kLength, 0, -1}},
      {{kLength, -1, -1}, {kLength, -1, -1}},
      {{kLength, INT_MIN, INT_MAX}, {kLength, -1, -1}},
      {{-1, 3, 4}, {-1, -1, -1}},
      {{15, 3, 4}, {-1, -1, -1}},
      {{INT_MIN, 0, 0}, {-1, -1, -1}},
      {{INT_MAX, 0, 0}, {-1, -1, -1}},
      {{kTemperature, 5, -1}, {kTemperature, 5, -1}},
      {{kTemperature, 5, 0}, {kTemperature, 5, -1}},
      {{kTemperature, 6, -1}, {kTemperature, -1, -1}},
      {{kUserDefined, 0, -1}, {kUserDefined, -1, -1}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(PlacesOf(Model(u"1", row.remembered).Positions()), PlacesOf(row.selected));
}

TEST_F(ConverterModelTest, SwappingExchangesTheUnits) {
  ConverterModel model = Miles(u"1.609344");
  ASSERT_TRUE(model.CanSwap());
  model.Swap();
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{kLength, 14, 18}));
  EXPECT_EQ(model.ShownResult(), u"1");
  model.Swap();
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{kLength, 18, 14}));
}

TEST_F(ConverterModelTest, OneUnitAloneIsNotSwapped) {
  for (const UnitPositions one : {UnitPositions{kLength, 1, -1}, UnitPositions{kLength, -1, 1}}) {
    ConverterModel model = Model(u"1", one);
    EXPECT_FALSE(model.CanSwap());
    model.Swap();
    EXPECT_EQ(PlacesOf(model.Positions()), PlacesOf(one));
    EXPECT_EQ(model.Result(), std::nullopt);
  }
}

TEST_F(ConverterModelTest, TemperatureIsOneListOfConversions) {
  ConverterModel model = Model();
  EXPECT_FALSE(model.ListsConversions());
  EXPECT_EQ(model.ChooseCategory(kTemperature), std::nullopt);
  EXPECT_TRUE(model.ListsConversions());
  EXPECT_EQ(model.Inputs(),
            (Texts{u"Celsius -> Fahrenheit", u"Celsius -> Kelvin", u"Fahrenheit -> Celsius",
                   u"Fahrenheit -> Kelvin", u"Kelvin -> Celsius", u"Kelvin -> Fahrenheit"}));
  EXPECT_EQ(model.Outputs(), Texts{});
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{kTemperature, 0, -1}));
}

TEST_F(ConverterModelTest, SwappingAConversionOfTemperaturesIsTheWayBack) {
  const int reverse[] = {2, 4, 0, 5, 1, 3};
  for (int i = 0; i < 6; ++i) {
    ConverterModel model = Model(u"1", {kTemperature, i, -1});
    ASSERT_TRUE(model.CanSwap());
    model.Swap();
    EXPECT_EQ(PlacesOf(model.Positions()), (Places{kTemperature, reverse[i], -1}));
  }
}

class UserDefinedCategory : public ConverterModelTest {
 protected:
  UserDefinedCategory() {
    StoreConversions(store_, {{"inch -> cm", "2.54"},
                              {"mile -> km", "1.609344"},
                              {"cm -> inch", "0.3937"},
                              {"same -> same", "1"},
                              {"text without arrow", "3"}});
  }
};

TEST_F(UserDefinedCategory, ListsTheUsersConversions) {
  ConverterModel model = Model(u"10");
  EXPECT_EQ(model.ChooseCategory(kUserDefined), std::nullopt);
  EXPECT_TRUE(model.ListsConversions());
  EXPECT_EQ(model.Inputs(), (Texts{u"inch -> cm", u"mile -> km", u"cm -> inch", u"same -> same",
                                   u"text without arrow"}));
  EXPECT_EQ(model.Outputs(), Texts{});
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{kUserDefined, 0, -1}));
  EXPECT_EQ(model.Result(), u"25.4");
  model.ChooseInput(1);
  EXPECT_EQ(model.Result(), u"16.09344");
}

TEST_F(UserDefinedCategory, AConversionIsSwappedIfThereIsOneBack) {
  const struct {
    int selected;
    bool canSwap;
    int swapped;
  } rows[] = {{0, true, 2}, {2, true, 0},  {1, false, 1},
              {3, true, 3}, {4, false, 4}, {-1, false, -1}};
  for (const auto& row : rows) {
    ConverterModel model = Model(u"10", {kUserDefined, row.selected, -1});
    EXPECT_EQ(model.CanSwap(), row.canSwap) << row.selected;
    model.Swap();
    EXPECT_EQ(PlacesOf(model.Positions()), (Places{kUserDefined, row.swapped, -1}));
  }
}

TEST_F(UserDefinedCategory, SwappingUsesTheRateOfTheWayBack) {
  ConverterModel model = Model(u"10", {kUserDefined, 0, -1});
  model.Swap();
  EXPECT_EQ(model.Result(), u"3.937");
}

TEST_F(UserDefinedCategory, APositionThatNoLongerExistsSelectsNothing) {
  EXPECT_EQ(PlacesOf(Model(u"1", {kUserDefined, 4, -1}).Positions()),
            (Places{kUserDefined, 4, -1}));
  for (const int gone : {5, 60, INT_MIN}) {
    ConverterModel model = Model(u"1", {kUserDefined, gone, -1});
    EXPECT_EQ(PlacesOf(model.Positions()), (Places{kUserDefined, -1, -1}));
    EXPECT_EQ(model.OkRefusal(), std::nullopt);
  }
}

TEST_F(ConverterModelTest, RatesAtTheLimitsOfNumbers) {
  const struct {
    std::string rate;
    std::u16string text, shown;
  } rows[] = {{"1e-300", u"1e300", u"1"},
              {"1e-300", u"1", u"1.0000000e-300"},
              {"1e300", u"1e300", std::u16string(kCannotBeShown)},
              {"1e-300", u"1e-300", u"0"}};
  for (const auto& row : rows) {
    StoreConversions(store_, {{"a -> b", row.rate}});
    EXPECT_EQ(Model(row.text, {kUserDefined, 0, -1}).ShownResult(), row.shown) << row.rate;
  }
}

TEST_F(ConverterModelTest, WithoutConversionsOfHisOwnTheUserIsToldWhenHeChoosesThem) {
  ConverterModel model = Miles(u"1");
  EXPECT_EQ(model.ChooseCategory(kUserDefined), u"Not exist saved user-define unit convert");
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{kUserDefined, -1, -1}));
  // And again when he chooses them again.
  EXPECT_EQ(model.ChooseCategory(kUserDefined), u"Not exist saved user-define unit convert");
}

TEST_F(ConverterModelTest, WithoutConversionsOfHisOwnItGoesOnWithTheFirstCategory) {
  ConverterModel model = Miles(u"1");
  ASSERT_NE(model.ChooseCategory(kUserDefined), std::nullopt);
  model.RereadUserConversions();
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{0, 0, 0}));
  EXPECT_EQ(model.Inputs().front(), u"Acres");
}

TEST_F(ConverterModelTest, ConversionsThatTheUserWroteMeanwhileAreListed) {
  ConverterModel model = Miles(u"2");
  ASSERT_NE(model.ChooseCategory(kUserDefined), std::nullopt);
  StoreConversions(store_, {{"dozen -> piece", "12"}});
  model.RereadUserConversions();
  EXPECT_EQ(PlacesOf(model.Positions()), (Places{kUserDefined, 0, -1}));
  EXPECT_EQ(model.Inputs(), Texts{u"dozen -> piece"});
  EXPECT_EQ(model.Result(), u"24");
}

}  // namespace
}  // namespace kav::converter_model_test
