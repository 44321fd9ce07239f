// The user's macros: functions of one, two or three arguments, kept in the settings.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "engine/formula_checker.h"
#include "engine/tokenizer.h"
#include "settings/settings_store.h"

namespace kav {

/// A macro as it is stored: UTF-8, no text checked.
struct Macro {
  std::string name;
  VariableType type = VariableType::XYZ;
  std::string formula;

  bool operator==(const Macro&) const = default;
};

/// The stored macros, numbered from 0 without gaps. Always shows what the settings hold; these must
/// outlive it. A wrong stored count is corrected by what is stored: a macro beyond it is shown, and
/// empty places at the end are not.
class MacroStore {
 public:
  static constexpr int kCapacity = 60;

  explicit MacroStore(const SettingsStore& settings) : settings_(settings) {}

  /// 0 to kCapacity.
  int Count() const { return static_cast<int>(All().size()); }
  /// The first macro called `name`, exactly as spelled; nullopt if there is none.
  std::optional<int> Find(std::string_view name) const;

  /// The macro `index`, from 0 to Count() - 1; valid until the settings change.
  const Macro& At(int index) const { return All()[static_cast<std::size_t>(index)].macro; }
  /// Its formula or, if that is no good, the message for whoever calls the macro. Checked only
  /// once; valid until the settings change.
  const Expected<CheckedFormula, std::string>& Checked(int index) const;

 private:
  struct Entry {
    Macro macro;
    mutable std::unique_ptr<Expected<CheckedFormula, std::string>> checked;
  };

  const std::vector<Entry>& All() const;

  const SettingsStore& settings_;
  // What the settings held when they were last read; a line may call a macro many times.
  mutable std::vector<Entry> entries_;
  mutable std::optional<std::uint64_t> revision_;
};

/// The text that a type is stored as and chosen by.
std::string_view MacroTypeText(VariableType type);

/// The name of `macro` and the arguments that it takes, as lists of macros show it: "area(X,Y)".
std::u16string MacroLabel(const Macro& macro);

}  // namespace kav
