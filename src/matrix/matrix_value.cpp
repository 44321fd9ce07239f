#include "matrix/matrix_value.h"

namespace kav {
namespace {

/// Whether `test(row, column)` holds for a cell of `matrix`.
template <class Test>
bool AnyCell(const MatrixValue& matrix, Test test) {
  for (int row = 0; row < matrix.rows; ++row) {
    for (int column = 0; column < matrix.columns; ++column) {
      if (test(row, column)) return true;
    }
  }
  return false;
}

}  // namespace

MatrixValue MatrixOfSize(int rows, int columns) {
  MatrixValue matrix;
  matrix.rows = rows;
  matrix.columns = columns;
  return matrix;
}

bool SameMatrix(const MatrixValue& a, const MatrixValue& b) {
  if (a.rows != b.rows || a.columns != b.columns) return false;
  return !AnyCell(a, [&](int row, int column) { return a.At(row, column) != b.At(row, column); });
}

bool HasEmptyCell(const MatrixValue& matrix) {
  return AnyCell(matrix, [&](int row, int column) { return matrix.At(row, column).empty(); });
}

}  // namespace kav
