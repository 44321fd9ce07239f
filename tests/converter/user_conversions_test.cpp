#include "converter/user_conversions.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "converter/converter_model.h"
#include "store/user_settings_store.h"
#include "support/stored_conversions.h"
#include "support/temporary_folder.h"

namespace kav::user_conversions_test {
namespace {

using test::kConversionCount;
using test::NumberedConversions;
using test::StoreConversion;
using test::StoreConversions;
using test::StoredConversion;
using test::StoredConversions;
using Conversions = std::vector<UserConversion>;

const Conversions kThree{{"inch -> cm", "2.54"}, {"mile -> km", "1.609344"}, {"h -> s", "3600"}};

/// The refusal's text, empty if there was none.
std::u16string TextOf(const Expected<int, Refusal<ConversionField>>& saved) {
  return saved ? std::u16string() : saved.error().text;
}

class UserConversions : public testing::Test {
 protected:
  Expected<int, Refusal<ConversionField>> Add(const TypedConversion& typed) {
    return SaveConversion(typed, std::nullopt, store_);
  }
  /// Saves as a new conversion, which is to be refused.
  Refusal<ConversionField> Refused(const TypedConversion& typed) {
    const auto saved = Add(typed);
    EXPECT_FALSE(saved);
    return saved ? Refusal<ConversionField>{} : saved.error();
  }

  MemorySettingsStore store_;
};

class ThreeUserConversions : public UserConversions {
 protected:
  ThreeUserConversions() { StoreConversions(store_, kThree); }
};

TEST_F(UserConversions, WithoutSettingsThereAreNone) {
  EXPECT_EQ(LoadUserConversions(store_), Conversions{});
}

TEST_F(ThreeUserConversions, AreLoadedInTheirOrder) {
  EXPECT_EQ(LoadUserConversions(store_), kThree);
}

TEST_F(ThreeUserConversions, TheCountAloneTellsHowManyThereAre) {
  struct Row {
    std::int32_t count;
    std::size_t loaded;
  };
  for (const Row& row : {Row{-2147483647 - 1, 0}, Row{-1, 0}, Row{0, 0}, Row{2, 2}, Row{3, 3},
                         Row{4, 3}, Row{60, 3}, Row{61, 3}, Row{2147483647, 3}}) {
    store_.Set(kConversionCount, row.count);
    EXPECT_EQ(LoadUserConversions(store_).size(), row.loaded) << row.count;
  }
}

TEST_F(UserConversions, NoMoreThanSixtyAreLoaded) {
  StoreConversions(store_, NumberedConversions(70));
  EXPECT_EQ(LoadUserConversions(store_), NumberedConversions(60));
}

TEST_F(UserConversions, EmptyPlacesBeforeOthersAreKept) {
  const Conversions stored{{"", ""}, {"a -> b", "2"}, {"", "3"}, {"c -> d", ""}};
  StoreConversions(store_, stored);
  store_.Set(kConversionCount, 9);
  EXPECT_EQ(LoadUserConversions(store_), stored);
}

TEST_F(UserConversions, RatesAreReadFromTheNumberThatOpensTheirText) {
  struct Row {
    const char* text;
    double rate;
  };
  for (const Row& row :
       {Row{"2.54", 2.54}, Row{" 2.54 ", 2.54}, Row{"1e-300", 1e-300}, Row{"-3", -3}, Row{"", 0},
        Row{"x", 0}, Row{"2,5", 2}, Row{"inf", 0}, Row{"nan", 0}, Row{"0x10", 0}, Row{"5 cm", 5}}) {
    EXPECT_EQ((UserConversion{"a -> b", row.text}.Rate()), row.rate) << row.text;
  }
}

TEST_F(UserConversions, TheFirstIsStoredInFull) {
  const auto saved = Add({u"inch", u"cm", u"2.54"});
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 0);
  EXPECT_EQ(StoredConversion(store_, 0), (UserConversion{"inch -> cm", "2.54"}));
  EXPECT_EQ(store_.Get(kConversionCount), 1);
}

TEST_F(ThreeUserConversions, ANewOneGoesBehindTheOthers) {
  const auto saved = Add({u"ft", u"m", u"0.3048"});
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 3);
  Conversions four = kThree;
  four.push_back({"ft -> m", "0.3048"});
  EXPECT_EQ(StoredConversions(store_), four);
}

