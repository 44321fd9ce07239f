// The words that a line is made of, as a double click takes them.
#pragma once

#include <cstddef>
#include <string_view>

#include "engine/calc_modes.h"
#include "line/expression_line.h"

namespace kav {

/// The number of `base` in `text` that the character at `position` belongs to: digits, grouped or
/// not, point and exponent, but no sign before it. For other letters and digits the name they are
/// in, else the character itself. Behind the text the last of them counts. Empty for no text.
Selection WordAt(std::u16string_view text, std::size_t position, BaseMode base);

}  // namespace kav
