// Calculates the tokens of a matrix expression.
#pragma once

#include "engine/calc_error.h"
#include "matrix/intermediate_matrices.h"
#include "matrix/matrix_token.h"
#include "matrix/matrix_value.h"

namespace kav {

/// The matrix that `tokens`, whose order CheckMatrixOrder accepts, reduce to: parentheses from the
/// inside out, in each of them signs, then powers, products and sums from the left. A result that a
/// later operation reads goes through a file, named after the place of the token that it replaces;
/// the last operation's result needs none. All files are removed in the end. Fails with the first
/// operation that cannot be done, with NoRoomForMatrix if a file cannot be written or read, and
/// with CalcErrorCode::Expression if anything but one matrix is left. The place of a failure, if it
/// has one, counts `tokens`, not characters.
CalcResult<MatrixValue> ReduceMatrixTokens(MatrixTokens tokens, const Matrices& matrices,
                                           IntermediateMatrices& files);

}  // namespace kav
