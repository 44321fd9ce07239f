// The range and the options of a graph, to be changed.
#pragma once

#include <optional>

#include "plotter/plotter_options_model.h"

class QWidget;

namespace kav {

/// What the user made of `options`, without a RangeRefusal; nullopt where the dialog was cancelled.
std::optional<PlotterOptions> RunPlotterOptions(QWidget* parent, const PlotterOptions& options);

}  // namespace kav