TEST_F(UserConversions, TextsAreStoredAsTypedButForTheBlanksAroundThem) {
  struct Row {
    TypedConversion typed;
    UserConversion stored;
  };
  const Row rows[] = {
      {{u"  inch ", u" cm  ", u" 2.540 "}, {"inch -> cm", "2.540"}},
      {{u"sq ft", u"sq m", u"+9.2903e-02"}, {"sq ft -> sq m", "+9.2903e-02"}},
      {{u"a", u"b", u"1E-300"}, {"a -> b", "1E-300"}},
      {{u"a", u"b", u"0.0000001"}, {"a -> b", "0.0000001"}},
      {{u"Grad °", u"µm", u"-1"}, {"Grad ° -> µm", "-1"}},
      {{u"a -", u"> b", u"1"}, {"a - -> > b", "1"}},
      {{u"a\n", u"\tb\r\n", u"1\n"}, {"a -> b", "1"}},
  };
  for (const Row& row : rows) {
    MemorySettingsStore store;
    EXPECT_EQ(TextOf(SaveConversion(row.typed, std::nullopt, store)), u"");
    EXPECT_EQ(StoredConversion(store, 0), row.stored);
  }
}

TEST_F(ThreeUserConversions, WhatCannotBeStoredIsRefusedAndNamesItsField) {
  struct Row {
    TypedConversion typed;
    std::u16string_view text;
    ConversionField focus;
  };
  const std::u16string_view empty = u"Please, Input a unit name";
  const std::u16string_view arrow = u"Invalid unit name.";
  const std::u16string_view rate = u"Invalid convert rate";
  const Row rows[] = {
      {{u"", u"b", u"1"}, empty, ConversionField::Source},
      {{u"   ", u"b", u"1"}, empty, ConversionField::Source},
      {{u"a", u"", u"1"}, empty, ConversionField::Target},
      {{u"a", u"  ", u"1"}, empty, ConversionField::Target},
      {{u"m->s", u"b", u"1"}, arrow, ConversionField::Source},
      {{u"->", u"b", u"1"}, arrow, ConversionField::Source},
      {{u"a", u"m->s", u"1"}, arrow, ConversionField::Target},
      {{u"a", u"m->", u"1"}, arrow, ConversionField::Target},
      {{u"inch", u"cm", u"1"}, u"inch -> cm exists already.", ConversionField::Source},
      {{u" h ", u" s ", u"1"}, u"h -> s exists already.", ConversionField::Source},
      {{u"a", u"b", u"0"}, rate, ConversionField::Rate},
      {{u"a", u"b", u"-0.0"}, rate, ConversionField::Rate},
      {{u"a", u"b", u"1e-999"}, rate, ConversionField::Rate},
      {{u"a", u"b", u"1e999"}, rate, ConversionField::Rate},
      {{u"a", u"b", u""}, rate, ConversionField::Rate},
      {{u"a", u"b", u"inf"}, rate, ConversionField::Rate},
      {{u"a", u"b", u"nan"}, rate, ConversionField::Rate},
      {{u"a", u"b", u"0x10"}, rate, ConversionField::Rate},
      {{u"a", u"b", u"1,000"}, rate, ConversionField::Rate},
      {{u"a", u"b", u"2*3"}, rate, ConversionField::Rate},
  };
  for (const Row& row : rows) {
    const auto refusal = Refused(row.typed);
    EXPECT_EQ(refusal.text, row.text);
    EXPECT_EQ(refusal.focus, row.focus) << Narrow(row.text);
  }
  EXPECT_EQ(StoredConversions(store_), kThree);
  EXPECT_EQ(StoredConversion(store_, 3), UserConversion{});
}

