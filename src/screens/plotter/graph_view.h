// The graph on the screen.
#pragma once

#include "plotter/graph_input.h"

class QWidget;

namespace kav {

/// Shows the graph until the user closes it.
void RunGraphView(QWidget* parent, GraphInput input);

}  // namespace kav
