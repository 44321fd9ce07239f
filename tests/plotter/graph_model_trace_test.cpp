#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "plotter/graph_model.h"
#include "plotter/graph_picture.h"
#include "support/graph_inputs.h"

namespace kav::graph_model_trace_test {
namespace {

using test::GraphOf;
using Lines = std::vector<std::u16string>;

constexpr PlotArea kFourfold{100, 50, 100 + 4 * 229, 50 + 4 * 229};

/// A range of 0 to 229 in x and y, so that a pixel of the default area is 1.
GraphModel PixelModel(std::initializer_list<std::string_view> formulas = {"x"}) {
  GraphInput input = GraphOf(formulas);
  input.range = {0, 229, 0, 229};
  input.format.type = DisplayType::FloatingPoint;
  return GraphModel(std::move(input));
}

/// The column of the marker after a step.
std::optional<double> ColumnAfterStep(GraphModel& model, int columns) {
  EXPECT_TRUE(model.Step(columns));
  return model.MarkerColumn();
}

/// The column of a marker that is exactly at the x of sample `i`.
double ColumnOfSample(const GraphModel& model, int i) {
  const auto& [xMin, xMax, yMin, yMax] = model.Range();
  const PlotArea& area = model.Area();
  return area.left + (SampleX(model.Range(), i) - xMin) / (xMax - xMin) * (area.right - area.left);
}

TEST(GraphModelTrace, ATapTellsItsPoint) {
  GraphModel model = PixelModel();
  const auto reading = model.Tap({100, 50});
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->x, u"100");
  // 229 / (229 - 0 + 1) * (229 - 50 + 1) = 179.217391304348
  EXPECT_EQ(reading->lines, Lines{u"y = 179.217391304348"});
  EXPECT_EQ(reading->selected, std::nullopt);
  EXPECT_EQ(model.MarkerColumn(), std::nullopt);
  EXPECT_EQ(model.Marker(), std::nullopt);
}

TEST(GraphModelTrace, TheRowsOfATapRunFromTheMaximumToOneRowAboveTheMinimum) {
  GraphModel model = PixelModel();
  EXPECT_EQ(model.Tap({0, 0})->lines, Lines{u"y = 229"});
  EXPECT_EQ(model.Tap({229, 0})->x, u"229");
  // 229 / 230
  EXPECT_EQ(model.Tap({0, 229})->lines, Lines{u"y = 0.995652173913"});
}

TEST(GraphModelTrace, ATapIsShownByTheNumberFormatter) {
  GraphInput input = GraphOf({"x"});
  input.range = {0, 229000, 0, 229};
  input.format = {DisplayType::Thousands, 7};
  GraphModel model(std::move(input));
  EXPECT_EQ(model.Tap({100, 0})->x, u"100,000");
}

TEST(GraphModelTrace, ATapOutsideOfThePlotIsNone) {
  GraphModel model = PixelModel();
  for (const GraphPlace place : {GraphPlace{-1, 5}, {230, 5}, {5, -1}, {5, 230}}) {
    EXPECT_FALSE(model.Tap(place)) << place.column << ' ' << place.row;
    model.SetTraces(true);
    EXPECT_FALSE(model.Tap(place)) << place.column << ' ' << place.row;
    model.SetTraces(false);
  }
  for (const GraphPlace place : {GraphPlace{0, 0}, {229, 0}, {0, 229}, {229, 229}}) {
    EXPECT_TRUE(model.Tap(place)) << place.column << ' ' << place.row;
  }
  model.SetArea(kFourfold);
  EXPECT_FALSE(model.Tap({99, 100}));
  EXPECT_EQ(model.Tap({100, 100})->x, u"0");
  EXPECT_EQ(model.Tap({100 + 4 * 229, 100})->x, u"229");
  EXPECT_EQ(model.Tap({102, 100})->x, u"0.5");
}

TEST(GraphModelTrace, WhileTracingATapCalculatesEachCurve) {
  GraphModel model = PixelModel({"x", "x^2", "ln(x-50)"});
  model.SetTraces(true);
  model.SelectCurve(1);
  const auto reading = model.Tap({50, 10});
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->x, u"50");
  EXPECT_EQ(reading->lines, (Lines{u"R:F1(X) = 50", u"G:F2(X) = 2500", u"B:F3(X) = Out of range"}));
  EXPECT_EQ(reading->selected, 1);
  EXPECT_EQ(model.MarkerColumn(), 50);
}

