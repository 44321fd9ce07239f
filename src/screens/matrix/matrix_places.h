// Where the parts of the matrix screen stand in windows of any shape.
#pragma once

#include <QRect>
#include <QSize>
#include <functional>

#include "screens/widgets/look.h"

namespace kav {

/// Whether a window is wider than an upright screen: the matrix screen takes all of its width.
bool IsWiderThanUpright(QSize window);
/// Whether it is wide enough for the keys to stand beside the grid instead of below it.
bool IsWideForMatrices(QSize window);

struct MatrixPlaces {
  QRect body;  ///< that holds all of them
  QRect line;
  QRect result;
  QRect tabs;
  QRect grid;
  double scale = 1;         ///< of the grid at most, for a screen that is 240 pixels wide
  bool showsTexts = false;  ///< columns are as wide as their texts need, while there is room
  std::function<QRect(const QRect& spot)> keys;  ///< of a key by its dialog units
};

/// One below the other, in the units of the screen's body.
MatrixPlaces UprightPlaces(const DialogUnits& units);
/// The same in a body that is wider than an upright screen.
MatrixPlaces BroadPlaces(const QRect& body);

/// The grid on the left and the keys on the right of `body`, both below the lines.
MatrixPlaces WidePlaces(const QRect& body);

/// What the columns of a grid need to show their texts, header column included, and what they would
/// as columns of a new matrix. Both in pixels of a screen that is 240 pixels wide.
struct GridNeeds {
  int texts = 0;
  int usual = 0;
};

/// In a wide window the keys stand beside the grid, unless it has longer texts than it shows there.
MatrixPlaces PlacesIn(QSize window, const QRect& body, const GridNeeds& needs);

/// The scale of a grid of `rows` rows whose columns take `width`, in a place where columns show
/// their texts.
double ScaleOfTexts(const MatrixPlaces& places, int rows, int width);

/// The scale of a grid of `rows` by `columns` cells that are `columnWidth` wide: at most that of
/// `places`, and as much smaller as it takes to show all of them, but not so small that nobody can
/// read them.
double FittingScale(const MatrixPlaces& places, int rows, int columns, int columnWidth);

}  // namespace kav
