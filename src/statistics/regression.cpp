#include "statistics/regression.h"

#include <cmath>
#include <limits>

namespace kav {
namespace {

using NormalEquations = std::array<std::array<double, 4>, 3>;

std::size_t UnknownsOf(RegressionModel model) {
  return model == RegressionModel::Quadratic ? 3 : 2;
}

bool TakesLogarithmOfX(RegressionModel model) {
  return model == RegressionModel::Power || model == RegressionModel::Inverse ||
         model == RegressionModel::Logarithmic;
}

bool TakesLogarithmOfY(RegressionModel model) {
  return model == RegressionModel::Power || model == RegressionModel::Inverse ||
         model == RegressionModel::Exponential;
}

/// Gauss-Jordan elimination without exchanging rows. If a pivot is zero, all unknowns are infinite
/// or not a number.
std::array<double, 3> Solve(NormalEquations a, std::size_t unknowns) {
  for (std::size_t p = 0; p < unknowns; ++p) {
    const double pivot = a[p][p];
    for (std::size_t j = 0; j <= unknowns; ++j) a[p][j] /= pivot;
    for (std::size_t i = 0; i < unknowns; ++i) {
      if (i == p) continue;
      const double factor = a[i][p];
      for (std::size_t j = 0; j <= unknowns; ++j) a[i][j] -= factor * a[p][j];
    }
  }
  return {a[0][unknowns], a[1][unknowns], a[2][unknowns]};
}

/// The coefficients of the curve from the solution of its normal equations, lowest power first.
Coefficients CoefficientsOf(RegressionModel model, const std::array<double, 3>& beta) {
  switch (model) {
    case RegressionModel::Inverse: {
      const double b = std::exp(-beta[1]);
      return {std::exp(beta[0]) - b, b, 0};
    }
    case RegressionModel::Logarithmic:
      return {beta[1], beta[0], 0};
    case RegressionModel::Quadratic:
      return {beta[2], beta[1], beta[0]};
    default:
      return {std::exp(beta[0]), beta[1], 0};
  }
}

/// The sum of products `sum` taken around the means of the factors, whose sums over n are `y` and
/// `x`.
double Centred(double sum, double y, double x, double n) {
  return sum - y * x / n;
}

std::string Spelled(double coefficient, DisplayFormat format) {
  return TextOrMessage(FormatForInsertion(coefficient, format));
}

}  // namespace

void RegressionSums::Add(double x, double y, std::int32_t count) {
  const double c = count;
  x_.Add(x, count);
  y_.Add(y, count);
  products_ += c * y * x;
  if (model_ == RegressionModel::Linear) return;
  const double u = TakesLogarithmOfX(model_) ? std::log(x) : x;
  const double v = TakesLogarithmOfY(model_) ? std::log(y) : y;
  const std::size_t unknowns = UnknownsOf(model_);
  // Entry (i, j) of the equations is the sum of c * u^(i + j).
  std::array<double, 5> weighted{c, c * u};
  for (std::size_t power = 2; power < 2 * unknowns - 1; ++power) {
    weighted[power] = c * std::pow(u, static_cast<double>(power));
  }
  for (std::size_t i = 0; i < unknowns; ++i) {
    for (std::size_t j = 0; j < unknowns; ++j) normal_[i][j] += weighted[i + j];
    normal_[i][unknowns] += weighted[i] * v;
  }
}

Coefficients RegressionSums::Fit(std::int32_t total) const {
  if (model_ != RegressionModel::Linear)
    return CoefficientsOf(model_, Solve(normal_, UnknownsOf(model_)));
  const double n = total;
  const double a = Centred(products_, y_.sum, x_.sum, n) / Centred(x_.squares, x_.sum, x_.sum, n);
  return {a, y_.sum / n - a * (x_.sum / n), 0};
}

double RegressionSums::Correlation(std::int32_t total) const {
  const double n = total;
  const double xx = Centred(x_.squares, x_.sum, x_.sum, n);
  const double yy = Centred(y_.squares, y_.sum, y_.sum, n);
  return Centred(products_, y_.sum, x_.sum, n) / std::pow(yy * xx, 0.5);
}

RegressionSums SumUp(const DataList& list, RegressionModel model) {
  RegressionSums sums(model);
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    sums.Add(list.Value(row, 0), list.Value(row, 1), list.Count(row));
  }
  return sums;
}

double EstimateY(RegressionModel model, const Coefficients& fitted, double x) {
  const auto& [a, b, c] = fitted;
  switch (model) {
    case RegressionModel::Linear:
      return a * x + b;
    case RegressionModel::Power:
      return a * std::pow(x, b);
    case RegressionModel::Inverse:
      return a / x + b;
    case RegressionModel::Logarithmic:
      return a * std::log(x) + b;
    case RegressionModel::Exponential:
      return a * std::exp(b * x);
    case RegressionModel::Quadratic:
      break;
  }
  return b * x + a * std::pow(x, 2) + c;
}

double EstimateX(RegressionModel model, const Coefficients& fitted, double y) {
  const auto& [a, b, c] = fitted;
  switch (model) {
    case RegressionModel::Linear:
      return (y - b) / a;
    case RegressionModel::Power:
      return std::pow(y / a, 1 / b);
    case RegressionModel::Inverse:
      return a / (y - b);
    case RegressionModel::Logarithmic:
      return std::exp((y - b) / a);
    case RegressionModel::Exponential:
      return (std::log(y) - std::log(a)) / b;
    case RegressionModel::Quadratic:
      break;
  }
  return std::numeric_limits<double>::quiet_NaN();
}

TwoEstimates EstimateQuadraticX(const Coefficients& fitted, double y) {
  const auto& [a, b, c] = fitted;
  const double root = std::pow(b * b - 4 * a * (c - y), 0.5);
  return {(root - b) / (2 * a), (-b - root) / (2 * a)};
}

std::string EquationText(RegressionModel model, const Coefficients& fitted, DisplayFormat format) {
  const std::string a = Spelled(fitted.a, format);
  const std::string b = Spelled(fitted.b, format);
  switch (model) {
    case RegressionModel::Linear:
      return a + "*X+" + b;
    case RegressionModel::Power:
      return a + "*X^" + b;
    case RegressionModel::Inverse:
      return a + "/X+" + b;
    case RegressionModel::Logarithmic:
      return a + "*ln(X)+" + b;
    case RegressionModel::Exponential:
      return a + "*exp(" + b + "*X)";
    case RegressionModel::Quadratic:
      break;
  }
  return a + "*X^2+" + b + "*X+" + Spelled(fitted.c, format);
}

}  // namespace kav
