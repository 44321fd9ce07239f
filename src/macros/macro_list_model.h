// The list of all macros, one of which is selected.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "macros/macro_saving.h"
#include "macros/macro_store.h"
#include "settings/settings_store.h"

namespace kav {

/// Shows the macros as they were read last: others who store some do not change the list under its
/// user's hands.
class MacroListModel {
 public:
  /// Reads what all programs that share the settings stored so far, and selects the first, if any.
  /// `settings` must outlive the model.
  explicit MacroListModel(SettingsStore& settings);

  std::vector<std::u16string> Labels() const;
  int Count() const { return static_cast<int>(macros_.size()); }
  /// A place in the list, which is the macro's number.
  std::optional<int> Selected() const { return selected_; }
  /// A place that there is not selects none.
  void Select(std::optional<int> place);
  /// Null where none is selected.
  const Macro* SelectedMacro() const;
  std::optional<MacroIdentity> SelectedIdentity() const;

  /// Takes over what the settings hold now. The same macro stays selected, if it is still there.
  void Reread();

 private:
  const SettingsStore& settings_;
  std::vector<Macro> macros_;
  std::optional<int> selected_;
};

}  // namespace kav
