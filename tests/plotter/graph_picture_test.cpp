#include "plotter/graph_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <vector>

#include "support/graph_inputs.h"
#include "support/random.h"

namespace kav::graph_picture_test {
namespace {

using test::GraphOf;
using test::Random;

constexpr PlotArea kDefault{0, 0, 229, 229};
constexpr PlotArea kFourfold{100, 50, 100 + 4 * 229, 50 + 4 * 229};
constexpr GraphOptions kNothing{false, true, false};

/// A model without grid and labels.
GraphModel ModelOf(std::initializer_list<std::string_view> formulas, const PlotRange& range = {},
                   GraphOptions options = kNothing) {
  GraphInput input = GraphOf(formulas);
  input.range = range;
  input.options = options;
  input.format.type = DisplayType::FloatingPoint;
  return GraphModel(std::move(input));
}

template <class Shape>
std::vector<Shape> All(const GraphPicture& picture) {
  std::vector<Shape> shapes;
  for (const GraphShape& shape : picture) {
    if (const auto* found = std::get_if<Shape>(&shape)) shapes.push_back(*found);
  }
  return shapes;
}

std::vector<GraphRule> Rules(const GraphPicture& picture, GraphColour colour) {
  std::vector<GraphRule> rules = All<GraphRule>(picture);
  std::erase_if(rules, [&](const GraphRule& rule) { return rule.colour != colour; });
  return rules;
}

std::optional<GraphText> TextOf(const GraphPicture& picture, std::u16string_view text) {
  for (const GraphText& found : All<GraphText>(picture)) {
    if (found.text == text) return found;
  }
  return std::nullopt;
}

/// The column and the row of the axes; negative if there is none.
struct Axes {
  double row = -1;
  double column = -1;

