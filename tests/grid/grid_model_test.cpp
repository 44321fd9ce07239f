#include "grid/grid_model.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <string_view>

#include "grid/plain_grid.h"

namespace kav::grid_model_test {
namespace {

using test::Fill;
using test::LongText;
using test::PlainGrid;
using test::PlainOf;
using test::Shape;

void SetText(GridModel& model, int row, int column, std::u16string_view text) {
  ASSERT_TRUE(model.SetItem({row, column, GridItem::kText, text, {}}));
}

/// Four rows and five columns, of which one row and two columns are fixed.
class Grid : public testing::Test {
 protected:
  void SetUp() override {
    Shape(model_, 4, 5, 1, 2);
    Fill(model_);
  }

  GridModel model_;
};

constexpr GridCell kNone{-1, -1};

// No cells of the fixture's grid.
constexpr GridCell kNotThere[]{{-1, 0},      {0, -1},      {-1, -1},     {4, 0},
                               {0, 5},       {4, 5},       {INT_MAX, 0}, {0, INT_MAX},
                               {INT_MIN, 0}, {0, INT_MIN}, {INT_MAX, 1}, {INT_MAX, INT_MAX}};

TEST(GridCell, OneWithoutARowIsNone) {
  EXPECT_TRUE(GridCell().IsNone());
  EXPECT_TRUE((GridCell{-1, 3}).IsNone());
  EXPECT_FALSE((GridCell{0, 0}).IsNone());
}

TEST(GridRange, HasBothItsCornersAndWhatIsBetween) {
  const GridRange range{1, 2, 2, 4};
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 6; ++column) {
      const bool isIn = (row == 1 || row == 2) && (column == 2 || column == 3 || column == 4);
      EXPECT_EQ(range.Contains({row, column}), isIn) << row << ' ' << column;
    }
  }
  EXPECT_FALSE(range.IsNone());
  EXPECT_FALSE(range.IsOneCell());
}

TEST(GridRange, NoneHasNoCell) {
  EXPECT_TRUE(GridRange().IsNone());
  EXPECT_FALSE(GridRange().IsOneCell());
  EXPECT_FALSE(GridRange().Contains({0, 0}));
  EXPECT_FALSE(GridRange().Contains(kNone));
}

TEST(GridRange, OneCellIsNeitherARowNorAColumnOfThem) {
  EXPECT_TRUE((GridRange{0, 0, 0, 0}).IsOneCell());
  EXPECT_TRUE((GridRange{2, 3, 2, 3}).IsOneCell());
  EXPECT_FALSE((GridRange{2, 3, 2, 4}).IsOneCell());
  EXPECT_FALSE((GridRange{2, 3, 3, 3}).IsOneCell());
}

TEST(GridShape, AtFirstThereIsNothing) {
  const GridModel model;
  EXPECT_EQ(PlainOf(model), PlainGrid());
  EXPECT_EQ(model.Nearest({0, 0}), kNone);
}

TEST(GridShape, WhatIsNewIsEmptyAndOfTheDefaultSize) {
  GridModel model;
  Shape(model, 2, 3, 1, 1);
  EXPECT_EQ(model.RowCount(), 2);
  EXPECT_EQ(model.ColumnCount(), 3);
  EXPECT_EQ(model.FixedRowCount(), 1);
  EXPECT_EQ(model.FixedColumnCount(), 1);
  for (int i = 0; i <= 2; ++i) EXPECT_EQ(model.Top(i), i * GridModel::kDefaultHeight);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(model.GetColumnWidth(i), GridModel::kDefaultWidth);
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 3; ++column) {
      EXPECT_EQ(model.GetItemText(row, column), u"");
      EXPECT_EQ(model.GetItemFormat(row, column), (GridFormat{GridAlignment::Left, false}));
    }
  }
}

