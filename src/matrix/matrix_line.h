// What "=" does to a line of the matrix calculator, up to the evaluation itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "matrix/matrix_value.h"

namespace kav {

/// Whether `line` is for the matrix evaluator: it has a "[" or one of the names of its functions,
/// in any case, outside of macros' names. Any other line is a number expression.
bool IsMatrixExpression(std::u16string_view line);

/// The first of the matrices that `line` names (case does not count) and that has an empty cell.
std::optional<int> FirstInvalidMatrix(std::u16string_view line, const Matrices& matrices);

/// "Matrix [M1] is invalid" and so on, for the matrix `index`.
std::u16string MatrixIsInvalid(int index);

}  // namespace kav
