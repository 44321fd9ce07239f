// Texts of a grid edited in place.
#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <functional>
#include <memory>
#include <utility>

#include "screens/grid_driver.h"

namespace kav::test {
namespace {

class GridEditTest : public GridScreen {
 protected:
  GridEditTest() {
    Build(20, 3);
    Put({2, 2}, u"old");
    grid_.setFocus();
    grid_.SetFocusCell({2, 2});
  }

  /// Opens the box over the focus cell with a new text in it.
  void Begin(const QString& text = "new") {
    Key(Qt::Key_F2);
    Type(text);
    ASSERT_EQ(BoxText(), text);
    log_.clear();
  }
  QString BoxText() { return grid_.IsEditing() && Box().isVisible() ? Box().text() : "(no box)"; }

  /// What is to happen while the hooks are told the next line.
  std::function<void()> meanwhile_;

 private:
  void Note(const std::string& line) override {
    GridScreen::Note(line);
    if (meanwhile_) std::exchange(meanwhile_, {})();
  }
};

// Beginning.

TEST_F(GridEditTest, TypingReplacesTheText) {
  Type("4");
  EXPECT_EQ(BoxText(), "4");
  EXPECT_TRUE(Box().hasFocus());
  EXPECT_FALSE(Box().hasSelectedText());
  Type("2");
  EXPECT_EQ(BoxText(), "42");
  EXPECT_EQ(Text({2, 2}), u"old") << "as long as it is being typed";
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), u"42");
}

TEST_F(GridEditTest, EveryCharacterThatCanBeSeenBegins) {
  for (const char* text : {"-", ".", "a", "Z", " ", "("}) {
    grid_.SetFocusCell({1, 1});
    Type(text);
    EXPECT_EQ(BoxText(), text);
    Key(Qt::Key_Escape);
  }
}

TEST_F(GridEditTest, KeysOpenTheOldTextSelected) {
  for (const auto key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
    Key(key);
    EXPECT_EQ(BoxText(), "old") << key;
    EXPECT_EQ(Box().selectedText(), "old") << key;
    Key(Qt::Key_Escape);
  }
  Key(Qt::Key_F2);
  Key(Qt::Key_End);
  Type("er");
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), u"older");
}

TEST_F(GridEditTest, ADoubleClickOpensTheOldTextSelected) {
  grid_.SetFocusCell({1, 1});
  DoubleClickAt(Middle({2, 2}));
  EXPECT_EQ(BoxText(), "old");
  EXPECT_EQ(Box().selectedText(), "old");
  EXPECT_EQ(Focus(), "2,2");
}

TEST_F(GridEditTest, ADoubleClickOnAHeaderOrBesideTheCellsOpensNothing) {
  for (const QPoint place : {Middle({0, 2}), Middle({2, 0}), Middle({0, 0}), QPoint(250, 50)}) {
    DoubleClickAt(place);
    EXPECT_FALSE(grid_.IsEditing()) << place.x();
  }
}

TEST_F(GridEditTest, WithoutAFocusTheFirstCellIsEdited) {
  grid_.ResetSelectedRange();
  log_.clear();
  Type("7");
  EXPECT_EQ(Focus(), "1,1");
  EXPECT_EQ(Told(), (Log{"selection", "begin 1,1"}));
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({1, 1}), u"7");
}

