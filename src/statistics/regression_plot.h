// The data of a list and the curve fitted to them, as a graph.
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

/// The rows of `list`, which has two variables and at least one row, as points, whatever their
/// counts, and `curve` through them, in a range that leaves room around the points. The message to
/// be told where the points do not spread in x or in y, or are too far apart, and where the curve
/// has no equation, because a coefficient is no finite number.
Expected<GraphInput, std::u16string> BuildRegressionPlot(const DataList& list,
                                                         const FittedCurve& curve,
                                                         DisplayFormat format, AngleUnit angle);

}  // namespace kav
