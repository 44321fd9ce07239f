#include "plotter/graph_model.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "support/effort.h"
#include "support/graph_inputs.h"
#include "support/random.h"

namespace kav::graph_model_test {
namespace {

using test::FormulaOf;
using test::GraphOf;
using test::Random;
using test::Tries;

constexpr PlotArea kFourfold{100, 50, 100 + 4 * 229, 50 + 4 * 229};
constexpr std::u16string_view kEqualX = u"Can not draw graph(X min = X max)";
constexpr std::u16string_view kEqualY = u"Can not draw graph(Y min = Y max)";
constexpr std::u16string_view kOutOfRange = u"Out of range(overflow or underflow)";

GraphModel ModelOf(const PlotRange& range) {
  GraphInput input = GraphOf({"x"});
  input.range = range;
  return GraphModel(std::move(input));
}

void ExpectNear(const PlotRange& range, const PlotRange& expected) {
  EXPECT_NEAR(range.xMin, expected.xMin, 1e-12);
  EXPECT_NEAR(range.xMax, expected.xMax, 1e-12);
  EXPECT_NEAR(range.yMin, expected.yMin, 1e-12);
  EXPECT_NEAR(range.yMax, expected.yMax, 1e-12);
}

TEST(GraphModel, OpensWithWhatItIsGiven) {
  GraphInput input = GraphOf({"x", "2*x"});
  input.range = {-1, 2, -3, 4};
  input.options = {false, true, false};
  const GraphModel model(std::move(input));
  EXPECT_EQ(model.Range(), (PlotRange{-1, 2, -3, 4}));
  EXPECT_EQ(model.Options(), (GraphOptions{false, true, false}));
  EXPECT_EQ(model.Area(), (PlotArea{0, 0, 229, 229}));
  EXPECT_EQ(model.Input().curves.size(), 2U);
  EXPECT_FALSE(model.Traces());
  EXPECT_FALSE(model.CanUndo());
}

TEST(GraphModel, EachChangeMovesTheBoundsByAFifthOfTheirDistance) {
  struct Row {
    RangeChange change;
    PlotRange range;
  };
  // W = 20 and H = 5.
  const Row rows[] = {
      {RangeChange::ZoomIn, {-6, 6, 1, 4}},    {RangeChange::ZoomOut, {-14, 14, -1, 6}},
      {RangeChange::MoveLeft, {-14, 6, 0, 5}}, {RangeChange::MoveRight, {-6, 14, 0, 5}},
      {RangeChange::MoveUp, {-10, 10, 1, 6}},  {RangeChange::MoveDown, {-10, 10, -1, 4}},
      {RangeChange::Reset, {-10, 10, 0, 5}},   {RangeChange::Undo, {-10, 10, 0, 5}},
  };
  for (const auto& [change, range] : rows) {
    GraphModel model = ModelOf({-10, 10, 0, 5});
    EXPECT_EQ(model.Change(change), std::nullopt);
    ExpectNear(model.Range(), range);
  }
}

TEST(GraphModel, AMoveLeavesTheOtherDirectionAsItIs) {
  GraphModel model = ModelOf({0.1, 0.7, -0.3, 0.9});
  model.Change(RangeChange::MoveLeft);
  EXPECT_EQ(model.Range().yMin, -0.3);
  EXPECT_EQ(model.Range().yMax, 0.9);
  model.Change(RangeChange::Reset);
  model.Change(RangeChange::MoveDown);
  EXPECT_EQ(model.Range().xMin, 0.1);
  EXPECT_EQ(model.Range().xMax, 0.7);
}

TEST(GraphModel, ZoomingInAndOutAgainLeavesLessAndUndoDoesNot) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  model.Change(RangeChange::ZoomIn);
  model.Change(RangeChange::ZoomOut);
  // 1.4 * 0.6 = 0.84 of 20 and of 5.
  ExpectNear(model.Range(), {-8.4, 8.4, 0.4, 4.6});
  model.Change(RangeChange::Reset);
  model.Change(RangeChange::ZoomIn);
  model.Change(RangeChange::Undo);
  EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 0, 5}));
}

TEST(GraphModel, UndoTwiceReturns) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  model.Change(RangeChange::MoveUp);
  model.Change(RangeChange::ZoomIn);
  const PlotRange zoomed = model.Range();
  model.Change(RangeChange::Undo);
  EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 1, 6}));
  model.Change(RangeChange::Undo);
  EXPECT_EQ(model.Range(), zoomed);
}

TEST(GraphModel, ResetCanBeUndone) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  model.Change(RangeChange::MoveUp);
  model.Change(RangeChange::MoveUp);
  const PlotRange moved = model.Range();
  EXPECT_EQ(model.Change(RangeChange::Reset), std::nullopt);
  EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 0, 5}));
  model.Change(RangeChange::Undo);
  EXPECT_EQ(model.Range(), moved);
}

