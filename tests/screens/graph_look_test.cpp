// The saved picture of a graph, pixel by pixel.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "screens/graph_driver.h"

namespace kav::test::graph_look_test {
namespace {

constexpr QRgb kRed = qRgb(255, 0, 0);
constexpr QRgb kGreen = qRgb(0, 255, 0);
constexpr QRgb kBlue = qRgb(0, 0, 255);
constexpr QRgb kBlack = qRgb(0, 0, 0);
constexpr QRgb kWhite = qRgb(255, 255, 255);
constexpr QRgb kGrid = qRgb(192, 192, 192);
constexpr QRgb kAxis = qRgb(0, 130, 132);

/// Whether a red stroke covers a pixel of paper at least in part.
bool IsReddish(QRgb pixel) {
  return qRed(pixel) > qGreen(pixel) + 20 && qRed(pixel) > qBlue(pixel) + 20;
}

/// The row of the middle of the red stroke in a column: each pixel is weighted by the covered part
/// of it.
double MiddleOf(const QImage& image, int column) {
  double sum = 0;
  double weight = 0;
  for (int row = 0; row < image.height(); ++row) {
    const QRgb pixel = image.pixel(column, row);
    if (qRed(pixel) != 255 || qGreen(pixel) == 255) continue;
    sum += row * (255 - qGreen(pixel));
    weight += 255 - qGreen(pixel);
  }
  return sum / weight;
}

/// A saved picture of a plot 230 pixels wide, with its samples in pixel columns.
struct Plotted {
  QImage image;
  PlotRange range;
  int left = 2;
  int top = 3;
  int right = 231;

