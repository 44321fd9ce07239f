// What was meant by a first word that nearly names a command.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "cli/command.h"

namespace kav {

/// The message that the first item of `line` is no command, and which of `commands` it may stand
/// for; nullopt if it stands for none, or stands where no command can. An expression that has a
/// value is no mistake: to be asked about one that has none.
std::optional<std::string> CommandHint(const CommandLine& line, std::span<const Command> commands);

}  // namespace kav
