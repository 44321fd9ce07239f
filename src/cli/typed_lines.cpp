#include "cli/typed_lines.h"

#include <unistd.h>

#include <vector>

#include "cli/cli_texts.h"
#include "cli/completion.h"
#include "matrix/matrix_functions.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

/// The names that Tab completes, each with what follows it in a line.
std::vector<std::string> NamesFor(TabKey tab) {
  std::vector<std::string> names = NamesOfFunctions();
  if (tab != TabKey::CompletesMatrixFunction) return names;
  for (const MatrixFunctionRow& row : MatrixFunctions()) {
    names.push_back(std::string(row.name) + "(");
  }
  return names;
}

LineEditor::Completer CompleterFor(TabKey tab) {
  if (tab == TabKey::Types) {
    return [](std::string_view) { return Completion{"\t", {}}; };
  }
  return [names = NamesFor(tab)](std::string_view before) { return Complete(before, names); };
}

void TellAwaited(const std::string& line) {
  if (isatty(STDIN_FILENO) != 0) static_cast<void>(WriteAll(STDERR_FILENO, line + '\n'));
}

}  // namespace

bool CanPrompt() {
  return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

void TellAwaitedLines(std::string_view item) {
  TellAwaited(LinesAwaited(item));
}

void TellAwaitedText(std::string_view text) {
  TellAwaited(TextAwaited(text));
}

TypedLines::TypedLines(TabKey tab) : editor_(CompleterFor(tab)) {}

std::optional<std::string_view> TypedLines::Next() {
  LineEditor::Outcome outcome = LineEditor::Outcome::GivenUp;
  while (outcome == LineEditor::Outcome::GivenUp) outcome = editor_.Read(line_, {});
  if (outcome == LineEditor::Outcome::End) return std::nullopt;
  if (!line_.empty()) editor_.Remember(line_);
  return line_;
}

}  // namespace kav
