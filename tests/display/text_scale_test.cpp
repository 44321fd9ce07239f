#include "display/text_scale.h"

#include <gtest/gtest.h>

#include <limits>

namespace kav::text_scale_test {
namespace {

TEST(TextScale, GoesInStepsOfTenFromAHalfToTwice) {
  EXPECT_EQ(NextTextScale(100, TextStep::Larger), 110);
  EXPECT_EQ(NextTextScale(100, TextStep::Smaller), 90);
  EXPECT_EQ(NextTextScale(190, TextStep::Larger), 200);
  EXPECT_EQ(NextTextScale(200, TextStep::Larger), 200);
  EXPECT_EQ(NextTextScale(60, TextStep::Smaller), 50);
  EXPECT_EQ(NextTextScale(50, TextStep::Smaller), 50);
  for (const int percent : {50, 100, 170}) EXPECT_EQ(NextTextScale(percent, TextStep::Usual), 100);
}

TEST(TextScale, AStoredNumberIsTheNearestStep) {
  struct Row {
    std::int32_t stored;
    int percent;
  };
  const Row rows[] = {
      {100, 100},
      {150, 150},
      {154, 150},
      {155, 160},
      {49, 50},
      {0, 50},
      {-100, 50},
      {201, 200},
      {std::numeric_limits<std::int32_t>::max(), 200},
      {std::numeric_limits<std::int32_t>::min(), 50},
  };
  for (const Row& row : rows)
    EXPECT_EQ(TextScaleFromSetting(row.stored), row.percent) << row.stored;
}

TEST(TextScale, ADesktopWithLargerLettersMakesTextsLarger) {
  // What desktops have without their user's doing changes nothing.
  for (const double points : {9.0, 10.0, 11.0}) EXPECT_EQ(DesktopTextShare(points), 1) << points;
  EXPECT_DOUBLE_EQ(DesktopTextShare(14), 1.4);
  EXPECT_DOUBLE_EQ(DesktopTextShare(12), 1.2);
  EXPECT_DOUBLE_EQ(DesktopTextShare(8), 0.8);
  EXPECT_DOUBLE_EQ(DesktopTextShare(40), 2);
  EXPECT_DOUBLE_EQ(DesktopTextShare(1), 0.5);
  // A desktop that gives its letters in pixels says -1.
  for (const double points : {-1.0, 0.0}) EXPECT_EQ(DesktopTextShare(points), 1) << points;
}

}  // namespace
}  // namespace kav::text_scale_test
