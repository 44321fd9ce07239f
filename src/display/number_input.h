// Numbers as users type and paste them.
#pragma once

#include <optional>
#include <string_view>

namespace kav {

/// `text` as a decimal number, blanks around it aside: digits with an optional sign, point and
/// exponent, as every display type shows them. Separators are taken off where they stand between
/// each three digits of the integer part, so that a comma which was meant as a decimal point does
/// not pass for one. nullopt for any other text, "inf" and "nan" included. A magnitude beyond the
/// range of double reads as infinity, one below it as 0.
std::optional<double> ReadShownNumber(std::string_view text);

}  // namespace kav
