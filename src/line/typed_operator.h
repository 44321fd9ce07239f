// Operators that are typed while all of a line is selected, as it is behind "=".
#pragma once

#include "engine/calc_modes.h"
#include "line/expression_line.h"

namespace kav {

/// Writes the operator `typed` into `line` as its key does, if all of the line is selected: behind
/// "=" one goes on with that line. False, and then `typed` is to be written as any character, if
/// not all is selected, or if `typed` is no operator in `base`.
bool TypeOperator(char16_t typed, BaseMode base, ExpressionLine& line);

}  // namespace kav
