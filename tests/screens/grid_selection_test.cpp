// What is selected in a grid, and where keys lead, with any number of headers.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <vector>

#include "grid/plain_grid.h"
#include "screens/grid_driver.h"
#include "support/effort.h"
#include "support/random.h"

namespace kav::test::grid_selection_test {
namespace {

constexpr GridCell kNone{-1, -1};

/// Four rows and five columns, of which one row and two columns are fixed.
class GridSelectionTest : public GridScreen {
 protected:
  GridSelectionTest() {
    BuildShape(4, 5, 1, 2);
    for (int row = 0; row < 4; ++row) {
      for (int column = 0; column < 5; ++column) Put({row, column}, LongText(row, column));
    }
    grid_.setFocus();
    log_.clear();
  }

  void BuildShape(int rows, int columns, int fixedRows, int fixedColumns) {
    grid_.ResetSelectedRange();
    ASSERT_TRUE(grid_.SetFixedRowCount(0) && grid_.SetFixedColumnCount(0));
    ASSERT_TRUE(grid_.SetRowCount(rows) && grid_.SetColumnCount(columns));
    ASSERT_TRUE(grid_.SetFixedRowCount(fixedRows) && grid_.SetFixedColumnCount(fixedColumns));
  }
  /// All that shows.
  PlainGrid Plain() {
    PlainGrid plain = PlainOf(grid_.Model());
    plain.focus = grid_.Focus();
    plain.end = grid_.SelectionEnd();
    return plain;
  }
  static void SelectAll() { Key(Qt::Key_A, Qt::ControlModifier); }
};

// Shapes of which every cell is fixed.
struct Shape {
  int rows, columns, fixedRows, fixedColumns;
};
constexpr Shape kAllFixed[]{{0, 0, 0, 0}, {3, 0, 1, 0}, {0, 3, 0, 1}, {2, 3, 2, 1}, {2, 3, 1, 3}};

TEST_F(GridSelectionTest, FocusGoesToTheNearestCellThatIsNotFixed) {
  struct Row {
    GridCell asked;
    GridCell focus;
  };
  for (const Row& row :
       {Row{{1, 2}, {1, 2}}, Row{{3, 4}, {3, 4}}, Row{{2, 3}, {2, 3}}, Row{{0, 3}, {1, 3}},
        Row{{2, 0}, {2, 2}}, Row{{0, 0}, {1, 2}}, Row{{-1, -1}, {1, 2}}, Row{{4, 5}, {3, 4}},
        Row{{2, 99}, {2, 4}}, Row{{INT_MAX, INT_MIN}, {3, 2}}, Row{{INT_MIN, INT_MAX}, {1, 4}}}) {
    grid_.SetFocusCell(row.asked);
    EXPECT_EQ(grid_.Focus(), row.focus);
    EXPECT_EQ(grid_.SelectionEnd(), row.focus);
    EXPECT_EQ(grid_.Selection(),
              (GridRange{row.focus.row, row.focus.column, row.focus.row, row.focus.column}));
  }
}

TEST_F(GridSelectionTest, SelectionIsWhatIsBetweenFocusAndItsOtherEnd) {
  struct Row {
    GridCell to;
    GridCell end;
    GridRange selection;
  };
  grid_.SetFocusCell({2, 3});
  for (const Row& row : {Row{{3, 4}, {3, 4}, {2, 3, 3, 4}}, Row{{1, 2}, {1, 2}, {1, 2, 2, 3}},
                         Row{{3, 2}, {3, 2}, {2, 2, 3, 3}}, Row{{1, 4}, {1, 4}, {1, 3, 2, 4}},
                         Row{{2, 3}, {2, 3}, {2, 3, 2, 3}}, Row{{0, 0}, {1, 2}, {1, 2, 2, 3}},
                         Row{{99, 99}, {3, 4}, {2, 3, 3, 4}}}) {
    grid_.SelectTo(row.to);
    EXPECT_EQ(grid_.Focus(), (GridCell{2, 3}));
    EXPECT_EQ(grid_.SelectionEnd(), row.end);
    EXPECT_EQ(grid_.Selection(), row.selection);
  }
}

TEST_F(GridSelectionTest, SelectionWithoutAFocusBeginsWhereItEnds) {
  grid_.SelectTo({3, 3});
  EXPECT_EQ(grid_.Focus(), (GridCell{3, 3}));
  EXPECT_EQ(grid_.Selection(), (GridRange{3, 3, 3, 3}));
}

TEST_F(GridSelectionTest, AllThatCanBeSelectedIsWhatIsNotFixed) {
  grid_.SetFocusCell({3, 3});
  SelectAll();
  EXPECT_EQ(grid_.Focus(), (GridCell{1, 2}));
  EXPECT_EQ(grid_.SelectionEnd(), (GridCell{3, 4}));
  EXPECT_EQ(grid_.Selection(), (GridRange{1, 2, 3, 4}));
}

TEST_F(GridSelectionTest, ResetTakesSelectionAndFocusAway) {
  SelectAll();
  grid_.ResetSelectedRange();
  EXPECT_EQ(grid_.Focus(), kNone);
  EXPECT_EQ(grid_.SelectionEnd(), kNone);
  EXPECT_TRUE(grid_.Selection().IsNone());
}

TEST_F(GridSelectionTest, WhereAllIsFixedNothingIsSelected) {
  for (const Shape& shape : kAllFixed) {
    BuildShape(shape.rows, shape.columns, shape.fixedRows, shape.fixedColumns);
    grid_.SetFocusCell({1, 1});
    EXPECT_EQ(grid_.Focus(), kNone);
    grid_.SelectTo({1, 1});
    SelectAll();
    EXPECT_EQ(grid_.Focus(), kNone);
    EXPECT_EQ(grid_.SelectionEnd(), kNone);
    EXPECT_TRUE(grid_.Selection().IsNone());
    grid_.ClearSelectedCells();
  }
}

TEST_F(GridSelectionTest, StaysWhereItCanAndElseGoesToTheNearestCell) {
  struct Row {
    bool (CGridCtrl::*set)(int);
    int count;
    GridCell focus;
    GridCell end;
  };
  for (const Row& row : {
           Row{&CGridCtrl::SetRowCount, 9, {2, 4}, {3, 2}},
           Row{&CGridCtrl::SetRowCount, 3, {2, 4}, {2, 2}},
           Row{&CGridCtrl::SetRowCount, 2, {1, 4}, {1, 2}},
           Row{&CGridCtrl::SetRowCount, 1, kNone, kNone},
           Row{&CGridCtrl::SetColumnCount, 9, {2, 4}, {3, 2}},
           Row{&CGridCtrl::SetColumnCount, 4, {2, 3}, {3, 2}},
           Row{&CGridCtrl::SetColumnCount, 2, kNone, kNone},
           Row{&CGridCtrl::SetFixedRowCount, 0, {2, 4}, {3, 2}},
           Row{&CGridCtrl::SetFixedRowCount, 3, {3, 4}, {3, 2}},
           Row{&CGridCtrl::SetFixedRowCount, 4, kNone, kNone},
           Row{&CGridCtrl::SetFixedColumnCount, 0, {2, 4}, {3, 2}},
           Row{&CGridCtrl::SetFixedColumnCount, 3, {2, 4}, {3, 3}},
           Row{&CGridCtrl::SetFixedColumnCount, 5, kNone, kNone},
       }) {
    BuildShape(4, 5, 1, 2);
    grid_.SetFocusCell({2, 4});
    grid_.SelectTo({3, 2});
    ASSERT_TRUE((grid_.*row.set)(row.count));
    EXPECT_EQ(grid_.Focus(), row.focus) << row.count;
    EXPECT_EQ(grid_.SelectionEnd(), row.end) << row.count;
  }
}

TEST_F(GridSelectionTest, SelectionThatLostAllItsCellsDoesNotComeBackWithThem) {
  SelectAll();
  ASSERT_TRUE(grid_.SetRowCount(1));
  ASSERT_TRUE(grid_.SetRowCount(4));
  EXPECT_EQ(grid_.Focus(), kNone);
  EXPECT_TRUE(grid_.Selection().IsNone());
}

TEST_F(GridSelectionTest, ShapeAloneSelectsNothing) {
  ASSERT_TRUE(grid_.SetRowCount(6));
  ASSERT_TRUE(grid_.SetFixedColumnCount(1));
  EXPECT_EQ(grid_.Focus(), kNone);
}

TEST_F(GridSelectionTest, CountsThatMakeNoSenseLeaveTheSelection) {
  grid_.SetFocusCell({2, 3});
  const PlainGrid before = Plain();
  EXPECT_FALSE(grid_.SetRowCount(0));
  EXPECT_FALSE(grid_.SetColumnCount(1001));
  EXPECT_FALSE(grid_.SetFixedRowCount(5));
  EXPECT_FALSE(grid_.SetFixedColumnCount(-1));
  EXPECT_EQ(Plain(), before);
}

TEST_F(GridSelectionTest, ClearEmptiesTheSelectedTextsAndNothingElse) {
  Put({1, 3}, u"formatted", {GridAlignment::Right, true});
  grid_.SetFocusCell({2, 4});
  grid_.SelectTo({0, 3});
  PlainGrid expected = Plain();
  for (const GridCell& cell : {GridCell{1, 3}, GridCell{1, 4}, GridCell{2, 3}, GridCell{2, 4}}) {
    expected.At(cell.row, cell.column).text.clear();
  }
  grid_.ClearSelectedCells();
  EXPECT_EQ(Plain(), expected);
}

TEST_F(GridSelectionTest, ClearOfAllLeavesTheHeaders) {
  SelectAll();
  grid_.ClearSelectedCells();
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 5; ++column) {
      const bool isHeader = row == 0 || column <= 1;
      EXPECT_EQ(Text({row, column}), isHeader ? LongText(row, column) : u"");
    }
  }
}

