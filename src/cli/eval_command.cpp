#include <unistd.h>

#include <utility>

#include "cli/commands.h"
#include "cli/evaluation.h"
#include "cli/items.h"
#include "cli/prompt.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

/// Whether somebody reads answers and messages at the same terminal.
bool IsReadAtTerminal() {
  return isatty(STDOUT_FILENO) != 0 && isatty(STDERR_FILENO) != 0;
}

Answer AnswerTo(std::string_view item, Evaluation& evaluation) {
  auto value = evaluation.Value(item);
  if (value) return *value;
  // Where nobody reads along, nothing follows the message.
  if (IsReadAtTerminal()) {
    static_cast<void>(WriteAll(STDERR_FILENO, evaluation.NoteOn(item, value.error())));
  }
  return Failure{std::move(value).error().message};
}

}  // namespace

int RunEval(const CommandLine& line) {
  if (line.items.empty() && CanPrompt()) return RunPrompt(line.options);
  Evaluation evaluation(line.options);
  return AnswerItems(line, kLongestExpression,
                     [&](std::string_view item) { return AnswerTo(item, evaluation); });
}

}  // namespace kav
