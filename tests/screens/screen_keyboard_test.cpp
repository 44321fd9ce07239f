// The scientific screen worked by the keyboard alone.
#include <gtest/gtest.h>

#include <QClipboard>
#include <set>

#include "screens/offer_driver.h"
#include "screens/screen_driver.h"
#include "screens/widgets/app_events.h"

namespace kav::test::screen_keyboard_test {
namespace {

class ScreenKeyboardTest : public ScientificScreen {
 protected:
  QString FocusedKey() {
    const auto* key = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    return key != nullptr ? key->text() : QString();
  }
  void Focus(std::u16string_view caption) { FindKey(*dlg_, caption)->setFocus(); }
  template <class Condition>
  bool Soon(Condition condition) {
    return QTest::qWaitFor(condition, 2000);
  }
  QMenuBar& Bar() { return *dlg_->findChild<QMenuBar*>(); }
};

TEST_F(ScreenKeyboardTest, EnterEvaluates) {
  Type("sin(30)");
  Key(Qt::Key_Return);
  EXPECT_EQ(Answer(), u"0.5");
  EXPECT_EQ(Line(), u"[sin(30)]");
}

TEST_F(ScreenKeyboardTest, EnterOfTheNumberPadEvaluates) {
  Type("6*7");
  Key(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(Answer(), u"42");
}

TEST_F(ScreenKeyboardTest, TheSeparatorOfTheNumberPadIsAPoint) {
  const AppEvents events;
  const auto pressed = [](Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers) {
    QWidget* widget = QApplication::focusWidget();
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(widget, &event);
    EXPECT_TRUE(event.isAccepted());
  };
  Type("1");
  pressed(Qt::Key_Comma, ",", Qt::KeypadModifier);
  Type("5,2");
  Focus(u"COS");
  pressed(Qt::Key_Comma, QString(u'\u066B'), Qt::KeypadModifier);
  pressed(Qt::Key_Period, ".", Qt::KeypadModifier);
  pressed(Qt::Key_Comma, ",", {});
  EXPECT_EQ(Line(), u"1.5,2..,|");
}

TEST_F(ScreenKeyboardTest, TheLinesOwnMenuLooksLikeTheOthers) {
  const AppEvents events;
  QContextMenuEvent ask(QContextMenuEvent::Mouse, QPoint(5, 5), dlg_->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&Expression(*dlg_), &ask);
  ASSERT_NE(OpenMenu(), nullptr);
  EXPECT_EQ(OpenMenu()->font().pixelSize(), Bar().font().pixelSize());
  EXPECT_EQ(OpenMenu()->font().family(), Bar().font().family());
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
}

TEST_F(ScreenKeyboardTest, AnEqualsSignEvaluatesAndIsNotWritten) {
  Type("1+1=");
  EXPECT_EQ(Answer(), u"2");
  EXPECT_EQ(Line(), u"[1+1]");
}

TEST_F(ScreenKeyboardTest, AnOperatorGoesOnWithTheLineBehindEquals) {
  Type("1+2=*3=");
  EXPECT_EQ(Line(), u"[(1+2)*3]");
  EXPECT_EQ(Answer(), u"9");
  Type("+1=");
  EXPECT_EQ(Line(), u"[(1+2)*3+1]");
  QInputMethodEvent event;
  event.setCommitString("/");
  QCoreApplication::sendEvent(&Expression(*dlg_), &event);
  EXPECT_EQ(Line(), u"((1+2)*3+1)/|");
  Type("2=");
  EXPECT_EQ(Answer(), u"5");
  Type("7");
  EXPECT_EQ(Line(), u"7|");
}

TEST_F(ScreenKeyboardTest, AnEqualsSignFromAnInputMethodEvaluatesToo) {
  Type("1+1");
  QInputMethodEvent event;
  event.setCommitString("=");
  QCoreApplication::sendEvent(&Expression(*dlg_), &event);
  EXPECT_EQ(Answer(), u"2");
  EXPECT_EQ(Line(), u"[1+1]");
}

TEST_F(ScreenKeyboardTest, EnterEvaluatesWhereverTheFocusIs) {
  Type("2+3");
  Focus(u"SIN");
  Key(Qt::Key_Return);
  EXPECT_EQ(Answer(), u"5");
  EXPECT_TRUE(LineHasFocus());
  Result(*dlg_).setFocus();
  Expression(*dlg_).setText("4");
  Key(Qt::Key_Enter);
  EXPECT_EQ(Answer(), u"4");
}

TEST_F(ScreenKeyboardTest, EscapeClearsTheLineWhereverTheFocusIs) {
  Type("123");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Line(), u"|");
  Type("456");
  Focus(u"Pi");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Line(), u"|");
  EXPECT_TRUE(LineHasFocus());
  EXPECT_TRUE(dlg_->isVisible());
}

TEST_F(ScreenKeyboardTest, TypingGoesToTheLineWhereverTheFocusIs) {
  Focus(u"COS");
  Type("7");
  EXPECT_EQ(Line(), u"7|");
  EXPECT_TRUE(LineHasFocus());
  Result(*dlg_).setFocus();
  Type("+");
  EXPECT_EQ(Line(), u"7+|");
  Focus(u"1");
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Line(), u"7|");
  Focus(u"1");
  Key(Qt::Key_Home);
  EXPECT_EQ(Line(), u"|7");
  Focus(u"1");
  Key(Qt::Key_Delete);
  EXPECT_EQ(Line(), u"|");
}

