#include "grid/grid_selection.h"

#include <algorithm>

namespace kav {

GridRange GridSelection::Range() const {
  return {std::min(focus.row, end.row), std::min(focus.column, end.column),
          std::max(focus.row, end.row), std::max(focus.column, end.column)};
}

GridSelection SelectionOf(const GridModel& grid, GridCell focus, GridCell end) {
  return {grid.Nearest(focus), grid.Nearest(end)};
}

GridSelection SelectionOfAll(const GridModel& grid) {
  return SelectionOf(grid, {0, 0}, {grid.RowCount(), grid.ColumnCount()});
}

GridSelection SelectionTo(const GridModel& grid, const GridSelection& old, GridCell cell,
                          GridReach reach, GridLines lines) {
  const bool isLonger = reach == GridReach::Selection && !old.focus.IsNone();
  GridCell from = isLonger ? old.focus : cell;
  if (lines == GridLines::Columns) {
    from.row = 0;
    cell.row = grid.RowCount();
  }
  if (lines == GridLines::Rows) {
    from.column = 0;
    cell.column = grid.ColumnCount();
  }
  return SelectionOf(grid, from, cell);
}

GridCell Moved(const GridModel& grid, GridCell from, GridMove by, int pageRows) {
  const GridCell cell = grid.Nearest(from);
  if (from.IsNone() || cell.IsNone()) return cell;
  return {cell.row + by.rows + by.pages * pageRows, cell.column + by.columns};
}

GridCell NextByTab(const GridModel& grid, GridCell from, int step) {
  const GridRange all = SelectionOfAll(grid).Range();
  if (all.IsNone()) return {};
  if (from.IsNone())
    return step < 0 ? GridCell{all.bottom, all.right} : GridCell{all.top, all.left};
  const GridCell cell = grid.Nearest(from);
  const int columns = all.right - all.left + 1;
  const int place = (cell.row - all.top) * columns + cell.column - all.left + step;
  if (place < 0 || place >= columns * (all.bottom - all.top + 1)) return {};
  return {all.top + place / columns, all.left + place % columns};
}

}  // namespace kav
