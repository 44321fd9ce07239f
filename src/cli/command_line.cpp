#include "cli/command_line.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cli/answer_writer.h"
#include "cli/cli_texts.h"
#include "cli/command_hint.h"
#include "cli/help_texts.h"
#include "cli/option_rows.h"

namespace kav {
namespace {

bool IsOption(std::string_view argument) {
  constexpr std::string_view kOpensAnExpression = "0123456789.(";
  return argument.size() > 1 && argument[0] == '-' &&
         kOpensAnExpression.find(argument[1]) == std::string_view::npos;
}

/// An option as it was given.
struct GivenOption {
  const OptionRow* row;              ///< nullptr: no command has such an option
  std::string_view argument;         ///< as it was given, without its value if it takes one
  std::optional<std::string> value;  ///< what follows '=', or the next argument

  bool TakesValue() const { return row != nullptr && row->TakesValue(); }
  bool LacksValue() const { return TakesValue() && !value; }
};

/// Sorts arguments into the command, options and items.
class ArgumentSorter {
 public:
  ArgumentSorter(std::span<const char* const> arguments, std::span<const Command> commands)
      : left_(arguments), commands_(commands), command_(&commands.front()) {
    while (!left_.empty()) Take(Next());
  }

  const Command* Named() const { return command_; }
  bool MayLackCommand() const { return mayLackCommand_; }
  std::vector<GivenOption> TakeOptions() { return std::move(options_); }
  std::vector<std::string_view> TakeItems() { return std::move(items_); }

 private:
  std::string_view Next() {
    const std::string_view argument = left_.front();
    left_ = left_.subspan(1);
    return argument;
  }

  void Take(std::string_view argument) {
    if (argument == "--") {
      while (!left_.empty()) items_.push_back(Next());
    } else if (IsOption(argument)) {
      options_.push_back(TakeOption(argument));
    } else if (std::exchange(hasCommand_, true)) {
      items_.push_back(argument);
    } else if (!TakeCommand(argument)) {
      mayLackCommand_ = true;
      items_.push_back(argument);
    }
  }

  bool TakeCommand(std::string_view name) {
    const auto named = std::find_if(commands_.begin(), commands_.end(),
                                    [&](const Command& command) { return command.name == name; });
    if (named == commands_.end()) return false;
    command_ = &*named;
    return true;
  }

  GivenOption TakeOption(std::string_view argument) {
    const std::size_t mark = argument.find('=');
    GivenOption given{FindOption(argument.substr(0, mark)), argument, std::nullopt};
    if (mark != argument.npos) given.value = argument.substr(mark + 1);
    if (!given.TakesValue()) return given;
    given.argument = argument.substr(0, mark);
    if (given.LacksValue() && !left_.empty()) given.value = Next();
    // Several values may be one argument or several.
    const std::size_t count = Words(given.row->values).size();
    while (count > 1 && !left_.empty() && Words(*given.value).size() < count) {
      given.value->append(" ").append(Next());
    }
    return given;
  }

