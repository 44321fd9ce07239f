#include "display/number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/locales.h"
#include "support/plain_format.h"
#include "support/random.h"

namespace kav::number_format_test {
namespace {

using test::Random;
using test::Tries;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr DisplayType kTypes[] = {DisplayType::FloatingPoint, DisplayType::FixedPoint,
                                  DisplayType::ScientificNotation, DisplayType::Thousands,
                                  DisplayType::EngineeringNotation};
constexpr BaseMode kBases[] = {BaseMode::Decimal, BaseMode::Hexadecimal, BaseMode::Binary,
                               BaseMode::Octal};

/// The text, or the message.
std::string Formatted(double value, DisplayType type, int precision,
                      BaseMode base = BaseMode::Decimal) {
  const auto text = FormatNumber(value, {type, precision}, base);
  return text ? *text : text.error().message;
}

using Rows = std::vector<std::pair<double, std::string_view>>;

void ExpectFormats(DisplayType type, int precision, const Rows& rows) {
  for (const auto& [value, text] : rows) EXPECT_EQ(Formatted(value, type, precision), text);
}

TEST(FormatNumber, FloatingPointShowsNaturalDecimals) {
  ExpectFormats(DisplayType::FloatingPoint, 7,
                {{0, "0"},
                 {1, "1"},
                 {-2.5, "-2.5"},
                 {0.1 + 0.2, "0.3"},
                 {0.49999999999999994, "0.5"},
                 {1.0 / 3, "0.333333333333"},
                 {123456.789, "123456.789"},
                 {1234567, "1234567"},
                 {1e12, "1000000000000"},
                 {-1e12, "-1000000000000"},
                 {1e13, "1.0000000e+13"},
                 {-1e13, "-1.0000000e+13"},
                 {1e-12, "0.000000000001"},
                 {1e-13, "1.0000000e-13"},
                 {-1e-13, "-1.0000000e-13"},
                 {1.7976931348623157e308, "1.7976931e+308"},
                 {5e-324, "4.9406565e-324"}});
  ExpectFormats(DisplayType::FloatingPoint, 0,
                {{0.25, "0.25"}, {1e13, "1e+13"}, {2.5e13, "2e+13"}});
  ExpectFormats(DisplayType::FloatingPoint, 15, {{0.25, "0.25"}, {1e13, "1.000000000000000e+13"}});
}

TEST(FormatNumber, FixedPointShowsItsPrecision) {
  ExpectFormats(DisplayType::FixedPoint, 7,
                {{0, "0.0000000"},
                 {2.5, "2.5000000"},
                 {1.0 / 3, "0.3333333"},
                 {-0.1, "-0.1000000"},
                 {1e12, "1000000000000.0000000"},
                 {1e13, "1.0000000e+13"},
                 {1e-12, "0.0000000"},
                 {1e-13, "1.0000000e-13"}});
  ExpectFormats(DisplayType::FixedPoint, 0, {{0, "0"}, {2.5, "2"}, {3.5, "4"}, {-0.6, "-1"}});
  ExpectFormats(DisplayType::FixedPoint, 2, {{1.005, "1.00"}, {1e13, "1.00e+13"}});
}

TEST(FormatNumber, ScientificNotationAlwaysShowsAnExponent) {
  ExpectFormats(DisplayType::ScientificNotation, 3,
                {{0, "0.000e+00"},
                 {1, "1.000e+00"},
                 {12345.678, "1.235e+04"},
                 {-0.05, "-5.000e-02"},
                 {1e100, "1.000e+100"},
                 {9.9996, "1.000e+01"}});
  ExpectFormats(DisplayType::ScientificNotation, 0, {{0, "0e+00"}, {1500, "2e+03"}});
}

TEST(FormatNumber, ThousandsGroupsNaturalDecimals) {
  ExpectFormats(DisplayType::Thousands, 7,
                {{0, "0"},
                 {999, "999"},
                 {1000, "1,000"},
                 {-1000, "-1,000"},
                 {1234567, "1,234,567"},
                 {-1234.5, "-1,234.5"},
                 {1234567.5, "1,234,567.5"},
                 {-999.25, "-999.25"},
                 {0.1 + 0.2, "0.3"},
                 {1234.56789012345, "1,234.56789012345"},
                 {1e12, "1,000,000,000,000"},
                 {1e13, "1.0000000e+13"},
                 {1e-13, "1.0000000e-13"}});
  ExpectFormats(DisplayType::Thousands, 2, {{1234.5, "1,234.5"}, {1e13, "1.00e+13"}});
}

TEST(FormatNumber, EngineeringNotationHasExponentsOfThree) {
  ExpectFormats(DisplayType::EngineeringNotation, 3,
                {{0, "0.000e+00"},
                 {1, "1.000E+000"},
                 {12, "12.000E+000"},
                 {999, "999.000E+000"},
                 {1000, "1.000E+003"},
                 {12345.678, "12.346E+003"},
                 {-12345.678, "-12.346E+003"},
                 {0.5, "500.000E-003"},
                 {0.05, "50.000E-003"},
                 {0.005, "5.000E-003"},
                 {0.001, "1.000E-003"},
                 {0.0001, "100.000E-006"},
                 {1e100, "10.000E+099"},
                 {1e-100, "100.000E-102"},
                 {1e300, "1.000E+300"},
                 {1e-310, "100.000E-312"},
                 {5e-324, "4.941E-324"}});
  ExpectFormats(DisplayType::EngineeringNotation, 0, {{12345.678, "12E+003"}, {0, "0e+00"}});
  ExpectFormats(DisplayType::EngineeringNotation, 15, {{1, "1.000000000000000E+000"}});
}

// From 1 on the exponent is the logarithm's, and the mantissa that of the digits: just under a
// power of ten the logarithm is that of the power already, and the digits are not.
TEST(FormatNumber, EngineeringNotationDisagreesWithItselfJustUnderAPowerOfTen) {
  ExpectFormats(DisplayType::EngineeringNotation, 3,
                {{std::nextafter(1000.0, 0.0), "10.000E+003"},
                 {std::nextafter(1e6, 0.0), "10.000E+006"},
                 {999999999999999.0, "10.000E+015"},
                 {999.9999, "1000.000E+000"},
                 {std::nextafter(1.0, 0.0), "1000.000E-003"}});
  ExpectFormats(DisplayType::EngineeringNotation, 15,
                {{std::nextafter(1000.0, 0.0), "9.999999999999998E+003"}});
}

TEST(FormatNumber, NegativeZeroIsZeroInEveryTypeAndBase) {
  for (const DisplayType type : kTypes) {
    for (const BaseMode base : kBases) {
      for (const int precision : {0, 7, 99}) {
        EXPECT_EQ(Formatted(-0.0, type, precision, base), Formatted(0.0, type, precision, base));
      }
    }
  }
  ExpectFormats(DisplayType::FloatingPoint, 7, {{-0.0, "0"}});
  ExpectFormats(DisplayType::FixedPoint, 2, {{-0.0, "0.00"}});
  ExpectFormats(DisplayType::ScientificNotation, 1, {{-0.0, "0.0e+00"}});
  ExpectFormats(DisplayType::Thousands, 7, {{-0.0, "0"}});
  ExpectFormats(DisplayType::EngineeringNotation, 1, {{-0.0, "0.0e+00"}});
}

TEST(FormatNumber, WhatRoundsToZeroKeepsItsSign) {
  ExpectFormats(DisplayType::FixedPoint, 2,
                {{-0.001, "-0.00"}, {0.001, "0.00"}, {-1e-12, "-0.00"}});
  ExpectFormats(DisplayType::FixedPoint, 0, {{-0.5, "-0"}});
}

TEST(FormatNumber, TheLimitsOfPlainNotationAreThoseOfTheLogarithm) {
  for (const DisplayType type :
       {DisplayType::FloatingPoint, DisplayType::FixedPoint, DisplayType::Thousands}) {
    EXPECT_EQ(Formatted(1e12 + 1, type, 3), "1.000e+12");
    EXPECT_EQ(Formatted(0.999e-12, type, 3), "9.990e-13");
    for (const double limit : {1e12, 1e-12}) {
      double lower = limit;
      double upper = limit;
      for (int step = 0; step < 40; ++step) {
        for (const double value : {lower, upper, -lower, -upper}) {
          const double places = std::log10(std::fabs(value));
          const bool isExponent = Formatted(value, type, 3).find('e') != std::string::npos;
          EXPECT_EQ(isExponent, places > 12.0 || places < -12.0) << PrintRoundTrip(value);
        }
        lower = std::nextafter(lower, 0.0);
        upper = std::nextafter(upper, kInfinity);
      }
    }
  }
}

TEST(FormatNumber, IntegerBasesShow32Bits) {
  struct BaseRow {
    double value;
    std::string_view hexadecimal;
    std::string_view octal;
    std::string_view binary;
  };
  constexpr BaseRow kRows[] = {
      {0, "0", "0", "0"},
      {2.9, "2", "2", "10"},
      {-0.9, "0", "0", "0"},
      {255, "FF", "377", "11111111"},
      {48879, "BEEF", "137357", "1011111011101111"},
      {-1, "FFFFFFFF", "37777777777", "11111111111111111111111111111111"},
      {-2.9, "FFFFFFFE", "37777777776", "11111111111111111111111111111110"},
      {2147483647, "7FFFFFFF", "17777777777", "1111111111111111111111111111111"},
      {-2147483648.0, "80000000", "20000000000", "10000000000000000000000000000000"},
      {4294967295, "FFFFFFFF", "37777777777", "11111111111111111111111111111111"},
      {4294967296, "0", "0", "0"},
      {5e9, "2A05F200", "5201371000", "101010000001011111001000000000"},
      {1e300, "0", "0", "0"},
  };
  for (const BaseRow& row : kRows) {
    for (const DisplayType type : kTypes) {
      for (const int precision : {0, 7}) {
        EXPECT_EQ(Formatted(row.value, type, precision, BaseMode::Hexadecimal), row.hexadecimal);
        EXPECT_EQ(Formatted(row.value, type, precision, BaseMode::Octal), row.octal);
        EXPECT_EQ(Formatted(row.value, type, precision, BaseMode::Binary), row.binary);
      }
    }
  }
}

TEST(FormatNumber, WhatIsNotFiniteIsOutOfRange) {
  for (const double value : {kInfinity, -kInfinity, kNaN, -kNaN}) {
    for (const DisplayType type : kTypes) {
      for (const BaseMode base : kBases) {
        const auto text = FormatNumber(value, {type, 7}, base);
        ASSERT_FALSE(text);
        EXPECT_EQ(text.error(), MakeError(CalcErrorCode::OutOfRange));
        EXPECT_EQ(text.error().message, "Out of range(overflow or underflow)");
      }
    }
  }
}

double SomeValue(Random& random) {
  const auto below = [&](std::size_t count) { return static_cast<double>(random.Below(count)); };
  switch (random.Below(5)) {
    case 0:
      return random.AnyDouble();
    case 1:
      return (random.Fraction() - 0.5) * std::pow(10.0, below(30) - 14);
    case 2:
      return (below(2000000) - 1e6) / std::pow(10.0, below(16));
    case 3:
      return below(1000) / (1 + below(1000));
    default: {
      double value = std::pow(10.0, below(40) - 20);
      for (auto steps = random.Below(20); steps > 0; --steps) {
        value = std::nextafter(value, random.Below(2) == 0 ? 0.0 : kInfinity);
      }
      return value;
    }
  }
}

TEST(FormatNumber, ShowsWhatTheRulesSay) {
  Random random(71);
  for (int i = 0; i < Tries(200000); ++i) {
    const double value = SomeValue(random);
    const int precision = random.Below(20) == 0 ? 99 : static_cast<int>(random.Below(16));
    for (const DisplayType type : kTypes) {
      ASSERT_EQ(Formatted(value, type, precision),
                test::PlainFormat(value, {type, precision}, BaseMode::Decimal))
          << PrintRoundTrip(value) << " type " << static_cast<int>(type) << " " << precision;
    }
    const BaseMode base = kBases[random.Below(4)];
    ASSERT_EQ(Formatted(value, DisplayType::FixedPoint, precision, base),
              test::PlainFormat(value, {DisplayType::FixedPoint, precision}, base));
  }
}

TEST(FormatNumber, IsTheSameInEveryLocale) {
  for (const char* name : test::kLocales) {
    const test::LocaleInForce locale(name);
    if (!locale.IsThere()) continue;
    EXPECT_EQ(Formatted(1234567.25, DisplayType::FloatingPoint, 7), "1234567.25") << name;
    EXPECT_EQ(Formatted(1.0 / 3, DisplayType::FloatingPoint, 7), "0.333333333333") << name;
    EXPECT_EQ(Formatted(1234567.25, DisplayType::FixedPoint, 30),
              "1234567.25" + std::string(28, '0'))
        << name;
    EXPECT_EQ(Formatted(1234567.25, DisplayType::ScientificNotation, 3), "1.235e+06") << name;
    EXPECT_EQ(Formatted(1234567.25, DisplayType::Thousands, 7), "1,234,567.25") << name;
    EXPECT_EQ(Formatted(1234567.25, DisplayType::EngineeringNotation, 3), "1.235E+006") << name;
    EXPECT_EQ(Formatted(187, DisplayType::FixedPoint, 3, BaseMode::Hexadecimal), "BB") << name;
  }
}

TEST(FormatForInsertion, IsInFloatingPoint) {
  for (const DisplayType type : kTypes) {
    EXPECT_EQ(*FormatForInsertion(1234567.5, {type, 2}), "1234567.5");
    EXPECT_EQ(*FormatForInsertion(1e13, {type, 2}), "1.00e+13");
    EXPECT_EQ(*FormatForInsertion(0, {type, 2}), "0");
    EXPECT_EQ(*FormatForInsertion(255, {type, 2}, BaseMode::Hexadecimal), "FF");
    EXPECT_EQ(FormatForInsertion(kInfinity, {type, 2}).error().message,
              "Out of range(overflow or underflow)");
  }
}

TEST(GroupThousands, SeparatesEachThreeDigitsOfTheIntegerPart) {
  const std::vector<std::pair<std::string_view, std::string_view>> rows{
      {"0", "0"},
      {"12", "12"},
      {"123", "123"},
      {"1234", "1,234"},
      {"-123", "-123"},
      {"-1000", "-1,000"},
      {"12345", "12,345"},
      {"123456", "123,456"},
      {"1234567.5", "1,234,567.5"},
      {"-1234567", "-1,234,567"},
      {"0.1234567", "0.1234567"},
      {"1000.0001", "1,000.0001"},
      {"1.2345.6789", "1.2345.6789"},
      {"", ""},
      {"-", "-"},
      {".5", ".5"},
  };
  for (const auto& [text, grouped] : rows) EXPECT_EQ(GroupThousands(text), grouped);
}

TEST(DisplayFormat, StartsAsTheSettingsDo) {
  EXPECT_EQ(DisplayFormat().type, DisplayType::Thousands);
  EXPECT_EQ(DisplayFormat().precision, 7);
  const MemorySettingsStore store;
  EXPECT_EQ(LoadDisplayFormat(store).type, DisplayType::Thousands);
  EXPECT_EQ(LoadDisplayFormat(store).precision, 7);
}

TEST(RoundAsShown, IsTheNumberThatTheTextReadsAs) {
  const struct {
    double value;
    int precision;
    double shown;
  } rows[] = {{0.1 + 0.2, 7, 0.3},
              {1.0 / 3, 2, 0.333333333333},
              {1234567890123.0, 3, 1.235e12},
              {1234567890123.0, 12, 1234567890123.0},
              {1.23456e-20, 0, 1e-20},
              {std::numeric_limits<double>::max(), 1, std::numeric_limits<double>::infinity()},
              {0, 7, 0}};
  for (const auto& row : rows) {
    EXPECT_EQ(RoundAsShown(row.value, row.precision), row.shown);
    EXPECT_EQ(RoundAsShown(-row.value, row.precision), -row.shown);
    EXPECT_FALSE(std::signbit(RoundAsShown(-0.0, row.precision)));
  }
}

TEST(DisplayFormat, IsReadFromItsSettings) {
  MemorySettingsStore store;
  store.Set(SettingKey<std::int32_t>{"Config", "Display Type", 0}, 4);
  store.Set(SettingKey<std::int32_t>{"Config", "Precision", 0}, 3);
  EXPECT_EQ(LoadDisplayFormat(store).type, DisplayType::EngineeringNotation);
  EXPECT_EQ(LoadDisplayFormat(store).precision, 3);
}

TEST(DisplayFormatFromSettings, UnknownNumbersBecomeUsableOnes) {
  for (int type = 0; type <= 4; ++type) {
    EXPECT_EQ(static_cast<int>(DisplayFormatFromSettings(type, 7).type), type);
  }
  for (const int type : {-1, 5, 1000, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(DisplayFormatFromSettings(type, 7).type, DisplayType::Thousands);
  }
  const std::vector<std::pair<int, int>> precisions{
      {0, 0}, {7, 7}, {99, 99}, {100, 99}, {-1, 0}, {std::numeric_limits<int>::max(), 99}};
  for (const auto& [stored, precision] : precisions) {
    EXPECT_EQ(DisplayFormatFromSettings(1, stored).precision, precision) << stored;
  }
}

TEST(IsDisplayType, FiveNumbersAre) {
  for (int type = 0; type <= 4; ++type) EXPECT_TRUE(IsDisplayType(type)) << type;
  for (const int type : {-1, 5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_FALSE(IsDisplayType(type)) << type;
  }
}

TEST(UsesPrecision, FloatingPointAndThousandsShowWhatTheValueHas) {
  EXPECT_FALSE(UsesPrecision(DisplayType::FloatingPoint));
  EXPECT_TRUE(UsesPrecision(DisplayType::FixedPoint));
  EXPECT_TRUE(UsesPrecision(DisplayType::ScientificNotation));
  EXPECT_FALSE(UsesPrecision(DisplayType::Thousands));
  EXPECT_TRUE(UsesPrecision(DisplayType::EngineeringNotation));
}

}  // namespace
}  // namespace kav::number_format_test
