#include "settings/stored_list_editor.h"

#include <gtest/gtest.h>

#include <set>

#include "store/user_settings_store.h"
#include "support/stored_notes.h"
#include "support/temporary_folder.h"

namespace kav::stored_list_editor_test {
namespace {

using test::AddNote;
using test::kThree;
using test::Note;
using test::NoteField;
using test::NotesIn;
using test::NoteTraits;
using test::StoreNotes;
using test::TypedNote;
using Button = EditorButton;
using Buttons = std::set<EditorButton>;
using Labels = std::vector<std::u16string>;
using Notes = std::vector<Note>;
using Place = std::optional<int>;

/// Notes whose texts stand in brackets in the fields, and in braces once they are edited. An edited
/// note is stored with its old name behind the text. The list's buttons are hidden meanwhile.
struct HidingTraits : NoteTraits {
  using Fields = TypedNote;

  static constexpr NoteField kFirstOfNew = NoteField::Name;
  static constexpr NoteField kFirstOfEdited = NoteField::Text;
  static constexpr std::u16string_view kDeleteQuestion = u"Delete it?";
  static constexpr bool kKeepsListButtons = false;
  static TypedNote FieldsOf(const Note& note) {
    return {Widen(note.name), u"[" + Widen(note.text) + u"]"};
  }
  static TypedNote FieldsToEdit(const Note& note) {
    return {Widen(note.name), u"{" + Widen(note.text) + u"}"};
  }
  static TypedNote TypedOf(TypedNote fields, const std::optional<StoredIdentity>& edited) {
    if (edited) fields.text += u" (" + Widen(edited->name) + u")";
    return fields;
  }
};

struct KeepingTraits : HidingTraits {
  static constexpr bool kKeepsListButtons = true;
};

using Editor = StoredListEditor<HidingTraits>;
using KeepingEditor = StoredListEditor<KeepingTraits>;

const Buttons kListButtons{Button::New, Button::Edit, Button::Delete, Button::Close};
const Buttons kFieldButtons{Button::Save, Button::Cancel, Button::Memory, Button::Functions,
                            Button::Variables};
const Buttons kAllButtons{Button::New,    Button::Edit,      Button::Delete,
                          Button::Close,  Button::Save,      Button::Cancel,
                          Button::Memory, Button::Functions, Button::Variables};

template <class AnyEditor>
Buttons Shown(const AnyEditor& editor) {
  Buttons shown;
  for (const Button button : kAllButtons) {
    if (editor.Shows(button)) shown.insert(button);
  }
  return shown;
}

template <class AnyEditor>
Buttons Disabled(const AnyEditor& editor) {
  Buttons disabled;
  for (const Button button : kAllButtons) {
    if (!editor.Enables(button)) disabled.insert(button);
  }
  return disabled;
}

/// The fields as one text: "tea|[2 cups]".
std::u16string Fields(const Editor& editor) {
  return editor.Fields().name + u"|" + editor.Fields().text;
}

/// The refusal's text, empty if there was none.
std::u16string Save(Editor& editor) {
  const auto refusal = editor.Save();
  return refusal ? refusal->text : std::u16string();
}

class EmptyEditor : public testing::Test {
 protected:
  MemorySettingsStore store_;
};

using EditorOfThree = test::ThreeNotes;

TEST_F(EmptyEditor, OnlyNewIsOffered) {
  const Editor editor(store_);
  EXPECT_EQ(Shown(editor), (Buttons{Button::New, Button::Close}));
  EXPECT_EQ(editor.DefaultButton(), Button::New);
  EXPECT_EQ(editor.CountText(), u"List(0/4)");
  EXPECT_EQ(editor.Selected(), std::nullopt);
  EXPECT_EQ(Fields(editor), u"|none") << "the fields of a new entry";
  EXPECT_FALSE(editor.IsEditing());
}

TEST_F(EditorOfThree, TheFirstIsShownAtTheStart) {
  const Editor editor(store_);
  EXPECT_EQ(editor.Labels(), (Labels{u"tea: 2 cups", u"milk: 1 l", u"rice: 1 kg"}));
  EXPECT_EQ(editor.Entries(), kThree);
  EXPECT_EQ(editor.CountText(), u"List(3/4)");
  EXPECT_EQ(editor.Selected(), 0);
  EXPECT_EQ(Fields(editor), u"tea|[2 cups]");
  EXPECT_EQ(Shown(editor), kListButtons);
  EXPECT_EQ(Disabled(editor), Buttons{});
  EXPECT_EQ(editor.DefaultButton(), Button::Edit);
  EXPECT_EQ(Editor::DeleteQuestion(), u"Delete it?");
}

TEST_F(EditorOfThree, SelectingShowsThatEntryOrNone) {
  Editor editor(store_);
  editor.Select(2);
  EXPECT_EQ(Fields(editor), u"rice|[1 kg]");
  for (const Place place : {Place(), Place(3), Place(-1)}) {
    editor.Select(place);
    EXPECT_EQ(editor.Selected(), std::nullopt);
    EXPECT_EQ(Fields(editor), u"|none");
    EXPECT_EQ(Shown(editor), kListButtons);
    EXPECT_EQ(Disabled(editor), (Buttons{Button::Edit, Button::Delete}));
    EXPECT_EQ(editor.DefaultButton(), Button::New);
  }
}

TEST_F(EditorOfThree, WithoutASelectionNothingIsEditedOrDeleted) {
  Editor editor(store_);
  editor.Select(std::nullopt);
  editor.Edit();
  EXPECT_FALSE(editor.IsEditing());
  editor.Delete();
  EXPECT_EQ(NotesIn(store_), kThree);
}

TEST_F(EditorOfThree, WhileEditingTheListsButtonsAreHidden) {
  Editor editor(store_);
  for (const bool isNew : {false, true}) {
    isNew ? editor.New() : editor.Edit();
    EXPECT_EQ(Shown(editor), kFieldButtons);
    EXPECT_EQ(Disabled(editor), Buttons{});
    EXPECT_EQ(editor.DefaultButton(), Button::Save);
    editor.Cancel();
    EXPECT_EQ(Shown(editor), kListButtons);
  }
}

TEST_F(EditorOfThree, OrTheyStayAndAreDisabled) {
  KeepingEditor editor(store_);
  EXPECT_EQ(Shown(editor), kListButtons);
  EXPECT_EQ(Disabled(editor), Buttons{});
  editor.Edit();
  Buttons all = kAllButtons;
  all.erase(Button::Close);
  EXPECT_EQ(Shown(editor), all);
  EXPECT_EQ(Disabled(editor), (Buttons{Button::New, Button::Edit, Button::Delete}));
}

TEST_F(EditorOfThree, InAFullListNewIsHidden) {
  Editor editor(store_);
  editor.New();
  editor.Take({u"salt", u"1 g"});
  EXPECT_EQ(Save(editor), u"");
  EXPECT_EQ(Shown(editor), (Buttons{Button::Edit, Button::Delete, Button::Close}));
  EXPECT_EQ(editor.CountText(), u"List(4/4)");
  editor.Edit();
  EXPECT_EQ(Save(editor), u"Four are enough");
  EXPECT_TRUE(editor.IsEditing());
}

TEST_F(EditorOfThree, ANewEntryBeginsEmptyAndIsSelectedOnceItIsSaved) {
  Editor editor(store_);
  editor.Select(1);
  editor.New();
  EXPECT_EQ(Fields(editor), u"|none");
  EXPECT_EQ(editor.FirstField(), NoteField::Name);
  editor.Take({u" salt ", u"1 g"});
  EXPECT_EQ(Save(editor), u"");
  EXPECT_FALSE(editor.IsEditing());
  EXPECT_EQ(editor.Selected(), 3);
  EXPECT_EQ(Fields(editor), u"salt|[1 g]");
  EXPECT_EQ(NotesIn(store_).back(), (Note{"salt", "1 g"}));
}

TEST_F(EditorOfThree, AnEditedEntryIsReplacedAndStaysSelected) {
  Editor editor(store_);
  editor.Select(1);
  editor.Edit();
  EXPECT_EQ(Fields(editor), u"milk|{1 l}");
  EXPECT_EQ(editor.FirstField(), NoteField::Text);
  editor.Take({u"oats", u"1 kg"});
  EXPECT_EQ(Save(editor), u"");
  EXPECT_EQ(editor.Selected(), 1);
  EXPECT_EQ(NotesIn(store_), (Notes{kThree[0], {"oats", "1 kg (milk)"}, kThree[2]}));
}

TEST_F(EditorOfThree, ARefusalKeepsWhatWasTyped) {
  Editor editor(store_);
  editor.Edit();
  editor.Take({u" rice ", u"x"});
  const auto refusal = editor.Save();
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->text, u"rice exists already.");
  EXPECT_EQ(refusal->focus, NoteField::Name);
  EXPECT_TRUE(editor.IsEditing());
  EXPECT_EQ(Fields(editor), u" rice |x");
  EXPECT_EQ(NotesIn(store_), kThree);
}

TEST_F(EditorOfThree, CancelShowsTheSelectedEntryAgain) {
  Editor editor(store_);
  editor.Select(2);
  for (const bool isNew : {false, true}) {
    isNew ? editor.New() : editor.Edit();
    editor.Take({u"a", u"b"});
    editor.Cancel();
    EXPECT_FALSE(editor.IsEditing());
    EXPECT_EQ(editor.Selected(), 2);
    EXPECT_EQ(Fields(editor), u"rice|[1 kg]");
  }
  editor.New();
  editor.Take({u"rice", u""});
  EXPECT_EQ(Save(editor), u"rice exists already.") << "what was cancelled is edited no more";
}

TEST_F(EditorOfThree, WhileEditingNothingIsSelectedReloadedOrDeleted) {
  Editor editor(store_);
  editor.Edit();
  editor.Take({u"a", u"b"});
  editor.Select(2);
  editor.Reload();
  editor.Delete();
  EXPECT_TRUE(editor.IsEditing());
  EXPECT_EQ(editor.Selected(), 0);
  EXPECT_EQ(Fields(editor), u"a|b");
  EXPECT_EQ(NotesIn(store_), kThree);
}

TEST_F(EditorOfThree, WhileBrowsingNothingIsTakenSavedOrCancelled) {
  Editor editor(store_);
  editor.Take({u"a", u"b"});
  EXPECT_EQ(Save(editor), u"");
  editor.Cancel();
  EXPECT_EQ(Fields(editor), u"tea|[2 cups]");
  EXPECT_EQ(NotesIn(store_), kThree);
}

TEST_F(EditorOfThree, AfterADeletionTheNextIsSelectedOrTheNewLast) {
  Editor editor(store_);
  editor.Select(1);
  editor.Delete();
  EXPECT_EQ(editor.Selected(), 1);
  EXPECT_EQ(Fields(editor), u"rice|[1 kg]");
  editor.Delete();
  EXPECT_EQ(editor.Selected(), 0);
  EXPECT_EQ(Fields(editor), u"tea|[2 cups]");
  editor.Delete();
  EXPECT_EQ(editor.Selected(), std::nullopt);
  EXPECT_EQ(Fields(editor), u"|none");
  EXPECT_EQ(NotesIn(store_), Notes{});
}

/// The editor beside another program on the same settings.
class EditorOfTwo : public testing::Test {
 protected:
  EditorOfTwo() {
    StoreNotes(other_, kThree);
    EXPECT_TRUE(other_.Save());
  }
  void RemoveTheirs(const StoredIdentity& note) {
    ASSERT_TRUE(RemoveEntry<NoteTraits>(note, other_));
  }

