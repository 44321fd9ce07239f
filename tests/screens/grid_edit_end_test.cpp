// How the editing of a text in a grid ends.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "screens/grid_edit_driver.h"

namespace kav::test::grid_edit_end_test {
namespace {

// Ending.

struct EndRow {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  const char* focus;
};

TEST_F(GridEditTest, KeysThatLeadOnTakeTheText) {
  for (const EndRow& row : {EndRow{Qt::Key_Return, {}, "11,2"},
                            {Qt::Key_Enter, {}, "11,2"},
                            {Qt::Key_Return, Qt::ShiftModifier, "9,2"},
                            {Qt::Key_Tab, {}, "10,3"},
                            {Qt::Key_Backtab, Qt::ShiftModifier, "10,1"},
                            {Qt::Key_Down, {}, "11,2"},
                            {Qt::Key_Up, {}, "9,2"},
                            {Qt::Key_PageDown, {}, "16,2"},
                            {Qt::Key_PageUp, {}, "4,2"}}) {
    grid_.SetFocusCell({10, 2});
    const QString text = QString::number(row.key);
    Begin(text);
    Key(row.key, row.modifiers);
    EXPECT_FALSE(grid_.IsEditing()) << row.key;
    EXPECT_FALSE(Box().isVisible()) << row.key;
    EXPECT_EQ(Text({10, 2}), text.toStdU16String()) << row.key;
    EXPECT_EQ(Selection(), row.focus) << row.key;
    EXPECT_TRUE(grid_.hasFocus()) << row.key;
    EXPECT_EQ(Told(), Log{"end 10,2 " + text.toStdString()}) << row.key;
  }
}

TEST_F(GridEditTest, KeysThatLeadThroughTheTextStayInIt) {
  Begin("123");
  for (const auto key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Right, Qt::Key_End}) Key(key);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Left);
  Key(Qt::Key_Delete);
  EXPECT_EQ(BoxText(), "1");
  EXPECT_EQ(Told(), Log{});
  EXPECT_TRUE(window_.keys.empty());
}

TEST_F(GridEditTest, ArrowsAtTheEndsOfTheTextLeadOnToTheNeighbour) {
  Begin("12");
  Key(Qt::Key_Right);
  EXPECT_EQ(Text({2, 2}), u"12");
  EXPECT_EQ(Focus(), "2,3");
  EXPECT_FALSE(grid_.IsEditing());
  Begin("34");
  Key(Qt::Key_Home);
  Key(Qt::Key_Left);
  EXPECT_EQ(Text({2, 3}), u"34");
  EXPECT_EQ(Focus(), "2,2");
  Key(Qt::Key_F2);
  Key(Qt::Key_Right);
  EXPECT_EQ(BoxText(), "12") << "first to the end of what is selected";
  EXPECT_FALSE(Box().hasSelectedText());
  Key(Qt::Key_Left, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "12") << "with Shift or Ctrl they stay";
}

TEST_F(GridEditTest, ArrowsAtTheBorderOfTheGridStayInTheText) {
  grid_.SetFocusCell({5, 3});
  Begin("7");
  Key(Qt::Key_Right);
  EXPECT_EQ(BoxText(), "7");
  grid_.SetFocusCell({5, 1});
  Begin("7");
  Key(Qt::Key_Home);
  Key(Qt::Key_Left);
  EXPECT_EQ(BoxText(), "7");
}

TEST_F(GridEditTest, ControlAndYRedoesInTheBox) {
  Begin("12");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(BoxText(), "12");
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(BoxText(), "12");
  EXPECT_TRUE(window_.keys.empty());
}

TEST_F(GridEditTest, EnterAfterTabsLeadsBelowTheCellWhereTheyBegan) {
  grid_.SetFocusCell({4, 1});
  for (const char* text : {"1", "2"}) {
    Type(text);
    Key(Qt::Key_Tab);
  }
  Type("3");
  Key(Qt::Key_Return);
  EXPECT_EQ(Focus(), "5,1");
  Type("4");
  Key(Qt::Key_Return);
  EXPECT_EQ(Focus(), "6,1");
  Key(Qt::Key_Right);
  Type("5");
  Key(Qt::Key_Return);
  EXPECT_EQ(Focus(), "7,2");
}