TEST_F(GridSelectionTest, ClearWithoutASelectionDoesNothing) {
  const PlainGrid before = Plain();
  grid_.ClearSelectedCells();
  EXPECT_EQ(Plain(), before);
}

// Keys.

struct MoveRow {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  GridCell inside;   // from row 4, column 3
  GridCell atFirst;  // from the cell at the top left
  GridCell atLast;   // from the cell at the bottom right
};

// Of rows 1 to 9 and columns 2 to 4; seven rows and a header have room.
const MoveRow kMoves[]{
    {Qt::Key_Left, {}, {4, 2}, {1, 2}, {9, 3}},
    {Qt::Key_Right, {}, {4, 4}, {1, 3}, {9, 4}},
    {Qt::Key_Up, {}, {3, 3}, {1, 2}, {8, 4}},
    {Qt::Key_Down, {}, {5, 3}, {2, 2}, {9, 4}},
    {Qt::Key_Home, {}, {4, 2}, {1, 2}, {9, 2}},
    {Qt::Key_End, {}, {4, 4}, {1, 4}, {9, 4}},
    {Qt::Key_Up, Qt::ControlModifier, {1, 3}, {1, 2}, {1, 4}},
    {Qt::Key_Down, Qt::ControlModifier, {9, 3}, {9, 2}, {9, 4}},
    {Qt::Key_Home, Qt::ControlModifier, {1, 2}, {1, 2}, {1, 2}},
    {Qt::Key_End, Qt::ControlModifier, {9, 4}, {9, 4}, {9, 4}},
    {Qt::Key_PageUp, {}, {1, 3}, {1, 2}, {3, 4}},
    {Qt::Key_PageDown, {}, {9, 3}, {7, 2}, {9, 4}},
};

