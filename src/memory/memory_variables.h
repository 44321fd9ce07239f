// The numbered memory variables: numbers, as texts, that survive restarts.
#pragma once

#include <string>
#include <string_view>

#include "settings/settings_store.h"

namespace kav {

/// Twenty texts, numbered from 0 here and from 1 for the user. They are neither checked nor
/// converted. Always shows what the settings hold; these must outlive it.
class MemoryVariables {
 public:
  static constexpr int kCount = 20;

  explicit MemoryVariables(SettingsStore& settings) : settings_(settings) {}

  // `index` is 0 to kCount - 1.
  std::string Get(int index) const;
  void Set(int index, std::string_view value);
  void Clear(int index);
  void ClearAll();

  /// The name that lists show: "Mem01".
  static std::u16string Name(int index);
  /// The line that shows the variable in a list: "Mem01 = 0".
  std::u16string Line(int index) const;

 private:
  SettingsStore& settings_;
};

}  // namespace kav
