#include "engine/expression_engine.h"

#include <algorithm>

#include "engine/base_tokenizer.h"
#include "engine/reducer.h"
#include "engine/steps.h"
#include "engine/token_order.h"

namespace kav {
namespace {

std::optional<CalcError> Cut(std::string_view text, BaseMode base, TokenArray& tokens) {
  if (text.empty()) return MakeError(CalcErrorCode::NullExpression);
  return base == BaseMode::Decimal ? Tokenize(text, tokens) : TokenizeInBase(text, base, tokens);
}

CalcResult<double> WithMessage(const Expected<double, StepFailure>& answer) {
  if (!answer) return MakeError(answer.error());
  return *answer;
}

CalcResult<double> EvaluateFolded(std::string_view text, CalcModes modes) {
  TokenArray tokens;
  if (auto error = Cut(text, modes.baseMode, tokens)) return *std::move(error);
  if (auto error = CheckOrder(tokens, modes.baseMode)) return *std::move(error);
  SlotValues values;
  values.front() = 0;  // Looked at even where blanks alone made no token.
  for (int i = 0; i < tokens.Count(); ++i) values[static_cast<std::size_t>(i)] = tokens[i].value;
  StepList steps;
  Reduce(tokens, modes.baseMode, steps);
  return WithMessage(RunSteps(steps, values, modes.angleUnit));
}

constexpr std::string_view kAnd = "and";

bool IsUpper(char c) {
  return c >= 'A' && c <= 'Z';
}

/// The first "and", or `end`. A text's own find would take five times as long for many an "a".
template <class Iterator>
Iterator FindAnd(Iterator begin, Iterator end) {
  return std::search(begin, end, kAnd.begin(), kAnd.end());
}

/// Most lines are folded as they are typed.
bool IsFolded(std::string_view text, BaseMode base) {
  return std::none_of(text.begin(), text.end(), IsUpper) &&
         (base != BaseMode::Hexadecimal || FindAnd(text.begin(), text.end()) == text.end());
}

}  // namespace

void ExpressionEngine::Evaluate(std::string_view text) {
  Take(EvaluateFolded(text, modes_));
}

void ExpressionEngine::EvaluateTokens(const CheckedFormula& formula, const VariableValues& at) {
  Take(WithMessage(formula.At(at, modes_.angleUnit)));
}

void ExpressionEngine::Take(CalcResult<double> answer) {
  result_ = answer ? *answer : 0;
  error_ = answer ? std::nullopt : std::optional(std::move(answer).error());
}

std::string_view ExpressionEngine::GetErrorText() const {
  return error_ ? std::string_view(error_->message) : std::string_view();
}

std::string FoldCase(std::string_view text, BaseMode base) {
  std::string folded(text);
  for (char& c : folded) c = IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
  if (base != BaseMode::Hexadecimal) return folded;
  for (auto at = FindAnd(folded.begin(), folded.end()); at != folded.end();
       at = FindAnd(at, folded.end())) {
    at = std::copy_n("AND", kAnd.size(), at);
  }
  return folded;
}

CalcResult<double> Evaluate(std::string_view text, CalcModes modes) {
  ExpressionEngine engine;
  engine.SetAngleUnit(modes.angleUnit);
  engine.SetBaseMode(modes.baseMode);
  if (IsFolded(text, modes.baseMode)) {
    engine.Evaluate(text);
  } else {
    engine.Evaluate(FoldCase(text, modes.baseMode));
  }
  if (engine.HasError()) return *engine.Error();
  return engine.GetResult();
}

}  // namespace kav