TEST_F(GridEditTest, TheBoxLiesOverItsCellAndIsNamedByItsHeaders) {
  Put({2, 2}, u"old", {GridAlignment::Right, false});
  Key(Qt::Key_F2);
  EXPECT_EQ(BoxArea(), grid_.CellArea({2, 2}));
  EXPECT_EQ(Box().alignment(), Qt::AlignRight | Qt::AlignVCenter);
  EXPECT_EQ(Box().accessibleName(), "row 2, column 2");
  EXPECT_EQ(Box().font(), grid_.font());
  grid_.SetColumnWidth(1, 80);
  EXPECT_EQ(BoxArea(), grid_.CellArea({2, 2}));
  Key(Qt::Key_Escape);
  Put({2, 2}, u"old", {GridAlignment::Left, false});
  Key(Qt::Key_F2);
  EXPECT_EQ(Box().alignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

TEST_F(GridEditTest, OverANarrowColumnTheBoxIsWideEnoughToTypeIn) {
  for (int column = 1; column <= 3; ++column) grid_.SetColumnWidth(column, 4);
  for (int column = 1; column <= 3; ++column) {
    grid_.SetFocusCell({2, column});
    Key(Qt::Key_F2);
    EXPECT_GE(Box().width(), 40);
    EXPECT_TRUE(Whole().contains(BoxArea()));
    Key(Qt::Key_Escape);
  }
}

TEST_F(GridEditTest, ACellThatIsScrolledAwayComesBackToBeEdited) {
  Wheel(-1200);
  ASSERT_FALSE(Room().contains(grid_.CellArea({2, 2})));
  Key(Qt::Key_F2);
  EXPECT_EQ(BoxText(), "old");
  EXPECT_TRUE(Room().contains(BoxArea()));
}

TEST_F(GridEditTest, WhereCellsCannotBeEditedNothingOpens) {
  grid_.SetEditable(false);
  EXPECT_FALSE(grid_.IsEditable());
  Key(Qt::Key_F2);
  Type("4");
  DoubleClickAt(Middle({2, 2}));
  grid_.EditFocusCell();
  EXPECT_FALSE(grid_.IsEditing());
  grid_.SetEditable(true);
  grid_.EditFocusCell();
  EXPECT_EQ(BoxText(), "old");
}

TEST_F(GridEditTest, WhereThereIsNoFocusCellACallOpensNothing) {
  grid_.ResetSelectedRange();
  grid_.EditFocusCell();
  EXPECT_FALSE(grid_.IsEditing());
}

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
    EXPECT_EQ(Told(), (Log{"end 10,2 " + text.toStdString(), "selection"})) << row.key;
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
  EXPECT_EQ(Told(), (Log{"end 2,2 new", "selection"}));
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
  EXPECT_EQ(Told(), (Log{"begin 2,2", "end 2,2 old", "selection"}));
}

TEST_F(GridEditTest, AnEmptiedBoxEmptiesTheCell) {
  Key(Qt::Key_F2);
  Key(Qt::Key_Delete);
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), u"");
  EXPECT_EQ(Told(), (Log{"begin 2,2", "end 2,2 ", "selection"}));
}

TEST_F(GridEditTest, ATextTypedIntoACellWithASourceIsForItsOwner) {
  std::u16string owned = u"owned";
  grid_.SetSource([&owned](GridCell) { return GridContent{owned, {}}; });
  grid_.SetHooks(
      {{}, [&owned](int, int, const QString& text) { owned = text.toStdU16String(); }, {}, {}});
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
      [this] { grid_.SetEditable(false); },   [this] { grid_.GiveUpEdit(); },
      [this] { grid_.SetFocusCell({3, 3}); }, [this] { grid_.SelectTo({3, 3}); },
      [this] { grid_.ResetSelectedRange(); },
  };
  for (const auto& call : calls) {
    grid_.SetEditable(true);
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
  window->SetHooks({{}, [&ends](int, int, const QString&) { ++ends; }, {}, {}});
  window->SetFocusCell({1, 1});
  window->EditFocusCell();
  ASSERT_TRUE(window->IsEditing());
  window.reset();
  EXPECT_EQ(ends, 0);
}

// What is told, and when.

TEST_F(GridEditTest, TheBeginningIsToldBeforeTheBoxIsOpenAndTheCellHasItsText) {
  bool isSeen = false;
  meanwhile_ = [&] {
    isSeen = true;
    EXPECT_FALSE(grid_.IsEditing());
    EXPECT_FALSE(Box().isVisible());
    EXPECT_EQ(Text({2, 2}), u"old");
  };
  Type("4");
  EXPECT_TRUE(isSeen);
  EXPECT_EQ(BoxText(), "4");
  EXPECT_EQ(Told(), Log{"begin 2,2"});
}