  int Bottom() const { return image.height() - 1 - 3; }
  int ColumnOf(double x) const {
    return left + static_cast<int>(
                      std::lround((x - range.xMin) / (range.xMax - range.xMin) * (right - left)));
  }
  int RowOf(double y) const {
    return static_cast<int>(Bottom() -
                            (Bottom() - top) / (range.yMax - range.yMin) * (y - range.yMin));
  }
  QRgb At(int column, int row) const { return image.pixel(column, row); }
  bool HasRed(const QRect& part) const {
    for (int row = part.top(); row <= part.bottom(); ++row) {
      for (int column = part.left(); column <= part.right(); ++column) {
        if (IsReddish(At(column, row))) return true;
      }
    }
    return false;
  }
  int Count(QRgb colour) const {
    int count = 0;
    for (int row = 0; row < image.height(); ++row) {
      for (int column = 0; column < image.width(); ++column) {
        if (At(column, row) == colour) ++count;
      }
    }
    return count;
  }
};

class GraphLookTest : public GraphScreen {
 protected:
  /// Curves alone, without grid and labels of the range.
  static GraphInput Bare(std::initializer_list<std::string_view> formulas,
                         const PlotRange& range = {-10, 10, -10, 10}) {
    GraphInput input = LabelledGraphOf(formulas);
    input.range = range;
    input.options = {false, true, false};
    return input;
  }
  Plotted PlotOf(const GraphInput& input) {
    Plotted plotted{Saved(input), input.range};
    EXPECT_EQ(plotted.image.width(), 234);
    return plotted;
  }
};

TEST_F(GraphLookTest, TheFrameIsWholeAndOnePixelWide) {
  GraphInput input = Bare({"0*x+20"});
  input.options.hasGrid = true;
  const Plotted plot = PlotOf(input);
  for (int column = plot.left; column <= plot.right; ++column) {
    ASSERT_EQ(plot.At(column, plot.top), kBlack) << column;
    ASSERT_EQ(plot.At(column, plot.Bottom()), kBlack) << column;
    ASSERT_EQ(plot.At(column, plot.top - 1), kWhite) << column;
    ASSERT_EQ(plot.At(column, plot.Bottom() + 1), kWhite) << column;
  }
  for (int row = plot.top; row <= plot.Bottom(); ++row) {
    ASSERT_EQ(plot.At(plot.left, row), kBlack) << row;
    ASSERT_EQ(plot.At(plot.right, row), kBlack) << row;
    ASSERT_EQ(plot.At(plot.left - 1, row), kWhite) << row;
    ASSERT_EQ(plot.At(plot.right + 1, row), kWhite) << row;
  }
  EXPECT_NE(plot.At(plot.left + 1, plot.top + 1), kBlack);
}

TEST_F(GraphLookTest, TheGridIsNineLinesEachWayInTenthsOfTheArea) {
  // No axes: the range is above and right of them.
  GraphInput input = Bare({"0*x"}, {1, 11, 1, 11});
  input.options.hasGrid = true;
  const Plotted plot = PlotOf(input);
  std::vector<int> columns;
  std::vector<int> rows;
  for (int column = plot.left + 1; column < plot.right; ++column) {
    if (plot.At(column, plot.top + 1) == kGrid) columns.push_back(column);
  }
  for (int row = plot.top + 1; row < plot.Bottom(); ++row) {
    if (plot.At(plot.left + 1, row) == kGrid) rows.push_back(row);
  }
  ASSERT_EQ(columns.size(), 9U);
  ASSERT_EQ(rows.size(), 9U);
  for (int i = 0; i < 9; ++i) {
    const auto at = static_cast<std::size_t>(i);
    EXPECT_NEAR(columns[at], plot.left + (i + 1) * 229 / 10., 1);
    EXPECT_NEAR(rows[at], plot.top + (i + 1) * (plot.Bottom() - plot.top) / 10., 1);
  }
  // Lines are sharp: all but grid and frame is paper.
  EXPECT_EQ(plot.Count(kGrid) + plot.Count(kBlack) + plot.Count(kWhite),
            plot.image.width() * plot.image.height());
}

TEST_F(GraphLookTest, WithoutTheGridThereIsNone) {
  // Without axes too: their labels have other greys.
  EXPECT_EQ(PlotOf(Bare({"0*x+20"}, {1, 11, 1, 11})).Count(kGrid), 0);
}

TEST_F(GraphLookTest, AxesStandWhereTheRangeHasZeroWithin) {
  const Plotted plot = PlotOf(Bare({"0*x+20"}));
  const int row = plot.RowOf(0);
  const int column = plot.left + static_cast<int>(0.5 * 228);
  for (int i = 1; i < 40; ++i) {
    EXPECT_EQ(plot.At(plot.left + i, row), kAxis);
    EXPECT_EQ(plot.At(column, plot.Bottom() - i), kAxis);
    EXPECT_NE(plot.At(plot.left + i, row - 1), kAxis);
    EXPECT_NE(plot.At(plot.left + i, row + 1), kAxis);
    EXPECT_NE(plot.At(column - 1, plot.Bottom() - i), kAxis);
    EXPECT_NE(plot.At(column + 1, plot.Bottom() - i), kAxis);
  }
}

TEST_F(GraphLookTest, AnAxisOnTheBorderIsNotDrawn) {
  for (const PlotRange& range : {PlotRange{0, 10, 0, 10}, {-10, 0, -10, 0}, {1, 2, -9, -8}}) {
    EXPECT_EQ(PlotOf(Bare({"0*x+20"}, range)).Count(kAxis), 0);
  }
}

TEST_F(GraphLookTest, TheThreeCurvesHaveTheirColours) {
  const Plotted plot = PlotOf(Bare({"0*x-5", "0*x+2", "0*x+5"}));
  for (int column = plot.left + 1; column < plot.right; ++column) {
    ASSERT_EQ(plot.At(column, plot.RowOf(-5)), kRed) << column;
    ASSERT_EQ(plot.At(column, plot.RowOf(2)), kGreen) << column;
    ASSERT_EQ(plot.At(column, plot.RowOf(5)), kBlue) << column;
  }
}

TEST_F(GraphLookTest, ConstantsAtTheBorderAreSeenAndBeyondItAreNot) {
  const Plotted plot = PlotOf(Bare({"0*x+10", "0*x-10", "0*x+10.2"}));
  for (int column = plot.left + 1; column < plot.right; ++column) {
    ASSERT_EQ(plot.At(column, plot.top), kRed) << column;
    ASSERT_EQ(plot.At(column, plot.Bottom()), kGreen) << column;
  }
  EXPECT_EQ(plot.Count(kBlue), 0);
}

TEST_F(GraphLookTest, YIsXRunsThroughItsSamplesWithoutAStep) {
  const Plotted plot = PlotOf(Bare({"x"}));
  int before = plot.Bottom();
  for (int i = 1; i < 229; ++i) {
    const int column = plot.left + i;
    const double y = -10 + i * 20 / 229.;
    const int row = plot.RowOf(y);
    // Rounding of y in the sample or in the stroke can move it by a row.
    const bool isThere = plot.At(column, row) == kRed || plot.At(column, row - 1) == kRed ||
                         plot.At(column, row + 1) == kRed;
    ASSERT_TRUE(isThere) << i;
    ASSERT_LE(before - row, 1) << i;
    before = row;
  }
  EXPECT_TRUE(IsReddish(plot.At(plot.left, plot.Bottom())));
  EXPECT_TRUE(IsReddish(plot.At(plot.right, plot.top)));
}

TEST_F(GraphLookTest, StrokesAreAntialiased) {
  const Plotted plot = PlotOf(Bare({"x/3"}));
  int partly = 0;
  for (int row = plot.top; row < plot.Bottom(); ++row) {
    for (int column = plot.left; column < plot.right; ++column) {
      const QRgb pixel = plot.At(column, row);
      if (qRed(pixel) == 255 && qGreen(pixel) > 0 && qGreen(pixel) < 255) ++partly;
    }
  }
  EXPECT_GT(partly, 60);
}

TEST_F(GraphLookTest, ALargePlotShowsNoStaircase) {
  const QImage image = Saved(Bare({"x"}), {1080, 1440});
  ASSERT_GT(image.width(), 1000);
  const double scale = image.width() / 234.;
  const int left = qRound(2 * scale);
  const int right = image.width() - 1 - left;
  int pure = 0;
  double before = MiddleOf(image, left + 10);
  const double slope = (image.height() - 1 - 2 * qRound(3 * scale)) / double(right - left);
  for (int column = left + 11; column < right - 10; ++column) {
    const double middle = MiddleOf(image, column);
    const double fromAxis = std::fabs(column - (left + right) / 2.);
    if (fromAxis > 10) {
      ASSERT_GT(before - middle, 0) << column;
      ASSERT_LE(before - middle, 1.1) << column;
      // On the straight line, as nearly as whole rows allow.
      ASSERT_NEAR(middle, image.height() - 1 - qRound(3 * scale) - slope * (column - left), 1.2);
    }
    before = middle;
    for (int row = 0; row < image.height(); ++row) {
      if (image.pixel(column, row) == kRed) {
        ++pure;
        break;
      }
    }
  }
  EXPECT_EQ(pure, right - 10 - left - 11);
}

TEST_F(GraphLookTest, AFlatLineHasNoStepsInALargePlot) {
  const QImage image = Saved(Bare({"x/100+3"}), {1080, 1440});
  const double rise = 0.2 / 20 * image.height() / image.width();
  for (int column = 20; column + 61 < image.width(); column += 20) {
    EXPECT_NEAR(MiddleOf(image, column) - MiddleOf(image, column + 41), 41 * rise, 0.12) << column;
  }
}

TEST_F(GraphLookTest, TheBranchesOfOneByXAreNotJoined) {
  const Plotted plot = PlotOf(Bare({"1/x"}));
  const int middle = plot.RowOf(0);
  EXPECT_FALSE(plot.HasRed(
      QRect(QPoint(plot.ColumnOf(-1), middle - 5), QPoint(plot.ColumnOf(1), middle + 5))));
  EXPECT_TRUE(plot.HasRed(QRect(QPoint(plot.ColumnOf(-1), plot.Bottom() - 20),
                                QPoint(plot.ColumnOf(0), plot.Bottom()))));
  EXPECT_TRUE(plot.HasRed(
      QRect(QPoint(plot.ColumnOf(0), plot.top), QPoint(plot.ColumnOf(1), plot.top + 20))));
  EXPECT_FALSE(
      plot.HasRed(QRect(QPoint(plot.left, plot.top), QPoint(plot.ColumnOf(-1), middle - 3))));
  EXPECT_FALSE(
      plot.HasRed(QRect(QPoint(plot.ColumnOf(1), middle + 3), QPoint(plot.right, plot.Bottom()))));
}

TEST_F(GraphLookTest, ASquareRootHasNothingLeftOfZero) {
  for (const char* formula : {"sqrt(x)", "x^0.5"}) {
    SCOPED_TRACE(formula);
    const Plotted plot = PlotOf(Bare({formula}));
    EXPECT_FALSE(
        plot.HasRed(QRect(QPoint(0, 0), QPoint(plot.ColumnOf(0) - 1, plot.image.height() - 1))));
    for (const double x : {1., 4., 9.}) {
      const int column = plot.ColumnOf(x);
      const int row = plot.RowOf(std::sqrt(x));
      EXPECT_TRUE(plot.HasRed({column, row - 1, 1, 3})) << x;
      EXPECT_FALSE(plot.HasRed({column, row + 4, 1, 20})) << x;
    }
  }
}

TEST_F(GraphLookTest, ARootBeginsOnTheBorder) {
  const Plotted plot = PlotOf(Bare({"x^0.5"}, {0, 4, 0, 2}));
  EXPECT_TRUE(plot.HasRed({plot.left, plot.Bottom() - 1, 2, 2}));
  EXPECT_TRUE(plot.HasRed({plot.right - 1, plot.top, 2, 2}));
  EXPECT_TRUE(plot.HasRed({plot.ColumnOf(1), plot.RowOf(1) - 1, 1, 3}));
}

TEST_F(GraphLookTest, ATangentIsNotJoinedAcrossItsPoles) {
  const Plotted plot = PlotOf(Bare({"tan(x)"}));
  for (const double pole : {-2.5, -1.5, -0.5, 0.5, 1.5, 2.5}) {
    const int column = plot.ColumnOf(pole * std::numbers::pi);
    // tan is beyond 2 from 0.46 before a pole to 0.46 after it: 5 columns.
    EXPECT_FALSE(
        plot.HasRed(QRect(QPoint(column - 3, plot.RowOf(2)), QPoint(column + 3, plot.RowOf(-2)))))
        << pole;
    EXPECT_TRUE(plot.HasRed(QRect(QPoint(column - 3, plot.top), QPoint(column, plot.RowOf(5)))));
    EXPECT_TRUE(
        plot.HasRed(QRect(QPoint(column, plot.RowOf(-5)), QPoint(column + 3, plot.Bottom()))));
  }
  EXPECT_TRUE(plot.HasRed({plot.ColumnOf(0) - 1, plot.RowOf(0) - 1, 3, 3}));
}

TEST_F(GraphLookTest, ASineOfOneByXStaysWithinItsBounds) {
  const Plotted plot = PlotOf(Bare({"sin(1/x)"}, {-1, 1, -2, 2}));
  EXPECT_FALSE(plot.HasRed(QRect(QPoint(0, 0), QPoint(233, plot.RowOf(1) - 2))));
  EXPECT_FALSE(plot.HasRed(QRect(QPoint(0, plot.RowOf(-1) + 2), QPoint(233, plot.Bottom() + 3))));
  // The outermost crest, where 1/x is half of pi, and the trough at the other side.
  const double crest = 2 / std::numbers::pi;
  EXPECT_TRUE(plot.HasRed({plot.ColumnOf(crest), plot.RowOf(1) - 1, 1, 3}));
  EXPECT_TRUE(plot.HasRed({plot.ColumnOf(-crest), plot.RowOf(-1) - 1, 1, 3}));
}

TEST_F(GraphLookTest, WithoutLinesACurveIsOnePixelASample) {
  GraphInput input = Bare({"x"});
  input.options.hasLines = false;
  const Plotted plot = PlotOf(input);
  EXPECT_EQ(plot.Count(kRed), 230);
  for (int i = 0; i < 230; ++i) {
    const int row = plot.RowOf(-10 + i * 20 / 229.);
    ASSERT_TRUE(plot.HasRed({plot.left + i, row - 1, 1, 3})) << i;
  }
}

TEST_F(GraphLookTest, ALargePlotHasSquaresForItsPoints) {
  GraphInput input = Bare({"0*x+5"});
  input.options.hasLines = false;
  const QImage image = Saved(input, {1080, 1440});
  const int side = qRound((image.width() - 4 * image.width() / 234.) / 230);
  EXPECT_GE(side, 4);
  int rows = 0;
  for (int row = 0; row < image.height(); ++row) {
    if (image.pixel(image.width() / 3, row) == kRed ||
        image.pixel(image.width() / 3 + 1, row) == kRed)
      ++rows;
  }
  EXPECT_EQ(rows, side);
}

TEST_F(GraphLookTest, DataPointsAreBlueDiscsOfRadiusTwo) {
  GraphInput input = Bare({"0*x+20"});
  input.points = {{-5, 5}, {3, -7}, {11, 0}, {0, -10.5}};
  const Plotted plot = PlotOf(input);
  for (const DataPoint& point : {input.points[0], input.points[1]}) {
    const int column = plot.left + static_cast<int>((point.x + 10) / 20 * 229);
    const int row = plot.RowOf(point.y);
    for (const QPoint off :
         {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(-1, 0), QPoint(0, -1)}) {
      EXPECT_EQ(plot.At(column + off.x(), row + off.y()), kBlue);
    }
    EXPECT_EQ(plot.At(column + 3, row), kWhite);
    EXPECT_EQ(plot.At(column, row - 3), kWhite);
    EXPECT_NE(plot.At(column + 2, row + 2), kBlue);
  }
  EXPECT_LE(plot.Count(kBlue), 2 * 13);
}

TEST_F(GraphLookTest, LabelsOfTheRangeStandNearTheBottomWithCoordinatesOnly) {
  GraphInput input = Bare({"0*x+20"});
  const Plotted bare = PlotOf(input);
  input.options.hasCoordinates = true;
  const Plotted labelled = PlotOf(input);
  const auto ink = [](const Plotted& plot) {
    std::vector<int> rows;
    for (int row = plot.top + 1; row < plot.Bottom(); ++row) {
      for (int column = plot.left + 1; column < 100; ++column) {
        if (qGray(plot.At(column, row)) >= 90 || plot.At(column, row) == kAxis) continue;
        rows.push_back(row);
        break;
      }
    }
    return rows;
  };
  EXPECT_TRUE(ink(bare).empty());
  const std::vector<int> rows = ink(labelled);
  ASSERT_GT(rows.size(), 20U);
  EXPECT_GT(rows.front(), labelled.Bottom() - 4 * 15 - 10);
  EXPECT_LT(rows.back(), labelled.Bottom());
}

}  // namespace
}  // namespace kav::test::graph_look_test
