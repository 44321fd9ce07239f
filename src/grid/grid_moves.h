// Where keys lead from a cell.
#pragma once

#include <optional>

#include "grid/grid_model.h"

namespace kav {

enum class GridMove {
  Left,
  Right,
  Up,
  Down,
  RowStart,
  RowEnd,
  ColumnStart,
  ColumnEnd,
  Start,
  End,
  PageUp,
  PageDown,
};

// Headers are passed by. From a cell that is fixed or not there, moves begin at the nearest one
// that can have the focus.

/// The cell that `move` leads to from `from`, at most the one at the border. A page is `page` rows,
/// none where that is below 0. From none, the first cell; none where every cell is fixed.
GridCell Moved(const GridModel& grid, GridCell from, GridMove move, int page);

// Row by row; nullopt at the last and the first cell. From none, the first and the last cell,
// nullopt where every cell is fixed.
std::optional<GridCell> NextCell(const GridModel& grid, GridCell from);
std::optional<GridCell> PreviousCell(const GridModel& grid, GridCell from);

}  // namespace kav