TEST(GraphModelTrace, WhileTracingTheFieldHasAllDigitsWhateverTheDisplay) {
  GraphInput input = GraphOf({"x"});
  input.range = {0, 229000.5, 0, 229};
  input.format = {DisplayType::FixedPoint, 1};
  GraphModel model(std::move(input));
  model.SetTraces(true);
  // 229000.5 / 229 * 1
  const auto reading = model.Tap({1, 10});
  EXPECT_EQ(reading->x, u"1000.00218340611");
  EXPECT_EQ(reading->lines, Lines{u"R:F1(X) = 1000.0"});
}

TEST(GraphModelTrace, CalTakesTheTextOfTheField) {
  GraphModel model = PixelModel({"x", "x^2"});
  const auto reading = model.Calculate(u"-2.5");
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->x, u"-2.5");
  EXPECT_EQ(reading->lines, (Lines{u"R:F1(X) = -2.5", u"G:F2(X) = 6.25"}));
  EXPECT_EQ(reading->selected, 0);
  EXPECT_EQ(model.MarkerColumn(), std::nullopt);
  EXPECT_EQ(model.Calculate(u" 1e2 ")->lines.front(), u"R:F1(X) = 100");
  EXPECT_EQ(model.Calculate(u"1,234.5")->lines.front(), u"R:F1(X) = 1234.5");
}

TEST(GraphModelTrace, AnEmptyFieldIsZero) {
  GraphModel model = PixelModel({"x+1"});
  for (const std::u16string_view text : {u"", u"  "}) {
    const auto reading = model.Calculate(text);
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->x, u"0");
    EXPECT_EQ(reading->lines, Lines{u"R:F1(X) = 1"});
  }
}

TEST(GraphModelTrace, ValuesAreShownByTheNumberFormatter) {
  GraphInput input = GraphOf({"x*1000", "x/8"});
  input.format = {DisplayType::Thousands, 7};
  GraphModel model(std::move(input));
  EXPECT_EQ(model.Calculate(u"5")->lines, (Lines{u"R:F1(X) = 5,000", u"G:F2(X) = 0.625"}));
}

TEST(GraphModelTrace, WhatTheEngineRejectsIsOutOfRange) {
  GraphModel model = PixelModel({"1/x", "sqrt(x)", "10^x"});
  EXPECT_EQ(model.Calculate(u"0")->lines,
            (Lines{u"R:F1(X) = Out of range", u"G:F2(X) = Out of range", u"B:F3(X) = 1"}));
  EXPECT_EQ(model.Calculate(u"-1")->lines,
            (Lines{u"R:F1(X) = -1", u"G:F2(X) = Out of range", u"B:F3(X) = 0.1"}));
  EXPECT_EQ(model.Calculate(u"400")->lines[2], u"B:F3(X) = Out of range");
}

TEST(GraphModelTrace, TheAngleUnitOfTheGraphCounts) {
  GraphInput input = GraphOf({"sin(x)"});
  input.angle = AngleUnit::Degrees;
  GraphModel model(std::move(input));
  EXPECT_EQ(model.Calculate(u"30")->lines, Lines{u"R:F1(X) = 0.5"});
}

