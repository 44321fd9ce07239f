// Adding, changing and removing macros, with the checks that every way of doing so has in common.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "common/expected.h"
#include "common/refusal.h"
#include "engine/tokenizer.h"
#include "macros/macro_store.h"
#include "settings/keys.h"
#include "settings/settings_store.h"
#include "settings/stored_entries.h"

namespace kav {

/// What the user typed and chose.
struct TypedMacro {
  std::u16string name;
  std::optional<VariableType> type;
  std::u16string formula;
};

/// Where the focus goes after a refusal.
enum class MacroField { None, Name, Type, Formula };
using MacroRefusal = Refusal<MacroField>;

/// Formulas are at most this many UTF-16 units long, not counting blanks at their ends.
inline constexpr std::size_t kLongestFormula = 150;

/// The macros as a stored list, see settings/stored_entries.h.
struct MacroTraits {
  using Entry = Macro;
  using Typed = TypedMacro;
  using Field = MacroField;

  static constexpr int kCapacity = MacroStore::kCapacity;
  static constexpr IntegerKey kCount = kMacroCount;
  static std::u16string FullText();
  static std::vector<Macro> Load(const SettingsStore& settings);
  static const std::string& NameOf(const Macro& macro) { return macro.name; }
  static std::u16string LabelOf(const Macro& macro) { return MacroLabel(macro); }
  static Expected<Macro, MacroRefusal> Check(const TypedMacro& typed,
                                             const std::vector<Macro>& others);
  static void Write(const Macro& macro, int index, SettingsStore& settings);
  static void CloseGap(const std::vector<Macro>& stored, int removed, SettingsStore& settings);
};

/// Stores `typed` in the place of `edited`, or behind the others if there is no such macro (any
/// more). Blanks at the ends of name and formula are dropped. Returns the macro's index, or the
/// first reason why it cannot be stored; then nothing is.
Expected<int, MacroRefusal> SaveMacro(const TypedMacro& typed,
                                      const std::optional<StoredIdentity>& edited,
                                      SettingsStore& settings);

/// Removes `macro` and moves those behind it up. False if it was gone already.
bool RemoveMacro(const StoredIdentity& macro, SettingsStore& settings);

}  // namespace kav
