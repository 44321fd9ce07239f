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

/// What the Tab key does while an item is typed at a terminal.
enum class TabKey {
  Types,                    ///< a tab, as between the parts of an item
  CompletesFunction,        ///< the name of a function of numbers
  CompletesMatrixFunction,  ///< that, or the name of a function of matrices
};

/// What a command waits for where its items are typed at a terminal.
struct AwaitedItem {
  std::string_view what;  ///< "A number", say
  TabKey tab = TabKey::Types;
};

/// One command: its name, its help, and the function that carries it out.
struct Command {
  std::string_view name;
  std::string_view usage;    ///< what follows "kavcalc" in the usage line
  std::string_view summary;  ///< a few words for the list of commands
  std::string_view details;  ///< paragraphs for the command's own help
  std::string_view items;    ///< the paragraph of that help about items and their answers
  /// Returns the exit status: 0 if all items were answered, 1 if at least one failed, kUnusable.
  int (*run)(const CommandLine& line);
  AwaitedItem awaited = {};  ///< empty for commands that read no items
};

/// A command line that can be carried out. `items` are what the command works on, in order; without
/// any it works on standard input. They view the arguments, which must outlive them.
struct CommandLine {
  const Command* command;  ///< never nullptr
  Options options;
  std::vector<std::string_view> items;
  /// Of the verb, if the command has verbs; it counts instead of the command's.
  AwaitedItem awaitedOfVerb = {};
  /// Whether the first item stands where the name of a command may stand.
  bool mayLackCommand = false;

  const AwaitedItem& Awaited() const {
    return awaitedOfVerb.what.empty() ? command->awaited : awaitedOfVerb;
  }
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
