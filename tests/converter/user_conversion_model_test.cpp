#include "converter/user_conversion_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "store/user_settings_store.h"
#include "support/stored_conversions.h"
#include "support/temporary_folder.h"

namespace kav::user_conversion_model_test {
namespace {

using test::kConversionCount;
using test::NumberedConversions;
using test::StoreConversions;
using test::StoredConversion;
using test::StoredConversions;
using Button = EditorButton;
using Buttons = std::set<EditorButton>;
using Conversions = std::vector<UserConversion>;
using Labels = std::vector<std::u16string>;

const Conversions kThree{{"inch -> cm", "2.54"}, {"mile -> km", "1.609344"}, {"h -> s", "3600"}};
const Buttons kListButtons{Button::New, Button::Edit, Button::Delete, Button::Close};
const Buttons kFieldButtons{Button::Save, Button::Cancel, Button::Memory};

constexpr Button kAllButtons[] = {Button::New,  Button::Edit,   Button::Delete, Button::Close,
                                  Button::Save, Button::Cancel, Button::Memory};

Buttons Shown(const UserConversionModel& model) {
  Buttons shown;
  for (const Button button : kAllButtons) {
    if (model.Shows(button)) shown.insert(button);
  }
  return shown;
}

Buttons Disabled(const UserConversionModel& model) {
  Buttons disabled;
  for (const Button button : kAllButtons) {
    if (!model.Enables(button)) disabled.insert(button);
  }
  return disabled;
}

/// The fields as one text: "inch|cm|2.54".
std::u16string Fields(const UserConversionModel& model) {
  return model.Fields().source + u"|" + model.Fields().target + u"|" + model.Fields().rate;
}

/// The message of a save, empty if it went well.
std::u16string Save(UserConversionModel& model) {
  const auto refusal = model.Save();
  return refusal ? refusal->text : std::u16string();
}

class UserConversionEditor : public testing::Test {
 protected:
  MemorySettingsStore store_;
};

class UserConversionEditorOfThree : public UserConversionEditor {
 protected:
  UserConversionEditorOfThree() { StoreConversions(store_, kThree); }
};

TEST_F(UserConversionEditor, WithoutConversionsOnlyNewIsOffered) {
  const UserConversionModel model(store_);
  EXPECT_EQ(Shown(model), (Buttons{Button::New, Button::Close}));
  EXPECT_EQ(model.DefaultButton(), Button::New);
  EXPECT_EQ(model.CountText(), u"List(0/60)");
  EXPECT_EQ(model.Labels(), Labels{});
  EXPECT_EQ(model.Selected(), std::nullopt);
  EXPECT_EQ(Fields(model), u"||0");
  EXPECT_FALSE(model.IsEditing());
}

TEST_F(UserConversionEditorOfThree, AtTheStartTheFirstIsShown) {
  const UserConversionModel model(store_);
  EXPECT_EQ(model.Labels(), (Labels{u"inch -> cm", u"mile -> km", u"h -> s"}));
  EXPECT_EQ(model.Selected(), 0);
  EXPECT_EQ(Fields(model), u"inch|cm|2.54");
  EXPECT_EQ(model.CountText(), u"List(3/60)");
  EXPECT_FALSE(model.IsEditing());
}

TEST_F(UserConversionEditorOfThree, TheButtonsOfOneModeAreHiddenInTheOther) {
  UserConversionModel model(store_);
  EXPECT_EQ(Shown(model), kListButtons);
  EXPECT_EQ(model.DefaultButton(), Button::Edit);
  model.Edit();
  EXPECT_EQ(Shown(model), kFieldButtons);
  EXPECT_EQ(model.DefaultButton(), Button::Save);
  model.Cancel();
  EXPECT_EQ(Shown(model), kListButtons);
  model.New();
  EXPECT_EQ(Shown(model), kFieldButtons);
  EXPECT_EQ(Disabled(model), Buttons{});
}

TEST_F(UserConversionEditor, WithSixtyNewIsHidden) {
  StoreConversions(store_, NumberedConversions(59));
  UserConversionModel model(store_);
  EXPECT_EQ(Shown(model), kListButtons);
  model.New();
  model.Take({u"last", u"one", u"1"});
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(Shown(model), (Buttons{Button::Edit, Button::Delete, Button::Close}));
  EXPECT_EQ(model.CountText(), u"List(60/60)");
  EXPECT_EQ(model.Selected(), 59);
}

TEST_F(UserConversionEditor, WithSixtyAnEditIsRefusedToo) {
  StoreConversions(store_, NumberedConversions(60));
  UserConversionModel model(store_);
  model.Edit();
  const auto refusal = model.Save();
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->text, u"Maximum of user-define unit convert is 60");
  EXPECT_EQ(refusal->focus, ConversionField::None);
  EXPECT_TRUE(model.IsEditing());
}

TEST_F(UserConversionEditorOfThree, TheSelectedOneIsShown) {
  UserConversionModel model(store_);
  model.Select(2);
  EXPECT_EQ(Fields(model), u"h|s|3600");
  for (const auto place : {std::optional<int>(), std::optional(3), std::optional(-1)}) {
    model.Select(place);
    EXPECT_EQ(model.Selected(), std::nullopt);
    EXPECT_EQ(Fields(model), u"||0");
    EXPECT_EQ(Shown(model), kListButtons);
    EXPECT_EQ(Disabled(model), (Buttons{Button::Edit, Button::Delete}));
    EXPECT_EQ(model.DefaultButton(), Button::New);
  }
}

TEST_F(UserConversionEditorOfThree, NothingIsEditedOrDeletedWithoutASelection) {
  UserConversionModel model(store_);
  model.Select(std::nullopt);
  model.Edit();
  EXPECT_FALSE(model.IsEditing());
  model.Delete();
  EXPECT_EQ(StoredConversions(store_), kThree);
}

TEST_F(UserConversionEditorOfThree, WhileBrowsingNothingIsTakenSavedOrCancelled) {
  UserConversionModel model(store_);
  model.Take({u"a", u"b", u"1"});
  model.TakeRate(u"5");
  EXPECT_EQ(Save(model), u"");
  model.Cancel();
  EXPECT_EQ(Fields(model), u"inch|cm|2.54");
  EXPECT_EQ(StoredConversions(store_), kThree);
}

TEST_F(UserConversionEditorOfThree, WhileEditingNothingIsSelectedOrDeleted) {
  UserConversionModel model(store_);
  model.Edit();
  model.Take({u"a", u"b", u"1"});
  model.Select(2);
  model.Delete();
  model.Reload();
  EXPECT_EQ(model.Selected(), 0);
  EXPECT_TRUE(model.IsEditing());
  EXPECT_EQ(Fields(model), u"a|b|1");
  EXPECT_EQ(StoredConversions(store_), kThree);
}

TEST_F(UserConversionEditorOfThree, ANewOneBeginsWithEmptyNamesAndRateZero) {
  UserConversionModel model(store_);
  model.New();
  EXPECT_EQ(Fields(model), u"||0");
  EXPECT_EQ(model.FirstField(), ConversionField::Source);
  EXPECT_EQ(Save(model), u"Please, Input a unit name");
  model.Take({u"ft", u"m", u"0.3048"});
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(model.Selected(), 3);
  EXPECT_EQ(model.Labels().back(), u"ft -> m");
  EXPECT_EQ(Fields(model), u"ft|m|0.3048");
  EXPECT_EQ(model.CountText(), u"List(4/60)");
  EXPECT_FALSE(model.IsEditing());
}

TEST_F(UserConversionEditorOfThree, AnEditBeginsWithTheRate) {
  UserConversionModel model(store_);
  model.Select(1);
  model.Edit();
  EXPECT_EQ(model.FirstField(), ConversionField::Rate);
  EXPECT_EQ(Fields(model), u"mile|km|1.609344");
  model.Take({u"mile", u"km", u"1.6"});
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(model.Selected(), 1);
  EXPECT_EQ(StoredConversion(store_, 1), (UserConversion{"mile -> km", "1.6"}));
  EXPECT_EQ(model.Labels().size(), 3U);
}

TEST_F(UserConversionEditor, ACommaInTheRateThatCouldBeADecimalOneIsRefused) {
  UserConversionModel model(store_);
  model.New();
  model.Take({u"inch", u"cm", u"2,54"});
  EXPECT_EQ(Save(model), u"The comma in \"2,54\" can be read in two ways. Write 2.54 or 254.");
  model.Take({u"inch", u"", u"2,54"});
  EXPECT_EQ(Save(model), u"Please, Input a unit name");
  model.Take({u"inch", u"cm", u"2.54"});
  EXPECT_EQ(Save(model), u"");
}

TEST_F(UserConversionEditor, StoredTextsAreSplitAtTheirFirstArrow) {
  StoreConversions(store_,
                   {{"a->bc", "1"}, {"a  ->  b", "x"}, {"plain", ""}, {"a -> b -> c", "2"}});
  UserConversionModel model(store_);
  EXPECT_EQ(Fields(model), u"a|c|1");
  model.Select(1);
  EXPECT_EQ(Fields(model), u"a | b|x");
  model.Select(2);
  EXPECT_EQ(Fields(model), u"plain||");
  model.Edit();
  EXPECT_EQ(Save(model), u"Please, Input a unit name");
  model.Cancel();
  model.Select(3);
  model.Edit();
  EXPECT_EQ(Save(model), u"Invalid unit name.");
}

TEST_F(UserConversionEditorOfThree, ARefusalKeepsWhatWasTyped) {
  UserConversionModel model(store_);
  model.Edit();
  model.Take({u"  h ", u" s ", u"x"});
  const auto refusal = model.Save();
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->text, u"h -> s exists already.");
  EXPECT_EQ(refusal->focus, ConversionField::Source);
  EXPECT_TRUE(model.IsEditing());
  EXPECT_EQ(Fields(model), u"  h | s |x");
}

