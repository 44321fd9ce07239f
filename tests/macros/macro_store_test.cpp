#include "macros/macro_store.h"

#include <gtest/gtest.h>

#include "store/user_settings_store.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"

namespace kav::macro_store_test {
namespace {

using test::MacroNames;
using test::StoreMacros;
using Names = std::vector<std::string>;

const SettingKey<std::int32_t> kCount{"MacroInfo", "TotalNumber", 0};

TEST(MacroStore, FreshSettingsHoldNoMacro) {
  MemorySettingsStore store;
  const MacroStore macros(store);
  EXPECT_EQ(macros.Count(), 0);
  EXPECT_EQ(macros.Find(""), std::nullopt);
  EXPECT_EQ(macros.Find("sq"), std::nullopt);
}

/// `count` macros named m0, m1 and so on.
void StoreNumbered(SettingsStore& store, int count) {
  for (int i = 0; i < count; ++i) {
    const std::string section = "Macro" + std::to_string(i);
    store.Set(NumberedKey{section, "Name", ""}, "m" + std::to_string(i));
    store.Set(NumberedKey{section, "Formula", ""}, "x");
  }
}

TEST(MacroStore, AWrongCountIsMendedByWhatIsStored) {
  for (const std::int32_t wrong : {0, 1, 2, 4, 60, 61, 2147483647, -1, -2147483647 - 1}) {
    MemorySettingsStore store;
    StoreNumbered(store, 3);
    store.Set(kCount, wrong);
    EXPECT_EQ(MacroNames(store), (Names{"m0", "m1", "m2"})) << wrong;
  }
}

TEST(MacroStore, ACountThatIsNoIntegerOfTheStoreIsMendedToo) {
  const TemporaryFolder folder;
  for (const char* count : {"2147483648", "-2147483649", "\"3\"", "1.5", "true"}) {
    const std::string path = folder.File("settings.toml");
    PutFile(path, std::string("[MacroInfo]\nTotalNumber = ") + count +
                      "\n[Macro0]\nName = \"sq\"\nType = \"TYPE1 : F(X)\"\nFormula = \"x^2\"\n");
    EXPECT_EQ(MacroNames(UserSettingsStore(path)), Names{"sq"}) << count;
  }
}

TEST(MacroStore, ACountWithoutMacrosIsZero) {
  for (const std::int32_t wrong : {1, 60, 2147483647, -1}) {
    MemorySettingsStore store;
    store.Set(kCount, wrong);
    EXPECT_EQ(MacroStore(store).Count(), 0) << wrong;
  }
}

TEST(MacroStore, NoMoreThanSixtyAreShown) {
  MemorySettingsStore store;
  StoreNumbered(store, 62);
  for (const std::int32_t count : {0, 60, 62}) {
    store.Set(kCount, count);
    EXPECT_EQ(MacroStore(store).Count(), 60) << count;
  }
}

TEST(MacroStore, AHoleWithinTheCountIsShownSoThatThoseBehindKeepTheirPlaces) {
  MemorySettingsStore store;
  StoreMacros(store, {{"a", "", "x"}, {"", "", ""}, {"c", "", "x"}});
  EXPECT_EQ(MacroNames(store), (Names{"a", "", "c"}));
  EXPECT_EQ(MacroStore(store).Find("c"), 2);
}

TEST(MacroStore, EmptyPlacesAtTheEndAreNotShownButNamelessFormulasAre) {
  MemorySettingsStore store;
  StoreMacros(store, {{"a", "", "x"}, {"", "", "x^2"}, {"", "TYPE1 : F(X)", ""}, {"", "", ""}});
  EXPECT_EQ(MacroNames(store), (Names{"a", ""}));
}

TEST(MacroStore, FieldsAreReadFromTheMacrosOwnSection) {
  MemorySettingsStore store;
  StoreMacros(store, {{"sq", "TYPE1 : F(X)", "x^2"}, {"add", "TYPE2 : F(X,Y)", "x+y"}});
  const MacroStore macros(store);
  EXPECT_EQ(macros.At(0).name, "sq");
  EXPECT_EQ(macros.At(0).formula, "x^2");
  EXPECT_EQ(macros.At(1).name, "add");
  EXPECT_EQ(macros.At(1).formula, "x+y");
}

TEST(MacroStore, EveryTypeTextButTwoStandsForThreeArguments) {
  struct Row {
    std::string_view text;
    VariableType type;
  };
  for (const Row& row :
       {Row{"TYPE1 : F(X)", VariableType::X}, Row{"TYPE2 : F(X,Y)", VariableType::XY},
        Row{"TYPE3 : F(X,Y,Z)", VariableType::XYZ}, Row{"", VariableType::XYZ},
        Row{"type1 : f(x)", VariableType::XYZ}, Row{" TYPE1 : F(X)", VariableType::XYZ}}) {
    MemorySettingsStore store;
    StoreMacros(store, {{"m", row.text, "x"}});
    EXPECT_EQ(MacroStore(store).At(0).type, row.type) << row.text;
  }
}

TEST(MacroStore, FindComparesTheWholeNameAndItsCase) {
  MemorySettingsStore store;
  StoreMacros(store, {{"sq", "", ""}, {"Sq", "", ""}, {"sq 2", "", ""}, {"größe", "", ""}});
  const MacroStore macros(store);
  EXPECT_EQ(macros.Find("sq"), 0);
  EXPECT_EQ(macros.Find("Sq"), 1);
  EXPECT_EQ(macros.Find("sq 2"), 2);
  EXPECT_EQ(macros.Find("größe"), 3);
  EXPECT_EQ(macros.Find("SQ"), std::nullopt);
  EXPECT_EQ(macros.Find("s"), std::nullopt);
  EXPECT_EQ(macros.Find(" sq"), std::nullopt);
  EXPECT_EQ(macros.Find(""), std::nullopt);
}

TEST(MacroStore, FindTakesTheFirstOfEqualNames) {
  MemorySettingsStore store;
  StoreMacros(store, {{"a", "", ""}, {"twin", "", ""}, {"twin", "", ""}});
  EXPECT_EQ(MacroStore(store).Find("twin"), 1);
}

TEST(MacroStore, ChangesOfTheSettingsShowAtOnce) {
  MemorySettingsStore store;
  const MacroStore macros(store);
  EXPECT_EQ(macros.Find("sq"), std::nullopt);
  StoreMacros(store, {{"sq", "TYPE1 : F(X)", "x^2"}});
  EXPECT_EQ(macros.Count(), 1);
  EXPECT_EQ(macros.Find("sq"), 0);
}

TEST(MacroStore, FormulasComeCheckedByTheirOwnType) {
  MemorySettingsStore store;
  StoreMacros(store, {{"sq", "TYPE1 : F(X)", "X^2"},
                      {"add", "TYPE2 : F(X,Y)", "x+y"},
                      {"noY", "TYPE2 : F(X,Y)", "x^2"},
                      {"foreign", "TYPE1 : F(X)", "x+y"},
                      {"broken", "TYPE1 : F(X)", "x+"},
                      {"empty", "TYPE1 : F(X)", ""}});
  const MacroStore macros(store);
  const auto message = [&](int i) {
    return macros.Checked(i) ? std::string() : macros.Checked(i).error();
  };
  ASSERT_TRUE(macros.Checked(0));
  EXPECT_EQ(*macros.Checked(0)->At({3, 0, 0}, AngleUnit::Radians), 9.0);
  ASSERT_TRUE(macros.Checked(1));
  EXPECT_EQ(*macros.Checked(1)->At({3, 4, 0}, AngleUnit::Radians), 7.0);
  EXPECT_EQ(message(2), "Macro formula is invalid");
  EXPECT_EQ(message(3), "Macro formula is invalid");
  EXPECT_EQ(message(4), "Expression error.");
  EXPECT_EQ(message(5), "Macro formula is invalid");
}

TEST(MacroStore, AFormulaIsCheckedOnceUntilTheSettingsChange) {
  MemorySettingsStore store;
  StoreMacros(store, {{"sq", "TYPE1 : F(X)", "x^2"}});
  const MacroStore macros(store);
  const auto* const first = &macros.Checked(0);
  EXPECT_EQ(&macros.Checked(0), first);
  store.Set(NumberedKey{"Macro0", "Formula", ""}, "x+1");
  ASSERT_TRUE(macros.Checked(0));
  EXPECT_EQ(*macros.Checked(0)->At({3, 0, 0}, AngleUnit::Radians), 4.0);
}

TEST(MacroStore, WhatAnotherProgramStoredShowsAfterARefresh) {
  const TemporaryFolder folder;
  UserSettingsStore one(folder.File("settings.toml"));
  UserSettingsStore other(folder.File("settings.toml"));
  const MacroStore macros(one);
  EXPECT_EQ(macros.Count(), 0);
  StoreMacros(other, {{"sq", "TYPE1 : F(X)", "x^2"}});
  ASSERT_TRUE(other.Save());
  EXPECT_EQ(macros.Count(), 0);
  one.Refresh();
  EXPECT_EQ(macros.Find("sq"), 0);
}

TEST(MacroStore, LabelsShowTheArguments) {
  EXPECT_EQ(MacroLabel({"sq", VariableType::X, "x^2"}), u"sq(X)");
  EXPECT_EQ(MacroLabel({"area of", VariableType::XY, "x*y"}), u"area of(X,Y)");
  EXPECT_EQ(MacroLabel({"\u00FCber", VariableType::XYZ, ""}), u"\u00FCber(X,Y,Z)");
  EXPECT_EQ(MacroLabel({"", VariableType::X, ""}), u"(X)");
}

}  // namespace
}  // namespace kav::macro_store_test
