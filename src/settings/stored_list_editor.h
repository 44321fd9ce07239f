// The editor of a stored list: the list, and the fields of the entry that is looked at or edited.
//
// What it edits is described by `Traits`: those of settings/stored_entries.h, and
//   Fields                       what stands in the fields; default: the fields of a new entry
//   FieldsOf(entry)              the fields of an entry that is looked at
//   FieldsToEdit(entry)          the same when its editing begins
//   TypedOf(fields, edited)      what the user typed into them; `edited` as for SaveEntry
//   kFirstOfNew, kFirstOfEdited  the Field in which the user begins
//   kDeleteQuestion              what to ask before an entry is deleted
//   kButtonHelp                  what the buttons do, but for those whose captions say all
//   kKeepsListButtons            whether New, Edit and Delete stay (disabled) while editing
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/refusal.h"
#include "settings/editor_button.h"
#include "settings/settings_store.h"
#include "settings/stored_list.h"
#include "settings/stored_list_texts.h"

namespace kav {

/// Browses the list until an entry is edited, and again once that is saved or cancelled. Other
/// programs may change the list at the same time: Reload, New, Edit, Cancel, Save and Delete find
/// what they stored.
template <class Traits>
class StoredListEditor {
 public:
  using Field = typename Traits::Field;

  /// The first entry, if any, is selected. `settings` must outlive the editor.
  explicit StoredListEditor(SettingsStore& settings) : settings_(settings), list_(settings) {
    Browse();
  }

  const std::vector<typename Traits::Entry>& Entries() const { return list_.Entries(); }
  std::vector<std::u16string> Labels() const { return list_.Labels(); }
  /// The index of the selected entry.
  std::optional<int> Selected() const { return list_.Selected(); }
  std::u16string CountText() const { return StoredListCaption(list_.Count(), Traits::kCapacity); }
  bool IsEditing() const { return isEditing_; }
  const typename Traits::Fields& Fields() const { return fields_; }

  bool Shows(EditorButton button) const {
    switch (button) {
      case EditorButton::New:
        return HasListButtons() && list_.Count() < Traits::kCapacity;
      case EditorButton::Edit:
      case EditorButton::Delete:
        return HasListButtons() && list_.Count() > 0;
      case EditorButton::Close:
        return !isEditing_;
      default:
        return isEditing_;
    }
  }
  bool Enables(EditorButton button) const {
    const bool isListAtRest = isEditing_ && Traits::kKeepsListButtons;
    switch (button) {
      case EditorButton::New:
        return !isListAtRest;
      case EditorButton::Edit:
      case EditorButton::Delete:
        return !isListAtRest && Selected().has_value();
      default:
        return true;
    }
  }
  /// What `button` does, in a few words; empty if its caption says all.
  static std::u16string_view HelpOf(EditorButton button) {
    for (const EditorButtonHelp& help : Traits::kButtonHelp) {
      if (help.button == button) return help.text;
    }
    return {};
  }
  /// The button that Enter presses.
  EditorButton DefaultButton() const {
    if (isEditing_) return EditorButton::Save;
    return Selected() ? EditorButton::Edit : EditorButton::New;
  }

  /// Shows the fields of the entry at `index`; empty fields if there is none. No effect while
  /// editing.
  void Select(std::optional<int> index) {
    if (isEditing_) return;
    list_.Select(index);
    Browse();
  }
  /// Shows what all programs have stored. The selected entry stays selected if it is still there.
  /// No effect while editing.
  void Reload() {
    if (!isEditing_) BrowseAnew();
  }
  /// Begins a new entry.
  void New() {
    BrowseAnew();
    fields_ = {};
    isEditing_ = true;
  }
  /// Begins to edit the selected entry; goes on browsing if another program removed it.
  void Edit() {
    BrowseAnew();
    const auto* entry = list_.SelectedEntry();
    if (entry == nullptr) return;
    fields_ = Traits::FieldsToEdit(*entry);
    edited_ = list_.SelectedIdentity();
    isEditing_ = true;
  }
  /// Where the user begins after New and after Edit.
  Field FirstField() const { return edited_ ? Traits::kFirstOfEdited : Traits::kFirstOfNew; }

  /// To be asked before Delete.
  static std::u16string_view DeleteQuestion() { return Traits::kDeleteQuestion; }
  /// Removes the selected entry, and selects the next one, or else the last. No effect while
  /// editing.
  void Delete() {
    const auto removed = list_.SelectedIdentity();
    if (isEditing_ || !removed) return;
    RemoveEntry<Traits>(*removed, settings_);
    list_.Reload();
    list_.Select(std::min(removed->index, list_.Count() - 1));
    Browse();
  }

  // The rest has an effect only while editing.

  /// Takes over what the user typed. To be called before whatever uses the fields.
  void Take(typename Traits::Fields typed) {
    if (isEditing_) fields_ = std::move(typed);
  }
  /// Stores the fields and selects their entry; or else the refusal, which leaves them as typed.
  std::optional<Refusal<Field>> Save() {
    if (!isEditing_) return std::nullopt;
    const auto saved = SaveEntry<Traits>(Traits::TypedOf(fields_, edited_), edited_, settings_);
    if (!saved) return saved.error();
    list_.Reload();
    list_.Select(*saved);
    Browse();
    return std::nullopt;
  }
  /// Shows the fields of the selected entry again.
  void Cancel() {
    if (isEditing_) BrowseAnew();
  }

 private:
  bool HasListButtons() const { return !isEditing_ || Traits::kKeepsListButtons; }
  void Browse() {
    isEditing_ = false;
    edited_ = std::nullopt;
    const auto* entry = list_.SelectedEntry();
    fields_ = entry != nullptr ? Traits::FieldsOf(*entry) : typename Traits::Fields{};
  }
  void BrowseAnew() {
    settings_.Refresh();
    list_.Reload();
    Browse();
  }

  SettingsStore& settings_;
  StoredList<Traits> list_;
  bool isEditing_ = false;
  std::optional<StoredIdentity> edited_;  // nullopt for a new entry
  typename Traits::Fields fields_;
};

}  // namespace kav
