// The entries of a list that the user edits and the settings keep: finding one again, adding,
// replacing and removing one. Other programs may change the list at any time.
//
// `Traits` describes such a list. It has only static members:
//   Entry                  an entry as it is stored
//   Typed                  what the user typed to make an entry
//   Field                  the enumeration of the fields of Typed, and None
//   kCapacity              the most entries that there may be
//   kCount                 the key of their number
//   FullText()             why no entry is saved in a full list
//   Load(settings)         the entries in their order, kCapacity at most
//   NameOf(entry)          what tells an entry from the others, in UTF-8
//   LabelOf(entry)         what a list shows of it
//   Check(typed, others)   the entry to store beside `others`, or the Refusal of it
//   Write(entry, index, settings)
//   CloseGap(stored, removed, settings)   writes `stored` anew without the entry at `removed`
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common/expected.h"
#include "common/number_text.h"
#include "common/refusal.h"
#include "settings/settings_store.h"

namespace kav {

/// A stored entry as it was seen last. It may have been moved or removed since.
struct StoredIdentity {
  int index;  ///< from 0; any other number if only the name is known
  std::string name;
};

/// The index of `entry` in `stored` by now; nullopt if it is gone. If it has moved, the first entry
/// of its name is taken for it.
template <class Traits>
std::optional<int> PlaceOf(const StoredIdentity& entry,
                           const std::vector<typename Traits::Entry>& stored) {
  const auto isMeant = [&entry](const auto& one) { return Traits::NameOf(one) == entry.name; };
  const auto place = static_cast<std::size_t>(entry.index);
  if (place < stored.size() && isMeant(stored[place])) return entry.index;
  const auto found = std::find_if(stored.begin(), stored.end(), isMeant);
  if (found == stored.end()) return std::nullopt;
  return static_cast<int>(found - stored.begin());
}

/// `typed` without blanks at its ends. Pasted line breaks and tabs count as blanks.
inline std::u16string Cleaned(std::u16string typed) {
  return std::u16string(TrimBlanks(OnOneLine(std::move(typed))));
}

/// The index of a saved entry, or why it was not saved.
template <class Traits>
using SaveOutcome = Expected<int, Refusal<typename Traits::Field>>;

/// SaveEntry, to be called within a change of `settings`.
template <class Traits>
SaveOutcome<Traits> SaveEntryInChange(const typename Traits::Typed& typed,
                                      const std::optional<StoredIdentity>& edited,
                                      SettingsStore& settings) {
  using Field = typename Traits::Field;
  auto others = Traits::Load(settings);
  const int count = static_cast<int>(others.size());
  if (count >= Traits::kCapacity) return Refusal<Field>{Traits::FullText(), Field::None};
  const auto place = edited ? PlaceOf<Traits>(*edited, others) : std::nullopt;
  if (place) others.erase(others.begin() + *place);
  const auto entry = Traits::Check(typed, others);
  if (!entry) return entry.error();
  const int index = place.value_or(count);
  Traits::Write(*entry, index, settings);
  settings.Set(Traits::kCount, std::max(count, index + 1));
  return index;
}

/// Stores `typed` in the place of `edited`, or behind the others if there is no such entry (any
/// more). After a refusal nothing is stored.
template <class Traits>
SaveOutcome<Traits> SaveEntry(const typename Traits::Typed& typed,
                              const std::optional<StoredIdentity>& edited,
                              SettingsStore& settings) {
  std::optional<SaveOutcome<Traits>> saved;
  settings.Change([&] { saved.emplace(SaveEntryInChange<Traits>(typed, edited, settings)); });
  return *std::move(saved);
}

/// Removes `entry`; those behind it move up. False if it was gone already.
template <class Traits>
bool RemoveEntry(const StoredIdentity& entry, SettingsStore& settings) {
  bool isRemoved = false;
  settings.Change([&] {
    const auto stored = Traits::Load(settings);
    const auto place = PlaceOf<Traits>(entry, stored);
    if (!place) return;
    Traits::CloseGap(stored, *place, settings);
    settings.Set(Traits::kCount, static_cast<int>(stored.size()) - 1);
    isRemoved = true;
  });
  return isRemoved;
}

}  // namespace kav
