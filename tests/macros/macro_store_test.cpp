#include "macros/macro_store.h"

#include <gtest/gtest.h>

#include "support/stored_macros.h"

namespace kav {
namespace {

using test::StoreMacros;

const SettingKey<std::int32_t> kCount{"MacroInfo", "TotalNumber", 0};

TEST(MacroStore, FreshSettingsHoldNoMacro) {
  MemorySettingsStore store;
  const MacroStore macros(store);
  EXPECT_EQ(macros.Count(), 0);
  EXPECT_EQ(macros.Find(""), std::nullopt);
  EXPECT_EQ(macros.Find("sq"), std::nullopt);
}

TEST(MacroStore, CountIsHeldBetweenZeroAndSixty) {
  struct Row {
    std::int32_t stored;
    int count;
  };
  for (const Row& row : {Row{0, 0}, Row{1, 1}, Row{59, 59}, Row{60, 60}, Row{61, 60},
                         Row{2147483647, 60}, Row{-1, 0}, Row{-2147483647 - 1, 0}}) {
    MemorySettingsStore store;
    store.Set(kCount, row.stored);
    EXPECT_EQ(MacroStore(store).Count(), row.count) << row.stored;
  }
}

TEST(MacroStore, FieldsAreReadFromTheMacrosOwnSection) {
  MemorySettingsStore store;
  StoreMacros(store, {{"sq", "TYPE1 : F(X)", "x^2"}, {"add", "TYPE2 : F(X,Y)", "x+y"}});
  const MacroStore macros(store);
  EXPECT_EQ(macros.Name(0), "sq");
  EXPECT_EQ(macros.Formula(0), "x^2");
  EXPECT_EQ(macros.Name(1), "add");
  EXPECT_EQ(macros.Formula(1), "x+y");
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
    EXPECT_EQ(MacroStore(store).Type(0), row.type) << row.text;
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

TEST(MacroStore, FindLooksNoFurtherThanTheCount) {
  MemorySettingsStore store;
  StoreMacros(store, {{"a", "", ""}, {"b", "", ""}});
  store.Set(kCount, 1);
  EXPECT_EQ(MacroStore(store).Find("a"), 0);
  EXPECT_EQ(MacroStore(store).Find("b"), std::nullopt);
}

TEST(MacroStore, ChangesOfTheSettingsShowAtOnce) {
  MemorySettingsStore store;
  const MacroStore macros(store);
  EXPECT_EQ(macros.Find("sq"), std::nullopt);
  StoreMacros(store, {{"sq", "TYPE1 : F(X)", "x^2"}});
  EXPECT_EQ(macros.Count(), 1);
  EXPECT_EQ(macros.Find("sq"), 0);
}

}  // namespace
}  // namespace kav
