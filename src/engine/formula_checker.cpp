#include "engine/formula_checker.h"

#include <algorithm>
#include <utility>

#include "engine/fold_case.h"
#include "engine/reducer.h"
#include "engine/token_order.h"

namespace kav {

CheckedFormula::CheckedFormula(TokenArray tokens) : slotCount_(tokens.Count()) {
  for (int i = 0; i < slotCount_; ++i) {
    const CalcToken& token = tokens[i];
    values_[static_cast<std::size_t>(i)] = token.value;
    if (token.isNumber == 0 || token.symbol == 0) continue;
    uses_[static_cast<std::size_t>(useCount_++)] = {static_cast<std::uint8_t>(i),
                                                    static_cast<std::uint8_t>(token.symbol - 'x')};
  }
  steps_ = Reduce(tokens, BaseMode::Decimal);
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

CalcResult<CheckedFormula> CheckTokens(const TokenArray& tokens) {
  if (auto error = CheckOrder(tokens, BaseMode::Decimal)) return *std::move(error);
  return CheckedFormula(tokens);
}

CalcResult<CheckedFormula> CheckFoldedFormula(std::string_view text, VariableType type) {
  auto tokens = TokenizeFormula(text, type);
  if (!tokens) return std::move(tokens).error();
  auto formula = CheckTokens(*tokens);
  if (formula) return formula;
  CalcError error = std::move(formula).error();
  error.place = PlaceOfToken(text, FaultyToken(*tokens, BaseMode::Decimal));
  return error;
}

CalcResult<CheckedFormula> CheckFormula(std::string_view text, VariableType type) {
  return CheckFoldedFormula(FoldCase(text, BaseMode::Decimal), type);
}

}  // namespace kav
