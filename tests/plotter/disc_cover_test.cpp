#include "plotter/disc_cover.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "support/effort.h"
#include "support/random.h"

namespace kav::disc_cover_test {
namespace {

using test::Random;
using test::Tries;

constexpr PlotArea kArea{0, 0, 229, 229};

TEST(BitGrid, SetsAndTellsRunsOfBits) {
  Random random(57);
  constexpr std::size_t kWidth = 200;
  constexpr std::size_t kHeight = 3;
  BitGrid grid(kWidth, kHeight);
  std::vector<std::vector<bool>> plain(kHeight, std::vector<bool>(kWidth));
  for (int i = 0; i < Tries(20000); ++i) {
    const std::size_t row = random.Below(kHeight);
    const std::size_t first = random.Below(kWidth);
    const std::size_t last = first + random.Below(std::min<std::size_t>(kWidth - first, 90));
    const auto begin = plain[row].begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = plain[row].begin() + static_cast<std::ptrdiff_t>(last) + 1;
    ASSERT_EQ(grid.AreSet(row, first, last), std::all_of(begin, end, [](bool bit) { return bit; }))
        << row << ' ' << first << ' ' << last;
    if (i % 100 != 0) continue;
    grid.Set(row, first, last);
    std::fill(begin, end, true);
  }
}

TEST(BitGrid, RowsAreApart) {
  BitGrid grid(64, 2);
  grid.Set(0, 0, 63);
  EXPECT_TRUE(grid.AreSet(0, 0, 63));
  EXPECT_FALSE(grid.AreSet(1, 0, 0));
  BitGrid narrow(1, 2);
  narrow.Set(1, 0, 0);
  EXPECT_FALSE(narrow.AreSet(0, 0, 0));
}

TEST(DiscCover, ADiscIsSeenOnce) {
  DiscCover cover(kArea, 2);
  EXPECT_TRUE(cover.Add(100, 100));
  EXPECT_FALSE(cover.Add(100, 100));
  EXPECT_TRUE(cover.Add(101, 100));
  EXPECT_TRUE(cover.Add(100, 101));
  EXPECT_FALSE(cover.Add(101, 100));
}

TEST(DiscCover, CornersOfTheAreaAreTaken) {
  DiscCover cover({-5, -7, 3, 4}, 9.5);
  EXPECT_TRUE(cover.Add(-5, -7));
  EXPECT_TRUE(cover.Add(3, -7));
  EXPECT_TRUE(cover.Add(-5, 4));
  EXPECT_TRUE(cover.Add(3, 4));
}

TEST(DiscCover, AmidstItsNeighboursADiscIsNotSeen) {
  // Discs of radius 2 on the eight pixels around it, and on those around these, cover all of the
  // disc in the middle.
  DiscCover cover(kArea, 2);
  for (int row = 98; row <= 102; ++row) {
    for (int column = 98; column <= 102; ++column) {
      const bool isMiddle = row == 100 && column == 100;
      if (!isMiddle) cover.Add(column, row);
    }
  }
  EXPECT_FALSE(cover.Add(100, 100));
}

/// Whether a disc holds a point, whose distance from the middle of pixel (0, 0) is in pixels.
bool IsInDisc(double x, double y, std::pair<int, int> centre, double radius) {
  const double dx = x - centre.first;
  const double dy = y - centre.second;
  return dx * dx + dy * dy <= radius * radius;
}

TEST(DiscCover, WhatItTurnsAwayChangesNoPointOfThePicture) {
  Random random(58);
  for (const double radius : {0.3, 1.0, 2.0, 2.5, 4.17, 9.4}) {
    const PlotArea area{0, 0, 30, 20};
    DiscCover cover(area, radius);
    std::vector<std::pair<int, int>> seen;
    int turnedAway = 0;
    for (int i = 0; i < 600; ++i) {
      const std::pair<int, int> centre{static_cast<int>(random.Below(31)),
                                       static_cast<int>(random.Below(21))};
      if (cover.Add(centre.first, centre.second)) {
        seen.push_back(centre);
        continue;
      }
      ++turnedAway;
      for (int k = 0; k < 200; ++k) {
        const double x = centre.first + (random.Fraction() * 2 - 1) * radius;
        const double y = centre.second + (random.Fraction() * 2 - 1) * radius;
        if (!IsInDisc(x, y, centre, radius)) continue;
        ASSERT_TRUE(std::any_of(seen.begin(), seen.end(),
                                [&](const auto& other) { return IsInDisc(x, y, other, radius); }))
            << radius << ' ' << x << ' ' << y;
      }
    }
    EXPECT_GT(turnedAway, 0) << radius;
  }
}

TEST(DiscCover, NoMoreAreSeenThanTheAreaHasRoomFor) {
  Random random(59);
  const PlotArea area{0, 0, 1079, 1079};
  DiscCover cover(area, 9.4);
  int seen = 0;
  for (int i = 0; i < 300'000; ++i) {
    if (cover.Add(static_cast<int>(random.Below(1080)), static_cast<int>(random.Below(1080)))) {
      ++seen;
    }
  }
  // About 250'000 pixels of the million are hit; the discs cover the area long before.
  EXPECT_LT(seen, 60'000);
  EXPECT_GT(seen, 1080 * 1080 / 300);
}

}  // namespace
}  // namespace kav::disc_cover_test
