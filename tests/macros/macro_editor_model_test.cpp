#include "macros/macro_editor_model.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <set>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "support/macro_fields.h"
#include "support/stored_macros.h"

namespace kav::macro_editor_model_test {
namespace {

using test::Fields;
using test::MacroNames;
using test::MacroTexts;
using test::MarkedLine;
using test::Spelled;
using test::StoreMacros;
using test::StoreNumbered;
using test::TextsOf;
using Names = std::vector<std::string>;
using Labels = std::vector<std::u16string>;
using Buttons = std::set<EditorButton>;

const std::vector<test::StoredMacro> kThree{{"sq", "TYPE1 : F(X)", "x^2"},
                                            {"add", "TYPE2 : F(X,Y)", "x+y"},
                                            {"vol", "TYPE3 : F(X,Y,Z)", "x*y*z"}};

constexpr EditorButton kAllButtons[] = {
    EditorButton::New,    EditorButton::Edit,      EditorButton::Delete,
    EditorButton::Close,  EditorButton::Save,      EditorButton::Cancel,
    EditorButton::Memory, EditorButton::Functions, EditorButton::Variables};

Buttons Shown(const MacroEditorModel& model) {
  Buttons shown;
  for (const EditorButton button : kAllButtons) {
    if (model.Shows(button)) shown.insert(button);
  }
  return shown;
}

Buttons Disabled(const MacroEditorModel& model) {
  Buttons disabled;
  for (const EditorButton button : kAllButtons) {
    if (!model.Enables(button)) disabled.insert(button);
  }
  return disabled;
}

class MacroEditor : public testing::Test {
 protected:
  /// The message of a save, empty if it went well.
  static std::u16string Save(MacroEditorModel& model) {
    const auto refusal = model.Save();
    return refusal ? refusal->text : std::u16string();
  }

