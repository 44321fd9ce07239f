// Numbers and cells that are dragged over the grid of the matrices and the list of the statistics,
// and dropped there.
#include "screens/widgets/text_drops.h"

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QUrl>

#include "screens/matrix_driver.h"
#include "screens/offer_driver.h"
#include "screens/statistics_driver.h"

namespace kav::test::text_drops_test {
namespace {

QMimeData* DataOf(QMimeData& data, const QString& text) {
  data.setText(text);
  return &data;
}

/// Whether what is dragged to `place` would be taken there. It is held by a program that would
/// rather move it.
bool Drag(QWidget& cells, QPoint place, const QMimeData& data) {
  const auto actions = Qt::CopyAction | Qt::MoveAction;
  QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, {});
  enter.setDropAction(Qt::MoveAction);
  QApplication::sendEvent(&cells, &enter);
  QDragMoveEvent move(place, actions, &data, Qt::LeftButton, {});
  move.setDropAction(Qt::MoveAction);
  move.ignore();
  QApplication::sendEvent(&cells, &move);
  if (move.isAccepted()) {
    EXPECT_EQ(move.dropAction(), Qt::CopyAction);
  }
  return move.isAccepted();
}
bool Drag(QWidget& cells, QPoint place, const QString& text) {
  QMimeData data;
  return Drag(cells, place, *DataOf(data, text));
}

void Leave(QWidget& cells) {
  QDragLeaveEvent leave;
  QApplication::sendEvent(&cells, &leave);
}

void DropAt(QWidget& cells, QPoint place, const QString& text) {
  QMimeData data;
  Drag(cells, place, *DataOf(data, text));
  QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(&cells, &drop);
  QCoreApplication::processEvents();
}

/// The frame that shows what would change; empty if none is shown.
QRect Landing(const QWidget& cells) {
  for (const auto* part : cells.findChildren<QWidget*>()) {
    const bool isMark = part->testAttribute(Qt::WA_TransparentForMouseEvents);
    if (isMark && part->isVisible()) return part->geometry();
  }
  return {};
}

class MatrixDropsTest : public MatrixScreen {
 protected:
  QWidget& Part() { return *Grid().viewport(); }
  QRect Area(int row, int column) {
    return Grid().CellArea({row, column}).translated(-Part().geometry().topLeft());
  }
  void Drop(int row, int column, const QString& text) {
    DropAt(Part(), Area(row, column).center(), text);
  }
};

TEST_F(MatrixDropsTest, ANumberGoesToTheCellUnderTheMouseInOneStep) {
  ClickCell(1, 1);
  ClickCell(3, 3, Qt::ShiftModifier);
  EXPECT_TRUE(Drag(Part(), Area(1, 2).center(), QString("7")));
  EXPECT_EQ(Landing(Part()), Area(1, 2));
  EXPECT_TRUE(Drag(Part(), Area(2, 3).center(), QString("7")));
  EXPECT_EQ(Landing(Part()), Area(2, 3));
  Leave(Part());
  EXPECT_TRUE(Landing(Part()).isEmpty());
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  Drop(2, 3, "−1\u202F234.5\n");
  EXPECT_TRUE(Landing(Part()).isEmpty());
  EXPECT_EQ(Cells(), "_ _ _;_ _ -1234.5;_ _ _") << "whatever is selected";
  EXPECT_EQ(Grid().Focus(), (GridCell{2, 3}));
  EXPECT_TRUE(Grid().hasFocus());
  Drop(1, 1, "1e-3");
  EXPECT_EQ(Cells(), "1e-3 _ _;_ _ -1234.5;_ _ _");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "_ _ _;_ _ -1234.5;_ _ _");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixDropsTest, CommasAreAskedAboutAsThoseOfAPaste) {
  Drop(2, 2, "1,5");
  EXPECT_EQ(Asked(*dlg_), "What is 1,5?");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  TapOffer(*dlg_, "1.5");
  EXPECT_EQ(Cells(), "_ _ _;_ 1.5 _;_ _ _");
  Drop(1, 1, "1,234\n5,678");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Cells(), "_ _ _;_ 1.5 _;_ _ _");
}

TEST_F(MatrixDropsTest, WhatIsNoNumberIsRefusedAsAPasteIs) {
  ExpectBox();
  Drop(2, 2, "abc");
  ExpectSeen(u"Nothing was pasted: \"abc\" in row 1, column 1 of the pasted cells is no number.",
             QMessageBox::Warning);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixDropsTest, SeveralCellsArePastedFromTheCellOn) {
  Drop(2, 2, "1\t2\n3\t4\n5\t6\n");
  EXPECT_EQ(Cells(), "_ _ _;_ 1 2;_ 3 4;_ 5 6");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixDropsTest, BesideTheCellsAndForFilesThereIsNothingToDropOn) {
  Resize(1, 1);
  const QPoint beside(Area(1, 1).right() + 20, Area(1, 1).bottom() + 20);
  ASSERT_TRUE(Part().rect().contains(beside));
  EXPECT_FALSE(Drag(Part(), beside, QString("7")));
  EXPECT_TRUE(Landing(Part()).isEmpty());
  DropAt(Part(), beside, "7");
  QMimeData file;
  file.setUrls({QUrl::fromLocalFile("/numbers.txt")});
  EXPECT_FALSE(Drag(Part(), Area(1, 1).center(), file));
  EXPECT_EQ(Cells(), "_");
}

TEST_F(MatrixDropsTest, AnEditOfAnotherCellEndsFirst) {
  ClickCell(1, 1);
  Type("12");
  Drop(1, 2, "7");
  EXPECT_EQ(Cells(), "12 7 _;_ _ _;_ _ _");
  ClickCell(1, 1);
  Type("1,5");
  Drop(1, 3, "8");
  QCoreApplication::processEvents();
  EXPECT_EQ(Asked(*dlg_), "15 or 1.5?") << "about what was typed";
  EXPECT_EQ(Cells(), "12 7 _;_ _ _;_ _ _");
}

