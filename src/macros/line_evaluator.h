// What "=" does to a line of numbers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "macros/macro_store.h"

namespace kav {

/// Why a line has no value: it is empty, a macro call in it is wrong, or it cannot be evaluated.
/// `message` is what the result line shows.
struct LineFailure {
  enum class Cause { EmptyLine, MacroCall, Evaluation };
  Cause cause;
  std::string message;
  std::optional<TextPlace> place = {};  ///< in bytes of the line, if known
};

/// The value, always finite, of `line` (UTF-8, as typed) in `modes`. Blanks around it are taken
/// off, macro calls are expanded and case is folded first.
Expected<double, LineFailure> EvaluateLine(std::string_view line, CalcModes modes,
                                           const MacroStore& macros);

}  // namespace kav
