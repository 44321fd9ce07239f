#include "screens/grid/grid_geometry_view.h"

#include <cstdlib>

namespace kav {

int GridGeometry::Left(int column) const {
  int sum = 0;
  for (int i = 0; i < column; ++i) sum += grid_.GetColumnWidth(i);
  return qRound(sum * scale_);
}

int GridGeometry::Top(int row) const {
  int sum = 0;
  for (int i = 0; i < row; ++i) sum += grid_.GetRowHeight(i);
  return qRound(sum * scale_);
}

QRect GridGeometry::CellArea(GridCell cell) const {
  if (cell.row < 0 || cell.row >= grid_.RowCount()) return {};
  if (cell.column < 0 || cell.column >= grid_.ColumnCount()) return {};
  const int left = Left(cell.column);
  const int top = Top(cell.row);
  const QRect area(left, top, Left(cell.column + 1) - left, Top(cell.row + 1) - top);
  return area.translated(cell.column < grid_.FixedColumnCount() ? 0 : -scrolled_.x(),
                         cell.row < grid_.FixedRowCount() ? 0 : -scrolled_.y());
}

int GridGeometry::ColumnAt(int x) const {
  if (x < 0) return -1;
  const int inGrid = x < FixedSize().width() ? x : x + scrolled_.x();
  int sum = 0;
  for (int column = 0; column < grid_.ColumnCount(); ++column) {
    sum += grid_.GetColumnWidth(column);
    if (inGrid < qRound(sum * scale_)) return column;
  }
  return -1;
}

int GridGeometry::RowAt(int y) const {
  if (y < 0) return -1;
  const int inGrid = y < FixedSize().height() ? y : y + scrolled_.y();
  int sum = 0;
  for (int row = 0; row < grid_.RowCount(); ++row) {
    sum += grid_.GetRowHeight(row);
    if (inGrid < qRound(sum * scale_)) return row;
  }
  return -1;
}

int GridGeometry::FirstRow() const {
  const int row = RowAt(FixedSize().height());
  return row < 0 ? grid_.RowCount() : row;
}

int GridGeometry::EdgeAt(int x, int reach) const {
  const int fixed = FixedSize().width();
  if (x < fixed) return -1;
  // From the right: of columns that are narrower than the reach, the last can be pulled out again.
  for (int column = grid_.ColumnCount() - 1; column >= grid_.FixedColumnCount(); --column) {
    const int edge = Left(column + 1) - scrolled_.x();
    // What is scrolled away under the headers is not there to be pulled.
    if (edge <= fixed) return -1;
    if (std::abs(edge - x) <= reach) return column;
  }
  return -1;
}

}  // namespace kav
