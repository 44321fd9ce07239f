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

/// What the wish for a macro opens: the list to choose one from or, where there is none, the editor
/// to make one. `store` is where `macros` are, and takes over what other programs stored.
std::variant<OpenMacroEditor, OpenMacroList> RequestMacro(SettingsStore& store,
                                                          const MacroStore& macros);

/// Writes the call of macro `index` around the selection of `line`, which becomes its first
/// argument; nothing where there is no such macro.
void WriteMacroCall(int index, const MacroStore& macros, ExpressionLine& line);

/// EvaluateLine, which then also knows the macros that other programs stored in `store` until now.
Expected<double, LineFailure> EvaluateTypedLine(std::u16string_view line, CalcModes modes,
                                                SettingsStore& store, const MacroStore& macros);

}  // namespace kav
