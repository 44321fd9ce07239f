#include "macros/macro_list_model.h"

#include <gtest/gtest.h>

#include "store/user_settings_store.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"

namespace kav::macro_list_model_test {
namespace {

using test::StoreMacros;
using Labels = std::vector<std::u16string>;

const std::vector<test::StoredMacro> kThree{
    {"sq", "TYPE1 : F(X)", "x^2"}, {"add", "TYPE2 : F(X,Y)", "x+y"}, {"vol", "any other", "x*y*z"}};

class MacroList : public testing::Test {
 protected:
  MacroList() { StoreMacros(store_, kThree); }

  static std::string Formula(const MacroListModel& model) {
    return model.SelectedEntry() != nullptr ? model.SelectedEntry()->formula : "none";
  }

  MemorySettingsStore store_;
};

TEST_F(MacroList, LabelsNameTheArgumentsByType) {
  EXPECT_EQ(MacroListModel(store_).Labels(), (Labels{u"sq(X)", u"add(X,Y)", u"vol(X,Y,Z)"}));
}

TEST_F(MacroList, TheFirstMacroIsSelectedAtTheStart) {
  const MacroListModel model(store_);
  EXPECT_EQ(model.Selected(), 0);
  EXPECT_EQ(Formula(model), "x^2");
}

TEST_F(MacroList, EachSelectionHasItsFormula) {
  MacroListModel model(store_);
  model.Select(2);
  EXPECT_EQ(model.Selected(), 2);
  EXPECT_EQ(Formula(model), "x*y*z");
  model.Select(1);
  EXPECT_EQ(Formula(model), "x+y");
  model.Select(std::nullopt);
  EXPECT_EQ(model.Selected(), std::nullopt);
  EXPECT_EQ(model.SelectedEntry(), nullptr);
}

TEST_F(MacroList, APlaceThatThereIsNotSelectsNone) {
  MacroListModel model(store_);
  for (const int place : {-1, 3, 2147483647, -2147483647 - 1}) {
    model.Select(0);
    model.Select(place);
    EXPECT_EQ(model.Selected(), std::nullopt) << place;
  }
}

TEST_F(MacroList, WithoutMacrosNothingIsSelected) {
  MemorySettingsStore empty;
  const MacroListModel model(empty);
  EXPECT_EQ(model.Labels(), Labels{});
  EXPECT_EQ(model.Count(), 0);
  EXPECT_EQ(model.Selected(), std::nullopt);
  EXPECT_EQ(model.SelectedIdentity(), std::nullopt);
}

TEST_F(MacroList, TheListStaysAsItWasReadUntilItIsReadAgain) {
  MacroListModel model(store_);
  model.Select(2);
  ASSERT_TRUE(RemoveMacro({0, "sq"}, store_));
  EXPECT_EQ(model.Labels(), (Labels{u"sq(X)", u"add(X,Y)", u"vol(X,Y,Z)"}));
  EXPECT_EQ(Formula(model), "x*y*z");
  model.Reload();
  EXPECT_EQ(model.Labels(), (Labels{u"add(X,Y)", u"vol(X,Y,Z)"}));
}

TEST_F(MacroList, TheSameMacroStaysSelectedWhereverItMoved) {
  MacroListModel model(store_);
  model.Select(2);
  ASSERT_TRUE(RemoveMacro({0, "sq"}, store_));
  model.Reload();
  EXPECT_EQ(model.Selected(), 1);
  EXPECT_EQ(Formula(model), "x*y*z");
}

TEST_F(MacroList, NothingIsSelectedOnceTheSelectedMacroIsGone) {
  MacroListModel model(store_);
  model.Select(1);
  ASSERT_TRUE(RemoveMacro({1, "add"}, store_));
  model.Reload();
  EXPECT_EQ(model.Selected(), std::nullopt);
}

TEST_F(MacroList, WhatAnotherProgramStoredIsThereWhenItIsMade) {
  const TemporaryFolder folder;
  UserSettingsStore own(folder.File("settings.toml"));
  UserSettingsStore other(folder.File("settings.toml"));
  EXPECT_EQ(MacroListModel(own).Count(), 0);
  ASSERT_TRUE(SaveMacro({u"sq", VariableType::X, u"x^2"}, std::nullopt, other));
  EXPECT_EQ(MacroListModel(own).Labels(), Labels{u"sq(X)"});
}

}  // namespace
}  // namespace kav::macro_list_model_test
