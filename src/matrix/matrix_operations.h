// The operations on whole matrices. Each value that an operation computes, those in the middle of
// an elimination included, is rounded to the text that a cell would show it as: natural decimals,
// or twelve digits in exponent form. What follows reads that text. A value out of range becomes the
// message "Out of range(overflow or underflow)" as its cell's text, which reads as 0.
#pragma once

#include <vector>

#include "engine/calc_error.h"
#include "matrix/matrix_value.h"

namespace kav {

// An operation fails with its MatrixSizeMismatch if the sizes do not fit.

/// `a` must have as many columns as `b` rows. Each cell is a sum of products over the shared index
/// in its order, rounded once.
CalcResult<MatrixValue> MultiplyMatrices(const MatrixValue& a, const MatrixValue& b);

/// The square matrix `a` times itself, `exponent` - 1 times in turn; the identity for 0, the very
/// texts of `a` for 1. The time does not grow without bound with the exponent: once the powers come
/// back, the rest is skipped. Fails, in this order, with MatrixExponentIsNotNatural, for the size,
/// and with CalcErrorCode::CalculationLimit after four million cells of powers that have not come
/// back.
CalcResult<MatrixValue> RaiseMatrix(const MatrixValue& a, double exponent);

/// The inverse of the square matrix `a`, by Gauss-Jordan elimination without exchanging rows. Fails
/// with MatrixIsNotInvertible if a pivot is exactly 0, even if there is an inverse.
CalcResult<MatrixValue> InvertMatrix(const MatrixValue& a);

MatrixValue TransposeMatrix(const MatrixValue& a);

/// The x of a*x = b: `a` is square, `b` one column of as many rows. Gauss-Jordan elimination after
/// the rows were ranked by their signed values; the unknowns are written back through these
/// exchanges. A pivot of exactly 0 ends the elimination silently: the right side as it is by then
/// is the answer.
CalcResult<MatrixValue> SolveLinearEquation(const MatrixValue& a, const MatrixValue& b);

/// Which unknown, counted from 0, stands in each row of that answer. Empty if each stands in its
/// own row, if `a` is no square, or if a pivot of 0 ends the elimination.
std::vector<int> UnknownsInRows(const MatrixValue& a);

/// The determinant of the square matrix `a`, as a matrix of one cell. Rows are exchanged only if a
/// pivot is exactly 0.
CalcResult<MatrixValue> MatrixDeterminant(const MatrixValue& a);

/// The upper triangular form of the square matrix `a`, without exchanges. Fails with
/// MatrixHasZeroInDiagonal if `a` has a 0 there.
CalcResult<MatrixValue> TriangularMatrix(const MatrixValue& a);

}  // namespace kav
