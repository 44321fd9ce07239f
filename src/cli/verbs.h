// Commands that can do several things, each named by the first argument behind the command.
#pragma once

#include <span>
#include <string_view>

#include "cli/command.h"

namespace kav {

/// What may stand behind a verb: nothing, the two or three parts of an item or nothing, any number
/// of items.
enum class Arguments { None, TwoOrNone, ThreeOrNone, Any };

/// One of the things that a command can do.
struct Verb {
  std::string_view name;
  Arguments count;
  std::string_view arguments;  ///< what it takes, in words
  int (*run)(const CommandLine& line);
};

/// Carries out the verb that is the first item of `line`, with what follows it as items; answers
/// the exit status. Complains where there is no such verb or it is given what it does not take.
int RunVerb(const CommandLine& line, std::span<const Verb> verbs);

}  // namespace kav
