#include "statistics/regression.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "support/effort.h"
#include "support/random.h"

namespace kav::regression_test {
namespace {

using Model = RegressionModel;

struct Point {
  double x;
  double y;
  std::int32_t count = 1;
};

constexpr Model kModels[] = {Model::Linear,      Model::Power,       Model::Inverse,
                             Model::Logarithmic, Model::Exponential, Model::Quadratic};

RegressionSums SumsOf(Model model, const std::vector<Point>& points) {
  RegressionSums sums(model);
  for (const Point& point : points) sums.Add(point.x, point.y, point.count);
  return sums;
}

std::int32_t TotalOf(const std::vector<Point>& points) {
  std::int32_t total = 0;
  for (const Point& point : points) total += point.count;
  return total;
}

Coefficients Fit(Model model, const std::vector<Point>& points) {
  return SumsOf(model, points).Fit(TotalOf(points));
}

void ExpectNear(const Coefficients& fitted, double a, double b, double c, double within) {
  EXPECT_NEAR(fitted.a, a, within);
  EXPECT_NEAR(fitted.b, b, within);
  EXPECT_NEAR(fitted.c, c, within);
}

TEST(Regression, ALineThroughPointsOnALine) {
  const std::vector<Point> points{{1, 2}, {2, 4}, {3, 6}};
  const Coefficients fitted = Fit(Model::Linear, points);
  EXPECT_EQ(fitted.a, 2);
  EXPECT_EQ(fitted.b, 0);
  EXPECT_EQ(fitted.c, 0);
  EXPECT_EQ(SumsOf(Model::Linear, points).Correlation(3), 1);
  EXPECT_EQ(EstimateY(Model::Linear, fitted, 4), 8);
  EXPECT_EQ(EstimateX(Model::Linear, fitted, 5), 2.5);
}

TEST(Regression, AParabolaThroughPointsOnOne) {
  const Coefficients fitted = Fit(Model::Quadratic, {{1, 1}, {2, 4}, {3, 9}});
  ExpectNear(fitted, 1, 0, 0, 1e-10);
  const TwoEstimates at4 = EstimateQuadraticX({1, 0, 0}, 4);
  EXPECT_EQ(at4.first, 2);
  EXPECT_EQ(at4.second, -2);
}

TEST(Regression, AnExponentialCurveThroughPowersOfE) {
  const double e = std::exp(1.0);
  ExpectNear(Fit(Model::Exponential, {{1, e}, {2, e * e}}), 1, 1, 0, 1e-12);
}

TEST(Regression, CurvesThroughPointsOnThem) {
  const auto points = [](auto curve) {
    std::vector<Point> made;
    for (const double x : {0.5, 1.0, 2.0, 3.5, 7.0}) made.push_back({x, curve(x), 3});
    return made;
  };
  ExpectNear(Fit(Model::Power, points([](double x) { return 3 * std::pow(x, -1.5); })), 3, -1.5, 0,
             1e-12);
  ExpectNear(Fit(Model::Logarithmic, points([](double x) { return 4 * std::log(x) - 2; })), 4, -2,
             0, 1e-12);
  ExpectNear(Fit(Model::Exponential, points([](double x) { return 5 * std::exp(-0.25 * x); })), 5,
             -0.25, 0, 1e-12);
  ExpectNear(Fit(Model::Quadratic, points([](double x) { return 2 * x * x - 3 * x + 7; })), 2, -3,
             7, 1e-11);
  ExpectNear(Fit(Model::Linear, points([](double x) { return -2 * x + 9; })), -2, 9, 0, 1e-12);
}

TEST(Regression, TheInverseModelIsFittedOnTheLogarithms) {
  // ln y = b0 + b1 ln x through both points.
  const double beta1 = (std::log(2.0) - std::log(3.0)) / std::log(2.0);
  const double beta0 = std::log(3.0);
  const double b = std::exp(-beta1);
  const Coefficients fitted = Fit(Model::Inverse, {{1, 3}, {2, 2}});
  ExpectNear(fitted, std::exp(beta0) - b, b, 0, 1e-12);
  // These would be the coefficients of the curve A/x + B through the points.
  EXPECT_GT(std::fabs(fitted.a - 2), 0.1);
  EXPECT_GT(std::fabs(fitted.b - 1), 0.1);
}

TEST(Regression, RIsNegativeOnAFallingLineAndNotANumberWithoutSpread) {
  EXPECT_EQ(SumsOf(Model::Linear, {{1, 6}, {2, 4}, {3, 2}}).Correlation(3), -1);
  EXPECT_TRUE(std::isnan(SumsOf(Model::Linear, {{1, 2}, {2, 2}}).Correlation(2)));
  EXPECT_TRUE(std::isnan(SumsOf(Model::Linear, {{1, 1}, {1, 2}}).Correlation(2)));
}

TEST(Regression, EqualRowsMayBeOneRowWithACount) {
  for (const Model model : kModels) {
    const std::vector<Point> once{{1, 2, 3}, {2, 5, 1}, {4, 3, 2}};
    const std::vector<Point> repeated{{1, 2}, {1, 2}, {1, 2}, {2, 5}, {4, 3}, {4, 3}};
    const Coefficients a = Fit(model, once);
    const Coefficients b = Fit(model, repeated);
    ExpectNear(a, b.a, b.b, b.c, 1e-9);
  }
}

TEST(Regression, TheSumsOfBothVariablesAndTheirProducts) {
  for (const Model model : kModels) {
    const RegressionSums sums = SumsOf(model, {{1, 2, 3}, {4, 5, 2}});
    EXPECT_EQ(sums.X().sum, 11);
    EXPECT_EQ(sums.X().squares, 35);
    EXPECT_EQ(sums.Y().sum, 16);
    EXPECT_EQ(sums.Y().squares, 62);
    EXPECT_EQ(sums.Products(), 46);
  }
}

TEST(Regression, ProductsAreMultipliedInTheirOrder) {
  constexpr double kX = 0.1;
  constexpr double kY = 1.3;
  ASSERT_NE((3 * kY) * kX, 3 * (kY * kX));
  EXPECT_EQ(SumsOf(Model::Linear, {{kX, kY, 3}}).Products(), (3 * kY) * kX);
}

TEST(Regression, ACoefficientsTotalIsTheOneHandedIn) {
  const RegressionSums sums = SumsOf(Model::Linear, {{1, 1}, {2, 3}});
  EXPECT_EQ(sums.Fit(2).a, 2);
  // Sxy = 7 - 12/4 = 4, Sxx = 5 - 9/4 = 2.75.
  EXPECT_EQ(sums.Fit(4).a, 4 / 2.75);
  EXPECT_EQ(sums.Fit(4).b, 1 - (4 / 2.75) * 0.75);
}

/// The fit by its definition: every entry of the equations is a sum of powers of its own.
std::array<double, 3> PlainSolution(const std::vector<Point>& rows, std::size_t unknowns) {
  double a[3][4] = {};
  for (std::size_t i = 0; i < unknowns; ++i) {
    for (const auto& [u, v, c] : rows) {
      for (std::size_t j = 0; j < unknowns; ++j) {
        a[i][j] += c * std::pow(u, static_cast<double>(i + j));
      }
      a[i][unknowns] += c * std::pow(u, static_cast<double>(i)) * v;
    }
  }
  for (std::size_t p = 0; p < unknowns; ++p) {
    const double pivot = a[p][p];
    for (double& entry : a[p]) entry /= pivot;
    for (std::size_t i = 0; i < unknowns; ++i) {
      const double factor = a[i][p];
      for (std::size_t j = 0; i != p && j < 4; ++j) a[i][j] -= factor * a[p][j];
    }
  }
  return {a[0][unknowns], a[1][unknowns], a[2][unknowns]};
}

/// The regressor and the response of a model.
Point Transformed(Model model, Point point) {
  const bool logOfX =
      model == Model::Power || model == Model::Inverse || model == Model::Logarithmic;
  const bool logOfY =
      model == Model::Power || model == Model::Inverse || model == Model::Exponential;
  return {logOfX ? std::log(point.x) : point.x, logOfY ? std::log(point.y) : point.y, point.count};
}

Coefficients PlainFit(Model model, const std::vector<Point>& points) {
  std::vector<Point> rows;
  for (const Point& point : points) rows.push_back(Transformed(model, point));
  const auto beta = PlainSolution(rows, model == Model::Quadratic ? 3 : 2);
  switch (model) {
    case Model::Inverse:
      return {std::exp(beta[0]) - std::exp(-beta[1]), std::exp(-beta[1]), 0};
    case Model::Logarithmic:
      return {beta[1], beta[0], 0};
    case Model::Quadratic:
      return {beta[2], beta[1], beta[0]};
    default:
      return {std::exp(beta[0]), beta[1], 0};
  }
}

TEST(Regression, EveryBitIsThatOfTheSummationInItsOrder) {
  test::Random random(9);
  for (int round = 0; round < test::Tries(300); ++round) {
    std::vector<Point> points;
    for (std::size_t n = 3 + random.Below(40); n > 0; --n) {
      points.push_back({random.Fraction() * 9 + 0.1, random.Fraction() * 50 + 0.1,
                        static_cast<std::int32_t>(1 + random.Below(12))});
    }
    for (const Model model : kModels) {
      if (model == Model::Linear) continue;
      const Coefficients fitted = Fit(model, points);
      const Coefficients plain = PlainFit(model, points);
      ASSERT_EQ(test::BitsOf(fitted.a), test::BitsOf(plain.a));
      ASSERT_EQ(test::BitsOf(fitted.b), test::BitsOf(plain.b));
      ASSERT_EQ(test::BitsOf(fitted.c), test::BitsOf(plain.c));
    }
  }
}

TEST(Regression, RandomLinesHaveTheSlopeOfMoreDigits) {
  test::Random random(10);
  for (int round = 0; round < test::Tries(300); ++round) {
    std::vector<Point> points;
    long double n = 0, sx = 0, sy = 0, sxx = 0, sxy = 0, syy = 0;
    for (std::size_t rows = 3 + random.Below(60); rows > 0; --rows) {
      const Point p{random.Fraction() * 10, random.Fraction() * 10 - 5,
                    static_cast<std::int32_t>(1 + random.Below(5))};
      points.push_back(p);
      const long double c = p.count, x = p.x, y = p.y;
      n += c, sx += c * x, sy += c * y, sxx += c * x * x, sxy += c * x * y, syy += c * y * y;
    }
    const long double a = (sxy - sx * sy / n) / (sxx - sx * sx / n);
    const Coefficients fitted = Fit(Model::Linear, points);
    ASSERT_NEAR(fitted.a, static_cast<double>(a), 1e-10);
    ASSERT_NEAR(fitted.b, static_cast<double>(sy / n - a * sx / n), 1e-10);
    const long double r =
        (sxy - sx * sy / n) / std::sqrt((sxx - sx * sx / n) * (syy - sy * sy / n));
    ASSERT_NEAR(SumsOf(Model::Linear, points).Correlation(TotalOf(points)), static_cast<double>(r),
                1e-10);
  }
}

TEST(Regression, DataOutsideOfADomainComeOutAsNoNumber) {
  for (const Model model : {Model::Power, Model::Inverse, Model::Logarithmic}) {
    EXPECT_TRUE(std::isnan(Fit(model, {{0, 1}, {1, 2}, {2, 3}}).a));
    EXPECT_TRUE(std::isnan(Fit(model, {{-1, 1}, {1, 2}, {2, 3}}).b));
  }
  for (const Model model : {Model::Power, Model::Inverse, Model::Exponential}) {
    EXPECT_TRUE(std::isnan(Fit(model, {{1, -1}, {2, 2}, {3, 3}}).a));
  }
  EXPECT_FALSE(std::isnan(Fit(Model::Logarithmic, {{1, -1}, {2, 2}, {3, 3}}).a));
}

TEST(Regression, APivotOf0IsNotDetected) {
  EXPECT_FALSE(std::isfinite(Fit(Model::Linear, {{2, 1}, {2, 5}}).a));
  EXPECT_FALSE(std::isfinite(Fit(Model::Exponential, {{2, 1}, {2, 5}}).b));
  EXPECT_FALSE(std::isfinite(Fit(Model::Quadratic, {{1, 1}, {2, 5}}).a));
  EXPECT_FALSE(std::isfinite(Fit(Model::Quadratic, {}).c));
}

TEST(Regression, TheListIsSummedFromItsTexts) {
  DataList list(DataShape::TwoVariables);
  EXPECT_EQ(list.Append({{"1", "2.50"}, 3}), std::nullopt);
  EXPECT_EQ(list.Append({{"abc", "4"}, 2}), std::nullopt);
  EXPECT_EQ(list.Append({{"9", "9"}, {}}), std::nullopt);
  const RegressionSums sums = SumUp(list, Model::Linear);
  EXPECT_EQ(sums.X().sum, 3);
  EXPECT_EQ(sums.Y().sum, 15.5);
  EXPECT_EQ(sums.Products(), 7.5);
}

TEST(Estimates, EachModelHasItsOwn) {
  const Coefficients c{2, 3, 5};
  EXPECT_EQ(EstimateY(Model::Linear, c, 4), 11);
  EXPECT_EQ(EstimateY(Model::Power, c, 4), 128);
  EXPECT_EQ(EstimateY(Model::Inverse, c, 4), 3.5);
  EXPECT_EQ(EstimateY(Model::Logarithmic, c, 4), 2 * std::log(4.0) + 3);
  EXPECT_EQ(EstimateY(Model::Exponential, c, 4), 2 * std::exp(12.0));
  EXPECT_EQ(EstimateY(Model::Quadratic, c, 4), 49);
  EXPECT_EQ(EstimateX(Model::Linear, c, 11), 4);
  EXPECT_NEAR(EstimateX(Model::Power, c, 128), 4, 1e-14);
  EXPECT_EQ(EstimateX(Model::Inverse, c, 3.5), 4);
  EXPECT_NEAR(EstimateX(Model::Logarithmic, c, 2 * std::log(4.0) + 3), 4, 1e-14);
  EXPECT_NEAR(EstimateX(Model::Exponential, c, 2 * std::exp(12.0)), 4, 1e-14);
  EXPECT_TRUE(std::isnan(EstimateX(Model::Quadratic, c, 49)));
}

TEST(Estimates, TheFirstXOfAParabolaHasTheRootAdded) {
  // Y = X^2 - 4, and the same upside down.
  const TwoEstimates up = EstimateQuadraticX({1, 0, -4}, 5);
  EXPECT_EQ(up.first, 3);
  EXPECT_EQ(up.second, -3);
  const TwoEstimates down = EstimateQuadraticX({-1, 2, 3}, 0);
  EXPECT_EQ(down.first, -1);
  EXPECT_EQ(down.second, 3);
}

TEST(Estimates, WhatADomainDoesNotHoldIsNoNumber) {
  EXPECT_TRUE(std::isnan(EstimateQuadraticX({1, 0, 0}, -4).first));
  EXPECT_TRUE(std::isnan(EstimateQuadraticX({0, 0, 1}, 1).second));
  EXPECT_TRUE(std::isnan(EstimateY(Model::Logarithmic, {1, 0, 0}, -1)));
  EXPECT_EQ(EstimateY(Model::Inverse, {1, 0, 0}, 0), std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(EstimateX(Model::Exponential, {-1, 1, 0}, 1)));
  EXPECT_EQ(EstimateX(Model::Linear, {0, 1, 0}, 2), std::numeric_limits<double>::infinity());
}

TEST(EquationText, EachModelHasItsOwn) {
  const Coefficients c{2, 0.5, 3};
  const DisplayFormat format{DisplayType::Thousands, 7};
  EXPECT_EQ(EquationText(Model::Linear, c, format), "2*X+0.5");
  EXPECT_EQ(EquationText(Model::Power, c, format), "2*X^0.5");
  EXPECT_EQ(EquationText(Model::Inverse, c, format), "2/X+0.5");
  EXPECT_EQ(EquationText(Model::Logarithmic, c, format), "2*ln(X)+0.5");
  EXPECT_EQ(EquationText(Model::Exponential, c, format), "2*exp(0.5*X)");
  EXPECT_EQ(EquationText(Model::Quadratic, c, format), "2*X^2+0.5*X+3");
}

TEST(EquationText, CoefficientsAreWrittenWithoutSeparatorsAndWithTheirSigns) {
  for (const int type : {0, 1, 2, 3, 4}) {
    const DisplayFormat format{static_cast<DisplayType>(type), 2};
    EXPECT_EQ(EquationText(Model::Linear, {-1234567.5, -0.25, 0}, format), "-1234567.5*X+-0.25");
    EXPECT_EQ(EquationText(Model::Linear, {1e20, 0, 0}, format), "1.00e+20*X+0");
  }
}

TEST(EquationText, ACoefficientThatCannotBeShownIsTheMessage) {
  EXPECT_EQ(EquationText(Model::Linear, {std::nan(""), 1, 0}, {}),
            "Out of range(overflow or underflow)*X+1");
}

}  // namespace
}  // namespace kav::regression_test