TEST_F(GridEditTest, TabInTheLastCellTakesTheTextAndLeaves) {
  grid_.SetFocusCell({20, 3});
  Begin();
  Key(Qt::Key_Tab);
  EXPECT_EQ(Text({20, 3}), u"new");
  EXPECT_TRUE(after_.hasFocus());
  grid_.setFocus();
  grid_.SetFocusCell({1, 1});
  Begin();
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Text({1, 1}), u"new");
  EXPECT_TRUE(before_.hasFocus());
}

TEST_F(GridEditTest, EnterInTheLastRowTakesTheTextAndStays) {
  grid_.SetFocusCell({20, 1});
  Begin();
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({20, 1}), u"new");
  EXPECT_EQ(Focus(), "20,1");
  EXPECT_TRUE(grid_.hasFocus());
  EXPECT_EQ(Told(), Log{"end 20,1 new"});
}

TEST_F(GridEditTest, AClickOnAnotherCellTakesTheText) {
  Begin();
  ClickCell({4, 3});
  EXPECT_FALSE(grid_.IsEditing());
  EXPECT_EQ(Text({2, 2}), u"new");
  EXPECT_EQ(Focus(), "4,3");
  EXPECT_EQ(Told(), Log{"end 2,2 new"});
}

TEST_F(GridEditTest, TheLossOfTheFocusTakesTheText) {
  Begin();
  before_.setFocus();
  EXPECT_FALSE(grid_.IsEditing());
  EXPECT_EQ(Text({2, 2}), u"new");
  EXPECT_TRUE(before_.hasFocus());
  EXPECT_EQ(Told(), Log{"end 2,2 new"});
}

TEST_F(GridEditTest, WhileItsOwnMenuIsOpenTheBoxStays) {
  Begin();
  QFocusEvent lost(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(&Box(), &lost);
  EXPECT_EQ(BoxText(), "new");
}

TEST_F(GridEditTest, ScrollingTakesTheText) {
  Begin();
  Wheel(-120);
  EXPECT_FALSE(grid_.IsEditing());
  EXPECT_EQ(Text({2, 2}), u"new");
  EXPECT_EQ(Told(), Log{"end 2,2 new"});
}

TEST_F(GridEditTest, ACallCanTakeTheText) {
  Begin();
  grid_.FinishEdit();
  EXPECT_EQ(Text({2, 2}), u"new");
  EXPECT_TRUE(grid_.hasFocus());
  EXPECT_EQ(Focus(), "2,2");
  grid_.FinishEdit();
  EXPECT_EQ(Told(), Log{"end 2,2 new"}) << "once";
}

TEST_F(GridEditTest, AnUntouchedTextIsToldAsWell) {
  Key(Qt::Key_F2);
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), u"old");
  EXPECT_EQ(Focus(), "3,2");
  EXPECT_EQ(Told(), (Log{"begin 2,2", "end 2,2 old"}));
}

TEST_F(GridEditTest, AnEmptiedBoxEmptiesTheCell) {
  Key(Qt::Key_F2);
  Key(Qt::Key_Delete);
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), u"");
  EXPECT_EQ(Focus(), "3,2");
  EXPECT_EQ(Told(), (Log{"begin 2,2", "end 2,2 "}));
}

TEST_F(GridEditTest, ATextTypedIntoACellWithASourceIsForItsOwner) {
  std::u16string owned = u"owned";
  grid_.SetSource([&owned](GridCell) { return GridContent{owned, {}}; });
  grid_.SetHooks(
      {{}, [&owned](int, int, const QString& text) { owned = text.toStdU16String(); }, {}});
  Key(Qt::Key_F2);
  EXPECT_EQ(BoxText(), "owned");
  Type("new");
  EXPECT_EQ(Text({2, 2}), u"owned");
  Key(Qt::Key_Return);
  EXPECT_EQ(owned, u"new");
  EXPECT_EQ(Text({2, 2}), u"new");
  Key(Qt::Key_F2);
  grid_.SetSource({});
  EXPECT_FALSE(grid_.IsEditing());
  EXPECT_EQ(owned, u"new");
  EXPECT_EQ(Text({2, 2}), u"old");
}

