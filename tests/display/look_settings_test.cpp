#include "display/look_settings.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

namespace kav::look_settings_test {
namespace {

using StoredInteger = SettingKey<std::int32_t>;

void PutInteger(SettingsStore& store, std::string_view name, std::int32_t value) {
  store.Set(StoredInteger{"Config", name, 0}, value);
}

TEST(LookSettings, FirstStartHasTheColoursOfTheDesktopAndLiveResults) {
  const LookSettings settings = LoadLookSettings(MemorySettingsStore());
  EXPECT_EQ(settings.colours, ColourChoice::System);
  EXPECT_TRUE(settings.hasLiveResult);
}

TEST(LookSettings, EachNumberStandsForItsColoursAndUnknownOnesForTheDesktops) {
  const std::vector<std::pair<std::int32_t, ColourChoice>> rows{
      {0, ColourChoice::System},
      {1, ColourChoice::Light},
      {2, ColourChoice::Dark},
      {3, ColourChoice::HighContrast},
      {4, ColourChoice::System},
      {-1, ColourChoice::System},
      {std::numeric_limits<std::int32_t>::max(), ColourChoice::System},
      {std::numeric_limits<std::int32_t>::min(), ColourChoice::System},
  };
  for (const auto& [stored, colours] : rows) {
    MemorySettingsStore store;
    PutInteger(store, "Colour Scheme", stored);
    EXPECT_EQ(LoadLookSettings(store).colours, colours) << stored;
  }
}

TEST(LookSettings, LiveResultsAreOffAtZeroOnly) {
  for (const std::int32_t stored : {1, 2, -1, 0}) {
    MemorySettingsStore store;
    PutInteger(store, "Live Result", stored);
    EXPECT_EQ(LoadLookSettings(store).hasLiveResult, stored != 0) << stored;
  }
}

TEST(LookSettings, WhatIsStoredIsLoaded) {
  MemorySettingsStore store;
  StoreLookSettings({ColourChoice::HighContrast, false}, store);
  EXPECT_EQ(store.Get(StoredInteger{"Config", "Colour Scheme", -1}), 3);
  EXPECT_EQ(store.Get(StoredInteger{"Config", "Live Result", -1}), 0);
  const LookSettings settings = LoadLookSettings(store);
  EXPECT_EQ(settings.colours, ColourChoice::HighContrast);
  EXPECT_FALSE(settings.hasLiveResult);
}

}  // namespace
}  // namespace kav::look_settings_test
