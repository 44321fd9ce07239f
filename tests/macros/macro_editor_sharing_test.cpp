// The macro editor while another program changes the same settings.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "macros/macro_editor_model.h"
#include "store/user_settings_store.h"
#include "support/macro_fields.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"

namespace kav::macro_editor_sharing_test {
namespace {

using test::Fields;
using test::MacroNames;
using test::Spelled;
using test::StoreNumbered;
using Names = std::vector<std::string>;
using Labels = std::vector<std::u16string>;

class MacroEditorOfTwo : public testing::Test {
 protected:
  MacroEditorOfTwo() { StoreNumbered(other_, 3); }

  void Add(std::u16string name) {
    ASSERT_TRUE(SaveMacro({std::move(name), VariableType::X, u"2*x"}, std::nullopt, other_));
  }
  Names Stored() const { return MacroNames(UserSettingsStore(path_)); }

  const TemporaryFolder folder_;
  const std::string path_ = folder_.File("settings.toml");
  UserSettingsStore other_{path_};
  UserSettingsStore own_{path_};
};

TEST_F(MacroEditorOfTwo, WhatTheOtherAddedBeforeItOpensIsInTheList) {
  EXPECT_EQ(MacroNames(own_).size(), 3U);
  Add(u"theirs");
  EXPECT_EQ(MacroEditorModel(own_).Labels().back(), u"theirs(X)");
}

TEST_F(MacroEditorOfTwo, NeitherLosesWhatTheOtherAdds) {
  MacroEditorModel model(own_);
  model.New();
  Add(u"theirs");
  model.Take(Fields(u"mine", VariableType::X, u"x"));
  EXPECT_EQ(model.Save(), std::nullopt);
  EXPECT_EQ(Stored(), (Names{"m0", "m1", "m2", "theirs", "mine"}));
  EXPECT_EQ(model.CountText(), u"List(5/60)");
  EXPECT_EQ(model.Fields().name, u"mine");
}

TEST_F(MacroEditorOfTwo, AnEditFollowsItsMacroWhereverTheOtherMovedIt) {
  MacroEditorModel model(own_);
  model.Select(2);
  model.Edit();
  ASSERT_TRUE(RemoveMacro({0, "m0"}, other_));
  model.Take(Fields(u"mine", VariableType::X, u"x"));
  EXPECT_EQ(model.Save(), std::nullopt);
  EXPECT_EQ(Stored(), (Names{"m1", "mine"}));
  EXPECT_EQ(model.Selected(), 1);
}

TEST_F(MacroEditorOfTwo, EditBeginsWithWhatTheOtherStoredLast) {
  MacroEditorModel model(own_);
  model.Select(1);
  ASSERT_TRUE(SaveMacro({u"m1", VariableType::X, u"7*x"}, StoredIdentity{1, "m1"}, other_));
  model.Edit();
  EXPECT_EQ(Spelled(model.Fields()), u"m1|0|7*x");
}

TEST_F(MacroEditorOfTwo, AMacroThatTheOtherRemovedIsNotEdited) {
  MacroEditorModel model(own_);
  model.Select(1);
  ASSERT_TRUE(RemoveMacro({1, "m1"}, other_));
  model.Edit();
  EXPECT_FALSE(model.IsEditing());
  EXPECT_EQ(model.Labels(), (Labels{u"m0(X)", u"m2(X)"}));
  EXPECT_EQ(model.Selected(), std::nullopt);
}

TEST_F(MacroEditorOfTwo, DeletingTakesTheSelectedMacroNotTheOneThatMovedToItsPlace) {
  MacroEditorModel model(own_);
  model.Select(1);
  ASSERT_TRUE(RemoveMacro({0, "m0"}, other_));
  model.Delete();
  EXPECT_EQ(Stored(), Names{"m2"});
  EXPECT_EQ(model.Labels(), Labels{u"m2(X)"});
}

}  // namespace
}  // namespace kav::macro_editor_sharing_test
