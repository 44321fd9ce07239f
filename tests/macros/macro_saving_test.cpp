#include "macros/macro_saving.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "macros/macro_store.h"
#include "store/user_settings_store.h"
#include "support/is_stored.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"

namespace kav::macro_saving_test {
namespace {

using test::MacroNames;
using test::MacroTexts;
using test::StoredMacro;
using test::StoreMacros;
using test::TextsOf;
using Names = std::vector<std::string>;

const SettingKey<std::int32_t> kCount{"MacroInfo", "TotalNumber", 0};

const std::vector<StoredMacro> kThree{{"sq", "TYPE1 : F(X)", "x^2"},
                                      {"add", "TYPE2 : F(X,Y)", "x+y"},
                                      {"vol", "TYPE3 : F(X,Y,Z)", "x*y*z"}};

TypedMacro Typed(std::u16string name, std::u16string formula, VariableType type = VariableType::X) {
  return {std::move(name), type, std::move(formula)};
}

/// The refusal's text, empty if there was none.
std::u16string TextOf(const Expected<int, Refusal<MacroField>>& saved) {
  return saved ? std::u16string() : saved.error().text;
}

std::u16string Times(std::size_t count, std::u16string_view text) {
  std::u16string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

class MacroSaving : public testing::Test {
 protected:
  /// Saves as a new macro, which is to be refused.
  Refusal<MacroField> Refused(const TypedMacro& typed) {
    const auto saved = SaveMacro(typed, std::nullopt, store_);
    EXPECT_FALSE(saved);
    return saved ? Refusal<MacroField>{} : saved.error();
  }

  MemorySettingsStore store_;
};

TEST_F(MacroSaving, TheFirstMacroIsStoredInFull) {
  const auto saved = SaveMacro(Typed(u"sq", u"x^2"), std::nullopt, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 0);
  EXPECT_EQ(TextsOf(store_, 0), (MacroTexts{"sq", "TYPE1 : F(X)", "x^2"}));
  EXPECT_EQ(store_.Get(kCount), 1);
}

TEST_F(MacroSaving, EachTypeIsStoredByItsText) {
  struct Row {
    VariableType type;
    std::u16string_view formula;
    std::string_view text;
  };
  for (const Row& row :
       {Row{VariableType::X, u"x", "TYPE1 : F(X)"}, Row{VariableType::XY, u"x+y", "TYPE2 : F(X,Y)"},
        Row{VariableType::XYZ, u"x+y+z", "TYPE3 : F(X,Y,Z)"}}) {
    MemorySettingsStore store;
    ASSERT_TRUE(SaveMacro({u"m", row.type, std::u16string(row.formula)}, std::nullopt, store));
    EXPECT_EQ(TextsOf(store, 0).type, row.text);
  }
}

TEST_F(MacroSaving, ANewMacroGoesBehindTheOthers) {
  StoreMacros(store_, kThree);
  const auto saved = SaveMacro(Typed(u"inv", u"1/x"), std::nullopt, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 3);
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "add", "vol", "inv"}));
  EXPECT_EQ(store_.Get(kCount), 4);
}

TEST_F(MacroSaving, BlanksAroundNameAndFormulaAreTakenOff) {
  struct Row {
    std::u16string_view name;
    std::u16string_view formula;
    MacroTexts stored;
  };
  const MacroTexts sq{"sq", "TYPE1 : F(X)", "x^2"};
  const Row rows[] = {
      {u"  sq  ", u"  x^2  ", sq},
      {u"sq", u"x^2\n", sq},
      {u"\tsq\r\n", u"\n x^2\t", sq},
      {u"  my sq ", u" x ^ 2 ", {"my sq", "TYPE1 : F(X)", "x ^ 2"}},
      {u"my\nsq", u"x\n+\t1", {"my sq", "TYPE1 : F(X)", "x + 1"}},
      {u"größe", u"x", {"größe", "TYPE1 : F(X)", "x"}},
  };
  for (const Row& row : rows) {
    MemorySettingsStore store;
    const auto saved = SaveMacro(Typed(std::u16string(row.name), std::u16string(row.formula)),
                                 std::nullopt, store);
    EXPECT_EQ(TextOf(saved), u"");
    EXPECT_EQ(TextsOf(store, 0), row.stored);
  }
}