  MemorySettingsStore store_;
};

class MacroEditorOfThree : public MacroEditor {
 protected:
  MacroEditorOfThree() { StoreMacros(store_, kThree); }
};

TEST_F(MacroEditor, WithoutMacrosOnlyNewIsOffered) {
  const MacroEditorModel model(store_);
  EXPECT_EQ(Shown(model), (Buttons{EditorButton::New, EditorButton::Close}));
  EXPECT_EQ(model.DefaultButton(), EditorButton::New);
  EXPECT_EQ(model.CountText(), u"List(0/60)");
  EXPECT_EQ(model.Selected(), std::nullopt);
  EXPECT_EQ(Spelled(model.Fields()), u"|-|");
  EXPECT_FALSE(model.IsEditing());
}

TEST_F(MacroEditorOfThree, AtTheStartTheFirstMacroIsShown) {
  const MacroEditorModel model(store_);
  EXPECT_EQ(model.Labels(), (Labels{u"sq(X)", u"add(X,Y)", u"vol(X,Y,Z)"}));
  EXPECT_EQ(model.Selected(), 0);
  EXPECT_EQ(Spelled(model.Fields()), u"sq|0|x^2");
  EXPECT_EQ(model.CountText(), u"List(3/60)");
}

TEST_F(MacroEditorOfThree, WhileBrowsingTheButtonsOfTheListAreOffered) {
  const MacroEditorModel model(store_);
  EXPECT_EQ(Shown(model), (Buttons{EditorButton::New, EditorButton::Edit, EditorButton::Delete,
                                   EditorButton::Close}));
  EXPECT_EQ(Disabled(model), Buttons{});
  EXPECT_EQ(model.DefaultButton(), EditorButton::Edit);
}

TEST_F(MacroEditorOfThree, WhileEditingTheButtonsOfTheFieldsAreOffered) {
  MacroEditorModel model(store_);
  model.Edit();
  EXPECT_EQ(Shown(model), (Buttons{EditorButton::New, EditorButton::Edit, EditorButton::Delete,
                                   EditorButton::Save, EditorButton::Cancel, EditorButton::Memory,
                                   EditorButton::Functions, EditorButton::Variables}));
  EXPECT_EQ(Disabled(model),
            (Buttons{EditorButton::New, EditorButton::Edit, EditorButton::Delete}));
  EXPECT_EQ(model.DefaultButton(), EditorButton::Save);
}

TEST_F(MacroEditor, WithSixtyMacrosNewIsHidden) {
  StoreNumbered(store_, 59);
  MacroEditorModel model(store_);
  EXPECT_TRUE(model.Shows(EditorButton::New));
  model.New();
  model.Take(Fields(u"last", VariableType::X, u"x"));
  EXPECT_EQ(Save(model), u"");
  EXPECT_FALSE(model.Shows(EditorButton::New));
  EXPECT_TRUE(model.Shows(EditorButton::Edit));
  EXPECT_TRUE(model.Shows(EditorButton::Delete));
  EXPECT_EQ(model.CountText(), u"List(60/60)");
  EXPECT_EQ(model.Selected(), 59);
}

TEST_F(MacroEditorOfThree, WithoutASelectionThereIsNothingToEditOrDelete) {
  MacroEditorModel model(store_);
  model.Select(std::nullopt);
  EXPECT_EQ(Disabled(model), (Buttons{EditorButton::Edit, EditorButton::Delete}));
  EXPECT_EQ(model.DefaultButton(), EditorButton::New);
  EXPECT_EQ(Spelled(model.Fields()), u"|-|");
  model.Edit();
  EXPECT_FALSE(model.IsEditing());
  model.Delete();
  EXPECT_EQ(model.Labels().size(), 3U);
}

TEST_F(MacroEditorOfThree, SelectingShowsThatMacrosFields) {
  MacroEditorModel model(store_);
  model.Select(1);
  EXPECT_EQ(Spelled(model.Fields()), u"add|1|x+y");
  model.Select(2);
  EXPECT_EQ(Spelled(model.Fields()), u"vol|2|x*y*z");
}

TEST_F(MacroEditorOfThree, WhileEditingTheSelectionStays) {
  MacroEditorModel model(store_);
  model.Select(1);
  model.Edit();
  model.Take(Fields(u"plus", VariableType::XY, u"x+y"));
  model.Select(2);
  EXPECT_EQ(model.Selected(), 1);
  EXPECT_EQ(Spelled(model.Fields()), u"plus|1|x+y");
}

TEST_F(MacroEditorOfThree, NewClearsTheFieldsAndTheChosenType) {
  MacroEditorModel model(store_);
  model.New();
  EXPECT_TRUE(model.IsEditing());
  EXPECT_EQ(Spelled(model.Fields()), u"|-|");
}

TEST_F(MacroEditorOfThree, ANewMacroIsStoredBehindTheOthersAndSelected) {
  MacroEditorModel model(store_);
  model.New();
  model.Take(Fields(u"  inv  ", VariableType::X, u"1/x"));
  EXPECT_EQ(Save(model), u"");
  EXPECT_FALSE(model.IsEditing());
  EXPECT_EQ(model.Selected(), 3);
  EXPECT_EQ(model.Labels().back(), u"inv(X)");
  EXPECT_EQ(model.CountText(), u"List(4/60)");
  EXPECT_EQ(Spelled(model.Fields()), u"inv|0|1/x");
  EXPECT_EQ(TextsOf(store_, 3), (MacroTexts{"inv", "TYPE1 : F(X)", "1/x"}));
}

TEST_F(MacroEditorOfThree, AnEditedMacroIsReplacedAndStaysSelected) {
  MacroEditorModel model(store_);
  model.Select(1);
  model.Edit();
  model.Take(Fields(u"half", VariableType::X, u"x/2"));
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(model.Selected(), 1);
  EXPECT_EQ(model.Labels(), (Labels{u"sq(X)", u"half(X)", u"vol(X,Y,Z)"}));
  EXPECT_EQ(TextsOf(store_, 1), (MacroTexts{"half", "TYPE1 : F(X)", "x/2"}));
}

TEST_F(MacroEditorOfThree, ARefusedSaveLeavesTheFieldsAsTypedAndNamesOneOfThem) {
  struct Row {
    MacroFields typed;
    std::u16string_view text;
    MacroField focus;
  };
  const auto x = VariableType::X;
  const Row rows[] = {
      {Fields(u"  ", x, u"x"), u"Macro Name is NULL", MacroField::Name},
      {Fields(u" f(x) ", x, u"x"), u"Can not use '(',')',':' in Macro Name.", MacroField::Name},
      {Fields(u"vol", x, u"x"), u"vol exists already.", MacroField::Name},
      {Fields(u"f", std::nullopt, u"x"), u"Argument Type is NULL", MacroField::Type},
      {Fields(u"f", x, u"  "), u"Macro Expression is NULL", MacroField::Formula},
      {Fields(u"f", x, u" x+ "), u"Expression error.", MacroField::Formula},
      {Fields(u"f", x, u"1"), u"Argument error : Missing variable X", MacroField::Formula},
      {Fields(u"f", x, u"x+z"), u"Can not use variable Z", MacroField::Formula},
  };
  for (const Row& row : rows) {
    MacroEditorModel model(store_);
    model.Edit();
    model.Take(row.typed);
    const auto refusal = model.Save();
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->text, row.text);
    EXPECT_EQ(refusal->focus, row.focus) << Narrow(row.text);
    EXPECT_TRUE(model.IsEditing());
    EXPECT_EQ(Spelled(model.Fields()), Spelled(row.typed));
  }
  EXPECT_EQ(TextsOf(store_, 0), (MacroTexts{"sq", "TYPE1 : F(X)", "x^2"}));
}

TEST_F(MacroEditor, TheLimitIsOnlyFoundWhenSaving) {
  StoreNumbered(store_, 59);
  MacroEditorModel model(store_);
  model.New();
  model.Take(Fields(u"mine", VariableType::X, u"x"));
  ASSERT_TRUE(SaveMacro({u"another", VariableType::X, u"x"}, std::nullopt, store_));
  const auto refusal = model.Save();
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->text, u"Maximum of macro is 60");
  EXPECT_EQ(refusal->focus, MacroField::None);
  EXPECT_TRUE(model.IsEditing());
}

