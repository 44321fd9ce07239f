#include "macros/line_evaluator.h"

#include "common/number_text.h"
#include "engine/expression_engine.h"
#include "macros/macro_expansion.h"
#include "macros/macros_texts.h"

namespace kav {
namespace {

Expected<double, LineFailure> EvaluateText(std::string_view text, CalcModes modes) {
  auto answer = Evaluate(text, modes);
  if (answer) return *answer;
  return LineFailure{LineFailure::Cause::Evaluation, std::move(answer).error().message};
}

}  // namespace

Expected<double, LineFailure> EvaluateLine(std::string_view line, CalcModes modes,
                                           const MacroStore& macros) {
  const std::string_view text = TrimBlanks(line);
  if (text.empty()) return LineFailure{LineFailure::Cause::EmptyLine, std::string(kLineIsEmpty)};
  if (!HoldsMacroCall(text)) return EvaluateText(text, modes);

  auto expanded = ExpandMacros(text, modes, macros);
  if (!expanded) {
    return LineFailure{LineFailure::Cause::MacroCall, std::move(expanded).error()};
  }
  if (expanded->wholeValue) return *expanded->wholeValue;
  return EvaluateText(expanded->text, modes);
}

}  // namespace kav
