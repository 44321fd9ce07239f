#include "statistics/row_buttons.h"

#include <gtest/gtest.h>

#include <string>

namespace kav::row_buttons_test {
namespace {

/// The groups that are enabled: S for a selection, R for rows, V for values.
std::string Enabled(const RowButtons& buttons) {
  std::string enabled;
  if (buttons.Allow(StatisticsKey::Edit)) enabled += 'S';
  if (buttons.Allow(StatisticsKey::Clear)) enabled += 'R';
  if (buttons.Allow(StatisticsKey::SumX)) enabled += 'V';
  return enabled;
}

TEST(RowButtons, AnEmptyListHasWhatNeedsNoRows) {
  const RowButtons buttons;
  EXPECT_EQ(Enabled(buttons), "");
  for (const auto key : {StatisticsKey::Add, StatisticsKey::Load, StatisticsKey::MemoryMenu,
                         StatisticsKey::Ok, StatisticsKey::Cancel}) {
    EXPECT_TRUE(buttons.Allow(key));
  }
}

TEST(RowButtons, OneRowCanBeSavedAndTwoHaveResults) {
  RowButtons buttons;
  buttons.AfterInserting(0, 1);
  EXPECT_EQ(Enabled(buttons), "R");
  buttons.AfterInserting(1, 2);
  EXPECT_EQ(Enabled(buttons), "RV");
  buttons.AfterErasing(1);
  EXPECT_EQ(Enabled(buttons), "R");
  buttons.AfterErasing(0);
  EXPECT_EQ(Enabled(buttons), "");
  buttons.AfterInserting(0, 5);
  EXPECT_EQ(Enabled(buttons), "RV");
}

TEST(RowButtons, OnlyASelectionHasWhatWorksOnOne) {
  RowButtons buttons;
  buttons.AfterInserting(0, 3);
  buttons.AfterSelecting(true);
  EXPECT_EQ(Enabled(buttons), "SRV");
  EXPECT_TRUE(buttons.Allow(StatisticsKey::Delete));
  EXPECT_TRUE(buttons.Allow(StatisticsKey::Save));
  EXPECT_TRUE(buttons.Allow(StatisticsKey::Products));
  buttons.AfterSelecting(false);
  EXPECT_EQ(Enabled(buttons), "RV");
}

TEST(RowButtons, AnEditEndsWithItsRowSelected) {
  RowButtons buttons;
  buttons.AfterEditing();
  EXPECT_EQ(Enabled(buttons), "SR");
}

TEST(RowButtons, OfALoadedListCompleteRowsCount) {
  RowButtons buttons;
  buttons.AfterEditing();
  buttons.AfterLoading(2);
  EXPECT_EQ(Enabled(buttons), "RV");
  buttons.AfterLoading(1);
  EXPECT_EQ(Enabled(buttons), "R");
  buttons.AfterLoading(0);
  EXPECT_EQ(Enabled(buttons), "");
}

}  // namespace
}  // namespace kav::row_buttons_test
