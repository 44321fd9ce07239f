#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <vector>

#include "matrix/matrix_error.h"
#include "matrix/matrix_operations.h"
#include "matrix/matrix_texts.h"
#include "matrix/working_matrix.h"

namespace kav {
namespace {

bool IsSquare(const MatrixValue& a) {
  return a.rows == a.columns;
}

/// Multiplies the cells of `row` from `first` on.
void ScaleRow(WorkingMatrix& m, int row, int first, double factor) {
  for (int j = first; j < m.Columns(); ++j) m.Store(row, j, m.At(row, j) * factor);
}

/// Takes `factor` times row `pivot` from the cells of `row` from `first` on.
void ReduceRow(WorkingMatrix& m, int row, int pivot, int first, double factor) {
  for (int j = first; j < m.Columns(); ++j) {
    m.Store(row, j, m.At(row, j) - m.At(pivot, j) * factor);
  }
}

/// Gauss-Jordan elimination of `a`, done to `right` as well. Exchanges no rows: a pivot of exactly
/// 0 ends it. Whether it came to its end.
bool Eliminate(WorkingMatrix& a, WorkingMatrix& right) {
  for (int k = 0; k < a.Rows(); ++k) {
    const double pivot = a.At(k, k);
    if (pivot == 0) return false;
    ScaleRow(a, k, k, 1 / pivot);
    ScaleRow(right, k, 0, 1 / pivot);
    for (int i = 0; i < a.Rows(); ++i) {
      if (i == k) continue;
      const double factor = a.At(i, k);
      ReduceRow(a, i, k, k, factor);
      ReduceRow(right, i, k, 0, factor);
    }
  }
  return true;
}

/// The original row that stands in each place after exchanges.
using RowTable = std::array<int, kLargestMatrix>;

/// Column by column, exchanges the row of the pivot with the row that has the largest value in that
/// column, the first of them. Values and not magnitudes are compared.
RowTable RankRows(WorkingMatrix& a, WorkingMatrix& right) {
  RowTable table;
  std::iota(table.begin(), table.end(), 0);
  for (int k = 0; k < a.Rows(); ++k) {
    int largest = k;
    for (int i = k + 1; i < a.Rows(); ++i) {
      if (a.At(i, k) > a.At(largest, k)) largest = i;
    }
    a.ExchangeRows(k, largest);
    right.ExchangeRows(k, largest);
    std::swap(table[static_cast<std::size_t>(k)], table[static_cast<std::size_t>(largest)]);
  }
  return table;
}

/// The first row from `k` on that has a value other than 0 in column `k`; the number of rows if
/// there is none.
int FindPivot(const WorkingMatrix& m, int k) {
  int row = k;
  while (row < m.Rows() && m.At(row, k) == 0) ++row;
  return row;
}

/// Makes the cell of `row` in column `pivot` 0 by adding a multiple of row `pivot`.
void ClearColumn(WorkingMatrix& m, int row, int pivot) {
  const double factor = -m.At(row, pivot) / m.At(pivot, pivot);
  m.Store(row, pivot, 0);
  for (int j = pivot + 1; j < m.Columns(); ++j) {
    m.Store(row, j, m.At(row, j) + m.At(pivot, j) * factor);
  }
}

double DeterminantOf(WorkingMatrix m) {
  double product = 1;
  for (int k = 0; k < m.Rows(); ++k) {
    const int pivot = FindPivot(m, k);
    if (pivot == m.Rows()) return 0;
    if (pivot != k) {
      m.ExchangeRows(k, pivot);
      product = -product;
    }
    for (int i = k + 1; i < m.Rows(); ++i) ClearColumn(m, i, k);
    product *= m.At(k, k);
  }
  return product;
}

bool HasZeroInDiagonal(const WorkingMatrix& m) {
  for (int i = 0; i < m.Rows(); ++i) {
    if (m.At(i, i) == 0) return true;
  }
  return false;
}

}  // namespace

CalcResult<MatrixValue> InvertMatrix(const MatrixValue& a) {
  if (!IsSquare(a)) return MatrixSizeMismatch(kMatrixInverse);
  WorkingMatrix rest(a);
  WorkingMatrix inverse = WorkingMatrix::Identity(a.rows);
  if (!Eliminate(rest, inverse)) return MatrixIsNotInvertible();
  return inverse.Texts();
}

CalcResult<MatrixValue> SolveLinearEquation(const MatrixValue& a, const MatrixValue& b) {
  if (!IsSquare(a) || b.rows != a.rows || b.columns != 1) {
    return MatrixSizeMismatch(kMatrixLinearEquation);
  }
  WorkingMatrix rest(a);
  WorkingMatrix right(b);
  const RowTable table = RankRows(rest, right);
  // If a pivot is 0, what has been reduced by then is the answer.
  Eliminate(rest, right);
  MatrixValue solution = MatrixOfSize(b.rows, 1);
  for (int i = 0; i < b.rows; ++i) {
    solution.At(table[static_cast<std::size_t>(i)], 0) = right.TextAt(i, 0);
  }
  return solution;
}

std::vector<int> UnknownsInRows(const MatrixValue& a) {
  if (!IsSquare(a)) return {};
  WorkingMatrix rest(a);
  WorkingMatrix right(a.rows, 1);
  const RowTable table = RankRows(rest, right);
  if (!Eliminate(rest, right)) return {};
  std::vector<int> unknowns(static_cast<std::size_t>(a.rows));
  for (int i = 0; i < a.rows; ++i) {
    unknowns[static_cast<std::size_t>(table[static_cast<std::size_t>(i)])] = i;
  }
  const bool areInOrder = std::is_sorted(unknowns.begin(), unknowns.end());
  return areInOrder ? std::vector<int>() : unknowns;
}

CalcResult<MatrixValue> MatrixDeterminant(const MatrixValue& a) {
  if (!IsSquare(a)) return MatrixSizeMismatch(kMatrixDeterminant);
  MatrixValue determinant = MatrixOfSize(1, 1);
  determinant.At(0, 0) = CellText(DeterminantOf(WorkingMatrix(a)));
  return determinant;
}

CalcResult<MatrixValue> TriangularMatrix(const MatrixValue& a) {
  if (!IsSquare(a)) return MatrixSizeMismatch(kMatrixTriangular);
  WorkingMatrix m(a);
  if (HasZeroInDiagonal(m)) return MatrixHasZeroInDiagonal();
  for (int k = 0; k + 1 < m.Rows(); ++k) {
    for (int i = k + 1; i < m.Rows(); ++i) {
      if (m.At(i, k) != 0) ClearColumn(m, i, k);
    }
  }
  return m.Texts();
}

}  // namespace kav
