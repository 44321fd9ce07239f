#include "cli/commands.h"

#include "cli/evaluation.h"
#include "cli/items.h"
#include "cli/prompt.h"

namespace kav {

int RunEval(const CommandLine& line) {
  if (line.items.empty() && CanPrompt()) return RunPrompt(line.options);
  Evaluation evaluation(line.options);
  return AnswerItems(line, kLongestExpression,
                     [&](std::string_view item) { return evaluation.AnswerTo(item); });
}

}  // namespace kav
