// The part of the plane that a plot shows.
#pragma once

#include <optional>
#include <string_view>

namespace kav {

struct PlotRange {
  double xMin = -10;
  double xMax = 10;
  double yMin = -10;
  double yMax = 10;

  bool operator==(const PlotRange&) const = default;
};

/// Why the user's range is not taken: a lower bound is not below its upper one (x before y), or a
/// bound or the distance between two is beyond the range of double. nullopt where all is well.
std::optional<std::u16string_view> RangeRefusal(const PlotRange& range);

/// Why the range that a zoom or a move ends with cannot be drawn: a bound or a distance is beyond
/// the range of double, or two bounds are equal (x before y). nullopt where it can.
std::optional<std::u16string_view> DrawingRefusal(const PlotRange& range);

}  // namespace kav