TEST_F(ScreenKeyboardTest, SpacePressesTheFocusedKeyAndTheFocusReturnsToTheLine) {
  Focus(u"SIN");
  Key(Qt::Key_Space);
  EXPECT_EQ(Line(), u"sin(|)");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(ScreenKeyboardTest, TheSelectionOutlastsTheWayToAKey) {
  Type("30=");
  while (FocusedKey() != "SIN") Key(Qt::Key_Tab);
  Key(Qt::Key_Space);
  EXPECT_EQ(Line(), u"sin(30)|");
  Expression(*dlg_).setCursorPosition(2);
  Key(Qt::Key_Tab);
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Line(), u"si|n(30)");
}

TEST_F(ScreenKeyboardTest, ABlankIsTypedInTheLine) {
  Type("1 2");
  EXPECT_EQ(Line(), u"1 2|");
}

TEST_F(ScreenKeyboardTest, TabReachesTheLinesEveryUsableKeyAndTheMenus) {
  std::set<const QWidget*> reached;
  for (int i = 0; i < 70; ++i) {
    reached.insert(QApplication::focusWidget());
    Key(Qt::Key_Tab);
  }
  EXPECT_TRUE(reached.contains(&Expression(*dlg_)));
  EXPECT_TRUE(reached.contains(&Result(*dlg_)));
  EXPECT_TRUE(reached.contains(&Bar()));
  for (const auto* key : dlg_->findChildren<QAbstractButton*>()) {
    if (!key->isVisible() || key->text().isEmpty()) continue;
    EXPECT_EQ(reached.contains(key), key->isEnabled()) << key->text().toStdString();
  }
}

TEST_F(ScreenKeyboardTest, TabGoesRoundBackwardsToo) {
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), &Bar());
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(FocusedKey(), "=");
  Key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &Bar());
  Key(Qt::Key_Tab);
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(ScreenKeyboardTest, ArrowsMoveAmongTheKeys) {
  Focus(u"5");
  const std::vector<std::pair<Qt::Key, const char*>> steps{
      {Qt::Key_Right, "6"}, {Qt::Key_Right, "*"},  {Qt::Key_Up, "("},      {Qt::Key_Left, "9"},
      {Qt::Key_Up, "Y^X"},  {Qt::Key_Left, "X^2"}, {Qt::Key_Left, "SQRT"}, {Qt::Key_Left, "SQRT"},
      {Qt::Key_Down, "7"},  {Qt::Key_Down, "4"},   {Qt::Key_Down, "1"},    {Qt::Key_Down, "0"},
      {Qt::Key_Down, "0"},  {Qt::Key_Right, "00"}, {Qt::Key_Right, "."},   {Qt::Key_Right, "Exp"},
      {Qt::Key_Right, "="}, {Qt::Key_Right, "="},
  };
  for (const auto& [arrow, caption] : steps) {
    Key(arrow);
    EXPECT_EQ(FocusedKey(), caption);
  }
}

