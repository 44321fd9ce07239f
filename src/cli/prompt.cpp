#include "cli/prompt.h"

#include <unistd.h>

#include "cli/answer_writer.h"
#include "cli/cli_texts.h"
#include "cli/evaluation.h"
#include "cli/line_editor.h"
#include "cli/prompt_lines.h"
#include "cli/typed_spelling.h"
#include "common/number_text.h"
#include "engine/function_names.h"

namespace kav {
namespace {

/// The names that expressions in `base` can use, each with the text that follows it in a line.
std::vector<std::string> KnownNames(BaseMode base, const MacroStore& macros) {
  std::vector<std::string> names;
  if (base == BaseMode::Decimal) {
    names.emplace_back("pi");
    for (const FunctionName& function : kFunctionNames) {
      names.push_back(std::string(function.name) + "(");
    }
  }
  for (int i = 0; i < macros.Count(); ++i) names.push_back("M:" + macros.At(i).name + "(");
  return names;
}

}  // namespace

bool CanPrompt() {
  return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

int RunPrompt(const Options& options) {
  AnswerWriter answers(options);
  Evaluation evaluation(options);
  LineEditor editor([&](std::string_view before) {
    return Complete(before, KnownNames(options.base, evaluation.Macros()));
  });
  PromptLines pastLines(editor, evaluation.Settings().Store(), options);
  const AskAtPrompt ask = [&editor](const std::string& question) {
    std::string answer;
    const bool isAnswer = editor.Read(answer, question) == LineEditor::Outcome::Line;
    return isAnswer ? std::optional(answer) : std::nullopt;
  };
  std::string line;
  for (;;) {
    pastLines.TakeOver();
    const auto outcome = editor.Read(line, kPrompt);
    if (outcome == LineEditor::Outcome::End || answers.IsBroken()) return answers.Finish();
    if (outcome == LineEditor::Outcome::GivenUp || TrimBlanks(line).empty()) continue;
    line = TypedSpelling(line, ask);
    const Answer answer = evaluation.AnswerTo(line);
    answers.Write(answer);
    pastLines.Add(line, answer);
  }
}

}  // namespace kav
