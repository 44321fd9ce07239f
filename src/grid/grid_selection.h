// What is selected in a grid, and where its user leads from there.
#pragma once

#include "grid/grid_model.h"

namespace kav {

/// The cells from the focus cell to the corner opposite to it. Both are none if nothing is
/// selected.
struct GridSelection {
  GridCell focus;
  GridCell end;

  GridRange Range() const;
  bool operator==(const GridSelection&) const = default;
};

/// Whether the focus cell moves, or stays and what is between is selected.
enum class GridReach { Focus, Selection };

/// What of the grid a cell stands for when it is selected.
enum class GridLines { Cells, Columns, Rows };

/// How far a key leads. A move of kMostRows leads to the border from wherever a cell is.
struct GridMove {
  int rows = 0;
  int columns = 0;
  int pages = 0;
};

// Cells that are fixed or not there stand for the nearest one that is not fixed. Where all are
// fixed, nothing is selected and every way leads to none.

GridSelection SelectionOf(const GridModel& grid, GridCell focus, GridCell end);
GridSelection SelectionOfAll(const GridModel& grid);
/// What is selected after `old` if its user takes `cell`. Without a focus cell both reaches begin
/// at `cell`.
GridSelection SelectionTo(const GridModel& grid, const GridSelection& old, GridCell cell,
                          GridReach reach, GridLines lines = GridLines::Cells);

/// The cell to which a key leads, perhaps beyond the border; the first cell from none. A page has
/// `pageRows` rows.
GridCell Moved(const GridModel& grid, GridCell from, GridMove by, int pageRows);
/// The next cell row by row or, with step -1, the one before; none from the last or first cell.
/// From none, the first or last cell.
GridCell NextByTab(const GridModel& grid, GridCell from, int step);

}  // namespace kav
