#include "engine/expression_engine.h"

#include <utility>

#include "engine/base_tokenizer.h"
#include "engine/fold_case.h"
#include "engine/reducer.h"
#include "engine/steps.h"
#include "engine/token_order.h"

namespace kav {
namespace {

CalcResult<double> WithMessage(const Expected<double, StepFailure>& answer) {
  if (!answer) return MakeError(answer.error());
  return *answer;
}

}  // namespace

CalcResult<double> EvaluateFolded(std::string_view text, CalcModes modes) {
  const BaseMode base = modes.baseMode;
  auto tokens = base == BaseMode::Decimal ? Tokenize(text) : TokenizeInBase(text, base);
  if (!tokens) return std::move(tokens).error();
  if (auto error = CheckOrder(*tokens, base)) return *std::move(error);
  SlotValues values;
  values.front() = 0;  // It is looked at even if blanks alone made no token.
  for (int i = 0; i < tokens->Count(); ++i) {
    values[static_cast<std::size_t>(i)] = (*tokens)[i].value;
  }
  return WithMessage(RunSteps(Reduce(*tokens, base), values, modes.angleUnit));
}

CalcResult<double> Evaluate(std::string_view text, CalcModes modes) {
  // Most lines are folded as they are typed.
  if (IsFolded(text, modes.baseMode)) return EvaluateFolded(text, modes);
  return EvaluateFolded(FoldCase(text, modes.baseMode), modes);
}

CalcResult<double> EvaluateFormula(const CheckedFormula& formula, const VariableValues& at,
                                   AngleUnit unit) {
  return WithMessage(formula.At(at, unit));
}

}  // namespace kav