TEST_F(MacroSaving, WhatCannotBeStoredIsRefusedAndNamesItsField) {
  StoreMacros(store_, kThree);
  struct Row {
    TypedMacro typed;
    std::u16string_view text;
    MacroField focus;
  };
  const auto x = VariableType::X;
  const auto xy = VariableType::XY;
  const std::u16string_view marks = u"Can not use '(',')',':' in Macro Name.";
  const Row rows[] = {
      {{u"", x, u"x"}, u"Macro Name is NULL", MacroField::Name},
      {{u"   ", x, u"x"}, u"Macro Name is NULL", MacroField::Name},
      {{u"\n\t", x, u"x"}, u"Macro Name is NULL", MacroField::Name},
      {{u"f(x)", x, u"x"}, marks, MacroField::Name},
      {{u"f(", x, u"x"}, marks, MacroField::Name},
      {{u")", x, u"x"}, marks, MacroField::Name},
      {{u"M:f", x, u"x"}, marks, MacroField::Name},
      {{u"sq", x, u"x"}, u"sq exists already.", MacroField::Name},
      {{u" vol ", x, u"x"}, u"vol exists already.", MacroField::Name},
      {{u"f", std::nullopt, u"x"}, u"Argument Type is NULL", MacroField::Type},
      {{u"f", x, u""}, u"Macro Expression is NULL", MacroField::Formula},
      {{u"f", x, u" \n "}, u"Macro Expression is NULL", MacroField::Formula},
      {{u"f", x, u"x+foo"}, u"foo is not supported.", MacroField::Formula},
      {{u"f", x, u"x+"}, u"Expression error.", MacroField::Formula},
      {{u"f", x, u"(x"}, u"Not matched '(' and ')'.", MacroField::Formula},
      {{u"f", x, u"x+y"}, u"Can not use variable Y", MacroField::Formula},
      {{u"f", xy, u"x+y+z"}, u"Can not use variable Z", MacroField::Formula},
      {{u"f", xy, u"x^2"}, u"Argument error : Missing variable Y", MacroField::Formula},
      {{u"f", x, u"M:sq(x)"}, u"m is not supported.", MacroField::Formula},
  };
  for (const Row& row : rows) {
    const auto refusal = Refused(row.typed);
    EXPECT_EQ(refusal.text, row.text);
    EXPECT_EQ(refusal.focus, row.focus) << Narrow(row.text);
  }
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "add", "vol"}));
  EXPECT_EQ(store_.Get(kCount), 3);
  EXPECT_EQ(TextsOf(store_, 3), MacroTexts{});
}

TEST_F(MacroSaving, OfSeveralReasonsTheFirstIsGiven) {
  StoreMacros(store_, kThree);
  EXPECT_EQ(Refused({u"", std::nullopt, u""}).text, u"Macro Name is NULL");
  EXPECT_EQ(Refused({u"f(", std::nullopt, u""}).text, u"Can not use '(',')',':' in Macro Name.");
  EXPECT_EQ(Refused({u"sq", std::nullopt, u""}).text, u"sq exists already.");
  EXPECT_EQ(Refused({u"f", std::nullopt, u""}).text, u"Argument Type is NULL");
  EXPECT_EQ(Refused(Typed(u"f", Times(151, u"$"))).text,
            u"Macro Expression has 151 characters, more than 150.");
}

TEST_F(MacroSaving, NamesAreToldApartByCase) {
  StoreMacros(store_, kThree);
  EXPECT_EQ(TextOf(SaveMacro(Typed(u"SQ", u"x"), std::nullopt, store_)), u"");
}

TEST_F(MacroSaving, AMessageDoesNotRepeatALongNameInFull) {
  const std::string name(1 << 20, 'n');
  StoreMacros(store_, {{name, "TYPE1 : F(X)", "x"}});
  EXPECT_EQ(Refused(Typed(Widen(name), u"x")).text, Times(200, u"n") + u"…" + u" exists already.");
}

TEST_F(MacroSaving, AFormulaMayHave150Characters) {
  const std::u16string longest = u"x" + Times(74, u"+x") + u"!";
  ASSERT_EQ(longest.size(), 150U);
  EXPECT_EQ(TextOf(SaveMacro(Typed(u"f", u"  " + longest + u"\n"), std::nullopt, store_)), u"");
  EXPECT_EQ(TextsOf(store_, 0).formula, Narrow(longest));
}

TEST_F(MacroSaving, ALongerFormulaIsRefusedNotCut) {
  const auto refusal = Refused(Typed(u"f", u"x" + Times(75, u"+x")));
  EXPECT_EQ(refusal.text, u"Macro Expression has 151 characters, more than 150.");
  EXPECT_EQ(refusal.focus, MacroField::Formula);
  EXPECT_EQ(Refused(Typed(u"f", std::u16string(1 << 20, u'x'))).text,
            u"Macro Expression has 1048576 characters, more than 150.");
}

