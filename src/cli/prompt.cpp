#include "cli/prompt.h"

#include <unistd.h>

#include <utility>

#include "cli/answer_writer.h"
#include "cli/cli_texts.h"
#include "cli/evaluation.h"
#include "cli/help_texts.h"
#include "cli/line_editor.h"
#include "cli/prompt_lines.h"
#include "cli/typed_lines.h"
#include "cli/typed_spelling.h"
#include "common/ascii.h"
#include "common/number_text.h"
#include "engine/function_names.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

/// The names that expressions in `base` can use, each with the text that follows it in a line.
std::vector<std::string> KnownNames(BaseMode base, const MacroStore& macros) {
  std::vector<std::string> names{std::string(kAnswerWord)};
  if (base == BaseMode::Decimal) {
    for (std::string& name : NamesOfFunctions()) names.push_back(std::move(name));
  }
  for (int i = 0; i < macros.Count(); ++i) names.push_back("M:" + macros.At(i).name + "(");
  return names;
}

bool IsWord(std::string_view line, std::string_view word) {
  return EqualsIgnoringCase(TrimBlanks(line), word);
}

/// Answers `line` on the terminal, and shows where it failed.
Answer AnswerLine(std::string_view line, const Options& options, Evaluation& evaluation,
                  AnswerWriter& answers) {
  answers.Begin(line);
  auto value = evaluation.Value(line);
  if (value) {
    evaluation.SetAnswer(*value);
    answers.Write(*value);
    return *value;
  }
  // Answers go to the terminal, too, so the message comes last, right before the next prompt.
  // Among objects of JSON it would be none.
  if (!options.isJson) {
    static_cast<void>(WriteAll(STDOUT_FILENO, evaluation.NoteOn(line, value.error())));
  }
  Failure failure = FailureOf(std::move(value).error());
  answers.Write(failure);
  return failure;
}

}  // namespace

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
  evaluation.SetAnswer(0);
  std::string line;
  for (;;) {
    pastLines.TakeOver();
    const auto outcome = editor.Read(line, kPrompt);
    if (outcome == LineEditor::Outcome::End || answers.IsBroken()) return answers.Finish();
    if (outcome == LineEditor::Outcome::GivenUp || TrimBlanks(line).empty()) continue;
    if (IsWord(line, kQuitWord) || IsWord(line, kExitWord)) return answers.Finish();
    if (IsWord(line, kHelpWord)) {
      static_cast<void>(WriteAll(STDOUT_FILENO, kPromptHelp));
      continue;
    }
    line = TypedSpelling(line, ask);
    pastLines.Add(line, AnswerLine(line, options, evaluation, answers));
  }
}

}  // namespace kav
