#include "plotter/value_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

namespace kav::value_table_test {
namespace {

TEST(ValueTableTest, PlacesAreTheDecimalsThatWereMeant) {
  const TablePlaces tenths{-1, 1, 0.1};
  ASSERT_EQ(TableRows(tenths), 21U);
  EXPECT_EQ(TablePlace(tenths, 0), -1);
  EXPECT_EQ(TablePlace(tenths, 3), -0.7);
  EXPECT_EQ(TablePlace(tenths, 10), 0);
  EXPECT_EQ(TablePlace(tenths, 13), 0.3);
  EXPECT_EQ(TablePlace(tenths, 20), 1);
}

TEST(ValueTableTest, TheLastPlaceIsMetOnlyIfStepsLeadThere) {
  EXPECT_EQ(TableRows({0, 1, 0.3}), 4U);
  EXPECT_EQ(TableRows({0, 0.9, 0.3}), 4U);
  EXPECT_EQ(TableRows({2, 2, 1}), 1U);
  EXPECT_EQ(TableRows({3, 1, -1}), 3U);
}

TEST(ValueTableTest, StepsThatLeadNowhereHaveNoTable) {
  EXPECT_FALSE(TableRows({0, 1, -1}));
  EXPECT_FALSE(TableRows({0, 1, 0}));
  EXPECT_FALSE(TableRows({0, 1, std::nan("")}));
  EXPECT_EQ(TableRows({0, 999999, 1}), kMostTableRows);
  EXPECT_FALSE(TableRows({0, 1000000, 1}));
}

}  // namespace
}  // namespace kav::value_table_test
