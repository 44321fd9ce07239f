#include "cli/command_hint.h"

#include <algorithm>
#include <string_view>

#include "cli/cli_texts.h"
#include "common/ascii.h"
#include "common/number_text.h"
#include "line/near_words.h"

namespace kav {
namespace {

constexpr std::string_view kOptionMark = "--";

/// The name of the command that `word` nearly is, or the option that it asks for; empty if there is
/// none.
std::string NameNear(std::string_view word, std::span<const Command> commands) {
  for (const std::string_view asked : {kHelpWord, kVersionWord}) {
    if (EqualsIgnoringCase(word, asked)) return std::string(kOptionMark).append(asked);
  }
  KnownWords names;
  names.reserve(commands.size());
  for (const Command& command : commands) {
    if (EqualsIgnoringCase(word, command.name)) return std::string(command.name);
    names.push_back({Widen(command.name), PieceKind::Function});
  }
  const auto near = WordsNear(Widen(word), names);
  return near.empty() ? std::string() : Narrow(near.front());
}

}  // namespace

std::optional<std::string> CommandHint(const CommandLine& line, std::span<const Command> commands) {
  if (!line.mayLackCommand) return std::nullopt;
  const std::string_view word = line.items.front();
  const std::string name = NameNear(word, commands);
  if (name.empty()) return std::nullopt;
  return IsNoCommand(word, std::string(kProgramName).append(" ").append(name));
}

}  // namespace kav
