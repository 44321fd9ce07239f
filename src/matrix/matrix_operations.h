// The operations on matrices. Each value that an operation computes, those in the middle of an
// elimination included, is rounded to the text that a cell would show it as: twelve digits in
// exponent form, else its natural decimals. What follows reads that text.
#pragma once

#include "engine/calc_error.h"
#include "matrix/matrix_value.h"

namespace kav {

// Element by element; sums of products over the shared index in its order. A value out of range
// becomes the message "Out of range(overflow or underflow)" as its cell's text, which reads as 0.
// Fail with the operation's "Matrix Size Mismatch".
CalcResult<MatrixValue> AddMatrices(const MatrixValue& a, const MatrixValue& b);
CalcResult<MatrixValue> SubtractMatrices(const MatrixValue& a, const MatrixValue& b);
CalcResult<MatrixValue> MultiplyMatrices(const MatrixValue& a, const MatrixValue& b);

// A number and every cell. Fail with CalcErrorCode::OutOfRange where a cell is out of range.
CalcResult<MatrixValue> AddNumber(const MatrixValue& a, double number);
CalcResult<MatrixValue> SubtractNumber(const MatrixValue& a, double number);
CalcResult<MatrixValue> SubtractFromNumber(double number, const MatrixValue& a);
CalcResult<MatrixValue> MultiplyByNumber(const MatrixValue& a, double number);

/// `a` times itself, `exponent` - 1 times in turn; its identity for 0, its very texts for 1. The
/// time does not grow without bound with the exponent: once the powers come back, the rest is
/// skipped. Fails for an exponent that is no integer from 0 on (checked first), for a matrix that
/// is not square, and with CalcErrorCode::CalculationLimit after four million cells of powers that
/// have not come back.
CalcResult<MatrixValue> RaiseMatrix(const MatrixValue& a, double exponent);

/// By Gauss-Jordan elimination without exchanging rows: also a matrix that has an inverse fails
/// where a pivot comes out as exactly 0.
CalcResult<MatrixValue> InvertMatrix(const MatrixValue& a);

MatrixValue TransposeMatrix(const MatrixValue& a);

/// The x of a*x = b, `b` being one column. Rows are first ranked by their signed values, and the
/// unknowns are written back through the exchanges; a pivot of 0 ends the elimination where it is.
CalcResult<MatrixValue> SolveLinearEquation(const MatrixValue& a, const MatrixValue& b);

/// As a matrix of one cell. Rows are exchanged only where a pivot is exactly 0.
CalcResult<MatrixValue> MatrixDeterminant(const MatrixValue& a);

/// The upper triangular form, without exchanges. Fails where `a` has a 0 on its diagonal.
CalcResult<MatrixValue> TriangularMatrix(const MatrixValue& a);

}  // namespace kav
