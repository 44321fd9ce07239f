// The user's macros: functions of one, two or three arguments, kept in the settings.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/tokenizer.h"
#include "settings/settings_store.h"

namespace kav {

/// The stored macros, numbered from 0 without gaps. Reads the store at each call and so always
/// shows what it holds; the store must outlive it.
class MacroStore {
 public:
  static constexpr int kCapacity = 60;

  explicit MacroStore(const SettingsStore& store) : store_(store) {}

  /// 0 to kCapacity, whatever number is stored.
  int Count() const;
  /// The first macro called `name` (case counts), nullopt where there is none.
  std::optional<int> Find(std::string_view name) const;

  // For `index` from 0 to Count() - 1.
  std::string Name(int index) const;
  VariableType Type(int index) const;
  std::string Formula(int index) const;

 private:
  const SettingsStore& store_;
};

}  // namespace kav