TEST(GraphModel, ThereIsSomethingToUndoFromTheFirstChangeOn) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  EXPECT_FALSE(model.CanUndo());
  EXPECT_EQ(model.Change(RangeChange::Undo), std::nullopt);
  EXPECT_FALSE(model.CanUndo());
  model.Change(RangeChange::ZoomIn);
  EXPECT_TRUE(model.CanUndo());
  model.Change(RangeChange::Undo);
  EXPECT_TRUE(model.CanUndo());
}

TEST(GraphModel, WhatIsRefusedChangesNothing) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  GraphModel model = ModelOf({0, 1, 0, kLargest * 0.9});
  model.Change(RangeChange::MoveRight);
  const PlotRange before = model.Range();
  EXPECT_EQ(model.Change(RangeChange::MoveUp), kOutOfRange);
  EXPECT_EQ(model.Change(RangeChange::ZoomOut), kOutOfRange);
  EXPECT_EQ(model.Range(), before);
  EXPECT_EQ(model.Change(RangeChange::Undo), std::nullopt);
  EXPECT_EQ(model.Range(), (PlotRange{0, 1, 0, kLargest * 0.9}));
}

TEST(GraphModel, ZoomingNeverLosesTheRange) {
  Random random(55);
  for (int i = 0; i < Tries(200); ++i) {
    const double x = std::pow(10, random.Fraction() * 600 - 300);
    const double y = (random.Fraction() - 0.5) * std::pow(10, random.Fraction() * 600 - 300);
    GraphModel model = ModelOf({-x * random.Fraction(), x, y, y + x});
    if (RangeRefusal(model.Range())) continue;
    for (const RangeChange change : {RangeChange::ZoomIn, RangeChange::ZoomOut}) {
      for (int k = 0; k < 300; ++k) {
        const PlotRange before = model.Range();
        const ChangeRefusal refusal = model.Change(change);
        ASSERT_EQ(RangeRefusal(model.Range()), std::nullopt);
        ASSERT_TRUE(!refusal || model.Range() == before);
      }
    }
  }
}

TEST(GraphModel, OptionsAreApplied) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  EXPECT_EQ(model.Apply({0, 1, 2, 3}, {false, false, true}), std::nullopt);
  EXPECT_EQ(model.Range(), (PlotRange{0, 1, 2, 3}));
  EXPECT_EQ(model.Options(), (GraphOptions{false, false, true}));
  model.Change(RangeChange::Undo);
  EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 0, 5}));
  EXPECT_EQ(model.Options(), (GraphOptions{false, false, true}));
}

TEST(GraphModel, OptionsWithTheSameRangeLeaveUndoAsItIs) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  model.Apply(model.Range(), {false, true, true});
  EXPECT_FALSE(model.CanUndo());
  model.Change(RangeChange::ZoomIn);
  model.Apply(model.Range(), {true, true, true});
  EXPECT_EQ(model.Options(), (GraphOptions{true, true, true}));
  model.Change(RangeChange::Undo);
  EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 0, 5}));
}

TEST(GraphModel, OptionsWithARangeThatCannotBeAreRefusedAsAWhole) {
  struct Row {
    PlotRange range;
    std::u16string_view refusal;
  };
  const Row rows[] = {
      {{1, 1, 0, 1}, u"The maximum value of X should be bigger than the minimum value of X."},
      {{0, 1, 2, 1}, u"The maximum value of Y should be bigger than the minimum value of Y."},
      {{0, std::numeric_limits<double>::infinity(), 0, 1}, kOutOfRange},
  };
  for (const auto& [range, refusal] : rows) {
    GraphModel model = ModelOf({-10, 10, 0, 5});
    EXPECT_EQ(model.Apply(range, {false, false, false}), refusal);
    EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 0, 5}));
    EXPECT_EQ(model.Options(), GraphOptions());
    EXPECT_FALSE(model.CanUndo());
  }
}

TEST(GraphModel, ABoxIsTheNewRange) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  EXPECT_EQ(model.ZoomToBox({0, 0}, {229, 229}), std::nullopt);
  EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 0, 5}));
  // 22.9 columns are 2, 22.9 rows 0.5.
  model.ZoomToBox({22.9, 45.8}, {114.5, 183.2});
  ExpectNear(model.Range(), {-8, 0, 1, 4});
  model.Change(RangeChange::Undo);
  EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 0, 5}));
}

