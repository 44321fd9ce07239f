// The scientific screen as a screen reader finds it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <map>

#include "screens/screen_driver.h"

namespace kav::test::screen_accessibility_test {
namespace {

class ScreenAccessibilityTest : public ScientificScreen {
 protected:
  QAccessibleInterface& Of(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
  }
  QString NameOf(QWidget& widget) { return Of(widget).text(QAccessible::Name); }

  /// All buttons that a screen reader can reach from the screen, by name.
  std::map<QString, QAccessibleInterface*> Buttons() {
    std::map<QString, QAccessibleInterface*> buttons;
    Collect(&Of(*dlg_), buttons);
    return buttons;
  }

 private:
  static void Collect(QAccessibleInterface* from, std::map<QString, QAccessibleInterface*>& into) {
    for (int i = 0; i < from->childCount(); ++i) {
      QAccessibleInterface* child = from->child(i);
      if (child == nullptr || child->state().invisible) continue;
      if (child->role() == QAccessible::Button) into[child->text(QAccessible::Name)] = child;
      Collect(child, into);
    }
  }
};

TEST_F(ScreenAccessibilityTest, EveryKeyIsNamedAsItsCaptionReads) {
  const auto buttons = Buttons();
  EXPECT_EQ(buttons.size(), 46U);
  for (const char* caption :
       {"DEG", "DEC",   "BS", "DEL", "PB",   "CLR",  "Shift", "Mac", "Cnv", "ABS()", "M/C", "SIN",
        "COS", "TAN",   "Pi", "nCr", "SINH", "COSH", "TANH",  "LOG", "LN",  "SQRT",  "X^2", "Y^X",
        "%",   "(...)", "7",  "8",   "9",    "(",    ")",     "4",   "5",   "6",     "*",   "/",
        "1",   "2",     "3",  "+",   "-",    "0",    "00",    ".",   "Exp", "="}) {
    EXPECT_TRUE(buttons.contains(caption)) << caption;
  }
}

TEST_F(ScreenAccessibilityTest, EntriesOfTheEditMenuAreDescribed) {
  QAccessibleInterface& menu = Of(*MenuOf(*dlg_, u"&Edit"));
  std::map<QString, QString> entries;
  for (int i = 0; i < menu.childCount(); ++i) {
    QAccessibleInterface& entry = *menu.child(i);
    entries[entry.text(QAccessible::Name)] = entry.text(QAccessible::Description);
    EXPECT_EQ(entry.role(), QAccessible::MenuItem);
  }
  EXPECT_EQ(entries,
            (std::map<QString, QString>{{"Copy", "Copy the selection and put it on the Clipboard"},
                                        {"Copy Line and Result", ""},
                                        {"Copy Result", ""},
                                        {"Cut", "Cut the selection and put it on the Clipboard"},
                                        {"History",
                                         "Show or hide the lines of all sessions, with their "
                                         "answers"},
                                        {"Paste", "Insert Clipboard contents"},
                                        {"Redo", ""},
                                        {"Select All", ""},
                                        {"Undo", ""}}));
  Type("12");
  QAccessibleInterface& cut = *menu.child(2);
  Expression(*dlg_).selectAll();
  cut.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Line(), u"|");
}

TEST_F(ScreenAccessibilityTest, NamesFollowTheCaptionsOfShiftAndBase) {
  Tap(u"Shift");
  EXPECT_TRUE(Buttons().contains("ASIN"));
  EXPECT_FALSE(Buttons().contains("SIN"));
  Tap(u"Shift DEC");
  Choose(u"Hexadecimal");
  const auto buttons = Buttons();
  for (const char* caption : {"HEX", "A", "B", "C", "D", "E", "F", "AND", "NOT", "XNOR"}) {
    EXPECT_TRUE(buttons.contains(caption)) << caption;
  }
  EXPECT_FALSE(buttons.contains("SIN"));
  EXPECT_EQ(buttons.size(), 46U);
}

TEST_F(ScreenAccessibilityTest, TheActiveShiftKeySaysThatItIsOn) {
  EXPECT_FALSE(Buttons().at("Shift")->text(QAccessible::Description).startsWith("on:"));
  Tap(u"Shift");
  EXPECT_TRUE(Buttons().at("Shift")->text(QAccessible::Description).startsWith("on: "));
}

TEST_F(ScreenAccessibilityTest, DisabledKeysSaySo) {
  EXPECT_TRUE(Buttons().at("PB")->state().disabled);
  EXPECT_FALSE(Buttons().at("SIN")->state().disabled);
}

TEST_F(ScreenAccessibilityTest, AScreenReaderPressesAKey) {
  Buttons().at("SIN")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Line() == u"sin(|)"; }));
}

TEST_F(ScreenAccessibilityTest, TheLinesHaveNamesAndTheResultItsText) {
  EXPECT_EQ(NameOf(Expression(*dlg_)), "Expression");
  EXPECT_EQ(NameOf(Result(*dlg_)), "Result");
  Tap(u"SIN 3 0 =");
  EXPECT_EQ(Of(Result(*dlg_)).text(QAccessible::Value), "0.5");
  EXPECT_EQ(Of(Result(*dlg_)).text(QAccessible::Description), "0.5");
  EXPECT_EQ(Of(Expression(*dlg_)).text(QAccessible::Value), "sin(30)");
  EXPECT_TRUE(Of(Result(*dlg_)).state().readOnly);
  EXPECT_FALSE(Of(Expression(*dlg_)).state().readOnly);
}

TEST_F(ScreenAccessibilityTest, TheMenusAreNamed) {
  auto* bar = dlg_->findChild<QMenuBar*>();
  QAccessibleInterface& menus = Of(*bar);
  ASSERT_EQ(menus.childCount(), 3);
  EXPECT_EQ(menus.child(0)->text(QAccessible::Name), "File");
  EXPECT_EQ(menus.child(1)->text(QAccessible::Name), "Edit");
  EXPECT_EQ(menus.child(2)->text(QAccessible::Name), "Help");
}

}  // namespace
}  // namespace kav::test::screen_accessibility_test