TEST_F(Grid, CountsThatMakeNoSenseAreRefusedAndChangeNothing) {
  struct Row {
    bool (GridModel::*set)(int);
    int count;
  };
  const PlainGrid before = PlainOf(model_);
  for (const Row& row : {
           Row{&GridModel::SetRowCount, 0},  // one is fixed
           Row{&GridModel::SetRowCount, -1},
           Row{&GridModel::SetRowCount, INT_MIN},
           Row{&GridModel::SetRowCount, 1001},
           Row{&GridModel::SetRowCount, INT_MAX},
           Row{&GridModel::SetColumnCount, 1},  // two are fixed
           Row{&GridModel::SetColumnCount, -1},
           Row{&GridModel::SetColumnCount, INT_MIN},
           Row{&GridModel::SetColumnCount, 1001},
           Row{&GridModel::SetColumnCount, INT_MAX},
           Row{&GridModel::SetFixedRowCount, 5},
           Row{&GridModel::SetFixedRowCount, -1},
           Row{&GridModel::SetFixedRowCount, INT_MIN},
           Row{&GridModel::SetFixedRowCount, INT_MAX},
           Row{&GridModel::SetFixedColumnCount, 6},
           Row{&GridModel::SetFixedColumnCount, -1},
           Row{&GridModel::SetFixedColumnCount, INT_MIN},
           Row{&GridModel::SetFixedColumnCount, INT_MAX},
       }) {
    EXPECT_FALSE((model_.*row.set)(row.count)) << row.count;
    EXPECT_EQ(PlainOf(model_), before) << row.count;
  }
}

TEST_F(Grid, AllCellsMayBeFixedAndNoneMayBe) {
  EXPECT_TRUE(model_.SetFixedRowCount(4));
  EXPECT_TRUE(model_.SetFixedColumnCount(5));
  EXPECT_FALSE(model_.SetRowCount(3));
  EXPECT_FALSE(model_.SetColumnCount(4));
  EXPECT_TRUE(model_.SetFixedRowCount(0));
  EXPECT_TRUE(model_.SetFixedColumnCount(0));
  EXPECT_TRUE(model_.SetRowCount(0));
  EXPECT_TRUE(model_.SetColumnCount(0));
  EXPECT_EQ(PlainOf(model_), PlainGrid());
}

TEST(GridShape, AThousandRowsAndColumnsAreTheMost) {
  GridModel model;
  Shape(model, 1000, 1000, 1000, 0);
  EXPECT_FALSE(model.SetRowCount(1001));
  EXPECT_FALSE(model.SetColumnCount(1001));
  SetText(model, 999, 999, u"last");
  SetText(model, 999, 0, u"first of the last row");
  EXPECT_EQ(model.GetItemText(999, 999), u"last");
  EXPECT_EQ(model.GetItemText(999, 0), u"first of the last row");
  EXPECT_EQ(model.GetItemText(998, 999), u"");
}

TEST(GridShape, WhatStaysKeepsItsTextFormatAndSize) {
  for (int rows = 1; rows <= 6; ++rows) {
    for (int columns = 2; columns <= 7; ++columns) {
      GridModel model;
      Shape(model, 4, 5, 1, 2);
      Fill(model);
      PlainGrid expected = PlainOf(model);
      expected.Resize(rows, columns);
      ASSERT_TRUE(model.SetRowCount(rows));
      ASSERT_TRUE(model.SetColumnCount(columns));
      EXPECT_EQ(PlainOf(model), expected) << rows << " by " << columns;
    }
  }
}

TEST_F(Grid, WhatWasCutAwayDoesNotComeBack) {
  ASSERT_TRUE(model_.SetColumnCount(4));
  ASSERT_TRUE(model_.SetRowCount(3));
  ASSERT_TRUE(model_.SetColumnCount(5));
  ASSERT_TRUE(model_.SetRowCount(4));
  EXPECT_EQ(model_.GetItemText(2, 3), LongText(2, 3));
  EXPECT_EQ(model_.GetItemText(2, 4), u"");
  EXPECT_EQ(model_.GetItemText(3, 3), u"");
  EXPECT_EQ(model_.GetItemFormat(1, 4), GridFormat());
  EXPECT_EQ(model_.GetColumnWidth(3), 23);
  EXPECT_EQ(model_.GetColumnWidth(4), 60);
}

