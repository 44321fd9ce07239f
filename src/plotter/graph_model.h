// The graph without its pixels: range, undo, zoom, moves, trace and what they say.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "plotter/curve_sampling.h"
#include "plotter/graph_input.h"

namespace kav {

/// The rectangle of the plot in pixels of the view, both borders included, left < right and
/// top < bottom. Sample i stands at left + i * (right - left) / (kSampleCount - 1); a plot 230
/// pixels wide has one a column.
struct PlotArea {
  int left = 0;
  int top = 0;
  int right = kSampleCount - 1;
  int bottom = kSampleCount - 1;

  /// How many pixels of the view are one of a plot 230 pixels wide.
  double Scale() const { return (right - left + 1.) / kSampleCount; }
  double ColumnOfSample(double i) const { return left + i * (right - left) / (kSampleCount - 1); }

  bool operator==(const PlotArea&) const = default;
};

/// The row of pixels in which `y`, which is in the range, stands: never beyond the area for want of
/// a digit.
int RowOf(const PlotRange& range, const PlotArea& area, double y);

/// A place of the view in pixels.
struct GraphPlace {
  double column;
  double row;
};

/// The changes of the range that menus and keys offer.
enum class RangeChange {
  MoveLeft,
  MoveRight,
  MoveUp,
  MoveDown,
  ZoomIn,
  ZoomOut,
  Reset,
  Undo,
};

/// What "Cal" and a tap show: the results list, and which of its lines is selected.
struct GraphReading {
  std::u16string x;  ///< for the "X =" field
  std::vector<std::u16string> lines;
  std::optional<int> selected;
  std::optional<double> xValue;  ///< where the marker stands; nullopt hides it
};

/// What is told where a range was refused; all is as it was then.
using RangeOutcome = std::optional<std::u16string_view>;

class GraphModel {
 public:
  explicit GraphModel(GraphInput input);

  const GraphInput& Input() const { return input_; }
  const PlotRange& Range() const { return range_; }
  const GraphOptions& Options() const { return options_; }

  /// Where the plot is drawn; the curves are sampled anew for its rows.
  void SetArea(const PlotArea& area);
  const PlotArea& Area() const { return area_; }
  /// The rows of curve `index`.
  const CurveRows& Rows(std::size_t index) const { return rows_[index]; }

  // Each takes the range before it as the one that Undo restores, Undo itself as well; a refused
  // one leaves all alone.
  RangeOutcome Change(RangeChange change);
  /// The range and the options of the options dialog. The same range again leaves Undo as it is.
  RangeOutcome Apply(const PlotRange& range, const GraphOptions& options);
  /// The rectangle between two places of a drag, in any direction; nothing while tracing, where it
  /// began outside the plot, or where it is less than 10 pixels (of a plot 230 pixels wide) wide or
  /// high.
  RangeOutcome ZoomToBox(GraphPlace from, GraphPlace to);
  bool CanUndo() const { return canUndo_; }

  /// Whether taps trace.
  bool Traces() const { return traces_; }
  void SetTraces(bool traces) { traces_ = traces; }  // NOLINT: a check box

  /// The curve that the equation selector names, from 0; an index of none is ignored.
  void SelectCurve(int index);
  int SelectedCurve() const { return selected_; }

  /// A tap: nullopt outside of the plot.
  std::optional<GraphReading> Tap(GraphPlace place);
  /// "Cal" on the text of the "X =" field, empty for 0; why it is no number otherwise.
  Expected<GraphReading, std::u16string> Calculate(std::u16string_view text);
  /// A step of the marker by `columns` samples to the right, while tracing: from the sample next to
  /// it, or from the middle where there is no marker yet, and no further than the plot goes.
  std::optional<GraphReading> Step(int columns);

  /// The marker: where the traced x stands, and on the selected curve. nullopt while there is none,
  /// and where it is outside of the plot or the curve is.
  std::optional<GraphPlace> Marker() const;
  /// The column of the traced x, wherever the curve is; nullopt while there is none, and where it
  /// is outside of the plot.
  std::optional<double> MarkerColumn() const;

  /// The label lines "x min=..." and so on; empty without Coordinates.
  std::vector<std::u16string> RangeLabels() const;

 private:
  RangeOutcome Take(const PlotRange& range);
  void Sample();
  bool IsInPlot(GraphPlace place) const;
  double XAt(double column) const;
  GraphReading ReadPoint(GraphPlace place) const;
  GraphReading Trace(double x);
  GraphReading ReadCurves(double x, std::u16string_view shown);
  std::u16string ValueLine(std::size_t index, double x) const;

  GraphInput input_;
  PlotRange range_;
  PlotRange undo_;
  GraphOptions options_;
  PlotArea area_;
  std::array<CurveRows, kMostCurves> rows_;
  int selected_ = 0;
  bool traces_ = false;
  bool canUndo_ = false;
  std::optional<double> tracedX_;
};

}  // namespace kav
