// How a line of the matrix calculator is to be evaluated, and whether it can be.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "matrix/matrix_value.h"

namespace kav {

/// Whether `line` is a matrix expression: outside of macros' names it has a "[" or the name of a
/// matrix function, upper or lower case. Any other line is a number expression.
bool IsMatrixExpression(std::u16string_view line);

/// Whether `line` names the matrix `index`, upper or lower case.
bool NamesMatrix(std::u16string_view line, int index);

/// The index of the first matrix that has an empty cell and that `line` names, upper or lower case;
/// nullopt if there is none.
std::optional<int> FirstInvalidMatrix(std::u16string_view line, const Matrices& matrices);

/// What the user is told about the matrix `index`, such as "Matrix [M1] is invalid".
std::u16string MatrixIsInvalid(int index);

}  // namespace kav
