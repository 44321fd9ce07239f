// What a screen reader learns of the cells of a grid, and does with them.
#include <gtest/gtest.h>

#include <QAccessible>

#include "screens/grid_access_driver.h"

namespace kav::test::grid_access_test {
namespace {

// States.

TEST_F(GridAccessTest, StatesSayWhatCanBeDoneWithACell) {
  EXPECT_TRUE(Cell(0, 0).state().selectable);
  EXPECT_TRUE(Cell(0, 0).state().focusable);
  EXPECT_TRUE(Cell(0, 0).state().editable);
  EXPECT_FALSE(Cell(0, 0).state().readOnly);
  EXPECT_FALSE(Cell(0, 0).state().disabled);
  EXPECT_FALSE(Cell(0, 0).state().invisible);
  grid_.setEnabled(false);
  EXPECT_TRUE(Cell(0, 0).state().disabled);
  grid_.hide();
  EXPECT_TRUE(Cell(0, 0).state().invisible);
}

TEST_F(GridAccessTest, StatesTellFocusAndSelection) {
  grid_.setFocus();
  grid_.SetFocusCell({1, 1});
  grid_.SelectTo({2, 2});
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 2; ++column) {
      EXPECT_EQ(Cell(row, column).state().selected != 0, row < 2);
      EXPECT_EQ(Cell(row, column).tableCellInterface()->isSelected(), row < 2);
      EXPECT_EQ(Cell(row, column).state().focused != 0, row == 0 && column == 0);
    }
  }
  before_.setFocus();
  EXPECT_FALSE(Cell(0, 0).state().focused);
}

TEST_F(GridAccessTest, ACellThatIsScrolledAwaySaysSo) {
  Build(30, 2);
  EXPECT_FALSE(Cell(0, 0).state().offscreen);
  EXPECT_TRUE(Cell(29, 0).state().offscreen);
  Wheel(-12000);
  EXPECT_FALSE(Cell(29, 0).state().offscreen);
  EXPECT_TRUE(Cell(0, 0).state().offscreen);
}

TEST_F(GridAccessTest, ACellBehindTheHeadersIsScrolledAwayToo) {
  Build(30, 2);
  QApplication::setWheelScrollLines(1);
  Wheel(-120);
  QApplication::setWheelScrollLines(3);
  ASSERT_EQ(FirstShown().row, 2);
  EXPECT_TRUE(Cell(0, 0).state().offscreen);
  EXPECT_FALSE(Cell(1, 0).state().offscreen);
  EXPECT_FALSE(Child({0, 0}).state().offscreen);
}

TEST_F(GridAccessTest, TheFocusIsThatOfTheCell) {
  EXPECT_EQ(Access().focusChild(), nullptr);
  grid_.setFocus();
  grid_.SetFocusCell({2, 1});
  EXPECT_EQ(Access().focusChild(), &Cell(1, 0));
  grid_.EditFocusCell();
  EXPECT_EQ(NameOf(Access().focusChild()), "row 2, column 1") << "the box that is open";
}

// The selection.

TEST_F(GridAccessTest, TellsWhatIsSelected) {
  EXPECT_EQ(Table().selectedCellCount(), 0);
  EXPECT_EQ(Table().selectedRowCount(), 0);
  EXPECT_FALSE(Table().isRowSelected(0));
  grid_.SetFocusCell({1, 1});
  grid_.SelectTo({2, 2});
  EXPECT_EQ(Table().selectedCellCount(), 4);
  EXPECT_EQ(Names(Table().selectedCells()), "11 12 21 22 ");
  EXPECT_EQ(Table().selectedRows(), (QList<int>{0, 1}));
  EXPECT_EQ(Table().selectedRowCount(), 2);
  EXPECT_TRUE(Table().selectedColumns().isEmpty());
  EXPECT_FALSE(Table().isRowSelected(2));
  EXPECT_FALSE(Table().isRowSelected(-1));
  EXPECT_FALSE(Table().isColumnSelected(9));
  grid_.SetFocusCell({1, 2});
  grid_.SelectTo({3, 2});
  EXPECT_EQ(Table().selectedColumns(), QList<int>{1});
  EXPECT_EQ(Table().selectedColumnCount(), 1);
  EXPECT_TRUE(Table().isColumnSelected(1));
  EXPECT_EQ(Table().selectedRowCount(), 0);
}

TEST_F(GridAccessTest, SelectsLines) {
  EXPECT_TRUE(Table().selectRow(1));
  EXPECT_EQ(Selection(), "2,1-2,2");
  EXPECT_TRUE(Table().selectColumn(1));
  EXPECT_EQ(Selection(), "1,2-3,2");
  for (const int line : {-1, 3}) {
    EXPECT_FALSE(Table().selectRow(line));
    EXPECT_FALSE(Table().selectColumn(line));
  }
  EXPECT_FALSE(Table().unselectRow(0)) << "the rest would be no range";
  EXPECT_FALSE(Table().unselectColumn(1));
  EXPECT_EQ(Selection(), "1,2-3,2");
}

TEST_F(GridAccessTest, SelectingTakesATextThatIsBeingTyped) {
  grid_.setFocus();
  grid_.SetFocusCell({1, 1});
  Type("7");
  EXPECT_TRUE(Table().selectRow(2));
  EXPECT_EQ(Text({1, 1}), u"7");
}

// Actions.

TEST_F(GridAccessTest, ACellIsFocusedAndEditedByActions) {
  QAccessibleActionInterface* actions = Cell(2, 1).actionInterface();
  ASSERT_NE(actions, nullptr);
  EXPECT_EQ(actions->actionNames(), (QStringList{QAccessibleActionInterface::setFocusAction(),
                                                 QAccessibleActionInterface::pressAction()}));
  actions->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(Focus(), "3,2");
  EXPECT_TRUE(grid_.hasFocus());
  EXPECT_FALSE(grid_.IsEditing());
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(grid_.IsEditing());
  Type("5");
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({3, 2}), u"5");
  actions->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_FALSE(grid_.IsEditing()) << "there is no such action";
}

}  // namespace
}  // namespace kav::test::grid_access_test
