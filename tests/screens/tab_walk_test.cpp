// Every screen and dialog with the keyboard alone: Tab leads to each control and round, the focus
// is seen wherever it is, and Esc closes what can be closed.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QFileDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QTabBar>
#include <set>

#include "screens/every_window.h"

namespace kav::test::tab_walk_test {
namespace {

std::string NameOf(const QWidget* widget) {
  if (widget == nullptr) return "nothing";
  auto* access = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
  return widget->metaObject()->className() +
         (" \"" + access->text(QAccessible::Name).toStdString() + "\"");
}

/// Whether the keyboard has to reach it: of radio buttons the arrows reach the others.
bool IsReachable(const QWidget& part, const QWidget& window) {
  if (!part.isVisible() || !part.isEnabled() || part.window() != &window) return false;
  const auto* radio = qobject_cast<const QRadioButton*>(&part);
  if (radio != nullptr && !radio->isChecked()) return false;
  return (part.focusPolicy() & Qt::TabFocus) != 0 && part.focusProxy() == nullptr;
}

/// The parts that have the focus one after another, from the one that has it now until it has it
/// again.
std::vector<QWidget*> RoundOf(Qt::Key key) {
  constexpr std::size_t kMost = 100;
  std::vector<QWidget*> round;
  while (round.size() < kMost) {
    QWidget* now = QApplication::focusWidget();
    if (now == nullptr) {
      ADD_FAILURE() << "after " << (round.empty() ? "opening" : NameOf(round.back()))
                    << " nothing has the focus";
      return round;
    }
    if (!round.empty() && now == round.front()) return round;
    round.push_back(now);
    const auto modifiers = key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier;
    QTest::keyClick(now, key, modifiers);
  }
  std::string end;
  for (std::size_t i = kMost - 5; i < kMost; ++i) end += NameOf(round[i]) + " ";
  ADD_FAILURE() << "the focus does not come back, it goes on " << end;
  return round;
}

/// Tab leads along the rows of keys from above to below, whatever keys share a place.
void ExpectRowByRow(const std::vector<QWidget*>& round) {
  const QWidget* before = nullptr;
  for (const QWidget* part : round) {
    if (dynamic_cast<const KeyView*>(part) == nullptr) continue;
    if (before != nullptr) {
      const QPoint one = before->pos();
      const QPoint other = part->pos();
      EXPECT_LT(std::pair(one.y(), one.x()), std::pair(other.y(), other.x()))
          << NameOf(part) << " comes after " << NameOf(before);
    }
    before = part;
  }
}

class TabWalkTest : public EveryWindow {};

TEST_F(TabWalkTest, TabLeadsToEveryControlAndRound) {
  VisitAll([](QWidget& window) {
    const auto round = RoundOf(Qt::Key_Tab);
    for (const auto* part : window.findChildren<QWidget*>()) {
      if (!IsReachable(*part, window)) continue;
      EXPECT_NE(std::find(round.begin(), round.end(), part), round.end())
          << NameOf(part) << " is not reached";
    }
    auto back = RoundOf(Qt::Key_Backtab);
    if (back.size() > 1) std::reverse(back.begin() + 1, back.end());
    EXPECT_EQ(back, round);
    ExpectRowByRow(round);
  });
}

TEST_F(TabWalkTest, TheFocusIsSeenWhereverItIs) {
  VisitAll([](QWidget& window) {
    // In the toolkit's own lists of files it is seen on a file only.
    if (qobject_cast<QFileDialog*>(&window) != nullptr) return;
    const auto pictureOf = [&](const QWidget& part) {
      const QPoint place = part.mapTo(&window, QPoint(0, 0));
      return window.grab(QRect(place, part.size())).toImage();
    };
    std::set<const QWidget*> seen;
    while (seen.insert(QApplication::focusWidget()).second) {
      QWidget& part = *QApplication::focusWidget();
      const QImage with = pictureOf(part);
      QTest::keyClick(&part, Qt::Key_Tab);
      if (QApplication::focusWidget() == &part) return;
      EXPECT_TRUE(with != pictureOf(part)) << "the focus of " << NameOf(&part) << " is not seen";
    }
  });
}

TEST_F(TabWalkTest, EscapeClosesADialogWhereverTheFocusIs) {
  for (const auto& windows : {Dialogs(), Boxes(), FileDialogs()}) {
    for (const Window& window : windows) {
      SCOPED_TRACE(window.name);
      Renew();
      window.show([](QWidget& shown) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        // The first ends what is being written.
        if (shown.isVisible()) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(shown.isVisible());
      });
    }
  }
}

}  // namespace
}  // namespace kav::test::tab_walk_test
