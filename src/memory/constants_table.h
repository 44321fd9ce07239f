// The constants of nature and of measurement, read from the file that is delivered with the
// program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"

namespace kav {

/// One row of the file. Bytes are characters of the same number; nothing is trimmed or converted.
struct Constant {
  std::u16string group;  ///< what stands before the name in brackets; empty for none
  std::u16string name;
  std::u16string value;

  bool operator==(const Constant&) const = default;
};

/// The rows of `bytes`, in their order. A record ends with ';', what follows the last one is no
/// record. Its name is what stands between the first ']' and the first '=', its value all behind
/// that '='; a record without a name or a value is skipped.
std::vector<Constant> ParseConstants(std::string_view bytes);

/// Whether a row is one of those that `filter` looks for: each of its words, in any case, occurs in
/// the group, the name or the value. An empty filter looks for all.
bool Matches(const Constant& constant, std::u16string_view filter);

/// The file's name.
inline constexpr std::string_view kConstantsFile = "constable.dat";

/// A larger file is no table of constants.
inline constexpr std::size_t kLargestConstantsFile = std::size_t{4} << 20U;

/// The table in the first of `folders` that has a file of this name which can be opened for
/// reading; else the message to show: without such a file it names the path in the first of the
/// folders, for one larger than kLargestConstantsFile that file's own.
Expected<std::vector<Constant>, std::u16string> LoadConstants(
    const std::vector<std::string>& folders);

/// Where the file is looked for: the folder of the program's own executable, then the folder that
/// the program's data is installed in, which stands beside that of the executables.
std::vector<std::string> ConstantsFolders();

}  // namespace kav
