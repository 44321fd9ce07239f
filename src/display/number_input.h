// Numbers that users type and paste.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "engine/calc_modes.h"

namespace kav {

/// `text` as a decimal number, blanks around it aside: digits with an optional sign, point and
/// exponent, as every display type shows them. Commas may separate the digits of the integer part
/// if they stand between each three of them; so a comma that was meant as a decimal point is
/// refused. nullopt for any other text, "inf" and "nan" included. A magnitude beyond the range of
/// double reads as infinity, one below it as 0.
std::optional<double> ReadShownNumber(std::string_view text);

/// The number that `field`, which takes one, holds: read as ReadShownNumber does. Fails with what
/// the user is told: for a comma that could be a decimal one the text of CommaRefusal, else
/// `notANumber`. Every field of the program is read by it or by ReadNumberOrExpression.
Expected<double, std::u16string> ReadNumberField(std::u16string_view field,
                                                 std::u16string_view notANumber);

/// The same for a field that also takes an expression without variables, such as 2*Pi or sqrt(2),
/// always decimal and with angles in `angle`. What ReadNumberField takes is read by it alone, and a
/// text that is neither fails with what ReadNumberField says.
Expected<double, std::u16string> ReadNumberOrExpression(std::u16string_view field,
                                                        std::u16string_view notANumber,
                                                        AngleUnit angle);

}  // namespace kav