TEST_F(GridSelectionTest, EachKeyLeadsItsWayAndNoFurtherThanTheBorder) {
  BuildShape(10, 5, 1, 2);
  for (const MoveRow& row : kMoves) {
    SCOPED_TRACE(row.key);
    const auto moved = [&](GridCell from) {
      grid_.SetFocusCell(from);
      Key(row.key, row.modifiers);
      return grid_.Focus();
    };
    EXPECT_EQ(moved({4, 3}), row.inside);
    EXPECT_EQ(moved({1, 2}), row.atFirst);
    EXPECT_EQ(moved({9, 4}), row.atLast);
  }
}

TEST_F(GridSelectionTest, APageIsWhatHasRoomButForOneRow) {
  BuildShape(20, 5, 1, 2);
  struct Row {
    int rows;
    GridCell up;
    GridCell down;
  };
  for (const Row& row : {Row{1, {8, 3}, {10, 3}}, Row{2, {8, 3}, {10, 3}}, Row{4, {6, 3}, {12, 3}},
                         Row{11, {1, 3}, {19, 3}}, Row{12, {1, 3}, {19, 3}}}) {
    grid_.resize(320, kRowHeight * (1 + row.rows));
    // The columns need a bar as soon as the rows do; it takes room of its own.
    grid_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid_.SetFocusCell({9, 3});
    Key(Qt::Key_PageUp);
    EXPECT_EQ(grid_.Focus(), row.up) << row.rows;
    grid_.SetFocusCell({9, 3});
    Key(Qt::Key_PageDown);
    EXPECT_EQ(grid_.Focus(), row.down) << row.rows;
  }
}

TEST_F(GridSelectionTest, WithoutAFocusKeysLeadToTheFirstCell) {
  for (const MoveRow& row : kMoves) {
    grid_.ResetSelectedRange();
    Key(row.key, row.modifiers);
    EXPECT_EQ(grid_.Focus(), (GridCell{1, 2})) << row.key;
  }
}

