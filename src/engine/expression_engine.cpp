#include "engine/expression_engine.h"

#include <utility>

#include "engine/base_tokenizer.h"
#include "engine/fold_case.h"
#include "engine/reducer.h"
#include "engine/steps.h"
#include "engine/token_order.h"

namespace kav {
namespace {

CalcResult<TokenArray> Cut(std::string_view text, const CalcModes& modes) {
  return modes.baseMode == BaseMode::Decimal ? Tokenize(text, modes.answer)
                                             : TokenizeInBase(text, modes.baseMode, modes.answer);
}

/// `error`, which is about the token of the number `token` of `text`, with its place.
CalcError AboutToken(int token, CalcError error, std::string_view text, BaseMode base) {
  error.place =
      base == BaseMode::Decimal ? PlaceOfToken(text, token) : PlaceOfTokenInBase(text, token, base);
  return error;
}

}  // namespace

CalcResult<double> EvaluateFolded(std::string_view text, CalcModes modes) {
  const BaseMode base = modes.baseMode;
  auto tokens = Cut(text, modes);
  if (!tokens) return std::move(tokens).error();
  const int faulty = FaultyToken(*tokens, base);
  if (faulty >= 0) return AboutToken(faulty, *CheckOrder(*tokens, base), text, base);
  SlotValues values;
  values.front() = 0;  // It is looked at even if blanks alone made no token.
  for (int i = 0; i < tokens->Count(); ++i) {
    values[static_cast<std::size_t>(i)] = (*tokens)[i].value;
  }
  StepList steps = Reduce(*tokens, base, Signs::BeforeBinaryOne);
  if (LacksOperand(steps)) {
    auto again = Cut(text, modes);
    steps = ReduceAgain(*again, base, steps);
  }
  const auto answer = RunSteps(steps, values, modes.angleUnit);
  if (answer) return *answer;
  return AboutToken(answer.error().token, MakeError(answer.error()), text, base);
}

CalcResult<double> Evaluate(std::string_view text, CalcModes modes) {
  // Most lines are folded as they are typed.
  if (IsFolded(text, modes.baseMode)) return EvaluateFolded(text, modes);
  return EvaluateFolded(FoldCase(text, modes.baseMode), modes);
}

CalcResult<double> EvaluateFormula(const CheckedFormula& formula, const VariableValues& at,
                                   AngleUnit unit) {
  const auto answer = formula.At(at, unit);
  if (!answer) return MakeError(answer.error());
  return *answer;
}

}  // namespace kav
