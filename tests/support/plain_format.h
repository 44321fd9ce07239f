// The display rules a second time, through the C library's printing: what tests hold FormatNumber
// and NaturalDecimals against. Prints in the locale in force, which has to be C.
#pragma once

#include <string>

#include "display/number_format.h"
#include "engine/calc_modes.h"

namespace kav::test {

/// `value` printed by a format of one precision and one number, such as "%.*f".
std::string PlainPrint(const char* format, int precision, double value);

int PlainNaturalDecimals(double value);

/// The text of `value`, or the message if it is not finite.
std::string PlainFormat(double value, DisplayFormat format, BaseMode base);

}  // namespace kav::test