  std::span<const char* const> left_;
  std::span<const Command> commands_;
  const Command* command_;
  bool hasCommand_ = false;  ///< named, or meant by an item
  bool mayLackCommand_ = false;
  std::vector<GivenOption> options_;
  std::vector<std::string_view> items_;
};

/// The arguments that `options` were given as, the last one first.
std::vector<std::string_view> ArgumentsOf(std::span<const GivenOption> options) {
  std::vector<std::string_view> arguments;
  arguments.reserve(2 * options.size());
  for (const GivenOption& one : options) {
    arguments.push_back(one.argument);
    if (one.TakesValue() && one.value) arguments.push_back(*one.value);
  }
  std::reverse(arguments.begin(), arguments.end());
  return arguments;
}

/// Stores the value of `given` in `options`. Returns why it cannot be stored; nullopt if it was.
std::optional<std::string> StoreOption(const GivenOption& given, Options& options) {
  const OptionRow& row = *given.row;
  const std::string value = given.value.value_or("");
  if (row.take(row.values, value, options)) return std::nullopt;
  return row.TakesValue() ? OptionTakes(row.name, row.values, value)
                          : CannotConvert(row.name, value);
}

/// Stores the values of `given`, all of them options of one command, in the order of the table.
/// Returns why one of them cannot be stored; nullopt if all are, or if the version is asked for,
/// which makes the rest irrelevant.
std::optional<std::string> StoreOptions(std::span<const GivenOption> given, Options& options) {
  for (const GivenOption& one : given) {
    if (one.LacksValue()) return OptionLacksValue(one.row->name);
    if (one.row->repeated != Repeated::EachCounts) continue;
    if (auto fault = StoreOption(one, options)) return fault;
  }
  for (const OptionRow& row : OptionRows()) {
    const auto last = std::find_if(given.rbegin(), given.rend(),
                                   [&](const GivenOption& one) { return one.row == &row; });
    if (last == given.rend() || row.repeated == Repeated::EachCounts) continue;
    if (auto fault = StoreOption(*last, options)) return fault;
    if (options.asksVersion) return std::nullopt;
  }
  return std::nullopt;
}

std::string OptionHelp(const OptionRow& row) {
  constexpr std::size_t kColumn = 30;
  std::string text = "  " + std::string(row.name);
  if (row.TakesValue()) text.append(" ").append(row.values);
  if (text.size() >= kColumn) text += '\n' + std::string(kColumn, ' ');
  text.resize(std::max(text.size(), kColumn), ' ');
  return text.append(row.help) + '\n';
}

/// The help of `command`. That of the first command lists all of them.
std::string Help(const Command& command, std::span<const Command> commands) {
  std::string text = std::string(kProgramSummary) + "\n\n" + UsageLine(command);
  if (&command == &commands.front()) {
    text += "       kavcalc COMMAND --help\n\nCommands:\n";
    for (const Command& one : commands) {
      constexpr std::size_t kColumn = 10;
      text.append("  ").append(one.name).append(kColumn - one.name.size(), ' ');
      text.append(one.summary) += '\n';
    }
  }
  text += "\nOptions:\n";
  for (const OptionRow& row : OptionRows()) {
    if (Matters(row, command.name)) text += OptionHelp(row);
  }
  for (const std::string_view part : {command.details, command.items, kArgumentsHelp}) {
    text.append("\n").append(part) += '\n';
  }
  return text;
}

std::optional<EarlyEnd> ReadOptions(std::vector<GivenOption> given,
                                    std::span<const Command> commands, CommandLine& line) {
  const Command& command = *line.command;
  const auto unexpected = std::stable_partition(
      given.begin(), given.end(),
      [&](const GivenOption& one) { return one.row != nullptr && IsFor(*one.row, command.name); });
  const auto fault = StoreOptions({given.begin(), unexpected}, line.options);
  if (fault) return EarlyEnd{kUnusable, Complaint(*fault, command)};
  if (line.options.asksVersion) return EarlyEnd{0, VersionLine()};
  if (line.options.asksHelp) return EarlyEnd{0, Help(command, commands)};
  if (unexpected == given.end()) return std::nullopt;
  std::string complaint = Complaint(NotExpected(ArgumentsOf({unexpected, given.end()})), command);
  if (const auto hint = CommandHint(line, commands)) complaint += ToldLine(*hint);
  return EarlyEnd{kUnusable, complaint};
}

}  // namespace

Expected<CommandLine, EarlyEnd> ReadCommandLine(std::span<const char* const> arguments,
                                                std::span<const Command> commands) {
  ArgumentSorter sorter(arguments, commands);
  CommandLine line{.command = sorter.Named(),
                   .options = {},
                   .items = sorter.TakeItems(),
                   .mayLackCommand = sorter.MayLackCommand()};
  if (auto end = ReadOptions(sorter.TakeOptions(), commands, line)) return *std::move(end);
  return line;
}

}  // namespace kav
