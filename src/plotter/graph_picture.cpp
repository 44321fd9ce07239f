#include "plotter/graph_picture.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "plotter/disc_cover.h"
#include "plotter/equation_list.h"
#include "plotter/plotter_texts.h"

namespace kav {
namespace {

constexpr double kDiscRadius = 2;
constexpr double kMarkerRadius = 3;

// Distances of texts, in pixels of a plot 230 pixels wide.
constexpr double kLineHeight = 15;
constexpr double kTextGap = 4;
constexpr double kAxisTextWidth = 20;
constexpr double kAxisTextHeight = 12;

GraphRule Column(const PlotArea& area, int column, GraphColour colour) {
  const double x = column;
  return {{x, static_cast<double>(area.top)}, {x, static_cast<double>(area.bottom)}, colour};
}

GraphRule Row(const PlotArea& area, int row, GraphColour colour) {
  const double y = row;
  return {{static_cast<double>(area.left), y}, {static_cast<double>(area.right), y}, colour};
}

void AddGrid(const PlotArea& area, GraphPicture& picture) {
  constexpr int kParts = 10;
  for (int i = 1; i < kParts; ++i) {
    const int column = area.left + i * (area.right - area.left) / kParts;
    picture.emplace_back(Column(area, column, graph_colour::kGrid));
  }
  for (int i = 1; i < kParts; ++i) {
    const int row = area.top + i * (area.bottom - area.top) / kParts;
    picture.emplace_back(Row(area, row, graph_colour::kGrid));
  }
}

std::optional<int> XAxisRow(const PlotRange& range, const PlotArea& area) {
  if (!(range.yMax > 0 && range.yMin < 0)) return std::nullopt;
  return RowOf(range, area, 0);
}

std::optional<int> YAxisColumn(const PlotRange& range, const PlotArea& area) {
  if (!(range.xMax > 0 && range.xMin < 0)) return std::nullopt;
  const double part = -range.xMin / (range.xMax - range.xMin);
  return area.left + static_cast<int>(part * (area.right - area.left - 1));
}

/// At the right end of the axis, above it if there is room.
GraphText XAxisText(const PlotArea& area, int row) {
  const double scale = area.TextScale();
  const double above = row - kTextGap / 2 * scale;
  const bool fits = above - kAxisTextHeight * scale >= area.top;
  const double below = row + (kAxisTextHeight + kTextGap / 2) * scale;
  return {{area.right - (kAxisTextWidth + kTextGap) * scale, fits ? above : below},
          std::u16string(kXAxisLabel)};
}

/// At the upper end of the axis, or at the lower end if that would overlap `other`. Right of the
/// axis if there is room.
GraphText YAxisText(const PlotArea& area, int column, const std::optional<GraphText>& other) {
  const double scale = area.TextScale();
  const double right = column + kTextGap * scale;
  const bool fits = right + kAxisTextWidth * scale <= area.right;
  const double left = column - (kAxisTextWidth + kTextGap) * scale;
  const GraphPlace upper{fits ? right : left, area.top + (kAxisTextHeight + kTextGap / 2) * scale};
  const bool overlaps = other &&
                        std::fabs(other->place.row - upper.row) < kAxisTextHeight * scale &&
                        std::fabs(other->place.column - upper.column) < kAxisTextWidth * scale;
  const GraphPlace lower{upper.column, area.bottom - kTextGap * scale};
  return {overlaps ? lower : upper, std::u16string(kYAxisLabel)};
}

void AddAxes(const PlotRange& range, const PlotArea& area, GraphPicture& picture) {
  const auto row = XAxisRow(range, area);
  const auto column = YAxisColumn(range, area);
  if (row) picture.emplace_back(Row(area, *row, graph_colour::kAxis));
  if (column) picture.emplace_back(Column(area, *column, graph_colour::kAxis));
  std::optional<GraphText> xAxisText;
  if (row) xAxisText = XAxisText(area, *row);
  if (xAxisText) picture.emplace_back(*xAxisText);
  if (column) picture.emplace_back(YAxisText(area, *column, xAxisText));
}

GraphPlace PlaceOf(const PlotArea& area, const CurveRows& rows, std::size_t i) {
  return {area.ColumnOfSample(static_cast<double>(i)), static_cast<double>(*rows[i])};
}

void AddStrokes(const PlotArea& area, const CurveRows& rows, GraphColour colour,
                GraphPicture& picture) {
  GraphStroke stroke{{}, colour};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows.IsJoinedToNext(i)) {
      stroke.places.push_back(PlaceOf(area, rows, i));
    } else if (!stroke.places.empty()) {
      stroke.places.push_back(PlaceOf(area, rows, i));
      picture.emplace_back(std::exchange(stroke, {{}, colour}));
    }
  }
}

