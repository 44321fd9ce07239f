// Numbers as the screen's 16-bit texts.
#pragma once

#include <string>

#include "display/number_format.h"
#include "engine/calc_modes.h"

namespace kav {

/// `value` as the result line shows it; for what is not finite the message in its place.
std::u16string ShownNumber(double value, DisplayFormat format, BaseMode base);

/// `value` as it is written into a line or handed to a dialog: as `format` shows it, but in display
/// type "Floating Point", whose texts read back.
std::u16string InsertedNumber(double value, DisplayFormat format, BaseMode base);

}  // namespace kav
