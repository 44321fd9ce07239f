#include "macros/line_fault.h"

#include <optional>
#include <string>
#include <utility>

#include "common/number_text.h"

namespace kav {

void AddMacroNames(const MacroStore& macros, KnownWords& words) {
  for (int i = 0; i < macros.Count(); ++i) {
    words.push_back({Widen(macros.At(i).name), PieceKind::Call});
  }
}

LineFault FaultOf(std::u16string_view line, const LineFailure& failure, const CalcModes& modes,
                  const MacroStore& macros) {
  KnownWords words = WordsOf(modes);
  AddMacroNames(macros, words);
  auto mended = MendOf(line, words, modes.baseMode, [&](std::u16string_view tried) {
    return static_cast<bool>(EvaluateLine(Narrow(tried), modes, macros));
  });
  return MakeFault(line, failure.place, std::move(mended));
}

}  // namespace kav
