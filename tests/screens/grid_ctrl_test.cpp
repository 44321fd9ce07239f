// The grid: its shape and texts, whom it tells, and what it does without memory.
#include "screens/grid/grid_ctrl.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <functional>
#include <memory_resource>
#include <new>

#include "screens/grid_driver.h"

namespace kav::test::grid_ctrl_test {
namespace {

class GridCtrlTest : public GridScreen {};

// Shape and texts.

TEST_F(GridCtrlTest, TakesAShapeAndTextsInTheOrderOfItsUser) {
  grid_.ResetSelectedRange();
  EXPECT_TRUE(grid_.SetRowCount(4));
  EXPECT_TRUE(grid_.SetColumnCount(3));
  EXPECT_TRUE(grid_.SetFixedRowCount(1));
  EXPECT_TRUE(grid_.SetFixedColumnCount(1));
  EXPECT_TRUE(grid_.SetItem({1, 2, GridItem::kText, u"1.5", {}}));
  EXPECT_TRUE(grid_.SetColumnWidth(0, 20));
  EXPECT_EQ(grid_.Model().RowCount(), 4);
  EXPECT_EQ(grid_.Model().ColumnCount(), 3);
  EXPECT_EQ(grid_.Model().FixedRowCount(), 1);
  EXPECT_EQ(grid_.Model().FixedColumnCount(), 1);
  EXPECT_EQ(Text({1, 2}), u"1.5");
  EXPECT_EQ(Text({3, 1}), u"");
  EXPECT_EQ(grid_.GetColumnWidth(0), 20);
  EXPECT_EQ(grid_.GetColumnWidth(2), kColumnWidth);
  EXPECT_EQ(Focus(), "none");
}

TEST_F(GridCtrlTest, AnotherShapeKeepsWhatIsInBothAndGivesTheRestTheDefaultSize) {
  Build(3, 2);
  Put({1, 1}, u"kept");
  Put({3, 2}, u"lost");
  grid_.SetColumnWidth(1, 99);
  Build(2, 1);
  Build(3, 2);
  EXPECT_EQ(Text({1, 1}), u"kept");
  EXPECT_EQ(Text({3, 2}), u"");
  EXPECT_EQ(grid_.GetColumnWidth(1), 99);
  EXPECT_EQ(grid_.GetColumnWidth(2), kColumnWidth);
  EXPECT_EQ(grid_.CellArea({3, 2}), QRect(20 + 99, 3 * 18, 60, 18));
}

TEST_F(GridCtrlTest, ShapesWithoutSenseAreRefused) {
  Build(3, 2);
  EXPECT_FALSE(grid_.SetRowCount(-1));
  EXPECT_FALSE(grid_.SetColumnCount(0));
  EXPECT_FALSE(grid_.SetFixedRowCount(5));
  EXPECT_FALSE(grid_.SetFixedColumnCount(-1));
  EXPECT_FALSE(grid_.SetItem({4, 1, GridItem::kText, u"1", {}}));
  EXPECT_FALSE(grid_.SetColumnWidth(3, 50));
  EXPECT_EQ(grid_.GetColumnWidth(3), 0);
  EXPECT_EQ(grid_.GetItemText(-1, 1), u"");
  EXPECT_EQ(grid_.Model().RowCount(), 4);
  EXPECT_EQ(grid_.Model().ColumnCount(), 3);
}

TEST_F(GridCtrlTest, AnItemSetsOnlyWhatItsMaskHas) {
  Build(1, 1);
  Put({1, 1}, u"1", {GridAlignment::Right, true});
  grid_.SetItem({1, 1, GridItem::kText, u"2", {}});
  EXPECT_EQ(Text({1, 1}), u"2");
  EXPECT_EQ(grid_.Model().GetItemFormat(1, 1), (GridFormat{GridAlignment::Right, true}));
  grid_.SetItem({1, 1, GridItem::kFormat, u"3", {GridAlignment::Centre, false}});
  EXPECT_EQ(Text({1, 1}), u"2");
  EXPECT_EQ(grid_.Model().GetItemFormat(1, 1), (GridFormat{GridAlignment::Centre, false}));
}

TEST_F(GridCtrlTest, ResetTakesSelectionAndFocusAway) {
  BuildAt(3, 3);
  grid_.SelectTo({2, 2});
  EXPECT_EQ(Selection(), "1,1-2,2");
  grid_.ResetSelectedRange();
  EXPECT_EQ(Selection(), "none");
  EXPECT_EQ(Focus(), "none");
}

TEST_F(GridCtrlTest, ClearingEmptiesTheSelectedCellsAndNoOther) {
  Build(3, 3);
  for (int row = 1; row <= 3; ++row) {
    for (int column = 1; column <= 3; ++column) Put({row, column}, u"7");
  }
  grid_.ClearSelectedCells();
  EXPECT_EQ(Text({1, 1}), u"7");
  ClickCell({1, 2});
  ClickCell({2, 3}, Qt::ShiftModifier);
  grid_.ClearSelectedCells();
  for (int row = 0; row <= 3; ++row) {
    for (int column = 0; column <= 3; ++column) {
      const bool isEmpty = (row == 1 || row == 2) && (column == 2 || column == 3);
      if (row + column > 0) {
        EXPECT_EQ(Text({row, column}).empty(), isEmpty) << row << column;
      }
    }
  }
}

TEST_F(GridCtrlTest, FittingMakesAColumnAsWideAsItsWidestTextWhereverThatIs) {
  Build(3, 4);
  Put({3, 1}, u"1234567890123");
  Put({0, 2}, u"1234567890123");
  Put({1, 3}, u"12");
  grid_.AutoSizeColumns();
  EXPECT_EQ(grid_.GetColumnWidth(1), grid_.GetColumnWidth(2));
  EXPECT_GT(grid_.GetColumnWidth(1), QFontMetrics(grid_.font()).horizontalAdvance("1234567890123"));
  EXPECT_LT(grid_.GetColumnWidth(3), grid_.GetColumnWidth(1));
  EXPECT_LT(grid_.GetColumnWidth(4), grid_.GetColumnWidth(3));
  EXPECT_EQ(grid_.GetColumnWidth(0), grid_.GetColumnWidth(4)) << "each has one digit";
  EXPECT_EQ(Told(), Log{});
}

TEST_F(GridCtrlTest, AFittedColumnWithoutAnyTextCanStillBeSeen) {
  Build(3, 1);
  Put({0, 1}, u"");
  grid_.AutoSizeColumns();
  EXPECT_GE(grid_.GetColumnWidth(1), 4);
  EXPECT_LT(grid_.GetColumnWidth(1), grid_.GetColumnWidth(0));
}

TEST_F(GridCtrlTest, AFittedColumnIsNoWiderForATextThatNobodyReads) {
  Build(1, 1);
  Put({1, 1}, std::u16string(1 << 20, u'8'));
  grid_.AutoSizeColumns();
  EXPECT_LE(grid_.GetColumnWidth(1), 10000);
}

TEST_F(GridCtrlTest, ScaleEnlargesPlacesAndLeavesWidths) {
  Build(3, 3);
  grid_.SetScale(1.5, 18);
  EXPECT_EQ(grid_.GetColumnWidth(1), 60);
  EXPECT_EQ(grid_.CellArea({1, 1}), QRect(30, 27, 90, 27));
  EXPECT_EQ(grid_.CellAt({29, 26}), (GridCell{0, 0}));
  EXPECT_EQ(grid_.CellAt({30, 27}), (GridCell{1, 1}));
  EXPECT_EQ(Written(grid_.CellAt({30, 4 * 27})), "none");
}

TEST_F(GridCtrlTest, WhereAllHasRoomThereIsNoScrollBar) {
  Build(3, 3);
  EXPECT_FALSE(grid_.verticalScrollBar()->isVisible());
  EXPECT_FALSE(grid_.horizontalScrollBar()->isVisible());
  Build(kVisibleRows, 5);
  EXPECT_FALSE(grid_.verticalScrollBar()->isVisible()) << "20 + 5 * 60 by 8 * 18 is all its room";
  EXPECT_FALSE(grid_.horizontalScrollBar()->isVisible());
  Build(kVisibleRows + 1, 3);
  EXPECT_TRUE(grid_.verticalScrollBar()->isVisible());
  EXPECT_FALSE(grid_.horizontalScrollBar()->isVisible());
  Build(3, 6);
  EXPECT_FALSE(grid_.verticalScrollBar()->isVisible());
  EXPECT_TRUE(grid_.horizontalScrollBar()->isVisible());
  Build(30, 20);
  EXPECT_TRUE(grid_.verticalScrollBar()->isVisible());
  EXPECT_TRUE(grid_.horizontalScrollBar()->isVisible());
  Build(kVisibleRows, 5);
  EXPECT_FALSE(grid_.verticalScrollBar()->isVisible()) << "each was there only for the other";
  EXPECT_FALSE(grid_.horizontalScrollBar()->isVisible());
}

TEST_F(GridCtrlTest, WhatIsUnderTheHeadersIsNotInView) {
  Build(30, 20);
  Wheel(-120);
  Wheel(QPoint(-1200, 0));
  const GridCell first = FirstShown();
  EXPECT_TRUE(grid_.IsInView(first));
  EXPECT_FALSE(grid_.IsInView({first.row - 1, first.column}));
  EXPECT_FALSE(grid_.IsInView({first.row, first.column - 1}));
  EXPECT_TRUE(grid_.IsInView({0, first.column}));
  EXPECT_FALSE(grid_.IsInView({0, first.column - 1}));
  EXPECT_TRUE(grid_.IsInView({first.row, 0}));
  EXPECT_FALSE(grid_.IsInView({first.row - 1, 0}));
  EXPECT_TRUE(grid_.IsInView({0, 0}));
  EXPECT_FALSE(grid_.IsInView({30, first.column}));
  EXPECT_FALSE(grid_.IsInView({31, 1}));
  EXPECT_FALSE(grid_.IsInView({}));
}

// Hooks.

TEST_F(GridCtrlTest, CallsAreToldToNobody) {
  BuildAt(30, 20);
  grid_.SetFocusCell({20, 10});
  grid_.SelectTo({3, 3});
  grid_.SetColumnWidth(1, 70);
  grid_.SetScale(2, 24);
  grid_.AutoSizeColumns();
  grid_.ClearSelectedCells();
  grid_.ResetSelectedRange();
  grid_.SetRowCount(2);
  EXPECT_EQ(Told(), Log{});
}

TEST_F(GridCtrlTest, WithoutHooksAllWorks) {
  BuildAt(3, 3);
  grid_.SetHooks({});
  Key(Qt::Key_Down);
  Type("12");
  Key(Qt::Key_Return);
  Drag({80, 9}, {100, 9});
  EXPECT_EQ(Text({2, 1}), u"12");
  EXPECT_EQ(grid_.GetColumnWidth(1), 80);
  EXPECT_EQ(Focus(), "3,1");
}

// Memory.

/// Memory that ends.
class EndingMemory final : public std::pmr::memory_resource {
 public:
  int left = 1 << 30;  ///< how many pieces there still are