  const TemporaryFolder folder_;
  const std::string path_ = folder_.File("settings.toml");
  UserSettingsStore own_{path_};
  UserSettingsStore other_{path_};
};

TEST_F(EditorOfTwo, ReloadKeepsTheSelectedEntryWhereverItMoved) {
  Editor editor(own_);
  editor.Select(2);
  RemoveTheirs({0, "tea"});
  AddNote(other_, u"salt");
  editor.Reload();
  EXPECT_EQ(editor.Labels(), (Labels{u"milk: 1 l", u"rice: 1 kg", u"salt: x"}));
  EXPECT_EQ(editor.Selected(), 1);
  RemoveTheirs({1, "rice"});
  editor.Reload();
  EXPECT_EQ(editor.Selected(), std::nullopt);
}

TEST_F(EditorOfTwo, NeitherLosesWhatTheOtherAdds) {
  Editor editor(own_);
  editor.New();
  RemoveTheirs({0, "tea"});
  AddNote(other_, u"salt");
  editor.Take({u"mine", u"x"});
  EXPECT_EQ(Save(editor), u"");
  EXPECT_EQ(editor.Labels(), (Labels{u"milk: 1 l", u"rice: 1 kg", u"salt: x", u"mine: x"}));
  EXPECT_EQ(editor.Selected(), 3);
}

TEST_F(EditorOfTwo, AnEditBeginsWithWhatTheOtherStoredAndFollowsItsEntry) {
  Editor editor(own_);
  editor.Select(2);
  ASSERT_TRUE(SaveEntry<NoteTraits>({u"rice", u"2 kg"}, StoredIdentity{2, "rice"}, other_));
  editor.Edit();
  EXPECT_EQ(Fields(editor), u"rice|{2 kg}");
  RemoveTheirs({0, "tea"});
  editor.Take({u"oats", u"x"});
  EXPECT_EQ(Save(editor), u"");
  EXPECT_EQ(editor.Labels(), (Labels{u"milk: 1 l", u"oats: x (rice)"}));
  EXPECT_EQ(editor.Selected(), 1);
}

TEST_F(EditorOfTwo, WhatTheOtherRemovedIsNeitherEditedNorDeleted) {
  Editor editor(own_);
  RemoveTheirs({0, "tea"});
  editor.Delete();
  EXPECT_EQ(editor.Labels(), (Labels{u"milk: 1 l", u"rice: 1 kg"}));
  EXPECT_EQ(editor.Selected(), 0);
  RemoveTheirs({0, "milk"});
  editor.Edit();
  EXPECT_FALSE(editor.IsEditing());
  EXPECT_EQ(editor.Selected(), std::nullopt);
}

}  // namespace
}  // namespace kav::stored_list_editor_test
