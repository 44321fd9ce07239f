// The four fields in which a plot range is typed.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "common/refusal.h"
#include "engine/calc_modes.h"
#include "plotter/plot_range.h"

namespace kav {

enum class RangeField { XMin, XMax, YMin, YMax };

inline constexpr std::array kRangeFields{RangeField::XMin, RangeField::XMax, RangeField::YMin,
                                         RangeField::YMax};

/// The texts of the fields, in the order of RangeField.
using RangeTexts = std::array<std::u16string, kRangeFields.size()>;

constexpr std::size_t IndexOf(RangeField field) {
  return static_cast<std::size_t>(field);
}

/// The caption before a field, such as "X min".
std::u16string_view CaptionOf(RangeField field);

/// The member of PlotRange that `field` holds.
constexpr double PlotRange::*BoundOf(RangeField field) {
  constexpr std::array kBounds{&PlotRange::xMin, &PlotRange::xMax, &PlotRange::yMin,
                               &PlotRange::yMax};
  return kBounds[IndexOf(field)];
}

/// The fields as finite numbers, which may be in the wrong order; or the first field that holds no
/// such number, and no expression with angles in `angle` that comes to one.
Expected<PlotRange, Refusal<RangeField>> ReadRange(const RangeTexts& texts,
                                                   AngleUnit angle = AngleUnit::Degrees);

/// The bounds of `range` as fields show them.
RangeTexts TextsOf(const PlotRange& range);

/// The RangeRefusal of `range`, with the upper bound of x if x is wrong, else that of y; nullopt if
/// there is none.
std::optional<Refusal<RangeField>> RefuseRange(const PlotRange& range);

}  // namespace kav