TEST(GraphModel, ABoxIsTheSameInAnyDirection) {
  const GraphPlace corners[][2] = {
      {{20, 30}, {120, 90}}, {{120, 30}, {20, 90}}, {{20, 90}, {120, 30}}, {{120, 90}, {20, 30}}};
  GraphModel first = ModelOf({-10, 10, 0, 5});
  first.ZoomToBox(corners[0][0], corners[0][1]);
  for (const auto& [from, to] : corners) {
    GraphModel model = ModelOf({-10, 10, 0, 5});
    EXPECT_EQ(model.ZoomToBox(from, to), std::nullopt);
    EXPECT_EQ(model.Range(), first.Range());
    EXPECT_LT(model.Range().xMin, model.Range().xMax);
    EXPECT_LT(model.Range().yMin, model.Range().yMax);
  }
}

TEST(GraphModel, ABoxMayEndOutsideOfThePlotButNotBeginThere) {
  GraphModel model = ModelOf({0, 229, 0, 229});
  model.ZoomToBox({100, 100}, {250, 300});
  ExpectNear(model.Range(), {100, 250, -71, 129});
  for (const GraphPlace from : {GraphPlace{-1, 100}, {230, 100}, {100, -1}, {100, 230}}) {
    GraphModel other = ModelOf({0, 229, 0, 229});
    EXPECT_EQ(other.ZoomToBox(from, {50, 50}), std::nullopt);
    EXPECT_EQ(other.Range(), (PlotRange{0, 229, 0, 229}));
    EXPECT_FALSE(other.CanUndo());
  }
}

TEST(GraphModel, ADragOfLessThanTenPixelsChangesNothing) {
  struct Row {
    GraphPlace to;
    bool zooms;
  };
  for (const auto& [to, zooms] :
       {Row{{110, 110}, true}, Row{{109, 150}, false}, Row{{150, 109}, false}, Row{{90, 90}, true},
        Row{{91, 50}, false}, Row{{50, 91}, false}, Row{{100, 100}, false}}) {
    GraphModel model = ModelOf({-10, 10, 0, 5});
    EXPECT_EQ(model.ZoomToBox({100, 100}, to), std::nullopt);
    EXPECT_EQ(model.CanUndo(), zooms) << to.column << ' ' << to.row;
  }
}

TEST(GraphModel, TenPixelsAreABoxInALargePlotToo) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  model.SetArea(kFourfold);
  model.ZoomToBox({200, 200}, {209, 300});
  model.ZoomToBox({200, 200}, {300, 209});
  EXPECT_FALSE(model.CanUndo());
  model.ZoomToBox({200, 200}, {210, 240});
  EXPECT_TRUE(model.CanUndo());
  // 229 * 4 pixels are 20 and 5.
  ExpectNear(model.Range(), {-10 + 100 * 20 / 916., -10 + 110 * 20 / 916., 5 - 190 * 5 / 916.,
                             5 - 150 * 5 / 916.});
}

TEST(GraphModel, ABoxOfEqualBoundsIsRefused) {
  const double next = std::nextafter(1., 2.);
  GraphModel narrow = ModelOf({1, next, 0, 5});
  EXPECT_EQ(narrow.ZoomToBox({10, 10}, {30, 30}), kEqualX);
  EXPECT_EQ(narrow.Range(), (PlotRange{1, next, 0, 5}));
  EXPECT_FALSE(narrow.CanUndo());
  GraphModel low = ModelOf({0, 5, 1, next});
  EXPECT_EQ(low.ZoomToBox({10, 10}, {30, 30}), kEqualY);
  EXPECT_EQ(low.Range(), (PlotRange{0, 5, 1, next}));
  GraphModel both = ModelOf({1, next, 1, next});
  EXPECT_EQ(both.ZoomToBox({10, 10}, {30, 30}), kEqualX);
}

TEST(GraphModel, WhileTracingThereIsNoBox) {
  GraphModel model = ModelOf({-10, 10, 0, 5});
  model.SetTraces(true);
  EXPECT_EQ(model.ZoomToBox({20, 30}, {120, 90}), std::nullopt);
  EXPECT_EQ(model.Range(), (PlotRange{-10, 10, 0, 5}));
  EXPECT_FALSE(model.CanUndo());
}

TEST(GraphModel, CurvesAreSampledAnewForEachRangeAndArea) {
  GraphModel model = ModelOf({0, 10, 0, 10});
  EXPECT_EQ(model.Rows(0), SampleCurve(FormulaOf("x"), {0, 10, 0, 10}, AngleUnit::Radians, {}));
  model.Change(RangeChange::MoveUp);
  EXPECT_EQ(model.Rows(0), SampleCurve(FormulaOf("x"), model.Range(), AngleUnit::Radians, {}));
  EXPECT_EQ(model.Rows(0)[0], std::nullopt);
  model.SetArea(kFourfold);
  EXPECT_EQ(model.Rows(0),
            SampleCurve(FormulaOf("x"), model.Range(), AngleUnit::Radians, {50, 50 + 916}));
  model.Apply({0, 20, 0, 20}, {});
  EXPECT_EQ(model.Rows(0)[0], 50 + 916);
  model.ZoomToBox({100, 50}, {500, 450});
  EXPECT_EQ(model.Rows(0),
            SampleCurve(FormulaOf("x"), model.Range(), AngleUnit::Radians, {50, 50 + 916}));
}

