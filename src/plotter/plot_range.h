// The part of the plane that a graph shows.
#pragma once

#include <optional>
#include <string_view>

namespace kav {

/// Bounds of x and y.
struct PlotRange {
  double xMin = -10;
  double xMax = 10;
  double yMin = -10;
  double yMax = 10;

  bool operator==(const PlotRange&) const = default;
};

// Both answer why a range is refused, as a text for the user, or nullopt if it is not. Of faults in
// x and in y they tell the one in x.

/// For a range that the user typed: a lower bound is not below its upper bound, or a bound or the
/// distance of two is beyond the range of double.
std::optional<std::u16string_view> RangeRefusal(const PlotRange& range);

/// For the range after a zoom or a move: a bound or the distance of two is beyond the range of
/// double, or two bounds are equal.
std::optional<std::u16string_view> DrawingRefusal(const PlotRange& range);

}  // namespace kav
