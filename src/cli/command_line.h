// The arguments of kavcalc, read.
#pragma once

#include <span>
#include <string>

#include "cli/command.h"
#include "common/expected.h"

namespace kav {

/// Why no command is carried out. Status 0: help or version was asked for, and `text` is the
/// answer. Status kUnusable: the arguments are unusable, and `text` is the complaint.
struct EarlyEnd {
  int status;
  std::string text;
};

/// Reads the arguments that follow the program's name. If the first one that is no option is the
/// name of one of `commands`, it names the command. Otherwise it is an item of the first of
/// `commands`. Both spans must outlive the result.
Expected<CommandLine, EarlyEnd> ReadCommandLine(std::span<const char* const> arguments,
                                                std::span<const Command> commands);

}  // namespace kav
