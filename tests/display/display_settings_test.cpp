#include "display/display_settings.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace kav::display_settings_test {
namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

using StoredInteger = SettingKey<std::int32_t>;

void PutInteger(SettingsStore& store, std::string_view name, std::int32_t value) {
  store.Set(StoredInteger{"Config", name, 0}, value);
}

std::int32_t Stored(const SettingsStore& store, std::string_view name) {
  return store.Get(StoredInteger{"Config", name, -12345});
}

TEST(DisplaySettings, FirstStartHasTheDefaults) {
  const DisplaySettings settings = LoadDisplaySettings(MemorySettingsStore());
  EXPECT_EQ(settings.normal.type, DisplayType::Thousands);
  EXPECT_EQ(settings.normal.precision, 7);
  EXPECT_EQ(settings.matrix.type, DisplayType::FloatingPoint);
  EXPECT_EQ(settings.matrix.precision, 12);
  EXPECT_EQ(settings.matrixRows, 3);
  EXPECT_EQ(settings.matrixColumns, 3);
  EXPECT_EQ(settings.alignment, CellAlignment::Left);
  EXPECT_EQ(settings.columnWidth, 60);
}

TEST(DisplaySettings, IntegersOutOfRangeAreTheNearestInRange) {
  struct Row {
    std::string_view name;
    int (*read)(const DisplaySettings&);
    int least;
    int most;
  };
  const Row rows[] = {
      {"Precision", [](const DisplaySettings& s) { return s.normal.precision; }, 0, 15},
      {"Matrix Precision", [](const DisplaySettings& s) { return s.matrix.precision; }, 0, 15},
      {"Matrix Default Row", [](const DisplaySettings& s) { return s.matrixRows; }, 1, 10},
      {"Matrix Default Col", [](const DisplaySettings& s) { return s.matrixColumns; }, 1, 10},
      {"Matrix Default Value",
       [](const DisplaySettings& s) { return static_cast<int>(s.alignment); }, 0, 1},
      {"Matrix Colum Width", [](const DisplaySettings& s) { return s.columnWidth; }, 10, 400},
  };
  for (const Row& row : rows) {
    const auto opened = [&row](std::int32_t stored) {
      MemorySettingsStore store;
      PutInteger(store, row.name, stored);
      return row.read(LoadDisplaySettings(store));
    };
    EXPECT_EQ(opened(row.least), row.least) << row.name;
    EXPECT_EQ(opened(row.least - 1), row.least) << row.name;
    EXPECT_EQ(opened(kLeast), row.least) << row.name;
    EXPECT_EQ(opened(row.most), row.most) << row.name;
    EXPECT_EQ(opened(row.most + 1), row.most) << row.name;
    EXPECT_EQ(opened(kMost), row.most) << row.name;
  }
}

TEST(DisplaySettings, AnUnknownTypeIsThatPagesDefault) {
  for (const std::int32_t unknown : {-1, 5, kLeast, kMost}) {
    MemorySettingsStore store;
    PutInteger(store, "Display Type", unknown);
    PutInteger(store, "Matrix Display Type", unknown);
    EXPECT_EQ(LoadDisplaySettings(store).normal.type, DisplayType::Thousands) << unknown;
    EXPECT_EQ(LoadDisplaySettings(store).matrix.type, DisplayType::FloatingPoint) << unknown;
  }
}

TEST(DisplaySettings, EveryKnownTypeIsTaken) {
  for (std::int32_t type = 0; type <= 4; ++type) {
    MemorySettingsStore store;
    PutInteger(store, "Display Type", type);
    PutInteger(store, "Matrix Display Type", 4 - type);
    EXPECT_EQ(static_cast<int>(LoadDisplaySettings(store).normal.type), type);
    EXPECT_EQ(static_cast<int>(LoadDisplaySettings(store).matrix.type), 4 - type);
  }
}

TEST(DisplaySettings, TextsInThePlaceOfIntegersCountAsAbsent) {
  MemorySettingsStore store;
  for (const char* name : {"Display Type", "Precision", "Matrix Colum Width"}) {
    store.Set(NumberedKey{"Config", name, ""}, "2");
  }
  const DisplaySettings settings = LoadDisplaySettings(store);
  EXPECT_EQ(settings.normal.type, DisplayType::Thousands);
  EXPECT_EQ(settings.normal.precision, 7);
  EXPECT_EQ(settings.columnWidth, 60);
}

TEST(DisplaySettings, AllEightAreStored) {
  MemorySettingsStore store;
  StoreDisplaySettings({{DisplayType::EngineeringNotation, 1},
                        {DisplayType::ScientificNotation, 14},
                        9,
                        4,
                        CellAlignment::Right,
                        399},
                       store);
  EXPECT_EQ(Stored(store, "Display Type"), 4);
  EXPECT_EQ(Stored(store, "Precision"), 1);
  EXPECT_EQ(Stored(store, "Matrix Display Type"), 2);
  EXPECT_EQ(Stored(store, "Matrix Precision"), 14);
  EXPECT_EQ(Stored(store, "Matrix Default Row"), 9);
  EXPECT_EQ(Stored(store, "Matrix Default Col"), 4);
  EXPECT_EQ(Stored(store, "Matrix Default Value"), 1);
  EXPECT_EQ(Stored(store, "Matrix Colum Width"), 399);
}

}  // namespace
}  // namespace kav::display_settings_test
