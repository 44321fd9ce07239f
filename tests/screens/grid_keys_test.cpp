// What the user does with keys on a grid.
#include <gtest/gtest.h>

#include <QShortcut>
#include <iterator>
#include <memory>
#include <random>

#include "screens/grid_driver.h"

namespace kav::test::grid_keys_test {
namespace {

constexpr auto kShift = Qt::ShiftModifier;
constexpr auto kControl = Qt::ControlModifier;

class GridKeysTest : public GridScreen {};

struct KeyRow {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  GridCell from;
  const char* focus;
};

TEST_F(GridKeysTest, KeysMoveTheFocus) {
  const KeyRow rows[]{
      {Qt::Key_Left, {}, {2, 2}, "2,1"},
      {Qt::Key_Right, {}, {2, 2}, "2,3"},
      {Qt::Key_Up, {}, {2, 2}, "1,2"},
      {Qt::Key_Down, {}, {2, 2}, "3,2"},
      {Qt::Key_Left, Qt::KeypadModifier, {2, 2}, "2,1"},
      {Qt::Key_Home, {}, {5, 2}, "5,1"},
      {Qt::Key_End, {}, {5, 2}, "5,3"},
      {Qt::Key_Home, kControl, {5, 2}, "1,1"},
      {Qt::Key_End, kControl, {5, 2}, "20,3"},
      {Qt::Key_Left, kControl, {5, 2}, "5,1"},
      {Qt::Key_Right, kControl, {5, 2}, "5,3"},
      {Qt::Key_Up, kControl, {5, 2}, "1,2"},
      {Qt::Key_Down, kControl, {5, 2}, "20,2"},
      // Of the seven rows that have room, the last stays to be seen.
      {Qt::Key_PageDown, {}, {1, 2}, "7,2"},
      {Qt::Key_PageUp, {}, {20, 2}, "14,2"},
      {Qt::Key_Tab, {}, {2, 2}, "2,3"},
      {Qt::Key_Tab, {}, {2, 3}, "3,1"},
      {Qt::Key_Backtab, kShift, {3, 1}, "2,3"},
      {Qt::Key_Backtab, kShift, {2, 3}, "2,2"},
  };
  BuildAt(20, 3);
  for (const KeyRow& row : rows) {
    grid_.SetFocusCell(row.from);
    Key(row.key, row.modifiers);
    EXPECT_EQ(Focus(), row.focus) << row.key;
    EXPECT_EQ(Selection(), row.focus) << row.key;
  }
  EXPECT_EQ(Told(), Log{});
}

TEST_F(GridKeysTest, AtTheBorderKeysStay) {
  BuildAt(2, 2);
  for (const auto key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp}) {
    Key(key);
    EXPECT_EQ(Focus(), "1,1") << key;
  }
  grid_.SetFocusCell({2, 2});
  for (const auto key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown}) {
    Key(key);
    EXPECT_EQ(Focus(), "2,2") << key;
  }
  EXPECT_EQ(Selection(), "2,2");
  EXPECT_EQ(Told(), Log{});
  EXPECT_TRUE(window_.keys.empty());
}

TEST_F(GridKeysTest, WithShiftKeysSelectAndTheFocusStays) {
  const KeyRow rows[]{
      {Qt::Key_Left, kShift, {5, 2}, "5,1-5,2"},
      {Qt::Key_Right, kShift, {5, 2}, "5,2-5,3"},
      {Qt::Key_Up, kShift, {5, 2}, "4,2-5,2"},
      {Qt::Key_Down, kShift, {5, 2}, "5,2-6,2"},
      {Qt::Key_Home, kShift, {5, 2}, "5,1-5,2"},
      {Qt::Key_End, kShift, {5, 2}, "5,2-5,3"},
      {Qt::Key_Home, kShift | kControl, {5, 2}, "1,1-5,2"},
      {Qt::Key_End, kShift | kControl, {5, 2}, "5,2-20,3"},
      {Qt::Key_Up, kShift | kControl, {5, 2}, "1,2-5,2"},
      {Qt::Key_Down, kShift | kControl, {5, 2}, "5,2-20,2"},
      {Qt::Key_PageDown, kShift, {5, 2}, "5,2-11,2"},
      {Qt::Key_PageUp, kShift, {12, 2}, "6,2-12,2"},
  };
  BuildAt(20, 3);
  for (const KeyRow& row : rows) {
    grid_.SetFocusCell(row.from);
    Key(row.key, row.modifiers);
    EXPECT_EQ(Selection(), row.focus) << row.key;
    EXPECT_EQ(Focus(), Written(row.from)) << row.key;
  }
  EXPECT_EQ(Told(), Log{});
}