  bool operator==(const Axes&) const = default;
};

Axes AxesOf(const GraphModel& model) {
  Axes axes;
  const PlotArea& area = model.Area();
  for (const GraphRule& rule : Rules(BuildPicture(model), 0x008284)) {
    const bool isRow = rule.from.row == rule.to.row;
    if (isRow) axes.row = rule.from.row;
    if (!isRow) axes.column = rule.from.column;
    EXPECT_EQ(isRow ? rule.from.column : rule.from.row, isRow ? area.left : area.top);
    EXPECT_EQ(isRow ? rule.to.column : rule.to.row, isRow ? area.right : area.bottom);
  }
  return axes;
}

TEST(GraphPicture, ItsShapesStandInTheOrderOfPainting) {
  GraphInput input = GraphOf({"x", "x+1"});
  input.points = {{1, 2}};
  const GraphPicture picture = BuildPicture(GraphModel(std::move(input)));
  std::vector<std::size_t> kinds;
  for (const GraphShape& shape : picture) {
    if (kinds.empty() || kinds.back() != shape.index()) kinds.push_back(shape.index());
  }
  // Frame; grid and axes; the labels of the axes; curves; discs; the labels of the range.
  EXPECT_EQ(kinds, (std::vector<std::size_t>{0, 1, 5, 2, 4, 5}));
}

TEST(GraphPicture, TheFrameIsThatOfTheArea) {
  GraphModel model = ModelOf({"x"});
  model.SetArea(kFourfold);
  const auto frames = All<GraphFrame>(BuildPicture(model));
  ASSERT_EQ(frames.size(), 1U);
  EXPECT_EQ(frames[0].area, kFourfold);
}

TEST(GraphPicture, TheGridPartsTheAreaIntoTenths) {
  GraphModel model = ModelOf({"x"}, {}, {true, true, false});
  for (const PlotArea& area : {kDefault, kFourfold, PlotArea{7, 3, 480, 641}}) {
    model.SetArea(area);
    std::set<double> columns;
    std::set<double> rows;
    for (const GraphRule& rule : Rules(BuildPicture(model), 0xC0C0C0)) {
      const bool isRow = rule.from.row == rule.to.row;
      EXPECT_EQ(isRow ? rule.from.column : rule.from.row, isRow ? area.left : area.top);
      EXPECT_EQ(isRow ? rule.to.column : rule.to.row, isRow ? area.right : area.bottom);
      (isRow ? rows : columns).insert(isRow ? rule.from.row : rule.from.column);
    }
    ASSERT_EQ(columns.size(), 9U);
    ASSERT_EQ(rows.size(), 9U);
    int part = 0;
    for (const double column : columns) {
      ++part;
      EXPECT_EQ(column, area.left + std::floor(part * (area.right - area.left) / 10.));
    }
    part = 0;
    for (const double row : rows) {
      ++part;
      EXPECT_EQ(row, area.top + std::floor(part * (area.bottom - area.top) / 10.));
    }
  }
}

TEST(GraphPicture, WithoutGridAndAxesThereAreNoRules) {
  const GraphPicture picture = BuildPicture(ModelOf({"x"}, {1, 2, 1, 2}));
  EXPECT_TRUE(All<GraphRule>(picture).empty());
  EXPECT_TRUE(All<GraphText>(picture).empty());
}

TEST(GraphPicture, AxesStandWhereTheirFormulasPutThem) {
  struct Row {
    PlotRange range;
    Axes axes;
  };
  const Row rows[] = {
      // 229 - 229 / 20 * 10 = 114.5; 10 / 20 * 228 = 114
      {{-10, 10, -10, 10}, {114, 114}},
      // 229 - 229 / 8 * 6 = 57.25; 1 / 4 * 228 = 57
      {{-1, 3, -6, 2}, {57, 57}},
      // 229 - 229 / 3 * 1 = 152.67; 2 / 3 * 228 = 152
      {{-2, 1, -1, 2}, {152, 152}},
      // An axis on the border is not drawn.
      {{0, 10, 0, 10}, {-1, -1}},
      {{-10, 0, -10, 0}, {-1, -1}},
      {{1, 2, -1, 1}, {114, -1}},
      {{-1, 1, 1, 2}, {-1, 114}},
      {{-2, -1, -1, 1}, {114, -1}},
      {{-1e-300, 1, -1e-300, 1}, {229, 0}},
      {{-1, 1e-300, -1, 1e-300}, {0, 228}},
  };
  for (const auto& [range, axes] : rows) {
    EXPECT_EQ(AxesOf(ModelOf({"x"}, range)), axes) << range.xMin << ' ' << range.yMin;
  }
}

TEST(GraphPicture, AxesFollowTheArea) {
  GraphModel model = ModelOf({"x"});
  model.SetArea(kFourfold);
  // 966 - 916 / 20 * 10; 100 + 10 / 20 * 915 = 557.5
  EXPECT_EQ(AxesOf(model), (Axes{508, 557}));
}

TEST(GraphPicture, AxesAreLabelledInsideOfTheArea) {
  Random random(60);
  for (int i = 0; i < 2000; ++i) {
    GraphModel model = ModelOf({"x"}, {-random.Fraction() - 1e-9, random.Fraction() + 1e-9,
                                       -random.Fraction() - 1e-9, random.Fraction() + 1e-9});
    const double scale = 1 + random.Fraction() * 5;
    const PlotArea area{10, 20, 10 + static_cast<int>(229 * scale),
                        20 + static_cast<int>(260 * scale)};
    model.SetArea(area);
    const GraphPicture picture = BuildPicture(model);
    const auto x = TextOf(picture, u"x=0");
    const auto y = TextOf(picture, u"y=0");
    ASSERT_TRUE(x && y);
    for (const GraphPlace& place : {x->place, y->place}) {
      // Letters are about 12 pixels high, and three of them 20 wide.
      EXPECT_GE(place.column, area.left);
      EXPECT_LE(place.column + 20 * area.Scale(), area.right);
      EXPECT_LE(place.row, area.bottom);
      EXPECT_GE(place.row - 12 * area.Scale(), area.top);
    }
    const bool areApart = std::fabs(x->place.column - y->place.column) >= 20 * area.Scale() ||
                          std::fabs(x->place.row - y->place.row) >= 12 * area.Scale();
    EXPECT_TRUE(areApart) << model.Range().xMin << ' ' << model.Range().xMax << ' '
                          << model.Range().yMin << ' ' << model.Range().yMax;
  }
}

TEST(GraphPicture, AnAxisThatIsNotDrawnHasNoLabel) {
  const GraphPicture picture = BuildPicture(ModelOf({"x"}, {0, 10, -10, 10}));
  EXPECT_FALSE(TextOf(picture, u"x=0"));
  EXPECT_TRUE(TextOf(picture, u"y=0"));
}

TEST(GraphPicture, ACurveIsOneStrokeThroughItsPoints) {
  const GraphPicture picture = BuildPicture(ModelOf({"x"}));
  const auto strokes = All<GraphStroke>(picture);
  ASSERT_EQ(strokes.size(), 1U);
  ASSERT_EQ(strokes[0].places.size(), 230U);
  EXPECT_EQ(strokes[0].colour, 0xFF0000U);
  EXPECT_EQ(strokes[0].places[0].column, 0);
  EXPECT_EQ(strokes[0].places[0].row, 229);
  EXPECT_EQ(strokes[0].places[229].column, 229);
  EXPECT_EQ(strokes[0].places[229].row, 0);
}

TEST(GraphPicture, CurvesHaveTheirColours) {
  const auto strokes = All<GraphStroke>(BuildPicture(ModelOf({"x", "x+1", "x+2"})));
  ASSERT_EQ(strokes.size(), 3U);
  EXPECT_EQ(strokes[0].colour, 0xFF0000U);
  EXPECT_EQ(strokes[1].colour, 0x00FF00U);
  EXPECT_EQ(strokes[2].colour, 0x0000FFU);
}

TEST(GraphPicture, SamplesStandAtTheirColumnsInAnyArea) {
  GraphModel model = ModelOf({"x"});
  model.SetArea({20, 10, 499, 619});
  const auto strokes = All<GraphStroke>(BuildPicture(model));
  ASSERT_EQ(strokes.size(), 1U);
  for (const GraphPlace& place : strokes[0].places) {
    EXPECT_NEAR(place.row, 619 - (place.column - 20) * 609 / 479 - 0.5, 0.05);
  }
  EXPECT_EQ(strokes[0].places.front().column, 20);
  EXPECT_EQ(strokes[0].places.back().column, 499);
}

TEST(GraphPicture, AReciprocalIsTwoStrokes) {
  const auto strokes = All<GraphStroke>(BuildPicture(ModelOf({"1/x"})));
  ASSERT_EQ(strokes.size(), 2U);
  EXPECT_EQ(strokes[0].places.back().column, 114);
  EXPECT_EQ(strokes[0].places.back().row, 229);
  EXPECT_EQ(strokes[1].places.front().column, 115);
  EXPECT_EQ(strokes[1].places.front().row, 0);
  EXPECT_EQ(strokes[0].places.size() + strokes[1].places.size(), 230U);
}

TEST(GraphPicture, AGapParts) {
  // ln(x) and ln(-x) have no value at 0, the sample in the middle.
  const auto strokes =
      All<GraphStroke>(BuildPicture(ModelOf({"ln(abs(x))"}, {-114, 115, -10, 10})));
  ASSERT_EQ(strokes.size(), 2U);
  EXPECT_EQ(strokes[0].places.back().column, 113);
  EXPECT_EQ(strokes[1].places.front().column, 115);
  EXPECT_TRUE(All<GraphStroke>(BuildPicture(ModelOf({"ln(x)"}, {-2, -1, 0, 1}))).empty());
}

TEST(GraphPicture, WithoutLinesEachPointIsADot) {
  const GraphPicture picture = BuildPicture(ModelOf({"1/x", "ln(x)"}, {}, {false, false, false}));
  EXPECT_TRUE(All<GraphStroke>(picture).empty());
  const auto dots = All<GraphDot>(picture);
  // All 230 samples of one curve and 115 of the other, none of which is below -10.
  ASSERT_EQ(dots.size(), 230U + 115U);
  EXPECT_EQ(dots[114].colour, 0xFF0000U);
  EXPECT_EQ(dots[114].place.column, 114);
  EXPECT_EQ(dots[114].place.row, 229);
  EXPECT_EQ(dots[230].colour, 0x00FF00U);
  EXPECT_EQ(dots[230].place.column, 115);
}

GraphModel PointsModel(std::vector<DataPoint> points, const PlotRange& range = {}) {
  GraphInput input = GraphOf({"x"});
  input.range = range;
  input.options = kNothing;
  input.points = std::move(points);
  return GraphModel(std::move(input));
}

TEST(GraphPicture, ADataPointOnTheLowerBoundOfARangeTooFlatForDoubleStandsInTheLastRow) {
  const auto discs = All<GraphDisc>(BuildPicture(PointsModel({{0.5, 0}}, {0, 1, 0, 1e-310})));
  ASSERT_EQ(discs.size(), 1U);
  EXPECT_EQ(discs[0].place.row, 229);
}

TEST(GraphPicture, DataPointsAreBlueDiscsAtTheirPlaces) {
  const auto discs =
      All<GraphDisc>(BuildPicture(PointsModel({{100, 50}, {0.5, 3.5}}, {0, 229, 0, 229})));
  ASSERT_EQ(discs.size(), 2U);
  EXPECT_EQ(discs[0].colour, 0x0000FFU);
  EXPECT_EQ(discs[0].radius, 2);
  EXPECT_EQ(discs[0].place.column, 100);
  EXPECT_EQ(discs[0].place.row, 179);
  EXPECT_EQ(discs[1].place.column, 0);
  EXPECT_EQ(discs[1].place.row, 225);
}

TEST(GraphPicture, PointsOnTheBordersAreDrawnAndOutsideNot) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double above = std::nextafter(10, 11);
  const double within = std::nextafter(10, 9);
  struct Row {
    DataPoint point;
    bool isDrawn;
  };
  const Row rows[] = {
      {{-10, -10}, true},       {{10, 10}, true},           {{-10, 10}, true},
      {{within, within}, true}, {{above, 0}, false},        {{0, above}, false},
      {{-above, 0}, false},     {{0, -above}, false},       {{kInfinity, 0}, false},
      {{0, -kInfinity}, false}, {{std::nan(""), 0}, false}, {{0, std::nan("")}, false},
      {{1e300, -1e300}, false},
  };
  for (const auto& [point, isDrawn] : rows) {
    const auto discs = All<GraphDisc>(BuildPicture(PointsModel({point})));
    EXPECT_EQ(discs.size(), isDrawn ? 1U : 0U) << point.x << ' ' << point.y;
    for (const GraphDisc& disc : discs) {
      EXPECT_TRUE(disc.place.column >= 0 && disc.place.column <= 229) << point.x;
      EXPECT_TRUE(disc.place.row >= 0 && disc.place.row <= 229) << point.y;
    }
  }
}

TEST(GraphPicture, PointsStayInAnyAreaWhateverTheRange) {
  Random random(61);
  for (int i = 0; i < 3000; ++i) {
    const double x = (random.Fraction() - 0.5) * std::pow(10, random.Fraction() * 20 - 10);
    const double y = (random.Fraction() - 0.5) * std::pow(10, random.Fraction() * 20 - 10);
    const PlotRange range{x, x + random.Fraction(), y, y + random.Fraction()};
    if (RangeRefusal(range)) continue;
    GraphModel model = PointsModel({{range.xMin, range.yMax}, {range.xMax, range.yMin}}, range);
    const PlotArea area{3, 4, 103 + static_cast<int>(random.Below(900)),
                        104 + static_cast<int>(random.Below(900))};
    model.SetArea(area);
    const auto discs = All<GraphDisc>(BuildPicture(model));
    ASSERT_EQ(discs.size(), 2U);
    EXPECT_EQ(discs[0].place.column, area.left);
    EXPECT_LE(discs[0].place.row, area.top + 1);
    EXPECT_GE(discs[0].place.row, area.top);
    EXPECT_EQ(discs[1].place.column, area.right);
    EXPECT_EQ(discs[1].place.row, area.bottom);
  }
}

TEST(GraphPicture, AMillionPointsAreNoMoreDiscsThanCanBeSeen) {
  Random random(62);
  std::vector<DataPoint> points(1'000'000);
  for (DataPoint& point : points)
    point = {random.Fraction() * 20 - 10, random.Fraction() * 20 - 10};
  GraphModel model = PointsModel(std::move(points));
  EXPECT_LT(All<GraphDisc>(BuildPicture(model)).size(), 230U * 230U);
  model.SetArea({0, 0, 1079, 1499});
  EXPECT_LT(All<GraphDisc>(BuildPicture(model)).size(), 100'000U);
}

TEST(GraphPicture, RangeLabelsStandInStepsOfFifteenPixelsAtTheBottom) {
  GraphModel model = ModelOf({"x"}, {1, 2, 3, 4}, {false, true, true});
  for (const PlotArea& area : {kDefault, PlotArea{100, 50, 100 + 919, 50 + 919}}) {
    model.SetArea(area);
    const auto texts = All<GraphText>(BuildPicture(model));
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0].text, u"x min=1");
    EXPECT_EQ(texts[1].text, u"x max=2");
    EXPECT_EQ(texts[2].text, u"y min=3");
    EXPECT_EQ(texts[3].text, u"y max=4");
    const double scale = (area.right - area.left + 1) / 230.;
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_GT(texts[i].place.column, area.left);
      EXPECT_LT(texts[i].place.column, area.left + 10 * scale);
      EXPECT_NEAR(texts[3].place.row - texts[i].place.row,
                  15 * scale * (3 - static_cast<double>(i)), 1e-9);
    }
    EXPECT_LT(texts[3].place.row, area.bottom);
    EXPECT_GT(texts[3].place.row, area.bottom - 15 * scale);
  }
  model.SetArea({0, 0, 1259, 399});  // their light backings follow the smaller side
  for (const GraphText& text : All<GraphText>(BuildPicture(model)))
    EXPECT_TRUE(text.backing > 20 && text.backing < 45 && text.place.row - text.backing > 200);
}

}  // namespace
}  // namespace kav::graph_picture_test
