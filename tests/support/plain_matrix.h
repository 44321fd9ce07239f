// The matrix operations a second time, on texts alone: every number is printed into its cell and
// read from it again, by the C library. What tests hold the operations against.
#pragma once

#include <string>
#include <vector>

#include "matrix/matrix_value.h"

namespace kav::test {

/// The cells of a matrix by rows, each row as long as the others; at least one cell.
using PlainRows = std::vector<std::vector<std::string>>;

/// `rows` as the calculator holds them, and back.
MatrixValue MatrixOf(const PlainRows& rows);
PlainRows RowsOf(const MatrixValue& matrix);

/// The text of a cell that takes `value`, and the number that it reads back as.
std::string PlainCell(double value);
double PlainNumber(const std::string& cell);

// Sizes must fit; every operation answers with rows, or with none where it has no result.
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
