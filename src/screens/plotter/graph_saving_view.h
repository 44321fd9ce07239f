// The picture of a graph in a file.
#pragma once

#include <string>

#include "plotter/graph_model.h"

class QWidget;

namespace kav {

/// What a graph is saved as: pixels, or shapes of any size.
enum class GraphFile { Bmp, Png, Svg };

/// The bytes of a file with the picture of `model`, of its area and the margins around it.
std::string PrintGraph(const GraphModel& model, GraphFile file);

/// Asks for a file and writes the picture into it; says so where that cannot be done.
void SaveGraph(QWidget* parent, const GraphModel& model);

}  // namespace kav
