// Expressions as the commands evaluate them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/answer_writer.h"
#include "cli/options.h"
#include "cli/stored_settings.h"
#include "common/expected.h"
#include "engine/calc_modes.h"
#include "macros/line_evaluator.h"
#include "macros/macro_store.h"

namespace kav {

/// Evaluates lines (UTF-8) with the user's macros, in the base and the angle unit of the options.
/// If these name no angle unit, the stored one counts. The options must outlive it.
class Evaluation {
 public:
  explicit Evaluation(const Options& options);

  /// The value of `line`, or why it has none.
  Expected<double, LineFailure> Value(std::string_view line);
  /// The same as the answer to an item.
  Answer AnswerTo(std::string_view line);
  /// What a terminal shows of `line`, which failed so, before the message.
  std::string NoteOn(std::string_view line, const LineFailure& failure);

  /// Lets "ans" stand for `answer` in the lines to come.
  void SetAnswer(double answer) { answer_ = answer; }

  const MacroStore& Macros() const { return macros_; }
  StoredSettings& Settings() { return settings_; }

 private:
  CalcModes ModesFor(std::string_view line);

  const Options& options_;
  StoredSettings settings_;
  MacroStore macros_;
  std::optional<double> answer_;  ///< nullopt: "ans" is not supported
};

}  // namespace kav
