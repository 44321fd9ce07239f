// The cells of the matrix screen: sized, edited, exchanged, undone.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QHelpEvent>
#include <QToolTip>
#include <string>

#include "screens/matrix_driver.h"

namespace kav::test::matrix_cells_test {
namespace {

class MatrixCellsTest : public MatrixScreen {};

TEST_F(MatrixCellsTest, TheSizeDialogStartsFromTheSizeAndKeepsItWhenCancelled) {
  BoxWatch::Instance().ExpectDialog([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Select Matrix Size");
    const auto lists = dialog.findChildren<QComboBox*>();
    EXPECT_EQ(lists[0]->accessibleName(), "Rows");
    EXPECT_EQ(lists[0]->currentText(), "3");
    EXPECT_EQ(lists[0]->count(), 10);
    EXPECT_EQ(lists[0]->itemText(9), "10");
    EXPECT_EQ(lists[1]->accessibleName(), "Columns");
    lists[1]->setCurrentText("7");
    Click(*FindKey(dialog, u"Cancel"));
  });
  Tap(u"MSize");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  Resize(1, 4);
  EXPECT_EQ(Cells(), "_ _ _ _");
  EXPECT_EQ(Grid().Model().ColumnCount(), 5);
}

TEST_F(MatrixCellsTest, ClearingAsksAndEmptiesTheSelectedCells) {
  TypeMatrix("1 2 3;4 5 6;7 8 9");
  ClickCell(1, 1);
  ClickCell(2, 2, Qt::ShiftModifier);
  ExpectBox(QMessageBox::No);
  TapKey(u"M CLS");
  ExpectSeen(u"Are you sure you want to delete the selected cell(s)?", QMessageBox::Question);
  EXPECT_EQ(Cells(), "1 2 3;4 5 6;7 8 9");
  ExpectBox(QMessageBox::Yes);
  TapKey(u"M CLS");
  BoxWatch::Instance().TakeSeen();
  EXPECT_EQ(Cells(), "_ _ 3;_ _ 6;7 8 9");
  ExpectFailure(u"[M1]", u"Matrix [M1] is invalid");
}

TEST_F(MatrixCellsTest, AnEditCopiesTheCellIntoTheLineAndSelectsIt) {
  TypeCells(1, 1, "42");
  ClickCell(1, 1);
  Key(Qt::Key_F2);
  EXPECT_EQ(Line(), u"42");
  EXPECT_EQ(SelectedText(), u"42");
  Key(Qt::Key_Escape);
  ClickCell(2, 2);
  Key(Qt::Key_F2);
  EXPECT_EQ(Line(), u"42") << "an empty cell leaves the line alone";
  Key(Qt::Key_Escape);
}

TEST_F(MatrixCellsTest, MatricesAreCutCopiedAndPastedWhole) {
  Resize(1, 2);
  TypeCells(1, 1, "1 2");
  Tap(u"MTools");
  Choose(u"M Cut");
  EXPECT_EQ(Cells(), "_ _");
  ChooseTab(1);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  Tap(u"MTools");
  Choose(u"M Paste");
  EXPECT_EQ(Cells(), "1 2");
}

TEST_F(MatrixCellsTest, PasteWithNothingCutOrCopiedDoesNothing) {
  Tap(u"MTools");
  Choose(u"M Paste");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixCellsTest, WidthsAreDraggedKeptForEachMatrixFittedAndReset) {
  const QRect header = Grid().CellArea({0, 1});
  const QPoint edge(header.right(), header.center().y());
  QTest::mousePress(&Grid(), Qt::LeftButton, {}, edge);
  QTest::mouseMove(&Grid(), edge + QPoint(30, 0));
  QTest::mouseRelease(&Grid(), Qt::LeftButton, {}, edge + QPoint(30, 0));
  const int dragged = Grid().GetColumnWidth(1);
  EXPECT_GT(dragged, 60);
  ChooseTab(1);
  EXPECT_EQ(Grid().GetColumnWidth(1), 60);
  ChooseTab(0);
  EXPECT_EQ(Grid().GetColumnWidth(1), dragged);
  Tap(u"MTools");
  Choose(u"Reset Col Width");
  EXPECT_EQ(Grid().GetColumnWidth(1), 60);
  EXPECT_EQ(Grid().GetColumnWidth(0), 20);
  TypeCells(1, 1, "123456789.123456789");
  Tap(u"MTools");
  Choose(u"Autofit Col Width");
  EXPECT_GT(Grid().GetColumnWidth(1), 80);
  EXPECT_LT(Grid().GetColumnWidth(2), 60);
}

TEST_F(MatrixCellsTest, ACellHasAHintOfWhatItIsReadAsAndAHeaderHasNone) {
  TypeCells(1, 1, "12abc");
  const auto hintAt = [this](GridCell cell) {
    const QPoint place = Grid().CellArea(cell).center();
    QWidget* part = Grid().childAt(place);
    if (part == nullptr) part = &Grid();
    QHelpEvent event(QEvent::ToolTip, part->mapFrom(&Grid(), place), Grid().mapToGlobal(place));
    QApplication::sendEvent(part, &event);
    return QToolTip::text().toStdString();
  };
  // A hint that shows goes a moment later.
  EXPECT_EQ(hintAt({1, 2}), "");
  EXPECT_EQ(hintAt({0, 1}), "");
  EXPECT_EQ(hintAt({1, 1}), "12");
}

TEST_F(MatrixCellsTest, CellsAreExchangedWithASpreadsheet) {
  ClickCell(1, 1);
  QApplication::clipboard()->setText("1\t2\n3\t4\n");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "1 2 _;3 4 _;_ _ _");
  ClickCell(1, 1);
  ClickCell(2, 2, Qt::ShiftModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "1\t2\n3\t4");
  ClickCell(3, 3);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "1 2 _ _;3 4 _ _;_ _ 1 2;_ _ 3 4");
}

