// Up and Down in the lines of the screens, and what is offered for a line that failed.
#include <gtest/gtest.h>

#include <QLabel>

#include "screens/matrix_driver.h"
#include "screens/plotter_driver.h"
#include "screens/screen_driver.h"
#include "settings/keys.h"

namespace kav::test::line_walk_test {
namespace {

class LineWalk : public ScientificScreen {
 protected:
  LineWalk() {
    for (const char* line : {"1+1", "2+2", "3+3"}) {
      Type(line);
      Key(Qt::Key_Return);
    }
  }
};

TEST_F(LineWalk, UpLeadsToEarlierLinesAndDownBackToTheUnfinishedOne) {
  Type("sin(");
  Key(Qt::Key_Up);
  EXPECT_EQ(Line(), u"3+3|");
  Key(Qt::Key_Up);
  EXPECT_EQ(Line(), u"2+2|");
  EXPECT_EQ(Answer(), u"6");
  EXPECT_EQ(Expression(*dlg_).findChild<QLabel*>()->text(), "= 4");
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(Line(), u"sin(|");
  EXPECT_TRUE(LineHasFocus());
  Key(Qt::Key_Down);
  EXPECT_FALSE(LineHasFocus());
}

TEST_F(LineWalk, TheLineThatIsSelectedAfterEqualsIsTheNewest) {
  Key(Qt::Key_Up);
  EXPECT_EQ(Line(), u"2+2|");
  // What is recalled can be answered at once; then Down leads into the keys as ever.
  Key(Qt::Key_Return);
  EXPECT_EQ(Line(), u"[2+2]");
  EXPECT_EQ(Answer(), u"4");
  Key(Qt::Key_Down);
  EXPECT_FALSE(LineHasFocus());
}

TEST_F(LineWalk, FromTheKeysUpOnlyReturnsToTheLine) {
  Type("7*8");
  Key(Qt::Key_Down);
  EXPECT_FALSE(LineHasFocus());
  Key(Qt::Key_Up);
  EXPECT_TRUE(LineHasFocus());
  EXPECT_EQ(Line(), u"7*8|");
}

TEST_F(LineWalk, EachStepCanBeUndone) {
  Type("7");
  Key(Qt::Key_Up);
  Key(Qt::Key_Up);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Expression(*dlg_).text(), "3+3");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Expression(*dlg_).text(), "7");
}

TEST_F(LineWalk, WithAShiftUpAndDownAreNoSteps) {
  Type("7");
  Key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(Line(), u"7|");
}

TEST_F(MatrixScreen, TheMatrixLineWalksThroughItsOwnLines) {
  dlg_.reset();
  frame_.store.Set(kCalHistoryCount, 1);
  frame_.store.Set(CalHistoryEntry(1), "1+1");
  frame_.store.Set(kCalMHistoryCount, 2);
  frame_.store.Set(CalMHistoryEntry(0), "[M1]*2");
  frame_.store.Set(CalMHistoryEntry(1), "[M1]*3");
  Open();
  Type("[M2]");
  for (const char16_t* line : {u"[M1]*3", u"[M1]*2", u"[M1]*2"}) {
    Key(Qt::Key_Up);
    EXPECT_EQ(Line(), line);
  }
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(Line(), u"[M2]");
}

TEST_F(MatrixScreen, TheMatrixLineSaysWhatItComesTo) {
  const auto live = [this] {
    const auto* label = Expression(*dlg_).findChild<QLabel*>();
    return label != nullptr && label->isVisible() ? label->text() : QString();
  };
  Type("2*3");
  EXPECT_EQ(live(), "= 6");
  Key(Qt::Key_Return);
  EXPECT_EQ(live(), "");
  TypeCells(1, 1, "1 2 3");
  TypeCells(2, 1, "4 5 6");
  TypeCells(3, 1, "7 8 9");
  Expression(*dlg_).setFocus();
  Type("[M1]*2");
  EXPECT_EQ(live(), "= 3x3");
  // Not where it would touch the line.
  Type("*1*1*1*1+[M1]-[M1]");
  EXPECT_EQ(live(), "");
}

class PlotterWalk : public PlotterScreen {
 protected:
  PlotterWalk() {
    for (const char* line : {"x+1", "x+2"}) {
      Type(line);
      Key(Qt::Key_Return);
    }
  }
};

TEST_F(PlotterWalk, TheInputWalksThroughEarlierEquations) {
  Type("sin(");
  Key(Qt::Key_Up);
  EXPECT_EQ(Marked(), u"x+2|");
  Key(Qt::Key_Up);
  EXPECT_EQ(Marked(), u"x+1|");
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(Marked(), u"sin(|");
  Key(Qt::Key_Down);
  EXPECT_EQ(Marked(), u"sin(|");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), u"x+2");
}

TEST_F(PlotterWalk, WithinTheRowsOfTheInputUpMovesTheCaret) {
  // Two rows: the caret in the second goes to the first, then to the start, then back in time.
  Put(u"1+" + std::u16string(60, u'8') + u"|8");
  Key(Qt::Key_Up);
  EXPECT_EQ(Text().size(), 63U);
  const std::u16string first = Marked();
  EXPECT_NE(first.front(), u'|');
  while (!Input().IsInFirstRow()) Key(Qt::Key_Up);
  Key(Qt::Key_Up);
  EXPECT_EQ(Marked().front(), u'|');
  Key(Qt::Key_Up);
  EXPECT_EQ(Marked(), u"x+2|");
}

TEST_F(PlotterWalk, TheParenthesesAtTheCaretAreMarked) {
  Put(u"sin(x)|");
  EXPECT_EQ(Input().extraSelections().size(), 2);
  Put(u"sin(x|+1");
  EXPECT_EQ(Input().extraSelections().size(), 0);
}

}  // namespace
}  // namespace kav::test::line_walk_test
