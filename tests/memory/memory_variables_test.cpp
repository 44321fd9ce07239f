#include "memory/memory_variables.h"

#include <gtest/gtest.h>

#include <string>

#include "store/user_settings_store.h"
#include "support/is_stored.h"
#include "support/temporary_folder.h"

namespace kav::memory_variables_test {
namespace {

/// Stores `value` as the variable `number`, counted from 0, at the address of users' files.
void PutByHand(SettingsStore& store, int number, std::string_view value) {
  store.Set(NumberedKey{"MemoryVar", "Var" + std::to_string(number), ""}, value);
}

std::string StoredByHand(const SettingsStore& store, int number) {
  return store.Get(NumberedKey{"MemoryVar", "Var" + std::to_string(number), "nothing stored"});
}

TEST(MemoryVariables, FreshSettingsHoldTwentyZeros) {
  MemorySettingsStore store;
  const MemoryVariables variables(store);
  ASSERT_EQ(MemoryVariables::kCount, 20);
  for (int i = 0; i < 20; ++i) EXPECT_EQ(variables.Get(i), "0") << i;
  EXPECT_FALSE(test::IsStored(store, "MemoryVar", "Var0"));
}

TEST(MemoryVariables, LinesCountFromOneInTwoDigits) {
  MemorySettingsStore store;
  PutByHand(store, 9, "-1.5e-20");
  const MemoryVariables variables(store);
  EXPECT_EQ(variables.Line(0), u"Mem01 = 0");
  EXPECT_EQ(variables.Line(8), u"Mem09 = 0");
  EXPECT_EQ(variables.Line(9), u"Mem10 = -1.5e-20");
  EXPECT_EQ(variables.Line(19), u"Mem20 = 0");
  EXPECT_EQ(MemoryVariables::Name(8), u"Mem09");
  EXPECT_EQ(MemoryVariables::Name(9), u"Mem10");
}

TEST(MemoryVariables, EachIsStoredUnderItsNumberFromZero) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  variables.Set(0, "3.14");
  variables.Set(19, "x");
  EXPECT_EQ(StoredByHand(store, 0), "3.14");
  EXPECT_EQ(StoredByHand(store, 19), "x");
  EXPECT_EQ(StoredByHand(store, 1), "nothing stored");
  EXPECT_EQ(variables.Get(0), "3.14");
  EXPECT_EQ(variables.Get(1), "0");
}

TEST(MemoryVariables, TextsAreNeitherCheckedNorConverted) {
  for (const std::string& text :
       {std::string(), std::string("1,234"), std::string(" 0x1F "), std::string("a\nb\tc"),
        std::string("größe √2"), std::string(1 << 20, '7')}) {
    MemorySettingsStore store;
    MemoryVariables variables(store);
    variables.Set(5, text);
    EXPECT_EQ(variables.Get(5), text);
  }
}

TEST(MemoryVariables, AnEmptyTextIsAValueAndNoZero) {
  MemorySettingsStore store;
  PutByHand(store, 3, "");
  EXPECT_EQ(MemoryVariables(store).Get(3), "");
  EXPECT_EQ(MemoryVariables(store).Line(3), u"Mem04 = ");
}

TEST(MemoryVariables, AnIntegerInThePlaceOfATextReadsAsZero) {
  MemorySettingsStore store;
  store.Set(SettingKey<std::int32_t>{"MemoryVar", "Var2", 0}, 7);
  EXPECT_EQ(MemoryVariables(store).Get(2), "0");
}

TEST(MemoryVariables, ClearingStoresAZeroForThatOneOnly) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  variables.Set(6, "6");
  variables.Set(7, "7");
  variables.Clear(7);
  EXPECT_EQ(variables.Get(6), "6");
  EXPECT_EQ(StoredByHand(store, 7), "0");
}

TEST(MemoryVariables, ClearingAllStoresTwentyZeros) {
  MemorySettingsStore store;
  PutByHand(store, 0, "1");
  PutByHand(store, 19, "20");
  PutByHand(store, 20, "no variable");
  MemoryVariables(store).ClearAll();
  for (int i = 0; i < 20; ++i) EXPECT_EQ(StoredByHand(store, i), "0") << i;
  EXPECT_EQ(StoredByHand(store, 20), "no variable");
}

TEST(MemoryVariables, ChangesAreOnTheDiskAtOnce) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  UserSettingsStore store(path);
  MemoryVariables variables(store);
  variables.Set(0, "1");
  variables.Set(1, "2");
  EXPECT_EQ(StoredByHand(UserSettingsStore(path), 0), "1");
  EXPECT_EQ(StoredByHand(UserSettingsStore(path), 1), "2");
  variables.Clear(0);
  EXPECT_EQ(StoredByHand(UserSettingsStore(path), 0), "0");
  variables.ClearAll();
  EXPECT_EQ(StoredByHand(UserSettingsStore(path), 1), "0");
}

TEST(MemoryVariables, TwoProgramsOnOneFileLoseNothingOfEachOther) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  UserSettingsStore window(path);
  MemoryVariables ofWindow(window);
  EXPECT_EQ(ofWindow.Get(0), "0");  // both have read the file before either stores
  UserSettingsStore terminal(path);
  MemoryVariables ofTerminal(terminal);
  EXPECT_EQ(ofTerminal.Get(0), "0");
  ofTerminal.Set(3, "terminal");
  ofWindow.Set(4, "window");
  EXPECT_EQ(ofWindow.Get(3), "terminal");
  EXPECT_EQ(StoredByHand(UserSettingsStore(path), 3), "terminal");
  EXPECT_EQ(StoredByHand(UserSettingsStore(path), 4), "window");
}

}  // namespace
}  // namespace kav::memory_variables_test
