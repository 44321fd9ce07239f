// The graph on the screen.
#pragma once

#include "plotter/graph_input.h"

class QWidget;

namespace kav {

/// Shows the graph until it is closed. Nothing of `input` needs to outlive the call.
void RunGraphView(QWidget* parent, GraphInput input);

}  // namespace kav