TEST_F(GridSelectionTest, KeysStayAtTheOnlyCell) {
  BuildShape(2, 3, 1, 2);
  grid_.SetFocusCell({1, 2});
  for (const MoveRow& row : kMoves) {
    Key(row.key, row.modifiers);
    EXPECT_EQ(grid_.Focus(), (GridCell{1, 2})) << row.key;
  }
}

TEST_F(GridSelectionTest, WhereAllIsFixedKeysLeadNowhereAndTabOut) {
  for (const Shape& shape : kAllFixed) {
    BuildShape(shape.rows, shape.columns, shape.fixedRows, shape.fixedColumns);
    grid_.setFocus();
    for (const MoveRow& row : kMoves) {
      Key(row.key, row.modifiers);
      EXPECT_EQ(grid_.Focus(), kNone) << row.key;
    }
    Key(Qt::Key_Tab);
    EXPECT_TRUE(after_.hasFocus());
    grid_.setFocus();
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(before_.hasFocus());
  }
}

TEST_F(GridSelectionTest, TabLeadsRowByRow) {
  struct Row {
    Shape shape;
    std::vector<GridCell> cells;
  };
  for (const Row& row :
       {Row{{3, 4, 1, 1}, {{1, 1}, {1, 2}, {1, 3}, {2, 1}, {2, 2}, {2, 3}}},
        Row{{1, 3, 0, 0}, {{0, 0}, {0, 1}, {0, 2}}}, Row{{3, 1, 0, 0}, {{0, 0}, {1, 0}, {2, 0}}},
        Row{{2, 2, 1, 1}, {{1, 1}}}}) {
    BuildShape(row.shape.rows, row.shape.columns, row.shape.fixedRows, row.shape.fixedColumns);
    const auto walk = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
      std::vector<GridCell> way;
      grid_.setFocus();
      grid_.ResetSelectedRange();
      for (Key(key, modifiers); grid_.hasFocus() && way.size() < 100; Key(key, modifiers)) {
        way.push_back(grid_.Focus());
      }
      return way;
    };
    EXPECT_EQ(walk(Qt::Key_Tab, {}), row.cells);
    EXPECT_EQ(walk(Qt::Key_Backtab, Qt::ShiftModifier),
              std::vector(row.cells.rbegin(), row.cells.rend()));
  }
}

// At random.

/// Mostly in or just beside a small grid. What is large is no count that it could take.
int AnyPlace(Random& random) {
  constexpr std::array kFar{INT_MIN, -1000, 1001, 100000, INT_MAX};
  return random.Below(30) == 0 ? random.Of(kFar) : static_cast<int>(random.Below(12)) - 2;
}

/// Whether `grid`, a control or a plain one, could do it.
template <class AnyGrid>
bool Take(std::size_t call, GridCell cell, AnyGrid& grid) {
  switch (call) {
    case 0:
      return grid.SetRowCount(cell.row);
    case 1:
      return grid.SetColumnCount(cell.row);
    case 2:
      return grid.SetFixedRowCount(cell.row);
    case 3:
      return grid.SetFixedColumnCount(cell.row);
    case 4:
      return grid.ResetSelectedRange(), true;
    case 5:
      return grid.ClearSelectedCells(), true;
    case 6:
      return grid.SetItem({cell.row, cell.column, GridItem::kText, u"text", {}});
    case 7:
      return grid.SelectTo(cell), true;
    default:
      return grid.SetFocusCell(cell), true;
  }
}

TEST_F(GridSelectionTest, EveryCallSelectsWhatItShould) {
  for (std::uint64_t seed = 1; seed <= 10; ++seed) {
    Random random(seed);
    PlainGrid plain = Plain();
    for (int i = 0; i < Tries(500); ++i) {
      const std::size_t call = random.Below(9);
      const GridCell cell{AnyPlace(random), AnyPlace(random)};
      const bool canBe = Take(call, cell, plain);
      ASSERT_EQ(Take(call, cell, grid_), canBe) << seed << ' ' << i;
      ASSERT_EQ(Plain(), plain) << seed << ' ' << i;
      for (int row = -1; row <= plain.Rows(); ++row) {
        for (int column = -1; column <= plain.Columns(); ++column) {
          const bool isSelected = grid_.Selection().Contains({row, column});
          ASSERT_EQ(isSelected, plain.IsSelected({row, column}));
          ASSERT_FALSE(isSelected && grid_.Model().IsFixed({row, column}));
        }
      }
    }
  }
}

}  // namespace
}  // namespace kav::test::grid_selection_test