TEST_F(MacroSaving, AnEditedMacroKeepsItsPlace) {
  StoreMacros(store_, kThree);
  const auto saved =
      SaveMacro(Typed(u"plus", u"x+y+1", VariableType::XY), StoredIdentity{1, "add"}, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 1);
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "plus", "vol"}));
  EXPECT_EQ(TextsOf(store_, 1), (MacroTexts{"plus", "TYPE2 : F(X,Y)", "x+y+1"}));
  EXPECT_EQ(store_.Get(kCount), 3);
}

TEST_F(MacroSaving, AnEditedMacroMayKeepItsNameButNotTakeAnothers) {
  StoreMacros(store_, kThree);
  const StoredIdentity sq{0, "sq"};
  EXPECT_EQ(TextOf(SaveMacro(Typed(u"sq", u"x*x"), sq, store_)), u"");
  EXPECT_EQ(TextsOf(store_, 0).formula, "x*x");
  EXPECT_EQ(TextOf(SaveMacro(Typed(u"vol", u"x*x"), sq, store_)), u"vol exists already.");
}

TEST_F(MacroSaving, AnEditedMacroThatMovedIsFoundByItsName) {
  StoreMacros(store_, kThree);
  ASSERT_TRUE(RemoveMacro({0, "sq"}, store_));
  const auto saved =
      SaveMacro(Typed(u"plus", u"x+y", VariableType::XY), StoredIdentity{1, "add"}, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 0);
  EXPECT_EQ(MacroNames(store_), (Names{"plus", "vol"}));
}

TEST_F(MacroSaving, AnEditedMacroThatIsGoneIsAddedAnew) {
  StoreMacros(store_, kThree);
  ASSERT_TRUE(RemoveMacro({1, "add"}, store_));
  const auto saved =
      SaveMacro(Typed(u"add", u"x+y", VariableType::XY), StoredIdentity{1, "add"}, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 2);
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "vol", "add"}));
}

TEST_F(MacroSaving, AnIdentityWithAWrongPlaceIsFoundByItsName) {
  StoreMacros(store_, kThree);
  for (const int place : {-1, -2147483647 - 1, 3, 2147483647}) {
    const auto saved = SaveMacro(Typed(u"sq", u"x"), StoredIdentity{place, "sq"}, store_);
    ASSERT_TRUE(saved);
    EXPECT_EQ(*saved, 0) << place;
  }
}

class FullMacroSaving : public MacroSaving {
 protected:
  FullMacroSaving() {
    std::vector<std::string> names;
    for (int i = 0; i < 60; ++i) names.push_back("m" + std::to_string(i));
    std::vector<StoredMacro> macros;
    for (const auto& name : names) macros.push_back({name, "TYPE1 : F(X)", "x"});
    StoreMacros(store_, macros);
  }
};

TEST_F(FullMacroSaving, The61stIsRefusedBeforeAnythingElseIsLookedAt) {
  for (const TypedMacro& typed : {Typed(u"new", u"x"), TypedMacro{}}) {
    const auto refusal = Refused(typed);
    EXPECT_EQ(refusal.text, u"Maximum of macro is 60");
    EXPECT_EQ(refusal.focus, MacroField::None);
  }
  EXPECT_EQ(MacroNames(store_).size(), 60U);
}

TEST_F(FullMacroSaving, AnEditIsRefusedTooWhileThereAreSixty) {
  const auto saved = SaveMacro(Typed(u"m7", u"x*2"), StoredIdentity{7, "m7"}, store_);
  EXPECT_EQ(TextOf(saved), u"Maximum of macro is 60");
  EXPECT_EQ(TextsOf(store_, 7).formula, "x");
}

TEST_F(FullMacroSaving, TheSixtiethIsSaved) {
  ASSERT_TRUE(RemoveMacro({59, "m59"}, store_));
  const auto saved = SaveMacro(Typed(u"new", u"x"), std::nullopt, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 59);
  EXPECT_EQ(store_.Get(kCount), 60);
}

TEST_F(MacroSaving, RemovingMovesThoseBehindUpAndBlanksTheLastSection) {
  StoreMacros(store_, kThree);
  EXPECT_TRUE(RemoveMacro({0, "sq"}, store_));
  EXPECT_EQ(TextsOf(store_, 0), (MacroTexts{"add", "TYPE2 : F(X,Y)", "x+y"}));
  EXPECT_EQ(TextsOf(store_, 1), (MacroTexts{"vol", "TYPE3 : F(X,Y,Z)", "x*y*z"}));
  EXPECT_EQ(TextsOf(store_, 2), MacroTexts{});
  EXPECT_EQ(store_.Get(kCount), 2);
  for (const char* name : {"Name", "Type", "Formula"}) {
    EXPECT_TRUE(test::IsStored(store_, "Macro2", name)) << name << " is blank, not gone";
  }
}