TEST_F(ThreeUserConversions, OfSeveralReasonsTheFirstIsGiven) {
  struct Row {
    TypedConversion typed;
    std::u16string_view text;
    ConversionField focus;
  };
  const Row rows[] = {
      {{u"", u"", u""}, u"Please, Input a unit name", ConversionField::Source},
      {{u"a->", u"", u""}, u"Please, Input a unit name", ConversionField::Target},
      {{u"", u"->", u""}, u"Please, Input a unit name", ConversionField::Source},
      {{u"a->", u"b->", u""}, u"Invalid unit name.", ConversionField::Source},
      {{u"inch", u"cm", u"0"}, u"inch -> cm exists already.", ConversionField::Source},
  };
  for (const Row& row : rows) {
    const auto refusal = Refused(row.typed);
    EXPECT_EQ(refusal.text, row.text);
    EXPECT_EQ(refusal.focus, row.focus) << Narrow(row.text);
  }
}

TEST_F(ThreeUserConversions, TheSamePairIsToldApartByCaseAndByDirection) {
  EXPECT_EQ(TextOf(Add({u"Inch", u"cm", u"1"})), u"");
  EXPECT_EQ(TextOf(Add({u"cm", u"inch", u"1"})), u"");
}

TEST_F(UserConversions, NamesOfTenThousandCharactersAreStored) {
  const std::u16string source(10000, u'a');
  const std::u16string target(10000, u'ß');
  ASSERT_TRUE(Add({source, target, u"1e-300"}));
  const auto stored = LoadUserConversions(store_);
  ASSERT_EQ(stored.size(), 1U);
  EXPECT_EQ(stored[0].text, std::string(10000, 'a') + " -> " + Narrow(target));
  EXPECT_EQ(stored[0].Rate(), 1e-300);
  const UnitNames names = SplitConversion(Widen(stored[0].text));
  EXPECT_EQ(names.source, source);
  EXPECT_EQ(names.target, target);
  EXPECT_EQ(Refused({source, target, u"1"}).text,
            std::u16string(200, u'a') + u"…" + u" exists already.");
}

TEST_F(UserConversions, AMessageDoesNotCutACharacterInTwo) {
  const std::u16string source = std::u16string(199, u'a') + u"😀";
  ASSERT_TRUE(Add({source, u"b", u"1"}));
  EXPECT_EQ(Refused({source, u"b", u"1"}).text,
            std::u16string(199, u'a') + u"…" + u" exists already.");
}

TEST_F(ThreeUserConversions, AnEditedOneKeepsItsPlace) {
  const auto saved =
      SaveConversion({u"yard", u"m", u"0.9144"}, StoredIdentity{1, "mile -> km"}, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 1);
  Conversions edited = kThree;
  edited[1] = {"yard -> m", "0.9144"};
  EXPECT_EQ(StoredConversions(store_), edited);
}

TEST_F(ThreeUserConversions, AnEditedOneMayKeepItsTextButNotTakeAnothers) {
  const StoredIdentity inch{0, "inch -> cm"};
  EXPECT_EQ(TextOf(SaveConversion({u"inch", u"cm", u"2.5"}, inch, store_)), u"");
  EXPECT_EQ(StoredConversion(store_, 0).rateText, "2.5");
  EXPECT_EQ(TextOf(SaveConversion({u"h", u"s", u"2.5"}, inch, store_)), u"h -> s exists already.");
}

TEST_F(ThreeUserConversions, AnEditedOneThatMovedIsFoundByItsText) {
  ASSERT_TRUE(RemoveConversion({0, "inch -> cm"}, store_));
  const auto saved =
      SaveConversion({u"yard", u"m", u"0.9144"}, StoredIdentity{1, "mile -> km"}, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 0);
  EXPECT_EQ(StoredConversions(store_),
            (Conversions{{"yard -> m", "0.9144"}, {"h -> s", "3600.000000"}}));
}

