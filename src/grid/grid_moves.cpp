#include "grid/grid_moves.h"

#include <algorithm>

namespace kav {
namespace {

struct Distance {
  int rows;
  int columns;
};

/// Beyond the border, wherever a cell is.
constexpr int kFar = GridModel::kMostRows;

Distance DistanceOf(GridMove move, int page) {
  switch (move) {
    case GridMove::Left:
      return {0, -1};
    case GridMove::Right:
      return {0, 1};
    case GridMove::Up:
      return {-1, 0};
    case GridMove::Down:
      return {1, 0};
    case GridMove::RowStart:
      return {0, -kFar};
    case GridMove::RowEnd:
      return {0, kFar};
    case GridMove::ColumnStart:
      return {-kFar, 0};
    case GridMove::ColumnEnd:
      return {kFar, 0};
    case GridMove::Start:
      return {-kFar, -kFar};
    case GridMove::End:
      return {kFar, kFar};
    case GridMove::PageUp:
      return {-page, 0};
    case GridMove::PageDown:
      return {page, 0};
  }
  return {0, 0};
}

}  // namespace

GridCell Moved(const GridModel& grid, GridCell from, GridMove move, int page) {
  const GridCell at = grid.Nearest(from);
  if (from.IsNone()) return at;
  const Distance distance = DistanceOf(move, std::clamp(page, 0, kFar));
  return grid.Nearest({at.row + distance.rows, at.column + distance.columns});
}

std::optional<GridCell> NextCell(const GridModel& grid, GridCell from) {
  const GridCell last = grid.Nearest({kFar, kFar});
  const GridCell at = grid.Nearest(from);
  if (at.IsNone()) return std::nullopt;
  if (from.IsNone()) return grid.Nearest({0, 0});
  if (at == last) return std::nullopt;
  if (at.column < last.column) return GridCell{at.row, at.column + 1};
  return GridCell{at.row + 1, grid.FixedColumnCount()};
}

std::optional<GridCell> PreviousCell(const GridModel& grid, GridCell from) {
  const GridCell first = grid.Nearest({0, 0});
  const GridCell at = grid.Nearest(from);
  if (at.IsNone()) return std::nullopt;
  if (from.IsNone()) return grid.Nearest({kFar, kFar});
  if (at == first) return std::nullopt;
  if (at.column > first.column) return GridCell{at.row, at.column - 1};
  return GridCell{at.row - 1, grid.ColumnCount() - 1};
}

}  // namespace kav
