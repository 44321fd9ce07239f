// What the operators of matrix expressions do to their operands: numbers and matrices.
#pragma once

#include <variant>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"
#include "matrix/matrix_value.h"

namespace kav {

/// A number, a matrix that must outlive the operand, or a matrix of its own.
using MatrixOperand = std::variant<double, const MatrixValue*, MatrixValue>;

/// The matrix of `operand`, as long as that lives; null for a number.
const MatrixValue* MatrixIn(const MatrixOperand& operand);

using MatrixOrNumber = std::variant<double, MatrixValue>;

/// `left` and `right` combined by `symbol`; a matrix and a number cell by cell, except for powers.
/// Between two matrices a cell out of range takes the message "Out of range(overflow or
/// underflow)", which reads as 0. Fails with
/// - CalcErrorCode::OutOfRange if an operand or the result is a number that is not finite, or if a
///   cell of a matrix and a number is out of range,
/// - CalcErrorCode::Expression for a matrix as exponent,
/// - MatrixSizeMismatch for matrices of different sizes in a sum or difference,
/// and as MultiplyMatrices and RaiseMatrix do.
CalcResult<MatrixOrNumber> CombineOperands(const MatrixOperand& left, MatrixOperator symbol,
                                           const MatrixOperand& right);

/// `operand` with the other sign; a matrix cell by cell.
CalcResult<MatrixOrNumber> Negate(const MatrixOperand& operand);

}  // namespace kav