TEST_F(MatrixCellsTest, WhatDoesNotFitIsToldOnce) {
  ClickCell(1, 1);
  QApplication::clipboard()->setText("1 2 3 4 5 6 7 8 9 10 11 12");
  ExpectBox();
  Key(Qt::Key_V, Qt::ControlModifier);
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_NE(seen.front().text.find(u"2"), std::u16string::npos);
  EXPECT_EQ(Grid().Model().ColumnCount(), 11);
  EXPECT_EQ(Grid().GetItemText(1, 10), u"10");
}

TEST_F(MatrixCellsTest, ChangesAreUndoneAndRedoneFromGridAndMenu) {
  TypeCells(1, 1, "1 2");
  ClickCell(1, 1);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "1 _ _;_ _ _;_ _ _");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  QTest::keySequence(QApplication::focusWidget(), QKeySequence::Redo);
  EXPECT_EQ(Cells(), "1 _ _;_ _ _;_ _ _");
  ClickCell(1, 1);
  ChooseFrom(*dlg_, u"&Edit", u"&Undo");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixCellsTest, DeleteEmptiesTheSelectedCellsAndCanBeUndone) {
  TypeCells(1, 1, "1 2");
  ClickCell(1, 1);
  ClickCell(1, 2, Qt::ShiftModifier);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "1 2 _;_ _ _;_ _ _");
}

TEST_F(MatrixCellsTest, TheEditMenuWorksOnTheLineOnceThatHasTheFocus) {
  ClickCell(1, 1);
  Click(Expression(*dlg_));
  Type("12");
  ChooseFrom(*dlg_, u"&Edit", u"Select &All");
  EXPECT_EQ(SelectedText(), u"12");
}

TEST_F(MatrixCellsTest, TheEditMenuCopiesWhatIsSelectedOfTheResult) {
  Evaluate(u"1+1");
  TypeCells(1, 1, "5");
  Result(*dlg_).setFocus();
  Result(*dlg_).selectAll();
  ChooseFrom(*dlg_, u"&Edit", u"&Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), "2");
  ClickCell(1, 1);
  ClickCell(1, 1, Qt::ShiftModifier);
  ChooseFrom(*dlg_, u"&Edit", u"Cu&t");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixCellsTest, AnEqualsSignInTheGridEvaluates) {
  Put(u"3*4");
  ClickCell(1, 1);
  Type("=");
  EXPECT_EQ(Answer(), u"12");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixCellsTest, AnEditThatIsGoingOnIsTakenWhenAKeyIsPressed) {
  Resize(1, 1);
  ClickCell(1, 1);
  Type("5");
  Put(u"[M1]+[M1]");
  Tap(u"=");
  EXPECT_EQ(Tab(), u"[M Ans]");
  EXPECT_EQ(Cells(), "10");
}

TEST_F(MatrixCellsTest, AScreenThatIsClosedDuringAnEditEndsItInTime) {
  ClickCell(1, 1);
  Type("7");
  ASSERT_TRUE(Grid().IsEditing());
  Open();  // The edit must not end after the matrices are gone, which the sanitizers would see.
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixCellsTest, ACellThatIsNoNumberIsMarked) {
  TypeCells(1, 1, "1 x");
  EXPECT_FALSE(Grid().Model().GetItemFormat(1, 1).isMarked);
  EXPECT_TRUE(Grid().Model().GetItemFormat(1, 2).isMarked);
}

}  // namespace
}  // namespace kav::test::matrix_cells_test
