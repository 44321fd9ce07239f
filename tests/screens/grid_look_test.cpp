// What a grid looks like, pixel by pixel.
#include <gtest/gtest.h>

#include <QImage>
#include <optional>

#include "screens/grid_driver.h"

namespace kav::test::grid_look_test {
namespace {

class GridLookTest : public GridScreen {
 protected:
  QImage Picture() { return grid_.grab(Whole()).toImage(); }
  QImage Picture(GridCell cell) { return Picture().copy(grid_.CellArea(cell)); }

  /// The colour of a cell's paper: that above the middle of its text, within what outlines it.
  QColor Paper(GridCell cell) {
    const QRect area = grid_.CellArea(cell);
    return Picture().pixelColor(area.center().x(), area.top() + 2);
  }

  /// The part of a cell's area that its text covers: what is darker than any paper or line.
  QRect Ink(GridCell cell) {
    const QImage picture = Picture(cell);
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, y).lightness() < 100) ink |= QRect(x, y, 1, 1);
      }
    }
    return ink;
  }

  /// The colour that outlines a cell; none if its four edges differ in it.
  std::optional<QColor> Outline(GridCell cell) {
    const QImage picture = Picture(cell).copy(0, 0, grid_.CellArea(cell).width() - 1, 17);
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    const QColor colour = picture.pixelColor(0, 0);
    for (int x = 0; x <= right; ++x) {
      if (picture.pixelColor(x, 0) != colour || picture.pixelColor(x, bottom) != colour) return {};
    }
    for (int y = 0; y <= bottom; ++y) {
      if (picture.pixelColor(0, y) != colour || picture.pixelColor(right, y) != colour) return {};
    }
    return colour;
  }
};

TEST_F(GridLookTest, HeadersAreOfAnotherColourThanCells) {
  Build(3, 3);
  for (const GridCell header : {GridCell{0, 0}, {0, 1}, {0, 3}, {1, 0}, {3, 0}}) {
    EXPECT_EQ(Paper(header), Paper({0, 2})) << Written(header);
  }
  for (const GridCell cell : {GridCell{1, 1}, {2, 3}, {3, 1}}) {
    EXPECT_EQ(Paper(cell), QColor(Qt::white)) << Written(cell);
  }
  EXPECT_NE(Paper({0, 2}), QColor(Qt::white));
}

TEST_F(GridLookTest, LinesStandBetweenCells) {
  Build(3, 3);
  const QImage picture = Picture();
  const QRect area = grid_.CellArea({2, 2});
  const QColor line = picture.pixelColor(area.right(), area.center().y());
  EXPECT_NE(line, Paper({2, 2}));
  EXPECT_NE(line, Paper({0, 2}));
  EXPECT_EQ(picture.pixelColor(area.center().x(), area.bottom()), line);
  EXPECT_EQ(picture.pixelColor(area.right() + 1, area.center().y()), Paper({2, 3}));
}

TEST_F(GridLookTest, TextsStandWhereTheirAlignmentSays) {
  Build(3, 3);
  Put({1, 1}, u"8", {GridAlignment::Left, false});
  Put({1, 2}, u"8", {GridAlignment::Centre, false});
  Put({1, 3}, u"8", {GridAlignment::Right, false});
  const QRect left = Ink({1, 1});
  const QRect middle = Ink({1, 2});
  const QRect right = Ink({1, 3});
  EXPECT_GT(left.left(), 0);
  EXPECT_LT(left.right(), 15);
  EXPECT_NEAR(middle.center().x(), 30, 2);
  EXPECT_GT(right.left(), 45);
  EXPECT_LT(right.right(), 59);
  for (const QRect& ink : {left, middle, right}) {
    EXPECT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.center().y(), 9, 2);
  }
}

TEST_F(GridLookTest, HeadersShowTheirNumbersInTheMiddle) {
  Build(3, 3);
  const QRect column = Ink({0, 2});
  const QRect row = Ink({2, 0});
  ASSERT_FALSE(column.isEmpty());
  ASSERT_FALSE(row.isEmpty());
  EXPECT_NEAR(column.center().x(), 30, 2);
  EXPECT_NEAR(row.center().x(), 10, 2);
  EXPECT_TRUE(Ink({0, 0}).isEmpty());
}

