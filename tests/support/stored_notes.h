// A small stored list, for tests: notes, four at most.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "settings/setting_key.h"
#include "settings/settings_store.h"
#include "settings/stored_entries.h"
#include "settings/stored_list_texts.h"

namespace kav::test {

struct Note {
  std::string name;
  std::string text;

  bool operator==(const Note&) const = default;
};

inline void PrintTo(const Note& note, std::ostream* out) {
  *out << '[' << note.name << '|' << note.text << ']';
}

struct TypedNote {
  std::u16string name;
  std::u16string text = u"none";
};

enum class NoteField { None, Name, Text };

inline NumberedKey NoteName(int index) {
  return {"Notes", "Name" + std::to_string(index), ""};
}
inline NumberedKey NoteText(int index) {
  return {"Notes", "Text" + std::to_string(index), ""};
}

/// The notes as a stored list, see settings/stored_entries.h.
struct NoteTraits {
  using Entry = Note;
  using Typed = TypedNote;
  using Field = NoteField;

  static constexpr int kCapacity = 4;
  static constexpr SettingKey<std::int32_t> kCount{"Notes", "Count", 0};
  static std::u16string FullText() { return u"Four are enough"; }
  static std::vector<Note> Load(const SettingsStore& settings) {
    std::vector<Note> notes;
    for (int i = 0; i < settings.Get(kCount); ++i) {
      notes.push_back({settings.Get(NoteName(i)), settings.Get(NoteText(i))});
    }
    return notes;
  }
  static const std::string& NameOf(const Note& note) { return note.name; }
  static std::u16string LabelOf(const Note& note) {
    return Widen(note.name) + u": " + Widen(note.text);
  }
  static Expected<Note, Refusal<NoteField>> Check(const TypedNote& typed,
                                                  const std::vector<Note>& others) {
    const auto refuse = [](std::u16string text) {
      return Refusal<NoteField>{std::move(text), NoteField::Name};
    };
    const Note note{Narrow(Cleaned(typed.name)), Narrow(typed.text)};
    if (note.name.empty()) return refuse(u"No name");
    for (const Note& other : others) {
      if (other.name == note.name) return refuse(ExistsAlready(Widen(note.name)));
    }
    return note;
  }
  static void Write(const Note& note, int index, SettingsStore& settings) {
    settings.Set(NoteName(index), note.name);
    settings.Set(NoteText(index), note.text);
  }
  static void CloseGap(const std::vector<Note>& stored, int removed, SettingsStore& settings) {
    for (std::size_t i = static_cast<std::size_t>(removed) + 1; i < stored.size(); ++i) {
      Write(stored[i], static_cast<int>(i) - 1, settings);
    }
  }
};

inline void StoreNotes(SettingsStore& settings, const std::vector<Note>& notes) {
  settings.Set(NoteTraits::kCount, static_cast<std::int32_t>(notes.size()));
  for (std::size_t i = 0; i < notes.size(); ++i) {
    NoteTraits::Write(notes[i], static_cast<int>(i), settings);
  }
}

inline void AddNote(SettingsStore& settings, std::u16string name) {
  ASSERT_TRUE(SaveEntry<NoteTraits>({std::move(name), u"x"}, std::nullopt, settings));
}

/// The notes of the list, in their order.
inline std::vector<Note> NotesIn(const SettingsStore& settings) {
  return NoteTraits::Load(settings);
}

inline const std::vector<Note> kThree{{"tea", "2 cups"}, {"milk", "1 l"}, {"rice", "1 kg"}};

/// Settings that hold those three.
class ThreeNotes : public testing::Test {
 protected:
  ThreeNotes() { StoreNotes(store_, kThree); }

  MemorySettingsStore store_;
};

}  // namespace kav::test
