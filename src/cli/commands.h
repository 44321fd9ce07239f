// The commands of kavcalc.
#pragma once

#include <span>
#include <string_view>

#include "cli/options.h"

namespace kav {

/// One command: its name, the line and the text that explain it, and what carries it out, which
/// answers the exit status: 0 all items were answered, 1 one at least was not.
struct Command {
  std::string_view name;
  std::string_view usage;    ///< what follows "kavcalc" and stands for items in the usage line
  std::string_view summary;  ///< a few words for the list of commands
  std::string_view details;  ///< paragraphs for its own help
  int (*run)(const CommandLine& line);
};

/// All commands; the first one is meant where none is named.
std::span<const Command> Commands();

}  // namespace kav
