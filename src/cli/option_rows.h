// The options of kavcalc, a row each.
#pragma once

#include <span>
#include <string_view>

#include "cli/options.h"

namespace kav {

/// One option. `values` is what its value may be, as the help shows it and `take` reads it; empty
/// for a switch. `take` puts the value into the options, or answers false where it is none.
struct OptionRow {
  const char* name;
  std::string_view values;
  const char* help;
  std::string_view command;  ///< the one command that has it; empty: all have it
  bool (*take)(std::string_view values, std::string_view given, Options& options);
};

/// All options but help and version, in the order of the help.
std::span<const OptionRow> OptionRows();

}  // namespace kav
