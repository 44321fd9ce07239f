// Settings that hold macros, for tests.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

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

}  // namespace kav::test
