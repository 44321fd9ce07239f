#include "cli/commands.h"

#include "cli/evaluation.h"
#include "cli/items.h"
#include "cli/prompt.h"

namespace kav {

int RunEval(const CommandLine& line) {
  if (line.items.empty() && CanPrompt()) return RunPrompt(line.options);
  AnswerWriter answers;
  Evaluation evaluation(line.options);
  ForEachItem(line.items, kLongestExpression, answers,
              [&](std::string_view item) { evaluation.Answer(item, answers); });
  return answers.Finish();
}

}  // namespace kav
