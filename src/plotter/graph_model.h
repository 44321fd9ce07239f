// The graph without its widgets: range, undo, zoom, moves, trace and the texts that they show.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "plotter/curve_sampling.h"
#include "plotter/curve_strokes.h"
#include "plotter/graph_input.h"

namespace kav {

/// The rectangle of the plot in pixels of the view, borders included; left < right, top < bottom.
/// In a plot 230 pixels wide each column has one sample.
struct PlotArea {
  int left = 0;
  int top = 0;
  int right = kSampleCount - 1;
  int bottom = kSampleCount - 1;

  /// The size of a pixel of a plot 230 pixels wide, in pixels of the view.
  double Scale() const { return (right - left + 1.) / kSampleCount; }
  /// The size of letters, by that in a plot 230 pixels wide and as high as beside all controls: a
  /// wide and low plot is not filled with them.
  double TextScale() const {
    constexpr double kHeight = 170;
    return std::min(Scale(), (bottom - top + 1.) / kHeight);
  }
  /// Whether a curve shows more than a row of pixels for each sample.
  bool IsLarge() const { return Scale() > 1; }
  /// Where sample `i`, from 0, is.
  double ColumnOfSample(double i) const { return left + i * (right - left) / (kSampleCount - 1); }

  bool operator==(const PlotArea&) const = default;
};

/// The row of pixels of a `y` in the range. Rounding never moves it out of the area.
int RowOf(const PlotRange& range, const PlotArea& area, double y);

/// A place in the view, in pixels.
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

/// What "Cal" and a tap show.
struct GraphReading {
  std::u16string x;                    ///< the text of the "X =" field
  std::vector<std::u16string> lines;   ///< of the results list
  std::vector<std::u16string> values;  ///< the number in each line; empty where there is none
  std::optional<int> selected;         ///< one of the lines, from 0
};

/// What of a reading other programs are given.
enum class ReadingPart { Point, X, Y };

/// That part in plain digits: x, the number in `line`, or both with a TAB between them. Without
/// `line` it is the first. nullopt if there is no number.
std::optional<std::u16string> CopiedReading(const GraphReading& reading, ReadingPart part,
                                            std::optional<int> line);

/// A drag is a box if it is at least so many pixels wide and high, however large the plot is.
inline constexpr double kShortestDrag = 10;

/// Why a change of the range is refused, as a text for the user; nullopt if it was made.
using ChangeRefusal = std::optional<std::u16string_view>;

class GraphModel {
 public:
  explicit GraphModel(GraphInput input);

  const GraphInput& Input() const { return input_; }
  const PlotRange& Range() const { return range_; }
  const GraphOptions& Options() const { return options_; }
  AngleUnit Angle() const { return input_.angle; }

  /// Sets where the plot is drawn.
  void SetArea(const PlotArea& area) { area_ = area; }
  const PlotArea& Area() const { return area_; }
  // The curve `index`, from 0, sampled in the range for the rows of the area; strokes are for areas
  // that are large.
  CurveRows Rows(std::size_t index) const;
  std::vector<CurveStroke> Strokes(std::size_t index) const;

  // A change keeps the range before it for Undo; so does Undo itself. A refused one changes
  // nothing.
  ChangeRefusal Change(RangeChange change);
  /// Takes range and options from the options dialog. The range that is shown already leaves Undo
  /// as it is.
  ChangeRefusal Apply(const PlotRange& range, const GraphOptions& options);
  /// Zooms to the rectangle between the ends of a drag, in any direction. Does nothing while
  /// tracing, if the drag began outside the plot, or if the rectangle is less than kShortestDrag
  /// pixels of the desktop wide or high, each of which takes `pixel` pixels of the view.
  ChangeRefusal ZoomToBox(GraphPlace from, GraphPlace to, double pixel = 1);
  bool CanUndo() const { return canUndo_; }

  /// Whether taps move the trace marker.
  bool Traces() const { return traces_; }
  void SetTraces(bool traces) { traces_ = traces; }  // NOLINT: a check box

  /// Takes the choice of the equation selector, from 0. Ignores an index without a curve.
  void SelectCurve(int index);

  int Selected() const { return selected_; }

  /// A tap; nullopt if it is outside the plot.
  std::optional<GraphReading> Tap(GraphPlace place);
  /// "Cal" on the text of the "X =" field, in which blanks mean 0; or why that text is refused.
  Expected<GraphReading, std::u16string> Calculate(std::u16string_view text);
  /// Moves the marker by `columns` samples to the right, up to the border of the plot. It starts
  /// from the nearest sample, or from the middle if there is no marker yet. nullopt if not tracing.
  std::optional<GraphReading> Step(int columns);

  /// The place of the selected curve at the traced x; nullopt if there is no marker, or if the
  /// place is outside the plot.
  std::optional<GraphPlace> Marker() const;
  /// The column of the traced x, wherever the curve is; nullopt if there is no marker, or if the
  /// column is outside the plot.
  std::optional<double> MarkerColumn() const;

  /// The bounds as labels, "x min=..." and so on; none if the option Coordinates is off.
  std::vector<std::u16string> RangeLabels() const;

  /// What the graph shows, for those who cannot see it: the curves, the data and the bounds.
  std::u16string Description() const;

 private:
  std::vector<std::u16string> Bounds() const;
  ChangeRefusal Take(const PlotRange& range);
  bool IsInPlot(GraphPlace place) const;
  double XAt(double column) const;
  GraphReading ReadPoint(GraphPlace place);
  Expected<double, std::u16string> ReadX(std::u16string_view typed,
                                         std::u16string_view refusal) const;
  GraphReading Trace(double x);
  GraphReading ReadCurves(double x, std::u16string_view shown);
  std::u16string ValueOf(std::size_t index, double x) const;

  GraphInput input_;
  PlotRange range_;
  PlotRange undo_;
  GraphOptions options_;
  PlotArea area_;
  int selected_ = 0;
  bool traces_ = false;
  bool canUndo_ = false;
  std::optional<double> tracedX_;
  std::u16string tappedX_;  ///< as the last tap showed it; empty before the first
};

}  // namespace kav
