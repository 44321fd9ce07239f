#include "plotter/plot_range.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/random.h"

namespace kav::plot_range_test {
namespace {

using Text = std::optional<std::u16string_view>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();

constexpr std::u16string_view kX =
    u"The maximum value of X should be bigger than the minimum value of X.";
constexpr std::u16string_view kY =
    u"The maximum value of Y should be bigger than the minimum value of Y.";
constexpr std::u16string_view kEqualX = u"Can not draw graph(X min = X max)";
constexpr std::u16string_view kEqualY = u"Can not draw graph(Y min = Y max)";
constexpr std::u16string_view kOutOfRange = u"Out of range(overflow or underflow)";

TEST(PlotRange, TheDefaultIsTenToEachSide) {
  EXPECT_EQ(PlotRange(), (PlotRange{-10, 10, -10, 10}));
}

TEST(PlotRange, ALowerBoundHasToBeBelowItsUpperOne) {
  struct Row {
    PlotRange range;
    Text refusal;
  };
  const Row rows[] = {
      {{-10, 10, -10, 10}, std::nullopt},
      {{0, kSmallest, -kSmallest, 0}, std::nullopt},
      {{-1, kLargest, -kLargest, 1}, std::nullopt},
      {{1, 1, 0, 1}, kX},
      {{1, -1, 0, 1}, kX},
      {{-0.0, 0.0, 0, 1}, kX},
      {{0, 1, 1, 1}, kY},
      {{0, 1, 1, 0}, kY},
      {{1, 1, 1, 1}, kX},
      {{kNaN, 1, 0, 1}, kX},
      {{0, kNaN, 0, 1}, kX},
      {{0, 1, kNaN, 1}, kY},
      {{0, 1, 0, kNaN}, kY},
      {{kInfinity, kInfinity, 0, 1}, kX},
      {{0, kInfinity, 0, 1}, kOutOfRange},
      {{-kInfinity, 0, 0, 1}, kOutOfRange},
      {{0, 1, 0, kInfinity}, kOutOfRange},
      {{0, 1, -kInfinity, kInfinity}, kOutOfRange},
      {{-kLargest, kLargest, 0, 1}, kOutOfRange},
      {{0, 1, -kLargest, kLargest}, kOutOfRange},
      {{0, kInfinity, 1, 0}, kY},
  };
  for (const auto& [range, refusal] : rows) {
    EXPECT_EQ(RangeRefusal(range), refusal)
        << range.xMin << ' ' << range.xMax << ' ' << range.yMin << ' ' << range.yMax;
  }
}

TEST(PlotRange, ARangeWithEqualBoundsCannotBeDrawn) {
  struct Row {
    PlotRange range;
    Text refusal;
  };
  const Row rows[] = {
      {{-10, 10, -10, 10}, std::nullopt},
      {{1, 1, 0, 1}, kEqualX},
      {{0, 1, 2, 2}, kEqualY},
      {{1, 1, 2, 2}, kEqualX},
      {{kInfinity, kInfinity, 0, 1}, kOutOfRange},
      {{0, kInfinity, 0, 1}, kOutOfRange},
      {{0, 1, -kInfinity, 1}, kOutOfRange},
      {{kNaN, 1, 0, 1}, kOutOfRange},
      {{0, 1, 0, kNaN}, kOutOfRange},
      {{-kLargest, kLargest, 0, 1}, kOutOfRange},
  };
  for (const auto& [range, refusal] : rows) {
    EXPECT_EQ(DrawingRefusal(range), refusal)
        << range.xMin << ' ' << range.xMax << ' ' << range.yMin << ' ' << range.yMax;
  }
}

TEST(PlotRange, WhatIsTakenFromTheUserCanBeDrawn) {
  test::Random random(51);
  int taken = 0;
  for (int i = 0; i < 10000; ++i) {
    const PlotRange range{random.AnyDouble(), random.AnyDouble(), random.AnyDouble(),
                          random.AnyDouble()};
    if (RangeRefusal(range)) continue;
    ++taken;
    EXPECT_EQ(DrawingRefusal(range), std::nullopt);
  }
  EXPECT_GT(taken, 1000);
}

}  // namespace
}  // namespace kav::plot_range_test
