// The dialog of the memory variables: one of the list is chosen, and stored into or recalled.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "memory/memory_variables.h"
#include "settings/settings_store.h"

namespace kav {

// What the dialog was opened for: `value` goes into as many variables as the user likes, or the
// value of one is wanted.
struct StoreMode {
  std::u16string value;
};
struct RecallMode {};
using VariablesMode = std::variant<StoreMode, RecallMode>;

// What came of the action: it needs a selection first, the dialog goes on, or it ends with a value.
struct VariableMissing {
  std::u16string_view text;
};
struct VariableStored {};
struct VariableRecalled {
  std::u16string value;
};
using VariableOutcome = std::variant<VariableMissing, VariableStored, VariableRecalled>;

/// Shows what all programs that share the settings stored before it was made; what it changes is
/// stored at once.
class MemoryVariablesModel {
 public:
  /// `settings` must outlive it.
  MemoryVariablesModel(VariablesMode mode, SettingsStore& settings);

  /// All variables, in order: "Mem01 = 0".
  std::vector<std::u16string> Lines() const;

  /// The line that is marked, counted from 0; nullopt for none, as at the start. Stays what it is
  /// whatever is stored or cleared.
  std::optional<int> Selected() const { return selected_; }
  /// A line that there is not selects none.
  void Select(std::optional<int> line);

  std::u16string_view ActionCaption() const;
  /// Stores into the selected variable, or recalls it.
  VariableOutcome Act();

  /// To be asked before Clear; nullopt where nothing is selected and so nothing to be cleared.
  std::optional<std::u16string_view> ClearQuestion() const;
  /// The selected variable, if any, becomes 0.
  void Clear();

  /// To be asked before ClearAll.
  std::u16string_view ClearAllQuestion() const;
  void ClearAll();

 private:
  VariablesMode mode_;
  MemoryVariables variables_;
  std::optional<int> selected_;
};

}  // namespace kav