 private:
  void* do_allocate(std::size_t bytes, std::size_t alignment) override {
    if (left == 0) throw std::bad_alloc();
    --left;
    return std::pmr::new_delete_resource()->allocate(bytes, alignment);
  }
  void do_deallocate(void* piece, std::size_t bytes, std::size_t alignment) override {
    std::pmr::new_delete_resource()->deallocate(piece, bytes, alignment);
  }
  bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }
};

struct HasMemory {
  EndingMemory memory;
};

/// The memory outlives the grid.
class GridMemoryTest : private HasMemory, public GridScreen {
 protected:
  GridMemoryTest() : GridScreen(&memory) {
    BuildAt(30, 10, {25, 8});
    Put({25, 8}, u"a text that needs memory");
  }
  EndingMemory& Memory() { return memory; }
  QImage Picture() { return grid_.grab().toImage(); }
};

TEST_F(GridMemoryTest, AShapeForWhichThereIsNoMemoryLeavesAllAsItWas) {
  grid_.SelectTo({24, 7});
  const QImage before = Picture();
  const auto refused = [&](const std::function<bool()>& set) {
    int pieces = 0;
    for (;; ++pieces) {
      Memory().left = pieces;
      const bool isDone = set();
      Memory().left = 1 << 30;
      if (isDone) break;
      EXPECT_EQ(grid_.Model().RowCount(), 31);
      EXPECT_EQ(grid_.Model().ColumnCount(), 11);
      EXPECT_EQ(Selection(), "24,7-25,8");
      EXPECT_EQ(Text({25, 8}), u"a text that needs memory");
      EXPECT_EQ(Picture(), before);
    }
    return pieces;
  };
  EXPECT_GT(refused([this] { return grid_.SetRowCount(32); }), 0);
  ASSERT_TRUE(grid_.SetRowCount(31));
  EXPECT_GT(refused([this] { return grid_.SetColumnCount(12); }), 0);
}

TEST_F(GridMemoryTest, ARebuildThatIsAbandonedHalfwayCanBeDoneLater) {
  Memory().left = 0;
  grid_.ResetSelectedRange();
  EXPECT_TRUE(grid_.SetFixedRowCount(0));
  EXPECT_TRUE(grid_.SetFixedColumnCount(0));
  EXPECT_FALSE(grid_.SetRowCount(5));
  EXPECT_FALSE(grid_.SetColumnCount(5));
  Picture();
  Memory().left = 1 << 30;
  Build(4, 4);
  EXPECT_EQ(grid_.Model().RowCount(), 5);
}

TEST_F(GridMemoryTest, ATextForWhichThereIsNoMemoryIsNotTaken) {
  Memory().left = 0;
  EXPECT_FALSE(grid_.SetItem({1, 1, GridItem::kText, u"a text that needs memory", {}}));
  EXPECT_EQ(Text({1, 1}), u"");
  Type("123456789012345678901234567890");
  EXPECT_TRUE(grid_.IsEditing());
  Key(Qt::Key_Return);
  EXPECT_FALSE(grid_.IsEditing());
  EXPECT_EQ(Text({25, 8}), u"a text that needs memory");
  EXPECT_EQ(Focus(), "26,8");
  EXPECT_EQ(Told(), Log{"begin 25,8"});
  Memory().left = 1 << 30;
  Type("123456789012345678901234567890");
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({26, 8}), u"123456789012345678901234567890");
}

}  // namespace
}  // namespace kav::test::grid_ctrl_test
