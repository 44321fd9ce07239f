#include "settings/stored_list.h"

#include <gtest/gtest.h>

#include "store/user_settings_store.h"
#include "support/stored_notes.h"
#include "support/temporary_folder.h"

namespace kav::stored_list_test {
namespace {

using test::AddNote;
using test::kThree;
using test::Note;
using test::NoteTraits;
using Labels = std::vector<std::u16string>;
using Notes = std::vector<Note>;
using Place = std::optional<int>;

class StoredListOfThree : public test::ThreeNotes {
 protected:
  StoredList<NoteTraits> list_{store_};
};

TEST_F(StoredListOfThree, TheFirstIsSelectedAtTheStart) {
  EXPECT_EQ(list_.Labels(), (Labels{u"tea: 2 cups", u"milk: 1 l", u"rice: 1 kg"}));
  EXPECT_EQ(list_.Count(), 3);
  EXPECT_EQ(list_.Selected(), 0);
  EXPECT_EQ(list_.SelectedEntry()->name, "tea");
  EXPECT_EQ(list_.SelectedIdentity()->name, "tea");
}

TEST_F(StoredListOfThree, NothingIsSelectedIfThereIsNoEntry) {
  for (const Place place : {Place(-1), Place(3), Place(2147483647), Place()}) {
    list_.Select(0);
    list_.Select(place);
    EXPECT_EQ(list_.Selected(), std::nullopt);
    EXPECT_EQ(list_.SelectedEntry(), nullptr);
    EXPECT_FALSE(list_.SelectedIdentity());
  }
}

TEST_F(StoredListOfThree, ItStaysAsItWasReadUntilItIsReloaded) {
  list_.Select(2);
  ASSERT_TRUE(RemoveEntry<NoteTraits>({0, "tea"}, store_));
  EXPECT_EQ(list_.Count(), 3);
  EXPECT_EQ(list_.SelectedEntry()->name, "rice");
  list_.Reload();
  EXPECT_EQ(list_.Entries(), (Notes{kThree[1], kThree[2]}));
  EXPECT_EQ(list_.Selected(), 1) << "the same entry, in its new place";
  ASSERT_TRUE(RemoveEntry<NoteTraits>({1, "rice"}, store_));
  list_.Reload();
  EXPECT_EQ(list_.Selected(), std::nullopt);
}

TEST(StoredListOfTwoPrograms, KnowsWhatTheOtherStoredBefore) {
  const TemporaryFolder folder;
  UserSettingsStore own(folder.File("settings.toml"));
  UserSettingsStore other(folder.File("settings.toml"));
  EXPECT_EQ(StoredList<NoteTraits>(own).Count(), 0);
  AddNote(other, u"tea");
  EXPECT_EQ(StoredList<NoteTraits>(own).Count(), 1);
}

}  // namespace
}  // namespace kav::stored_list_test
