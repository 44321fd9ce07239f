#include "macros/macro_call.h"

#include <string>

#include "common/number_text.h"
#include "macros/macro_expansion.h"
#include "macros/macros_texts.h"

namespace kav {
namespace {

/// What follows the first argument in a call: the places of the others, and the end.
std::u16string_view ArgumentPlaces(VariableType type) {
  switch (type) {
    case VariableType::X:
      return u" )";
    case VariableType::XY:
      return u" , )";
    case VariableType::XYZ:
      break;
  }
  return u" , , )";
}

}  // namespace

std::variant<OpenMacroEditor, OpenMacroList> RequestMacro(SettingsStore& store,
                                                          const MacroStore& macros) {
  // Another program may have stored the first one.
  store.Refresh();
  if (macros.Count() == 0) return OpenMacroEditor{kNoMacroStored};
  return OpenMacroList{};
}

void WriteMacroCall(int index, const MacroStore& macros, ExpressionLine& line) {
  if (index < 0 || index >= macros.Count()) return;
  const Macro& macro = macros.At(index);
  const std::u16string prefix = u"M:" + Widen(macro.name) + u"(";
  line.WrapSelection(prefix, ArgumentPlaces(macro.type), prefix.size() - 1);
}

Expected<double, LineFailure> EvaluateTypedLine(std::u16string_view line, CalcModes modes,
                                                SettingsStore& store, const MacroStore& macros) {
  const std::string text = Narrow(line);
  // A macro that another program stored a moment ago is there to be called.
  if (HoldsMacroCall(text)) store.Refresh();
  return EvaluateLine(text, modes, macros);
}

}  // namespace kav
