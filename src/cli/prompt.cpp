#include "cli/prompt.h"

#include <unistd.h>

#include "cli/answer_writer.h"
#include "cli/cli_texts.h"
#include "cli/evaluation.h"
#include "cli/history_file.h"
#include "cli/line_editor.h"
#include "cli/typed_spelling.h"
#include "common/number_text.h"
#include "engine/function_names.h"
#include "store/settings_path.h"

namespace kav {
namespace {

constexpr std::string_view kHistoryName = "kavcalc_history";

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

/// The lines typed so far, in the editor and in the file.
class PastLines {
 public:
  explicit PastLines(LineEditor& editor) : editor_(editor), file_(StatePath(kHistoryName)) {
    for (const std::string& line : file_.Load()) editor_.Remember(line);
  }
  void Add(const std::string& line) {
    if (line == newest_) return;
    newest_ = line;
    editor_.Remember(line);
    file_.Append(line);
  }

 private:
  LineEditor& editor_;
  HistoryFile file_;
  std::string newest_;
};

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
  PastLines pastLines(editor);
  const AskAtPrompt ask = [&editor](const std::string& question) {
    std::string answer;
    const bool isAnswer = editor.Read(answer, question) == LineEditor::Outcome::Line;
    return isAnswer ? std::optional(answer) : std::nullopt;
  };
  std::string line;
  for (;;) {
    const auto outcome = editor.Read(line, kPrompt);
    if (outcome == LineEditor::Outcome::End || answers.IsBroken()) return answers.Finish();
    if (outcome == LineEditor::Outcome::GivenUp || TrimBlanks(line).empty()) continue;
    line = TypedSpelling(line, ask);
    pastLines.Add(line);
    answers.Write(evaluation.AnswerTo(line));
  }
}

}  // namespace kav
