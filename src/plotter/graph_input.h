// The curves, data and options that a graph is opened with.
#pragma once

#include <string>
#include <vector>

#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "engine/formula_checker.h"
#include "plotter/plot_range.h"

namespace kav {

/// A curve y = f(x). The label is one of kCurvePrefixes and the equation, as "R:F1(X)=sin(x)".
struct GraphCurve {
  std::u16string label;
  CheckedFormula formula;
};

/// A pair of data, to be marked in the graph.
struct DataPoint {
  double x;
  double y;

  bool operator==(const DataPoint&) const = default;
};

struct GraphOptions {
  bool hasGrid = true;
  bool hasLines = true;        ///< else a curve is drawn as points
  bool hasCoordinates = true;  ///< the labels with the bounds of the range

  bool operator==(const GraphOptions&) const = default;
};

inline constexpr std::size_t kMostCurves = 3;

struct GraphInput {
  std::vector<GraphCurve> curves;  ///< 1 to kMostCurves
  PlotRange range;                 ///< one without a RangeRefusal
  AngleUnit angle = AngleUnit::Degrees;
  GraphOptions options;
  DisplayFormat format;           ///< of the numbers that the graph shows
  std::vector<DataPoint> points;  ///< the function plotter has none
};

/// What a screen asks for that has a graph to show.
struct OpenGraph {
  GraphInput input;
};

}  // namespace kav
