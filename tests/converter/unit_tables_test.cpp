#include "converter/unit_tables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "support/effort.h"
#include "support/unit_figures.h"

namespace kav::unit_tables_test {
namespace {

using test::BitsOf;
using test::FiguresOf;
using test::kRateCategories;
using test::UnitFigure;

constexpr std::string_view kCaptions[] = {
    "01. Area",
    "02. Bit and Bytes",
    "03. Density",
    "04. Energy (Work)",
    "05. Flow Rate (By Volume)",
    "06. Force",
    "07. Length",
    "08. Mass and Weight",
    "09. Power",
    "10. Pressure and Stress",
    "11. Speed",
    "12. Temperature",
    "13. Torque",
    "14. Volume",
    "15. User Define",
};

std::string Narrow(std::u16string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

const UnitCategory* Find(std::string_view caption) {
  for (const UnitCategory& category : UnitCategories())
    if (Narrow(category.caption) == caption) return &category;
  return nullptr;
}

TEST(UnitTables, FifteenCategoriesInTheirOrder) {
  const auto categories = UnitCategories();
  ASSERT_EQ(categories.size(), 15u);
  ASSERT_EQ(std::size(kCaptions), 15u);
  for (std::size_t i = 0; i < categories.size(); ++i)
    EXPECT_EQ(Narrow(categories[i].caption), kCaptions[i]);
}

TEST(UnitTables, AllButTwoCategoriesHaveRates) {
  for (const UnitCategory& category : UnitCategories()) {
    const std::string caption = Narrow(category.caption);
    const CategoryKind kind = caption == "12. Temperature"   ? CategoryKind::Temperature
                              : caption == "15. User Define" ? CategoryKind::UserDefined
                                                             : CategoryKind::Rates;
    EXPECT_EQ(category.kind, kind) << caption;
    EXPECT_EQ(category.units.empty(), kind != CategoryKind::Rates) << caption;
  }
}

TEST(UnitTables, EveryUnitHasItsNameRateAndPlace) {
  std::size_t compared = 0;
  for (const auto& [caption, text] : kRateCategories) {
    const UnitCategory* category = Find(caption);
    ASSERT_NE(category, nullptr) << caption;
    const std::vector<UnitFigure> figures = FiguresOf({caption, text});
    ASSERT_EQ(category->units.size(), figures.size()) << caption;
    for (std::size_t i = 0; i < figures.size(); ++i) {
      const Unit& unit = category->units[i];
      EXPECT_EQ(Narrow(unit.name), Narrow(figures[i].name)) << caption << ", " << i;
      EXPECT_EQ(BitsOf(unit.rate), BitsOf(figures[i].rate))
          << caption << ", " << Narrow(unit.name) << ": " << unit.rate;
      ++compared;
    }
  }
  EXPECT_EQ(std::size(kRateCategories), 13u);
  EXPECT_EQ(compared, 235u);
}

TEST(UnitTables, EveryCategoryOfRatesHasABaseUnit) {
  for (const UnitCategory& category : UnitCategories()) {
    if (category.kind != CategoryKind::Rates) continue;
    bool hasBase = false;
    for (const Unit& unit : category.units) hasBase |= unit.rate == 1;
    EXPECT_TRUE(hasBase) << Narrow(category.caption);
  }
}

TEST(UnitTables, NoNameStandsTwiceInACategory) {
  for (const UnitCategory& category : UnitCategories()) {
    std::set<std::u16string_view> names;
    for (const Unit& unit : category.units)
      EXPECT_TRUE(names.insert(unit.name).second) << Narrow(unit.name);
  }
}

/// The steps from bits to exabytes lose nothing: each is a power of two.
TEST(UnitTables, BitsAndBytesArePowersOfTwo) {
  const UnitCategory* category = Find("02. Bit and Bytes");
  ASSERT_NE(category, nullptr);
  ASSERT_EQ(category->units.size(), 14u);
  double bytes = 1;
  for (std::size_t i = 0; i < category->units.size(); i += 2, bytes *= 1024) {
    EXPECT_EQ(category->units[i].rate, bytes / 8) << Narrow(category->units[i].name);
    EXPECT_EQ(category->units[i + 1].rate, bytes) << Narrow(category->units[i + 1].name);
  }
}

TEST(UnitTables, YardsTonnesAndLiquidQuartsHaveTheirStandardSizes) {
  const struct {
    std::string_view category;
    std::u16string_view name;
    double rate;
  } kRows[] = {{"07. Length", u"Yards", 0.9144},
               {"08. Mass and Weight", u"Tonnes", 1000},
               {"14. Volume", u"Quarts, liquid (US)", 0.946352946}};
  for (const auto& row : kRows) {
    const UnitCategory* category = Find(row.category);
    ASSERT_NE(category, nullptr);
    EXPECT_EQ(category->units.back().name, row.name);
    EXPECT_EQ(category->units.back().rate, row.rate) << row.category;
  }
}

/// What users know the units by, so that a corrected spelling would be another unit.
TEST(UnitTables, OldSpellingsStay) {
  EXPECT_EQ(Find("03. Density")->units[10].name, u"Ounches/Cubic Inch");
  EXPECT_EQ(Find("08. Mass and Weight")->units[3].name, u"Hudredweights");
  EXPECT_EQ(Find("10. Pressure and Stress")->units[4].name, u"Feet/Water");
}

}  // namespace
}  // namespace kav::unit_tables_test