TEST(GraphModelTrace, ACommaThatCouldBeADecimalOneIsRefusedUnlessATapWroteIt) {
  GraphInput input = GraphOf({"x"});
  input.range = {0, 229000, 0, 229};
  input.format = {DisplayType::Thousands, 7};
  GraphModel model(std::move(input));
  const auto typed = model.Calculate(u"2,000");
  ASSERT_FALSE(typed);
  EXPECT_EQ(typed.error(), u"The comma in \"2,000\" can be read in two ways. Write 2.000 or 2000.");
  EXPECT_EQ(model.Tap({2, 10})->x, u"2,000");
  EXPECT_EQ(model.Calculate(u"2,000")->lines, Lines{u"R:F1(X) = 2,000"});
  EXPECT_FALSE(model.Calculate(u"3,000"));
}

TEST(GraphModelTrace, TheFieldTakesAnExpression) {
  GraphInput input = GraphOf({"x"});
  input.angle = AngleUnit::Degrees;
  GraphModel model(std::move(input));
  EXPECT_EQ(model.Calculate(u"4*sin(30)")->lines, Lines{u"R:F1(X) = 2"});
}

TEST(GraphModelTrace, AFieldThatHoldsNoNumberIsToldWhatIsAllowed) {
  GraphModel model = PixelModel();
  constexpr std::u16string_view kAllowed =
      u"\"X =\" takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size, not ";
  for (const std::u16string_view text :
       {u"abc", u"1,5.2", u"1e", u"2x", u"--1", u"inf", u"nan", u"1e999", u"-1e999", u"sin(x)"}) {
    const auto reading = model.Calculate(text);
    ASSERT_FALSE(reading);
    EXPECT_EQ(reading.error(), std::u16string(kAllowed).append(u"\"").append(text).append(u"\"."));
  }
  const auto reading = model.Calculate(std::u16string(100000, u'y'));
  ASSERT_FALSE(reading);
  EXPECT_LT(reading.error().size(), 200U);
}

TEST(GraphModelTrace, TheSelectedLineIsThatOfTheSelector) {
  GraphModel model = PixelModel({"x", "x", "x"});
  EXPECT_EQ(model.Calculate(u"1")->selected, 0);
  for (const int curve : {2, 0, 1}) {
    model.SelectCurve(curve);
    EXPECT_EQ(model.Calculate(u"1")->selected, curve);
  }
  for (const int none : {-1, 3}) {
    model.SelectCurve(none);
    EXPECT_EQ(model.Calculate(u"1")->selected, 1);
  }
}

TEST(GraphModelTrace, TheMarkerStandsOnTheSelectedCurve) {
  GraphModel model = PixelModel({"x", "229-x/2"});
  model.SetTraces(true);
  EXPECT_EQ(model.Marker(), std::nullopt);
  model.Tap({50, 200});
  ASSERT_TRUE(model.Marker());
  EXPECT_EQ(model.Marker()->column, 50);
  EXPECT_EQ(model.Marker()->row, 179);
  model.SelectCurve(1);
  // 229 - 25 = 204
  EXPECT_EQ(model.Marker()->row, 25);
  EXPECT_EQ(model.MarkerColumn(), 50);
}

TEST(GraphModelTrace, TheMarkerFollowsTheArea) {
  GraphModel model = PixelModel();
  model.SetTraces(true);
  model.Tap({50, 200});
  model.SetArea(kFourfold);
  ASSERT_TRUE(model.Marker());
  EXPECT_EQ(model.Marker()->column, 100 + 200);
  EXPECT_EQ(model.Marker()->row, 50 + 4 * 179);
}

TEST(GraphModelTrace, WithoutAPointOfTheCurveThereIsOnlyAColumn) {
  GraphModel model = PixelModel({"ln(x-50)", "x+200", "x-200"});
  model.SetTraces(true);
  model.Tap({40, 100});
  for (int curve = 0; curve < 3; ++curve) {
    model.SelectCurve(curve);
    EXPECT_EQ(model.Marker(), std::nullopt) << curve;
    EXPECT_EQ(model.MarkerColumn(), 40) << curve;
  }
}

