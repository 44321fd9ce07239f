// Calls of macros in a line that the user types: asking for them, writing them, evaluating them.
#pragma once

#include <string_view>
#include <variant>

#include "engine/calc_modes.h"
#include "line/expression_line.h"
#include "line/key_request.h"
#include "macros/line_evaluator.h"
#include "macros/macro_store.h"
#include "settings/settings_store.h"

namespace kav {

/// What opens if the user asks for a macro: the list to choose one from or, if there are none, the
/// editor to make one. `store`, which holds `macros`, first takes over what other programs stored.
std::variant<OpenMacroEditor, OpenMacroList> RequestMacro(SettingsStore& store,
                                                          const MacroStore& macros);

/// Writes the call of macro `index` around the selection of `line`, which becomes the first
/// argument. Does nothing if there is no such macro.
void WriteMacroCall(int index, const MacroStore& macros, ExpressionLine& line);

/// EvaluateLine, after `store`, which holds `macros`, has taken over what other programs stored.
Expected<double, LineFailure> EvaluateTypedLine(std::u16string_view line, CalcModes modes,
                                                SettingsStore& store, const MacroStore& macros);

}  // namespace kav
