// The options of kavcalc, a row each.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "cli/options.h"

namespace kav {

/// What counts where an option is given several times.
enum class Repeated { LastCounts, EachCounts };

/// One option. `values` is what its value may be, as the help shows it and `take` reads it; empty
/// for a switch, and of several Words where the option has as many values. `take` puts the value,
/// all of them with blanks between, into the options, or answers false where it is none.
struct OptionRow {
  const char* name;
  std::string_view values;
  const char* help;
  std::string_view commands;  ///< those that have it, separated by '|'; empty: all have it
  bool (*take)(std::string_view values, std::string_view given, Options& options);
  Repeated repeated = Repeated::LastCounts;
};

/// The parts of `text` between blanks.
std::vector<std::string_view> Words(std::string_view text);

/// Whether `command` has the option.
bool IsFor(const OptionRow& row, std::string_view command);

/// What `names`, spelled as the option for variables takes it, stands for; nullopt for nothing.
std::optional<VariableType> VariablesCalled(std::string_view names);

/// All options but help and version, in the order of the help.
std::span<const OptionRow> OptionRows();

}  // namespace kav
