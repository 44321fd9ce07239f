#include "screens/widgets/offer_strip.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>
#include <vector>

#include "screens/screen_driver.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"

namespace kav::test::offer_strip_test {
namespace {

using Strings = std::vector<std::string>;

constexpr QSize kScreen(240, 320);

/// A field at the top of a screen, another at its bottom, and a strip that asks about them.
class OfferStripTest : public testing::Test {
 protected:
  OfferStripTest() : field_(&screen_), low_(&screen_), strip_(&screen_) {
    screen_.setPalette(ScreenPalette());
    field_.setGeometry(5, 20, 230, 24);
    low_.setGeometry(150, 296, 80, 24);
    Show(screen_, kScreen);
    field_.setText("1,234");
    field_.setFocus();
  }

  void Ask(const QLineEdit& field) {
    strip_.Offers(field, u"1,234: which is meant?",
                  {{u"1234", [this] { Note("1234"); }}, {u"1.234", [this] { Note("1.234"); }}},
                  [this] { Note("gave up"); });
  }
  void Ask() { Ask(field_); }
  void Note(const std::string& what) {
    done_.push_back(what + (field_.hasFocus() && strip_.isHidden() ? "" : " too early"));
  }

  QPushButton& Answer(const char* name) {
    QPushButton* found = nullptr;
    for (auto* button : strip_.findChildren<QPushButton*>()) {
      if (button->isVisible() && button->accessibleName() == name) found = button;
    }
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  static void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

  QWidget screen_;
  QLineEdit field_;
  QLineEdit low_;
  OfferStrip strip_;
  Strings done_;
};

TEST_F(OfferStripTest, IsHiddenUntilItAsks) {
  EXPECT_TRUE(strip_.isHidden());
  Ask();
  EXPECT_TRUE(strip_.isVisible());
  EXPECT_EQ(strip_.Field(), &field_);
  EXPECT_EQ(strip_.findChild<QLabel*>()->text(), "1,234: which is meant?");
  EXPECT_EQ(Answer("1234").text(), "1234");
  EXPECT_EQ(Answer("1.234").text(), "1.234");
  EXPECT_TRUE(field_.hasFocus());
}

TEST_F(OfferStripTest, ATapAnswers) {
  Ask();
  Click(Answer("1.234"));
  EXPECT_EQ(done_, Strings{"1.234"});
  EXPECT_TRUE(strip_.isHidden());
  EXPECT_EQ(strip_.Field(), nullptr);
}

TEST_F(OfferStripTest, KeysAnswer) {
  const std::vector<std::pair<std::vector<Qt::Key>, std::string>> rows = {
      {{Qt::Key_Down, Qt::Key_Return}, "1234"},
      {{Qt::Key_Down, Qt::Key_Enter}, "1234"},
      {{Qt::Key_Down, Qt::Key_Space}, "1234"},
      {{Qt::Key_Down, Qt::Key_Right, Qt::Key_Return}, "1.234"},
      {{Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left, Qt::Key_Return}, "1234"},
      {{Qt::Key_Down, Qt::Key_1}, "1234"},
      {{Qt::Key_Down, Qt::Key_2}, "1.234"},
      {{Qt::Key_Down, Qt::Key_3, Qt::Key_Escape}, "gave up"},
      {{Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return}, "gave up"},
      {{Qt::Key_Down, Qt::Key_Up, Qt::Key_Escape}, "gave up"},
      {{Qt::Key_Escape}, "gave up"},
  };
  for (const auto& [keys, what] : rows) {
    done_.clear();
    Ask();
    for (const Qt::Key key : keys) {
      EXPECT_EQ(done_, Strings{}) << what;
      Press(key);
    }
    EXPECT_EQ(done_, Strings{what});
  }
  EXPECT_EQ(field_.text(), "1,234");
}

TEST_F(OfferStripTest, EnterGivesItTheKeyboard) {
  Ask();
  strip_.Enter();
  EXPECT_TRUE(Answer("1234").hasFocus());
  Press(Qt::Key_Up);
  EXPECT_TRUE(field_.hasFocus());
  EXPECT_TRUE(strip_.isVisible());
}

TEST_F(OfferStripTest, AChangeOfTheTextTakesTheQuestionBack) {
  Ask();
  QTest::keyClicks(&field_, "5");
  EXPECT_TRUE(strip_.isHidden());
  EXPECT_EQ(done_, Strings{});
  Ask();
  field_.hide();
  EXPECT_TRUE(strip_.isHidden());
  EXPECT_EQ(done_, Strings{});
}

TEST_F(OfferStripTest, AnotherQuestionTakesThePlaceOfTheFirst) {
  Ask();
  strip_.Enter();
  strip_.Offers(field_, u"Another?", {{u"one", [this] { Note("one"); }}});
  EXPECT_EQ(Answer("one").accessibleDescription(), "Another? Key 1");
  EXPECT_TRUE(field_.hasFocus());
  Press(Qt::Key_Escape);
  EXPECT_TRUE(strip_.isHidden());
  EXPECT_EQ(done_, Strings{});
}

TEST_F(OfferStripTest, KeysOfTheScreenAreNotItsOwn) {
  const auto isTaken = [this](Qt::Key key) {
    QKeyEvent pressed(QEvent::KeyPress, key, {});
    pressed.ignore();
    QApplication::sendEvent(&screen_, &pressed);
    return pressed.isAccepted();
  };
  EXPECT_FALSE(isTaken(Qt::Key_Escape));
  Ask();
  EXPECT_FALSE(isTaken(Qt::Key_1));
  EXPECT_TRUE(strip_.isVisible());
}

TEST_F(OfferStripTest, TheCrossGivesUp) {
  Ask();
  Click(Answer("Leave it as it is (Esc)"));
  EXPECT_EQ(done_, Strings{"gave up"});
}

TEST_F(OfferStripTest, LiesBelowTheFieldOrAboveItAndMovesNothing) {
  Ask();
  EXPECT_EQ(strip_.y(), 44);
  EXPECT_EQ(strip_.width(), 230);
  EXPECT_EQ(field_.geometry(), QRect(5, 20, 230, 24));
  Ask(low_);
  EXPECT_EQ(strip_.geometry().bottom(), 295);
  EXPECT_EQ(strip_.geometry().right(), 239);
}

TEST_F(OfferStripTest, AllOfItHasRoomOnTheSmallestScreens) {
  strip_.Offers(field_, u"\"1,234\":", {{u"1.234", {}}, {u"1234", {}}, {u"1 | 234", {}}});
  EXPECT_TRUE(screen_.rect().contains(strip_.geometry()));
  int left = 0;
  for (const char* name : {"1.234", "1234", "1 | 234", "Leave it as it is (Esc)"}) {
    const QPushButton& button = Answer(name);
    EXPECT_GT(button.x(), left) << name;
    EXPECT_FALSE(button.text().contains(u'…')) << name;
    EXPECT_GE(button.width(), button.fontMetrics().horizontalAdvance(button.text())) << name;
    left = button.geometry().right();
  }
  EXPECT_EQ(strip_.findChild<QLabel*>()->text(), "\"1,234\":");
  EXPECT_LT(left, strip_.width());
}

TEST_F(OfferStripTest, LongTextsAreCutAndToldWhole) {
  const std::u16string text(300, u'1');
  strip_.Offers(field_, u"Did you mean this?", {{text, {}}});
  const QPushButton& button = Answer(std::string(300, '1').c_str());
  EXPECT_LE(strip_.geometry().right(), 239);
  EXPECT_GE(button.x(), 0);
  EXPECT_TRUE(button.text().contains(u'…')) << button.text().toStdString();
}

TEST_F(OfferStripTest, GrowsWithTheScreen) {
  Ask();
  const int low = strip_.height();
  screen_.resize(2 * kScreen);
  EXPECT_NEAR(strip_.height(), 2 * low, 2);
}

TEST_F(OfferStripTest, NoEdgeOfAKeyLooksOutFromUnderIt) {
  const auto bottom = [this](int keys) {
    QPushButton key(&screen_);
    key.setGeometry(10, 50, 100, keys - 50);
    key.show();
    Ask();
    return strip_.geometry().bottom();
  };
  const int usual = bottom(51);
  EXPECT_EQ(bottom(usual + 4), usual + 3);
  // Of a key that is only half below it, the other half is seen.
  EXPECT_EQ(bottom(usual + 40), usual);
}

TEST_F(OfferStripTest, ScreenReadersFindAnAlertWithItsQuestion) {
  QAccessibleInterface* part = QAccessible::queryAccessibleInterface(&strip_);
  ASSERT_NE(part, nullptr);
  EXPECT_EQ(part->role(), QAccessible::AlertMessage);
  EXPECT_EQ(part->text(QAccessible::Name), "Question");
  Ask();
  EXPECT_EQ(part->text(QAccessible::Description), "1,234: which is meant?");
  QAccessibleInterface* answer = QAccessible::queryAccessibleInterface(&Answer("1.234"));
  EXPECT_EQ(answer->role(), QAccessible::Button);
  EXPECT_EQ(answer->text(QAccessible::Description), "1,234: which is meant? Key 2");
  answer->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  // The toolkit shows the button held for a moment.
  EXPECT_TRUE(QTest::qWaitFor([this] { return done_ == Strings{"1.234"}; }));
}

}  // namespace
}  // namespace kav::test::offer_strip_test
