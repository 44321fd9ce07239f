// The four fields in which a plot range is typed.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "common/refusal.h"
#include "plotter/plot_range.h"

namespace kav {

enum class RangeField { XMin, XMax, YMin, YMax };

inline constexpr std::array kRangeFields{RangeField::XMin, RangeField::XMax, RangeField::YMin,
                                         RangeField::YMax};

/// What stands in the fields, in the order of RangeField.
using RangeTexts = std::array<std::u16string, kRangeFields.size()>;

constexpr std::size_t IndexOf(RangeField field) {
  return static_cast<std::size_t>(field);
}

/// What stands before a field: "X min".
std::u16string_view CaptionOf(RangeField field);

/// The bound that a field is about.
double& BoundOf(PlotRange& range, RangeField field);

/// The fields as finite numbers, in whatever order those are; why the first that is none is
/// refused.
Expected<PlotRange, Refusal<RangeField>> ReadRange(const RangeTexts& texts);

/// Why `range` cannot be plotted, with the upper bound of its first pair that is out of order;
/// nullopt where it can.
std::optional<Refusal<RangeField>> RefuseRange(const PlotRange& range);

}  // namespace kav
