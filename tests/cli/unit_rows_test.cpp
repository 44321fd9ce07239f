#include "cli/unit_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "settings/keys.h"

namespace kav::unit_rows_test {
namespace {

std::u16string_view CaptionOf(std::string_view name) {
  const UnitCategory* category = FindCategory(name);
  return category == nullptr ? std::u16string_view() : category->caption;
}

TEST(FindCategory, GoesByTheNumberOrTheCaptionInAnyCase) {
  const std::vector<std::pair<std::string_view, std::u16string_view>> rows{
      {"1", u"01. Area"},
      {"01", u"01. Area"},
      {"7", u"07. Length"},
      {"07. Length", u"07. Length"},
      {"Length", u"07. Length"},
      {"LENGTH", u"07. Length"},
      {"07. lENGTH", u"07. Length"},
      {"bit and bytes", u"02. Bit and Bytes"},
      {"Energy (Work)", u"04. Energy (Work)"},
      {"12", u"12. Temperature"},
      {"temperature", u"12. Temperature"},
      {"15", u"15. User Define"},
      {"user define", u"15. User Define"},
  };
  for (const auto& [name, caption] : rows) EXPECT_TRUE(CaptionOf(name) == caption) << name;
}

TEST(FindCategory, AnythingElseIsNone) {
  for (const auto name : {"", " ", "0", "16", "-1", "+1", "1.0", "7 ", "99999999999999999999", "7.",
                          "7. Length", "07.Length", ". Length", "Lengths", "L\xC4\xB0NE", "T"}) {
    EXPECT_EQ(FindCategory(name), nullptr) << name;
  }
}

TEST(FindCategory, KnowsTheBeginningOfOneCaptionOnly) {
  EXPECT_TRUE(CaptionOf("len") == u"07. Length");
  EXPECT_TRUE(CaptionOf("07. L") == u"07. Length");
  EXPECT_TRUE(CaptionOf("Temp") == u"12. Temperature");
  EXPECT_TRUE(CaptionOf("p") == u"") << "Power and Pressure and Stress";
}

TEST(CategoryNear, IsTheOneThatWasMeant) {
  EXPECT_EQ(CategoryNear("Lengths"), "Length");
  EXPECT_EQ(CategoryNear("temprature"), "Temperature");
  EXPECT_EQ(CategoryNear("T"), "");
}

TEST(FindRow, KnowsTheBeginningOfOneNameOnlyIfNoneIsTheWholeName) {
  const std::vector<UnitRow> rows{{"Ounces", "1"},
                                  {"Ounces(troy)", "2"},
                                  {"Pounds", "3"},
                                  {"pOUNDS(troy)", "4"},
                                  {"Tons", "5"}};
  EXPECT_EQ(*FindRow(rows, "ounces"), 0U);
  EXPECT_EQ(*FindRow(rows, "OUNCES("), 1U);
  EXPECT_EQ(*FindRow(rows, "to"), 4U);
  EXPECT_EQ(FindRow(rows, "Ounce").error(), NameFailure::Unknown);
  EXPECT_EQ(FindRow(rows, "").error(), NameFailure::Unknown);
  using Names = std::vector<std::string>;
  EXPECT_EQ(RowsNear(rows, "poun"), (Names{"Pounds", "pOUNDS(troy)"}));
  EXPECT_EQ(RowsNear(rows, "Tonnes"), Names{"Tons"});
  EXPECT_EQ(RowsNear(rows, "Acres"), Names());
  EXPECT_EQ(RowsNear(rows, ""), Names()) << "too many begin so";
}

TEST(NumberOf, CountsFromOne) {
  EXPECT_EQ(NumberOf(UnitCategories().front()), 1);
  EXPECT_EQ(NumberOf(UnitCategories().back()), 15);
}

TEST(UnitRows, RatesReadBackToTheLastBit) {
  const MemorySettingsStore settings;
  for (const UnitCategory& category : UnitCategories()) {
    if (category.kind != CategoryKind::Rates) continue;
    const auto rows = UnitRows(category, settings);
    ASSERT_EQ(rows.size(), category.units.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      EXPECT_EQ(rows[i].name, Narrow(category.units[i].name));
      EXPECT_EQ(ReadWholeNumber(rows[i].rate), category.units[i].rate) << rows[i].name;
    }
  }
}

TEST(UnitRows, RatesAreShortAndHaveAnExponentIfTheyAreFarFromOne) {
  const std::vector<std::pair<std::string_view, std::vector<UnitRow>>> rows{
      {"Length",
       {{"Meters", "1"},
        {"Miles", "1609.344"},
        {"Light years", "9460500000000000"},
        {"Parsecs", "3.085677e+16"},
        {"Picometers", "1e-12"},
        {"Millimeters", "0.001"}}},
      {"Area",
       {{"Circular Inches", "0.000506707479"},
        {"Square Centimeters", "0.0001"},
        {"Square Millimeters", "1e-06"},
        {"Square Kilometers", "1000000"}}},
      {"Bit and Bytes", {{"Petabytes", "1125899906842624"}, {"Exabytes", "1.152921504606847e+18"}}},
      {"Energy (Work)", {{"Electron Volts", "1.60219e-19"}}},
      {"Mass and Weight", {{"Solar masses", "1.989e+30"}}},
  };
  const MemorySettingsStore settings;
  for (const auto& [category, expected] : rows) {
    const auto found = UnitRows(*FindCategory(category), settings);
    for (const auto& [name, rate] : expected) {
      const auto place = FindRow(found, name);
      ASSERT_TRUE(place) << name;
      EXPECT_EQ(found[*place].rate, rate) << name;
    }
  }
}

TEST(UnitRows, TemperatureHasSixConversionsWithoutRates) {
  const MemorySettingsStore settings;
  const auto rows = UnitRows(*FindCategory("12"), settings);
  ASSERT_EQ(rows.size(), 6U);
  EXPECT_EQ(rows.front().name, "Celsius -> Fahrenheit");
  EXPECT_EQ(rows.back().name, "Kelvin -> Fahrenheit");
  for (const UnitRow& row : rows) EXPECT_EQ(row.rate, "") << row.name;
}

TEST(UnitRows, ConversionsOfTheUserStandAsTheyAreStored) {
  MemorySettingsStore settings;
  EXPECT_TRUE(UnitRows(*FindCategory("15"), settings).empty());
  settings.Set(kUserConversionCount, 2);
  settings.Set(UserConversionText(0), "inch -> cm");
  settings.Set(UserConversionRate(0), "2.5400");
  settings.Set(UserConversionText(1), "a -> b");
  settings.Set(UserConversionRate(1), "1e-7");
  const auto rows = UnitRows(*FindCategory("15"), settings);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].name, "inch -> cm");
  EXPECT_EQ(rows[0].rate, "2.5400");
  EXPECT_EQ(rows[1].name, "a -> b");
  EXPECT_EQ(rows[1].rate, "1e-7");
}

