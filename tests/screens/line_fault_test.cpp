// What a screen shows of a line that failed: its place, and the mend that is offered.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <string>

#include "line/keypad.h"
#include "screens/screen_driver.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/line_screen.h"
#include "screens/widgets/offer_strip.h"

namespace kav::test::line_fault_test {
namespace {

/// A screen that is told what failed.
class FailingScreen final : public LineScreen {
 public:
  explicit FailingScreen(Frame& frame)
      : LineScreen(frame, QSize(kScreenWidth, kScreenHeight), SpotsOf(KeyPlaces()),
                   PastRoom::Calculator, SideNeighbour::Column) {}

  using LineScreen::FinishLine;
  using LineScreen::ShowFault;

  std::string done;

 private:
  void OnKeyNumber(int) override { done += "key "; }
  void OnEquals() override { done += "= "; }
  void OnClear() override { done += "CLR "; }
  void OnMend() override { done += "mend "; }
  bool OnOperator(char16_t) override { return false; }
  void TakeLine() override {}
  void Refresh() override {}
  std::optional<std::u16string> LiveResult(std::u16string_view) const override { return {}; }
  std::optional<std::u16string> CopiedResult() const override { return {}; }
  std::optional<std::u16string> CopiedLine() const override { return {}; }
  void TakePast(const PastLine&, PastPart) override {}
  HistoryWalk::Lines EarlierLines() const override { return {u"1+1"}; }
  void LayOut(const DialogUnits& units) override {
    Keys().setGeometry(rect());
    Keys().LayOut(units);
    Line().setGeometry(units.Pixels(UnitsOf(kExpressionPlace)));
    Line().SetTextHeight(Line().height() / 2);
    Result().LayOut(units.Pixels(UnitsOf(kResultPlace)));
  }
};

class LineFaultTest : public testing::Test {
 protected:
  LineFaultTest() : screen_(frame_) {
    Show(screen_, QSize(240, 320));
    PutLine(screen_, u"[2*(3]");
    Expression(screen_).setFocus();
    screen_.ShowFault(kFault);
  }

  OfferStrip* Strip() {
    for (auto* part : screen_.findChildren<QWidget*>()) {
      if (auto* strip = dynamic_cast<OfferStrip*>(part)) return strip;
    }
    return nullptr;
  }
  bool IsOffered() { return Strip() != nullptr && Strip()->isVisible(); }
  void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  bool LineHasFocus() { return QApplication::focusWidget() == &Expression(screen_); }

  inline static const LineFault kFault{TextPlace{4, 0}, u"2*(3)"};
  FakeFrame frame_;
  FailingScreen screen_;
};

TEST_F(LineFaultTest, TheMendIsOfferedBelowTheResult) {
  ASSERT_TRUE(IsOffered());
  EXPECT_GT(Strip()->y(), Result(screen_).geometry().bottom());
  EXPECT_TRUE(screen_.rect().contains(Strip()->geometry()));
  EXPECT_EQ(Strip()->Question(), "Did you mean");
  const QAbstractButton* button = FindKey(screen_, u"2*(3)");
  ASSERT_NE(button, nullptr);
  // The line stays as it was left: all of it selected, and the keyboard in it.
  EXPECT_EQ(LineOf(screen_), u"[2*(3]");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(LineFaultTest, ATapTakesIt) {
  Click(*FindKey(screen_, u"2*(3)"));
  EXPECT_EQ(screen_.done, "mend ");
  EXPECT_FALSE(IsOffered());
}

TEST_F(LineFaultTest, DownAndEnterTakeIt) {
  Key(Qt::Key_Down);
  EXPECT_FALSE(LineHasFocus());
  Key(Qt::Key_Return);
  EXPECT_EQ(screen_.done, "mend ");
  EXPECT_TRUE(LineHasFocus());
  // Without an offer, Down leads into the keys as ever.
  Key(Qt::Key_Down);
  EXPECT_FALSE(LineHasFocus());
}

TEST_F(LineFaultTest, ScreenReadersTakeItAsWell) {
  QAccessibleInterface* button = QAccessible::queryAccessibleInterface(FindKey(screen_, u"2*(3)"));
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->text(QAccessible::Name), "2*(3)");
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([this] { return screen_.done == "mend "; }, 2000));
}

TEST_F(LineFaultTest, EscOnlyTakesTheOfferAway) {
  Key(Qt::Key_Escape);
  EXPECT_FALSE(IsOffered());
  EXPECT_EQ(screen_.done, "");
  EXPECT_EQ(LineOf(screen_), u"[2*(3]");
  Key(Qt::Key_Escape);
  EXPECT_EQ(screen_.done, "CLR ");
}

TEST_F(LineFaultTest, TypingTakesTheOfferAway) {
  Key(Qt::Key_End);
  EXPECT_TRUE(IsOffered());
  Key(Qt::Key_7);
  EXPECT_FALSE(IsOffered());
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(LineFaultTest, UpWalksOnFromALineThatFailed) {
  Key(Qt::Key_Up);
  EXPECT_EQ(LineOf(screen_), u"1+1|");
  EXPECT_FALSE(IsOffered());
}

TEST_F(LineFaultTest, AnOfferThatWasTurnedDownDoesNotComeBackBeforeTheNextEquals) {
  Key(Qt::Key_Escape);
  screen_.ShowFault(kFault);
  EXPECT_FALSE(IsOffered());
  screen_.FinishLine();
  screen_.ShowFault(kFault);
  EXPECT_TRUE(IsOffered());
  screen_.ShowFault(std::nullopt);
  EXPECT_FALSE(IsOffered());
}

TEST_F(LineFaultTest, WithoutAMendOnlyThePlaceIsMarked) {
  screen_.FinishLine();
  const QImage without = Expression(screen_).grab().toImage();
  screen_.ShowFault(LineFault{TextPlace{0, 1}, std::nullopt});
  EXPECT_FALSE(IsOffered());
  EXPECT_NE(Expression(screen_).grab().toImage(), without);
}

TEST_F(LineFaultTest, AnotherQuestionStandsBelowTheLineAgain) {
  PutLine(screen_, u"1,5|");
  ASSERT_TRUE(AsksFirst(Expression(screen_), [] {}));
  EXPECT_EQ(Strip()->Question(), "15 or 1.5?");
  EXPECT_EQ(Strip()->y(), Expression(screen_).geometry().bottom() + 1);
  // And a question about another field stays.
  OfferStripOf(screen_).Offers(Result(screen_), u"Which?", {});
  screen_.ShowFault(std::nullopt);
  EXPECT_TRUE(IsOffered());
  screen_.ShowFault(kFault);
  EXPECT_EQ(Strip()->Question(), "Did you mean");
  EXPECT_EQ(Strip()->y(), Result(screen_).geometry().bottom() + 1);
}

TEST_F(LineFaultTest, NothingIsOfferedBelowTheHistory) {
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_H, Qt::ControlModifier);
  EXPECT_FALSE(IsOffered());
  Key(Qt::Key_Escape);
  EXPECT_TRUE(LineHasFocus());
  EXPECT_EQ(LineOf(screen_), u"[2*(3]");
}

}  // namespace
}  // namespace kav::test::line_fault_test
