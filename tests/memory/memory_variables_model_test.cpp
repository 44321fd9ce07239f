#include "memory/memory_variables_model.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/user_settings_store.h"
#include "support/temporary_folder.h"

namespace kav::memory_variables_model_test {
namespace {

std::string Stored(const SettingsStore& store, int number) {
  return store.Get(NumberedKey{"MemoryVar", "Var" + std::to_string(number), "nothing stored"});
}

std::optional<std::u16string> Recalled(VariableOutcome outcome) {
  auto* recalled = std::get_if<VariableRecalled>(&outcome);
  return recalled != nullptr ? std::optional(recalled->value) : std::nullopt;
}

bool HasSelection(const MemoryVariablesModel& model) {
  return model.ClearQuestion().has_value();
}

TEST(MemoryVariablesModel, AFreshInstallationListsTwentyZeros) {
  MemorySettingsStore store;
  const MemoryVariablesModel model(RecallMode{}, store);
  EXPECT_EQ(model.Lines(),
            (std::vector<std::u16string>{u"Mem01 = 0", u"Mem02 = 0", u"Mem03 = 0", u"Mem04 = 0",
                                         u"Mem05 = 0", u"Mem06 = 0", u"Mem07 = 0", u"Mem08 = 0",
                                         u"Mem09 = 0", u"Mem10 = 0", u"Mem11 = 0", u"Mem12 = 0",
                                         u"Mem13 = 0", u"Mem14 = 0", u"Mem15 = 0", u"Mem16 = 0",
                                         u"Mem17 = 0", u"Mem18 = 0", u"Mem19 = 0", u"Mem20 = 0"}));
  EXPECT_FALSE(HasSelection(model));
}

TEST(MemoryVariablesModel, TheActionIsNamedAfterTheMode) {
  MemorySettingsStore store;
  EXPECT_EQ(MemoryVariablesModel(StoreMode{u"1"}, store).ActionCaption(), u"Store");
  EXPECT_EQ(MemoryVariablesModel(RecallMode{}, store).ActionCaption(), u"Recall");
  EXPECT_EQ(MemoryVariablesModel(StoreMode{u"1"}, store).ActionHelp(),
            u"store the value in the selected variable");
  EXPECT_EQ(MemoryVariablesModel(RecallMode{}, store).ActionHelp(),
            u"take the value of the selected variable");
}

TEST(MemoryVariablesModel, OnlyLinesThatThereAreCanBeSelected) {
  MemorySettingsStore store;
  const std::pair<int, std::u16string> values[] = {{0, u"5"}, {1, u"6"}, {19, u"7"}};
  for (const auto& [line, value] : values) {
    MemoryVariablesModel storing(StoreMode{value}, store);
    storing.Select(line);
    storing.Act();
  }
  MemoryVariablesModel model(RecallMode{}, store);
  for (const auto& [line, value] : values) {
    model.Select(line);
    EXPECT_EQ(Recalled(model.Act()), value);
  }
  for (const int line : {-1, 20, 2147483647, -2147483647 - 1}) {
    model.Select(0);
    model.Select(line);
    EXPECT_FALSE(HasSelection(model)) << line;
    EXPECT_EQ(Recalled(model.Act()), std::nullopt) << line;
  }
  model.Select(0);
  model.Select(std::nullopt);
  EXPECT_FALSE(HasSelection(model));
}

TEST(MemoryVariablesModel, TheActionNeedsASelection) {
  for (const VariablesMode& mode : {VariablesMode(StoreMode{u"5"}), VariablesMode(RecallMode{})}) {
    MemorySettingsStore store;
    MemoryVariablesModel model(mode, store);
    const VariableOutcome outcome = model.Act();
    const auto* missing = std::get_if<VariableMissing>(&outcome);
    ASSERT_NE(missing, nullptr);
    EXPECT_EQ(missing->text, u"Please select a memory variable");
    for (int i = 0; i < 20; ++i) EXPECT_EQ(Stored(store, i), "nothing stored") << i;
  }
}

TEST(MemoryVariablesModel, OneValueIsStoredIntoAsManyVariablesAsWanted) {
  MemorySettingsStore store;
  MemoryVariablesModel model(StoreMode{u"2.5"}, store);
  for (const int line : {0, 19}) {
    model.Select(line);
    EXPECT_TRUE(std::holds_alternative<VariableStored>(model.Act()));
    EXPECT_TRUE(HasSelection(model));
    EXPECT_EQ(Stored(store, line), "2.5");
  }
  EXPECT_EQ(model.Lines()[0], u"Mem01 = 2.5");
  EXPECT_EQ(model.Lines()[19], u"Mem20 = 2.5");
  EXPECT_EQ(Stored(store, 1), "nothing stored");
}

TEST(MemoryVariablesModel, ValuesComeAndGoAsTheyAre) {
  for (const std::u16string& value :
       {std::u16string(), std::u16string(u"1\n2\r\n\t3"), std::u16string(u" √2 größer "),
        std::u16string(1 << 20, u'7')}) {
    MemorySettingsStore store;
    MemoryVariablesModel storing(StoreMode{value}, store);
    storing.Select(7);
    storing.Act();
    MemoryVariablesModel recalling(RecallMode{}, store);
    recalling.Select(7);
    EXPECT_EQ(Recalled(recalling.Act()), value);
    EXPECT_EQ(recalling.Lines()[7], u"Mem08 = " + value);
  }
}

TEST(MemoryVariablesModel, RecallingChangesNothing) {
  MemorySettingsStore store;
  MemoryVariablesModel model(RecallMode{}, store);
  model.Select(4);
  EXPECT_EQ(Recalled(model.Act()), u"0");
  EXPECT_EQ(Stored(store, 4), "nothing stored");
}

TEST(MemoryVariablesModel, ClearingIsAskedForAndTakesTheSelectedVariableOnly) {
  MemorySettingsStore store;
  MemoryVariablesModel model(StoreMode{u"9"}, store);
  for (const int line : {2, 3}) {
    model.Select(line);
    model.Act();
  }
  EXPECT_EQ(model.ClearQuestion(), u"Are you sure you want to clear the selected variable?");
  model.Clear();
  EXPECT_EQ(Stored(store, 2), "9");
  EXPECT_EQ(Stored(store, 3), "0");
  model.Act();
  EXPECT_EQ(Stored(store, 3), "9");
}

TEST(MemoryVariablesModel, WithoutASelectionThereIsNothingToClear) {
  MemorySettingsStore store;
  MemoryVariablesModel model(RecallMode{}, store);
  EXPECT_EQ(model.ClearQuestion(), std::nullopt);
  model.Clear();
  for (int i = 0; i < 20; ++i) EXPECT_EQ(Stored(store, i), "nothing stored") << i;
}

TEST(MemoryVariablesModel, ClearingAllIsAskedForAndNeedsNoSelection) {
  MemorySettingsStore store;
  store.Set(NumberedKey{"MemoryVar", "Var11", ""}, "11");
  MemoryVariablesModel model(RecallMode{}, store);
  EXPECT_EQ(model.ClearAllQuestion(), u"Are you sure you want to clear all variable?");
  model.ClearAll();
  for (int i = 0; i < 20; ++i) EXPECT_EQ(Stored(store, i), "0") << i;
}

TEST(MemoryVariablesModel, OpeningShowsWhatAnotherProgramStored) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  UserSettingsStore window(path);
  EXPECT_EQ(Stored(window, 0), "nothing stored");
  UserSettingsStore terminal(path);
  MemoryVariables(terminal).Set(0, "7");
  EXPECT_EQ(MemoryVariablesModel(RecallMode{}, window).Lines()[0], u"Mem01 = 7");
}

}  // namespace
}  // namespace kav::memory_variables_model_test
