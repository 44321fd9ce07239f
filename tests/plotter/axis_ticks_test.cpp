#include "plotter/axis_ticks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "support/random.h"

namespace kav::axis_ticks_test {
namespace {

std::string TextsOf(double lower, double upper, int most) {
  std::string texts;
  for (const AxisTick& tick : AxisTicks(lower, upper, most)) {
    texts += (texts.empty() ? "" : " ") + Narrow(tick.text);
  }
  return texts;
}

TEST(AxisTicksTest, TheyAreRound) {
  EXPECT_EQ(TextsOf(-10, 10, 10), "-10 -5 0 5 10");
  EXPECT_EQ(TextsOf(-10, 10, 11), "-10 -8 -6 -4 -2 0 2 4 6 8 10");
  EXPECT_EQ(TextsOf(0, 1, 5), "0 0.5 1");
  EXPECT_EQ(TextsOf(0, 1, 6), "0 0.2 0.4 0.6 0.8 1");
  EXPECT_EQ(TextsOf(0, 1, 11), "0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1");
  EXPECT_EQ(TextsOf(-0.07, 0.13, 6), "-0.05 0 0.05 0.1");
  EXPECT_EQ(TextsOf(3, 4.1, 3), "3 3.5 4");
  EXPECT_EQ(TextsOf(-1, 1, 1), "0");
}

TEST(AxisTicksTest, LargeAndSmallNumbersHaveExponents) {
  EXPECT_EQ(TextsOf(0, 3e6, 4), "0 1000000 2000000 3000000");
  EXPECT_EQ(TextsOf(0, 3e7, 4), "0 1e7 2e7 3e7");
  EXPECT_EQ(TextsOf(0, 3e-5, 4), "0 0.00001 0.00002 0.00003");
  EXPECT_EQ(TextsOf(0, 3e-6, 4), "0 1e-6 2e-6 3e-6");
  EXPECT_EQ(TextsOf(1e300, 1.4e300, 3), "1e300 1.2e300 1.4e300");
  EXPECT_EQ(TextsOf(-2e-300, 2e-300, 3), "-2e-300 0 2e-300");
  EXPECT_EQ(TextsOf(-1.7e308, 1.7e308, 3), "-1e308 0 1e308");
  EXPECT_EQ(TextsOf(0, 5e-324, 3), "0 5e-324");
}

TEST(AxisTicksTest, RangesOfFewDoublesHaveThoseThatDoubleTellsApart) {
  EXPECT_EQ(TextsOf(1, std::nextafter(1., 2.), 9), "1");
  EXPECT_EQ(TextsOf(4503599627370496, 4503599627370499, 9),
            "4.503599627370496e15 4.503599627370497e15 4.503599627370498e15 "
            "4.503599627370499e15");
  EXPECT_EQ(TextsOf(1e-300, 1e-300 * (1 + 4e-15), 3),
            "1e-300 1.000000000000002e-300 "
            "1.000000000000004e-300");
}

TEST(AxisTicksTest, ZeroHasNoSign) {
  for (const AxisTick& tick : AxisTicks(-1, 1, 3)) {
    EXPECT_FALSE(tick.value == 0 && std::signbit(tick.value));
  }
  EXPECT_EQ(TextsOf(-1, -0., 2), "-1 0");
}

TEST(AxisTicksTest, WhatIsNoRangeHasNone) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(AxisTicks(1, 1, 5).empty());
  EXPECT_TRUE(AxisTicks(2, 1, 5).empty());
  EXPECT_TRUE(AxisTicks(0, kInfinity, 5).empty());
  EXPECT_TRUE(AxisTicks(std::nan(""), 1, 5).empty());
  EXPECT_TRUE(AxisTicks(0, 1, 0).empty());
}

TEST(AxisTicksTest, TextsAndValuesAgreeInAnyRange) {
  test::Random random(17);
  const auto power = [&](double least, double most) {
    return std::pow(10, std::floor(least + random.Fraction() * (most - least)));
  };
  for (int i = 0; i < 300; ++i) {
    const double lower = std::floor(random.Fraction() * 2000 - 1000) * power(-300, 300);
    const double width = std::max(std::fabs(lower), 1e-290) * power(-14, 2);
    const double upper = lower + width;
    const std::vector<AxisTick> ticks = AxisTicks(lower, upper, 8);
    EXPECT_LE(ticks.size(), 8U);
    EXPECT_GE(ticks.size(), 1U) << lower << ' ' << upper;
    for (std::size_t k = 0; k < ticks.size(); ++k) {
      EXPECT_EQ(ReadWholeNumber(Narrow(ticks[k].text)), ticks[k].value);
      EXPECT_TRUE(ticks[k].value >= lower && ticks[k].value <= upper);
      EXPECT_TRUE(k == 0 || ticks[k - 1].value < ticks[k].value);
    }
  }
}

}  // namespace
}  // namespace kav::axis_ticks_test
