// The dialog that changes the range and the options of a graph.
#pragma once

#include <optional>

#include "plotter/plotter_options_model.h"

class QWidget;

namespace kav {

/// The range and the options that the user chose, starting from `options`; the range has no
/// RangeRefusal. nullopt if the user cancelled.
std::optional<PlotterOptions> RunPlotterOptions(QWidget* parent, const PlotterOptions& options);

}  // namespace kav
