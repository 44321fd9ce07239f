#include "screens/widgets/field_door.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "screens/offer_driver.h"
#include "screens/screen_driver.h"
#include "screens/widgets/formula_view.h"

namespace kav::test::field_door_test {
namespace {

/// A line, a field of a number, one of a cell and a formula, each with a door.
class FieldDoorTest : public testing::Test {
 protected:
  FieldDoorTest()
      : line_(&screen_), number_(&screen_), cell_(&screen_), formula_(new FormulaView(2)) {
    formula_->setParent(&screen_);
    line_.setGeometry(0, 0, 300, 30);
    number_.setGeometry(0, 60, 300, 30);
    cell_.setGeometry(0, 120, 300, 30);
    formula_->setGeometry(0, 180, 300, 60);
    OpenDoor(line_, DoorKind::Line);
    OpenDoor(number_, DoorKind::Number);
    OpenDoor(cell_, DoorKind::Cell);
    OpenDoor(*formula_);
    Show(screen_);
    line_.setFocus();
  }

  static void Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
  }
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void TypeSign(const QString& sign) {
    QKeyEvent pressed(QEvent::KeyPress, 0, {}, sign);
    QApplication::sendEvent(QApplication::focusWidget(), &pressed);
  }
  static void Commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(QApplication::focusWidget(), &event);
  }
  static void Drop(QWidget& field, const QString& text) {
    QMimeData data;
    data.setText(text);
    const QPoint at(field.width() - 2, field.height() / 2);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&field, &enter);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&field, &drop);
  }
  std::string Line() const { return line_.text().toStdString(); }
  std::string Formula() const { return formula_->toPlainText().toStdString(); }
  bool Asks(const QWidget& field) {
    return AsksFirst(field, [this] { ++gone_; });
  }

  QWidget screen_;
  QLineEdit line_;
  QLineEdit number_;
  QLineEdit cell_;
  FormulaView* formula_;
  int gone_ = 0;
};

TEST_F(FieldDoorTest, TypedSignsAreItsOwn) {
  for (const char* sign : {"2", "×", "3", "÷", "π", "−", "４", "²"}) TypeSign(sign);
  EXPECT_EQ(Line(), "2*3/Pi-4^2");
  EXPECT_EQ(line_.cursorPosition(), 10);
  line_.clear();
  for (const char* sign : {"s", "i", "n", "π"}) TypeSign(sign);
  EXPECT_EQ(Line(), "sin Pi");
  formula_->setFocus();
  for (const char* sign : {"x", "²", "×", "√"}) TypeSign(sign);
  EXPECT_EQ(Formula(), "x^2*sqrt ");
}

TEST_F(FieldDoorTest, WhatAnInputMethodWritesIsItsOwn) {
  Commit("２×３");
  EXPECT_EQ(Line(), "2*3");
  formula_->setFocus();
  Commit("ｘ²");
  EXPECT_EQ(Formula(), "x^2");
}

TEST_F(FieldDoorTest, PastesAreItsOwnAndOneStepForUndo) {
  line_.insert("1+");
  Paste("2,469,134.5×√9\n");
  EXPECT_EQ(Line(), "1+2469134.5*sqrt(9)");
  EXPECT_EQ(line_.cursorPosition(), 19);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Line(), "1+");
  Press(Qt::Key_Y, Qt::ControlModifier);
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Line(), "1+2469134.5*sqrt(9)");
}

TEST_F(FieldDoorTest, APasteReplacesWhatIsSelectedAndUndoBringsThatBack) {
  line_.insert("sin(30)+7");
  line_.setSelection(4, 2);
  Paste("1 234 567,000\u00A0");
  TapOffer(screen_, "1234567.000");
  EXPECT_EQ(Line(), "sin(1234567.000 )+7");
  EXPECT_EQ(line_.cursorPosition(), 16);
  line_.undo();
  EXPECT_EQ(Line(), "sin(30)+7");
}

TEST_F(FieldDoorTest, DropsAndTheMenuAndScreenReadersAreNoOtherWayIn) {
  Drop(line_, "2×3\n");
  EXPECT_EQ(Line(), "2*3");
  line_.undo();
  EXPECT_EQ(Line(), "");
  QApplication::clipboard()->setText("6÷3");
  const std::unique_ptr<QMenu> menu(line_.createStandardContextMenu());
  for (QAction* entry : menu->actions()) {
    if (entry->text().contains("Paste")) entry->trigger();
  }
  EXPECT_EQ(Line(), "6/3");
  line_.clear();
  auto* access = QAccessible::queryAccessibleInterface(&line_);
  access->editableTextInterface()->insertText(0, "5·5");
  EXPECT_EQ(Line(), "5*5");
  formula_->setFocus();
  Drop(*formula_->viewport(), "x³\n");
  EXPECT_EQ(Formula(), "x^3");
  formula_->undo();
  EXPECT_EQ(Formula(), "");
  QAccessible::queryAccessibleInterface(formula_)->editableTextInterface()->insertText(0, "x×2");
  EXPECT_EQ(Formula(), "x*2");
}

