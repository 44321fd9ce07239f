// What is wrong with a line of numbers, and how it may be mended.
#pragma once

#include <string_view>

#include "engine/calc_modes.h"
#include "line/line_mend.h"
#include "line/line_words.h"
#include "macros/line_evaluator.h"
#include "macros/macro_store.h"

namespace kav {

/// About `line`, as typed, which EvaluateLine answered with `failure` in `modes`.
LineFault FaultOf(std::u16string_view line, const LineFailure& failure, const CalcModes& modes,
                  const MacroStore& macros);

/// Appends the names of `macros` to `words`.
void AddMacroNames(const MacroStore& macros, KnownWords& words);

}  // namespace kav
