// Saves the picture of a graph.
#pragma once

#include <string>

#include "plotter/graph_model.h"

class QWidget;

namespace kav {

/// What a graph is saved as: pixels, or shapes of any size.
enum class GraphFile { Bmp, Png, Svg, Pdf };

/// The bytes of a file with the picture of `model`: its area and the margins of AreaWithin. A BMP
/// has 24 bits a pixel and is not compressed.
std::string PrintGraph(const GraphModel& model, GraphFile file);

/// Puts the picture of `model` on the clipboard.
void CopyGraph(const GraphModel& model);

/// Asks the user for a file and saves the picture in it. Tells the user if that fails.
void SaveGraph(QWidget* parent, const GraphModel& model);

}  // namespace kav