void AddStrokes(const PlotArea& area, const std::vector<CurveStroke>& strokes, GraphColour colour,
                GraphPicture& picture) {
  for (const CurveStroke& stroke : strokes) {
    GraphStroke painted{{}, colour};
    painted.places.reserve(stroke.size());
    for (const auto& [sample, row] : stroke) {
      painted.places.push_back({area.ColumnOfSample(sample), row});
    }
    picture.emplace_back(std::move(painted));
  }
}

void AddDots(const PlotArea& area, const CurveRows& rows, GraphColour colour,
             GraphPicture& picture) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i]) picture.emplace_back(GraphDot{PlaceOf(area, rows, i), colour});
  }
}

void AddCurves(const GraphModel& model, GraphPicture& picture) {
  const PlotArea& area = model.Area();
  for (std::size_t i = 0; i < model.Input().curves.size(); ++i) {
    const GraphColour colour =
        graph_colour::kCurves[PlaceOfLabel(model.Input().curves[i].label, i)];
    if (!model.Options().hasLines) {
      AddDots(area, model.Rows(i), colour, picture);
    } else if (area.IsLarge()) {
      AddStrokes(area, model.Strokes(i), colour, picture);
    } else {
      AddStrokes(area, model.Rows(i), colour, picture);
    }
  }
}

void AddDiscs(const GraphModel& model, GraphPicture& picture) {
  const std::vector<DataPoint>& points = model.Input().points;
  if (points.empty()) return;
  const PlotRange& range = model.Range();
  const PlotArea& area = model.Area();
  DiscCover cover(area, kDiscRadius * area.Scale());
  for (const auto& [x, y] : points) {
    const bool isInside = x >= range.xMin && x <= range.xMax && y >= range.yMin && y <= range.yMax;
    if (!isInside) continue;
    const double part = (x - range.xMin) / (range.xMax - range.xMin);
    const int column = area.left + static_cast<int>(part * (area.right - area.left));
    const int row = RowOf(range, area, y);
    if (!cover.Add(column, row)) continue;
    const GraphPlace place{static_cast<double>(column), static_cast<double>(row)};
    picture.emplace_back(GraphDisc{place, kDiscRadius, graph_colour::kDisc});
  }
}

void AddRangeLabels(const GraphModel& model, GraphPicture& picture) {
  const PlotArea& area = model.Area();
  const double scale = area.TextScale();
  const std::vector<std::u16string> labels = model.RangeLabels();
  double row =
      area.bottom - kTextGap * scale - static_cast<double>(labels.size()) * kLineHeight * scale;
  for (const std::u16string& label : labels) {
    row += kLineHeight * scale;
    picture.emplace_back(
        GraphText{{area.left + kTextGap * scale, row}, label, kLineHeight * scale});
  }
}

}  // namespace

GraphPicture BuildPicture(const GraphModel& model) {
  GraphPicture picture{GraphFrame{model.Area()}};
  if (model.Options().hasGrid) AddGrid(model.Area(), picture);
  AddAxes(model.Range(), model.Area(), picture);
  AddCurves(model, picture);
  AddDiscs(model, picture);
  AddRangeLabels(model, picture);
  return picture;
}

GraphPicture BuildMarker(const GraphModel& model) {
  GraphPicture picture;
  const auto column = model.MarkerColumn();
  if (!column) return picture;
  const PlotArea& area = model.Area();
  const GraphPlace top{*column, static_cast<double>(area.top)};
  const GraphPlace bottom{*column, static_cast<double>(area.bottom)};
  picture.emplace_back(GraphStroke{{top, bottom}, graph_colour::kMarker});
  if (const auto place = model.Marker()) {
    const GraphPlace left{static_cast<double>(area.left), place->row};
    const GraphPlace right{static_cast<double>(area.right), place->row};
    picture.emplace_back(GraphStroke{{left, right}, graph_colour::kMarker});
    picture.emplace_back(GraphDisc{*place, kMarkerRadius, graph_colour::kMarker});
  }
  return picture;
}

}  // namespace kav