TEST_F(UserConversionEditorOfThree, CancelShowsTheSelectedOneAgain) {
  UserConversionModel model(store_);
  model.Select(2);
  model.New();
  model.Take({u"a", u"b", u"1"});
  model.Cancel();
  EXPECT_EQ(Fields(model), u"h|s|3600");
  EXPECT_FALSE(model.IsEditing());
  model.Select(std::nullopt);
  model.New();
  model.Take({u"a", u"b", u"1"});
  model.Cancel();
  EXPECT_EQ(Fields(model), u"||0");
}

TEST_F(UserConversionEditorOfThree, ARecalledValueReplacesTheRate) {
  UserConversionModel model(store_);
  model.Edit();
  model.Take({u"a", u"b", u"123"});
  model.TakeRate(u"4.5");
  EXPECT_EQ(Fields(model), u"a|b|4.5");
}

TEST_F(UserConversionEditorOfThree, AfterDeletingTheNextOneIsSelectedOrTheNewLast) {
  UserConversionModel model(store_);
  model.Select(1);
  model.Delete();
  EXPECT_EQ(model.Selected(), 1);
  EXPECT_EQ(Fields(model), u"h|s|3600.000000");
  model.Delete();
  EXPECT_EQ(model.Selected(), 0);
  EXPECT_EQ(Fields(model), u"inch|cm|2.540000");
  EXPECT_EQ(model.CountText(), u"List(1/60)");
  model.Delete();
  EXPECT_EQ(model.Selected(), std::nullopt);
  EXPECT_EQ(Fields(model), u"||0");
  EXPECT_EQ(Shown(model), (Buttons{Button::New, Button::Close}));
  EXPECT_EQ(store_.Get(kConversionCount), 0);
}