TEST_F(GridEditTest, TheEndIsToldWhenTheTextIsTheCellsAndTheFocusHasNotMoved) {
  Begin();
  bool isSeen = false;
  meanwhile_ = [&] {
    isSeen = true;
    EXPECT_FALSE(grid_.IsEditing());
    EXPECT_EQ(Text({2, 2}), u"new");
    EXPECT_EQ(Focus(), "2,2");
  };
  Key(Qt::Key_Tab);
  EXPECT_TRUE(isSeen);
  EXPECT_EQ(Focus(), "2,3");
}

TEST_F(GridEditTest, WhoIsToldOfABeginningCanPreventIt) {
  const std::function<void()> preventions[]{
      [this] { grid_.SetEditable(false); },
      [this] { grid_.ResetSelectedRange(); },
      [this] {
        grid_.SetFocusCell({5, 1});
      },
      [this] { grid_.SetRowCount(2); },
  };
  for (const auto& prevention : preventions) {
    Build(20, 3);
    Put({2, 2}, u"old");
    grid_.SetEditable(true);
    grid_.SetFocusCell({2, 2});
    meanwhile_ = prevention;
    Type("4");
    EXPECT_FALSE(grid_.IsEditing());
    EXPECT_FALSE(Box().isVisible());
    EXPECT_TRUE(grid_.hasFocus());
  }
}

TEST_F(GridEditTest, WhoIsToldOfAnEndCanChangeTheGrid) {
  for (const auto key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_PageDown}) {
    Build(20, 3);
    grid_.SetFocusCell({20, 3});
    Begin();
    meanwhile_ = [this] { Build(1, 1); };
    Key(key);
    EXPECT_FALSE(grid_.IsEditing()) << key;
    EXPECT_EQ(grid_.Model().RowCount(), 2) << key;
    const GridCell focus = grid_.Focus();
    EXPECT_TRUE(focus.IsNone() || focus == (GridCell{1, 1})) << key;
    grid_.setFocus();
  }
}

TEST_F(GridEditTest, TheCellUnderAnOpenBoxCanBeSetAndTheBoxStays) {
  Begin();
  grid_.SetItem({2, 2, GridItem::kText, u"other", {}});
  EXPECT_EQ(BoxText(), "new");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Text({2, 2}), u"other");
}

// Texts.

TEST_F(GridEditTest, AnInputMethodWritesIntoTheBox) {
  Key(Qt::Key_F2);
  QInputMethodEvent event;
  event.setCommitString("3é");
  QApplication::sendEvent(QApplication::focusWidget(), &event);
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), u"3é");
}

TEST_F(GridEditTest, LinesThatArePastedBecomeOne) {
  Key(Qt::Key_F2);
  Box().insert("1\n2\t3");
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), u"1 2 3");
}

TEST_F(GridEditTest, ATextThatIsTooLongForTheBoxIsKeptUntilItIsTouched) {
  const std::u16string text(1500, u'7');
  Put({2, 2}, text);
  Key(Qt::Key_F2);
  EXPECT_EQ(Box().text().size(), 1000);
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), text);
  Key(Qt::Key_Up);
  Key(Qt::Key_F2);
  Key(Qt::Key_End);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Return);
  EXPECT_EQ(Text({2, 2}), std::u16string(999, u'7'));
}

TEST_F(GridEditTest, WhatTheBoxDoesNotTakeAnyMoreIsNotTyped) {
  Key(Qt::Key_F2);
  Box().insert(QString(1000, '8'));
  Type("9");
  EXPECT_EQ(BoxText(), QString(1000, '8'));
}

}  // namespace
}  // namespace kav::test