TEST_F(Grid, OnlyWhatTheMaskHasIsSet) {
  struct Row {
    unsigned mask;
    bool setsText;
    bool setsFormat;
  };
  const GridFormat format{GridAlignment::Centre, false};
  const PlainGrid before = PlainOf(model_);
  for (const Row& row :
       {Row{0, false, false}, Row{GridItem::kText, true, false},
        Row{GridItem::kFormat, false, true}, Row{GridItem::kText | GridItem::kFormat, true, true},
        Row{~(GridItem::kText | GridItem::kFormat), false, false}}) {
    GridModel model;
    Shape(model, 4, 5, 1, 2);
    Fill(model);
    EXPECT_TRUE(model.SetItem({2, 3, row.mask, u"new", format}));
    PlainGrid expected = before;
    if (row.setsText) expected.At(2, 3).text = u"new";
    if (row.setsFormat) expected.At(2, 3).format = format;
    EXPECT_EQ(PlainOf(model), expected) << row.mask;
  }
}

TEST_F(Grid, TextsAreKeptAsTheyAre) {
  using std::string_literals::operator""s;
  for (const std::u16string& text :
       {u""s, u" 1 "s, u"a\tb\r\nc"s, u"n\0l"s, u"\xD83D\xDE00"s, std::u16string(100000, u'9')}) {
    SetText(model_, 1, 2, text);
    EXPECT_EQ(model_.GetItemText(1, 2), text);
  }
}

TEST_F(Grid, HeadersTakeTextsToo) {
  SetText(model_, 0, 0, u"corner");
  EXPECT_EQ(model_.GetItemText(0, 0), u"corner");
}

TEST_F(Grid, CellTakesATextFromTheGridItself) {
  const std::u16string_view own = model_.GetItemText(2, 3);
  SetText(model_, 2, 3, own.substr(1));
  EXPECT_EQ(model_.GetItemText(2, 3), LongText(2, 3).substr(1));
  SetText(model_, 2, 3, model_.GetItemText(1, 4));
  EXPECT_EQ(model_.GetItemText(2, 3), LongText(1, 4));
}

TEST_F(Grid, CellsThatAreNotFixedAreReadFromTheirSource) {
  std::u16string text = u"first";
  const PlainGrid before = PlainOf(model_);
  model_.SetSource([&text](GridCell cell) {
    return GridContent{text, {GridAlignment::Right, cell == GridCell{2, 3}}};
  });
  for (const std::u16string_view now : {u"first", u"second"}) {
    text = now;
    EXPECT_EQ(model_.GetItemText(1, 2), now);
    EXPECT_EQ(model_.GetItemText(3, 4), now);
  }
  EXPECT_EQ(model_.GetItemFormat(1, 2), (GridFormat{GridAlignment::Right, false}));
  EXPECT_EQ(model_.GetItemFormat(2, 3), (GridFormat{GridAlignment::Right, true}));
  EXPECT_EQ(model_.GetItemText(0, 3), LongText(0, 3));
  EXPECT_EQ(model_.GetItemText(2, 1), LongText(2, 1));
  EXPECT_EQ(model_.GetItemText(4, 3), u"");
  EXPECT_FALSE(model_.HasSource({2, 1}));
  EXPECT_FALSE(model_.SetItem({2, 3, GridItem::kText, u"own", {}}));
  EXPECT_TRUE(model_.SetItem({0, 3, GridItem::kText, LongText(0, 3), {}}));
  model_.SetSource({});
  EXPECT_EQ(PlainOf(model_), before);
}

