// Where the parts of the matrix screen stand in windows of any shape.
#pragma once

#include <QRect>
#include <QSize>
#include <functional>

#include "screens/widgets/look.h"

namespace kav {

/// Whether a window is wide enough for the keys to stand beside the grid instead of below it.
bool IsWideForMatrices(QSize window);

struct MatrixPlaces {
  QRect line;
  QRect result;
  QRect tabs;
  QRect grid;
  double scale = 1;  ///< of the grid at most, for a screen that is 240 pixels wide
  std::function<QRect(const QRect& spot)> keys;  ///< of a key by its dialog units
};

/// One below the other, in the units of the screen's body.
MatrixPlaces UprightPlaces(const DialogUnits& units);

/// The grid on the left and the keys on the right of `body`, both below the lines.
MatrixPlaces WidePlaces(const QRect& body);

/// The scale of a grid of `rows` by `columns` cells that are `columnWidth` wide: at most that of
/// `places`, and as much smaller as it takes to show all of them, but not so small that nobody can
/// read them.
double FittingScale(const MatrixPlaces& places, int rows, int columns, int columnWidth);

}  // namespace kav