TEST(GraphModelTrace, TheMarkerIsHiddenWithoutTracingAndOutsideOfTheRange) {
  GraphModel model = PixelModel();
  model.SetTraces(true);
  model.Tap({200, 100});
  model.SetTraces(false);
  EXPECT_EQ(model.Marker(), std::nullopt);
  EXPECT_EQ(model.MarkerColumn(), std::nullopt);
  model.SetTraces(true);
  EXPECT_EQ(model.MarkerColumn(), 200);
  model.Change(RangeChange::MoveLeft);
  EXPECT_EQ(model.MarkerColumn(), std::nullopt);
  EXPECT_EQ(model.Marker(), std::nullopt);
  model.Change(RangeChange::Undo);
  EXPECT_EQ(model.MarkerColumn(), 200);
}

TEST(GraphModelTrace, CalMovesTheMarkerWhileTracing) {
  GraphModel model = PixelModel();
  model.SetTraces(true);
  EXPECT_EQ(model.Calculate(u"12.5")->x, u"12.5");
  EXPECT_EQ(model.MarkerColumn(), 12.5);
  EXPECT_EQ(model.Calculate(u"300")->x, u"300");
  EXPECT_EQ(model.MarkerColumn(), std::nullopt);
  ASSERT_FALSE(model.Calculate(u"?"));
}

TEST(GraphModelTrace, ATapThatDoesNotTraceForgetsTheMarker) {
  GraphModel model = PixelModel();
  model.SetTraces(true);
  model.Tap({50, 50});
  model.SetTraces(false);
  model.Tap({60, 60});
  model.SetTraces(true);
  EXPECT_EQ(model.MarkerColumn(), std::nullopt);
}

TEST(GraphModelTrace, ResetAndUndoKeepTracing) {
  GraphModel model = PixelModel();
  model.SetTraces(true);
  model.Tap({50, 50});
  model.Change(RangeChange::ZoomOut);
  model.Change(RangeChange::Reset);
  EXPECT_TRUE(model.Traces());
  EXPECT_EQ(model.MarkerColumn(), 50);
  model.Change(RangeChange::Undo);
  EXPECT_TRUE(model.Traces());
  EXPECT_TRUE(model.MarkerColumn());
}

TEST(GraphModelTrace, StepsGoFromSampleToSample) {
  GraphModel model = PixelModel();
  model.SetTraces(true);
  model.Tap({50, 50});
  auto reading = model.Step(1);
  ASSERT_TRUE(reading);
  EXPECT_EQ(model.MarkerColumn(), ColumnOfSample(model, 51));
  EXPECT_EQ(reading->lines, Lines{u"R:F1(X) = 51"});
  EXPECT_EQ(ColumnAfterStep(model, -3), ColumnOfSample(model, 48));
  model.SetArea(kFourfold);
  EXPECT_EQ(ColumnAfterStep(model, 1), ColumnOfSample(model, 49));
  // Sample 61 is the nearest to 61.25.
  model.Tap({100 + 245, 100});
  EXPECT_EQ(ColumnAfterStep(model, 1), ColumnOfSample(model, 62));
}

TEST(GraphModelTrace, EachSampleIsReachedByOneStep) {
  GraphInput input = GraphOf({"x"});
  input.range = {-0.3, 1.7, -10, 10};
  GraphModel model(std::move(input));
  model.SetTraces(true);
  model.Step(-1000);
  for (int i = 1; i < kSampleCount; ++i) {
    ASSERT_EQ(ColumnAfterStep(model, 1), ColumnOfSample(model, i)) << i;
    EXPECT_NEAR(*model.MarkerColumn(), i, 1e-9);
  }
}

