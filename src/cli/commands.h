// The commands of kavcalc.
#pragma once

#include <span>

#include "cli/command.h"

namespace kav {

/// All commands. The first one is meant if none is named.
std::span<const Command> Commands();

// The functions that carry them out, each in a file of its own; see Command::run.
int RunCheck(const CommandLine& line);
int RunConstants(const CommandLine& line);
int RunConvert(const CommandLine& line);
int RunEval(const CommandLine& line);
int RunFormat(const CommandLine& line);
int RunKeys(const CommandLine& line);
int RunMacro(const CommandLine& line);
int RunMatrix(const CommandLine& line);
int RunMemory(const CommandLine& line);
int RunPlot(const CommandLine& line);
int RunSettings(const CommandLine& line);
int RunStats(const CommandLine& line);
/// For `convert user`. `line` is that of convert, without the item "user".
int RunUserConversions(CommandLine line);

}  // namespace kav
