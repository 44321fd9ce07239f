// The matrix screen worked by keys alone: undo from anywhere, tabs, sizes, what "=" says of cells.
#include <gtest/gtest.h>

#include <QComboBox>
#include <string>
#include <string_view>

#include "screens/matrix_driver.h"

namespace kav::test::matrix_keyboard_test {
namespace {

class MatrixKeyboardTest : public MatrixScreen {
 protected:
  void Undo() { Key(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { Key(Qt::Key_Y, Qt::ControlModifier); }
};

TEST_F(MatrixKeyboardTest, AMatrixThatWasCutOrPastedFromTheMenuComesBackFromTheLine) {
  Resize(1, 2);
  TypeCells(1, 1, "1 2");
  Tap(u"MTools");
  Choose(u"M Cut");
  ASSERT_TRUE(LineHasFocus());
  Undo();
  EXPECT_EQ(Cells(), "1 2");
  Redo();
  EXPECT_EQ(Cells(), "_ _");
  QTest::keySequence(QApplication::focusWidget(), QKeySequence::Undo);
  EXPECT_EQ(Cells(), "1 2");
  ChooseTab(1);
  Tap(u"MTools");
  Choose(u"M Paste");
  EXPECT_EQ(Cells(), "1 2");
  ChooseFrom(*dlg_, u"&Edit", u"&Undo");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  ChooseFrom(*dlg_, u"&Edit", u"&Redo");
  EXPECT_EQ(Cells(), "1 2");
}

TEST_F(MatrixKeyboardTest, UndoTakesTheLastEditBackBeItOfTheLineOrOfACell) {
  TypeCells(1, 1, "1");
  Click(Expression(*dlg_));
  Type("12");
  Undo();
  EXPECT_EQ(Line(), u"");
  EXPECT_EQ(Cells(), "1 _ _;_ _ _;_ _ _");
  Undo();
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  Redo();
  EXPECT_EQ(Cells(), "1 _ _;_ _ _;_ _ _");
  Redo();
  EXPECT_EQ(Line(), u"12");
}

TEST_F(MatrixKeyboardTest, UndoAndRedoShowTheMatrixThatTheyChange) {
  TypeCells(1, 1, "1");
  ChooseTab(1);
  Undo();
  EXPECT_EQ(Tab(), u"[M1]");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
  ChooseTab(2);
  Redo();
  EXPECT_EQ(Tab(), u"[M1]");
  EXPECT_EQ(Cells(), "1 _ _;_ _ _;_ _ _");
  ClickCell(2, 2);
  Undo();
  Redo();
  EXPECT_EQ(Cells(), "1 _ _;_ _ _;_ _ _") << "in the grid, too";
}

TEST_F(MatrixKeyboardTest, TheMenuOffersUndoAndRedoWhereThereIsSomething) {
  const auto offered = [this] {
    QMenu* menu = MenuOf(*dlg_, u"&Edit");
    emit menu->aboutToShow();
    std::string offers;
    for (const int place : {0, 1}) offers += menu->actions()[place]->isEnabled() ? '+' : '-';
    return offers;
  };
  ClickCell(1, 1);
  EXPECT_EQ(offered(), "--");
  TypeCells(1, 1, "1");
  EXPECT_EQ(offered(), "+-");
  Click(Expression(*dlg_));
  EXPECT_EQ(offered(), "+-");
  Undo();
  EXPECT_EQ(offered(), "-+");
}

TEST_F(MatrixKeyboardTest, ControlAndPageKeysChangeTheMatrixAndLeaveTheFocus) {
  ClickCell(2, 3);
  Key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Tab(), u"[M2]");
  EXPECT_TRUE(Grid().hasFocus());
  EXPECT_EQ(Grid().Focus(), (GridCell{2, 3}));
  Type("5");
  Key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Tab(), u"[M3]");
  Click(Expression(*dlg_));
  Key(Qt::Key_PageDown, Qt::ControlModifier);
  Key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Tab(), u"[M Ans]") << "there is none behind it";
  EXPECT_TRUE(LineHasFocus());
  Key(Qt::Key_PageUp, Qt::ControlModifier);
  Key(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "_ _ _;_ _ 5;_ _ _") << "of [M2]";
}

TEST_F(MatrixKeyboardTest, ArrowsLeadFromTabToTab) {
  Tabs().setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Right);
  Key(Qt::Key_Right);
  EXPECT_EQ(Tab(), u"[M3]");
  EXPECT_TRUE(Tabs().hasFocus());
  ChooseTab(0);
  Click(Expression(*dlg_));
  ChooseTab(1);
  EXPECT_TRUE(LineHasFocus()) << "a click leads back to the line";
}

TEST_F(MatrixKeyboardTest, TypedSizesAreChosenAsTheyAreTyped) {
  const auto sizeOf = [this](const QString& typed) {
    QString size;
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      auto& rows = *dialog.findChildren<QComboBox*>().front();
      rows.setFocus();
      QTest::keyClicks(&rows, typed);
      size = rows.currentText();
      dialog.reject();
    });
    Tap(u"MSize");
    return size.toStdString();
  };
  for (const char* typed : {"1", "10", "5", "7"}) EXPECT_EQ(sizeOf(typed), typed);
  EXPECT_EQ(sizeOf("12"), "2");
  EXPECT_EQ(sizeOf("x"), "3");
}

TEST_F(MatrixKeyboardTest, EqualsNamesCellsThatAreNoNumbersOnce) {
  Resize(2, 2);
  TypeMatrix("1/3 2;abc 4");
  ExpectBox();
  Evaluate(u"[M1]*2");
  ExpectSeen(
      u"[M1], row 1, column 1: \"1/3\" is no number and counts as 1.\n"
      u"[M1], row 2, column 1: \"abc\" is no number and counts as 0.",
      QMessageBox::Warning);
  EXPECT_EQ(Cells(), "2 4;0 8");
  Evaluate(u"[M1]*3");
  EXPECT_EQ(Cells(), "3 6;0 12");
  ChooseTab(0);
  TypeCells(1, 2, "x");
  ExpectBox();
  Evaluate(u"[M1]*2");
  ExpectSeen(u"[M1], row 1, column 2: \"x\" is no number and counts as 0.", QMessageBox::Warning);
}

TEST_F(MatrixKeyboardTest, AFailureNamesTheCellBelowItsMessage) {
  const auto more = [this](std::u16string_view line) {
    ExpectBox();
    Evaluate(line);
    const auto seen = BoxWatch::Instance().TakeSeen();
    return seen.empty() ? std::u16string() : seen.front().text + u"|" + seen.front().more;
  };
  EXPECT_EQ(more(u"[M1]"), u"Matrix [M1] is invalid|Row 1, column 1 is empty.");
  Resize(1, 1);
  TypeCells(1, 1, "abc");
  EXPECT_EQ(more(u"inverse([M1])"),
            u"[Matrix Inverse] Not Invertible(Determinant Equals 0)|"
            u"[M1], row 1, column 1: \"abc\" is no number and counts as 0.");
}

TEST_F(MatrixKeyboardTest, AMatrixExpressionClearsTheResultOfANumberExpression) {
  Resize(1, 1);
  TypeCells(1, 1, "2");
  Evaluate(u"1/0");
  EXPECT_EQ(Answer(), u"Division exceeded calculation limit.");
  Evaluate(u"[M1]*3");
  EXPECT_EQ(Answer(), u"");
  EXPECT_EQ(Cells(), "6");
}

}  // namespace
}  // namespace kav::test::matrix_keyboard_test
