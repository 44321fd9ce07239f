#include "statistics/one_variable.h"

#include <cmath>

namespace kav {

double MomentOf(const WeightedSums& sums, std::int32_t total, Moment moment) {
  const double n = total;
  const double mean = sums.sum / n;
  const double residue = sums.squares - n * mean * mean;
  switch (moment) {
    case Moment::Sum:
      return sums.sum;
    case Moment::SumOfSquares:
      return sums.squares;
    case Moment::Mean:
      return mean;
    case Moment::SampleDeviation:
      return std::pow(residue / (n - 1), 0.5);
    case Moment::PopulationDeviation:
      break;
  }
  return std::pow(residue / n, 0.5);
}

double MomentOf(const DataList& list, std::size_t variable, Moment moment) {
  WeightedSums sums;
  list.ForEachValue(variable, [&sums](double x, std::int32_t count) { sums.Add(x, count); });
  return MomentOf(sums, list.Total(), moment);
}

}  // namespace kav
