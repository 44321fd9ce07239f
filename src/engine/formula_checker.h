// Formulas with the variables x, y and z: checked once, evaluated as often as wanted.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "engine/calc_token.h"
#include "engine/steps.h"
#include "engine/tokenizer.h"

namespace kav {

/// The arguments of a formula; those of variables that it does not have are ignored.
struct VariableValues {
  double x = 0;
  double y = 0;
  double z = 0;
};

/// A formula that passed the checker: its steps, the values they start from, and the slots that
/// take the arguments.
class CheckedFormula {
 public:
  /// No formula: only to be assigned to.
  CheckedFormula() = default;
  /// The formula of `tokens`, which are in checked order.
  explicit CheckedFormula(TokenArray tokens);

  /// The value at `at`, always finite; fails as RunSteps does. Allocates nothing and leaves the
  /// formula unchanged.
  Expected<double, StepFailure> At(const VariableValues& at, AngleUnit unit) const;

  const StepList& Steps() const { return steps_; }
  /// The variable (0 for x) that `slot` starts with; nullopt if it starts with ValueIn.
  std::optional<int> VariableIn(int slot) const;
  double ValueIn(int slot) const { return values_[static_cast<std::size_t>(slot)]; }
  int SlotCount() const { return slotCount_; }

 private:
  /// One use of a variable, numbered from 0 for x.
  struct VariableUse {
    std::uint8_t slot;
    std::uint8_t variable;
  };

  StepList steps_;
  int slotCount_ = 0;
  int useCount_ = 0;
  SlotValues values_;
  std::array<VariableUse, TokenArray::kCapacity> uses_;
};

/// The formula of `tokens`; fails if their order is wrong.
CalcResult<CheckedFormula> CheckTokens(const TokenArray& tokens);

/// The formula `text`, folded as FoldCase does it for decimal text. Fails as TokenizeFormula and
/// CheckTokens do.
CalcResult<CheckedFormula> CheckFoldedFormula(std::string_view text, VariableType type);

/// The formula `text` as the user typed it: its case is folded here.
CalcResult<CheckedFormula> CheckFormula(std::string_view text, VariableType type);

/// Checks the words, the variables and the order of formulas without evaluating them, and keeps
/// what came of the last one.
class FormulaChecker {
 public:
  void CheckFormula(std::string_view text, VariableType type) {
    formula_ = CheckFoldedFormula(text, type);
  }

  bool HasError() const { return !formula_; }
  /// The finished message of the first error; empty if there is none.
  std::string_view GetErrorText() const { return MessageOf(formula_); }
  /// The last formula that was checked; only if it has no error.
  const CheckedFormula& Formula() const { return *formula_; }

 private:
  CalcResult<CheckedFormula> formula_ = CheckedFormula();
};

}  // namespace kav
