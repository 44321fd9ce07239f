// Settings that hold conversions which the user defined, for tests.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "converter/user_conversions.h"
#include "settings/settings_store.h"

namespace kav {

inline void PrintTo(const UserConversion& conversion, std::ostream* out) {
  *out << '[' << conversion.text << '|' << conversion.rateText << ']';
}

}  // namespace kav

namespace kav::test {

inline const SettingKey<std::int32_t> kConversionCount{"Converter", "UserDefine_TotalNumber", 0};

inline void StoreConversion(SettingsStore& store, int index, const UserConversion& conversion) {
  const std::string section = "UserDefine_Convert_" + std::to_string(index);
  store.Set(NumberedKey{section, "ConvType", ""}, conversion.text);
  store.Set(NumberedKey{section, "Rate", ""}, conversion.rateText);
}

inline void StoreConversions(SettingsStore& store, const std::vector<UserConversion>& conversions) {
  store.Set(kConversionCount, static_cast<std::int32_t>(conversions.size()));
  for (std::size_t i = 0; i < conversions.size(); ++i) {
    StoreConversion(store, static_cast<int>(i), conversions[i]);
  }
}

/// "a0 -> b0" with rate 1, "a1 -> b1" with rate 2 and so on.
inline std::vector<UserConversion> NumberedConversions(int count) {
  std::vector<UserConversion> conversions;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    conversions.push_back({"a" + number + " -> b" + number, std::to_string(i + 1)});
  }
  return conversions;
}

/// The section of that number, whatever the count says.
inline UserConversion StoredConversion(const SettingsStore& store, int index) {
  const std::string section = "UserDefine_Convert_" + std::to_string(index);
  return {store.Get(NumberedKey{section, "ConvType", ""}),
          store.Get(NumberedKey{section, "Rate", ""})};
}

/// The sections from 0 on, as many as the count says.
inline std::vector<UserConversion> StoredConversions(const SettingsStore& store) {
  std::vector<UserConversion> conversions;
  for (int i = 0; i < store.Get(kConversionCount); ++i) {
    conversions.push_back(StoredConversion(store, i));
  }
  return conversions;
}

}  // namespace kav::test
