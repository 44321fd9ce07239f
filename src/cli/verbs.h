// Commands with verbs: the first item names what to do.
#pragma once

#include <span>
#include <string_view>

#include "cli/command.h"

namespace kav {

/// How many items may follow a verb. Two and three are the parts of one item; without any, items
/// come from standard input.
enum class Arguments { None = 0, OneOrNone = 1, TwoOrNone = 2, ThreeOrNone = 3, Any };

/// A verb, and the function that carries it out as Command::run does.
struct Verb {
  std::string_view name;
  Arguments count;
  std::string_view arguments;  ///< the same in words, for the complaint
  int (*run)(const CommandLine& line);
  AwaitedItem awaited = {};  ///< empty for verbs that read no items
};

/// Carries out the verb that is the first item of `line`; the other items are its own. Complains if
/// there is no such verb, or not that number of items. Returns the exit status.
int RunVerb(const CommandLine& line, std::span<const Verb> verbs);

}  // namespace kav
