#include "screens/widgets/side_places.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace kav::test::side_places_test {
namespace {

struct Row {
  QSize window;
  QRect screen;
  QRect side;
};

template <std::size_t count>
void ExpectPlaces(SideNeighbour neighbour, const Row (&rows)[count]) {
  for (const Row& row : rows) {
    const SidePlaces places = PlacesBeside(row.window, neighbour);
    EXPECT_EQ(places.screen, row.screen) << row.window.width() << 'x' << row.window.height();
    EXPECT_EQ(places.side, row.side) << row.window.width() << 'x' << row.window.height();
  }
}

TEST(SidePlaces, AWindowWithoutRoomIsTheScreensAlone) {
  const Row rows[] = {{{240, 320}, {0, 0, 240, 320}, {}},
                      {{360, 560}, {0, 0, 360, 560}, {}},
                      {{813, 720}, {0, 0, 813, 720}, {}}};
  ExpectPlaces(SideNeighbour::Column, rows);
  ExpectPlaces(SideNeighbour::Sheet, rows);
}

/// Three quarters of the height are the column's, and 0.38 to 1.05 of it what is beside; both
/// stand in the middle of what is wider.
TEST(SidePlaces, BesideAColumnIsTheRestOfTheWindow) {
  ExpectPlaces(SideNeighbour::Column, {{{814, 720}, {0, 0, 540, 720}, {540, 0, 274, 720}},
                                       {{1280, 720}, {0, 0, 540, 720}, {540, 0, 740, 720}},
                                       {{2000, 720}, {352, 0, 540, 720}, {892, 0, 756, 720}}});
}

/// A sheet has room for all it shows if it is 1.34 times as wide as high.
TEST(SidePlaces, ASheetTakesAllThatIsNotBesideIt) {
  ExpectPlaces(SideNeighbour::Sheet, {{{814, 720}, {0, 0, 540, 720}, {540, 0, 274, 720}},
                                      {{1280, 720}, {0, 0, 965, 720}, {965, 0, 315, 720}},
                                      {{2000, 720}, {0, 0, 1568, 720}, {1568, 0, 432, 720}}});
}

}  // namespace
}  // namespace kav::test::side_places_test