TEST_F(ThreeUserConversions, AnEditedOneThatIsGoneIsAddedAnew) {
  ASSERT_TRUE(RemoveConversion({1, "mile -> km"}, store_));
  const auto saved =
      SaveConversion({u"mile", u"km", u"1.6"}, StoredIdentity{1, "mile -> km"}, store_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 2);
  EXPECT_EQ(StoredConversion(store_, 2), (UserConversion{"mile -> km", "1.6"}));
  EXPECT_EQ(store_.Get(kConversionCount), 3);
}

TEST_F(ThreeUserConversions, AnIdentityWithAWrongPlaceIsFoundByItsText) {
  for (const int place : {-1, -2147483647 - 1, 3, 2147483647}) {
    const auto saved =
        SaveConversion({u"inch", u"cm", u"3"}, StoredIdentity{place, "inch -> cm"}, store_);
    ASSERT_TRUE(saved);
    EXPECT_EQ(*saved, 0) << place;
  }
}

class SixtyUserConversions : public UserConversions {
 protected:
  SixtyUserConversions() { StoreConversions(store_, NumberedConversions(60)); }
};

TEST_F(SixtyUserConversions, The61stIsRefusedBeforeAnythingElseIsLookedAt) {
  for (const TypedConversion& typed : {TypedConversion{u"a", u"b", u"1"}, TypedConversion{}}) {
    const auto refusal = Refused(typed);
    EXPECT_EQ(refusal.text, u"Maximum of user-define unit convert is 60");
    EXPECT_EQ(refusal.focus, ConversionField::None);
  }
  EXPECT_EQ(StoredConversions(store_), NumberedConversions(60));
}

TEST_F(SixtyUserConversions, AnEditIsRefusedToo) {
  const StoredIdentity seventh{7, "a7 -> b7"};
  EXPECT_EQ(TextOf(SaveConversion({u"a7", u"b7", u"5"}, seventh, store_)),
            u"Maximum of user-define unit convert is 60");
  EXPECT_EQ(StoredConversions(store_), NumberedConversions(60));
}

TEST_F(SixtyUserConversions, TheSixtiethIsSaved) {
  ASSERT_TRUE(RemoveConversion({59, "a59 -> b59"}, store_));
  const auto saved = Add({u"new", u"unit", u"1"});
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 59);
  EXPECT_EQ(store_.Get(kConversionCount), 60);
}

TEST_F(ThreeUserConversions, RemovingMovesThoseBehindUpAndLeavesTheLastSection) {
  EXPECT_TRUE(RemoveConversion({0, "inch -> cm"}, store_));
  EXPECT_EQ(StoredConversions(store_),
            (Conversions{{"mile -> km", "1.609344"}, {"h -> s", "3600.000000"}}));
  EXPECT_EQ(StoredConversion(store_, 2), (UserConversion{"h -> s", "3600"}));
}

TEST_F(ThreeUserConversions, RemovingRewritesThoseBeforeToo) {
  EXPECT_TRUE(RemoveConversion({2, "h -> s"}, store_));
  EXPECT_EQ(StoredConversions(store_),
            (Conversions{{"inch -> cm", "2.540000"}, {"mile -> km", "1.609344"}}));
}

TEST_F(UserConversions, RemovingLeavesSmallRatesNoDigits) {
  StoreConversions(store_, {{"a -> b", "1"}, {"c -> d", "0.0000001"}, {"e -> f", "1.23456789"}});
  EXPECT_TRUE(RemoveConversion({0, "a -> b"}, store_));
  EXPECT_EQ(StoredConversions(store_),
            (Conversions{{"c -> d", "0.000000"}, {"e -> f", "1.234568"}}));
}

TEST_F(UserConversions, TheLastOneIsRemoved) {
  StoreConversions(store_, {{"a -> b", "1"}});
  EXPECT_TRUE(RemoveConversion({0, "a -> b"}, store_));
  EXPECT_EQ(store_.Get(kConversionCount), 0);
  EXPECT_EQ(LoadUserConversions(store_), Conversions{});
}