TEST(GraphModel, SamplesThatFailAreGapsAndNoMessages) {
  GraphModel model(GraphOf({"ln(x)"}));
  for (int i = 0; i < 10; ++i) EXPECT_EQ(model.Change(RangeChange::MoveLeft), std::nullopt);
  EXPECT_LT(model.Range().xMax, 0);
  for (const auto& row : model.Rows(0)) EXPECT_EQ(row, std::nullopt);
}

TEST(GraphModel, RangeLabelsAreShownByTheNumberFormatter) {
  GraphInput input = GraphOf({"x"});
  input.range = {-1234.5, 10, -1e-15, 0.25};
  input.format = {DisplayType::Thousands, 3};
  GraphModel model(std::move(input));
  EXPECT_EQ(model.RangeLabels(), (std::vector<std::u16string>{u"x min=-1,234.5", u"x max=10",
                                                              u"y min=-1.000e-15", u"y max=0.25"}));
  model.Apply({0, 1, 0, 1}, {true, true, true});
  EXPECT_EQ(model.RangeLabels(),
            (std::vector<std::u16string>{u"x min=0", u"x max=1", u"y min=0", u"y max=1"}));
  model.Apply({0, 1, 0, 1}, {true, true, false});
  EXPECT_TRUE(model.RangeLabels().empty());
}

TEST(GraphModel, ItsDescriptionTellsCurvesDataAndBoundsWhateverIsShown) {
  GraphInput input = GraphOf({"x"});
  input.curves.front().label = u"R:F1(X)=x";
  input.options.hasCoordinates = false;
  input.range = {-1, 2, -3, 4};
  EXPECT_EQ(GraphModel(input).Description(), u"R:F1(X)=x; x min=-1; x max=2; y min=-3; y max=4");
  input.points = {{1, 2}};
  input.curves.push_back(GraphOf({"x^2"}).curves.front());
  input.curves.back().label = u"G:F2(X)=x^2";
  GraphModel model(input);
  EXPECT_EQ(model.Description(),
            u"R:F1(X)=x; G:F2(X)=x^2; 1 data point; x min=-1; x max=2; y min=-3; y max=4");
  input.points.push_back({3, 4});
  EXPECT_NE(GraphModel(input).Description().find(u"2 data points"), std::u16string::npos);
  EXPECT_FALSE(model.Change(RangeChange::MoveLeft));
  EXPECT_NE(model.Description().find(u"x min=-1.6; x max=1.4"), std::u16string::npos);
}

TEST(GraphModel, WhatIsCopiedIsPlainDigitsOfTheSelectedLine) {
  const auto copied = [](const GraphReading& reading, std::optional<int> line) {
    std::u16string all;
    for (const auto part : {ReadingPart::Point, ReadingPart::X, ReadingPart::Y}) {
      all += CopiedReading(reading, part, line).value_or(u"none") + u"|";
    }
    return all;
  };
  const GraphReading tapped{u"1,234.5", {u"y = -2,500"}, {u"-2,500"}, std::nullopt};
  EXPECT_EQ(copied(tapped, std::nullopt), u"1234.5\t-2500|1234.5|-2500|");
  const GraphReading curves{
      u" 1e3 ", {u"R:F1(X) = 1,000,000", u"G:F2(X) = Out of range"}, {u"1,000,000", u""}, 0};
  EXPECT_EQ(copied(curves, 0), u"1e3\t1000000|1e3|1000000|");
  EXPECT_EQ(copied(curves, 1), u"none|1e3|none|") << "a message is no number";
  EXPECT_EQ(copied(curves, 2), u"none|1e3|none|");
  EXPECT_EQ(copied({}, std::nullopt), u"none|none|none|");
}

TEST(GraphModel, AReadingHasTheNumberOfEachLine) {
  GraphModel model(GraphOf({"1000*x", "1/x"}));
  const auto reading = model.Calculate(u"0");
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->values, (std::vector<std::u16string>{u"0", u""}));
  EXPECT_EQ(model.Calculate(u"2")->values, (std::vector<std::u16string>{u"2,000", u"0.5"}));
  const auto tapped = model.Tap({0, 0});
  ASSERT_TRUE(tapped);
  EXPECT_EQ(tapped->values, std::vector<std::u16string>{u"10"});
}

}  // namespace
}  // namespace kav::graph_model_test