TEST_F(MacroEditor, WithSixtyMacrosAnEditIsRefusedToo) {
  StoreNumbered(store_, 60);
  MacroEditorModel model(store_);
  model.Edit();
  EXPECT_EQ(Save(model), u"Maximum of macro is 60");
}

TEST_F(MacroEditorOfThree, CancelShowsTheSelectedMacroAgain) {
  for (const bool isNew : {false, true}) {
    MacroEditorModel model(store_);
    model.Select(1);
    isNew ? model.New() : model.Edit();
    model.Take(Fields(u"other", VariableType::X, u"x"));
    model.Cancel();
    EXPECT_FALSE(model.IsEditing());
    EXPECT_EQ(Spelled(model.Fields()), u"add|1|x+y");
    EXPECT_EQ(model.Selected(), 1);
  }
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "add", "vol"}));
}

TEST_F(MacroEditor, CancelClearsTheFieldsIfNothingIsSelected) {
  MacroEditorModel model(store_);
  model.New();
  model.Take(Fields(u"f", VariableType::X, u"x"));
  model.Cancel();
  EXPECT_EQ(Spelled(model.Fields()), u"|-|");
}

TEST_F(MacroEditorOfThree, AfterACancelledEditTheNextNewMacroIsNew) {
  MacroEditorModel model(store_);
  model.Edit();
  model.Cancel();
  model.New();
  model.Take(Fields(u"sq", VariableType::X, u"x"));
  EXPECT_EQ(Save(model), u"sq exists already.");
}

TEST_F(MacroEditorOfThree, AfterADeletionTheNextMacroIsSelectedOrElseTheLast) {
  MacroEditorModel model(store_);
  EXPECT_EQ(MacroEditorModel::DeleteQuestion(),
            u"Are you sure you want to delete the selected macro?");
  model.Select(1);
  model.Delete();
  EXPECT_EQ(model.Labels(), (Labels{u"sq(X)", u"vol(X,Y,Z)"}));
  EXPECT_EQ(Spelled(model.Fields()), u"vol|2|x*y*z");
  EXPECT_EQ(TextsOf(store_, 2), MacroTexts{});
  model.Delete();
  EXPECT_EQ(Spelled(model.Fields()), u"sq|0|x^2");
  EXPECT_EQ(model.CountText(), u"List(1/60)");
  model.Delete();
  EXPECT_EQ(Spelled(model.Fields()), u"|-|");
  EXPECT_EQ(model.Selected(), std::nullopt);
  EXPECT_EQ(Shown(model), (Buttons{EditorButton::New, EditorButton::Close}));
}