TEST_F(ScreenKeyboardTest, ArrowsPassOverKeysThatAreDisabledAndLeadFromLineToKeysAndBack) {
  Key(Qt::Key_Down);
  EXPECT_EQ(FocusedKey(), "DEG");
  Key(Qt::Key_Down);
  EXPECT_EQ(FocusedKey(), "Shift");
  Tap(u"DEC");
  Choose(u"Octal");
  Focus(u"7");
  Key(Qt::Key_Right);
  EXPECT_EQ(FocusedKey(), "(");  // "8" and "9" are no digits of octal numbers
  Focus(u"CLR");
  Key(Qt::Key_Left);
  EXPECT_EQ(FocusedKey(), "DEL");  // "PB" has nothing to play back
  Key(Qt::Key_Up);
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(ScreenKeyboardTest, ArrowsMoveTheCaretInTheLine) {
  Type("12");
  Key(Qt::Key_Left);
  EXPECT_EQ(Line(), u"1|2");
}

TEST_F(ScreenKeyboardTest, AltWithALetterPressesTheKeysThatCannotBeTyped) {
  Key(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(Soon([this] { return FindKey(*dlg_, u"ASIN") != nullptr; }));
  Key(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(Soon([this] { return FindKey(*dlg_, u"SIN") != nullptr; }));
  Key(Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(Soon([this] { return FindKey(*dlg_, u"RAD") != nullptr; }));
  Key(Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(Soon([this] { return FindKey(*dlg_, u"DEG") != nullptr; }));
  Key(Qt::Key_B, Qt::AltModifier);
  EXPECT_TRUE(Soon([] { return OpenMenu() != nullptr; }));
  EXPECT_EQ(Offered(OpenMenu()).front(), u"Binary");
  QTest::keyClick(OpenMenu(), Qt::Key_Down);
  QTest::keyClick(OpenMenu(), Qt::Key_Return);
  EXPECT_NE(FindKey(*dlg_, u"BIN"), nullptr);
  EXPECT_EQ(Line(), u"|") << "Enter chose from the menu and did not evaluate";
  EXPECT_EQ(Answer(), u"0");
}

TEST_F(ScreenKeyboardTest, F10AndAltReachTheMenus) {
  Key(Qt::Key_F10);
  EXPECT_EQ(QApplication::focusWidget(), &Bar());
  ASSERT_NE(Bar().activeAction(), nullptr);
  EXPECT_EQ(Bar().activeAction()->text(), "&File");
  Key(Qt::Key_Right);
  EXPECT_EQ(Bar().activeAction()->text(), "&Edit");
  Key(Qt::Key_Escape);
  EXPECT_TRUE(LineHasFocus());
  Key(Qt::Key_F, Qt::AltModifier);
  ASSERT_NE(OpenMenu(), nullptr);
  EXPECT_EQ(Offered(OpenMenu()).front(), u"&About...");
  QTest::keyClick(OpenMenu(), Qt::Key_X);
  EXPECT_EQ(frame_.exits, 1);
}

TEST_F(ScreenKeyboardTest, EachKeyTappedIsOneStepOfUndo) {
  Tap(u"1 2 + SIN 3");
  EXPECT_EQ(Line(), u"12+sin(3|)");
  const std::vector<std::u16string> texts{u"12+sin()", u"12+", u"12", u"1", u""};
  for (const auto& text : texts) {
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf(Expression(*dlg_)), text);
  }
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"1");
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"12");
}

TEST_F(ScreenKeyboardTest, UndoBringsBackALineThatWasWrappedEvaluatedOrCleared) {
  Type("45");
  Key(Qt::Key_Return);
  Tap(u"SIN");
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"sin(45)");
  Key(Qt::Key_Escape);
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"sin(45)");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"45");
}

TEST_F(ScreenKeyboardTest, UndoWorksFromTheMenuAndFromAKey) {
  Tap(u"1 2");
  ChooseFrom(*dlg_, u"&Edit", u"&Undo");
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"1");
  ChooseFrom(*dlg_, u"&Edit", u"&Redo");
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"12");
  Focus(u"SIN");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TextOf(Expression(*dlg_)), u"1");
}

