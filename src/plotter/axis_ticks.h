// Round numbers along an axis, and their texts.
#pragma once

#include <string>
#include <vector>

namespace kav {

struct AxisTick {
  double value;
  std::u16string text;  ///< the fewest digits; reads back as `value`
};

/// The multiples of the least step of 1, 2 or 5 times a power of ten that are from `lower` to
/// `upper`, both included, and are no more than `most`; in ascending order, zero without a sign.
/// The step is one that double can tell apart there, so a range of few doubles may have none. Empty
/// if the bounds are not finite or not in order, or if `most` is less than 1.
std::vector<AxisTick> AxisTicks(double lower, double upper, int most);

}  // namespace kav
