// Curves fitted to pairs of data.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "display/number_format.h"
#include "statistics/data_list.h"
#include "statistics/one_variable.h"

namespace kav {

/// The curves, with their numbers in the menu.
enum class RegressionModel {
  Linear = 1,   ///< Y = A X + B
  Power,        ///< Y = A X^B
  Inverse,      ///< Y = A / X + B
  Logarithmic,  ///< Y = A ln(X) + B
  Exponential,  ///< Y = A e^(B X)
  Quadratic,    ///< Y = A X^2 + B X + C
};

/// A, B and C of a curve; those that its model lacks are 0.
struct Coefficients {
  double a = 0;
  double b = 0;
  double c = 0;
};

/// The sums that a model is fitted by. Their last digits depend on the order of the rows.
class RegressionSums {
 public:
  explicit RegressionSums(RegressionModel model) : model_(model) {}

  void Add(double x, double y, std::int32_t count);

  const WeightedSums& X() const { return x_; }
  const WeightedSums& Y() const { return y_; }
  double Products() const { return products_; }  ///< of (c * y) * x

  // `total` is the sum of all counts. A value that the data do not allow, such as one that needs
  // the logarithm of a number below 0, is infinite or not a number.
  Coefficients Fit(std::int32_t total) const;
  /// r of the linear model, -1 to 1 but for rounding.
  double Correlation(std::int32_t total) const;

 private:
  RegressionModel model_;
  WeightedSums x_;
  WeightedSums y_;
  double products_ = 0;
  /// The normal equations, a row for each unknown, with their right sides in the last column.
  std::array<std::array<double, 4>, 3> normal_{};
};

/// The sums over the rows of a list of two variables, from the top.
RegressionSums SumUp(const DataList& list, RegressionModel model);

/// The value of the fitted curve at `x`.
double EstimateY(RegressionModel model, const Coefficients& fitted, double x);
/// The x at which the fitted curve has the value `y`; not a number for Quadratic.
double EstimateX(RegressionModel model, const Coefficients& fitted, double y);
/// Both x of the quadratic model: (-B + root) / 2A and (-B - root) / 2A.
struct TwoEstimates {
  double first;
  double second;
};
TwoEstimates EstimateQuadraticX(const Coefficients& fitted, double y);

/// The equation of the curve in "X", with the coefficients as FormatForInsertion writes them.
std::string EquationText(RegressionModel model, const Coefficients& fitted, DisplayFormat format);

}  // namespace kav
