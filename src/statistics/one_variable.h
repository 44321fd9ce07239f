// The sums, the mean and the standard deviations of a variable.
#pragma once

#include <cstdint>

#include "statistics/data_list.h"

namespace kav {

enum class Moment { Sum, SumOfSquares, Mean, SampleDeviation, PopulationDeviation };

/// Sums over rows of a value x and a count c. Their last digits depend on the order of the rows.
struct WeightedSums {
  double sum = 0;      ///< of c * x
  double squares = 0;  ///< of (x * x) * c

  void Add(double x, std::int32_t c) {
    sum += c * x;
    squares += (x * x) * c;
  }
};

/// The moment of values with these sums; `total` is the sum of their counts. Deviations are
/// computed in one pass from the sum of squares less n times the squared mean, which loses digits
/// if values are large and differ by little. The result is not a number if that difference is
/// negative.
double MomentOf(const WeightedSums& sums, std::int32_t total, Moment moment);

/// The moment of variable 0 (X) or 1 (Y) of `list`, summed from the top.
double MomentOf(const DataList& list, std::size_t variable, Moment moment);

}  // namespace kav
