// Between the texts of a matrix's cells and their numbers.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The number that the text of a cell begins with, as ReadLeadingNumber reads it; 0 if there is
/// none.
double ReadCell(std::u16string_view text);

/// The text of a cell that takes `value`: its natural decimals, or twelve of them in exponent form
/// beyond 1e12 and below 1e-12. If `value` is not finite, the message "Out of range(overflow or
/// underflow)".
std::u16string CellText(double value);

/// The number of a cell that took `value`: exactly ReadCell(CellText(value)), but mostly without
/// making the text. 0 if `value` is not finite.
double AsCell(double value);

}  // namespace kav