TEST_F(ThreeUserConversions, WhatMovedIsRemovedByItsTextAndWhatIsGoneIsNot) {
  EXPECT_TRUE(RemoveConversion({0, "h -> s"}, store_));
  EXPECT_EQ(store_.Get(kConversionCount), 2);
  EXPECT_FALSE(RemoveConversion({0, "h -> s"}, store_));
  EXPECT_FALSE(RemoveConversion({-5, "none"}, store_));
  EXPECT_EQ(store_.Get(kConversionCount), 2);
}

TEST(RatesLosingDigits, AreThoseThatSixDecimalsCannotTell) {
  struct Row {
    const char* rate;
    bool isLosing;
  };
  const Row rows[] = {
      {"2.54", false},       {"0.000001", false},  {"0.0000001", true},    {"1e-300", true},
      {"1.234567", false},   {"1.2345678", true},  {"3600", false},        {"1e300", false},
      {"0.10000000", false}, {"-0.0000005", true}, {"0.3333333333", true}, {"", false},
  };
  for (const Row& row : rows) {
    const Conversions all{{"a -> b", "1e-9"}, {"c -> d", row.rate}};
    EXPECT_EQ(LosingDigits(all, 0), row.isLosing ? Conversions{all[1]} : Conversions{}) << row.rate;
  }
}

TEST(RatesLosingDigits, AreGivenInTheirOrderWithoutTheRemovedOne) {
  const Conversions all{
      {"a -> b", "1e-9"}, {"c -> d", "1"}, {"e -> f", "1e-8"}, {"g -> h", "1e-7"}};
  EXPECT_EQ(LosingDigits(all, 2), (Conversions{all[0], all[3]}));
  EXPECT_EQ(LosingDigits(all, 1), (Conversions{all[0], all[2], all[3]}));
  EXPECT_EQ(LosingDigits({}, 0), Conversions{});
}

/// Two programs on the same settings.
class UserConversionsOfTwo : public testing::Test {
 protected:
  UserConversionsOfTwo() {
    // Each has read the settings before the other stores anything.
    EXPECT_EQ(LoadUserConversions(one_), Conversions{});
    EXPECT_EQ(LoadUserConversions(other_), Conversions{});
  }
  const TemporaryFolder folder_;
  const std::string path_ = folder_.File("settings.toml");
  UserSettingsStore one_{path_};
  UserSettingsStore other_{path_};
};

TEST_F(UserConversionsOfTwo, ConversionsOfBothAreKept) {
  ASSERT_TRUE(SaveConversion({u"a", u"b", u"1"}, std::nullopt, one_));
  ASSERT_TRUE(SaveConversion({u"c", u"d", u"2"}, std::nullopt, other_));
  EXPECT_EQ(TextOf(SaveConversion({u"c", u"d", u"3"}, std::nullopt, one_)),
            u"c -> d exists already.");
  EXPECT_EQ(StoredConversions(UserSettingsStore(path_)),
            (Conversions{{"a -> b", "1"}, {"c -> d", "2"}}));
}

TEST_F(UserConversionsOfTwo, RemovingFindsWhatTheOtherAdded) {
  ASSERT_TRUE(SaveConversion({u"a", u"b", u"1"}, std::nullopt, one_));
  ASSERT_TRUE(SaveConversion({u"c", u"d", u"2"}, std::nullopt, other_));
  EXPECT_TRUE(RemoveConversion({0, "a -> b"}, one_));
  EXPECT_EQ(StoredConversions(UserSettingsStore(path_)), (Conversions{{"c -> d", "2.000000"}}));
}

TEST_F(UserConversionsOfTwo, TheConverterListsBothWhenItOpens) {
  ASSERT_TRUE(SaveConversion({u"a", u"b", u"2"}, std::nullopt, one_));
  ASSERT_TRUE(SaveConversion({u"c", u"d", u"3"}, std::nullopt, other_));
  const ConverterModel model(one_, u"1", {14, 1, -1});
  EXPECT_EQ(model.Inputs(), (std::vector<std::u16string>{u"a -> b", u"c -> d"}));
  EXPECT_EQ(model.Result(), u"3");
}

}  // namespace
}  // namespace kav::user_conversions_test
