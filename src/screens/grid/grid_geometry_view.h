// Where the cells of a grid are in its viewport.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include "grid/grid_model.h"

namespace kav {

/// Places in pixels, of the grid as it is: fixed cells stay where they are, the others are moved by
/// what is scrolled, and neighbours meet whatever the scale. The grid must outlive it.
class GridGeometry {
 public:
  GridGeometry(const GridModel& grid, double scale, QPoint scrolled)
      : grid_(grid), scale_(scale), scrolled_(scrolled) {}

  // Of the grid that is not scrolled; the count of columns or rows gives the end of the last.
  int Left(int column) const;
  int Top(int row) const;

  QSize FullSize() const { return {Left(grid_.ColumnCount()), Top(grid_.RowCount())}; }
  QSize FixedSize() const { return {Left(grid_.FixedColumnCount()), Top(grid_.FixedRowCount())}; }

  QRect CellArea(GridCell cell) const;

  // The column at x and the row at y of the viewport; -1 beside them.
  int ColumnAt(int x) const;
  int RowAt(int y) const;
  /// The first row that is not scrolled away entirely; the row count where there is none.
  int FirstRow() const;

  /// The column whose right edge shows, not fixed, at most `reach` pixels from x; -1 where there is
  /// none.
  int EdgeAt(int x, int reach) const;

 private:
  const GridModel& grid_;
  double scale_;
  QPoint scrolled_;
};

}  // namespace kav
