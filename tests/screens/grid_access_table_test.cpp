// A grid as a screen reader finds it: a table of cells.
#include <gtest/gtest.h>

#include <QAccessible>
#include <string>
#include <vector>

#include "screens/grid_access_driver.h"

namespace kav::test::grid_access_table_test {
namespace {

// The table.

TEST_F(GridAccessTest, IsATableOfTheCellsWithoutTheHeaders) {
  EXPECT_EQ(Access().role(), QAccessible::Table);
  EXPECT_EQ(Access().text(QAccessible::Name), "Cells");
  ASSERT_NE(Access().tableInterface(), nullptr);
  EXPECT_EQ(Table().rowCount(), 3);
  EXPECT_EQ(Table().columnCount(), 2);
  EXPECT_EQ(Table().caption(), nullptr);
  EXPECT_EQ(Table().summary(), nullptr);
  EXPECT_TRUE(Access().isValid());
}

TEST_F(GridAccessTest, EveryCellHasItsTextItsPlaceAndItsHeaders) {
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 2; ++column) {
      QAccessibleInterface& cell = Cell(row, column);
      const QString text = QString::number(10 * (row + 1) + column + 1);
      EXPECT_TRUE(cell.isValid());
      EXPECT_EQ(cell.role(), QAccessible::Cell);
      EXPECT_EQ(cell.text(QAccessible::Name), text);
      EXPECT_EQ(cell.text(QAccessible::Value), text);
      EXPECT_EQ(cell.text(QAccessible::Description), "");
      EXPECT_EQ(cell.parent(), &Access());
      EXPECT_EQ(cell.childCount(), 0);
      EXPECT_EQ(cell.child(0), nullptr);
      QAccessibleTableCellInterface* place = cell.tableCellInterface();
      ASSERT_NE(place, nullptr);
      EXPECT_EQ(place->rowIndex(), row);
      EXPECT_EQ(place->columnIndex(), column);
      EXPECT_EQ(place->rowExtent(), 1);
      EXPECT_EQ(place->columnExtent(), 1);
      EXPECT_EQ(place->table(), &Access());
      EXPECT_EQ(Names(place->rowHeaderCells()), std::to_string(row + 1) + " ");
      EXPECT_EQ(Names(place->columnHeaderCells()), std::to_string(column + 1) + " ");
    }
  }
}

TEST_F(GridAccessTest, BesideTheTableThereIsNoCell) {
  for (const GridCell cell : {GridCell{-1, 0}, {0, -1}, {3, 0}, {0, 2}, {1 << 30, 1 << 30}}) {
    EXPECT_EQ(Table().cellAt(cell.row, cell.column), nullptr) << Written(cell);
  }
  EXPECT_EQ(Access().child(-1), nullptr);
  EXPECT_EQ(Access().child(12), nullptr);
}

TEST_F(GridAccessTest, ItsChildrenAreAllCellsRowByRow) {
  ASSERT_EQ(Access().childCount(), 12);
  std::string names;
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(Access().indexOfChild(Access().child(i)), i);
    names += NameOf(Access().child(i)) + " ";
  }
  EXPECT_EQ(names, " 1 2 1 11 12 2 21 22 3 31 32 ");
  EXPECT_EQ(&Child({2, 1}), &Cell(1, 0)) << "the same cell is the same object";
}

TEST_F(GridAccessTest, HeadersAreHeaders) {
  EXPECT_EQ(Child({0, 1}).role(), QAccessible::ColumnHeader);
  EXPECT_EQ(Child({1, 0}).role(), QAccessible::RowHeader);
  EXPECT_EQ(NameOf(&Child({0, 2})), "2");
  for (const GridCell cell : {GridCell{0, 0}, {0, 1}, {3, 0}}) {
    QAccessibleInterface& header = Child(cell);
    EXPECT_TRUE(header.isValid());
    EXPECT_EQ(header.tableCellInterface(), nullptr);
    EXPECT_EQ(header.actionInterface(), nullptr);
    EXPECT_FALSE(header.state().selectable);
    EXPECT_FALSE(header.state().focusable);
    EXPECT_FALSE(header.state().editable);
  }
  EXPECT_EQ(Table().columnDescription(1), "2");
  EXPECT_EQ(Table().rowDescription(2), "3");
  EXPECT_EQ(Table().rowDescription(3), "");
}

TEST_F(GridAccessTest, WithoutHeadersThereAreNone) {
  grid_.SetFixedRowCount(0);
  grid_.SetFixedColumnCount(0);
  EXPECT_EQ(Table().rowCount(), 4);
  EXPECT_EQ(Table().columnCount(), 3);
  EXPECT_EQ(Table().rowDescription(1), "");
  EXPECT_EQ(Names(Cell(1, 1).tableCellInterface()->rowHeaderCells()), "");
  EXPECT_EQ(Names(Cell(1, 1).tableCellInterface()->columnHeaderCells()), "");
}

TEST_F(GridAccessTest, NamesFollowTheTexts) {
  QAccessibleInterface& cell = Cell(0, 0);
  Put({1, 1}, u"new");
  EXPECT_EQ(NameOf(&cell), "new");
}

TEST_F(GridAccessTest, AMarkedCellSaysSo) {
  Put({1, 1}, u"11", {GridAlignment::Left, true});
  EXPECT_EQ(Cell(0, 0).text(QAccessible::Description), "marked");
  EXPECT_EQ(Cell(0, 1).text(QAccessible::Description), "");
}

