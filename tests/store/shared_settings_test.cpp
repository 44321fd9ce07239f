// Several stores on one file: nobody loses what another one saved.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "store/user_settings_fixture.h"

namespace kav::shared_settings_test {
namespace {

using SharedSettingsTest = UserSettingsStoreTest;

TEST_F(SharedSettingsTest, TwoStoresOnOneFileLoseNothing) {
  UserSettingsStore first(path);
  UserSettingsStore second(path);
  for (int i = 0; i < 20; ++i) {
    const std::string number = std::to_string(i);
    first.Set(NumberedKey{"First", "Entry" + number, ""}, "1." + number);
    second.Set(NumberedKey{"Second", "Entry" + number, ""}, "2." + number);
    second.Set(NumberedKey{"First", "Other" + number, ""}, "3." + number);
    ASSERT_TRUE(first.Save());
    ASSERT_TRUE(second.Save());
  }
  const UserSettingsStore reader(path);
  for (int i = 0; i < 20; ++i) {
    const std::string number = std::to_string(i);
    EXPECT_EQ(reader.Get(NumberedKey{"First", "Entry" + number, ""}), "1." + number);
    EXPECT_EQ(reader.Get(NumberedKey{"Second", "Entry" + number, ""}), "2." + number);
    EXPECT_EQ(reader.Get(NumberedKey{"First", "Other" + number, ""}), "3." + number);
  }
}

TEST_F(SharedSettingsTest, OnlyWhatThisStoreChangedGoesOverWhatOthersWrote) {
  PutByHand("[Config]\n\"Angle Type\" = 1\nPrecision = 7\nVersion = 'old'");
  constexpr SettingKey<std::int32_t> kDigits{"Config", "Precision", 0};
  constexpr SettingKey<std::string_view> kVersionText{"Config", "Version", ""};
  UserSettingsStore store(path);
  store.Set(kNumber, 1);  // as it is stored: no change
  store.Set(kDigits, 9);  // there
  store.Set(kDigits, 7);  // and back: no change
  store.Set(kVersionText, "new");
  PutByHand("[Config]\n\"Angle Type\" = 2\nPrecision = 3\nVersion = 'other'");
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(store.Get(kNumber), 2) << "after a save the others' settings hold here too";
  EXPECT_EQ(store.Get(kDigits), 3);
  EXPECT_EQ(store.Get(kVersionText), "new");
  const UserSettingsStore reader(path);
  EXPECT_EQ(reader.Get(kNumber), 2);
  EXPECT_EQ(reader.Get(kDigits), 3);
  EXPECT_EQ(reader.Get(kVersionText), "new");
}

TEST_F(SharedSettingsTest, WhatWasSavedOnceIsNoChangeAnyMore) {
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  ASSERT_TRUE(store.Save());
  PutByHand("[Config]\n\"Angle Type\" = 3");
  store.Set(kText, "new");
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(store.Get(kNumber), 3);
  EXPECT_EQ(ReadNumber(), 3);
}

TEST_F(SharedSettingsTest, RefreshShowsWhatOthersSavedAndKeepsWhatIsNotSavedYet) {
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  PutByHand("[Config]\n\"Angle Type\" = 5\n[History]\nCalHistory1 = 'theirs'");
  EXPECT_EQ(store.Get(kText), "as ever");
  store.Refresh();
  EXPECT_EQ(store.Get(kText), "theirs");
  EXPECT_EQ(store.Get(kNumber), 2);
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(ReadNumber(), 2);
}

TEST_F(SharedSettingsTest, RefreshFromWhatCannotBeReadChangesNothing) {
  PutByHand("[Config]\n\"Angle Type\" = 5");
  UserSettingsStore store(path);
  EXPECT_EQ(store.Get(kNumber), 5);
  PutByHand("?");
  store.Refresh();
  EXPECT_EQ(store.Get(kNumber), 5);
  ASSERT_EQ(truncate(path.c_str(), (4 << 20) + 1), 0);
  store.Refresh();
  EXPECT_EQ(store.Get(kNumber), 5);
  unlink(path.c_str());
  mkdir(path.c_str(), 0700);
  store.Refresh();
  EXPECT_EQ(store.Get(kNumber), 5);
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
}

TEST_F(SharedSettingsTest, AChangeFindsWhatOthersStoredAndIsOnTheDiskAtOnce) {
  UserSettingsStore store(path);
  EXPECT_EQ(store.Get(kNumber), 42);
  PutByHand("[Config]\n\"Angle Type\" = 7");
  EXPECT_TRUE(store.Change([&] { store.Set(kNumber, store.Get(kNumber) + 1); }));
  EXPECT_EQ(store.Get(kNumber), 8);
  EXPECT_EQ(UserSettingsStore(path).Get(kNumber), 8);
}

TEST_F(SharedSettingsTest, AChangeTakesAlongWhatWasNotSavedYet) {
  UserSettingsStore store(path);
  constexpr SettingKey<std::string_view> kVersionText{"Config", "Version", ""};
  store.Set(kVersionText, "unsaved");
  EXPECT_TRUE(store.Change([&] { store.Set(kNumber, 3); }));
  const UserSettingsStore reader(path);
  EXPECT_EQ(reader.Get(kVersionText), "unsaved");
  EXPECT_EQ(reader.Get(kNumber), 3);
}

TEST_F(SharedSettingsTest, AChangeThatChangesNothingWritesNothing) {
  UserSettingsStore store(path);
  EXPECT_TRUE(store.Change([] {}));
  EXPECT_FALSE(Exists(path));
}

TEST_F(SharedSettingsTest, TheRevisionTellsOfWhatOthersStored) {
  UserSettingsStore store(path);
  EXPECT_EQ(store.Get(kNumber), 42);
  const auto before = store.Revision();
  PutByHand("[Config]\n\"Angle Type\" = 7");
  store.Refresh();
  EXPECT_NE(store.Revision(), before);
  const auto refreshed = store.Revision();
  PutByHand("[Config]\n\"Angle Type\" = 8");
  EXPECT_TRUE(store.Change([] {}));
  EXPECT_NE(store.Revision(), refreshed);
}

TEST_F(SharedSettingsTest, RefreshBeforeTheFirstSettingTouchesNothing) {
  PutByHand("?");
  UserSettingsStore store(path);
  store.Refresh();
  PutByHand("[Config]\n\"Angle Type\" = 5");
  EXPECT_EQ(store.Get(kNumber), 5);
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
}

TEST_F(SharedSettingsTest, AFileThatSomebodyDeletedIsMadeAgainFromWhatChangedSince) {
  PutByHand("[Config]\n\"Angle Type\" = 5\n[History]\nCalHistory1 = 'old'");
  UserSettingsStore store(path);
  store.Set(kText, "new");
  unlink(path.c_str());
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(ReadText(), "new");
  EXPECT_EQ(ReadNumber(), 42);
}

}  // namespace
}  // namespace kav::shared_settings_test
