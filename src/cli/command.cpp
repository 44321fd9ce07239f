#include "cli/command.h"

#include <unistd.h>

#include "cli/cli_texts.h"
#include "settings/file_descriptor.h"

namespace kav {

std::string UsageLine(const Command& command) {
  return "Usage: kavcalc " + std::string(command.usage) + "\n";
}

std::string Complaint(std::string_view reason, const Command& command) {
  return std::string(kProgramName).append(": ").append(reason) + "\n" + UsageLine(command);
}

int Complain(std::string_view reason, const Command& command) {
  static_cast<void>(WriteAll(STDERR_FILENO, Complaint(reason, command)));
  return kUnusable;
}

}  // namespace kav
