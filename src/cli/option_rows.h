// The table of options.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "cli/options.h"

namespace kav {

/// What counts if an option is given several times.
enum class Repeated { LastCounts, EachCounts };

/// One option.
struct OptionRow {
  std::string_view name;
  std::string_view values;  ///< as in the help, a word for each value it takes; empty: a switch
  std::string_view help;
  std::string_view commands;  ///< those that it changes, separated by '|'; empty: all
  /// Whether the other commands take it, too: scripts may then give all the same options.
  enum class Others { Refuse, Ignore } others;
  /// Stores `given` in the options; false if it is none of `values`. Several values have blanks
  /// between them. Of a switch, `given` is what follows '='.
  bool (*take)(std::string_view values, std::string_view given, Options& options);
  Repeated repeated = Repeated::LastCounts;

  bool TakesValue() const { return !values.empty(); }
};

/// The parts of `text` between blanks. They view it.
std::vector<std::string_view> Words(std::string_view text);

/// Whether `command` takes the option.
bool IsFor(const OptionRow& row, std::string_view command);

/// Whether the option changes anything in `command`.
bool Matters(const OptionRow& row, std::string_view command);

/// The variables that `names` stands for, spelled as the option --variables takes it; nullopt if it
/// is spelled otherwise.
std::optional<VariableType> VariablesCalled(std::string_view names);

/// All options, in the order of the help.
std::span<const OptionRow> OptionRows();

/// The option called `name` on the command line; nullptr if there is none.
const OptionRow* FindOption(std::string_view name);

}  // namespace kav
