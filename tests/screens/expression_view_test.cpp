// The expression line as a picture: how large its letters are, what it marks, what stands beside
// it.
#include "screens/widgets/expression_view.h"
#include "screens/widgets/colours.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <algorithm>
#include <cmath>

#include "screens/screen_driver.h"
#include "screens/widgets/colour_scheme.h"

namespace kav::test::expression_view_test {
namespace {

/// Pixels between two colours that happen to have a third one.
constexpr int kStray = 20;

int Count(const QImage& picture, const QRect& part, const QColor& colour) {
  int count = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      if (picture.pixel(x, y) == colour.rgb()) ++count;
    }
  }
  return count;
}

class ExpressionViewTest : public ScientificScreen {
 protected:
  ExpressionView& View() { return dynamic_cast<ExpressionView&>(Expression(*dlg_)); }
  int Letters() { return View().font().pixelSize(); }
  /// The live result as it is seen; empty if it is not.
  QString Live() {
    const auto* live = View().findChild<QLabel*>();
    return live != nullptr && live->isVisible() ? live->text() : QString();
  }
  QImage Picture() { return View().grab().toImage(); }
  int Tinted(LineMark mark = LineMark::Pair) {
    return Count(Picture(), View().rect(), FormatOf(mark, View().palette()).background().color());
  }
  /// Whether an ellipsis stands at the left and at the right end.
  std::string Ellipses() {
    const QImage picture = Picture();
    const int margin = View().textMargins().left() - 7;
    const QColor base = View().palette().color(QPalette::Base);
    const int height = View().height() / 2;
    const auto isPainted = [&](int left) {
      const QRect part(left, height / 2, margin, height);
      return Count(picture, part, base) < part.width() * part.height();
    };
    return std::string(isPainted(6) ? "..." : "|") +
           (isPainted(View().width() - 6 - margin) ? "..." : "|");
  }
};

TEST_F(ExpressionViewTest, LettersShrinkToHalfBeforeAnythingIsOutOfSight) {
  const int normal = Letters();
  int before = normal;
  while (View().cursorPositionAt({View().textMargins().left(), View().height() / 2}) == 0) {
    Type("8");
    Picture();
    ASSERT_LE(Letters(), before);
    ASSERT_LT(View().text().size(), 200);
    before = Letters();
  }
  EXPECT_EQ(Letters(), qRound(normal * 0.5));
  // And as many as had room in twice the size.
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Ellipses(), "||");
  const int room = View().width() - 2 * View().textMargins().left();
  EXPECT_GT(QFontMetrics(View().font()).horizontalAdvance(View().text()), room * 4 / 5);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Letters(), normal);
}

TEST_F(ExpressionViewTest, AnEllipsisSaysThatMoreStandsThere) {
  Type("123456");
  EXPECT_EQ(Ellipses(), "||");
  Put(std::u16string(150, u'8') + u"|");
  EXPECT_EQ(Ellipses(), "...|");
  Key(Qt::Key_Home);
  EXPECT_EQ(Ellipses(), "|...");
  Put(std::u16string(75, u'8') + u"|" + std::u16string(75, u'8'));
  EXPECT_EQ(Ellipses(), "......");
}

TEST_F(ExpressionViewTest, AVeryLongTextIsShownAtOnce) {
  Put(std::u16string(1'000'000, u'(') + u"|");
  EXPECT_EQ(Ellipses(), "...|");
}

TEST_F(ExpressionViewTest, TheParenthesesAtTheCaretAreMarked) {
  Put(u"2*(3+4)|");
  EXPECT_GT(Tinted(), kStray);
  Key(Qt::Key_Left);
  EXPECT_GT(Tinted(), kStray);
  Key(Qt::Key_Left);
  EXPECT_LT(Tinted(), kStray);
  Put(u"2*(3+4|");
  EXPECT_LT(Tinted(), kStray);
  Type(")");
  EXPECT_GT(Tinted(), kStray);
  // Marks do not stay behind where they were.
  Put(u"(3+4)| 2");
  const int pair = Tinted();
  Put(u"(3+4)|2 ");
  EXPECT_EQ(Tinted(), pair);
  // A selection is clearer alone.
  Put(u"[2*(3+4)]");
  EXPECT_LT(Tinted(), kStray);
}

TEST_F(ExpressionViewTest, WhereALineFailsIsMarkedUntilItChanges) {
  Put(u"[2+*3]");
  const QImage without = Picture();
  View().MarkFault(Selection{2, 3});
  // Within the selection, too, but not over its letters.
  const QImage with = Picture();
  EXPECT_NE(with, without);
  const QRect above(0, 0, with.width(), (with.height() + View().fontMetrics().height()) / 2);
  EXPECT_EQ(with.copy(above), without.copy(above));
  Key(Qt::Key_End);
  EXPECT_GT(Tinted(LineMark::Fault), kStray);
  Type("1");
  EXPECT_LT(Tinted(LineMark::Fault), kStray);
}