TEST_F(GridKeysTest, TheSelectionGrowsShrinksAndTurnsAroundTheFocus) {
  BuildAt(5, 3, {2, 2});
  for (const char* expected : {"2,2-3,2", "2,2-4,2"}) {
    Key(Qt::Key_Down, kShift);
    EXPECT_EQ(Selection(), expected);
  }
  for (const char* expected : {"2,2-3,2", "2,2", "1,2-2,2"}) {
    Key(Qt::Key_Up, kShift);
    EXPECT_EQ(Selection(), expected);
  }
  Key(Qt::Key_Right);
  EXPECT_EQ(Selection(), "2,3") << "a move starts from the focus";
}

TEST_F(GridKeysTest, ControlASelectsAllCells) {
  BuildAt(3, 2, {2, 2});
  Key(Qt::Key_A, kControl);
  EXPECT_EQ(Selection(), "1,1-3,2");
}

TEST_F(GridKeysTest, TabLeadsThroughAllCellsAndOut) {
  BuildAt(2, 2);
  for (const char* cell : {"1,2", "2,1", "2,2"}) {
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), cell);
    EXPECT_TRUE(grid_.hasFocus());
  }
  Key(Qt::Key_Tab);
  EXPECT_TRUE(after_.hasFocus());
  EXPECT_EQ(Focus(), "2,2");
  Key(Qt::Key_Backtab, kShift);
  EXPECT_TRUE(grid_.hasFocus());
  for (const char* cell : {"2,1", "1,2", "1,1"}) {
    Key(Qt::Key_Backtab, kShift);
    EXPECT_EQ(Focus(), cell);
  }
  Key(Qt::Key_Backtab, kShift);
  EXPECT_TRUE(before_.hasFocus());
}

TEST_F(GridKeysTest, WhoComesByTabFindsTheFirstCellFocused) {
  Build(2, 2);
  before_.setFocus();
  Key(Qt::Key_Tab);
  EXPECT_TRUE(grid_.hasFocus());
  EXPECT_EQ(Focus(), "1,1");
  grid_.SetFocusCell({2, 1});
  before_.setFocus();
  Key(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "2,1");
}

TEST_F(GridKeysTest, WhoComesByTabSeesTheFocusCell) {
  BuildAt(30, 3, {2, 2});
  before_.setFocus();
  Wheel(-1200);
  EXPECT_FALSE(grid_.IsInView({2, 2}));
  Key(Qt::Key_Tab);
  EXPECT_TRUE(Room().contains(grid_.CellArea({2, 2})));
  Wheel(-1200);
  before_.setFocus();
  grid_.setFocus();
  EXPECT_FALSE(grid_.IsInView({2, 2})) << "but who comes otherwise sees what he saw";
}

TEST_F(GridKeysTest, KeysThatItDoesNotKnowReachItsParent) {
  BuildAt(3, 3, {2, 2});
  struct Row {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
  };
  std::vector<int> expected;
  for (const Row& row :
       {Row{Qt::Key_C, kControl}, Row{Qt::Key_X, kControl}, Row{Qt::Key_V, kControl},
        Row{Qt::Key_Z, kControl}, Row{Qt::Key_Delete, {}}, Row{Qt::Key_Backspace, {}},
        Row{Qt::Key_Escape, {}}, Row{Qt::Key_F5, {}}, Row{Qt::Key_Insert, {}},
        Row{Qt::Key_Return, kControl}, Row{Qt::Key_Left, Qt::AltModifier}, Row{Qt::Key_F2, kShift},
        Row{Qt::Key_PageDown, kControl}}) {
    Key(row.key, row.modifiers);
    expected.push_back(row.key);
    EXPECT_FALSE(grid_.IsEditing()) << row.key;
  }
  EXPECT_EQ(window_.keys, expected);
  EXPECT_EQ(Focus(), "2,2");
  EXPECT_EQ(Told(), Log{});
}

