// What the user does with the mouse on a grid.
#include <gtest/gtest.h>

#include <QScrollBar>

#include "screens/grid_driver.h"

namespace kav::test::grid_mouse_test {
namespace {

constexpr auto kShift = Qt::ShiftModifier;

class GridMouseTest : public GridScreen {
 protected:
  ~GridMouseTest() override { QApplication::setWheelScrollLines(3); }
};

TEST_F(GridMouseTest, AClickFocusesACellAndGivesTheGridTheKeys) {
  Build(3, 3);
  before_.setFocus();
  ClickCell({2, 3});
  EXPECT_TRUE(grid_.hasFocus());
  EXPECT_EQ(Selection(), "2,3");
  ClickCell({2, 3});
  EXPECT_EQ(Selection(), "2,3") << "it is selected already";
  EXPECT_EQ(Told(), Log{});
}

TEST_F(GridMouseTest, AClickTakesTheCellWhoseLastPixelItHits) {
  Build(3, 3);
  ClickAt({20, 18});
  EXPECT_EQ(Focus(), "1,1");
  ClickAt({20 + 59, 18 + 17});
  EXPECT_EQ(Focus(), "1,1");
  ClickAt({20 + 60, 18 + 18});
  EXPECT_EQ(Focus(), "2,2");
}

TEST_F(GridMouseTest, BesideTheCellsAClickChangesNothing) {
  BuildAt(3, 3, {2, 2});
  ClickAt({20 + 3 * 60 + 10, 30});
  ClickAt({30, 4 * 18 + 5});
  QTest::mouseClick(grid_.viewport(), Qt::RightButton, {}, InPart(Middle({1, 1})));
  EXPECT_EQ(Selection(), "2,2");
  EXPECT_EQ(Told(), Log{});
}

TEST_F(GridMouseTest, AShiftClickSelectsFromTheFocus) {
  Build(3, 3);
  ClickCell({2, 2}, kShift);
  EXPECT_EQ(Selection(), "2,2") << "there was no focus";
  ClickCell({3, 3}, kShift);
  EXPECT_EQ(Selection(), "2,2-3,3");
  ClickCell({1, 1}, kShift);
  EXPECT_EQ(Selection(), "1,1-2,2");
  EXPECT_EQ(Focus(), "2,2");
}

TEST_F(GridMouseTest, ADragSelectsFromWhereItBegan) {
  Build(3, 3);
  Press(Middle({1, 2}));
  Move(Middle({2, 3}));
  EXPECT_EQ(Selection(), "1,2-2,3");
  Move(Middle({3, 1}));
  EXPECT_EQ(Selection(), "1,1-3,2");
  Release(Middle({3, 1}));
  Move(Middle({1, 1}));
  EXPECT_EQ(Selection(), "1,1-3,2") << "the button is up";
  EXPECT_EQ(Focus(), "1,2");
}

TEST_F(GridMouseTest, HeadersSelectColumnsRowsAndAll) {
  Build(4, 3);
  ClickCell({0, 2});
  EXPECT_EQ(Selection(), "1,2-4,2");
  ClickCell({0, 3}, kShift);
  EXPECT_EQ(Selection(), "1,2-4,3");
  ClickCell({0, 1}, kShift);
  EXPECT_EQ(Selection(), "1,1-4,2") << "the first column that was clicked stays selected";
  ClickCell({3, 0});
  EXPECT_EQ(Selection(), "3,1-3,3");
  ClickCell({1, 0}, kShift);
  EXPECT_EQ(Selection(), "1,1-3,3");
  ClickCell({0, 0});
  EXPECT_EQ(Selection(), "1,1-4,3");
}

TEST_F(GridMouseTest, ADragAlongHeadersSelectsColumnsAndRows) {
  Build(4, 3);
  Drag(Middle({0, 2}), Middle({0, 3}));
  EXPECT_EQ(Selection(), "1,2-4,3");
  Drag(Middle({3, 0}), Middle({2, 0}));
  EXPECT_EQ(Selection(), "2,1-3,3");
}

TEST_F(GridMouseTest, ADragBeyondTheBorderScrollsUntilItIsReleased) {
  Build(30, 10);
  grid_.SetFocusCell({1, 1});
  const QPoint below(Middle({1, 1}).x(), grid_.height() + 50);
  Press(Middle({1, 1}));
  Move(below);
  const auto bottom = [this] { return grid_.Selection().bottom; };
  const int first = bottom();
  EXPECT_TRUE(QTest::qWaitFor([&] { return bottom() >= first + 3; }));
  EXPECT_GT(FirstShown().row, 1);
  EXPECT_EQ(grid_.Selection().top, 1);
  Release(below);
  const int last = bottom();
  QTest::qWait(250);
  EXPECT_EQ(bottom(), last);
}

TEST_F(GridMouseTest, ADragBackIntoTheGridScrollsNoMore) {
  Build(30, 10);
  Press(Middle({1, 1}));
  Move({Middle({1, 1}).x(), grid_.height() + 50});
  Move(Middle({2, 1}));
  const int row = FirstShown().row;
  QTest::qWait(250);
  EXPECT_EQ(FirstShown().row, row);
  Release(Middle({2, 1}));
}

TEST_F(GridMouseTest, ADragEndsWithTheFocusOfTheGrid) {
  Build(30, 10);
  ClickCell({1, 1});
  Press(Middle({1, 1}));
  Move({Middle({1, 1}).x(), grid_.height() + 50});
  before_.setFocus();
  const std::string selection = Selection();
  QTest::qWait(250);
  EXPECT_EQ(Selection(), selection);
}

TEST_F(GridMouseTest, AnotherShapeEndsADrag) {
  Build(5, 3);
  Press(Middle({1, 1}));
  grid_.SetRowCount(3);
  Move(Middle({2, 2}));
  EXPECT_EQ(Selection(), "1,1");
  Release(Middle({2, 2}));
}

// The widths of columns.

TEST_F(GridMouseTest, AColumnIsResizedByTheEdgeOfItsHeader) {
  BuildAt(2, 3, {1, 1});
  Press({20 + 60, 9});
  EXPECT_EQ(Told(), Log{});
  Move({20 + 60 + 25, 9});
  Move({20 + 60 + 20, 50});
  Release({20 + 60 + 20, 50});
  EXPECT_EQ(grid_.GetColumnWidth(1), 80);
  EXPECT_EQ(grid_.GetColumnWidth(2), 60);
  EXPECT_EQ(Told(), (Log{"width 1 85", "width 1 80"}));
  EXPECT_EQ(Selection(), "1,1");
  EXPECT_EQ(grid_.CellArea({1, 2}).left(), 20 + 80);
}

TEST_F(GridMouseTest, TheEdgeNeedNotBeHitExactlyAndDoesNotJump) {
  Build(2, 3);
  Press({20 + 120 - 2, 9});
  Move({20 + 120 - 1, 9});
  EXPECT_EQ(grid_.GetColumnWidth(2), 61);
  Release({20 + 120 - 1, 9});
}

TEST_F(GridMouseTest, AColumnKeepsAWidthByWhichItCanBePulledOutAgain) {
  Build(2, 3);
  Drag({80, 9}, {-100, 9});
  EXPECT_EQ(grid_.GetColumnWidth(1), 4);
  EXPECT_EQ(Told(), Log{"width 1 4"});
  Drag({24, 9}, {24 + 30000, 9});
  EXPECT_EQ(grid_.GetColumnWidth(1), 10000);
  EXPECT_EQ(Told(), Log{"width 1 10000"});
}

TEST_F(GridMouseTest, ResizingCountsInUnscaledPixels) {
  struct Row {
    double scale;
    int dragged;
    int width;
  };
  Build(2, 3);
  for (const Row& row : {Row{2, 30, 75}, Row{1.5, 30, 80}, Row{0.5, 10, 80}, Row{2, -60, 30}}) {
    grid_.SetColumnWidth(1, 60);
    grid_.SetScale(row.scale, qRound(12 * row.scale));
    const QRect header = grid_.CellArea({0, 1});
    const QPoint edge(header.right() + 1, header.center().y());
    Drag(edge, edge + QPoint(row.dragged, 0));
    EXPECT_EQ(grid_.GetColumnWidth(1), row.width) << row.scale;
    EXPECT_EQ(Told(), Log{"width 1 " + std::to_string(row.width)}) << row.scale;
  }
}

TEST_F(GridMouseTest, OnlyTheHeadersOfColumnsHaveEdgesAndTheHeaderColumnHasNone) {
  Build(2, 3);
  Drag({20 + 60, 18 + 9}, {20 + 90, 18 + 9});
  Drag({20, 9}, {40, 9});
  EXPECT_EQ(grid_.GetColumnWidth(0), 20);
  EXPECT_EQ(grid_.GetColumnWidth(1), 60);
}

TEST_F(GridMouseTest, TheCursorShowsWhereAnEdgeIs) {
  Build(2, 3);
  const auto cursorAt = [this](QPoint place) {
    QWidget& part = PartAt(place);
    QMouseEvent event(QEvent::MouseMove, InPart(place), grid_.mapToGlobal(place), Qt::NoButton,
                      Qt::NoButton, {});
    QApplication::sendEvent(&part, &event);
    return part.cursor().shape();
  };
  EXPECT_EQ(cursorAt({20 + 60, 9}), Qt::SplitHCursor);
  EXPECT_EQ(grid_.verticalScrollBar()->cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(cursorAt({20 + 30, 9}), Qt::ArrowCursor);
  EXPECT_EQ(cursorAt({20 + 60, 30}), Qt::ArrowCursor);
  EXPECT_TRUE(grid_.viewport()->hasMouseTracking()) << "moves without a button are seen";
}

TEST_F(GridMouseTest, ADoubleClickOnAnEdgeFitsTheColumn) {
  Build(2, 3);
  Put({2, 2}, u"1234567890123");
  grid_.AutoSizeColumns();
  const int fitting = grid_.GetColumnWidth(2);
  grid_.SetColumnWidth(2, 30);
  const QRect header = grid_.CellArea({0, 2});
  DoubleClickAt({header.right(), 9});
  EXPECT_EQ(grid_.GetColumnWidth(2), fitting);
  EXPECT_EQ(Told(), Log{"width 2 " + std::to_string(fitting)});
  EXPECT_FALSE(grid_.IsEditing());
}

// The wheel.

TEST_F(GridMouseTest, AStepOfTheWheelScrollsByThreeLines) {
  Build(30, 3);
  EXPECT_EQ(FirstShown(), (GridCell{1, 1}));
  Wheel(-120);
  EXPECT_EQ(FirstShown(), (GridCell{4, 1}));
  Wheel(-240);
  EXPECT_EQ(FirstShown(), (GridCell{10, 1}));
  Wheel(120);
  EXPECT_EQ(FirstShown(), (GridCell{7, 1}));
  EXPECT_EQ(grid_.CellArea({7, 1}).top(), Room().top());
}

TEST_F(GridMouseTest, TheWheelScrollsByTheLinesOfThePlatform) {
  Build(30, 3);
  for (const int lines : {1, 5, 12}) {
    QApplication::setWheelScrollLines(lines);
    Wheel(-120);
    EXPECT_EQ(FirstShown().row, 1 + lines);
    Wheel(120);
    EXPECT_EQ(FirstShown().row, 1);
  }
}

TEST_F(GridMouseTest, PartsOfAStepAddUp) {
  Build(30, 3);
  QApplication::setWheelScrollLines(1);
  Wheel(-50);
  Wheel(-50);
  EXPECT_EQ(FirstShown().row, 1);
  Wheel(-50);
  EXPECT_EQ(FirstShown().row, 2);
  for (int i = 0; i < 9; ++i) Wheel(-10);
  EXPECT_EQ(FirstShown().row, 3) << "30 were left of the first step";
  QApplication::setWheelScrollLines(3);
  Wheel(-40);
  EXPECT_EQ(FirstShown().row, 4);
}

TEST_F(GridMouseTest, WhatWasTurnedTheOtherWayIsForgotten) {
  Build(30, 3);
  QApplication::setWheelScrollLines(1);
  Wheel(-360);
  Wheel(-110);
  Wheel(110);
  Wheel(10);
  EXPECT_EQ(FirstShown().row, 3);
}

TEST_F(GridMouseTest, BetweenTwoTurnsAnEventWithoutAngleIsNone) {
  Build(30, 3);
  QApplication::setWheelScrollLines(1);
  Wheel(-60);
  Wheel(0);
  Wheel(-60);
  EXPECT_EQ(FirstShown().row, 2);
}

TEST_F(GridMouseTest, TheWheelStopsAtBothEnds) {
  Build(30, 3);
  Wheel(120);
  EXPECT_EQ(FirstShown().row, 1);
  Wheel(-120000000);
  EXPECT_EQ(grid_.CellArea({30, 1}).bottom(), Room().bottom());
  Wheel(120000000);
  EXPECT_EQ(FirstShown().row, 1);
}

TEST_F(GridMouseTest, AWheelThatTurnsSidewaysScrollsSideways) {
  Build(30, 20);
  const QRect before = grid_.CellArea({1, 1});
  Wheel(QPoint(-120, 0));
  EXPECT_EQ(grid_.CellArea({1, 1}).top(), before.top());
  EXPECT_LT(grid_.CellArea({1, 1}).left(), before.left());
  Wheel(QPoint(120, 0));
  EXPECT_EQ(grid_.CellArea({1, 1}), before);
}

TEST_F(GridMouseTest, WhereAllIsInViewTheWheelIsItsParents) {
  Build(3, 3);
  Wheel(-120);
  EXPECT_EQ(window_.wheels, 1);
  EXPECT_EQ(FirstShown(), (GridCell{1, 1}));
}

TEST_F(GridMouseTest, TheFocusStaysWhereItIsWhileTheWheelTurns) {
  BuildAt(30, 3, {2, 2});
  Wheel(-1200);
  EXPECT_EQ(Focus(), "2,2");
  EXPECT_EQ(Told(), Log{});
  Key(Qt::Key_Down);
  EXPECT_EQ(Focus(), "3,2");
  EXPECT_TRUE(Room().contains(grid_.CellArea({3, 2})));
}

}  // namespace
}  // namespace kav::test::grid_mouse_test