TEST(GraphModelTrace, StepsEndAtTheBordersOfTheRange) {
  GraphModel model = PixelModel();
  model.SetTraces(true);
  model.Tap({228, 50});
  EXPECT_EQ(ColumnAfterStep(model, 10), ColumnOfSample(model, 229));
  EXPECT_EQ(ColumnAfterStep(model, 1), ColumnOfSample(model, 229));
  EXPECT_EQ(ColumnAfterStep(model, -1000000), ColumnOfSample(model, 0));
  EXPECT_EQ(ColumnAfterStep(model, -1), ColumnOfSample(model, 0));
  EXPECT_EQ(ColumnAfterStep(model, std::numeric_limits<int>::max()), ColumnOfSample(model, 229));
  EXPECT_EQ(ColumnAfterStep(model, std::numeric_limits<int>::min()), ColumnOfSample(model, 0));
}

TEST(GraphModelTrace, AStepBringsAMarkerBackThatIsOutsideOfTheRange) {
  GraphModel model = PixelModel();
  model.SetTraces(true);
  ASSERT_TRUE(model.Calculate(u"1e300"));
  EXPECT_EQ(ColumnAfterStep(model, -1), ColumnOfSample(model, 228));
  ASSERT_TRUE(model.Calculate(u"-5"));
  EXPECT_EQ(ColumnAfterStep(model, 1), ColumnOfSample(model, 1));
}

TEST(GraphModelTrace, TheFirstStepStartsInTheMiddle) {
  GraphModel model = PixelModel();
  EXPECT_FALSE(model.Step(1));
  model.SetTraces(true);
  EXPECT_EQ(ColumnAfterStep(model, 1), ColumnOfSample(model, 115));
}

TEST(GraphModelTrace, AMarkerCanBeSteppedWhereTheDisplayShowsNoDifference) {
  GraphInput input = GraphOf({"x"});
  input.range = {0, 1e-15, 0, 1};
  input.format = {DisplayType::FixedPoint, 0};
  GraphModel model(std::move(input));
  model.SetTraces(true);
  model.Tap({0, 0});
  for (int i = 1; i < kSampleCount; ++i) {
    ASSERT_EQ(ColumnAfterStep(model, 1), ColumnOfSample(model, i));
  }
}

/// The shapes of that kind.
template <class Shape>
std::vector<Shape> ShapesOf(const GraphPicture& picture) {
  std::vector<Shape> shapes;
  for (const GraphShape& shape : picture) {
    if (const auto* found = std::get_if<Shape>(&shape)) shapes.push_back(*found);
  }
  return shapes;
}

TEST(GraphModelTrace, TheMarkerIsNoPartOfThePicture) {
  GraphModel model = PixelModel();
  const std::size_t shapes = BuildPicture(model).size();
  model.SetTraces(true);
  EXPECT_TRUE(BuildMarker(model).empty());
  model.Tap({50, 50});
  EXPECT_EQ(BuildPicture(model).size(), shapes);
  EXPECT_FALSE(BuildMarker(model).empty());
  model.SetTraces(false);
  EXPECT_TRUE(BuildMarker(model).empty());
}

TEST(GraphModelTrace, TheMarkerIsACrossWithADiscOnTheCurve) {
  GraphModel model = PixelModel({"x", "x+500"});
  model.SetTraces(true);
  model.Tap({50, 10});
  const GraphPicture marker = BuildMarker(model);
  const auto discs = ShapesOf<GraphDisc>(marker);
  ASSERT_EQ(discs.size(), 1U);
  EXPECT_EQ(discs[0].place.column, 50);
  EXPECT_EQ(discs[0].place.row, 179);
  EXPECT_EQ(ShapesOf<GraphStroke>(marker).size(), 2U);
  model.SelectCurve(1);
  EXPECT_TRUE(ShapesOf<GraphDisc>(BuildMarker(model)).empty());
  const auto strokes = ShapesOf<GraphStroke>(BuildMarker(model));
  ASSERT_EQ(strokes.size(), 1U);
  for (const GraphPlace& place : strokes[0].places) EXPECT_EQ(place.column, 50);
}

}  // namespace
}  // namespace kav::graph_model_trace_test
