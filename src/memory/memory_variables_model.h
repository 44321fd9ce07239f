// The dialog of the memory variables: the user selects one and stores into it or recalls it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "memory/memory_variables.h"
#include "settings/settings_store.h"

namespace kav {

// What the dialog was opened for: to store `value` into as many variables as the user likes, or to
// recall the value of one.
struct StoreMode {
  std::u16string value;
};
struct RecallMode {};
using VariablesMode = std::variant<StoreMode, RecallMode>;

// What the action did: nothing for want of a selection; it stored, and the dialog goes on; or it
// recalled, and the dialog ends with the value.
struct VariableMissing {
  std::u16string_view text;
};
struct VariableStored {};
struct VariableRecalled {
  std::u16string value;
};
using VariableOutcome = std::variant<VariableMissing, VariableStored, VariableRecalled>;

/// Shows what all programs that share the settings have stored before it is made; its own changes
/// are stored at once.
class MemoryVariablesModel {
 public:
  /// `settings` must outlive it.
  MemoryVariablesModel(VariablesMode mode, SettingsStore& settings);

  /// All variables, in order: "Mem01 = 0".
  std::vector<std::u16string> Lines() const;

  /// Selects a line, counted from 0; nullopt, as at the start, or a line that does not exist
  /// selects none. Storing and clearing do not change it.
  void Select(std::optional<int> line);

  std::u16string_view ActionCaption() const;
  std::u16string_view ActionHelp() const;  ///< what it does
  /// Stores into the selected variable, or recalls it.
  VariableOutcome Act();

  /// To be asked before Clear; nullopt if nothing is selected.
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