TEST_F(GridKeysTest, ItsKeysAreNoShortcutsOfTheScreenAround) {
  BuildAt(3, 3, {2, 2});
  Put({2, 2}, u"5");
  int taken = 0;
  std::vector<std::unique_ptr<QShortcut>> shortcuts;
  for (const auto& keys : {QKeySequence(Qt::Key_Left), QKeySequence(Qt::Key_7),
                           QKeySequence(Qt::CTRL | Qt::Key_A), QKeySequence(Qt::Key_Delete)}) {
    shortcuts.push_back(std::make_unique<QShortcut>(keys, &window_));
    QObject::connect(shortcuts.back().get(), &QShortcut::activated, [&taken] { ++taken; });
  }
  Key(Qt::Key_Left);
  EXPECT_EQ(Focus(), "2,1");
  Key(Qt::Key_A, kControl);
  EXPECT_EQ(Selection(), "1,1-3,3");
  Key(Qt::Key_7);
  EXPECT_TRUE(grid_.IsEditing());
  EXPECT_EQ(taken, 0);
  Key(Qt::Key_Escape);
  Key(Qt::Key_Delete);
  EXPECT_EQ(taken, 1);
}

TEST_F(GridKeysTest, KeysDoNothingWhereThereIsNoCell) {
  const auto pressAll = [this] {
    grid_.setFocus();
    for (const auto key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_End, Qt::Key_PageDown, Qt::Key_F2,
                           Qt::Key_Return, Qt::Key_7}) {
      Key(key);
      Key(key, kShift);
    }
    Key(Qt::Key_A, kControl);
    ClickAt({5, 5});
    DoubleClickAt({50, 5});
    Wheel(-120);
    EXPECT_EQ(Focus(), "none");
    EXPECT_FALSE(grid_.IsEditing());
    Key(Qt::Key_Tab);
    EXPECT_TRUE(after_.hasFocus());
  };
  pressAll();
  Build(0, 3);
  pressAll();
  Build(3, 0);
  pressAll();
}

TEST_F(GridKeysTest, WhereverKeysLeadTheCellIsInView) {
  constexpr Qt::Key kKeys[]{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down,
                            Qt::Key_Home, Qt::Key_End,   Qt::Key_PageUp, Qt::Key_PageDown};
  constexpr Qt::KeyboardModifiers kModifiers[]{{}, kControl, kShift, kShift | kControl};
  BuildAt(30, 20);
  std::mt19937 random(7);
  for (int i = 0; i < 500; ++i) {
    const Qt::Key key = kKeys[random() % std::size(kKeys)];
    const auto modifiers = kModifiers[random() % std::size(kModifiers)];
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
      Key(key, modifiers & kShift);
    } else {
      Key(key, modifiers);
    }
    ASSERT_TRUE(Room().contains(grid_.CellArea(grid_.SelectionEnd())))
        << key << " to " << Written(grid_.SelectionEnd());
  }
}

TEST_F(GridKeysTest, OfAColumnWiderThanItsRoomTheBeginningIsInView) {
  BuildAt(2, 3);
  grid_.SetColumnWidth(2, 1000);
  Key(Qt::Key_Right);
  EXPECT_EQ(grid_.CellArea({1, 2}).left(), Room().left());
  Key(Qt::Key_Right);
  EXPECT_TRUE(Room().contains(grid_.CellArea({1, 3})));
  Key(Qt::Key_Left);
  EXPECT_EQ(grid_.CellArea({1, 2}).left(), Room().left());
}

}  // namespace
}  // namespace kav::test::grid_keys_test
