#include "macros/line_evaluator.h"

#include <cstddef>
#include <utility>

#include "common/number_text.h"
#include "engine/expression_engine.h"
#include "macros/macro_expansion.h"
#include "macros/macros_texts.h"

namespace kav {
namespace {

LineFailure EvaluationFailure(CalcError error) {
  return {LineFailure::Cause::Evaluation, std::move(error.message), error.place};
}

/// The value of `text`, a trimmed line.
Expected<double, LineFailure> EvaluateText(std::string_view text, CalcModes modes,
                                           const MacroStore& macros) {
  if (!HoldsMacroCall(text)) {
    auto answer = Evaluate(text, modes);
    if (answer) return *answer;
    return EvaluationFailure(std::move(answer).error());
  }
  auto expanded = ExpandMacros(text, modes, macros);
  if (!expanded) {
    MacroFailure failure = std::move(expanded).error();
    return LineFailure{LineFailure::Cause::MacroCall, std::move(failure.message), failure.place};
  }
  if (expanded->wholeValue) return *expanded->wholeValue;
  auto answer = Evaluate(expanded->text, modes);
  if (answer) return *answer;
  LineFailure failure = EvaluationFailure(std::move(answer).error());
  if (failure.place) failure.place = expanded->PlaceInLine(*failure.place);
  return failure;
}

}  // namespace

Expected<double, LineFailure> EvaluateLine(std::string_view line, CalcModes modes,
                                           const MacroStore& macros) {
  const std::string_view text = TrimBlanks(line);
  if (text.empty()) return LineFailure{LineFailure::Cause::EmptyLine, std::string(kLineIsEmpty)};
  auto value = EvaluateText(text, modes, macros);
  if (value || !value.error().place) return value;
  LineFailure failure = std::move(value).error();
  failure.place->position += static_cast<std::size_t>(text.data() - line.data());
  return failure;
}

}  // namespace kav
