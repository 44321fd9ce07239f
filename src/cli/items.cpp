#include "cli/items.h"

#include <unistd.h>

#include "cli/cli_texts.h"

namespace kav {

std::vector<std::string_view> Columns(std::string_view line, std::size_t most) {
  std::vector<std::string_view> columns;
  for (std::size_t tab = line.find('\t'); tab != line.npos && columns.size() + 1 < most;
       tab = line.find('\t')) {
    columns.push_back(line.substr(0, tab));
    line.remove_prefix(tab + 1);
  }
  columns.push_back(line);
  return columns;
}

InputLines::InputLines(std::size_t longest, AnswerWriter& answers)
    : answers_(answers), reader_(STDIN_FILENO, longest, [&answers] { answers.Flush(); }) {}

InputLines::~InputLines() {
  if (reader_.Error() == 0) return;
  answers_.MarkIncomplete();
  Tell(CannotRead(SystemReason(reader_.Error())));
}

}  // namespace kav
