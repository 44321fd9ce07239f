// Sums, mean and standard deviations of a variable.
#pragma once

#include <cstdint>

#include "statistics/data_list.h"

namespace kav {

enum class Moment { Sum, SumOfSquares, Mean, SampleDeviation, PopulationDeviation };

/// Sums over rows of the value x and the count c, in the order in which they are added.
struct WeightedSums {
  double sum = 0;      ///< of c * x
  double squares = 0;  ///< of (x * x) * c

  void Add(double x, std::int32_t c) {
    sum += c * x;
    squares += (x * x) * c;
  }
};

/// The moment of values with these sums and the total count `total`. The deviations take the
/// one-pass form, which can cancel; what is not a number comes out as such.
double MomentOf(const WeightedSums& sums, std::int32_t total, Moment moment);

/// The moment of a variable of `list`, from its texts, from the top.
double MomentOf(const DataList& list, std::size_t variable, Moment moment);

}  // namespace kav
