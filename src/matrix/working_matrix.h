// A matrix in the middle of a calculation.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "matrix/cell_number.h"
#include "matrix/matrix_value.h"

namespace kav {

/// Holds numbers, each of them what its cell's text would read as; the texts are made only when the
/// calculation is over. At most kLargestMatrix rows and columns, counted from 0.
class WorkingMatrix {
 public:
  /// All cells are 0.
  WorkingMatrix(int rows, int columns) : rows_(rows), columns_(columns) {}
  /// The numbers of `texts`, which must outlive this matrix: a cell keeps its very text until a
  /// number is stored in it.
  explicit WorkingMatrix(const MatrixValue& texts);
  /// 1 on the diagonal, 0 elsewhere.
  static WorkingMatrix Identity(int size);

  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  double At(int row, int column) const { return CellAt(row, column).number; }
  /// Whether both have the same size and numbers.
  bool IsSame(const WorkingMatrix& other) const;

  /// Rounds `value` to what its text reads as.
  void Store(int row, int column, double value) {
    CellAt(row, column) = {AsCell(value), value, nullptr};
  }
  void ExchangeRows(int a, int b) {
    std::swap(cells_[static_cast<std::size_t>(a)], cells_[static_cast<std::size_t>(b)]);
  }

  MatrixValue Texts() const;
  /// The text of a cell as it is now.
  std::u16string TextAt(int row, int column) const;

 private:
  struct Cell {
    double number = 0;
    double stored = 0;                         ///< the value stored, before rounding
    const std::u16string* original = nullptr;  ///< the text, if nothing was stored
  };

  const Cell& CellAt(int row, int column) const {
    return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }
  Cell& CellAt(int row, int column) {
    return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }

  int rows_;
  int columns_;
  std::array<std::array<Cell, kLargestMatrix>, kLargestMatrix> cells_{};
};

}  // namespace kav
