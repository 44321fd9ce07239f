// A list of stored entries, one of which may be selected.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "settings/settings_store.h"
#include "settings/stored_entries.h"

namespace kav {

/// The entries as they were read last: what other programs store does not change the list while the
/// user works with it. `Traits` is described in settings/stored_entries.h.
template <class Traits>
class StoredList {
 public:
  using Entry = typename Traits::Entry;

  /// Reads what all programs have stored so far, and selects the first entry, if any. `settings`
  /// must outlive the list.
  explicit StoredList(SettingsStore& settings) : settings_(settings) {
    settings.Refresh();
    Reload();
    Select(0);
  }

  const std::vector<Entry>& Entries() const { return entries_; }
  int Count() const { return static_cast<int>(entries_.size()); }
  std::vector<std::u16string> Labels() const {
    std::vector<std::u16string> labels;
    labels.reserve(entries_.size());
    for (const Entry& entry : entries_) labels.push_back(Traits::LabelOf(entry));
    return labels;
  }

  /// The index of the selected entry.
  std::optional<int> Selected() const { return selected_; }
  /// Selects nothing if there is no entry at `index`.
  void Select(std::optional<int> index) {
    const bool isThere = index && *index >= 0 && *index < Count();
    selected_ = isThere ? index : std::nullopt;
  }
  /// Null if none is selected. Valid until Reload.
  const Entry* SelectedEntry() const {
    return selected_ ? &entries_[static_cast<std::size_t>(*selected_)] : nullptr;
  }
  std::optional<StoredIdentity> SelectedIdentity() const {
    if (!selected_) return std::nullopt;
    return StoredIdentity{*selected_, Traits::NameOf(*SelectedEntry())};
  }

  /// Reads what the settings hold now. The selected entry stays selected if it is still there.
  void Reload() {
    const auto selected = SelectedIdentity();
    entries_ = Traits::Load(settings_);
    Select(selected ? PlaceOf<Traits>(*selected, entries_) : std::nullopt);
  }

 private:
  const SettingsStore& settings_;
  std::vector<Entry> entries_;
  std::optional<int> selected_;
};

}  // namespace kav
