// Expressions as the commands evaluate them.
#pragma once

#include <string>
#include <string_view>

#include "cli/answer_writer.h"
#include "cli/options.h"
#include "cli/stored_settings.h"
#include "engine/calc_error.h"
#include "macros/line_evaluator.h"
#include "macros/macro_store.h"

namespace kav {

/// Evaluates lines with the user's macros, in the base and the angle unit of the options, which
/// must outlive it. Without an angle unit there, the stored one counts.
class Evaluation {
 public:
  explicit Evaluation(const Options& options);

  /// The value of `line`, or why it has none.
  Expected<double, LineFailure> Value(std::string_view line);
  /// The NumberAnswer of its value, or why it has none.
  Answer AnswerTo(std::string_view line);

  const MacroStore& Macros() const { return macros_; }
  StoredSettings& Settings() { return settings_; }

 private:
  const Options& options_;
  StoredSettings settings_;
  MacroStore macros_;
};

/// The text of `value` in the display, precision and base of the options, or with 17 significant
/// digits if they ask for raw numbers. Fails if it cannot be shown so.
CalcResult<std::string> ShownNumber(double value, const Options& options);

/// The ShownNumber as a line.
Answer NumberAnswer(double value, const Options& options);

}  // namespace kav
