// The matrix screen: its keys pressed, its texts read.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QHelpEvent>
#include <QToolTip>

#include "screens/matrix_driver.h"
#include "settings/keys.h"

namespace kav::test {
namespace {

class MatrixDlgTest : public MatrixScreen {};

TEST_F(MatrixDlgTest, StartsWithAnEmptyFirstMatrixOfTheDefaultSizeAndTheFocusOnTheLine) {
  EXPECT_EQ(dlg_->windowTitle(), "Kav Calculator");
  EXPECT_EQ(Tab(), u"[M1]");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  EXPECT_EQ(Grid().GetItemText(0, 3), u"3");
  EXPECT_EQ(Grid().GetItemText(2, 0), u"2");
  EXPECT_EQ(Grid().GetColumnWidth(0), 20);
  EXPECT_EQ(Grid().GetColumnWidth(1), 60);
  EXPECT_EQ(Line(), u"");
  EXPECT_EQ(Answer(), u"");
  EXPECT_TRUE(LineHasFocus());
  EXPECT_FALSE(IsOn(u"MPB"));
}

TEST_F(MatrixDlgTest, KeysWriteIntoTheLine) {
  Tap(u"7 8 9 4 5 6 1 2 3 0 00 . Exp + - * / Y^N");
  EXPECT_EQ(Line(), u"789456123000.E+-*/^");
  Tap(u"BS BS");
  EXPECT_EQ(Line(), u"789456123000.E+-*");
  Key(Qt::Key_Home);
  Tap(u"DEL");
  EXPECT_EQ(Line(), u"89456123000.E+-*");
  Tap(u"CLR (...) 5");
  EXPECT_EQ(Line(), u"(5)");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(MatrixDlgTest, CellsAreTypedAndTheAnswerIsShownInItsTab) {
  Resize(2, 2);
  TypeMatrix("1 2;3 4");
  EXPECT_EQ(Cells(), "1 2;3 4");
  Evaluate(u"[M1]*[M1]");
  EXPECT_EQ(Tab(), u"[M Ans]");
  EXPECT_EQ(Cells(), "7 10;15 22");
  EXPECT_EQ(SelectedText(), u"[M1]*[M1]");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(MatrixDlgTest, OnTheAnswersTabNothingThatWouldReplaceItIsOffered) {
  EXPECT_TRUE(IsOn(u"M CLS"));
  EXPECT_TRUE(IsOn(u"MSize"));
  Tap(u"MTools");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"M Cut", u"M Copy", u"M Paste", u"-", u"M Save", u"M Load",
                                        u"-", u"Reset Col Width", u"Autofit Col Width"}));
  Key(Qt::Key_Escape);
  ChooseTab(3);
  EXPECT_FALSE(IsOn(u"M CLS"));
  EXPECT_FALSE(IsOn(u"MSize"));
  Tap(u"MTools");
  EXPECT_EQ(Offered(OpenMenu()),
            (Texts{u"M Copy", u"-", u"M Save", u"-", u"Reset Col Width", u"Autofit Col Width"}));
  Key(Qt::Key_Escape);
  ChooseTab(0);
  EXPECT_TRUE(IsOn(u"M CLS"));
  EXPECT_TRUE(IsOn(u"MSize"));
}

TEST_F(MatrixDlgTest, AfterAFailedExpressionClearingAndSizingWaitForTheNextChangeOfTab) {
  ExpectFailure(u"[M1]+[M2]", u"Matrix [M1] is invalid");
  EXPECT_TRUE(IsOn(u"M CLS"));
  Resize(1, 1);
  TypeCells(1, 1, "0");
  ExpectFailure(u"inverse([M1])", u"[Matrix Inverse] Not Invertible(Determinant Equals 0)");
  EXPECT_EQ(Tab(), u"[M1]");
  EXPECT_FALSE(IsOn(u"M CLS"));
  EXPECT_FALSE(IsOn(u"MSize"));
  EXPECT_EQ(SelectedText(), u"inverse([M1])");
  ChooseTab(1);
  ChooseTab(0);
  EXPECT_TRUE(IsOn(u"M CLS"));
  EXPECT_TRUE(IsOn(u"MSize"));
}

TEST_F(MatrixDlgTest, ANumberExpressionAnswersInTheResultLine) {
  Evaluate(u"1000*2");
  EXPECT_EQ(Answer(), u"2,000");
  EXPECT_EQ(Tab(), u"[M1]");
  Evaluate(u"1+");
  EXPECT_EQ(Answer(), u"Expression error.");
  EXPECT_FALSE(IsOn(u"MPB"));
}

TEST_F(MatrixDlgTest, OnTheAnswersTabANumberExpressionDoesNothing) {
  ChooseTab(3);
  Evaluate(u"1+1");
  EXPECT_EQ(Answer(), u"");
}

TEST_F(MatrixDlgTest, TheAngleUnitIsSwitchedAndUsed) {
  Evaluate(u"sin(30)");
  EXPECT_EQ(Answer(), u"0.5");
  Tap(u"DEG");
  EXPECT_NE(FindKey(*dlg_, u"RAD"), nullptr);
  Evaluate(u"sin(pi/2)");
  EXPECT_EQ(Answer(), u"1");
  dlg_.reset();
  EXPECT_EQ(frame_.store.Get(kAngleType), 2);
}

TEST_F(MatrixDlgTest, MenusWriteFunctionsOperationsAndNames) {
  Tap(u"MOpers");
  EXPECT_EQ(Offered(OpenMenu()),
            (Texts{u"Inverse", u"Transpose", u"Linear Equation", u"Determinant", u"Triangular"}));
  Choose(u"Linear Equation");
  Tap(u"MVar");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"[M1]", u"[M2]", u"[M3]", u"[M Ans]"}));
  Choose(u"[M Ans]");
  EXPECT_EQ(Line(), u"linearequation([M Ans]");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(MatrixDlgTest, ToolsBringBackWhatTheirDialogsFound) {
  frame_.dialogs.constants = [](QWidget*) { return std::optional<std::u16string>(u"299792458"); };
  frame_.dialogs.recallVariable = [](QWidget*) { return std::optional<std::u16string>(u"1,5"); };
  frame_.dialogs.converter = [](QWidget*, const ConverterInput& input) {
    return ConverterOutcome{u"12", input.positions, input.memory};
  };
  frame_.dialogs.macroList = [](QWidget*) { return std::optional<int>(); };
  frame_.dialogs.macroEditor = [](QWidget*) {};
  Open();
  Tap(u"Tools");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"Constants", u"Recall MemVar", u"Converter", u"Macro"}));
  Choose(u"Constants");
  EXPECT_EQ(Line(), u"299792458");
  Tap(u"+ Tools");
  Choose(u"Converter");
  EXPECT_EQ(Line(), u"299792458+12");
  ExpectBox();
  Tap(u"Tools");
  Choose(u"Macro");
  ExpectSeen(u"Not exist saved macro", QMessageBox::Critical);
}

