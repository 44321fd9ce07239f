#include "plotter/plot_range.h"

#include <cmath>
#include <string>

#include "common/number_text.h"
#include "engine/calc_error.h"
#include "plotter/plotter_texts.h"

namespace kav {
namespace {

/// The distances are finite only if the bounds are.
bool IsFinite(const PlotRange& range) {
  return std::isfinite(range.xMax - range.xMin) && std::isfinite(range.yMax - range.yMin);
}

std::u16string_view OutOfRangeText() {
  static const std::u16string kText = Widen(MakeError(CalcErrorCode::OutOfRange).message);
  return kText;
}

}  // namespace

// "Not below" also refuses bounds that are not numbers; "at or above" would not.
std::optional<std::u16string_view> RangeRefusal(const PlotRange& range) {
  if (!(range.xMin < range.xMax)) return kXRangeIsEmpty;
  if (!(range.yMin < range.yMax)) return kYRangeIsEmpty;
  if (!IsFinite(range)) return OutOfRangeText();
  return std::nullopt;
}

std::optional<std::u16string_view> DrawingRefusal(const PlotRange& range) {
  if (!IsFinite(range)) return OutOfRangeText();
  if (range.xMin == range.xMax) return kXBoundsAreEqual;
  if (range.yMin == range.yMax) return kYBoundsAreEqual;
  return std::nullopt;
}

}  // namespace kav
