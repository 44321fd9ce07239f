#include "settings/stored_entries.h"

#include <gtest/gtest.h>

#include "support/stored_notes.h"

namespace kav::stored_entries_test {
namespace {

using test::kThree;
using test::Note;
using test::NotesIn;
using test::NoteTraits;
using Notes = std::vector<Note>;
using Place = std::optional<int>;

/// The refusal's text, empty if there was none.
std::u16string TextOf(const SaveOutcome<NoteTraits>& saved) {
  return saved ? std::u16string() : saved.error().text;
}

Place PlaceIn(const Notes& notes, int index, const std::string& name) {
  return PlaceOf<NoteTraits>({index, name}, notes);
}

TEST(StoredPlace, IsTheOldOneIfTheNameIsStillThere) {
  const Notes twins{{"a", ""}, {"b", ""}, {"a", ""}};
  EXPECT_EQ(PlaceIn(twins, 0, "a"), 0);
  EXPECT_EQ(PlaceIn(twins, 1, "b"), 1);
  EXPECT_EQ(PlaceIn(twins, 2, "a"), 2);
}

TEST(StoredPlace, IsOtherwiseThatOfTheFirstEntryOfTheName) {
  const Notes notes{{"a", ""}, {"b", ""}, {"b", ""}};
  for (const int index : {0, 3, -1, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(PlaceIn(notes, index, "b"), 1) << index;
    EXPECT_EQ(PlaceIn(notes, index, "B"), std::nullopt) << index;
  }
  EXPECT_EQ(PlaceIn({}, 0, "a"), std::nullopt);
}

TEST(TypedText, IsCleanedOfBlanksAtItsEnds) {
  EXPECT_EQ(Cleaned(u" \ta b\r\n"), u"a b");
  EXPECT_EQ(Cleaned(u"a\nb"), u"a b");
  EXPECT_EQ(Cleaned(u"  "), u"");
}

class StoredEntries : public test::ThreeNotes {
 protected:
  SaveOutcome<NoteTraits> Save(std::u16string name, std::u16string text,
                               const std::optional<StoredIdentity>& edited = std::nullopt) {
    return SaveEntry<NoteTraits>({std::move(name), std::move(text)}, edited, store_);
  }
};

TEST_F(StoredEntries, ANewOneStandsBehindTheOthers) {
  const auto saved = Save(u"salt", u"1 g");
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 3);
  EXPECT_EQ(NotesIn(store_), (Notes{kThree[0], kThree[1], kThree[2], {"salt", "1 g"}}));
}

TEST_F(StoredEntries, AnEditedOneKeepsItsPlaceAndMayKeepItsName) {
  const auto renamed = Save(u"oats", u"500 g", StoredIdentity{1, "milk"});
  ASSERT_TRUE(renamed);
  EXPECT_EQ(*renamed, 1);
  EXPECT_EQ(TextOf(Save(u"tea", u"3 cups", StoredIdentity{0, "tea"})), u"");
  EXPECT_EQ(NotesIn(store_), (Notes{{"tea", "3 cups"}, {"oats", "500 g"}, kThree[2]}));
}

TEST_F(StoredEntries, AnEditedOneThatIsGoneIsStoredAnew) {
  const auto saved = Save(u"oats", u"500 g", StoredIdentity{1, "gone"});
  ASSERT_TRUE(saved);
  EXPECT_EQ(*saved, 3);
}

TEST_F(StoredEntries, TheNameOfAnotherIsRefused) {
  for (const auto& edited :
       {std::optional<StoredIdentity>(), std::optional<StoredIdentity>({1, "milk"})}) {
    const auto saved = Save(u"tea", u"", edited);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().text, u"tea exists already.");
    EXPECT_EQ(saved.error().focus, NoteTraits::Field::Name);
  }
  EXPECT_EQ(NotesIn(store_), kThree);
}

TEST_F(StoredEntries, InAFullListNothingIsSavedWhateverWasTyped) {
  ASSERT_TRUE(Save(u"salt", u""));
  for (const auto& edited :
       {std::optional<StoredIdentity>(), std::optional<StoredIdentity>({0, "tea"})}) {
    const auto saved = Save(u"", u"", edited);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().text, u"Four are enough");
    EXPECT_EQ(saved.error().focus, NoteTraits::Field::None);
  }
  EXPECT_EQ(NotesIn(store_).size(), 4U);
}

TEST_F(StoredEntries, ARemovedOneLeavesNoGap) {
  EXPECT_TRUE(RemoveEntry<NoteTraits>({0, "tea"}, store_));
  EXPECT_EQ(NotesIn(store_), (Notes{kThree[1], kThree[2]}));
  EXPECT_TRUE(RemoveEntry<NoteTraits>({-1, "rice"}, store_));
  EXPECT_EQ(NotesIn(store_), Notes{kThree[1]});
}

TEST_F(StoredEntries, WhatIsGoneIsNotRemoved) {
  EXPECT_FALSE(RemoveEntry<NoteTraits>({0, "gone"}, store_));
  EXPECT_EQ(NotesIn(store_), kThree);
}

}  // namespace
}  // namespace kav::stored_entries_test