// Giving up.

TEST_F(GridEditTest, EscGivesUp) {
  Begin();
  Key(Qt::Key_Escape);
  EXPECT_FALSE(grid_.IsEditing());
  EXPECT_FALSE(Box().isVisible());
  EXPECT_EQ(Text({2, 2}), u"old");
  EXPECT_EQ(Focus(), "2,2");
  EXPECT_TRUE(grid_.hasFocus());
  EXPECT_EQ(Told(), Log{});
  EXPECT_TRUE(window_.keys.empty()) << "it is no Esc of the screen";
}

TEST_F(GridEditTest, AnotherShapeGivesUp) {
  const std::function<bool()> shapes[]{
      [this] { return grid_.SetRowCount(grid_.Model().RowCount() + 1); },
      [this] { return grid_.SetColumnCount(grid_.Model().ColumnCount() + 1); },
      [this] { return grid_.SetFixedRowCount(0); },
      [this] { return grid_.SetFixedColumnCount(0); },
      [this] { return grid_.SetRowCount(2); },
  };
  for (const auto& change : shapes) {
    grid_.SetFocusCell({2, 2});
    Begin();
    EXPECT_TRUE(change());
    EXPECT_FALSE(grid_.IsEditing());
    EXPECT_FALSE(Box().isVisible());
    EXPECT_EQ(Told(), Log{});
    EXPECT_TRUE(grid_.hasFocus());
  }
}

TEST_F(GridEditTest, TheSameShapeDoesNotDisturb) {
  Begin();
  EXPECT_TRUE(grid_.SetRowCount(21));
  EXPECT_TRUE(grid_.SetColumnCount(4));
  EXPECT_TRUE(grid_.SetFixedRowCount(1));
  EXPECT_TRUE(grid_.SetFixedColumnCount(1));
  EXPECT_EQ(BoxText(), "new");
}

TEST_F(GridEditTest, CallsThatTakeTheCellAwayGiveUp) {
  const std::function<void()> calls[]{
      [this] { grid_.GiveUpEdit(); },
      [this] {
        grid_.SetFocusCell({3, 3});
      },
      [this] {
        grid_.SelectTo({3, 3});
      },
      [this] { grid_.ResetSelectedRange(); },
  };
  for (const auto& call : calls) {
    grid_.SetFocusCell({2, 2});
    Begin();
    call();
    EXPECT_FALSE(grid_.IsEditing());
    EXPECT_EQ(Text({2, 2}), u"old");
    EXPECT_EQ(Told(), Log{});
  }
}

TEST_F(GridEditTest, AnotherScaleLeavesTheBoxOpenInItsPlace) {
  Begin();
  grid_.SetScale(1.5, 18);
  EXPECT_EQ(BoxText(), "new");
  EXPECT_EQ(BoxArea(), grid_.CellArea({2, 2}));
  EXPECT_EQ(Box().font(), grid_.font());
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), u"new");
}

TEST_F(GridEditTest, AGridThatIsDestroyedTellsNothing) {
  Begin();
  delete &grid_;
  EXPECT_EQ(Told(), Log{});
}

TEST_F(GridEditTest, AGridThatIsAWindowIsDestroyedWhileItsBoxIsOpen) {
  auto window = std::make_unique<CGridCtrl>(nullptr);
  ASSERT_TRUE(window->SetRowCount(2));
  ASSERT_TRUE(window->SetColumnCount(2));
  Show(*window);
  int ends = 0;
  window->SetHooks({{}, [&ends](int, int, const QString&) { ++ends; }, {}});
  window->SetFocusCell({1, 1});
  window->EditFocusCell();
  ASSERT_TRUE(window->IsEditing());
  window.reset();
  EXPECT_EQ(ends, 0);
}

}  // namespace
}  // namespace kav::test::grid_edit_end_test
