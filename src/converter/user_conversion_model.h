// The editor of the user's own conversions: a list of all, and the fields of the one that is looked
// at or edited.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/refusal.h"
#include "converter/user_conversions.h"
#include "settings/settings_store.h"

namespace kav {

enum class ConversionButton { New, Edit, Delete, Close, Save, Cancel, Memory };

/// Browses until something is edited, and again once that is saved or given up. Other programs may
/// store conversions at the same time: LookAgain, New, Edit, Cancel, Save and Delete find what they
/// stored.
class UserConversionModel {
 public:
  /// The first conversion, if any, is selected. `settings` must outlive the model.
  explicit UserConversionModel(SettingsStore& settings);

  std::vector<std::u16string> Labels() const;
  /// A place in the list, from 0.
  std::optional<int> Selected() const { return selected_; }
  std::u16string CountText() const;
  bool IsEditing() const { return isEditing_; }
  /// What stands in the fields; names too long for any field are cut, with an ellipsis behind them.
  const TypedConversion& Fields() const { return fields_; }

  bool Shows(ConversionButton button) const;
  bool Enables(ConversionButton button) const;
  /// The one that Enter presses.
  ConversionButton DefaultButton() const;

  /// The fields show the conversion of that place, or nothing. No effect while editing.
  void Select(std::optional<int> place);
  /// Takes over what other programs stored. The same conversion stays selected, if it is still
  /// there. No effect while editing.
  void LookAgain();
  /// The names are emptied, to be filled in; the rate is 0.
  void New();
  /// The fields of the selected conversion; goes on browsing where another program removed it.
  void Edit();
  /// Where the user begins after New and after Edit.
  ConversionField FirstField() const;

  /// To be asked before Delete.
  static std::u16string_view DeleteQuestion();
  /// Which rates will lose digits by it, to be told with the question; empty where none will.
  std::u16string DeleteWarning() const;
  /// Removes the selected conversion. The one behind it is selected then, or else the last.
  void Delete();

  // The rest has an effect only while editing.

  /// What the user typed. To be told before any of those that follow.
  void Take(TypedConversion typed);
  /// Replaces the rate.
  void TakeRate(std::u16string_view text);
  /// Why the fields cannot be saved, and then they stay as typed; nullopt where they are, and then
  /// what was saved is selected.
  std::optional<Refusal<ConversionField>> Save();
  /// The fields show the selected conversion again.
  void Cancel();

 private:
  int Count() const { return static_cast<int>(conversions_.size()); }
  /// Null where none is selected.
  const UserConversion* SelectedConversion() const;
  std::optional<ConversionIdentity> SelectedIdentity() const;
  void Put(std::optional<int> place);
  void Reload();
  void BrowseAnew();

  SettingsStore& settings_;
  std::vector<UserConversion> conversions_;
  std::optional<int> selected_;
  bool isEditing_ = false;
  // Whose fields are edited; nullopt for a new conversion.
  std::optional<ConversionIdentity> edited_;
  TypedConversion fields_;
};

}  // namespace kav
