// What the operators and functions of matrix expressions do to their operands, which are numbers
// as well as matrices.
#pragma once

#include <cstddef>
#include <span>
#include <variant>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"
#include "matrix/matrix_value.h"

namespace kav {

/// An operand: a matrix, which must outlive it, or without one a number.
struct MatrixOperand {
  double number = 0;
  const MatrixValue* matrix = nullptr;
};

using MatrixOrNumber = std::variant<double, MatrixValue>;

/// `left` and `right` combined by '^', '*', '+' or '-'. Fails where the operation on matrices does,
/// with CalcErrorCode::OutOfRange for numbers that are or become too large or none, and with
/// CalcErrorCode::Expression for a matrix as exponent.
CalcResult<MatrixOrNumber> CombineOperands(const MatrixOperand& left, char symbol,
                                           const MatrixOperand& right);

/// `operand` with the other sign.
CalcResult<MatrixOrNumber> Negate(const MatrixOperand& operand);

/// How many arguments functions take at most, and how many `function` takes.
inline constexpr std::size_t kMostMatrixArguments = 2;
std::size_t ArgumentCount(MatrixFunction function);

/// `function` of `arguments`, up to as many as it takes. Fails where the operation does, and where
/// an argument is missing or a number.
CalcResult<MatrixOrNumber> ApplyMatrixFunction(MatrixFunction function,
                                               std::span<const MatrixOperand> arguments);

}  // namespace kav
