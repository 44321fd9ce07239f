// Paints graphs: the screen and picture files have one look.
#pragma once

#include <QImage>
#include <QSize>

#include "plotter/graph_picture.h"

class QPainter;

namespace kav {

/// The plot in a picture of `size` pixels: two pixels (of a plot 230 pixels wide) from its left and
/// right, three from its top and bottom.
PlotArea AreaWithin(QSize size);

/// The size of the picture around `area`, with the margins of AreaWithin.
QSize SizeAround(const PlotArea& area);

/// Paints `shapes`, made for `area`; the pixel (0, 0) is the upper left one of the painter. Curves,
/// points and discs end at the area.
void PaintShapes(QPainter& painter, const GraphPicture& shapes, const PlotArea& area);

/// Paints the picture of `model` and the paper below it.
void PaintGraph(QPainter& painter, const GraphModel& model);

/// Makes `image` the picture of `model`, in Format_RGB32. One of the right size is used again.
void DrawGraph(const GraphModel& model, QImage& image);

}  // namespace kav
