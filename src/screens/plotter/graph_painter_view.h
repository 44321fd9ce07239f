// Paints graphs, on the screen and into picture files alike.
#pragma once

#include <QImage>
#include <QSize>

#include "plotter/graph_picture.h"
#include "screens/widgets/colours.h"

class QPainter;

namespace kav {

/// The area of the plot in a picture of `size` pixels. The margins are two pixels (of a plot 230
/// pixels wide) at the left and right, and three at the top and bottom.
PlotArea AreaWithin(QSize size);

/// The size of the picture around `area`, with the margins of AreaWithin.
QSize SizeAround(const PlotArea& area);

// The colours of a picture are those of `scheme`; a saved picture is light on every screen.

/// Paints `shapes`, which were made for `area`. Places count from the upper left pixel of the
/// painter. Curves, points and discs are clipped to the area.
void PaintShapes(QPainter& painter, const GraphPicture& shapes, const PlotArea& area,
                 ColourScheme scheme = ColourScheme::Light);

/// Paints the picture of `model` and the paper below it.
void PaintGraph(QPainter& painter, const GraphModel& model,
                ColourScheme scheme = ColourScheme::Light);

/// Makes `image` the picture of `model`, in Format_RGB32. An image of the right size is drawn over.
void DrawGraph(const GraphModel& model, QImage& image, ColourScheme scheme = ColourScheme::Light);

}  // namespace kav