TEST_F(GridLookTest, TheFocusCellIsOutlined) {
  BuildAt(3, 3, {2, 2});
  ASSERT_TRUE(Outline({2, 2}));
  EXPECT_EQ(*Outline({2, 2}), grid_.palette().color(QPalette::Highlight));
  EXPECT_EQ(Outline({1, 1}), Paper({1, 1})) << "nothing but paper";
  Key(Qt::Key_Right);
  EXPECT_EQ(Outline({2, 2}), Paper({2, 2}));
  EXPECT_EQ(Outline({2, 3}), grid_.palette().color(QPalette::Highlight));
}

TEST_F(GridLookTest, WithoutTheKeysTheOutlineIsFainter) {
  BuildAt(3, 3, {2, 2});
  before_.setFocus();
  ASSERT_TRUE(Outline({2, 2}));
  EXPECT_NE(*Outline({2, 2}), grid_.palette().color(QPalette::Highlight));
  EXPECT_NE(*Outline({2, 2}), Paper({2, 2}));
}

TEST_F(GridLookTest, TheSelectionIsSeenInCellsAndHeaders) {
  BuildAt(4, 3);
  ClickCell({2, 1});
  ClickCell({3, 2}, Qt::ShiftModifier);
  const QColor selected = Paper({3, 2});
  EXPECT_NE(selected, QColor(Qt::white));
  EXPECT_EQ(Paper({2, 2}), selected);
  EXPECT_EQ(Paper({3, 1}), selected);
  EXPECT_EQ(Paper({2, 1}), QColor(Qt::white)) << "the focus cell can be told from the others";
  EXPECT_EQ(Paper({1, 1}), QColor(Qt::white));
  EXPECT_EQ(Paper({2, 3}), QColor(Qt::white));
  const QColor header = Paper({0, 1});
  for (const GridCell cell : {GridCell{0, 2}, {2, 0}, {3, 0}}) EXPECT_EQ(Paper(cell), header);
  for (const GridCell cell : {GridCell{0, 3}, {1, 0}, {4, 0}}) EXPECT_NE(Paper(cell), header);
  grid_.ResetSelectedRange();
  EXPECT_EQ(Paper({3, 2}), QColor(Qt::white));
  EXPECT_NE(Paper({0, 1}), header);
}

TEST_F(GridLookTest, AMarkedCellHasOtherColours) {
  BuildAt(3, 3);
  const auto darkest = [this](GridCell cell) {
    const QImage picture = Picture(cell);
    QColor colour = Qt::white;
    for (int y = 3; y < 15; ++y) {
      for (int x = 3; x < 55; ++x) {
        if (picture.pixelColor(x, y).lightness() < colour.lightness()) {
          colour = picture.pixelColor(x, y);
        }
      }
    }
    return colour;
  };
  Put({2, 2}, u"88888", {GridAlignment::Left, true});
  Put({3, 3}, u"88888", {GridAlignment::Left, false});
  EXPECT_NE(Paper({2, 2}), QColor(Qt::white));
  EXPECT_EQ(Paper({3, 3}), QColor(Qt::white));
  EXPECT_EQ(darkest({3, 3}).saturation(), 0);
  EXPECT_GT(darkest({2, 2}).saturation(), 100);
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Paper({2, 2}), Paper({3, 3})) << "both are selected";
  EXPECT_GT(darkest({2, 2}).saturation(), 100) << "and it is still another";
}

TEST_F(GridLookTest, ATextStaysInItsCell) {
  Build(3, 3);
  const QImage left = Picture({2, 1});
  const QImage right = Picture({2, 3});
  for (const auto alignment : {GridAlignment::Left, GridAlignment::Centre, GridAlignment::Right}) {
    Put({2, 2}, u"1234567890123456789012345678901234567890", {alignment, false});
    EXPECT_FALSE(Ink({2, 2}).isEmpty());
    EXPECT_EQ(Picture({2, 1}), left);
    EXPECT_EQ(Picture({2, 3}), right);
  }
}

TEST_F(GridLookTest, ATextOfAnyLengthIsPainted) {
  Build(1, 1);
  Put({1, 1}, std::u16string(1 << 22, u'8'));
  EXPECT_FALSE(Ink({1, 1}).isEmpty());
}

TEST_F(GridLookTest, ATextStandsOnOneLine) {
  Build(1, 1);
  Put({1, 1}, u"1\n2\t3");
  const QImage cut = Picture({1, 1});
  Put({1, 1}, u"1 2 3");
  EXPECT_EQ(cut, Picture({1, 1}));
}

