#include "cli/command.h"

#include <unistd.h>

#include "cli/answer_writer.h"
#include "settings/file_descriptor.h"

namespace kav {

std::string UsageLine(const Command& command) {
  return "Usage: kavcalc " + std::string(command.usage) + "\n";
}

std::string Complaint(std::string_view reason, const Command& command) {
  return ToldLine(reason) + UsageLine(command);
}

int Complain(std::string_view reason, const Command& command) {
  static_cast<void>(WriteAll(STDERR_FILENO, Complaint(reason, command)));
  return kUnusable;
}

}  // namespace kav
