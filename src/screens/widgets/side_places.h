// The places of a screen and of what stands beside it in a wide window.
#pragma once

#include <QRect>
#include <QSize>

namespace kav {

/// What a screen does with the room that is left beside it.
enum class SideNeighbour {
  Column,  ///< it is a column as high as the window, with the rest of the room beside it
  Sheet    ///< it uses all the room that what stands beside it leaves
};

/// The parts of a window that the screen and what stands beside it take.
struct SidePlaces {
  QRect screen;
  QRect side;  ///< empty: there is no room for it
};
SidePlaces PlacesBeside(QSize window, SideNeighbour neighbour);

}  // namespace kav
