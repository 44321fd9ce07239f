// The matrix operations a second time, for tests to compare with: on texts alone, each number
// printed into its cell and read back by the C library.
#pragma once

#include <string>
#include <vector>

#include "matrix/matrix_value.h"

namespace kav::test {

/// The cells of a matrix by rows, all of the same length; at least one cell.
using PlainRows = std::vector<std::vector<std::string>>;

/// `rows` as the calculator holds them, and back.
MatrixValue MatrixOfRows(const PlainRows& rows);
PlainRows RowsOf(const MatrixValue& matrix);

/// The text of a cell that takes `value`, and the number that it reads back as.
std::string PlainCell(double value);
double PlainNumber(const std::string& cell);

// Sizes must fit. Each answers with the rows of its result, or with none if it fails.
PlainRows PlainSum(const PlainRows& a, const PlainRows& b);
PlainRows PlainDifference(const PlainRows& a, const PlainRows& b);
PlainRows PlainProduct(const PlainRows& a, const PlainRows& b);
PlainRows PlainPower(const PlainRows& a, int exponent);
PlainRows PlainInverse(const PlainRows& a);
PlainRows PlainTranspose(const PlainRows& a);
PlainRows PlainLinearEquation(const PlainRows& a, const PlainRows& b);
PlainRows PlainDeterminant(const PlainRows& a);
PlainRows PlainTriangular(const PlainRows& a);

}  // namespace kav::test