TEST_F(Grid, CellThatIsNotThereIsEmptyAndStaysSo) {
  const PlainGrid before = PlainOf(model_);
  for (const GridCell& cell : kNotThere) {
    EXPECT_EQ(model_.GetItemText(cell.row, cell.column), u"");
    EXPECT_EQ(model_.GetItemFormat(cell.row, cell.column), GridFormat());
    EXPECT_FALSE(model_.IsFixed(cell));
    EXPECT_FALSE(model_.SetItem({cell.row, cell.column, 0, u"", {}}));
    EXPECT_FALSE(model_.SetItem({cell.row,
                                 cell.column,
                                 GridItem::kText | GridItem::kFormat,
                                 u"x",
                                 {GridAlignment::Right}}));
  }
  EXPECT_EQ(PlainOf(model_), before);
}

TEST_F(Grid, ColumnsThatAreNotThereHaveNoWidth) {
  const PlainGrid before = PlainOf(model_);
  for (const int place : {-1, 5, INT_MAX, INT_MIN}) {
    EXPECT_EQ(model_.GetColumnWidth(place), 0);
    EXPECT_FALSE(model_.SetColumnWidth(place, 50));
  }
  EXPECT_EQ(PlainOf(model_), before);
}

TEST_F(Grid, PlacesAreTheSumsOfWhatIsBefore) {
  ASSERT_TRUE(model_.SetColumnWidth(0, 10) && model_.SetColumnWidth(1, 200));
  EXPECT_EQ(model_.Left(0), 0);
  EXPECT_EQ(model_.Left(1), 10);
  EXPECT_EQ(model_.Left(2), 210);
  EXPECT_EQ(model_.Left(5) - model_.Left(4), model_.GetColumnWidth(4));
  EXPECT_EQ(model_.Top(4), 4 * 18);
}

TEST_F(Grid, WidthsAreBroughtIntoTheirRange) {
  struct Row {
    int asked;
    int set;
  };
  for (const Row& row :
       {Row{INT_MIN, 4}, Row{-1, 4}, Row{0, 4}, Row{3, 4}, Row{4, 4}, Row{5, 5}, Row{9999, 9999},
        Row{10000, 10000}, Row{10001, 10000}, Row{INT_MAX, 10000}}) {
    EXPECT_TRUE(model_.SetColumnWidth(4, row.asked));
    EXPECT_EQ(model_.GetColumnWidth(4), row.set);
    EXPECT_EQ(model_.GetColumnWidth(3), 23);
  }
}

TEST_F(Grid, FirstRowsAndColumnsAreFixed) {
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 5; ++column) {
      EXPECT_EQ(model_.IsFixed({row, column}), row == 0 || column <= 1) << row << ' ' << column;
    }
  }
}

TEST_F(Grid, NearestCellIsOneThatIsNotFixed) {
  struct Row {
    GridCell asked;
    GridCell nearest;
  };
  for (const Row& row :
       {Row{{1, 2}, {1, 2}}, Row{{3, 4}, {3, 4}}, Row{{2, 3}, {2, 3}}, Row{{0, 3}, {1, 3}},
        Row{{2, 0}, {2, 2}}, Row{{0, 0}, {1, 2}}, Row{{-1, -1}, {1, 2}}, Row{{4, 5}, {3, 4}},
        Row{{2, 99}, {2, 4}}, Row{{INT_MAX, INT_MIN}, {3, 2}}, Row{{INT_MIN, INT_MAX}, {1, 4}}}) {
    EXPECT_EQ(model_.Nearest(row.asked), row.nearest);
  }
}

TEST(GridShape, WhereAllIsFixedNoCellIsNearest) {
  struct Row {
    int rows, columns, fixedRows, fixedColumns;
  };
  for (const Row& row :
       {Row{0, 0, 0, 0}, Row{3, 0, 1, 0}, Row{0, 3, 0, 1}, Row{2, 3, 2, 1}, Row{2, 3, 1, 3}}) {
    GridModel model;
    Shape(model, row.rows, row.columns, row.fixedRows, row.fixedColumns);
    EXPECT_EQ(model.Nearest({1, 1}), kNone);
  }
}

}  // namespace
}  // namespace kav::grid_model_test
