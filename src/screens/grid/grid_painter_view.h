// How the cells of a grid look.
#pragma once

#include <QPalette>
#include <QRect>

#include "grid/grid_model.h"

class QPainter;

namespace kav {

/// The room between a cell's edge and its text, for texts `textPixels` high.
int TextMargin(int textPixels);

Qt::Alignment TextAlignment(GridFormat format);

/// What decides on a cell's look, besides the cell. The grid must outlive it.
struct GridLook {
  const GridModel& grid;
  GridRange selection;
  GridCell focus;
  QPalette colours;
  double scale = 1;      ///< of lines
  bool hasKeys = false;  ///< whether keys go to the grid
};

/// Paints a cell, header or not, into `area`, in the font of `painter`, whose size is in pixels.
void PaintCell(QPainter& painter, const QRect& area, GridCell cell, const GridLook& look);

}  // namespace kav
