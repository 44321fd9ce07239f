#include "statistics/regression_plot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "common/number_text.h"

namespace kav::regression_plot_test {
namespace {

constexpr DisplayFormat kFormat{DisplayType::Thousands, 7};
constexpr FittedCurve kLine{RegressionModel::Linear, {2, 1, 0}};

DataList ListOf(const std::vector<std::array<std::string_view, 2>>& values) {
  DataList list(DataShape::TwoVariables);
  for (const auto& row : values) EXPECT_FALSE(list.Append({row, 1}));
  return list;
}

/// The plot of a curve through points from (1, 1) to (2, 2).
Expected<GraphInput, std::u16string> PlotOf(RegressionModel model, const Coefficients& fitted) {
  return BuildRegressionPlot(ListOf({{"1", "1"}, {"2", "2"}}), {model, fitted}, kFormat,
                             AngleUnit::Radians);
}

TEST(RegressionPlot, RangeLeavesRoomAroundTheData) {
  const auto plot = BuildRegressionPlot(ListOf({{"2", "-5"}, {"12", "35"}, {"7", "0"}}), kLine,
                                        kFormat, AngleUnit::Radians);
  ASSERT_TRUE(plot);
  EXPECT_DOUBLE_EQ(plot->range.xMin, -1);
  EXPECT_DOUBLE_EQ(plot->range.xMax, 15);
  EXPECT_DOUBLE_EQ(plot->range.yMin, -17);
  EXPECT_DOUBLE_EQ(plot->range.yMax, 47);
  EXPECT_FALSE(RangeRefusal(plot->range));
}

TEST(RegressionPlot, PointsAreTheRowsInTheirOrderWhateverTheirCounts) {
  DataList list(DataShape::TwoVariables);
  EXPECT_FALSE(list.Append({{"3", "1"}, 0}));
  EXPECT_FALSE(list.Append({{"1", "2.5e0"}, 10000}));
  EXPECT_FALSE(list.Append({{"2", "x"}, std::nullopt}));
  const auto plot = BuildRegressionPlot(list, kLine, kFormat, AngleUnit::Degrees);
  ASSERT_TRUE(plot);
  EXPECT_EQ(plot->points, (std::vector<DataPoint>{{3, 1}, {1, 2.5}, {2, 0}}));
  EXPECT_DOUBLE_EQ(plot->range.yMin, -0.75);
}

TEST(RegressionPlot, CurveIsLabelledByItsEquation) {
  struct Row {
    RegressionModel model;
    Coefficients fitted;
    std::u16string_view label;
    double at2;
  };
  for (const Row& row :
       {Row{RegressionModel::Linear, {2, 0.5, 0}, u"R:F1(X)=2*X+0.5", 4.5},
        Row{RegressionModel::Linear, {2, -1, 0}, u"R:F1(X)=2*X+-1", 3},
        Row{RegressionModel::Linear, {1234567, 0, 0}, u"R:F1(X)=1234567*X+0", 2469134},
        Row{RegressionModel::Linear, {-2e-13, 1, 0}, u"R:F1(X)=-2.0000000e-13*X+1", 1 - 4e-13},
        Row{RegressionModel::Linear,
            {2.5e15, -1e13, 0},
            u"R:F1(X)=2.5000000e+15*X+-1.0000000e+13",
            4.99e15},
        Row{RegressionModel::Power, {3, 2, 0}, u"R:F1(X)=3*X^2", 12},
        Row{RegressionModel::Power, {3, -2, 0}, u"R:F1(X)=3*X^-2", 0.75},
        Row{RegressionModel::Inverse, {3, 2, 0}, u"R:F1(X)=3/X+2", 3.5},
        Row{RegressionModel::Logarithmic, {3, 2, 0}, u"R:F1(X)=3*ln(X)+2", 3 * std::log(2.0) + 2},
        Row{RegressionModel::Exponential,
            {3, -0.5, 0},
            u"R:F1(X)=3*exp(-0.5*X)",
            3 * std::exp(-1.0)},
        Row{RegressionModel::Quadratic, {1, -2, 3}, u"R:F1(X)=1*X^2+-2*X+3", 3}}) {
    const auto plot = PlotOf(row.model, row.fitted);
    ASSERT_TRUE(plot) << Narrow(row.label) << ": " << Narrow(plot.error());
    ASSERT_EQ(plot->curves.size(), 1U);
    EXPECT_EQ(plot->curves[0].label, row.label);
    const auto value = plot->curves[0].formula.At({2, 0, 0}, AngleUnit::Radians);
    ASSERT_TRUE(value) << Narrow(row.label);
    EXPECT_DOUBLE_EQ(*value, row.at2) << Narrow(row.label);
  }
}

TEST(RegressionPlot, GraphIsHandedTheSettings) {
  const auto plot = BuildRegressionPlot(ListOf({{"1", "1"}, {"2", "2"}}), kLine,
                                        {DisplayType::FixedPoint, 3}, AngleUnit::Radians);
  ASSERT_TRUE(plot);
  EXPECT_EQ(plot->angle, AngleUnit::Radians);
  EXPECT_EQ(plot->format.type, DisplayType::FixedPoint);
  EXPECT_EQ(plot->format.precision, 3);
  EXPECT_EQ(plot->options, GraphOptions{});
  EXPECT_EQ(plot->curves[0].label, u"R:F1(X)=2*X+1");
}

TEST(RegressionPlot, DataThatDoNotSpreadAreRefused) {
  struct Row {
    std::vector<std::array<std::string_view, 2>> values;
    std::u16string_view told;
  };
  for (const Row& row :
       {Row{{{"1", "2"}, {"1", "4"}},
            u"The maximum value of X should be bigger than the minimum value of X."},
        Row{{{"1", "2"}, {"1.0", "2"}},
            u"The maximum value of X should be bigger than the minimum value of X."},
        Row{{{"1", "2"}}, u"The maximum value of X should be bigger than the minimum value of X."},
        Row{{{"1", "2"}, {"3", "2"}},
            u"The maximum value of Y should be bigger than the minimum value of Y."}}) {
    const auto plot = BuildRegressionPlot(ListOf(row.values), kLine, kFormat, AngleUnit::Radians);
    ASSERT_FALSE(plot);
    EXPECT_EQ(plot.error(), row.told);
  }
}

// Data without a spread are refused before the equation is checked.
TEST(RegressionPlot, DataThatDoNotSpreadAreToldBeforeABadEquation) {
  const auto plot =
      BuildRegressionPlot(ListOf({{"1", "2"}, {"1", "4"}}),
                          {RegressionModel::Linear, {NAN, NAN, 0}}, kFormat, AngleUnit::Radians);
  ASSERT_FALSE(plot);
  EXPECT_EQ(plot.error(), u"The maximum value of X should be bigger than the minimum value of X.");
}

TEST(RegressionPlot, AModelWhoseCoefficientsAreNoNumbersHasNoCurve) {
  const auto told = [](RegressionModel model, const Coefficients& fitted) {
    const auto plot = PlotOf(model, fitted);
    return plot ? std::u16string() : plot.error();
  };
  EXPECT_EQ(told(RegressionModel::Linear, {NAN, 2, 0}),
            u"The model \"Linear : A*X+B\" has no curve for these data.");
  EXPECT_EQ(told(RegressionModel::Power, {1, INFINITY, 0}),
            u"The model \"Power : A*X^B\" has no curve for these data.");
  EXPECT_EQ(told(RegressionModel::Quadratic, {1, 1, -INFINITY}),
            u"The model \"Quadratic : A*X^2+B*X+C\" has no curve for these data.");
}

// Coefficients that a model lacks are not in its equation.
TEST(RegressionPlot, CoefficientThatAModelLacksDoesNotMatter) {
  EXPECT_TRUE(PlotOf(RegressionModel::Linear, {1, 2, NAN}));
}

TEST(RegressionPlot, DataThatAreTooFarApartAreRefused) {
  for (const auto& far : {std::array<std::string_view, 2>{"1e308", "1"},
                          std::array<std::string_view, 2>{"1", "1e308"},
                          std::array<std::string_view, 2>{"1e999", "1"},
                          std::array<std::string_view, 2>{"1", "-1e999"}}) {
    const auto plot = BuildRegressionPlot(ListOf({far, {"-1e308", "-1e308"}}), kLine, kFormat,
                                          AngleUnit::Radians);
    ASSERT_FALSE(plot);
    EXPECT_EQ(plot.error(), u"Out of range(overflow or underflow)");
  }
}

// The data are in the range of double, but the range with room around them is not.
TEST(RegressionPlot, DataThatLeaveNoRoomAroundThemAreRefused) {
  const auto plot = BuildRegressionPlot(ListOf({{"-1e308", "1"}, {"7e307", "2"}}), kLine, kFormat,
                                        AngleUnit::Radians);
  ASSERT_FALSE(plot);
  EXPECT_EQ(plot.error(), u"Out of range(overflow or underflow)");
}

TEST(RegressionPlot, DataThatAreFarApartAreShown) {
  const auto plot = BuildRegressionPlot(ListOf({{"1e300", "1e-300"}, {"-1e300", "2e-300"}}), kLine,
                                        kFormat, AngleUnit::Radians);
  ASSERT_TRUE(plot);
  EXPECT_DOUBLE_EQ(plot->range.xMin, -1.6e300);
  EXPECT_DOUBLE_EQ(plot->range.yMax, 2.3e-300);
}

}  // namespace
}  // namespace kav::regression_plot_test
