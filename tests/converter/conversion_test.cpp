#include "converter/conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "support/effort.h"
#include "support/random.h"
#include "support/unit_figures.h"

namespace kav::conversion_test {
namespace {

using test::BitsOf;
using test::FiguresOf;
using test::kRateCategories;
using test::Random;
using test::Tries;
using test::UnitFigure;

using Limits = std::numeric_limits<double>;

constexpr double kValues[] = {1, 3.7, -12345.678, 1e-9, 6.02214076e23};

std::string Narrow(std::u16string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

std::u16string Wide(std::string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

const UnitCategory& CategoryOf(std::string_view caption) {
  for (const UnitCategory& category : UnitCategories())
    if (category.caption == Wide(caption)) return category;
  ADD_FAILURE() << caption;
  return UnitCategories().front();
}

const Unit& UnitOf(std::string_view caption, std::string_view name) {
  const UnitCategory& category = CategoryOf(caption);
  for (const Unit& unit : category.units)
    if (unit.name == Wide(name)) return unit;
  ADD_FAILURE() << name;
  return category.units.front();
}

double Converted(double value, std::string_view caption, std::string_view from,
                 std::string_view to) {
  return ConvertUnits(value, UnitOf(caption, from), UnitOf(caption, to));
}

double Temperature(std::string_view caption, double value) {
  for (const TemperatureConversion& conversion : TemperatureConversions())
    if (conversion.caption == Wide(caption)) return conversion.convert(value);
  ADD_FAILURE() << caption;
  return Limits::quiet_NaN();
}

const Unit& BaseOf(const UnitCategory& category) {
  for (const Unit& unit : category.units)
    if (unit.rate == 1) return unit;
  ADD_FAILURE() << Narrow(category.caption);
  return category.units.front();
}

TEST(ConvertUnits, EveryUnitToTheBaseUnitAndBack) {
  for (const auto& figures : kRateCategories) {
    const UnitCategory& category = CategoryOf(figures.caption);
    const Unit& base = BaseOf(category);
    for (const UnitFigure& figure : FiguresOf(figures)) {
      const Unit& unit = UnitOf(figures.caption, Narrow(figure.name));
      for (const double value : kValues) {
        const double inBase = ConvertUnits(value, unit, base);
        EXPECT_EQ(BitsOf(inBase), BitsOf(value * figure.rate)) << Narrow(figure.name);
        const double back = ConvertUnits(inBase, base, unit);
        EXPECT_EQ(BitsOf(back), BitsOf(value * figure.rate / figure.rate)) << Narrow(figure.name);
        EXPECT_DOUBLE_EQ(back, value) << Narrow(figure.name);
      }
    }
  }
}

TEST(ConvertUnits, EveryPairOfACategoryDividesBeforeItMultiplies) {
  for (const auto& category : kRateCategories) {
    const std::vector<UnitFigure> figures = FiguresOf(category);
    const auto units = CategoryOf(category.caption).units;
    ASSERT_EQ(units.size(), figures.size());
    for (std::size_t from = 0; from < units.size(); ++from)
      for (std::size_t to = 0; to < units.size(); ++to) {
        if (from == to) continue;
        const double expected = 3.7 / figures[to].rate * figures[from].rate;
        EXPECT_EQ(BitsOf(ConvertUnits(3.7, units[from], units[to])), BitsOf(expected))
            << Narrow(units[from].name) << " to " << Narrow(units[to].name);
      }
  }
}

/// The last bit tells the order: if the multiplication came first, it would be another number.
TEST(ConvertUnits, DivisionComesFirst) {
  const struct {
    double value;
    std::string_view from, to;
    double result, multipliedFirst;
  } kRows[] = {{3, "Feet", "Inches", 36, 0x1.2000000000001p+5},
               {7, "Miles", "Feet", 36960, 0x1.20bffffffffffp+15},
               {5, "Inches", "Feet", 0x1.aaaaaaaaaaaabp-2, 0x1.aaaaaaaaaaaaap-2},
               {1, "Yards", "Feet", 0x1.7ffffffffffffp+1, 3}};
  for (const auto& row : kRows) {
    const Unit& from = UnitOf("07. Length", row.from);
    const Unit& to = UnitOf("07. Length", row.to);
    EXPECT_EQ(ConvertUnits(row.value, from, to), row.result) << row.from;
    EXPECT_EQ(row.value * from.rate / to.rate, row.multipliedFirst) << row.from;
  }
}

TEST(ConvertUnits, DivisionFirstKeepsLargeValuesInRange) {
  EXPECT_DOUBLE_EQ(Converted(1e302, "04. Energy (Work)", "Kilowatt Hours", "Gigajoules"), 3.6e299);
  EXPECT_EQ(Converted(1e305, "07. Length", "Light years", "Nanometers"), Limits::infinity());
}

TEST(ConvertUnits, MilesInKilometers) {
  EXPECT_EQ(Converted(1, "07. Length", "Miles", "Kilometers"), 1.609344);
}

TEST(ConvertUnits, KilobytesInBits) {
  EXPECT_EQ(Converted(1, "02. Bit and Bytes", "Kilobytes", "Bits"), 8192);
}

/// 0.5 / 0.3048 * 0.3048 is 0.49999999999999994, so that rounding would be seen.
TEST(ConvertUnits, UnitToItselfDoesNotRound) {
  const Unit& feet = UnitOf("07. Length", "Feet");
  ASSERT_NE(0.5 / feet.rate * feet.rate, 0.5);
  EXPECT_EQ(ConvertUnits(0.5, feet, feet), 0.5);
  const Unit copy = feet;
  EXPECT_EQ(ConvertUnits(0.5, feet, copy), 0.5);
}

TEST(ConvertUnits, EveryUnitToItselfGivesTheValueToTheLastBit) {
  const double kExtremes[] = {0.0,           -0.0,
                              Limits::max(), Limits::lowest(),
                              Limits::min(), Limits::denorm_min(),
                              0.5,           -Limits::denorm_min(),
                              0.1,           Limits::infinity(),
                              1e308,         -Limits::infinity()};
  Random random(6101);
  for (const UnitCategory& category : UnitCategories())
    for (const Unit& unit : category.units) {
      for (const double value : kExtremes)
        EXPECT_EQ(BitsOf(ConvertUnits(value, unit, unit)), BitsOf(value)) << Narrow(unit.name);
      for (int i = 0; i < Tries(1000); ++i) {
        const double value = random.AnyDouble();
        if (std::isnan(value)) continue;
        ASSERT_EQ(BitsOf(ConvertUnits(value, unit, unit)), BitsOf(value)) << Narrow(unit.name);
      }
    }
}

/// Hectopascals and millibars have the same size, but are not the same unit: they are converted
/// like any two units.
TEST(ConvertUnits, UnitsOfTheSameSizeAreCalculatedToo) {
  EXPECT_EQ(Converted(0.23, "10. Pressure and Stress", "Hectopascals", "Millibars"),
            0.22999999999999998);
  EXPECT_EQ(Converted(0.1, "03. Density", "Grams/Milliliters", "Kilograms/Liter"), 0.1);
}

TEST(Temperature, SixConversionsInTheirOrder) {
  constexpr std::u16string_view kCaptions[] = {u"Celsius -> Fahrenheit", u"Celsius -> Kelvin",
                                               u"Fahrenheit -> Celsius", u"Fahrenheit -> Kelvin",
                                               u"Kelvin -> Celsius",     u"Kelvin -> Fahrenheit"};
  const auto conversions = TemperatureConversions();
  ASSERT_EQ(conversions.size(), 6u);
  for (std::size_t i = 0; i < conversions.size(); ++i)
    EXPECT_EQ(Narrow(conversions[i].caption), Narrow(kCaptions[i]));
}

/// Written out, in the order of the conversions.
constexpr double (*kFormulas[])(double v) = {
    [](double v) { return (v + 40) * 1.8 - 40; },
    [](double v) { return v + 273.15; },
    [](double v) { return (v + 40) * 5 / 9 - 40; },
    [](double v) { return (v + 40) * 5 / 9 - 40 + 273.15; },
    [](double v) { return v - 273.15; },
    [](double v) { return ((v - 273.15) + 40) * 1.8 - 40; },
};

TEST(Temperature, AllFormulasBitForBit) {
  Random random(6102);
  const auto conversions = TemperatureConversions();
  for (std::size_t c = 0; c < conversions.size(); ++c) {
    for (int tenths = -10000; tenths <= 10000; ++tenths) {
      const double value = tenths / 10.0;
      ASSERT_EQ(BitsOf(conversions[c].convert(value)), BitsOf(kFormulas[c](value)))
          << c << ", " << value;
    }
    for (int i = 0; i < Tries(2000); ++i) {
      const double value = random.AnyDouble();
      if (std::isnan(value)) continue;
      const double result = conversions[c].convert(value);
      if (std::isnan(result)) continue;
      ASSERT_EQ(BitsOf(result), BitsOf(kFormulas[c](value))) << c << ", " << value;
    }
  }
}

/// Figures that another order of the operations, or the offset of 32, would miss by a bit or more.
TEST(Temperature, RoundsAsTheWayOverTheCrossingPointDoes) {
  const struct {
    std::string_view caption;
    double value, result, otherWay;
  } kRows[] = {
      {"Celsius -> Fahrenheit", 37, 98.6, 37 * 1.8 + 32},
      {"Celsius -> Fahrenheit", 0.1, 32.18000000000001, 0.1 * 1.8 + 32},
      {"Fahrenheit -> Celsius", 20, -6.666666666666664, (20.0 - 32) * 5 / 9},
      {"Fahrenheit -> Celsius", 100, 37.77777777777777, (100.0 + 40) * (5.0 / 9) - 40},
      {"Fahrenheit -> Celsius", 25, -3.8888888888888857, (25.0 + 40) / 1.8 - 40},
      {"Fahrenheit -> Kelvin", -40, 233.14999999999998, 233.15},
      {"Kelvin -> Fahrenheit", 0, -459.66999999999996, -459.67},
      {"Kelvin -> Fahrenheit", 100, -279.66999999999996, (100 - 233.15) * 1.8 - 40},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(Temperature(row.caption, row.value), row.result) << row.caption << row.value;
    EXPECT_NE(row.result, row.otherWay) << row.caption << row.value;
  }
}

TEST(Temperature, BothScalesMeetAtMinusForty) {
  EXPECT_EQ(Temperature("Celsius -> Fahrenheit", -40), -40);
  EXPECT_EQ(Temperature("Fahrenheit -> Celsius", -40), -40);
}

TEST(Temperature, FixedPointsOfTheScales) {
  EXPECT_EQ(Temperature("Celsius -> Fahrenheit", 100), 212);
  EXPECT_EQ(Temperature("Celsius -> Fahrenheit", 0), 32);
  EXPECT_EQ(Temperature("Fahrenheit -> Celsius", 212), 100);
  EXPECT_EQ(Temperature("Fahrenheit -> Kelvin", 212), 373.15);
  EXPECT_EQ(Temperature("Celsius -> Kelvin", 0), 273.15);
  EXPECT_EQ(Temperature("Celsius -> Kelvin", -273.15), 0);
  EXPECT_EQ(Temperature("Kelvin -> Celsius", 273.15), 0);
  EXPECT_EQ(Temperature("Kelvin -> Fahrenheit", 273.15), 32);
}

TEST(Temperature, BeyondTheRangeTheResultIsInfinite) {
  EXPECT_EQ(Temperature("Celsius -> Fahrenheit", Limits::max()), Limits::infinity());
  EXPECT_EQ(Temperature("Fahrenheit -> Celsius", Limits::lowest()), -Limits::infinity());
  EXPECT_EQ(Temperature("Kelvin -> Celsius", Limits::max()), Limits::max());
}

TEST(ConvertByRate, MultipliesByTheRate) {
  EXPECT_EQ(ConvertByRate(10, 2.54), 25.4);
  EXPECT_EQ(ConvertByRate(-3, 0.5), -1.5);
  EXPECT_EQ(ConvertByRate(1, 1e-300), 1e-300);
  EXPECT_EQ(ConvertByRate(1e10, 1e300), Limits::infinity());
}

}  // namespace
}  // namespace kav::conversion_test
