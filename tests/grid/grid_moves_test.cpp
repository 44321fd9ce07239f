#include "grid/grid_moves.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <optional>
#include <vector>

#include "grid/plain_grid.h"
#include "support/random.h"

namespace kav {
namespace {

using test::PlainOf;
using test::Random;
using test::Shape;

constexpr GridCell kNone{-1, -1};

constexpr std::array kAllMoves{
    GridMove::Left,        GridMove::Right,     GridMove::Up,     GridMove::Down,
    GridMove::RowStart,    GridMove::RowEnd,    GridMove::Start,  GridMove::End,
    GridMove::ColumnStart, GridMove::ColumnEnd, GridMove::PageUp, GridMove::PageDown,
};

/// Rows 1 to 7 and columns 2 to 4 are not fixed.
class GridMoves : public testing::Test {
 protected:
  void SetUp() override { Shape(grid_, 8, 5, 1, 2); }

  GridModel grid_;
};

TEST_F(GridMoves, EachLeadsItsWayAndNoFurtherThanTheBorder) {
  struct Row {
    GridMove move;
    GridCell inside;   // from row 4, column 3
    GridCell atFirst;  // from the cell at the top left
    GridCell atLast;   // from the cell at the bottom right
  };
  for (const Row& row : {
           Row{GridMove::Left, {4, 2}, {1, 2}, {7, 3}},
           Row{GridMove::Right, {4, 4}, {1, 3}, {7, 4}},
           Row{GridMove::Up, {3, 3}, {1, 2}, {6, 4}},
           Row{GridMove::Down, {5, 3}, {2, 2}, {7, 4}},
           Row{GridMove::RowStart, {4, 2}, {1, 2}, {7, 2}},
           Row{GridMove::RowEnd, {4, 4}, {1, 4}, {7, 4}},
           Row{GridMove::ColumnStart, {1, 3}, {1, 2}, {1, 4}},
           Row{GridMove::ColumnEnd, {7, 3}, {7, 2}, {7, 4}},
           Row{GridMove::Start, {1, 2}, {1, 2}, {1, 2}},
           Row{GridMove::End, {7, 4}, {7, 4}, {7, 4}},
           Row{GridMove::PageUp, {2, 3}, {1, 2}, {5, 4}},
           Row{GridMove::PageDown, {6, 3}, {3, 2}, {7, 4}},
       }) {
    SCOPED_TRACE(static_cast<int>(row.move));
    EXPECT_EQ(Moved(grid_, {4, 3}, row.move, 2), row.inside);
    EXPECT_EQ(Moved(grid_, {1, 2}, row.move, 2), row.atFirst);
    EXPECT_EQ(Moved(grid_, {7, 4}, row.move, 2), row.atLast);
  }
}

TEST_F(GridMoves, PageHasAsManyRowsAsItIsSaidToHave) {
  struct Row {
    int page;
    GridCell up;
    GridCell down;
  };
  for (const Row& row : {Row{0, {4, 3}, {4, 3}}, Row{1, {3, 3}, {5, 3}}, Row{3, {1, 3}, {7, 3}},
                         Row{4, {1, 3}, {7, 3}}, Row{INT_MAX, {1, 3}, {7, 3}},
                         Row{-1, {4, 3}, {4, 3}}, Row{INT_MIN, {4, 3}, {4, 3}}}) {
    EXPECT_EQ(Moved(grid_, {4, 3}, GridMove::PageUp, row.page), row.up) << row.page;
    EXPECT_EQ(Moved(grid_, {4, 3}, GridMove::PageDown, row.page), row.down) << row.page;
    EXPECT_EQ(Moved(grid_, {4, 3}, GridMove::Down, row.page), (GridCell{5, 3})) << row.page;
  }
}

TEST_F(GridMoves, FromNoneLeadToTheFirstCell) {
  for (const GridMove move : kAllMoves) {
    EXPECT_EQ(Moved(grid_, kNone, move, 3), (GridCell{1, 2})) << static_cast<int>(move);
  }
}

TEST_F(GridMoves, FromBesideTheCellsBeginAtTheNearestOne) {
  EXPECT_EQ(Moved(grid_, {0, 0}, GridMove::Down, 1), (GridCell{2, 2}));
  EXPECT_EQ(Moved(grid_, {0, 4}, GridMove::Left, 1), (GridCell{1, 3}));
  EXPECT_EQ(Moved(grid_, {99, 3}, GridMove::Up, 1), (GridCell{6, 3}));
  EXPECT_EQ(Moved(grid_, {INT_MAX, INT_MAX}, GridMove::Right, 1), (GridCell{7, 4}));
  EXPECT_EQ(Moved(grid_, {INT_MAX, INT_MAX}, GridMove::PageDown, INT_MAX), (GridCell{7, 4}));
  EXPECT_EQ(Moved(grid_, {3, INT_MIN}, GridMove::Left, 1), (GridCell{3, 2}));
}

TEST(GridMovesOnFewCells, StayAtTheOnlyOne) {
  GridModel grid;
  Shape(grid, 2, 3, 1, 2);
  for (const GridMove move : kAllMoves) {
    EXPECT_EQ(Moved(grid, {1, 2}, move, 5), (GridCell{1, 2})) << static_cast<int>(move);
    EXPECT_EQ(Moved(grid, kNone, move, 5), (GridCell{1, 2})) << static_cast<int>(move);
  }
}

TEST(GridMovesOnFewCells, LeadNowhereWhereAllIsFixed) {
  struct Row {
    int rows, columns, fixedRows, fixedColumns;
  };
  for (const Row& row :
       {Row{0, 0, 0, 0}, Row{3, 0, 0, 0}, Row{0, 3, 0, 0}, Row{3, 3, 3, 0}, Row{3, 3, 1, 3}}) {
    GridModel grid;
    Shape(grid, row.rows, row.columns, row.fixedRows, row.fixedColumns);
    for (const GridMove move : kAllMoves) {
      EXPECT_EQ(Moved(grid, kNone, move, 2), kNone);
      EXPECT_EQ(Moved(grid, {1, 1}, move, 2), kNone);
    }
    for (const GridCell from : {kNone, GridCell{1, 1}}) {
      EXPECT_EQ(NextCell(grid, from), std::nullopt);
      EXPECT_EQ(PreviousCell(grid, from), std::nullopt);
    }
  }
}

TEST(GridMovesAtRandom, LeadFromCellToCell) {
  Random random(1);
  for (int i = 0; i < 2000; ++i) {
    GridModel grid;
    const int rows = static_cast<int>(random.Below(6)) + 1;
    const int columns = static_cast<int>(random.Below(6)) + 1;
    Shape(grid, rows, columns, static_cast<int>(random.Below(static_cast<std::size_t>(rows))),
          static_cast<int>(random.Below(static_cast<std::size_t>(columns))));
    grid.SetFocus({static_cast<int>(random.Below(7)), static_cast<int>(random.Below(7))});
    const GridCell to =
        Moved(grid, grid.Focus(), random.Of(kAllMoves), static_cast<int>(random.Below(8)));
    ASSERT_EQ(PlainOf(grid).Nearest(to), to);
  }
}

/// Where `step` leads from `from` on, until it leads no further.
std::vector<GridCell> Walk(const GridModel& grid, GridCell from,
                           std::optional<GridCell> (*step)(const GridModel&, GridCell)) {
  std::vector<GridCell> way;
  for (auto cell = step(grid, from); cell && way.size() < 100; cell = step(grid, *cell)) {
    way.push_back(*cell);
  }
  return way;
}

TEST(GridNeighbours, FollowRowByRow) {
  GridModel grid;
  Shape(grid, 3, 4, 1, 1);
  const std::vector<GridCell> cells{{1, 1}, {1, 2}, {1, 3}, {2, 1}, {2, 2}, {2, 3}};
  EXPECT_EQ(Walk(grid, kNone, NextCell), cells);
  EXPECT_EQ(Walk(grid, kNone, PreviousCell), std::vector(cells.rbegin(), cells.rend()));
  EXPECT_EQ(NextCell(grid, {2, 3}), std::nullopt);
  EXPECT_EQ(PreviousCell(grid, {1, 1}), std::nullopt);
}

TEST(GridNeighbours, FollowInOneRowAndInOneColumn) {
  GridModel row;
  Shape(row, 1, 3, 0, 0);
  EXPECT_EQ(Walk(row, {0, 0}, NextCell), (std::vector<GridCell>{{0, 1}, {0, 2}}));
  EXPECT_EQ(Walk(row, {0, 2}, PreviousCell), (std::vector<GridCell>{{0, 1}, {0, 0}}));
  GridModel column;
  Shape(column, 3, 1, 0, 0);
  EXPECT_EQ(Walk(column, {0, 0}, NextCell), (std::vector<GridCell>{{1, 0}, {2, 0}}));
  EXPECT_EQ(Walk(column, {2, 0}, PreviousCell), (std::vector<GridCell>{{1, 0}, {0, 0}}));
}

TEST(GridNeighbours, OfTheOnlyCellAreNone) {
  GridModel grid;
  Shape(grid, 2, 2, 1, 1);
  EXPECT_EQ(NextCell(grid, {1, 1}), std::nullopt);
  EXPECT_EQ(PreviousCell(grid, {1, 1}), std::nullopt);
  EXPECT_EQ(NextCell(grid, kNone), (GridCell{1, 1}));
  EXPECT_EQ(PreviousCell(grid, kNone), (GridCell{1, 1}));
}

TEST(GridNeighbours, OfWhatIsBesideTheCellsAreThoseOfTheNearestOne) {
  GridModel grid;
  Shape(grid, 3, 4, 1, 1);
  EXPECT_EQ(NextCell(grid, {0, 0}), (GridCell{1, 2}));
  EXPECT_EQ(NextCell(grid, {1, INT_MAX}), (GridCell{2, 1}));
  EXPECT_EQ(NextCell(grid, {INT_MAX, 1}), (GridCell{2, 2}));
  EXPECT_EQ(NextCell(grid, {INT_MAX, INT_MAX}), std::nullopt);
  EXPECT_EQ(PreviousCell(grid, {0, 0}), std::nullopt);
  EXPECT_EQ(PreviousCell(grid, {2, 0}), (GridCell{1, 3}));
  EXPECT_EQ(PreviousCell(grid, {99, 99}), (GridCell{2, 2}));
}

}  // namespace
}  // namespace kav
