#include "plotter/curve_strokes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "support/graph_inputs.h"

namespace kav::curve_strokes_test {
namespace {

constexpr PlotRange kRange{-10, 10, -10, 10};
constexpr PlotRows kFourfold{50, 50 + 916};

std::vector<CurveStroke> Strokes(std::string_view formula, int parts = 4,
                                 const PlotRange& range = kRange, PlotRows rows = kFourfold) {
  return SampleStrokes(test::FormulaOf(formula), range, AngleUnit::Radians, rows, parts);
}

/// The row of a stroke at `sample`, which it has to pass.
double RowAt(const CurveStroke& stroke, double sample) {
  const auto after =
      std::lower_bound(stroke.begin(), stroke.end(), sample,
                       [](const CurvePlace& place, double value) { return place.sample < value; });
  if (after == stroke.begin()) return after->row;
  const auto before = after - 1;
  const double part = (sample - before->sample) / (after->sample - before->sample);
  return before->row + part * (after->row - before->row);
}

TEST(CurveStrokes, KeepTheFractionsOfRows) {
  // A flat line: 20 units are 916 rows, so it rises by 0.04 of a row a sample.
  for (const int parts : {1, 2, 4}) {
    const auto strokes = Strokes("x/100", parts);
    ASSERT_EQ(strokes.size(), 1U);
    EXPECT_EQ(strokes[0].front().sample, 0);
    EXPECT_EQ(strokes[0].back().sample, 229);
    for (int i = 0; i <= 229; ++i) {
      const double y = (-10 + i * 20 / 229.) / 100;
      EXPECT_NEAR(RowAt(strokes[0], i), 966 - 916 / 20. * (y + 10) - 0.5, 0.05) << i;
    }
  }
}

TEST(CurveStrokes, FollowTheCurveBetweenTheSamples) {
  // Ten waves: 23 samples each, whose straight lines would cut the crests by up to 8 rows.
  const auto strokes = Strokes("10*sin(x*pi)");
  ASSERT_EQ(strokes.size(), 1U);
  for (int i = 0; i <= 229 * 4; ++i) {
    const double y = 10 * std::sin((-10 + i * 20 / 916.) * std::acos(-1.));
    EXPECT_NEAR(RowAt(strokes[0], i / 4.), 966 - 916 / 20. * (y + 10) - 0.5, 0.05) << i;
  }
}

TEST(CurveStrokes, AStraightLineHasFewPlaces) {
  const auto strokes = Strokes("x");
  ASSERT_EQ(strokes.size(), 1U);
  EXPECT_LT(strokes[0].size(), 70U);
}

TEST(CurveStrokes, ACurveLeavesAtOneBorderAndComesBackAtTheOther) {
  for (const int parts : {1, 2, 3, 4}) {
    const auto strokes = Strokes("1/x", parts);
    ASSERT_EQ(strokes.size(), 2U) << parts;
    EXPECT_EQ(strokes[0].front().sample, 0);
    EXPECT_EQ(strokes[0].back().row, 966);
    EXPECT_LT(strokes[0].back().sample, 114.5);
    EXPECT_EQ(strokes[1].front().row, 50);
    EXPECT_GT(strokes[1].front().sample, 114.5);
    EXPECT_EQ(strokes[1].back().sample, 229);
  }
}

TEST(CurveStrokes, AFailureParts) {
  const auto strokes = Strokes("ln(abs(x))", 2, {-114, 115, -10, 10});
  ASSERT_EQ(strokes.size(), 2U);
  EXPECT_EQ(strokes[0].back().sample, 113.5);
  EXPECT_EQ(strokes[1].front().sample, 114.5);
  EXPECT_TRUE(Strokes("sqrt(-1-x^2)").empty());
}

TEST(CurveStrokes, WhatIsOutsideHasNone) {
  EXPECT_TRUE(Strokes("0*x+10.2").empty());
  const auto border = Strokes("0*x+10");
  ASSERT_EQ(border.size(), 1U);
  EXPECT_NEAR(border[0].front().row, 50, 0.51);
}

TEST(CurveStrokes, WithAPartASampleTheyGoWhereTheRowsAre) {
  for (const char* formula : {"x^2/5-3", "10*sin(x)", "1/x", "tan(x)", "x^0.5"}) {
    const CurveRows rows = SampleCurve(test::FormulaOf(formula), kRange, AngleUnit::Radians, {});
    for (const CurveStroke& stroke : Strokes(formula, 1, kRange, {})) {
      for (auto i = static_cast<std::size_t>(stroke.front().sample);
           i <= static_cast<std::size_t>(stroke.back().sample); ++i) {
        ASSERT_TRUE(rows[i]) << formula << ' ' << i;
        EXPECT_NEAR(RowAt(stroke, static_cast<double>(i)), *rows[i], 0.55) << formula << ' ' << i;
      }
    }
  }
}

}  // namespace
}  // namespace kav::curve_strokes_test
