// What a line comes to while it is being typed.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "macros/macro_store.h"

namespace kav {

/// A longer line is evaluated by "=" only: after each key it would take too long.
inline constexpr std::size_t kLongestLiveLine = 2000;

/// A line that the result line answers.
struct AnsweredLine {
  std::u16string text;
  CalcModes modes;

  bool Is(std::u16string_view line, CalcModes now) const {
    return line == text && now.angleUnit == modes.angleUnit && now.baseMode == modes.baseMode;
  }
};

/// The value of `line`, as typed, as the result line would show it. nullopt if "=" would show a
/// message, for a number alone, which would only be said again, and beyond kLongestLiveLine.
std::optional<std::u16string> LiveNumber(std::u16string_view line, CalcModes modes,
                                         DisplayFormat format, const MacroStore& macros);

}  // namespace kav
