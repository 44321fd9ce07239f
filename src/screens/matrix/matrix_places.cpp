#include "screens/matrix/matrix_places.h"

#include <algorithm>

#include "grid/grid_model.h"
#include "line/keypad.h"
#include "matrix/matrix_edits.h"
#include "matrix/matrix_keypad.h"
#include "screens/widgets/key_screen.h"

namespace kav {
namespace {

/// Of the pixels of a screen that is 240 wide, which the widths of columns are counted in.
constexpr double kScreenPixels = 240;
/// Letters are no smaller than on that screen, and a little larger where there is room.
constexpr double kLeastScale = 1.13;
/// Of a grid that is seen whole with them.
constexpr double kLeastOfTexts = 0.87;

// Of a wide window, by its height: its width at least, the width of its keys, and the width from
// which on they are as wide as in an upright one.
constexpr double kWide = 1.33;
constexpr double kKeys = 0.65;
constexpr double kVeryWide = 1.6;
constexpr double kUprightKeys = 0.75;

/// A unit of the keys is at most so much higher than wide: their captions do not get larger with
/// their height.
constexpr double kTallest = 1.35;

/// What the grid and its tabs take of the height of an upright screen, in dialog units.
constexpr int kGridTop = kMatrixTabsPlace.y - 1;
constexpr int kGridEnd = kGridPlace.y + kGridPlace.height;

/// Where a key stands once the grid between the keys has gone.
QRect WithoutGrid(const QRect& spot) {
  return spot.y() < kGridTop ? spot : spot.translated(0, kGridTop - kGridEnd);
}

}  // namespace

bool IsWiderThanUpright(QSize window) {
  return window.width() > PortraitArea(window).width();
}

bool IsWideForMatrices(QSize window) {
  return window.width() >= kWide * window.height();
}

MatrixPlaces UprightPlaces(const DialogUnits& units) {
  MatrixPlaces places;
  places.body = units.Pixels(QRect(0, 0, kScreenWidth, kScreenHeight));
  places.line = units.Pixels(UnitsOf(kMatrixLinePlace));
  places.result = units.Pixels(UnitsOf(kMatrixResultPlace));
  places.tabs = units.Pixels(UnitsOf(kMatrixTabsPlace));
  places.grid = units.Pixels(UnitsOf(kGridPlace));
  places.scale = TextShare() * places.body.width() / kScreenPixels;
  places.keys = [units](const QRect& spot) { return units.Pixels(spot); };
  return places;
}

MatrixPlaces BroadPlaces(const QRect& body) {
  MatrixPlaces places = UprightPlaces(DialogUnits(body, {kScreenWidth, kScreenHeight}));
  // Letters go with the height, as in an upright screen.
  places.scale = TextShare() * body.height() * kUprightKeys / kScreenPixels;
  places.showsTexts = true;
  return places;
}

MatrixPlaces PlacesIn(QSize window, const QRect& body, const GridNeeds& needs) {
  if (!IsWideForMatrices(window)) return BroadPlaces(body);
  const MatrixPlaces beside = WidePlaces(body);
  const bool isSeen =
      needs.texts <= needs.usual || needs.texts * kLeastScale <= beside.grid.width();
  const MatrixPlaces broad = BroadPlaces(body);
  return isSeen || needs.texts * kLeastOfTexts > broad.grid.width() ? beside : broad;
}

MatrixPlaces WidePlaces(const QRect& body) {
  const DialogUnits all(body, {kScreenWidth, kScreenHeight});
  // As high as in an upright window, whose width goes with its height.
  const int unit = body.height() / kScreenHeight;
  const bool isVeryWide = body.width() >= kVeryWide * body.height();
  const int column = qRound(body.height() * (isVeryWide ? kUprightKeys : kKeys));
  const int firstKeys = kMatrixTabsPlace.y - 11;
  MatrixPlaces places;
  places.body = body;
  const auto across = [&](const LinePlace& place) {
    const QRect units = all.Pixels(UnitsOf(place));
    return QRect(body.left() + 3 * unit, units.top(), body.width() - 6 * unit, units.height());
  };
  places.line = across(kMatrixLinePlace);
  places.result = across(kMatrixResultPlace);
  const int top = all.Pixels(QRect(0, firstKeys, 1, 1)).top();
  const int units = kScreenHeight - firstKeys - (kGridEnd - kGridTop);
  const int room = body.bottom() + 1 - top;
  const int high = std::min(room, qRound(units * kTallest * column / kScreenWidth));
  const QRect keys(body.right() + 1 - column, body.bottom() + 1 - high, column, high);
  const DialogUnits keyUnits(keys, {kScreenWidth, units});
  const QRect left(body.left() + 3 * unit, top, keys.left() - body.left() - 3 * unit, room);
  const int tabs = all.Pixels(UnitsOf(kMatrixTabsPlace)).height();
  const int clear = keyUnits.Pixels(QRect(0, 0, 25, 1)).width();
  places.tabs = QRect(left.left(), top, left.width() - clear - unit, tabs);
  places.grid = left.adjusted(0, tabs, 0, -3 * unit);
  places.scale = TextShare() * body.height() * kUprightKeys / kScreenPixels;
  places.showsTexts = true;
  const QRect clearPlace(left.right() + 1 - clear, top, clear, tabs - std::max(1, unit / 2));
  places.keys = [keyUnits, clearPlace](const QRect& spot) {
    if (spot.y() == kMatrixTabsPlace.y) return clearPlace;
    return keyUnits.Pixels(WithoutGrid(spot).translated(0, -firstKeys));
  };
  return places;
}

double ScaleOfTexts(const MatrixPlaces& places, int rows, int width) {
  const int height = (rows + 1) * GridModel::kDefaultHeight;
  const double across = places.grid.width() / static_cast<double>(width);
  const double fitting = std::min(across, places.grid.height() / static_cast<double>(height));
  // Nobody reads even smaller letters, and rows that are not seen do not make them small.
  const double least = across >= kLeastOfTexts ? std::min(across, kLeastScale) : kLeastScale;
  return std::min(places.scale, std::max(fitting, least));
}

double FittingScale(const MatrixPlaces& places, int rows, int columns, int columnWidth) {
  const int width = kHeaderColumnWidth + columns * columnWidth;
  const int height = (rows + 1) * GridModel::kDefaultHeight;
  const double fitting = std::min(places.grid.width() / static_cast<double>(width),
                                  places.grid.height() / static_cast<double>(height));
  return std::min(places.scale, std::max(fitting, kLeastScale));
}

}  // namespace kav
