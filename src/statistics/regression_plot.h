// The graph of a list's data and of the curve fitted to them.
#pragma once

#include <string>

#include "common/expected.h"
#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "plotter/graph_input.h"
#include "statistics/data_list.h"
#include "statistics/regression.h"

namespace kav {

struct FittedCurve {
  RegressionModel model;
  Coefficients coefficients;
};

/// The graph of `curve` and of the rows of `list`, which has two variables and at least one row.
/// Each row is one point, whatever its count. The range leaves room around the points. Failures, as
/// texts for the user: all points have the same x or the same y, the points are too far apart, a
/// coefficient is no finite number, or memory is short.
Expected<GraphInput, std::u16string> BuildRegressionPlot(const DataList& list,
                                                         const FittedCurve& curve,
                                                         DisplayFormat format, AngleUnit angle);

}  // namespace kav
