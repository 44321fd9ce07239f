// Lines that somebody types for a command, at a terminal.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/command.h"
#include "cli/line_editor.h"

namespace kav {

/// Whether standard input and output are both a terminal, so that lines can be edited there.
bool CanPrompt();

// If standard input is a terminal, these tell on standard error what a command waits for there:
// lines, each of them an item such as "A number", or one text of many lines.
void TellAwaitedLines(std::string_view item);
void TellAwaitedText(std::string_view text);

/// Reads lines from the terminal at standard input and output. They can be edited and, while the
/// command runs, recalled.
class TypedLines {
 public:
  explicit TypedLines(TabKey tab);

  /// The next line, valid until the next call; nullopt at the end.
  std::optional<std::string_view> Next();

 private:
  LineEditor editor_;
  std::string line_;
};

}  // namespace kav
