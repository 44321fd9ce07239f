// A rectangle of cells.
#pragma once

namespace kav {

/// Cells of a matrix, counted from 0, both corners included.
struct CellRange {
  int top = 0;
  int left = 0;
  int bottom = 0;
  int right = 0;

  bool IsOneCell() const { return top == bottom && left == right; }
};

}  // namespace kav