TEST_F(UserConversionEditorOfThree, IfNoRateLosesDigitsTheQuestionStandsAlone) {
  UserConversionModel model(store_);
  EXPECT_EQ(model.DeleteQuestion(), u"Are you sure you want to delete the selected unit convert?");
  EXPECT_EQ(model.DeleteWarning(), u"");
}

TEST_F(UserConversionEditor, TheWarningNamesOthersThatLoseDigits) {
  StoreConversions(store_, {{"a -> b", "1e-9"}, {"c -> d", "1"}, {"e -> f", "0.0000001"}});
  UserConversionModel model(store_);
  const std::u16string warning =
      u"All rates will be stored with six decimals. These will lose digits:\n";
  EXPECT_EQ(model.DeleteWarning(), warning + u"e -> f");
  model.Select(1);
  EXPECT_EQ(model.DeleteWarning(), warning + u"a -> b\ne -> f");
}

TEST_F(UserConversionEditor, TheWarningIsShortHoweverManyAndLongTheNames) {
  Conversions many = NumberedConversions(60);
  for (auto& conversion : many) conversion.rateText = "1e-9";
  many[1].text = std::string(10000, 'w') + " -> x";
  many[2].text = "two\nlines -> x";
  StoreConversions(store_, many);
  const UserConversionModel model(store_);
  EXPECT_EQ(model.DeleteWarning(),
            u"All rates will be stored with six decimals. These will lose digits:\n" +
                std::u16string(40, u'w') +
                u"…\ntwo lines -> x\na3 -> b3\na4 -> b4\na5 -> b5\nand 54 more");
}

