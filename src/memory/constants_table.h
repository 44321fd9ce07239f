// The constants of nature and of measurement, read from the file that is delivered with the
// program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"

namespace kav {

/// One row of the file. Each byte of the file is the character of the same number; nothing is
/// trimmed or converted.
struct Constant {
  std::u16string group;  ///< what stands before the name in brackets; empty for none
  std::u16string name;
  std::u16string value;

  bool operator==(const Constant&) const = default;
};

/// The rows of `bytes`, in their order. A record ends with ';'; what follows the last ';' is none.
/// Its name stands between the first ']' and the first '=', its value is all that follows that '='.
/// A record without a name or a value is skipped.
std::vector<Constant> ParseConstants(std::string_view bytes);

/// Whether each word of `filter`, in any case, occurs in the group, the name or the value. An empty
/// filter matches every row.
bool Matches(const Constant& constant, std::u16string_view filter);

/// The last word of the name before its unit: R in "molar gas constant R (J/(mol K))".
std::u16string_view SymbolOf(const Constant& constant);

/// How well `filter` is the symbol of `constant`; the better ones first.
enum class SymbolMatch { Exact, InAnotherCase, None };
SymbolMatch MatchSymbol(const Constant& constant, std::u16string_view filter);

/// The file's name.
inline constexpr std::string_view kConstantsFile = "constable.dat";

/// A larger file is no table of constants.
inline constexpr std::size_t kLargestConstantsFile = std::size_t{4} << 20U;

/// The table in the first of `folders` that has a file kConstantsFile which can be opened. Fails
/// with the message to show: if there is no such file, it names the path in the first folder; if
/// the file is larger than kLargestConstantsFile, it names that file.
Expected<std::vector<Constant>, std::u16string> LoadConstants(
    const std::vector<std::string>& folders);

/// The folders that the file is looked for in: that of the program's own executable, then that of
/// the program's installed data.
std::vector<std::string> ConstantsFolders();

}  // namespace kav
