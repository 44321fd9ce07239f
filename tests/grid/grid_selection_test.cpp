// What is selected in a grid, and where its user leads from there.
#include "grid/grid_selection.h"

#include <gtest/gtest.h>

#include <climits>

#include "grid/plain_grid.h"

namespace kav::grid_selection_test {
namespace {

using test::Shape;

constexpr GridCell kNone{-1, -1};
constexpr int kPage = 3;

/// Four rows and five columns, of which one row and two columns are fixed.
class GridSelectionTest : public testing::Test {
 protected:
  void SetUp() override { Shape(grid_, 4, 5, 1, 2); }

  GridModel grid_;
};

/// Shapes of which every cell is fixed.
struct FixedShape {
  int rows, columns, fixedRows, fixedColumns;
};
constexpr FixedShape kAllFixed[]{
    {0, 0, 0, 0}, {3, 0, 1, 0}, {0, 3, 0, 1}, {2, 3, 2, 1}, {2, 3, 1, 3}};

TEST_F(GridSelectionTest, IsBetweenFocusAndEndWhereverTheseLie) {
  struct Row {
    GridCell focus, end;
    GridRange range;
  };
  for (const Row& row : {Row{{2, 3}, {3, 4}, {2, 3, 3, 4}}, Row{{3, 4}, {2, 3}, {2, 3, 3, 4}},
                         Row{{1, 4}, {3, 2}, {1, 2, 3, 4}}, Row{{2, 3}, {2, 3}, {2, 3, 2, 3}},
                         Row{{0, 0}, {9, 9}, {1, 2, 3, 4}},
                         Row{{INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}, {1, 2, 3, 4}}}) {
    const GridSelection selection = SelectionOf(grid_, row.focus, row.end);
    EXPECT_EQ(selection.Range(), row.range);
    EXPECT_FALSE(grid_.IsFixed(selection.focus));
    EXPECT_FALSE(grid_.IsFixed(selection.end));
  }
  EXPECT_TRUE(GridSelection().Range().IsNone());
}

TEST_F(GridSelectionTest, OfAllBeginsAtTheFirstCell) {
  EXPECT_EQ(SelectionOfAll(grid_), (GridSelection{{1, 2}, {3, 4}}));
}

TEST_F(GridSelectionTest, ReachesFromTheFocusOrBeginsAnew) {
  const GridSelection old{{2, 3}, {3, 4}};
  EXPECT_EQ(SelectionTo(grid_, old, {1, 2}, GridReach::Focus), (GridSelection{{1, 2}, {1, 2}}));
  EXPECT_EQ(SelectionTo(grid_, old, {1, 2}, GridReach::Selection), (GridSelection{{2, 3}, {1, 2}}));
  EXPECT_EQ(SelectionTo(grid_, {}, {1, 2}, GridReach::Selection), (GridSelection{{1, 2}, {1, 2}}));
}

TEST_F(GridSelectionTest, TakesWholeColumnsAndRows) {
  struct Row {
    GridCell cell;
    GridReach reach;
    GridLines lines;
    GridSelection selection;
  };
  const GridSelection old{{2, 3}, {2, 3}};
  for (const Row& row : {Row{{0, 4}, GridReach::Focus, GridLines::Columns, {{1, 4}, {3, 4}}},
                         Row{{0, 4}, GridReach::Selection, GridLines::Columns, {{1, 3}, {3, 4}}},
                         Row{{0, 2}, GridReach::Selection, GridLines::Columns, {{1, 3}, {3, 2}}},
                         Row{{3, 0}, GridReach::Focus, GridLines::Rows, {{3, 2}, {3, 4}}},
                         Row{{3, 0}, GridReach::Selection, GridLines::Rows, {{2, 2}, {3, 4}}},
                         Row{{1, 1}, GridReach::Selection, GridLines::Rows, {{2, 2}, {1, 4}}}}) {
    EXPECT_EQ(SelectionTo(grid_, old, row.cell, row.reach, row.lines), row.selection);
  }
}

TEST_F(GridSelectionTest, AMoveCountsRowsColumnsAndPages) {
  EXPECT_EQ(Moved(grid_, {2, 3}, {-1, 0}, kPage), (GridCell{1, 3}));
  EXPECT_EQ(Moved(grid_, {2, 3}, {0, 1}, kPage), (GridCell{2, 4}));
  EXPECT_EQ(Moved(grid_, {1, 3}, {0, 0, 1}, kPage), (GridCell{4, 3})) << "beyond the border";
  EXPECT_EQ(Moved(grid_, {3, 3}, {0, 0, -1}, kPage), (GridCell{0, 3}));
  EXPECT_EQ(Moved(grid_, {0, 0}, {1, 1}, kPage), (GridCell{2, 3})) << "from the nearest cell";
  EXPECT_EQ(Moved(grid_, kNone, {1, 1}, kPage), (GridCell{1, 2})) << "to the first cell";
}

TEST_F(GridSelectionTest, TabLeadsRowByRowAndEndsAtBothEnds) {
  const GridCell way[]{{1, 2}, {1, 3}, {1, 4}, {2, 2}, {2, 3}, {2, 4}, {3, 2}, {3, 3}, {3, 4}};
  GridCell cell = kNone;
  for (const GridCell& next : way) {
    EXPECT_EQ(NextByTab(grid_, next, -1), cell);
    cell = NextByTab(grid_, cell, 1);
    EXPECT_EQ(cell, next);
  }
  EXPECT_EQ(NextByTab(grid_, cell, 1), kNone);
  EXPECT_EQ(NextByTab(grid_, kNone, -1), (GridCell{3, 4}));
}

TEST_F(GridSelectionTest, IsNoneWhereAllIsFixed) {
  for (const FixedShape& shape : kAllFixed) {
    GridModel grid;
    Shape(grid, shape.rows, shape.columns, shape.fixedRows, shape.fixedColumns);
    EXPECT_EQ(SelectionOf(grid, {1, 1}, {2, 2}), GridSelection());
    EXPECT_EQ(SelectionOfAll(grid), GridSelection());
    for (const auto lines : {GridLines::Cells, GridLines::Columns, GridLines::Rows}) {
      EXPECT_EQ(SelectionTo(grid, {}, {0, 0}, GridReach::Selection, lines), GridSelection());
    }
    EXPECT_EQ(Moved(grid, kNone, {1, 1}, kPage), kNone);
    for (const int step : {-1, 1}) EXPECT_EQ(NextByTab(grid, kNone, step), kNone);
  }
}

}  // namespace
}  // namespace kav::grid_selection_test