TEST_F(MacroEditorOfThree, NothingIsDeletedWhileEditing) {
  MacroEditorModel model(store_);
  model.Edit();
  model.Delete();
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "add", "vol"}));
}

TEST_F(MacroEditorOfThree, WhileBrowsingWhatIsTypedOrChosenHasNoEffect) {
  MacroEditorModel model(store_);
  model.Take(Fields(u"other", VariableType::XYZ, u"z"));
  model.ChooseFunction(0);
  model.ChooseVariable(0);
  model.InsertIntoFormula(u"5");
  model.Cancel();
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(Spelled(model.Fields()), u"sq|0|x^2");
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "add", "vol"}));
}

TEST_F(MacroEditor, ABrokenFormulaStoredByHandOpensAndCanBeMended) {
  StoreMacros(store_, {{"bad", "TYPE1 : F(X)", "x+foo("}});
  MacroEditorModel model(store_);
  EXPECT_EQ(Spelled(model.Fields()), u"bad|0|x+foo(");
  model.Edit();
  EXPECT_EQ(Save(model), u"foo is not supported.");
  model.Take(Fields(u"bad", VariableType::X, u"x+1"));
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(TextsOf(store_, 0), (MacroTexts{"bad", "TYPE1 : F(X)", "x+1"}));
}

TEST_F(MacroEditor, StoredLineBreaksAreShownAsBlanks) {
  StoreMacros(store_, {{"two\nlines", "TYPE1 : F(X)", "x\n+\t1"}});
  const MacroEditorModel model(store_);
  EXPECT_EQ(Spelled(model.Fields()), u"two lines|0|x + 1");
}

class MacroEditorOfLongTexts : public MacroEditor {
 protected:
  MacroEditorOfLongTexts() {
    StoreMacros(store_, {{name_, "TYPE1 : F(X)", formula_}, {"fine", "TYPE1 : F(X)", "x"}});
  }

  const std::string name_ = std::string(1 << 20, 'n');
  const std::string formula_ = "x" + std::string(1 << 20, '+');
};

TEST_F(MacroEditorOfLongTexts, TheyAreCutVisiblyInTheFields) {
  const MacroEditorModel model(store_);
  EXPECT_EQ(model.Fields().name, std::u16string(1000, u'n') + u"…");
  EXPECT_EQ(model.Fields().formula.Text(), u"x" + std::u16string(999, u'+') + u"…");
}

TEST_F(MacroEditorOfLongTexts, NoHalfOfACharacterIsShown) {
  std::string smileys;
  for (int i = 0; i < 600; ++i) smileys += "😀";
  StoreMacros(store_, {{"a" + smileys, "TYPE1 : F(X)", "x"}});
  const MacroEditorModel model(store_);
  EXPECT_EQ(model.Fields().name.size(), 1000U);
  EXPECT_EQ(Widen(Narrow(model.Fields().name)), model.Fields().name);
}

TEST_F(MacroEditorOfLongTexts, ACutFormulaCannotBeSavedAndIsNotLost) {
  MacroEditorModel model(store_);
  model.Edit();
  EXPECT_EQ(Save(model), u"Macro Expression has 1001 characters, more than 150.");
  model.Cancel();
  EXPECT_EQ(TextsOf(store_, 0).formula, formula_);
}

TEST_F(MacroEditorOfLongTexts, ANameThatNobodyTouchedStaysWhole) {
  MacroEditorModel model(store_);
  model.Edit();
  model.Take({model.Fields().name, VariableType::X, MarkedLine(u"x+1|")});
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(TextsOf(store_, 0), (MacroTexts{name_, "TYPE1 : F(X)", "x+1"}));
}

TEST(MacroEditorHelp, EveryButtonButCloseSaysWhatItDoes) {
  for (const auto button : {EditorButton::New, EditorButton::Edit, EditorButton::Delete,
                            EditorButton::Save, EditorButton::Cancel, EditorButton::Memory,
                            EditorButton::Functions, EditorButton::Variables}) {
    EXPECT_NE(MacroEditorModel::HelpOf(button), u"") << static_cast<int>(button);
  }
  EXPECT_EQ(MacroEditorModel::HelpOf(EditorButton::New), u"begin a new macro");
  EXPECT_EQ(MacroEditorModel::HelpOf(EditorButton::Close), u"");
}

}  // namespace
}  // namespace kav::macro_editor_model_test
