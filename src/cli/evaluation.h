// Expressions as the commands evaluate them.
#pragma once

#include <optional>
#include <string_view>

#include "cli/answer_writer.h"
#include "cli/options.h"
#include "cli/stored_settings.h"
#include "common/expected.h"
#include "macros/line_evaluator.h"
#include "macros/macro_store.h"

namespace kav {

/// Evaluates lines with the user's macros and, unless the options name one, in the user's angle
/// unit. The options must outlive it.
class Evaluation {
 public:
  explicit Evaluation(const Options& options);

  /// The value of `line`, or why it has none.
  Expected<double, LineFailure> Value(std::string_view line);
  /// Answers `line` with the text of the result line.
  void Answer(std::string_view line, AnswerWriter& answers);

  const MacroStore& Macros() const { return macros_; }
  StoredSettings& Settings() { return settings_; }

 private:
  CalcModes ModesFor(std::string_view line);

  const Options& options_;
  StoredSettings settings_;
  MacroStore macros_;
  std::optional<AngleUnit> angle_;
};

/// Answers with `value` as the options want it shown.
void AnswerNumber(double value, const Options& options, AnswerWriter& answers);

}  // namespace kav