// Of two names that differ only in case, neither could be named in another case.
TEST(UnitRows, NoNameComesTwiceInACategory) {
  const MemorySettingsStore settings;
  for (const UnitCategory& category : UnitCategories()) {
    const auto rows = UnitRows(category, settings);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      std::string name = rows[i].name;
      EXPECT_EQ(*FindRow(rows, name), i) << name;
      std::transform(name.begin(), name.end(), name.begin(),
                     [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
      const auto place = FindRow(rows, name);
      ASSERT_TRUE(place) << name;
      EXPECT_EQ(*place, i) << name;
    }
  }
}

TEST(FindRow, TheVeryNameComesFirst) {
  const std::vector<UnitRow> rows{{"A -> b", "1"}, {"a -> b", "2"}, {"c -> \xC3\x84", "3"}};
  EXPECT_EQ(*FindRow(rows, "A -> b"), 0U);
  EXPECT_EQ(*FindRow(rows, "a -> b"), 1U);
  EXPECT_EQ(*FindRow(rows, "C -> \xC3\x84"), 2U);
}

TEST(FindRow, WhatIsSeveralOrNoneIsNotGuessed) {
  const std::vector<UnitRow> rows{{"A -> b", "1"}, {"a -> b", "2"}, {"c -> d", "3"}};
  EXPECT_EQ(FindRow(rows, "A -> B").error(), NameFailure::Ambiguous);
  for (const auto name : {"", "A -", "c->d", "c -> d ", "c -> dd"}) {
    const auto place = FindRow(rows, name);
    ASSERT_FALSE(place) << name;
    EXPECT_EQ(place.error(), NameFailure::Unknown) << name;
  }
  EXPECT_EQ(FindRow({}, "a").error(), NameFailure::Unknown);
}

}  // namespace
}  // namespace kav::unit_rows_test