TEST_F(MacroSaving, RemovingFromTheMiddleAndTheEndLeavesTheOthers) {
  StoreMacros(store_, kThree);
  EXPECT_TRUE(RemoveMacro({1, "add"}, store_));
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "vol"}));
  EXPECT_TRUE(RemoveMacro({1, "vol"}, store_));
  EXPECT_EQ(MacroNames(store_), (Names{"sq"}));
  EXPECT_TRUE(RemoveMacro({0, "sq"}, store_));
  EXPECT_EQ(MacroNames(store_), Names{});
  EXPECT_EQ(store_.Get(kCount), 0);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(TextsOf(store_, i), MacroTexts{}) << i;
}

TEST_F(MacroSaving, RemovingMovesTextsAsTheyAreStored) {
  StoreMacros(store_, {{"a", "", "x"}, {" b ", "any other", "  broken( "}});
  EXPECT_TRUE(RemoveMacro({0, "a"}, store_));
  EXPECT_EQ(TextsOf(store_, 0), (MacroTexts{" b ", "any other", "  broken( "}));
}

TEST_F(MacroSaving, WhatMovedIsRemovedByItsNameAndWhatIsGoneIsNot) {
  StoreMacros(store_, kThree);
  EXPECT_TRUE(RemoveMacro({0, "vol"}, store_));
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "add"}));
  EXPECT_FALSE(RemoveMacro({0, "vol"}, store_));
  EXPECT_FALSE(RemoveMacro({7, "seven"}, store_));
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "add"}));
}

TEST_F(MacroSaving, AWrongCountIsMendedBySavingAndByRemoving) {
  for (const std::int32_t wrong : {-5, 0, 1, 60, 2147483647}) {
    MemorySettingsStore store;
    StoreMacros(store, kThree);
    store.Set(kCount, wrong);
    ASSERT_TRUE(SaveMacro(Typed(u"f", u"x"), std::nullopt, store));
    EXPECT_EQ(MacroNames(store), (Names{"sq", "add", "vol", "f"})) << wrong;
    EXPECT_EQ(store.Get(kCount), 4) << wrong;
    store.Set(kCount, wrong);
    ASSERT_TRUE(RemoveMacro({1, "add"}, store));
    EXPECT_EQ(MacroNames(store), (Names{"sq", "vol", "f"})) << wrong;
    EXPECT_EQ(store.Get(kCount), 3) << wrong;
  }
}

/// Two programs on the same settings.
class MacroSavingOfTwo : public testing::Test {
 protected:
  const TemporaryFolder folder_;
  const std::string path_ = folder_.File("settings.toml");
  UserSettingsStore one_{path_};
  UserSettingsStore other_{path_};
};

TEST_F(MacroSavingOfTwo, MacrosOfBothAreKept) {
  // Each has read the settings before the other stores anything.
  EXPECT_EQ(MacroNames(one_), Names{});
  EXPECT_EQ(MacroNames(other_), Names{});
  ASSERT_TRUE(SaveMacro(Typed(u"a", u"x"), std::nullopt, one_));
  ASSERT_TRUE(SaveMacro(Typed(u"b", u"x"), std::nullopt, other_));
  ASSERT_TRUE(SaveMacro(Typed(u"c", u"x"), std::nullopt, one_));
  EXPECT_EQ(MacroNames(UserSettingsStore(path_)), (Names{"a", "b", "c"}));
}

TEST_F(MacroSavingOfTwo, ANameThatTheOtherTookIsRefused) {
  EXPECT_EQ(MacroNames(one_), Names{});
  ASSERT_TRUE(SaveMacro(Typed(u"a", u"x"), std::nullopt, other_));
  EXPECT_EQ(TextOf(SaveMacro(Typed(u"a", u"2*x"), std::nullopt, one_)), u"a exists already.");
}

TEST_F(MacroSavingOfTwo, AnEditFindsItsMacroAfterTheOtherRemovedOneBeforeIt) {
  ASSERT_TRUE(SaveMacro(Typed(u"a", u"x"), std::nullopt, one_));
  ASSERT_TRUE(SaveMacro(Typed(u"b", u"x"), std::nullopt, one_));
  ASSERT_TRUE(RemoveMacro({0, "a"}, other_));
  const auto saved = SaveMacro(Typed(u"c", u"x"), StoredIdentity{1, "b"}, one_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 0);
  EXPECT_EQ(MacroNames(UserSettingsStore(path_)), (Names{"c"}));
}

}  // namespace
}  // namespace kav::macro_saving_test
