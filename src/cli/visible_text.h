// Texts of files and arguments on a terminal, which would obey what they hold.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// `text` (UTF-8) with each byte of its control characters as "\xNN", so that a terminal shows
/// them. Tabs and line ends, LF and CR LF, stay. Bytes that are control characters only where texts
/// are no UTF-8 are shown so, too.
std::string Visible(std::string_view text);

}  // namespace kav
