#include "plotter/equation_list.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "support/is_stored.h"

namespace kav::equation_list_test {
namespace {

using Equations = std::vector<std::u16string>;

const SettingKey<std::int32_t> kCount{"Grapher", "Grapher FunTotalNumber", -1};

NumberedKey Fun(int index) {
  return {"Grapher", "Fun" + std::to_string(index), ""};
}

TEST(EquationList, IsEmptyWhereNothingIsStored) {
  const MemorySettingsStore store;
  const EquationList list = EquationList::Load(store);
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_FALSE(list.IsFull());
  EXPECT_EQ(list.Selected(), std::nullopt);
}

TEST(EquationList, LoadsAsManyAsTheCountSaysAndSelectsTheFirst) {
  MemorySettingsStore store;
  store.Set(kCount, 2);
  store.Set(Fun(0), "x");
  store.Set(Fun(1), "x^2");
  store.Set(Fun(2), "x^3");
  const EquationList list = EquationList::Load(store);
  EXPECT_EQ(list.All(), (Equations{u"x", u"x^2"}));
  EXPECT_EQ(list.Selected(), 0U);
}

TEST(EquationList, StoredCountsOutOfRangeAreBroughtIntoIt) {
  MemorySettingsStore store;
  for (int i = 0; i < 5; ++i) store.Set(Fun(i), std::to_string(i));
  for (const std::int32_t count : {4, 1000, std::numeric_limits<std::int32_t>::max()}) {
    store.Set(kCount, count);
    EXPECT_EQ(EquationList::Load(store).All(), (Equations{u"0", u"1", u"2"})) << count;
  }
  for (const std::int32_t count : {-1, std::numeric_limits<std::int32_t>::min()}) {
    store.Set(kCount, count);
    EXPECT_TRUE(EquationList::Load(store).IsEmpty()) << count;
  }
}

TEST(EquationList, EmptyStoredTextsAreNoEquations) {
  MemorySettingsStore store;
  store.Set(kCount, 3);
  store.Set(Fun(1), "x");
  const EquationList list = EquationList::Load(store);
  EXPECT_EQ(list.All(), (Equations{u"x"}));
  EXPECT_FALSE(list.IsFull());
}

TEST(EquationList, StoredTextsOfAnyLengthAreKept) {
  MemorySettingsStore store;
  const std::string text(1'000'000, 'x');
  store.Set(kCount, 1);
  store.Set(Fun(0), text);
  EquationList::Load(store).Save(store);
  EXPECT_TRUE(store.Get(Fun(0)) == text);
}

TEST(EquationList, SavesItsEquationsInTheirOrder) {
  MemorySettingsStore store;
  EquationList list;
  list.Add(u"sin(x)");
  list.Add(u"x");
  list.Save(store);
  EXPECT_EQ(store.Get(kCount), 2);
  EXPECT_EQ(store.Get(Fun(0)), "sin(x)");
  EXPECT_EQ(store.Get(Fun(1)), "x");
  EXPECT_FALSE(test::IsStored(store, "Grapher", "Fun2"));
}

TEST(EquationList, WhatWasDeletedIsNotLeftInTheSettings) {
  MemorySettingsStore store;
  EquationList list;
  for (const char16_t* text : {u"a", u"b", u"c"}) list.Add(text);
  list.Save(store);
  list.DeleteSelected();
  list.DeleteSelected();
  list.Save(store);
  EXPECT_EQ(store.Get(kCount), 1);
  EXPECT_EQ(store.Get(Fun(0)), "a");
  EXPECT_EQ(store.Get(Fun(1)), "");
  EXPECT_EQ(store.Get(Fun(2)), "");
}

TEST(EquationList, TakesThreeAndSelectsTheLastAdded) {
  EquationList list;
  list.Add(u"a");
  EXPECT_EQ(list.Selected(), 0U);
  list.Add(u"b");
  EXPECT_EQ(list.Selected(), 1U);
  EXPECT_FALSE(list.IsFull());
  list.Add(u"c");
  EXPECT_EQ(list.Selected(), 2U);
  EXPECT_TRUE(list.IsFull());
  list.Select(0);
  list.Add(u"d");
  EXPECT_EQ(list.All(), (Equations{u"a", u"b", u"c"}));
  EXPECT_EQ(list.Selected(), 0U);
}

TEST(EquationList, HoldsATextOnlyWhereAllOfItIsTheSame) {
  EquationList list;
  list.Add(u"sin(x)");
  EXPECT_TRUE(list.Holds(u"sin(x)"));
  EXPECT_FALSE(list.Holds(u"SIN(x)"));
  EXPECT_FALSE(list.Holds(u"sin(x) "));
}

TEST(EquationList, DeletingSelectsTheOneBeforeOrTheFirst) {
  struct Row {
    std::size_t deleted;
    Equations rest;
    std::size_t selected;
  };
  for (const Row& row :
       {Row{0, {u"b", u"c"}, 0}, Row{1, {u"a", u"c"}, 0}, Row{2, {u"a", u"b"}, 1}}) {
    EquationList list;
    for (const char16_t* text : {u"a", u"b", u"c"}) list.Add(text);
    list.Select(row.deleted);
    list.DeleteSelected();
    EXPECT_EQ(list.All(), row.rest);
    EXPECT_EQ(list.Selected(), row.selected);
  }
}

TEST(EquationList, DeletingTheLastOneLeavesNothingSelected) {
  EquationList list;
  list.Add(u"a");
  list.DeleteSelected();
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.Selected(), std::nullopt);
  list.DeleteSelected();
  EXPECT_TRUE(list.IsEmpty());
}

TEST(EquationList, APlaceThatIsNotThereCannotBeSelected) {
  EquationList list;
  list.Select(0);
  EXPECT_EQ(list.Selected(), std::nullopt);
  list.Add(u"a");
  list.Select(1);
  EXPECT_EQ(list.Selected(), 0U);
}

TEST(EquationList, CurvesAreCalledByTheirColours) {
  EXPECT_EQ(CurveLabel(0, u"sin(x)"), u"R:F1(X)=sin(x)");
  EXPECT_EQ(CurveLabel(1, u"x"), u"G:F2(x)=x");
  EXPECT_EQ(CurveLabel(2, u"1/x"), u"B:F3(X)=1/x");
}

}  // namespace
}  // namespace kav::equation_list_test
