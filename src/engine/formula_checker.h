// Formulas with the variables x, y and z: checked once, evaluated as often as wanted.
#pragma once

#include <optional>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_token.h"
#include "engine/steps.h"
#include "engine/tokenizer.h"

namespace kav {

/// The arguments of a formula; those it does not have are ignored.
struct VariableValues {
  double x = 0;
  double y = 0;
  double z = 0;
};

/// A formula that passed the checker: its steps, the values they start from, and the slots that
/// take the arguments.
class CheckedFormula {
 public:
  /// The value at `at`; fails as RunSteps does. Costs no memory and leaves the formula unchanged.
  Expected<double, StepFailure> At(const VariableValues& at, AngleUnit unit) const;

  const StepList& Steps() const { return steps_; }
  /// What each slot starts with: a variable's number (0 for x), or else a value.
  std::optional<int> VariableIn(int slot) const;
  double ValueIn(int slot) const { return values_[static_cast<std::size_t>(slot)]; }
  int SlotCount() const { return slotCount_; }

 private:
  friend class FormulaChecker;
  /// One use of a variable, numbered from 0 for x.
  struct VariableUse {
    std::uint8_t slot;
    std::uint8_t variable;
  };

  /// Reduces `tokens`, whose order is checked.
  void Take(TokenArray& tokens);

  StepList steps_;
  int slotCount_ = 0;
  int useCount_ = 0;
  SlotValues values_;
  std::array<VariableUse, TokenArray::kCapacity> uses_;
};

/// Checks the words, the variables and the order of a formula, without evaluating it.
class FormulaChecker {
 public:
  /// Checks `text`, folded as FoldCase does it for decimal text.
  void CheckFormula(std::string_view text, VariableType type);

  bool HasError() const { return error_.has_value(); }
  /// The finished message of the first error; empty where there is none.
  std::string_view GetErrorText() const;
  const std::optional<CalcError>& Error() const { return error_; }
  /// What the last check made of its text; meaningful only where it found no error.
  const CheckedFormula& Formula() const { return formula_; }

 private:
  std::optional<CalcError> Check(std::string_view text, VariableType type);

  std::optional<CalcError> error_;
  CheckedFormula formula_;
};

/// `text` as the user typed it (its case is folded here), checked.
CalcResult<CheckedFormula> CheckFormula(std::string_view text, VariableType type);

}  // namespace kav
