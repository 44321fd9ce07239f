// What a grid tells a screen reader of its own accord.
#include <gtest/gtest.h>

#include <QAccessible>
#include <algorithm>
#include <vector>

#include "screens/grid_access_driver.h"

// Without a display there is no screen reader: what would go to one is caught here, for all tests.
bool QAccessible::isActive() {
  return kav::test::GridAccessTest::isListening;
}
void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  using kav::test::GridAccessTest;
  // The toolkit itself asks for the table whose model is another one.
  if (event->type() == QAccessible::TableModelChanged) event->accessibleInterface();
  if (event->object() != GridAccessTest::listenedTo) return;
  GridAccessTest::told.emplace_back(event->type(), event->child());
}

namespace kav::test::grid_access_events_test {
namespace {

TEST_F(GridAccessTest, AGridThatIsMadeWhileSomeoneListensHasItsCells) {
  CGridCtrl later(&window_);
  ASSERT_TRUE(later.SetRowCount(1));
  ASSERT_TRUE(later.SetColumnCount(1));
  ASSERT_TRUE(later.SetItem({0, 0, GridItem::kText, u"5", {}}));
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&later);
  EXPECT_EQ(NameOf(table->tableInterface()->cellAt(0, 0)), "5");
}

TEST_F(GridAccessTest, AMoveIsToldWithTheCellThatItLeadsTo) {
  grid_.setFocus();
  grid_.SetFocusCell({1, 1});
  Heard();
  Key(Qt::Key_Down);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Focus, Index({2, 1})}}));
  Key(Qt::Key_Right);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Focus, Index({2, 2})}}));
  Key(Qt::Key_Right);
  EXPECT_EQ(Heard(), std::vector<Event>{});
  ClickCell({1, 1});
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Focus, Index({1, 1})}}));
}

TEST_F(GridAccessTest, ASelectionIsToldWithTheCellAtItsEnd) {
  grid_.setFocus();
  grid_.SetFocusCell({1, 1});
  Heard();
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Selection, Index({2, 1})}}));
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::Selection, Index({3, 2})}}));
}

TEST_F(GridAccessTest, WhoComesToTheGridIsToldTheCell) {
  grid_.SetFocusCell({3, 1});
  EXPECT_EQ(Heard(), std::vector<Event>{}) << "the keys are elsewhere";
  grid_.setFocus();
  const auto heard = Heard();
  EXPECT_NE(std::find(heard.begin(), heard.end(), Event(QAccessible::Focus, Index({3, 1}))),
            heard.end());
}

TEST_F(GridAccessTest, ATypedTextIsTold) {
  grid_.setFocus();
  grid_.SetFocusCell({2, 2});
  Type("7");
  Heard();
  Key(Qt::Key_Return);
  const auto heard = Heard();
  EXPECT_NE(std::find(heard.begin(), heard.end(), Event(QAccessible::NameChanged, Index({2, 2}))),
            heard.end());
}

TEST_F(GridAccessTest, AnotherShapeIsToldOnceAndTheSameNot) {
  grid_.SetRowCount(9);
  EXPECT_EQ(Heard(), (std::vector<Event>{{QAccessible::TableModelChanged, -1}}));
  grid_.SetRowCount(9);
  grid_.SetRowCount(-1);
  EXPECT_EQ(Heard(), std::vector<Event>{});
}

TEST_F(GridAccessTest, WhereNobodyListensNothingIsTold) {
  isListening = false;
  grid_.setFocus();
  Heard();
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  grid_.SetRowCount(9);
  EXPECT_EQ(Heard(), std::vector<Event>{});
}

}  // namespace
}  // namespace kav::test::grid_access_events_test
