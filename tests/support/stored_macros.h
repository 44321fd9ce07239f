// Settings that hold macros, for tests.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "macros/macro_store.h"
#include "settings/settings_store.h"

namespace kav::test {

struct StoredMacro {
  std::string_view name;
  std::string_view type;
  std::string_view formula;
};

inline void StoreMacros(SettingsStore& store, const std::vector<StoredMacro>& macros) {
  const SettingKey<std::int32_t> count{"MacroInfo", "TotalNumber", 0};
  store.Set(count, static_cast<std::int32_t>(macros.size()));
  for (std::size_t i = 0; i < macros.size(); ++i) {
    const std::string section = "Macro" + std::to_string(i);
    store.Set(NumberedKey{section, "Name", ""}, macros[i].name);
    store.Set(NumberedKey{section, "Type", ""}, macros[i].type);
    store.Set(NumberedKey{section, "Formula", ""}, macros[i].formula);
  }
}

/// The three texts of a macro as they are stored.
struct MacroTexts {
  std::string name;
  std::string type;
  std::string formula;

  bool operator==(const MacroTexts&) const = default;
};

inline void PrintTo(const MacroTexts& texts, std::ostream* out) {
  *out << '[' << texts.name << '|' << texts.type << '|' << texts.formula << ']';
}

inline MacroTexts TextsOf(const SettingsStore& store, int index) {
  const std::string section = "Macro" + std::to_string(index);
  const auto text = [&](const char* name) { return store.Get(NumberedKey{section, name, ""}); };
  return {text("Name"), text("Type"), text("Formula")};
}

/// The names of all that MacroStore shows.
inline std::vector<std::string> MacroNames(const SettingsStore& store) {
  const MacroStore macros(store);
  std::vector<std::string> names;
  for (int i = 0; i < macros.Count(); ++i) names.push_back(macros.At(i).name);
  return names;
}

}  // namespace kav::test
