// What is wrong with a matrix expression, and how it may be mended.
#pragma once

#include <string_view>

#include "engine/calc_error.h"
#include "line/line_mend.h"
#include "matrix/matrix_value.h"

namespace kav {

/// About `line`, as typed, over `matrices`: MatrixEvaluator answered the trimmed line with `error`.
LineFault MatrixFaultOf(std::u16string_view line, const CalcError& error, const Matrices& matrices);

}  // namespace kav