TEST_F(MatrixDropsTest, OnTheBoxOfACellANumberIsTypedAndSeveralCellsArePasted) {
  ClickCell(1, 1);
  Type("1");
  auto& box = *Grid().findChild<GridEdit*>();
  DropAt(box, {box.width() - 3, box.height() / 2}, "2");
  EXPECT_TRUE(Grid().IsEditing());
  Key(Qt::Key_Return);
  EXPECT_EQ(Cells(), "12 _ _;_ _ _;_ _ _");
  ClickCell(1, 1);
  Key(Qt::Key_F2);
  DropAt(box, {box.width() - 3, box.height() / 2}, "5\t6\n");
  EXPECT_FALSE(Grid().IsEditing());
  EXPECT_EQ(Cells(), "5 6 _;_ _ _;_ _ _");
}

TEST_F(MatrixDropsTest, HeldNearAnEdgeItScrolls) {
  Resize(10, 10);
  const QScrollBar& bar = *Grid().verticalScrollBar();
  const QScrollBar& across = *Grid().horizontalScrollBar();
  ASSERT_GT(bar.maximum() + across.maximum(), 0);
  const QPoint end(Part().width() - 2, Part().height() - 2);
  EXPECT_TRUE(Drag(Part(), end, QString("7")));
  EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() + across.value() > 0; }));
  DropAt(Part(), end, "7");
  const int scrolled = bar.value() + across.value();
  QTest::qWait(0);
  EXPECT_EQ(bar.value() + across.value(), scrolled);
  EXPECT_EQ(Grid().GetItemText(Grid().Focus().row, Grid().Focus().column), u"7");
}

template <class Screen>
class ListDrops : public Screen {
 protected:
  QWidget& Part() { return *this->Table().viewport(); }
  QRect Area(int row, int column) {
    return this->Table().visualRect(this->Table().model()->index(row, column));
  }
  void Drop(int row, int column, const QString& text) {
    DropAt(Part(), Area(row, column).center(), text);
  }
  QPoint Beside() { return {Part().width() / 2, Part().height() - 2}; }
};
using OneVariableDropsTest = ListDrops<OneVariableScreen>;
using TwoVariableDropsTest = ListDrops<TwoVariableScreen>;

TEST_F(TwoVariableDropsTest, ANumberTakesThePlaceOfTheCell) {
  AddRows("1 2;3 4 5");
  for (const int column : {0, 1, 2}) {
    EXPECT_TRUE(Drag(Part(), Area(1, column).center(), QString("7")));
    EXPECT_EQ(Landing(Part()), Area(1, column));
  }
  Drop(1, 1, "−1'234.5\n");
  EXPECT_EQ(Rows(), "3 4 5;1 -1234.5 1");
  EXPECT_EQ(SelectedRows(), "1");
  EXPECT_TRUE(ListHasFocus());
  Drop(0, 0, "7");
  Drop(0, 2, "3");
  EXPECT_EQ(Rows(), "7 4 3;1 -1234.5 1");
  EXPECT_EQ(Total(), "4");
  EXPECT_TRUE(Landing(Part()).isEmpty());
}

TEST_F(TwoVariableDropsTest, TheCellRefusesWhatItsFieldRefuses) {
  AddRows("1 2");
  ExpectBox();
  Drop(0, 1, "abc");
  ExpectSeen(u"Y must be a number such as -12.5 or 1.5e-3.", QMessageBox::Critical);
  ExpectBox();
  Drop(0, 2, "2.5");
  ExpectSeen(u"Count must be a whole number from 1 to 10000.", QMessageBox::Critical);
  EXPECT_EQ(Rows(), "1 2 1");
}

TEST_F(TwoVariableDropsTest, RowsArePastedWhereverTheyAreDropped) {
  AddRows("1 2");
  EXPECT_TRUE(Drag(Part(), Area(0, 1).center(), QString("5\t6\n7\t8\n")));
  EXPECT_EQ(Landing(Part()).topLeft(), QPoint(0, 0));
  EXPECT_EQ(Landing(Part()).width(), Part().width()) << "above all rows";
  Drop(0, 1, "5\t6\n7\t8\n");
  EXPECT_EQ(Rows(), "5 6 1;7 8 1;1 2 1");
}

TEST_F(OneVariableDropsTest, BesideTheRowsANumberIsPastedAsOne) {
  DropAt(Part(), Beside(), "7");
  EXPECT_EQ(Rows(), "7 1");
  Drop(0, 1, "4");
  EXPECT_EQ(Rows(), "7 4");
  EXPECT_EQ(Total(), "4");
}

TEST_F(OneVariableDropsTest, CommasAreAskedAboutAsThoseOfAPaste) {
  AddRows("1");
  Drop(0, 0, "2,5");
  EXPECT_EQ(Asked(*dlg_), "What is 2,5?");
  TapOffer(*dlg_, "2.5");
  EXPECT_EQ(Rows(), "2.5 1");
  Drop(0, 0, "2,5");
  TapOffer(*dlg_, "2 | 5");
  EXPECT_EQ(Rows(), "2 5;2.5 1");
}

TEST_F(OneVariableDropsTest, WhileARowIsEditedTheListTakesNothing) {
  AddRows("1");
  ClickRow(0);
  Tap(u"Edit");
  EXPECT_FALSE(Drag(Part(), Area(0, 0).center(), QString("7")));
  Drop(0, 0, "7");
  Tap(u"Cancel");
  EXPECT_EQ(Rows(), "1 1");
}

}  // namespace
}  // namespace kav::test::text_drops_test
