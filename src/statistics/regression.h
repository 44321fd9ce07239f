// Curves fitted to pairs of data.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "display/number_format.h"
#include "statistics/data_list.h"
#include "statistics/one_variable.h"

namespace kav {

/// By their numbers in the menu.
enum class RegressionModel {
  Linear = 1,
  Power,
  Inverse,
  Logarithmic,
  Exponential,
  Quadratic,
};

/// What a model does not have is 0.
struct Coefficients {
  double a = 0;
  double b = 0;
  double c = 0;
};

/// What a model needs of the rows, added one by one in their order.
class RegressionSums {
 public:
  explicit RegressionSums(RegressionModel model) : model_(model) {}

  void Add(double x, double y, std::int32_t count);

  const WeightedSums& X() const { return x_; }
  const WeightedSums& Y() const { return y_; }
  double Products() const { return products_; }  ///< of (c * y) * x

  /// `total` is the sum of all counts. What the data do not allow comes out infinite or as not a
  /// number.
  Coefficients Fit(std::int32_t total) const;
  double Correlation(std::int32_t total) const;  ///< r of the linear model

 private:
  RegressionModel model_;
  WeightedSums x_;
  WeightedSums y_;
  double products_ = 0;
  std::array<std::array<double, 4>, 3> normal_{};  ///< augmented normal equations
};

/// The sums over the rows of `list`, which has two variables, from the top.
RegressionSums SumUp(const DataList& list, RegressionModel model);

// Values of the fitted curve and of its inverse.
double EstimateY(RegressionModel model, const Coefficients& fitted, double x);
double EstimateX(RegressionModel model, const Coefficients& fitted, double y);  ///< not quadratic
/// The two x of the quadratic model: the root is added in the first.
struct TwoEstimates {
  double first;
  double second;
};
TwoEstimates EstimateQuadraticX(const Coefficients& fitted, double y);

/// The equation of the curve in "X", the coefficients written in display type "Floating Point".
std::string EquationText(RegressionModel model, const Coefficients& fitted, DisplayFormat format);

}  // namespace kav
