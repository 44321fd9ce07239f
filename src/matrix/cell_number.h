// The numbers of a matrix's cells, which are texts: from the one to the other and back.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The number that opens the text of a cell, 0 where there is none.
double ReadCell(std::u16string_view text);

/// What a cell that takes `value` holds: its natural decimals, or twelve of them in exponent form
/// beyond 1e12 and below 1e-12. What is not finite becomes the message "Out of range(overflow or
/// underflow)".
std::u16string CellText(double value);

/// The number that a cell has after it took `value`: exactly ReadCell(CellText(value)), but mostly
/// without the text. 0 for what is not finite.
double AsCell(double value);

}  // namespace kav