TEST_F(UserConversionEditor, FiveNamesAreAllGiven) {
  Conversions some = NumberedConversions(6);
  for (auto& conversion : some) conversion.rateText = "1e-9";
  StoreConversions(store_, some);
  const UserConversionModel model(store_);
  EXPECT_TRUE(model.DeleteWarning().ends_with(u"\na5 -> b5"));
}

TEST_F(UserConversionEditor, NamesOfTenThousandCharactersAreShownAndEditedInFull) {
  const std::u16string source(10000, u's');
  const std::u16string target(10000, u't');
  UserConversionModel model(store_);
  model.New();
  model.Take({source, target, u"2"});
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(Fields(model), source + u"|" + target + u"|2");
  model.Edit();
  model.Take({source + u"s", target, u"2"});
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(model.Fields().source, source + u"s");
}

TEST_F(UserConversionEditor, ANameTooLongForItsFieldIsKeptIfNobodyTouchesIt) {
  const std::string stored = std::string(1 << 20, 's') + " -> t";
  StoreConversions(store_, {{stored, "1"}});
  UserConversionModel model(store_);
  EXPECT_LT(model.Fields().source.size(), 20000U);
  EXPECT_TRUE(model.Fields().source.ends_with(u"…"));
  model.Edit();
  model.TakeRate(u"3");
  EXPECT_EQ(Save(model), u"");
  EXPECT_EQ(StoredConversion(store_, 0), (UserConversion{stored, "3"}));
}

/// The editor beside another program on the same settings.
class UserConversionEditorOfTwo : public testing::Test {
 protected:
  UserConversionEditorOfTwo() {
    StoreConversions(other_, kThree);
    EXPECT_TRUE(other_.Save());
  }
  const TemporaryFolder folder_;
  const std::string path_ = folder_.File("settings.toml");
  UserSettingsStore own_{path_};
  UserSettingsStore other_{path_};
};

TEST_F(UserConversionEditorOfTwo, WhatTheOtherStoredIsFound) {
  UserConversionModel model(own_);
  EXPECT_EQ(model.CountText(), u"List(3/60)");
  model.Select(2);
  ASSERT_TRUE(RemoveConversion({0, "inch -> cm"}, other_));
  ASSERT_TRUE(SaveConversion({u"tiny", u"x", u"1e-9"}, std::nullopt, other_));
  model.Reload();
  EXPECT_EQ(model.Labels(), (Labels{u"mile -> km", u"h -> s", u"tiny -> x"}));
  EXPECT_EQ(model.Selected(), 1);
  EXPECT_TRUE(model.DeleteWarning().ends_with(u"tiny -> x"));
  ASSERT_TRUE(RemoveConversion({1, "h -> s"}, other_));
  model.Edit();
  EXPECT_FALSE(model.IsEditing());
  EXPECT_EQ(model.Selected(), std::nullopt);
  EXPECT_EQ(Fields(model), u"||0");
}

TEST_F(UserConversionEditorOfTwo, DeletingWhatIsGoneDeletesNothingElse) {
  UserConversionModel model(own_);
  ASSERT_TRUE(RemoveConversion({0, "inch -> cm"}, other_));
  model.Delete();
  EXPECT_EQ(model.Labels(), (Labels{u"mile -> km", u"h -> s"}));
}

}  // namespace
}  // namespace kav::user_conversion_model_test