TEST_F(GridLookTest, ANumberThatIsTooLongKeepsItsMagnitudeOrSaysThatItDoesNotFit) {
  Build(1, 1);
  const auto looksAs = [this](int width, std::u16string_view text) {
    grid_.SetColumnWidth(1, width);
    Put({1, 1}, text);
    return Picture({1, 1});
  };
  EXPECT_EQ(looksAs(60, u"2.000000000000e+300"), looksAs(60, u"2e+300"));
  EXPECT_EQ(looksAs(60, u"123456789012"), looksAs(60, u"1…e+11"));
  EXPECT_EQ(looksAs(16, u"123456789012"), looksAs(16, u"#"));
}

TEST_F(GridLookTest, InAFittedColumnEveryTextIsWholeAndNothingIsWasted) {
  for (const double scale : {1.0, 1.3, 1.5, 2.0, 3.7}) {
    for (const char16_t* text : {u"12345", u"-1.5E-10", u"0.333333333333", u"WWWi", u"11111111"}) {
      Build(1, 2);
      grid_.SetScale(scale, qRound(11.5 * scale));
      Put({1, 1}, text);
      grid_.AutoSizeColumns();
      const int fitted = grid_.GetColumnWidth(1);
      const auto ink = [this](int width) {
        grid_.SetColumnWidth(1, width);
        return Picture().copy(Ink({1, 1}).translated(grid_.CellArea({1, 1}).topLeft()));
      };
      grid_.resize(1200, 300);
      const QImage whole = ink(200);
      EXPECT_EQ(ink(fitted), whole) << scale << " " << ToQt(text).toStdString();
      EXPECT_NE(ink(fitted - 2), whole) << scale << " " << ToQt(text).toStdString();
    }
  }
}

TEST_F(GridLookTest, WhatIsScrolledAwayIsNotSeenOverTheHeaders) {
  Build(30, 20);
  for (int row = 1; row <= 30; ++row) {
    for (int column = 1; column <= 20; ++column) Put({row, column}, u"88888888");
  }
  const auto headers = [this] {
    const QRect corner = grid_.CellArea({0, 0});
    return Picture().copy(0, 0, Whole().width(), corner.height());
  };
  const QImage columns = headers();
  const QImage corner = Picture({0, 0});
  Wheel(-120);
  EXPECT_EQ(headers(), columns);
  Wheel(QPoint(-120, 0));
  EXPECT_NE(headers(), columns);
  EXPECT_EQ(Picture({0, 0}), corner);
}

TEST_F(GridLookTest, TheOutlineOfAFocusThatIsScrolledAwayIsNotSeen) {
  BuildAt(30, 3);
  Wheel(-120);
  const QImage picture = Picture();
  const QColor highlight = grid_.palette().color(QPalette::Highlight);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      ASSERT_NE(picture.pixelColor(x, y), highlight) << x << "," << y;
    }
  }
}

TEST_F(GridLookTest, BesideTheCellsThereIsNothing) {
  Build(3, 3);
  const QImage picture = Picture();
  const QColor nothing = picture.pixelColor(picture.width() - 1, picture.height() - 1);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const bool isCell = x < 20 + 3 * 60 && y < 4 * 18;
      if (!isCell) {
        ASSERT_EQ(picture.pixelColor(x, y), nothing) << x << "," << y;
      }
    }
  }
}

TEST_F(GridLookTest, NothingIsPaintedOutsideOfTheGrid) {
  QPalette palette = window_.palette();
  palette.setColor(QPalette::Window, Qt::magenta);
  window_.setPalette(palette);
  BuildAt(30, 20, {8, 5});
  Key(Qt::Key_F2);
  for (const double scale : {1.0, 2.0}) {
    grid_.SetScale(scale, qRound(12 * scale));
    const QImage picture = window_.grab().toImage();
    const QRect grid = grid_.geometry();
    const QRect around = grid.adjusted(-8, -8, 8, 8);
    for (int y = around.top(); y <= around.bottom(); ++y) {
      for (int x = around.left(); x <= around.right(); ++x) {
        const bool isOutside = !grid.contains(x, y);
        ASSERT_EQ(picture.pixelColor(x, y) == QColor(Qt::magenta), isOutside) << x << "," << y;
      }
    }
  }
}

}  // namespace
}  // namespace kav::test::grid_look_test
