#include "app/window_place.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace kav::window_place_test {
namespace {

TEST(WindowPlace, PrintsFourNumbersAndMaximized) {
  EXPECT_EQ(PrintPlace({{10, 20, 300, 400}}), "10 20 300 400");
  EXPECT_EQ(PrintPlace({{-10, 0, 1, 2}, true}), "-10 0 1 2 maximized");
}

TEST(WindowPlace, ReadsWhatItPrints) {
  for (const WindowPlace& place :
       {WindowPlace{{10, 20, 300, 400}}, WindowPlace{{-1920, -30, 240, 320}, true}}) {
    EXPECT_EQ(ReadPlace(PrintPlace(place)), place);
  }
}

TEST(WindowPlace, RefusesWhatIsNoPlace) {
  for (const char* text :
       {"", " ", "1", "1 2 3", "1 2 3 4 5", "1 2 3 4 maximised", "1 2 0 4", "1 2 3 -4", "a b c d",
        "1  2 3 4", "1 2 3 1e99", "1 2 nan 4", "inf 2 3 4", "1 2 3 99999999999"}) {
    EXPECT_EQ(ReadPlace(text), std::nullopt) << text;
  }
}

TEST(WindowPlace, IsMovedOntoTheDesktopThatItOverlapsMost) {
  const std::array desktops{QRect(0, 0, 1000, 800), QRect(1000, 0, 1000, 800)};
  struct Row {
    QRect wanted;
    QRect place;
  };
  const std::vector<Row> rows{
      {{100, 100, 300, 400}, {100, 100, 300, 400}},    // lies within
      {{900, 100, 300, 400}, {1000, 100, 300, 400}},   // mostly on the second
      {{-50, 100, 300, 400}, {0, 100, 300, 400}},      // over the left edge
      {{100, 700, 300, 400}, {100, 400, 300, 400}},    // over the bottom
      {{5000, 5000, 300, 400}, {700, 400, 300, 400}},  // nowhere: the main desktop
      {{1100, 10, 5000, 90}, {1000, 10, 1000, 90}},    // too wide
      {{0, 0, 3000, 3000}, {0, 0, 1000, 800}},         // too large
  };
  for (const Row& row : rows) {
    const QRect place = MovedOntoDesktop(row.wanted, desktops);
    EXPECT_EQ(place, row.place) << place.x() << ' ' << place.y() << ' ' << place.width() << ' '
                                << place.height();
  }
}

TEST(WindowPlace, TheFrameAroundAWindowLiesWithinTheDesktopToo) {
  const std::array desktops{QRect(0, 0, 960, 540)};
  const QMargins margins(1, 20, 1, 5);
  EXPECT_EQ(PlaceInFrame({300, 0, 362, 565}, margins, desktops), QRect(300, 0, 360, 515));
  EXPECT_EQ(PlaceInFrame({700, 30, 362, 425}, margins, desktops), QRect(598, 30, 360, 400));
  EXPECT_EQ(PlaceInFrame({30, 40, 302, 425}, margins, desktops), QRect(30, 40, 300, 400));
}

TEST(WindowPlace, FirstWindowsAreInTheMiddleAndNeverLargerThanTheDesktop) {
  EXPECT_EQ(FirstPlace({0, 0, 1360, 1560}), QRect(500, 500, 360, 560));
  EXPECT_EQ(FirstPlace({0, 0, 240, 320}), QRect(0, 0, 240, 320));
  EXPECT_EQ(FirstPlace({100, 0, 1360, 320}), QRect(600, 0, 360, 320));
}

TEST(WindowPlace, AWindowGrowsInItsShapeAsFarAsTheDesktopGoes) {
  struct Row {
    QSize first;
    int percent;
    QSize grown;
    int taken;
  };
  const QSize desktop(1000, 1000);
  const std::vector<Row> rows{
      {{360, 560}, 100, {360, 560}, 100},   {{360, 560}, 150, {540, 840}, 150},
      {{360, 560}, 50, {180, 280}, 50},     {{400, 800}, 200, {500, 1000}, 125},  // no higher
      {{800, 400}, 200, {1000, 500}, 125},                                        // no wider
      {{1200, 900}, 150, {1200, 900}, 100},  // wider than the desktop already
      {{240, 320}, 50, {180, 240}, 75},      // the smallest there is
  };
  for (const Row& row : rows) {
    const GrownSize grown = Grown(row.first, row.percent, desktop);
    EXPECT_EQ(grown.size, row.grown) << row.first.width() << ' ' << row.percent;
    EXPECT_EQ(grown.percent, row.taken) << row.first.width() << ' ' << row.percent;
  }
}

}  // namespace
}  // namespace kav::window_place_test
