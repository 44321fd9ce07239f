// Whether a store holds a setting at all, which no model needs to know.
#pragma once

#include <cstdint>
#include <string_view>

#include "settings/settings_store.h"

namespace kav::test {

/// Whether anything is stored at the address: then one of two defaults does not come back.
inline bool IsStored(const SettingsStore& store, std::string_view section, std::string_view name) {
  for (const std::int32_t fallback : {1, 2}) {
    if (store.Get(SettingKey<std::int32_t>{section, name, fallback}) != fallback) return true;
  }
  for (const std::string_view fallback : {"a", "b"}) {
    if (store.Get(SettingKey<std::string_view>{section, name, fallback}) != fallback) return true;
  }
  return false;
}

}  // namespace kav::test