TEST_F(MatrixDlgTest, TheHistoryIsReusedNewestFirst) {
  Resize(1, 1);
  TypeCells(1, 1, "2");
  Evaluate(u"[M1]+[M1]");
  Evaluate(u"[M1]*[M1]");
  Tap(u"CLR MPB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"[M1]*[M1]", u"[M1]+[M1]"}));
  Choose(u"[M1]+[M1]");
  EXPECT_EQ(Line(), u"[M1]+[M1]");
  dlg_.reset();
  EXPECT_EQ(frame_.store.Get(kMatrixHistory.count), 2);
  EXPECT_EQ(frame_.store.Get(kMatrixHistory.entry(0)), "[M1]+[M1]");
}

TEST_F(MatrixDlgTest, TheSizeDialogStartsFromTheSizeAndKeepsItWhenCancelled) {
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

TEST_F(MatrixDlgTest, ClearingAsksAndEmptiesTheSelectedCells) {
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

TEST_F(MatrixDlgTest, AnEditCopiesTheCellIntoTheLineAndSelectsIt) {
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

TEST_F(MatrixDlgTest, MatricesAreCutCopiedAndPastedWhole) {
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

TEST_F(MatrixDlgTest, PasteWithNothingCutOrCopiedDoesNothing) {
  Tap(u"MTools");
  Choose(u"M Paste");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixDlgTest, WidthsAreDraggedKeptForEachMatrixFittedAndReset) {
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

TEST_F(MatrixDlgTest, ACellHasAHintOfWhatItIsReadAsAndAHeaderHasNone) {
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

TEST_F(MatrixDlgTest, CellsAreExchangedWithASpreadsheet) {
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

TEST_F(MatrixDlgTest, WhatDoesNotFitIsToldOnce) {
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

TEST_F(MatrixDlgTest, ChangesAreUndoneAndRedoneFromGridAndMenu) {
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

TEST_F(MatrixDlgTest, DeleteEmptiesTheSelectedCellsAndCanBeUndone) {
  TypeCells(1, 1, "1 2");
  ClickCell(1, 1);
  ClickCell(1, 2, Qt::ShiftModifier);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "1 2 _;_ _ _;_ _ _");
}

TEST_F(MatrixDlgTest, TheEditMenuWorksOnTheLineOnceThatHasTheFocus) {
  ClickCell(1, 1);
  Click(Expression(*dlg_));
  Type("12");
  ChooseFrom(*dlg_, u"&Edit", u"Select &All");
  EXPECT_EQ(SelectedText(), u"12");
}

TEST_F(MatrixDlgTest, TheEditMenuCopiesWhatIsSelectedOfTheResult) {
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

TEST_F(MatrixDlgTest, AnEqualsSignInTheGridEvaluates) {
  Put(u"3*4");
  ClickCell(1, 1);
  Type("=");
  EXPECT_EQ(Answer(), u"12");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixDlgTest, AnEditThatIsGoingOnIsTakenWhenAKeyIsPressed) {
  Resize(1, 1);
  ClickCell(1, 1);
  Type("5");
  Put(u"[M1]+[M1]");
  Tap(u"=");
  EXPECT_EQ(Tab(), u"[M Ans]");
  EXPECT_EQ(Cells(), "10");
}

TEST_F(MatrixDlgTest, AScreenThatIsClosedDuringAnEditEndsItInTime) {
  ClickCell(1, 1);
  Type("7");
  ASSERT_TRUE(Grid().IsEditing());
  Open();  // The edit must not end after the matrices are gone, which the sanitizers would see.
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixDlgTest, SettingsSayHowANewMatrixIs) {
  frame_.store.Set(kMatrixRows, 2);
  frame_.store.Set(kMatrixColumns, 4);
  frame_.store.Set(kMatrixColumnWidth, 90);
  frame_.store.Set(kMatrixAlignment, 7);
  Open();
  EXPECT_EQ(Cells(), "_ _ _ _;_ _ _ _");
  EXPECT_EQ(Grid().GetColumnWidth(4), 90);
  EXPECT_EQ(Grid().Model().GetItemFormat(1, 1).alignment, GridAlignment::Right);
  EXPECT_EQ(Grid().Model().GetItemFormat(1, 0).alignment, GridAlignment::Centre);
}

TEST_F(MatrixDlgTest, TheDisplaySettingsOpenWithTheirMatrixPageAndAreTaken) {
  std::optional<DisplayPage> opened;
  frame_.dialogs.displaySettings = [&](QWidget*, DisplayPage first) {
    opened = first;
    frame_.store.Set(kMatrixAlignment, 1);
    return true;
  };
  Open();
  ChooseFrom(*dlg_, u"&File", u"&Config...");
  EXPECT_EQ(opened, DisplayPage::Matrix);
  EXPECT_EQ(Grid().Model().GetItemFormat(1, 1).alignment, GridAlignment::Right);
}

TEST_F(MatrixDlgTest, WhatIsLeftIsSavedAfterEachExpression) {
  const int before = frame_.saves;
  Evaluate(u"1+1");
  QCoreApplication::processEvents();
  EXPECT_EQ(frame_.saves, before + 1);
}

TEST_F(MatrixDlgTest, ACellThatIsNoNumberIsMarked) {
  TypeCells(1, 1, "1 x");
  EXPECT_FALSE(Grid().Model().GetItemFormat(1, 1).isMarked);
  EXPECT_TRUE(Grid().Model().GetItemFormat(1, 2).isMarked);
}

}  // namespace
}  // namespace kav::test
