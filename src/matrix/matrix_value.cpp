#include "matrix/matrix_value.h"

#include <algorithm>
#include <utility>

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

int ValidSize(int size) {
  return std::clamp(size, kMatrixSizeRange.least, kMatrixSizeRange.most);
}

}  // namespace

MatrixValue MatrixOfSize(int rows, int columns) {
  MatrixValue matrix;
  matrix.rows = rows;
  matrix.columns = columns;
  return matrix;
}

MatrixValue Resized(const MatrixValue& matrix, int rows, int columns) {
  // A new matrix, so that what is cut off does not come back when the matrix grows again.
  MatrixValue resized = MatrixOfSize(ValidSize(rows), ValidSize(columns));
  for (int row = 0; row < std::min(resized.rows, matrix.rows); ++row) {
    for (int column = 0; column < std::min(resized.columns, matrix.columns); ++column) {
      resized.At(row, column) = matrix.At(row, column);
    }
  }
  return resized;
}

CellRange WithinMatrix(const CellRange& range, const MatrixValue& matrix) {
  const CellRange within{std::max(range.top, 0), std::max(range.left, 0),
                         std::min(range.bottom, matrix.rows - 1),
                         std::min(range.right, matrix.columns - 1)};
  if (within.top > within.bottom || within.left > within.right) return {0, 0, -1, -1};
  return within;
}

MatrixValue Cleared(MatrixValue matrix, const CellRange& range) {
  return Filled(std::move(matrix), range, {});
}

MatrixValue Filled(MatrixValue matrix, const CellRange& range, const std::u16string& text) {
  const CellRange within = WithinMatrix(range, matrix);
  for (int row = within.top; row <= within.bottom; ++row) {
    for (int column = within.left; column <= within.right; ++column) {
      matrix.At(row, column) = text;
    }
  }
  return matrix;
}

bool SameMatrix(const MatrixValue& a, const MatrixValue& b) {
  if (a.rows != b.rows || a.columns != b.columns) return false;
  return !AnyCell(a, [&](int row, int column) { return a.At(row, column) != b.At(row, column); });
}

bool HasText(const MatrixValue& matrix) {
  return AnyCell(matrix, [&](int row, int column) { return !matrix.At(row, column).empty(); });
}

std::optional<CellPlace> FirstEmptyCell(const MatrixValue& matrix) {
  for (int row = 0; row < matrix.rows; ++row) {
    for (int column = 0; column < matrix.columns; ++column) {
      if (matrix.At(row, column).empty()) return CellPlace{row, column};
    }
  }
  return std::nullopt;
}

}  // namespace kav
