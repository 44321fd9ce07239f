#include "cli/verbs.h"

#include <algorithm>

#include "cli/cli_texts.h"

namespace kav {
namespace {

bool Takes(const Verb& verb, std::size_t given) {
  return given == 0 || verb.count == Arguments::Any ||
         given == static_cast<std::size_t>(verb.count);
}

}  // namespace

int RunVerb(const CommandLine& line, std::span<const Verb> verbs) {
  const Command& command = *line.command;
  if (line.items.empty()) return Complain(LacksVerb(command.name), command);
  const std::string_view name = line.items.front();
  const auto verb = std::find_if(verbs.begin(), verbs.end(),
                                 [name](const Verb& known) { return known.name == name; });
  if (verb == verbs.end()) return Complain(HasNoVerb(command.name, name), command);
  CommandLine rest = line;
  rest.items.erase(rest.items.begin());
  rest.awaitedOfVerb = verb->awaited;
  if (Takes(*verb, rest.items.size())) return verb->run(rest);
  return Complain(VerbTakes(command.name, verb->name, verb->arguments), command);
}

}  // namespace kav
