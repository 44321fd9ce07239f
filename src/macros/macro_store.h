// The user's macros: functions of one, two or three arguments, kept in the settings.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// The stored macros, numbered from 0 without gaps. Always shows what the settings hold, which must
/// outlive it. A stored count that is wrong is mended by what is there: it neither hides a macro
/// that stands in its place nor shows places at the end that are empty.
class MacroStore {
 public:
  static constexpr int kCapacity = 60;

  explicit MacroStore(const SettingsStore& settings) : settings_(settings) {}

  /// 0 to kCapacity.
  int Count() const { return static_cast<int>(All().size()); }
  /// The first macro called `name` (case counts), nullopt where there is none.
  std::optional<int> Find(std::string_view name) const;

  /// The macro `index`, from 0 to Count() - 1; valid until the settings change.
  const Macro& At(int index) const { return All()[static_cast<std::size_t>(index)].macro; }
  /// Its formula as the checker finds it, which is asked only once; valid until the settings
  /// change.
  const CalcResult<CheckedFormula>& Checked(int index) const;

 private:
  struct Entry {
    Macro macro;
    mutable std::unique_ptr<CalcResult<CheckedFormula>> checked;
  };

  const std::vector<Entry>& All() const;

  const SettingsStore& settings_;
  // What the settings held when they were last looked at: a line may call a macro many times.
  mutable std::vector<Entry> entries_;
  mutable std::optional<std::uint64_t> revision_;
};

/// The text that a type is stored as and chosen by.
std::string_view MacroTypeText(VariableType type);

/// The name of `macro` and the arguments that it takes, as lists of macros show it: "area(X,Y)".
std::u16string MacroLabel(const Macro& macro);

}  // namespace kav
