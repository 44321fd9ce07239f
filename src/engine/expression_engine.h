// From the text of a line to its value.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "engine/formula_checker.h"

namespace kav {

/// Evaluates text in the base and angle unit that were set, or a checked formula; keeps the last
/// value or the last error. Made for one evaluation, and good for any number of them.
class ExpressionEngine {
 public:
  void SetAngleUnit(AngleUnit unit) { modes_.angleUnit = unit; }
  void SetBaseMode(BaseMode base) { modes_.baseMode = base; }

  /// Evaluates `text`, folded as FoldCase does it.
  void Evaluate(std::string_view text);

  /// Evaluates `formula` with its variables set to `at`. Formulas are decimal whatever the base.
  void EvaluateTokens(const CheckedFormula& formula, const VariableValues& at);

  /// The value of the last evaluation; 0 after a failed one.
  double GetResult() const { return result_; }
  bool HasError() const { return error_.has_value(); }
  /// The finished message of the first error of the last evaluation; empty where there was none.
  std::string_view GetErrorText() const;
  const std::optional<CalcError>& Error() const { return error_; }

 private:
  void Take(CalcResult<double> answer);

  CalcModes modes_;
  double result_ = 0;
  std::optional<CalcError> error_;
};

/// `text` as the engine and the checker take it: A to Z in lower case; in hexadecimal every "and"
/// as "AND", since "a" and "d" are digits there.
std::string FoldCase(std::string_view text, BaseMode base);

/// The value of `text` as the user typed it (its case is folded here).
CalcResult<double> Evaluate(std::string_view text, CalcModes modes);

}  // namespace kav
