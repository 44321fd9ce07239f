// Texts of a grid edited in place: how that begins, what is told of it, which texts there can be.
#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <functional>
#include <string>

#include "screens/grid_edit_driver.h"

namespace kav::test::grid_edit_test {
namespace {

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
  meanwhile_ = [this] { EXPECT_EQ(Focus(), "1,1") << "before the edit begins"; };
  Type("7");
  EXPECT_EQ(Focus(), "1,1");
  EXPECT_EQ(Told(), Log{"begin 1,1"});
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

TEST_F(GridEditTest, WhereThereIsNoFocusCellACallOpensNothing) {
  grid_.ResetSelectedRange();
  grid_.EditFocusCell();
  EXPECT_FALSE(grid_.IsEditing());
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
      [this] { grid_.ResetSelectedRange(); },
      [this] {
        grid_.SetFocusCell({5, 1});
      },
      [this] { grid_.SetRowCount(2); },
  };
  for (const auto& prevention : preventions) {
    Build(20, 3);
    Put({2, 2}, u"old");
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
}  // namespace kav::test::grid_edit_test
