#include "matrix/matrix_operations.h"

#include <cmath>

#include "matrix/matrix_products.h"
#include "matrix/matrix_texts.h"
#include "matrix/working_matrix.h"

namespace kav {
namespace {

CalcError SizeMismatch(std::string_view operation) {
  return MakeError(CalcErrorCode::Free, MatrixSizeMismatch(operation));
}

/// The matrix of `rows` and `columns` with `value(row, column)` in each cell.
template <class Value>
MatrixValue MakeMatrix(int rows, int columns, Value value) {
  MatrixValue made = MatrixOfSize(rows, columns);
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      made.At(row, column) = CellText(value(row, column));
    }
  }
  return made;
}

/// `combine` of each two cells in the same place.
template <class Combine>
CalcResult<MatrixValue> CellByCell(const MatrixValue& a, const MatrixValue& b,
                                   std::string_view operation, Combine combine) {
  if (a.rows != b.rows || a.columns != b.columns) return SizeMismatch(operation);
  return MakeMatrix(a.rows, a.columns, [&](int row, int column) {
    return combine(ReadCell(a.At(row, column)), ReadCell(b.At(row, column)));
  });
}

/// `change` of each cell. Unlike between two matrices, a cell out of range is a failure.
template <class Change>
CalcResult<MatrixValue> EachCell(const MatrixValue& a, Change change) {
  bool isInRange = true;
  MatrixValue changed = MakeMatrix(a.rows, a.columns, [&](int row, int column) {
    const double value = change(ReadCell(a.At(row, column)));
    isInRange = isInRange && std::isfinite(value);
    return value;
  });
  if (!isInRange) return MakeError(CalcErrorCode::OutOfRange);
  return changed;
}

}  // namespace

CalcResult<MatrixValue> AddMatrices(const MatrixValue& a, const MatrixValue& b) {
  return CellByCell(a, b, kMatrixAddition, [](double x, double y) { return x + y; });
}

CalcResult<MatrixValue> SubtractMatrices(const MatrixValue& a, const MatrixValue& b) {
  return CellByCell(a, b, kMatrixSubtraction, [](double x, double y) { return x - y; });
}

CalcResult<MatrixValue> MultiplyMatrices(const MatrixValue& a, const MatrixValue& b) {
  if (a.columns != b.rows) return SizeMismatch(kMatrixMultiplication);
  return ProductOf(WorkingMatrix(a), WorkingMatrix(b)).Texts();
}

CalcResult<MatrixValue> AddNumber(const MatrixValue& a, double number) {
  return EachCell(a, [number](double cell) { return cell + number; });
}

CalcResult<MatrixValue> SubtractNumber(const MatrixValue& a, double number) {
  return EachCell(a, [number](double cell) { return cell - number; });
}

CalcResult<MatrixValue> SubtractFromNumber(double number, const MatrixValue& a) {
  return EachCell(a, [number](double cell) { return number - cell; });
}

CalcResult<MatrixValue> MultiplyByNumber(const MatrixValue& a, double number) {
  return EachCell(a, [number](double cell) { return cell * number; });
}

MatrixValue TransposeMatrix(const MatrixValue& a) {
  MatrixValue transposed = MatrixOfSize(a.columns, a.rows);
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column) {
      transposed.At(column, row) = a.At(row, column);
    }
  }
  return transposed;
}

}  // namespace kav