TEST_F(FieldDoorTest, APasteThatCanBeReadInTwoWaysIsAskedAboutBesideTheField) {
  for (const auto& [key, text] :
       std::vector<std::pair<Qt::Key, std::string>>{{Qt::Key_1, "1234"}, {Qt::Key_2, "1.234"}}) {
    line_.clear();
    Paste("1,234");
    EXPECT_EQ(Line(), "1,234");
    EXPECT_EQ(Asked(screen_), "1234 or 1.234?");
    EXPECT_TRUE(line_.hasFocus()) << "typing goes on";
    Press(Qt::Key_Down);
    Press(key);
    EXPECT_EQ(Line(), text);
    EXPECT_TRUE(line_.hasFocus());
    line_.undo();
    EXPECT_EQ(Line(), "");
  }
}

TEST_F(FieldDoorTest, OneAnswerIsForAllNumbersOfAKind) {
  Paste("1,234+5,678*1,5");
  TapOffer(screen_, "1234");
  EXPECT_EQ(Line(), "1234+5678*1,5");
  EXPECT_EQ(Asked(screen_), "15 or 1.5?");
  Press(Qt::Key_2);
  EXPECT_EQ(Line(), "1234+5678*1.5");
  line_.undo();
  EXPECT_EQ(Line(), "");
}

TEST_F(FieldDoorTest, EscLeavesThePasteAndIsNotAskedAgain) {
  Paste("1,5");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Line(), "1,5");
  EXPECT_EQ(Asked(screen_), "");
  EXPECT_FALSE(Asks(line_)) << "the calculation refuses it";
  TypeSign("0");
  EXPECT_TRUE(Asks(line_)) << "another text";
  Press(Qt::Key_Escape);
  line_.clear();
  Paste("1,50");
  EXPECT_EQ(Asked(screen_), "150 or 1.50?") << "the same text, but pasted anew";
}

TEST_F(FieldDoorTest, TypedCommasAreAskedAboutWhenTheyAreTaken) {
  for (const char* sign : {"1", ",", "5", "0", "0"}) {
    TypeSign(sign);
    EXPECT_EQ(Asked(screen_), "");
  }
  EXPECT_TRUE(Asks(line_));
  EXPECT_EQ(Asked(screen_), "1500 or 1.500?");
  EXPECT_EQ(gone_, 0);
  Press(Qt::Key_Right);
  Press(Qt::Key_Return);
  EXPECT_EQ(Line(), "1.500");
  EXPECT_EQ(gone_, 1);
  EXPECT_FALSE(Asks(line_));
}

TEST_F(FieldDoorTest, TypedGroupingIsTakenAwayWhenTheLineIsTaken) {
  for (const QChar sign : QString("1 234 567+2,469,134.5")) TypeSign(sign);
  EXPECT_EQ(Line(), "1 234 567+2,469,134.5");
  EXPECT_FALSE(Asks(screen_));
  EXPECT_EQ(Line(), "1234567+2469134.5");
}

TEST_F(FieldDoorTest, CommasBetweenArgumentsStay) {
  line_.insert("M:F()");
  line_.setCursorPosition(4);
  Paste("1,234,567");
  EXPECT_EQ(Line(), "M:F(1,234,567)");
  EXPECT_EQ(Asked(screen_), "");
  EXPECT_FALSE(Asks(line_));
}

TEST_F(FieldDoorTest, AFormulaIsAskedAboutAsALineIs) {
  formula_->setFocus();
  Paste("x*1,5\n");
  EXPECT_EQ(Asked(screen_), "15 or 1.5?");
  TapOffer(screen_, "1.5");
  EXPECT_EQ(Formula(), "x*1.5");
  formula_->undo();
  EXPECT_EQ(Formula(), "");
  for (const char* sign : {"x", "+", "1", ",", "2"}) TypeSign(sign);
  EXPECT_TRUE(Asks(screen_));
  TapOffer(screen_, "12");
  EXPECT_EQ(Formula(), "x+12");
  EXPECT_EQ(gone_, 1);
}

TEST_F(FieldDoorTest, ANumberIsAskedAboutWhenItsFieldIsLeft) {
  number_.setFocus();
  for (const char* sign : {"1", ",", "5"}) TypeSign(sign);
  Press(Qt::Key_Tab);
  QCoreApplication::processEvents();
  EXPECT_EQ(Asked(screen_), "15 or 1.5?");
  Press(Qt::Key_2);
  EXPECT_EQ(number_.text(), "1.5");
  EXPECT_TRUE(number_.hasFocus());
  Press(Qt::Key_Tab);
  QCoreApplication::processEvents();
  EXPECT_EQ(Asked(screen_), "");
}

TEST_F(FieldDoorTest, ACellNeverAsksByItself) {
  cell_.setFocus();
  Paste("1,5");
  TypeSign("×");
  EXPECT_EQ(cell_.text(), "1,5*");
  EXPECT_EQ(Asked(screen_), "");
  EXPECT_FALSE(Asks(cell_));
}

TEST_F(FieldDoorTest, OwnTextIsLeftAlone) {
  for (const char* text : {"sin(30)*2e-3", "M:F( 3 )", "1,5,2", "foo é"}) {
    line_.clear();
    Paste(text);
    EXPECT_EQ(Line(), text);
    EXPECT_EQ(Asked(screen_), "");
  }
}

}  // namespace
}  // namespace kav::test::field_door_test
