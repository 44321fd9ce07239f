// A matrix in the middle of a calculation: numbers, each of them what its cell's text reads as.
#pragma once

#include <array>

#include "matrix/cell_number.h"
#include "matrix/matrix_value.h"

namespace kav {

/// At most kLargestMatrix rows and columns; rows and columns count from 0. The texts of cells are
/// made when the calculation is over.
class WorkingMatrix {
 public:
  /// Zeros.
  WorkingMatrix(int rows, int columns) : rows_(rows), columns_(columns) {}
  /// The numbers of `texts`, which must outlive this matrix: a cell that nothing is stored in keeps
  /// its very text.
  explicit WorkingMatrix(const MatrixValue& texts);
  /// 1 on the diagonal, 0 elsewhere.
  static WorkingMatrix Identity(int size);

  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  double At(int row, int column) const { return CellAt(row, column).number; }
  bool IsSame(const WorkingMatrix& other) const;

  /// Puts `value` into a cell, which rounds it.
  void Store(int row, int column, double value) {
    CellAt(row, column) = {AsCell(value), value, nullptr};
  }
  void ExchangeRows(int a, int b) {
    std::swap(cells_[static_cast<std::size_t>(a)], cells_[static_cast<std::size_t>(b)]);
  }

  MatrixValue Texts() const;
  /// The text that a cell has by now.
  std::u16string TextAt(int row, int column) const;

 private:
  struct Cell {
    double number = 0;
    double stored = 0;                         ///< what was put in, before rounding
    const std::u16string* original = nullptr;  ///< the text, where nothing was put in
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
