// The matrix screen: its keys pressed, its texts read.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "screens/matrix_driver.h"
#include "settings/keys.h"

namespace kav::test::matrix_dlg_test {
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

TEST_F(MatrixDlgTest, TheMatrixMenuTellsOfTheShownMatrix) {
  Resize(2, 2);
  TypeMatrix("0 -2;2 0");
  ChooseFrom(*dlg_, u"M&atrix", u"Rank");
  EXPECT_EQ(Answer(), u"Rank of [M1]: 2");
  EXPECT_EQ(Tab(), u"[M1]");
  ChooseFrom(*dlg_, u"M&atrix", u"Eigenvalues");
  EXPECT_EQ(Tab(), u"[M Ans]");
  EXPECT_EQ(Cells(), "0 2;0 -2");
  EXPECT_EQ(Answer(), u"Eigenvalues of [M1]: real, imaginary");
  ChooseTab(0);
  EXPECT_EQ(Answer(), u"");
  Put(u"[M1]*[M1]");
  ChooseFrom(*dlg_, u"M&atrix", u"QR: R");
  EXPECT_EQ(Cells(), "2 0;0 2");
  EXPECT_EQ(Line(), u"[M1]*[M1]");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "0 2;0 -2") << "the answer before";
  EXPECT_EQ(Answer(), u"");
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "2 0;0 2");
  ChooseTab(1);
  ExpectBox();
  ChooseFrom(*dlg_, u"M&atrix", u"Trace");
  ExpectSeen(u"Matrix [M2] is invalid", QMessageBox::Critical);
}

TEST_F(MatrixDlgTest, TheMatrixMenuIsOpenToTheKeyboardAndSaysWhatItsEntriesAre) {
  Resize(1, 1);
  TypeMatrix("7");
  Key(Qt::Key_A, Qt::AltModifier);
  QTest::keyClick(&Focused(), Qt::Key_Down);
  QTest::keyClick(&Focused(), Qt::Key_Return);
  EXPECT_EQ(Answer(), u"Trace of [M1]: 7");
  for (const QAction* action : MenuOf(*dlg_, u"M&atrix")->actions()) {
    EXPECT_FALSE(action->statusTip().isEmpty()) << action->text().toStdString();
  }
}

}  // namespace
}  // namespace kav::test::matrix_dlg_test