TEST(MarkedParts, OfAFailureAreItsPlaceOrTheCharacterBeforeIt) {
  using Parts = std::vector<MarkedPart>;
  const auto fault = [](std::u16string_view text, Selection place) {
    return MarkedParts(text, {0, text.size()}, place);
  };
  EXPECT_EQ(fault(u"2+*3", {2, 3}), (Parts{{2, 1, LineMark::Fault}}));
  EXPECT_EQ(fault(u"sine(2)", {0, 4}), (Parts{{0, 4, LineMark::Fault}}));
  EXPECT_EQ(fault(u"2*(3", {4, 4}), (Parts{{3, 1, LineMark::Fault}}));
  EXPECT_EQ(fault(u"2*(3", {0, 0}), (Parts{{0, 1, LineMark::Fault}}));
  EXPECT_EQ(fault(u"2*(3", {9, 99}), (Parts{{3, 1, LineMark::Fault}}));
  EXPECT_EQ(fault(u"2\U0001D7D8", {3, 3}), (Parts{{1, 2, LineMark::Fault}}));
  EXPECT_EQ(fault(u"", {0, 0}), Parts());
}

TEST_F(ExpressionViewTest, WhatIsComposedIsNotDisturbed) {
  Put(u"(1)|");
  QInputMethodEvent compose("ab", {});
  QCoreApplication::sendEvent(&View(), &compose);
  EXPECT_LT(Tinted(), kStray);
  View().MarkFault(Selection{0, 1});
  QInputMethodEvent commit;
  commit.setCommitString("+2*(3)");
  QCoreApplication::sendEvent(&View(), &commit);
  EXPECT_EQ(Line(), u"(1)+2*(3)|");
  EXPECT_GT(Tinted(), kStray);
}

TEST_F(ExpressionViewTest, MarksAreNoStepsOfUndo) {
  Type("2*(3)");
  EXPECT_GT(Tinted(), kStray);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Line(), u"|");
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Line(), u"2*(3)|");
}

TEST_F(ExpressionViewTest, TheResultIsSeenWhileTheLineIsTyped) {
  EXPECT_EQ(Live(), "");
  Type("2*sin(30)+3!");
  EXPECT_EQ(Live(), "= 7");
  EXPECT_EQ(Answer(), u"0");
  Type("+");
  EXPECT_EQ(Live(), "");
  Tap(u"1");
  EXPECT_EQ(Live(), "= 8");
  Key(Qt::Key_Return);
  EXPECT_EQ(Live(), "");
  EXPECT_EQ(Answer(), u"8");
  // The line has another answer now.
  Put(u"sin(90)|");
  EXPECT_EQ(Live(), "= 1");
  Tap(u"DEG");
  EXPECT_EQ(Live(), "= 0.893996663601");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Live(), "");
}

TEST_F(ExpressionViewTest, TheLiveResultIsInNobodysWay) {
  for (const QSize size : {QSize(240, 320), QSize(360, 560), QSize(1080, 1440), QSize(180, 240)}) {
    dlg_->resize(size);
    Put(u"|");
    const int normal = Letters();
    for (const QChar c : QString("2*sin(30)+3!+1000000*1000000+2*sin(30)+1000000*1000000")) {
      Type(c);
      const auto* live = View().findChild<QLabel*>();
      if (Live().isEmpty()) continue;
      EXPECT_TRUE(View().rect().contains(QRect(live->x(), live->y(), live->width(), 1)));
      const int line = View().fontMetrics().height();
      const int end = View().inputMethodQuery(Qt::ImCursorRectangle).toRect().right();
      EXPECT_TRUE(live->x() > end || live->y() + live->height() / 4 >= (View().height() + line) / 2)
          << View().text().toStdString();
    }
    Put(u"1+1|");
    EXPECT_EQ(Letters(), normal);
    EXPECT_EQ(Live(), "= 2") << size.width();
  }
}

TEST_F(ExpressionViewTest, ScreenReadersFindTheLiveResultAndAreNotToldOfIt) {
  Type("6*7");
  auto* live = View().findChild<QLabel*>();
  ASSERT_NE(live, nullptr);
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(live);
  ASSERT_NE(access, nullptr);
  EXPECT_EQ(access->role(), QAccessible::StaticText);
  EXPECT_EQ(access->text(QAccessible::Name), "Live result");
  EXPECT_EQ(access->text(QAccessible::Description), "= 42");
  EXPECT_EQ(View().accessibleDescription(), "");
}

TEST_F(ExpressionViewTest, FaintIsStillReadable) {
  QPalette dark = View().palette();
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::Text, QColor(230, 230, 230));
  for (const QPalette& palette : {View().palette(), dark}) {
    EXPECT_GE(ContrastBetween(FaintColour(palette), palette.color(QPalette::Base)), 4.5);
    const QColor tint = FormatOf(LineMark::Pair, palette).background().color();
    EXPECT_GE(ContrastBetween(palette.color(QPalette::Text), tint), 4.5);
  }
}

TEST_F(ExpressionViewTest, TheLiveResultStaysFaintInOtherColours) {
  Type("6*7");
  const auto* live = View().findChild<QLabel*>();
  ASSERT_NE(live, nullptr);
  for (const ColourChoice choice :
       {ColourChoice::Dark, ColourChoice::HighContrast, ColourChoice::Light}) {
    UseColours(choice);
    EXPECT_EQ(live->palette().color(QPalette::WindowText), FaintColour(View().palette()));
  }
}

}  // namespace
}  // namespace kav::test::expression_view_test
