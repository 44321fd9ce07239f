// Values in JSON, the text format that other programs read.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// Appends `text` (UTF-8) to `out` with quotes around it. Control characters are escaped, those
/// above ASCII too, since a terminal may obey them. Each byte that is no part of a well-formed
/// character becomes U+FFFD: JSON has no other bytes than UTF-8.
void AppendJsonText(std::string& out, std::string_view text);

/// Appends `value` to `out` with the fewest digits that read back as the very same number; "nan",
/// "inf" or "-inf" as a text if it is not finite, since JSON has no such numbers.
void AppendJsonNumber(std::string& out, double value);

}  // namespace kav
