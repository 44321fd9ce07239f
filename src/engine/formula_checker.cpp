#include "engine/formula_checker.h"

#include <algorithm>

#include "engine/expression_engine.h"
#include "engine/reducer.h"
#include "engine/token_order.h"

namespace kav {

void CheckedFormula::Take(TokenArray& tokens) {
  useCount_ = 0;
  slotCount_ = tokens.Count();
  for (int i = 0; i < slotCount_; ++i) {
    const CalcToken& token = tokens[i];
    values_[static_cast<std::size_t>(i)] = token.value;
    if (token.isNumber == 0 || token.symbol == 0) continue;
    uses_[static_cast<std::size_t>(useCount_++)] = {static_cast<std::uint8_t>(i),
                                                    static_cast<std::uint8_t>(token.symbol - 'x')};
  }
  Reduce(tokens, BaseMode::Decimal, steps_);
}

Expected<double, StepFailure> CheckedFormula::At(const VariableValues& at, AngleUnit unit) const {
  const std::array arguments{at.x, at.y, at.z};
  SlotValues values;
  std::copy_n(values_.begin(), slotCount_, values.begin());
  std::for_each_n(uses_.begin(), useCount_,
                  [&](VariableUse use) { values[use.slot] = arguments[use.variable]; });
  return RunSteps(steps_, values, unit);
}

std::optional<int> CheckedFormula::VariableIn(int slot) const {
  const auto* const end = uses_.begin() + useCount_;
  const auto* use = std::find_if(uses_.begin(), end, [&](VariableUse u) { return u.slot == slot; });
  return use == end ? std::nullopt : std::optional<int>(use->variable);
}

void FormulaChecker::CheckFormula(std::string_view text, VariableType type) {
  error_ = Check(text, type);
}

std::optional<CalcError> FormulaChecker::Check(std::string_view text, VariableType type) {
  if (text.empty()) return MakeError(CalcErrorCode::NullExpression);
  TokenArray tokens;
  if (auto error = TokenizeFormula(text, type, tokens)) return error;
  if (auto error = CheckOrder(tokens, BaseMode::Decimal)) return error;
  formula_.Take(tokens);
  return std::nullopt;
}

std::string_view FormulaChecker::GetErrorText() const {
  return error_ ? std::string_view(error_->message) : std::string_view();
}

CalcResult<CheckedFormula> CheckFormula(std::string_view text, VariableType type) {
  FormulaChecker checker;
  checker.CheckFormula(FoldCase(text, BaseMode::Decimal), type);
  if (checker.HasError()) return *checker.Error();
  return checker.Formula();
}

}  // namespace kav
