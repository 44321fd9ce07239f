#include "plotter/curve_sampling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string>
#include <vector>

#include "support/effort.h"
#include "support/graph_inputs.h"
#include "support/random.h"

namespace kav::curve_sampling_test {
namespace {

using test::FormulaOf;
using test::Random;
using test::Tries;
using Row = std::optional<int>;
using Rows = std::vector<Row>;

constexpr PlotRange kRange{-10, 10, -10, 10};
constexpr PlotRows kArea{0, 229};
constexpr int kLast = kSampleCount - 1;

CurveRows Curve(std::string_view formula, const PlotRange& range = kRange, PlotRows area = kArea,
                AngleUnit unit = AngleUnit::Radians) {
  return SampleCurve(FormulaOf(formula), range, unit, area);
}

/// The rows of the samples from `first` on.
Rows Some(const CurveRows& curve, std::size_t first, std::size_t count) {
  return {std::next(curve.begin(), static_cast<std::ptrdiff_t>(first)),
          std::next(curve.begin(), static_cast<std::ptrdiff_t>(first + count))};
}

bool HasOnly(const CurveRows& curve, Row row) {
  return std::all_of(curve.begin(), curve.end(), [&](const Row& own) { return own == row; });
}

/// Whether each sample is joined to the next one.
bool IsOneStroke(const CurveRows& curve) {
  for (std::size_t i = 0; i + 1 < curve.size(); ++i) {
    if (!curve.IsJoinedToNext(i)) return false;
  }
  return true;
}

/// The sampling once more, written as plainly as possible.
Rows Plainly(const CheckedFormula& formula, const PlotRange& range, AngleUnit unit, PlotRows area) {
  const double step = (range.xMax - range.xMin) * 0.004366812227074236;
  const double top = area.top;
  const double bottom = area.bottom;
  Rows rows(kSampleCount);
  std::vector<bool> isEvaluated(kSampleCount);
  std::vector<bool> isInside(kSampleCount);
  for (std::size_t i = 0; i < kSampleCount; ++i) {
    const auto y = formula.At({.x = range.xMin + static_cast<double>(i) * step}, unit);
    if (!y) continue;
    const double row =
        std::trunc(bottom - (bottom - top) / (range.yMax - range.yMin) * (*y - range.yMin));
    if (std::isnan(row)) continue;
    isEvaluated[i] = true;
    isInside[i] = row >= top && row <= bottom;
    if (isInside[i]) {
      rows[i] = static_cast<int>(row);
      const int middle = area.top + (area.bottom - area.top) / 2;
      if (i > 0 && !rows[i - 1] && isEvaluated[i - 1] && *rows[i] != middle) {
        rows[i - 1] = *rows[i] < middle ? area.top : area.bottom;
      }
    } else if (i > 0 && isInside[i - 1]) {
      rows[i] = row < top ? area.top : area.bottom;
    }
  }
  return rows;
}

TEST(CurveSampling, TheSamplesRunFromOneBorderOfTheRangeToTheOther) {
  EXPECT_EQ(SampleX(kRange, 0), -10);
  EXPECT_EQ(SampleX(kRange, kLast), 10);
  // In double, 229 * 0.004366812227074236 is 1 too.
  EXPECT_EQ(SampleX({0, 1, 0, 1}, kLast), 1);
  EXPECT_EQ(SampleX({0, 229, 0, 1}, 1), 229 * 0.004366812227074236);
}

TEST(CurveSampling, TheDiagonalGoesDownwardsInRowsByOneASample) {
  const CurveRows curve = Curve("x");
  EXPECT_EQ(curve[0], 229);
  EXPECT_EQ(curve[kLast], 0);
  for (std::size_t i = 0; i < curve.size(); ++i) {
    ASSERT_TRUE(curve[i]) << i;
    // 229 - i but for rounding, which truncation can turn into one row more.
    EXPECT_NEAR(*curve[i], 229 - static_cast<double>(i), 1) << i;
  }
  EXPECT_TRUE(IsOneStroke(curve));
}

TEST(CurveSampling, RowsAreTruncated) {
  // 229 - 229 / 20 * 10 = 114.5, and 0.1 higher 113.355.
  EXPECT_TRUE(HasOnly(Curve("0*x"), 114));
  EXPECT_TRUE(HasOnly(Curve("0.1+0*x"), 113));
  // With the rows from -229 to 0 it is -114.5, truncated toward zero.
  EXPECT_TRUE(HasOnly(Curve("0*x", kRange, {-229, 0}), -114));
}

TEST(CurveSampling, AReciprocalIsTwoBranches) {
  const CurveRows curve = Curve("1/x");
  // 1/x at -0.131, -0.0437, 0.0437 and 0.131 is -7.63, -22.9, 22.9 and 7.63.
  EXPECT_EQ(Some(curve, 113, 4), (Rows{201, 229, 0, 27}));
  EXPECT_TRUE(curve.IsJoinedToNext(113));
  EXPECT_FALSE(curve.IsJoinedToNext(114));
  EXPECT_TRUE(curve.IsJoinedToNext(115));
  for (std::size_t i = 0; i + 1 < curve.size(); ++i) EXPECT_EQ(curve.IsJoinedToNext(i), i != 114);
  EXPECT_FALSE(curve.IsJoinedToNext(kLast));
}

TEST(CurveSampling, ASquareRootHasNoPointsLeftOfZero) {
  const CurveRows curve = Curve("sqrt(x)");
  for (std::size_t i = 0; i < curve.size(); ++i) EXPECT_EQ(curve[i].has_value(), i >= 115) << i;
  // sqrt(0.0436681) is 0.208969: 229 - 11.45 * 10.208969 = 112.1.
  EXPECT_EQ(curve[115], 112);
  EXPECT_FALSE(curve.IsJoinedToNext(114));
  EXPECT_TRUE(curve.IsJoinedToNext(115));
}

TEST(CurveSampling, APowerOfAHalfBeginsAtItsBorder) {
  // From 0 on it has a value, and 0 is in the range's lowest row.
  const CurveRows curve = Curve("x^0.5", {0, 10, 0, 10});
  EXPECT_EQ(curve[0], 229);
  EXPECT_EQ(curve[kLast], static_cast<int>(229 - 22.9 * std::sqrt(10.)));
  EXPECT_TRUE(IsOneStroke(curve));
}

TEST(CurveSampling, ATangentIsBrokenAtEachPole) {
  const CurveRows curve = Curve("tan(x)");
  // Poles from -10 to 10 are the odd multiples of pi/2 up to 5: six. At each the curve leaves
  // through the top and comes back from the bottom.
  std::vector<Row> starts;
  std::vector<Row> ends;
  for (std::size_t i = 0; i < curve.size(); ++i) {
    const bool isJoined = curve.IsJoinedToNext(i);
    const bool wasJoined = i > 0 && curve.IsJoinedToNext(i - 1);
    EXPECT_TRUE(!isJoined || *curve[i + 1] <= *curve[i]) << i;
    if (isJoined && !wasJoined) starts.push_back(curve[i]);
    if (!isJoined && wasJoined) ends.push_back(curve[i]);
  }
  ASSERT_EQ(starts.size(), 7U);
  ASSERT_EQ(ends.size(), 7U);
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(ends[i], 0) << i;
    EXPECT_EQ(starts[i + 1], 229) << i;
  }
}

TEST(CurveSampling, TheAngleUnitCounts) {
  // The pole at 90 degrees is far outside; tan(10) is 0.1763: 229 - 11.45 * 10.1763 = 112.48.
  EXPECT_EQ(Curve("tan(x)", kRange, kArea, AngleUnit::Degrees)[kLast], 112);
  // tan of 10 radians is 0.648: 107.08.
  EXPECT_EQ(Curve("tan(x)")[kLast], 107);
}

TEST(CurveSampling, ASampleThatFailsIsAGap) {
  // The first sample is at 0.
  const CurveRows curve = Curve("1/x", {0, 10, -10, 10});
  EXPECT_EQ(curve[0], std::nullopt);
  EXPECT_FALSE(curve.IsJoinedToNext(0));
  // 22.9 and 11.45 are values outside; 7.633 is inside.
  EXPECT_EQ(Some(curve, 1, 3), (Rows{std::nullopt, 0, 27}));
}

TEST(CurveSampling, ACurveThatComesFromAFailureHasNoPointOnTheBorder) {
  // ln(x + 9.99) fails at -10 and is -2.6 at -9.91: 144.
  const CurveRows curve = Curve("ln(x+9.99)");
  EXPECT_EQ(Some(curve, 0, 1), Rows{std::nullopt});
  ASSERT_TRUE(curve[1]);
  EXPECT_FALSE(curve.IsJoinedToNext(0));
}

TEST(CurveSampling, ConstantsOnTheBordersAreInside) {
  EXPECT_TRUE(HasOnly(Curve("10+0*x"), 0));
  EXPECT_TRUE(HasOnly(Curve("-10+0*x"), 229));
  EXPECT_TRUE(IsOneStroke(Curve("10+0*x")));
  EXPECT_TRUE(HasOnly(Curve("10+0*x", kRange, {40, 300}), 40));
  EXPECT_TRUE(HasOnly(Curve("-10+0*x", kRange, {40, 300}), 300));
}

TEST(CurveSampling, ConstantsOutsideHaveNoPoints) {
  // 10.1 would be in row -1.1, and -10.1 in row 230.1.
  EXPECT_TRUE(HasOnly(Curve("10.1+0*x"), std::nullopt));
  EXPECT_TRUE(HasOnly(Curve("-10.1+0*x"), std::nullopt));
  EXPECT_TRUE(HasOnly(Curve("1e300+0*x"), std::nullopt));
  EXPECT_TRUE(HasOnly(Curve("-1e300+0*x"), std::nullopt));
}

TEST(CurveSampling, TruncationDrawsWhatIsLessThanARowOutsideInTheRowOfTheBorder) {
  // 10.05 is in row -0.57, -10.05 in row 229.57.
  EXPECT_TRUE(HasOnly(Curve("10.05+0*x"), 0));
  EXPECT_TRUE(HasOnly(Curve("-10.05+0*x"), 229));
  // From row 10 on it is 9.43.
  EXPECT_TRUE(HasOnly(Curve("10.05+0*x", kRange, {10, 239}), std::nullopt));
  EXPECT_TRUE(HasOnly(Curve("-10.05+0*x", kRange, {-240, -11}), std::nullopt));
}

TEST(CurveSampling, ACurveThatLeavesRunsToTheBorderOnce) {
  // x^2 is above 10 up to sample 78 (x = -3.188: 10.16) and from 151 on; at 79 it is 9.613.
  const CurveRows curve = Curve("x^2");
  EXPECT_EQ(Some(curve, 76, 4), (Rows{std::nullopt, std::nullopt, 0, 4}));
  EXPECT_EQ(Some(curve, 150, 4), (Rows{4, 0, std::nullopt, std::nullopt}));
  EXPECT_TRUE(curve.IsJoinedToNext(78));
  EXPECT_TRUE(curve.IsJoinedToNext(150));
  EXPECT_FALSE(curve.IsJoinedToNext(77));
  EXPECT_FALSE(curve.IsJoinedToNext(151));
  const CurveRows below = Curve("-(x^2)");
  EXPECT_EQ(Some(below, 76, 4), (Rows{std::nullopt, std::nullopt, 229, 224}));
  EXPECT_EQ(Some(below, 150, 4), (Rows{224, 229, std::nullopt, std::nullopt}));
}

TEST(CurveSampling, TheBorderOfEntryIsThatOnTheSideOfTheNewRow) {
  // It jumps from -100 to 5: it comes from below, but is drawn from above.
  const CurveRows high = Curve("5+105*int(x)", {-1.5, 0.5, -10, 10});
  EXPECT_EQ(Some(high, 56, 4), (Rows{std::nullopt, 0, 57, 57}));
  // -5 is below the middle.
  const CurveRows low = Curve("-5+105*int(x)", {-1.5, 0.5, -10, 10});
  EXPECT_EQ(Some(low, 56, 4), (Rows{std::nullopt, 229, 171, 171}));
}

TEST(CurveSampling, ACurveThatEntersInTheMiddleHasNoPointOnTheBorder) {
  const CurveRows curve = Curve("100*int(x)", {-1.5, 0.5, -10, 10});
  EXPECT_EQ(Some(curve, 56, 4), (Rows{std::nullopt, std::nullopt, 114, 114}));
}

TEST(CurveSampling, TheMiddleIsHalvedTowardTop) {
  // Of 10 to 21 it is 15, of -3 to 0 it is -2.
  struct Case {
    PlotRows area;
    double y;
    Row before;
  };
  // The row of y, from 0 to 1, is bottom - (bottom - top) * y.
  const Case cases[] = {
      {{10, 21}, 6.5 / 11, 10},            // row 14
      {{10, 21}, 5.5 / 11, std::nullopt},  // row 15
      {{10, 21}, 4.5 / 11, 21},            // row 16
      {{-3, 0}, 2.9 / 3, std::nullopt},    // row -2
      {{-3, 0}, 1, -3},                    // row -3
      {{-3, 0}, 1.5 / 3, 0},               // row -1
  };
  for (const auto& [area, y, before] : cases) {
    const std::string formula = std::to_string(y) + "+100*int(x)";
    const CurveRows curve = Curve(formula, {-1.5, 0.5, 0, 1}, area);
    EXPECT_EQ(curve[57], before) << area.top << ' ' << y;
    EXPECT_TRUE(curve[58]) << area.top << ' ' << y;
  }
}

TEST(CurveSampling, AnEntryAfterOneSampleOutsideKeepsThePointOfLeaving) {
  // Sample 115 alone, at 0.04367, is high above.
  const CurveRows curve = Curve("0.001/(x-0.0436)^2-5");
  EXPECT_EQ(Some(curve, 115, 1), Rows{0});
  EXPECT_GT(*curve[114], 114);
  EXPECT_GT(*curve[116], 114);
  EXPECT_TRUE(curve.IsJoinedToNext(114));
  EXPECT_TRUE(curve.IsJoinedToNext(115));
}

TEST(CurveSampling, AWildCurveIsSampledAsAnyOther) {
  const CurveRows curve = Curve("20*sin(1/x)", {-1, 1, -10, 10});
  EXPECT_EQ(Some(curve, 0, kSampleCount),
            Plainly(FormulaOf("20*sin(1/x)"), {-1, 1, -10, 10}, AngleUnit::Radians, kArea));
  // sin(1) * 20 = 16.8 is outside on the right.
  EXPECT_EQ(curve[kLast], std::nullopt);
}

TEST(CurveSampling, RangesAtTheEndsOfDoubleAreSampledOrLeftEmpty) {
  constexpr double kLargest = 1.7976931348623157e308;
  EXPECT_TRUE(HasOnly(Curve("x", {-kLargest, kLargest, -10, 10}), std::nullopt));
  EXPECT_TRUE(HasOnly(Curve("1e308+0*x", {0, 1, -kLargest, kLargest}), std::nullopt));
  EXPECT_TRUE(HasOnly(Curve("0*x", {0, 1, -5e-324, 5e-324}), std::nullopt));
  EXPECT_TRUE(HasOnly(Curve("1+0*x", {0, 1, 0, 5e-324}), std::nullopt));
}

TEST(CurveSampling, RowsOfAnySizeAreInTheArea) {
  constexpr int kLargest = 2147483647;
  const CurveRows curve = Curve("x", kRange, {-kLargest - 1, kLargest});
  EXPECT_EQ(curve[0], kLargest);
  EXPECT_EQ(curve[kLast], -kLargest - 1);
  EXPECT_TRUE(HasOnly(Curve("x", kRange, {7, 7}), 7));
}

constexpr auto kFormulas = std::to_array<std::string_view>({"x",
                                                            "x^2",
                                                            "1/x",
                                                            "sqrt(x)",
                                                            "tan(x)",
                                                            "20*sin(1/x)",
                                                            "x^0.5",
                                                            "x^3-5*x",
                                                            "ln(x)",
                                                            "1/(x-1)/(x+2)",
                                                            "exp(x)",
                                                            "10*int(x)-4*frac(x)",
                                                            "100*sin(9*x)",
                                                            "x!",
                                                            "0*x+3",
                                                            "-x/0.001",
                                                            "abs(x)-5",
                                                            "10^x*sin(x)",
                                                            "1/sin(x)",
                                                            "1e300*x^3",
                                                            "x/x",
                                                            "asin(x)*9"});

PlotRange RandomRange(Random& random) {
  const double size = std::pow(10, random.Fraction() * 8 - 3);
  const double x = (random.Fraction() * 2 - 1) * size;
  const double y = (random.Fraction() * 2 - 1) * size;
  return {x, x + random.Fraction() * size + 1e-9, y, y + random.Fraction() * size + 1e-9};
}

TEST(CurveSampling, RandomCurvesHaveTheRowsOfThePlainRules) {
  Random random(52);
  for (int i = 0; i < Tries(20000); ++i) {
    const std::string_view text = random.Of(kFormulas);
    const CheckedFormula formula = FormulaOf(text);
    const PlotRange range = RandomRange(random);
    const int top = static_cast<int>(random.Below(600)) - 300;
    const PlotRows area{top, top + 1 + static_cast<int>(random.Below(1000))};
    const CurveRows curve = SampleCurve(formula, range, AngleUnit::Degrees, area);
    ASSERT_EQ(Some(curve, 0, kSampleCount), Plainly(formula, range, AngleUnit::Degrees, area))
        << text << ' ' << range.xMin << ' ' << range.xMax << ' ' << range.yMin << ' ' << range.yMax
        << ' ' << area.top << ' ' << area.bottom;
  }
}

TEST(CurveSampling, AnyRangeGivesRowsOfTheAreaOrNone) {
  Random random(53);
  for (int i = 0; i < Tries(20000); ++i) {
    const PlotRange range{random.AnyDouble(), random.AnyDouble(), random.AnyDouble(),
                          random.AnyDouble()};
    const int top = static_cast<int>(static_cast<std::int32_t>(random.Bits())) / 4;
    const PlotRows area{top, top + static_cast<int>(random.Below(1 << 28))};
    const std::string_view text = random.Of(kFormulas);
    const CurveRows curve = SampleCurve(FormulaOf(text), range, AngleUnit::Radians, area);
    for (const Row& row : curve) {
      ASSERT_TRUE(!row || (*row >= area.top && *row <= area.bottom)) << text;
    }
  }
}

TEST(CurveSampling, OnlyPointsAreJoinedAndOnlyPointsOnBordersAreNot) {
  Random random(54);
  int breaks = 0;
  for (int i = 0; i < Tries(20000); ++i) {
    const CurveRows curve = Curve(random.Of(kFormulas), RandomRange(random));
    for (std::size_t k = 0; k + 1 < curve.size(); ++k) {
      if (curve.IsJoinedToNext(k)) {
        ASSERT_TRUE(curve[k] && curve[k + 1]);
      } else if (curve[k] && curve[k + 1]) {
        ++breaks;
        ASSERT_TRUE(*curve[k] == kArea.top || *curve[k] == kArea.bottom);
        ASSERT_TRUE(*curve[k + 1] == kArea.top || *curve[k + 1] == kArea.bottom);
      }
    }
  }
  EXPECT_GT(breaks, 10);
}

}  // namespace
}  // namespace kav::curve_sampling_test
