// A graph's shapes as the text of an SVG file.
#pragma once

#include <string>

#include "plotter/graph_picture.h"

namespace kav {

/// What an SVG file is besides its shapes.
struct SvgPage {
  int width = 0;  ///< in pixels
  int height = 0;
  PlotArea area;               ///< that the shapes were made for; curves and discs end there
  std::u16string title;        ///< both are left out if they are empty
  std::u16string description;  ///< for those who cannot see the picture
};

/// The shapes in their order on white paper, in UTF-8. The same shapes always give the same bytes.
std::string PrintSvg(const GraphPicture& shapes, const SvgPage& page);

/// The file that the picture of `model` is saved as: the labels of its curves are the title.
std::string PrintGraphSvg(const GraphModel& model);

}  // namespace kav
