// A grid as a screen reader finds it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "screens/grid_driver.h"

namespace {

bool isListening = false;
const QObject* listenedTo = nullptr;
std::vector<std::pair<QAccessible::Event, int>> told;  // and the child that it is about

}  // namespace

// Without a display there is no screen reader: what would go to one is caught here.
bool QAccessible::isActive() {
  return isListening;
}
void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  if (event->object() == listenedTo) told.emplace_back(event->type(), event->child());
}

namespace kav::test {
namespace {

using Event = std::pair<QAccessible::Event, int>;

/// A grid of three rows and two columns with the texts "11" to "32", and somebody who listens.
class GridAccessTest : public GridScreen {
 protected:
  GridAccessTest() {
    grid_.setAccessibleName("Cells");
    Build(3, 2);
    for (int row = 1; row <= 3; ++row) {
      for (int column = 1; column <= 2; ++column) {
        Put({row, column}, QString::number(10 * row + column).toStdU16String());
      }
    }
    isListening = true;
    listenedTo = &grid_;
    told.clear();
  }
  ~GridAccessTest() override {
    isListening = false;
    listenedTo = nullptr;
  }

  QAccessibleInterface& Access() { return *QAccessible::queryAccessibleInterface(&grid_); }
  QAccessibleTableInterface& Table() { return *Access().tableInterface(); }
  QAccessibleInterface& Cell(int row, int column) { return *Table().cellAt(row, column); }
  /// As the grid counts them, headers included.
  QAccessibleInterface& Child(GridCell cell) { return *Access().child(Index(cell)); }
  int Index(GridCell cell) { return cell.row * grid_.Model().ColumnCount() + cell.column; }

  static std::string NameOf(QAccessibleInterface* cell) {
    return cell == nullptr ? "(null)" : cell->text(QAccessible::Name).toStdString();
  }
  static std::string Names(const QList<QAccessibleInterface*>& cells) {
    std::string names;
    for (QAccessibleInterface* cell : cells) names += NameOf(cell) + " ";
    return names;
  }
  static std::vector<Event> Heard() { return std::exchange(told, {}); }
};

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

// States.

TEST_F(GridAccessTest, StatesSayWhatCanBeDoneWithACell) {
  EXPECT_TRUE(Cell(0, 0).state().selectable);
  EXPECT_TRUE(Cell(0, 0).state().focusable);
  EXPECT_TRUE(Cell(0, 0).state().editable);
  EXPECT_FALSE(Cell(0, 0).state().readOnly);
  EXPECT_FALSE(Cell(0, 0).state().disabled);
  EXPECT_FALSE(Cell(0, 0).state().invisible);
  grid_.SetEditable(false);
  EXPECT_FALSE(Cell(0, 0).state().editable);
  EXPECT_TRUE(Cell(0, 0).state().readOnly);
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
  EXPECT_EQ(Table().selectedColumns(), QList<int>{});
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

TEST_F(GridAccessTest, WhereCellsCannotBeEditedThatIsNoAction) {
  grid_.SetEditable(false);
  QAccessibleActionInterface* actions = Cell(0, 0).actionInterface();
  EXPECT_EQ(actions->actionNames(), QStringList{QAccessibleActionInterface::setFocusAction()});
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(grid_.IsEditing());
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

// Events.

TEST_F(GridAccessTest, AMoveIsToldWithTheCellThatItLeadsTo) {
  grid_.setFocus();
  grid_.SetFocusCell({1, 1});
  Heard();
  Key(Qt::Key_Down);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Focus, Index({2, 1})}}));
  Key(Qt::Key_Right);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Focus, Index({2, 2})}}));
  Key(Qt::Key_Right);
  EXPECT_EQ(Heard(), std::vector<Event>{});
  ClickCell({1, 1});
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Focus, Index({1, 1})}}));
}

TEST_F(GridAccessTest, ASelectionIsToldWithTheCellAtItsEnd) {
  grid_.setFocus();
  grid_.SetFocusCell({1, 1});
  Heard();
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Selection, Index({2, 1})}}));
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Selection, Index({3, 2})}}));
}

TEST_F(GridAccessTest, WhoComesToTheGridIsToldTheCell) {
  grid_.SetFocusCell({3, 1});
  EXPECT_EQ(Heard(), std::vector<Event>{}) << "the keys are elsewhere";
  grid_.setFocus();
  const auto heard = Heard();
  EXPECT_NE(std::find(heard.begin(), heard.end(), Event(QAccessible::Focus, Index({3, 1}))),
            heard.end());
}

TEST_F(GridAccessTest, ATypedTextIsTold) {
  grid_.setFocus();
  grid_.SetFocusCell({2, 2});
  Type("7");
  Heard();
  Key(Qt::Key_Return);
  const auto heard = Heard();
  EXPECT_NE(std::find(heard.begin(), heard.end(), Event(QAccessible::NameChanged, Index({2, 2}))),
            heard.end());
}

TEST_F(GridAccessTest, AnotherShapeIsToldOnceAndTheSameNot) {
  grid_.SetRowCount(9);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::TableModelChanged, -1}}));
  grid_.SetRowCount(9);
  grid_.SetRowCount(-1);
  EXPECT_EQ(Heard(), std::vector<Event>{});
}

TEST_F(GridAccessTest, WhereNobodyListensNothingIsTold) {
  isListening = false;
  grid_.setFocus();
  Heard();
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  grid_.SetRowCount(9);
  EXPECT_EQ(Heard(), std::vector<Event>{});
}

}  // namespace
}  // namespace kav::test