TEST_F(GridAccessTest, ACellIsFoundAtItsPlaceOnTheScreen) {
  for (const GridCell cell : {GridCell{1, 1}, {3, 2}, {0, 1}, {2, 0}}) {
    const QPoint place = grid_.mapToGlobal(Middle(cell));
    EXPECT_EQ(Access().childAt(place.x(), place.y()), &Child(cell));
    EXPECT_TRUE(Child(cell).rect().contains(place));
    EXPECT_EQ(Child(cell).rect().size(), grid_.CellArea(cell).size());
  }
  const QPoint beside = grid_.mapToGlobal(QPoint(250, 100));
  EXPECT_EQ(Access().childAt(beside.x(), beside.y()), nullptr);
  EXPECT_EQ(Access().childAt(-100, -100), nullptr);
}

TEST_F(GridAccessTest, ACellOfAnotherGridIsNoChild) {
  CGridCtrl other(&window_);
  other.SetRowCount(3);
  other.SetColumnCount(3);
  QAccessibleInterface* stranger = QAccessible::queryAccessibleInterface(&other)->child(4);
  ASSERT_NE(stranger, nullptr);
  EXPECT_EQ(Access().indexOfChild(stranger), -1);
  EXPECT_EQ(Access().indexOfChild(nullptr), -1);
  EXPECT_EQ(Access().indexOfChild(QAccessible::queryAccessibleInterface(&window_)), -1);
}

// Cells that are there no more.

void UseInEveryWay(QAccessibleInterface& cell) {
  EXPECT_FALSE(cell.isValid());
  EXPECT_TRUE(cell.state().invalid);
  EXPECT_EQ(cell.parent(), nullptr);
  EXPECT_EQ(cell.object(), nullptr);
  EXPECT_EQ(cell.window(), nullptr);
  EXPECT_EQ(cell.rect(), QRect());
  EXPECT_EQ(cell.text(QAccessible::Name), "");
  EXPECT_EQ(cell.role(), QAccessible::Cell);
  EXPECT_EQ(cell.tableCellInterface(), nullptr);
  EXPECT_EQ(cell.actionInterface(), nullptr);
  cell.setText(QAccessible::Value, "7");
}

TEST_F(GridAccessTest, ACellThatIsThereNoMoreIsInvalidAndHarmless) {
  QAccessibleInterface& cell = Cell(2, 1);
  QAccessibleTableCellInterface& place = *cell.tableCellInterface();
  QAccessibleActionInterface& actions = *cell.actionInterface();
  const QAccessible::Id id = QAccessible::uniqueId(&cell);
  Build(2, 2);
  UseInEveryWay(cell);
  EXPECT_EQ(Access().indexOfChild(&cell), -1);
  EXPECT_EQ(place.table(), nullptr);
  EXPECT_EQ(place.rowIndex(), -1);
  EXPECT_EQ(place.columnIndex(), -1);
  EXPECT_FALSE(place.isSelected());
  EXPECT_TRUE(place.rowHeaderCells().isEmpty());
  EXPECT_TRUE(place.columnHeaderCells().isEmpty());
  actions.doAction(QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(grid_.IsEditing());
  Build(3, 2);
  EXPECT_TRUE(cell.isValid()) << "it is there again";
  EXPECT_EQ(QAccessible::accessibleInterface(id), &Cell(2, 1));
}

TEST_F(GridAccessTest, WithOtherColumnsACellKeepsItsPlaceAndGetsAnotherIndex) {
  QAccessibleInterface& cell = Cell(1, 1);
  EXPECT_EQ(Access().indexOfChild(&cell), 8);
  Build(3, 5);
  EXPECT_EQ(Access().indexOfChild(&cell), 14);
  EXPECT_EQ(NameOf(&cell), "22");
  EXPECT_EQ(Access().child(14), &cell);
}

TEST_F(GridAccessTest, ACellThatBecomesAHeaderIsOne) {
  QAccessibleInterface& cell = Cell(0, 0);
  QAccessibleActionInterface& actions = *cell.actionInterface();
  grid_.SetFixedRowCount(2);
  EXPECT_EQ(cell.role(), QAccessible::ColumnHeader);
  EXPECT_EQ(cell.tableCellInterface(), nullptr);
  EXPECT_EQ(cell.actionInterface(), nullptr);
  EXPECT_TRUE(actions.actionNames().isEmpty());
  actions.doAction(QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(grid_.IsEditing());
}

TEST_F(GridAccessTest, WithTheGridGoesTheTableAndItsCells) {
  std::vector<QAccessible::Id> ids{QAccessible::uniqueId(&Access())};
  for (int i = 0; i < 12; ++i) ids.push_back(QAccessible::uniqueId(Access().child(i)));
  for (const auto id : ids) EXPECT_NE(QAccessible::accessibleInterface(id), nullptr);
  delete &grid_;
  for (const auto id : ids) EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(GridAccessTest, AnEmptyGridIsAnEmptyTable) {
  grid_.SetFixedRowCount(0);
  grid_.SetFixedColumnCount(0);
  grid_.SetRowCount(0);
  grid_.SetColumnCount(0);
  EXPECT_EQ(Access().childCount(), 0);
  EXPECT_EQ(Access().child(0), nullptr);
  EXPECT_EQ(Table().rowCount(), 0);
  EXPECT_EQ(Table().selectedCellCount(), 0);
  EXPECT_FALSE(Table().selectRow(0));
  EXPECT_EQ(Access().focusChild(), nullptr);
}

TEST_F(GridAccessTest, WhereAllIsHeaderNoLineIsSelected) {
  grid_.SetFixedRowCount(4);
  EXPECT_EQ(Table().rowCount(), 0);
  EXPECT_EQ(Table().columnCount(), 2);
  EXPECT_FALSE(Table().isColumnSelected(0));
  EXPECT_EQ(Table().selectedColumnCount(), 0);
}

}  // namespace
}  // namespace kav::test::grid_access_table_test
