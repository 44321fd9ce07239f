#include <unistd.h>

#include <optional>
#include <string_view>
#include <utility>

#include "cli/command_hint.h"
#include "cli/commands.h"
#include "cli/evaluation.h"
#include "cli/items.h"
#include "cli/prompt.h"
#include "cli/typed_lines.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

/// Whether somebody reads answers and messages at the same terminal.
bool IsReadAtTerminal() {
  return isatty(STDOUT_FILENO) != 0 && isatty(STDERR_FILENO) != 0;
}

/// Answers the items of a line.
class EvalSession {
 public:
  explicit EvalSession(const CommandLine& line)
      : line_(line), evaluation_(line.options), mayBeCommand_(line.mayLackCommand) {}

  Answer AnswerTo(std::string_view item) {
    const bool mayBeCommand = std::exchange(mayBeCommand_, false);
    auto value = evaluation_.Value(item);
    if (value) return *value;
    const auto hint = mayBeCommand ? CommandHint(line_, Commands()) : std::nullopt;
    hint ? Tell(*hint) : TellPlace(item, value.error());
    return FailureOf(std::move(value).error());
  }

 private:
  void TellPlace(std::string_view item, const LineFailure& failure) {
    // Where nobody reads along, nothing follows the message.
    if (!IsReadAtTerminal()) return;
    static_cast<void>(WriteAll(STDERR_FILENO, evaluation_.NoteOn(item, failure)));
  }

  const CommandLine& line_;
  Evaluation evaluation_;
  bool mayBeCommand_;  ///< whether the next item may be the misspelt name of a command
};

}  // namespace

int RunEval(const CommandLine& line) {
  if (line.items.empty() && CanPrompt()) return RunPrompt(line.options);
  EvalSession session(line);
  return AnswerItems(line, kLongestExpression,
                     [&](std::string_view item) { return session.AnswerTo(item); });
}

}  // namespace kav
