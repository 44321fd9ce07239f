// What buttons tell of themselves, to a mouse that rests on them and to screen readers.
#include "screens/widgets/tool_tip.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>
#include <set>
#include <string>

#include "screens/every_window.h"

namespace kav::test::tool_tip_test {
namespace {

/// What a mouse that rests on the button is told.
std::string TipOf(QAbstractButton& button) {
  QToolTip::hideText();
  const QPoint place = button.rect().center();
  QHelpEvent event(QEvent::ToolTip, place, button.mapToGlobal(place));
  QApplication::sendEvent(&button, &event);
  return QToolTip::text().replace(u'\n', u' ').toStdString();
}

std::string DescriptionOf(QAbstractButton& button) {
  return QAccessible::queryAccessibleInterface(&button)
      ->text(QAccessible::Description)
      .toStdString();
}

/// Whether the caption says all that there is to say.
bool SaysAll(const QAbstractButton& button) {
  static const std::set<QString> kPlainWords{"OK", "Cancel", "Close", "Yes", "No", "Open", "Save"};
  return kPlainWords.contains(button.text().remove('&'));
}

class ToolTipTest : public EveryWindow {
 protected:
  /// The buttons of a window that lack what they should tell.
  static std::string Silent(const QWidget& window) {
    std::string silent;
    for (auto* button : window.findChildren<QAbstractButton*>()) {
      // The corner of a table, and what the toolkit keeps for a menu bar without room.
      if (button->text().isEmpty() && (button->icon().isNull() || !button->isVisible())) continue;
      ++seen_;
      const std::string description = DescriptionOf(*button);
      const bool isKnown = SaysAll(*button) && description.empty();
      if (!isKnown &&
          (description.empty() || TipOf(*button).find(description) == std::string::npos))
        silent += " " + button->text().toStdString();
    }
    return silent;
  }
  static inline int seen_ = 0;
};

TEST_F(ToolTipTest, EveryButtonSaysWhatItDoesUnlessItsCaptionSaysAll) {
  for (const auto& windows : {Dialogs(), Boxes()}) {
    for (const Window& window : windows) {
      SCOPED_TRACE(window.name);
      Renew();
      window.show([](QWidget& shown) { EXPECT_EQ(Silent(shown), ""); });
    }
  }
  EXPECT_GT(seen_, 70);
}

TEST_F(ToolTipTest, ASilentButtonIsFound) {
  QWidget window;
  QPushButton button("Frob", &window);
  Show(window);
  EXPECT_EQ(Silent(window), " Frob");
  Explain(button, u"do it");
  EXPECT_EQ(Silent(window), "");
  button.setText("OK");
  EXPECT_EQ(Silent(window), "");
}

TEST_F(ToolTipTest, TheButtonsOfTheMacroEditorAreExplainedInWords) {
  struct Row {
    std::u16string_view caption;
    const char* tip;
  };
  const Row rows[] = {
      {u"MEM", "MEM: write the value of a memory variable into the expression"},
      {u"F(X)", "F(X): write a function into the expression"},
      {u"Variables", "Variables: write a variable of the macro into the expression"},
      {u"Save", "Save: store the macro as it stands in the fields"},
      {u"Cancel", "Cancel: give up what was changed in the fields"},
  };
  for (const Window& window : Dialogs()) {
    if (std::string_view(window.name) != "macro editor, New") continue;
    window.show([&rows](QWidget& shown) {
      for (const auto& [caption, tip] : rows) {
        QAbstractButton& button = *FindKey(shown, caption);
        EXPECT_EQ(TipOf(button), tip);
        EXPECT_EQ(button.text().toStdString() + ": " + DescriptionOf(button), tip);
      }
    });
  }
}

TEST_F(ToolTipTest, TheOptionsOfThePlotterAreExplainedOnItsScreenToo) {
  const auto screen = MakePlotterScreen(*frame_);
  Show(*screen);
  EXPECT_EQ(TipOf(*FindKey(*screen, u"Grid")), "Grid: draw a grid behind the curves");
  EXPECT_EQ(TipOf(*FindKey(*screen, u"Line")), "Line: join the points of a curve by lines");
}

TEST_F(ToolTipTest, AFingerIsToldNothing) {
  QWidget window;
  QPushButton button("Frob", &window);
  Explain(button, u"do it");
  Show(window);
  const QPointF place = button.rect().center();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const QPointF global = button.mapToGlobal(place);
    QMouseEvent event(type, place, global, global, Qt::LeftButton, Qt::LeftButton, {},
                      Qt::MouseEventSynthesizedBySystem);
    QApplication::sendEvent(&button, &event);
  }
  EXPECT_EQ(TipOf(button), "");
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(TipOf(button), "Frob: do it");
}

}  // namespace
}  // namespace kav::test::tool_tip_test
