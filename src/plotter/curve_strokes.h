// The curve of a formula as strokes, for plots larger than one with a sample in each column.
#pragma once

#include <vector>

#include "engine/calc_modes.h"
#include "engine/formula_checker.h"
#include "plotter/curve_sampling.h"
#include "plotter/plot_range.h"

namespace kav {

/// A place of a curve: its sample, counted as those of CurveRows are, and its row, of which whole
/// numbers are the centres of pixels. Both have fractions.
struct CurvePlace {
  double sample;
  double row;
};
/// Places joined by straight lines, at least two.
using CurveStroke = std::vector<CurvePlace>;

/// Follows the curve as SampleCurve does, with breaks and borders of the same rules, but with
/// `parts` (1 or more) samples from one of the kSampleCount to the next, and with rows that keep
/// their fractions. Places that a straight line between others passes, nearer than can be seen, are
/// left out.
std::vector<CurveStroke> SampleStrokes(const CheckedFormula& formula, const PlotRange& range,
                                       AngleUnit unit, PlotRows rows, int parts);

}  // namespace kav
