#include "cli/items.h"

#include <unistd.h>

#include "cli/cli_texts.h"

namespace kav {

InputLines::InputLines(std::size_t longest, AnswerWriter& answers)
    : answers_(answers), reader_(STDIN_FILENO, longest, [&answers] { answers.Flush(); }) {}

InputLines::~InputLines() {
  if (reader_.Error() == 0) return;
  answers_.MarkIncomplete();
  Tell(CannotRead(SystemReason(reader_.Error())));
}

}  // namespace kav
