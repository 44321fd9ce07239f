// How a grid looks.
#pragma once

#include <QPalette>
#include <QRect>

#include "screens/grid/grid_geometry_view.h"

class QPainter;

namespace kav {

/// The room between a cell's edge and its text, for texts `textPixels` high.
int TextMargin(int textPixels);

/// Where in its cell a text of `format` stands.
Qt::Alignment TextAlignment(GridFormat format);

/// What is painted besides the cells themselves.
struct GridLook {
  QRect area;  ///< all of the viewport
  QPalette colours;
  double scale = 1;       ///< of lines
  bool hasFocus = false;  ///< whether the keys come here
};

/// Paints the visible cells of `grid` in the font of `painter`, which has its size in pixels.
void PaintGrid(QPainter& painter, const GridModel& grid, const GridGeometry& geometry,
               const GridLook& look);

}  // namespace kav
