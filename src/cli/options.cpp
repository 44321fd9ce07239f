#include "cli/options.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <memory>
#include <utility>

#include "cli/cli_texts.h"
#include "cli/commands.h"
#include "cli/help_texts.h"
#include "cli/option_rows.h"
#include "cli/usage.h"

namespace kav {
namespace {

bool IsOption(std::string_view argument) {
  constexpr std::string_view kOpensAnExpression = "0123456789.(";
  return argument.size() > 1 && argument[0] == '-' &&
         kOpensAnExpression.find(argument[1]) == std::string_view::npos;
}

/// How many values the option called `name` has.
std::size_t ValueCount(std::string_view name) {
  const auto rows = OptionRows();
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const OptionRow& row) { return row.name == name; });
  return found == rows.end() ? 0 : Words(found->values).size();
}

const Command* FindCommand(std::string_view name) {
  const auto commands = Commands();
  const auto found = std::find_if(commands.begin(), commands.end(),
                                  [&](const Command& command) { return command.name == name; });
  return found == commands.end() ? nullptr : &*found;
}

/// Sorts arguments into the command, options, each name followed by its value, and items.
class ArgumentSorter {
 public:
  explicit ArgumentSorter(std::span<const char* const> arguments) : left_(arguments) {
    while (!left_.empty()) Take(Next());
  }

  const Command& Named() const { return *command_; }
  std::vector<std::string> TakeOptions() { return std::move(options_); }
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
      TakeOption(argument);
    } else if (const Command* named = FindCommand(argument); named != nullptr && !hasCommand_) {
      command_ = named;
      hasCommand_ = true;
    } else {
      items_.push_back(argument);
      hasCommand_ = true;
    }
  }

  void TakeOption(std::string_view argument) {
    const std::size_t mark = argument.find('=');
    const std::string_view name = argument.substr(0, mark);
    const std::size_t count = ValueCount(name);
    options_.emplace_back(count > 0 ? name : argument);
    if (count == 0) return;
    if (mark != argument.npos) {
      options_.emplace_back(argument.substr(mark + 1));
    } else if (!left_.empty()) {
      options_.emplace_back(Next());
    }
    if (count > 1) TakeMoreValues(count);
  }

  /// Goes on with the last value until it is `count` values, which may be one argument or several.
  void TakeMoreValues(std::size_t count) {
    std::string& values = options_.back();
    while (Words(values).size() < count && !left_.empty()) values.append(" ").append(Next());
  }

  std::span<const char* const> left_;
  const Command* command_ = &Commands().front();
  bool hasCommand_ = false;  ///< or an item, which means the first one
  std::vector<std::string> options_;
  std::vector<std::string_view> items_;
};

/// Writes the usage as the commands have it, and the list of them where none was named.
class HelpFormatter final : public CLI::Formatter {
 public:
  explicit HelpFormatter(const Command& command) : command_(command) {}

  std::string make_usage(const CLI::App*, std::string) const override {  // NOLINT: not our name
    std::string usage = "\n" + UsageLine(command_);
    if (&command_ != &Commands().front()) return usage;
    usage += "       kavcalc COMMAND --help\n\nCommands:\n";
    for (const Command& command : Commands()) {
      const std::string name(command.name);
      usage += "  " + name + std::string(10 - name.size(), ' ');
      usage.append(command.summary) += '\n';
    }
    return usage;
  }

 private:
  const Command& command_;
};

void Register(const OptionRow& row, CLI::App& app, Options& options) {
  if (row.values.empty()) {
    app.add_flag_callback(
        row.name, [&] { row.take({}, {}, options); }, row.help);
    return;
  }
  const auto take = [&row, &options](const std::string& given) {
    if (row.take(row.values, given, options)) return;
    throw CLI::ValidationError(OptionTakes(row.name, row.values, given));
  };
  app.add_option_function<std::string>(row.name, take, row.help)
      ->type_name(std::string(row.values))
      ->take_last()
      ->trigger_on_parse(row.repeated == Repeated::EachCounts);
}

std::optional<EarlyEnd> ReadOptions(std::vector<std::string> given, const Command& command,
                                    Options& options) {
  CLI::App app{std::string(kProgramSummary), std::string(kProgramName)};
  app.formatter(std::make_shared<HelpFormatter>(command));
  app.footer(std::string(command.details) + "\n\n" + std::string(kItemsHelp));
  app.set_help_flag("-h,--help", "print this help and end");
  app.set_version_flag("--version", std::string(kProgramName) + " " KAV_VERSION,
                       "print the version and end");
  for (const OptionRow& row : OptionRows()) {
    if (IsFor(row, command.name)) Register(row, app, options);
  }
  const std::string last = given.back();
  std::reverse(given.begin(), given.end());
  try {
    app.parse(std::move(given));
  } catch (const CLI::CallForHelp&) {
    return EarlyEnd{0, app.help()};
  } catch (const CLI::CallForVersion& version) {
    return EarlyEnd{0, std::string(version.what()) + "\n"};
  } catch (const CLI::ArgumentMismatch&) {
    return EarlyEnd{kUnusable, Complaint(OptionLacksValue(last), command)};
  } catch (const CLI::ParseError& error) {
    return EarlyEnd{kUnusable, Complaint(error.what(), command)};
  }
  return std::nullopt;
}

}  // namespace

Expected<CommandLine, EarlyEnd> ReadCommandLine(std::span<const char* const> arguments) {
  ArgumentSorter sorter(arguments);
  CommandLine line{&sorter.Named(), {}, sorter.TakeItems()};
  std::vector<std::string> given = sorter.TakeOptions();
  // Setting the library up takes longer than the whole of a short calculation.
  if (!given.empty()) {
    auto end = ReadOptions(std::move(given), *line.command, line.options);
    if (end) return *std::move(end);
  }
  return line;
}

}  // namespace kav
