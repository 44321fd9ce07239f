#include "matrix/cell_number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/plain_format.h"
#include "support/plain_matrix.h"
#include "support/random.h"

namespace kav::cell_number_test {
namespace {

using test::BitsOf;
using test::Random;
using test::Tries;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(ReadCell, ReadsTheNumberThatOpensTheText) {
  const struct {
    std::u16string text;
    double value;
  } rows[] = {{u"12.5", 12.5}, {u"-3", -3},  {u"+4", 4},      {u"1e3", 1000},  {u"1.5E-2", 0.015},
              {u"  7  ", 7},   {u".5", 0.5}, {u"5.", 5},      {u"2x", 2},      {u"1,5", 1},
              {u"3 4", 3},     {u"1e", 1},   {u"2\u00e9", 2}, {u"1\u0661", 1}, {u"9\U0001d7d8", 9}};
  for (const auto& row : rows) EXPECT_EQ(ReadCell(row.text), row.value) << Narrow(row.text);
}

TEST(ReadCell, WhatOpensWithNoNumberIsZero) {
  for (const std::u16string text :
       {u"", u" ", u"x", u"-", u".", u"e5", u"\u00b23", u"\uff11", u"\t1", u"inf", u"nan",
        u"Out of range(overflow or underflow)"}) {
    EXPECT_EQ(ReadCell(text), 0) << Narrow(text);
  }
}

TEST(ReadCell, ReadsTextsOfAnyLength) {
  EXPECT_EQ(ReadCell(u"1" + std::u16string(300, u'0')), 1e300);
  EXPECT_EQ(ReadCell(u"0." + std::u16string(299, u'0') + u"1"), 1e-300);
  EXPECT_EQ(ReadCell(std::u16string(100, u' ') + u"2.5"), 2.5);
  EXPECT_EQ(ReadCell(u"2.5" + std::u16string(1000, u'x')), 2.5);
  for (std::size_t length = 60; length < 70; ++length) {
    EXPECT_EQ(ReadCell(std::u16string(length, u'0') + u"7"), 7) << length;
    EXPECT_EQ(ReadCell(std::u16string(length, u'0') + u"7\u00e9"), 7) << length;
  }
}

TEST(ReadCell, BeyondTheRangeOfNumbersItIsInfiniteOrZero) {
  EXPECT_EQ(ReadCell(u"1e999"), kInfinity);
  EXPECT_EQ(ReadCell(u"-1e999"), -kInfinity);
  EXPECT_EQ(ReadCell(u"1e-999"), 0);
}

TEST(CellText, ShowsNaturalDecimalsOrTwelveInExponentForm) {
  const struct {
    double value;
    std::u16string text;
  } rows[] = {{1, u"1"},
              {-2.5, u"-2.5"},
              {0.1 + 0.2, u"0.3"},
              {1.0 / 3, u"0.333333333333"},
              {2.0 / 3, u"0.666666666667"},
              {1e12, u"1000000000000"},
              {1e13, u"1.000000000000e+13"},
              {-1.5e13, u"-1.500000000000e+13"},
              {1e-12, u"0.000000000001"},
              {1e-13, u"1.000000000000e-13"},
              {1e300, u"1.000000000000e+300"},
              {1234567890123.4, u"1.234567890123e+12"}};
  for (const auto& row : rows) EXPECT_EQ(CellText(row.value), row.text);
}

TEST(CellText, AZeroOfEitherSignHasNoSign) {
  EXPECT_EQ(CellText(0), u"0");
  EXPECT_EQ(CellText(-0.0), u"0");
}

TEST(CellText, WhatIsNotFiniteIsTheMessage) {
  for (const double value : {kInfinity, -kInfinity, std::nan("")}) {
    EXPECT_EQ(CellText(value), u"Out of range(overflow or underflow)");
  }
}

/// AsCell must give the number that the text reads as, for `value` with either sign.
void ExpectSameNumber(double value) {
  for (const double signedValue : {value, -value}) {
    const double number = AsCell(signedValue);
    const double read = ReadCell(CellText(signedValue));
    // Not EXPECT_EQ: putting its message together for millions of numbers takes too long.
    if (BitsOf(number) != BitsOf(read)) {
      ADD_FAILURE() << PrintRoundTrip(signedValue) << " is " << PrintRoundTrip(number) << ", not "
                    << PrintRoundTrip(read);
    }
  }
}

TEST(AsCell, IsTheNumberThatTheTextReadsAs) {
  EXPECT_EQ(AsCell(0.1 + 0.2), 0.3);
  EXPECT_EQ(AsCell(1.0 / 3), 0.333333333333);
  EXPECT_EQ(AsCell(-2.0 / 3), -0.666666666667);
  EXPECT_EQ(AsCell(0.99999999999999), 1);
  EXPECT_EQ(AsCell(12345.67), 12345.67);
  EXPECT_EQ(AsCell(123456789012345678.0), 1.234567890123e17);
  EXPECT_EQ(AsCell(1.23456789012345678e-20), 1.234567890123e-20);
}

TEST(AsCell, WhatIsNotFiniteIsZero) {
  for (const double value : {kInfinity, -kInfinity, std::nan("")}) EXPECT_EQ(AsCell(value), 0);
}

TEST(AsCell, OfZeroOfEitherSignIsZeroWithoutOne) {
  EXPECT_EQ(BitsOf(AsCell(0.0)), BitsOf(0.0));
  EXPECT_EQ(BitsOf(AsCell(-0.0)), BitsOf(0.0));
}

/// `value` and the three doubles on either side of it.
void ExpectSameNumbersAround(double value) {
  double below = value;
  double above = value;
  ExpectSameNumber(value);
  for (int i = 0; i < 3; ++i) {
    below = std::nextafter(below, -kInfinity);
    above = std::nextafter(above, kInfinity);
    ExpectSameNumber(below);
    ExpectSameNumber(above);
  }
}

TEST(AsCell, PowersOfTenAndTheirNeighbours) {
  for (int exponent = -330; exponent < 309; ++exponent) {
    const double power = ReadLeadingNumber("1e" + std::to_string(exponent));
    for (const double factor : {0.5, 1.0, 2.0, 5.0, 9.0, 9.99, 9.999999999999, 9.9999999999999}) {
      ExpectSameNumbersAround(factor * power);
    }
  }
}

TEST(AsCell, PowersOfTwoAndTheirNeighbours) {
  for (int exponent = -1074; exponent < 1024; ++exponent) {
    ExpectSameNumbersAround(std::ldexp(1, exponent));
  }
}

TEST(AsCell, ExtremeNumbers) {
  ExpectSameNumber(std::numeric_limits<double>::max());
  ExpectSameNumber(std::numeric_limits<double>::min());
  ExpectSameNumber(std::numeric_limits<double>::denorm_min());
  ExpectSameNumber(0x1p53);
  ExpectSameNumber(0x1p-75);
}

double PowerOfTen(int exponent) {
  return std::pow(10, exponent);
}

TEST(AsCell, RandomNumbersAreAsThroughTheirTexts) {
  Random random(61);
  for (int i = 0; i < Tries(300'000); ++i) {
    const double typed = static_cast<double>(random.Below(2'000'000)) /
                         PowerOfTen(static_cast<int>(random.Below(8)));
    const double other = 1 + static_cast<double>(random.Below(1000));
    ExpectSameNumber(typed);
    ExpectSameNumber(typed / other);
    ExpectSameNumber(typed * random.Fraction());
    ExpectSameNumber(typed - other / 7);
    ExpectSameNumber(random.Fraction() * PowerOfTen(static_cast<int>(random.Below(30)) - 15));
  }
}

TEST(AsCell, RandomBitsAreAsThroughTheirTexts) {
  Random random(62);
  for (int i = 0; i < Tries(300'000); ++i) ExpectSameNumber(random.AnyDouble());
}

/// `value` printed through the C library.
std::u16string PlainText(double value) {
  return Widen(test::PlainCell(value));
}

TEST(AsCell, DecimalsWithNoiseAreAsThroughTheirTexts) {
  Random random(63);
  for (int i = 0; i < Tries(200'000); ++i) {
    const int decimals = static_cast<int>(random.Below(14));
    const double step = PowerOfTen(-decimals);
    const double whole = std::floor(random.Fraction() * 1000 / step) * step;
    const double noise =
        (random.Fraction() - 0.5) * PowerOfTen(-10 - static_cast<int>(random.Below(6)));
    ExpectSameNumber(whole + noise);
    // Runs of nines, and halves of the thirteenth decimal.
    ExpectSameNumber(whole + step - std::fabs(noise));
    ExpectSameNumber(std::floor(random.Fraction() * 1e15) * 1e-13 + 0.5e-13);
    ExpectSameNumber(std::floor(random.Fraction() * 1e14) * 1e-12 + 0.5e-12);
  }
}

TEST(AsCell, TheThresholdsOfTheExponentFormAreAsThroughTheirTexts) {
  Random random(64);
  double above = 1e12;
  double below = 1e-12;
  for (int i = 0; i < Tries(50'000); ++i) {
    above = std::nextafter(above, kInfinity);
    below = std::nextafter(below, 0);
    ExpectSameNumber(above);
    ExpectSameNumber(below);
    ExpectSameNumber(1e12 * (1 + (random.Fraction() - 0.5) / 500));
    ExpectSameNumber(1e-12 * (1 + (random.Fraction() - 0.5) / 500));
  }
}

TEST(AsCell, TheTextsAreThoseOfTheCLibrary) {
  Random random(65);
  for (int i = 0; i < Tries(50'000); ++i) {
    const double value =
        (random.Fraction() - 0.5) * PowerOfTen(static_cast<int>(random.Below(30)) - 15);
    EXPECT_EQ(CellText(value), PlainText(value));
    EXPECT_EQ(BitsOf(AsCell(value)), BitsOf(test::PlainNumber(test::PlainCell(value))));
  }
}

}  // namespace
}  // namespace kav::cell_number_test
