#include "screens/widgets/side_places.h"

#include <QtGlobal>
#include <algorithm>

namespace kav {
namespace {

// By the height of the window: the width of a column, and those of what stands beside one. Rows
// of a history that are wider hold a line and its answer too far apart to be seen together.
constexpr double kColumnShare = 0.75;
constexpr double kLeastShare = 0.38;
constexpr double kMostShare = 1.05;
/// The same of a sheet that has room for all it shows, and of the widest that stands beside one.
constexpr double kSheet = 1.34;
constexpr double kSheetShare = 0.6;

}  // namespace

SidePlaces PlacesBeside(QSize window, SideNeighbour neighbour) {
  const int height = window.height();
  const int column = qRound(height * kColumnShare);
  const bool isColumn = neighbour == SideNeighbour::Column;
  const int least = qRound(height * kLeastShare);
  if (window.width() < column + least) return {QRect(QPoint(), window), {}};
  const int spare = window.width() - (isColumn ? column : qRound(height * kSheet));
  const int width =
      std::clamp(spare, least, qRound(height * (isColumn ? kMostShare : kSheetShare)));
  const int rest = window.width() - width;
  if (!isColumn) return {QRect(0, 0, rest, height), QRect(rest, 0, width, height)};
  const int left = (rest - column) / 2;
  return {QRect(left, 0, column, height), QRect(left + column, 0, width, height)};
}

}  // namespace kav
