// Adding, changing and removing macros, with the checks that every way of doing so has in common.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "common/expected.h"
#include "common/refusal.h"
#include "engine/tokenizer.h"
#include "macros/macro_store.h"
#include "settings/settings_store.h"

namespace kav {

/// What the user typed and chose.
struct TypedMacro {
  std::u16string name;
  std::optional<VariableType> type;
  std::u16string formula;
};

/// Where the focus goes after a refusal.
enum class MacroField { None, Name, Type, Formula };

/// A stored macro as it was seen last: another program may have moved or removed it since.
struct MacroIdentity {
  int index;
  std::string name;

  bool operator==(const MacroIdentity&) const = default;
};

/// Where `macro` stands by now, nullopt where it is gone.
std::optional<int> PlaceOf(const MacroIdentity& macro, const MacroStore& macros);

/// Formulas are at most this many UTF-16 units long, blanks around them aside.
inline constexpr std::size_t kLongestFormula = 150;

/// Stores `typed` in the place of `edited`, or behind the others where there is none or it is gone
/// by now; blanks around name and formula are taken off. Answers its index, or the first reason
/// why it cannot be stored, and then nothing was.
Expected<int, Refusal<MacroField>> SaveMacro(const TypedMacro& typed,
                                             const std::optional<MacroIdentity>& edited,
                                             SettingsStore& settings);

/// Removes `macro` and moves those behind it up. False where it is gone already.
bool RemoveMacro(const MacroIdentity& macro, SettingsStore& settings);

}  // namespace kav
