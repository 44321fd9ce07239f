#include "plotter/value_table.h"

#include <cmath>

#include "display/natural_decimals.h"

namespace kav {

std::optional<std::size_t> TableRows(const TablePlaces& places) {
  // So that the last place is met though its distance was rounded.
  constexpr double kRounding = 1e-9;
  const double steps = (places.last - places.first) / places.step + kRounding;
  if (!(steps >= 0 && steps < kMostTableRows)) return std::nullopt;
  return static_cast<std::size_t>(steps) + 1;
}

double TablePlace(const TablePlaces& places, std::size_t row) {
  constexpr double kLeast = 1e-12;
  constexpr double kMost = 1e12;
  const double place = places.first + static_cast<double>(row) * places.step;
  // A sum that ought to be 0 may have missed it by the rounding of the step.
  if (std::fabs(place) < std::fabs(places.step) * kLeast) return 0;
  const double size = std::fabs(place);
  return size >= kLeast && size <= kMost ? RoundToNaturalDecimals(place) : place;
}

}  // namespace kav
