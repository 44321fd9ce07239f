// Why curves are not seen.
#pragma once

#include "plotter/graph_model.h"

namespace kav {

/// A line for each curve that the engine refuses at every sample of the range, with what it says at
/// the first. A curve with gaps only, or beside the plot, has none.
GraphReading EmptyCurves(const GraphInput& input);

}  // namespace kav
