// A command of kavcalc, and what it is asked to do.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/options.h"

namespace kav {

/// The exit status for unusable arguments.
inline constexpr int kUnusable = 2;

struct CommandLine;

/// One command: its name, its help, and the function that carries it out.
struct Command {
  std::string_view name;
  std::string_view usage;    ///< what follows "kavcalc" in the usage line
  std::string_view summary;  ///< a few words for the list of commands
  std::string_view details;  ///< paragraphs for the command's own help
  std::string_view items;    ///< the paragraph of that help about items and their answers
  /// Returns the exit status: 0 if all items were answered, 1 if at least one failed, kUnusable.
  int (*run)(const CommandLine& line);
};

/// A command line that can be carried out. `items` are what the command works on, in order; without
/// any it works on standard input. They view the arguments, which must outlive them.
struct CommandLine {
  const Command* command;  ///< never nullptr
  Options options;
  std::vector<std::string_view> items;
};

/// The usage line of `command`, with its line end.
std::string UsageLine(const Command& command);

/// Two lines without control characters: the program's name with `reason`, and the usage line of
/// `command`.
std::string Complaint(std::string_view reason, const Command& command);

/// Writes the Complaint to standard error. For arguments that turn out to be unusable when the
/// command is carried out. Returns kUnusable.
int Complain(std::string_view reason, const Command& command);

}  // namespace kav
