// Numbers that users type and paste.
#pragma once

#include <optional>
#include <string_view>

namespace kav {

/// `text` as a decimal number, blanks around it aside: digits with an optional sign, point and
/// exponent, as every display type shows them. Commas may separate the digits of the integer part
/// if they stand between each three of them; so a comma that was meant as a decimal point is
/// refused. nullopt for any other text, "inf" and "nan" included. A magnitude beyond the range of
/// double reads as infinity, one below it as 0.
std::optional<double> ReadShownNumber(std::string_view text);

}  // namespace kav
