// From the text of a line to its value.
#pragma once

#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "engine/formula_checker.h"

namespace kav {

/// The value, always finite, of `text`, folded as FoldCase does it; fails with the first thing
/// wrong with its words, their order or the calculation, and with its place in `text` if it has
/// one.
CalcResult<double> EvaluateFolded(std::string_view text, CalcModes modes);

/// The value of `text` as the user typed it: its case is folded here.
CalcResult<double> Evaluate(std::string_view text, CalcModes modes);

/// The value of `formula` with its variables set to `at`.
CalcResult<double> EvaluateFormula(const CheckedFormula& formula, const VariableValues& at,
                                   AngleUnit unit);

/// Evaluates texts and formulas in the modes that were set, and keeps what came of the last one.
class ExpressionEngine {
 public:
  void SetAngleUnit(AngleUnit unit) { modes_.angleUnit = unit; }
  void SetBaseMode(BaseMode base) { modes_.baseMode = base; }

  void Evaluate(std::string_view text) { answer_ = EvaluateFolded(text, modes_); }
  /// Formulas are decimal whatever the base.
  void EvaluateTokens(const CheckedFormula& formula, const VariableValues& at) {
    answer_ = EvaluateFormula(formula, at, modes_.angleUnit);
  }

  /// The value of the last evaluation; 0 after a failed one.
  double GetResult() const { return answer_ ? *answer_ : 0; }
  bool HasError() const { return !answer_; }
  /// The finished message of the last evaluation; empty if it did not fail.
  std::string_view GetErrorText() const { return MessageOf(answer_); }

 private:
  CalcModes modes_;
  CalcResult<double> answer_ = 0.0;
};

}  // namespace kav