TEST_F(ScreenKeyboardTest, TheLineIsCutCopiedAndPastedFromTheMenu) {
  Type("123");
  ChooseFrom(*dlg_, u"&Edit", u"Select &All");
  EXPECT_EQ(Line(), u"[123]");
  ChooseFrom(*dlg_, u"&Edit", u"Cu&t");
  EXPECT_EQ(Line(), u"|");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "123");
  ChooseFrom(*dlg_, u"&Edit", u"&Paste");
  ChooseFrom(*dlg_, u"&Edit", u"&Paste");
  EXPECT_EQ(Line(), u"123123|");
  Expression(*dlg_).setSelection(2, 2);
  ChooseFrom(*dlg_, u"&Edit", u"&Copy");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "31");
}

TEST_F(ScreenKeyboardTest, LineBreaksAndTabsThatArePastedAreBlanks) {
  QGuiApplication::clipboard()->setText("1\t+\n2\r\n");
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_Return);
  EXPECT_EQ(Answer(), u"3");
  EXPECT_EQ(Expression(*dlg_).text(), "1 + 2");
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Expression(*dlg_).text(), "");
}

TEST_F(ScreenKeyboardTest, TheEditMenuEnablesWhatItCanDo) {
  const auto enabled = [this] {
    QMenu* menu = MenuOf(*dlg_, u"&Edit");
    emit menu->aboutToShow();
    Texts texts;
    for (const QAction* action : menu->actions()) {
      if (action->isEnabled()) texts.push_back(action->text().toStdU16String());
    }
    return texts;
  };
  EXPECT_EQ(enabled(), (Texts{u"Copy R&esult", u"&Paste", u"Select &All", u"&History"}));
  Type("1");
  EXPECT_EQ(enabled(), (Texts{u"&Undo", u"Copy R&esult", u"&Paste", u"Select &All", u"&History"}));
  Expression(*dlg_).selectAll();
  EXPECT_EQ(enabled(), (Texts{u"&Undo", u"Cu&t", u"&Copy", u"Copy R&esult", u"&Paste",
                              u"Select &All", u"&History"}));
  Type("1=");
  EXPECT_EQ(enabled(), (Texts{u"&Undo", u"Cu&t", u"&Copy", u"Copy R&esult",
                              u"Copy &Line and Result", u"&Paste", u"Select &All", u"&History"}));
}

TEST_F(ScreenKeyboardTest, TheResultIsSelectedAndCopied) {
  Type("10/4=");
  Click(Result(*dlg_));
  Result(*dlg_).selectAll();
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "2.5");
  QGuiApplication::clipboard()->clear();
  ChooseFrom(*dlg_, u"&Edit", u"&Copy");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "2.5");
  Type("7");
  EXPECT_EQ(Answer(), u"2.5") << "the result is not typed over";
  EXPECT_EQ(Line(), u"7|");
}

TEST_F(ScreenKeyboardTest, OnlyOneOfTheTwoLinesShowsWhatIsCopied) {
  Type("10/4=");
  Click(Result(*dlg_));
  Result(*dlg_).selectAll();
  Click(Expression(*dlg_));
  EXPECT_FALSE(Result(*dlg_).hasSelectedText());
}

TEST_F(ScreenKeyboardTest, ATypedCommaIsAskedAboutBeforeTheLineIsEvaluated) {
  Type("1,234*2=");
  EXPECT_EQ(Asked(*dlg_), "1234 or 1.234?");
  EXPECT_EQ(Answer(), u"0");
  Key(Qt::Key_2);
  EXPECT_EQ(Expression(*dlg_).text(), "1.234*2");
  EXPECT_EQ(Answer(), u"2.468");
  Put(u"1,5|");
  Tap(u"=");
  TapOffer(*dlg_, "15");
  EXPECT_EQ(Answer(), u"15");
  Put(u"2,5|");
  Key(Qt::Key_Return);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Line(), u"2,5|") << "Esc was for the question";
  Key(Qt::Key_Return);
  EXPECT_EQ(Asked(*dlg_), "");
  EXPECT_EQ(Answer(), u", is not supported.");
}

}  // namespace
}  // namespace kav::test::screen_keyboard_test
