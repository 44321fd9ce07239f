#include "settings/settings_store.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "settings/setting_key.h"
#include "support/is_stored.h"

namespace kav::settings_store_test {
namespace {

constexpr SettingKey<std::int32_t> kNumber{"Section", "A Number", 42};
constexpr SettingKey<std::string_view> kText{"Section", "A Text", "as ever"};

TEST(SettingsStore, WhatIsNotStoredHasItsDefault) {
  const MemorySettingsStore store;
  EXPECT_EQ(store.Get(kNumber), 42);
  EXPECT_EQ(store.Get(kText), "as ever");
  EXPECT_EQ(store.Get(NumberedKey{"Section", "Entry1", "none"}), "none");
}

TEST(SettingsStore, AskingStoresNothing) {
  const MemorySettingsStore store;
  store.Get(kNumber);
  store.Get(kText);
  EXPECT_FALSE(test::IsStored(store, "Section", "A Number"));
  EXPECT_FALSE(test::IsStored(store, "Section", "A Text"));
}

TEST(SettingsStore, IntegersOfTheWholeRangeComeBack) {
  MemorySettingsStore store;
  for (const std::int32_t value : {0, 1, -1, -100, std::numeric_limits<std::int32_t>::max(),
                                   std::numeric_limits<std::int32_t>::min()}) {
    store.Set(kNumber, value);
    EXPECT_EQ(store.Get(kNumber), value);
  }
}

TEST(SettingsStore, AnyTextComesBackExactly) {
  using std::string_literals::operator""s;
  MemorySettingsStore store;
  for (const auto& text : {""s, "  both ends "s, "a=b;c#d\"e'\\"s, "two\r\nlines\n"s, "n\0l"s,
                           "\xF0\x9F\x98\x80"s, std::string(1 << 20, 'x')}) {
    store.Set(kText, text);
    EXPECT_EQ(store.Get(kText), text);
  }
}

TEST(SettingsStore, AnEmptyTextIsStoredAndNotTheDefault) {
  MemorySettingsStore store;
  store.Set(kText, "");
  EXPECT_EQ(store.Get(kText), "");
  EXPECT_TRUE(test::IsStored(store, "Section", "A Text"));
}

TEST(SettingsStore, AValueOfTheOtherTypeReadsAsTheDefault) {
  MemorySettingsStore store;
  store.Set(SettingKey<std::string_view>{"Section", "A Number", ""}, "7");
  store.Set(SettingKey<std::int32_t>{"Section", "A Text", 0}, 7);
  EXPECT_EQ(store.Get(kNumber), 42);
  EXPECT_EQ(store.Get(kText), "as ever");
}

TEST(SettingsStore, TheLastWriteHoldsWhateverItsType) {
  MemorySettingsStore store;
  store.Set(SettingKey<std::string_view>{"Section", "A Number", ""}, "7");
  store.Set(kNumber, 8);
  EXPECT_EQ(store.Get(kNumber), 8);
}

TEST(SettingsStore, ANumberedKeyIsATextKeyOfThatSpelling) {
  MemorySettingsStore store;
  store.Set(NumberedKey{"Section", "A Text", ""}, "by number");
  EXPECT_EQ(store.Get(kText), "by number");
  store.Set(kText, "by key");
  EXPECT_EQ(store.Get(NumberedKey{"Section", "A Text", ""}), "by key");
}

TEST(SettingsStore, SectionsAndNamesAreToldApartByEveryCharacter) {
  MemorySettingsStore store;
  const std::vector<SettingKey<std::int32_t>> keys{
      {"Config", "Mode", 0},  {"config", "Mode", 0}, {"Config", "mode", 0}, {"Config", "Mode ", 0},
      {"Config ", "Mode", 0}, {"ConfigMode", "", 0}, {"", "ConfigMode", 0}, {"", "", 0},
  };
  std::int32_t value = 1;
  for (const auto& key : keys) store.Set(key, value++);
  value = 1;
  for (const auto& key : keys) EXPECT_EQ(store.Get(key), value++) << key.section << key.name;
}

TEST(SettingsStore, ATextIsCopiedAtOnce) {
  MemorySettingsStore store;
  std::string text = "before";
  store.Set(kText, text);
  text = "behind";
  EXPECT_EQ(store.Get(kText), "before");
}

TEST(SettingsStore, AChangeIsMadeWhereItStands) {
  MemorySettingsStore store;
  constexpr SettingKey<std::int32_t> kCounter{"A", "Counter", 5};
  EXPECT_TRUE(store.Change([&] { store.Set(kCounter, store.Get(kCounter) + 1); }));
  EXPECT_EQ(store.Get(kCounter), 6);
}

TEST(SettingsStore, TheRevisionTellsWhereSomethingMayHaveChanged) {
  MemorySettingsStore store;
  constexpr SettingKey<std::int32_t> kCounter{"A", "Counter", 5};
  const auto fresh = store.Revision();
  (void)store.Get(kCounter);
  EXPECT_EQ(store.Revision(), fresh) << "reading changes nothing";
  store.Set(kCounter, 1);
  const auto second = store.Revision();
  EXPECT_NE(second, fresh);
  store.Set(SettingKey<std::string_view>{"A", "Text", ""}, "x");
  const auto third = store.Revision();
  EXPECT_NE(third, second);
  store.Set(NumberedKey{"A", "Text1", ""}, "x");
  EXPECT_NE(store.Revision(), third);
}

}  // namespace
}  // namespace kav::settings_store_test
