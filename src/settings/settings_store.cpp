#include "settings/settings_store.h"

namespace kav {

std::int32_t SettingsStore::Get(const SettingKey<std::int32_t>& key) const {
  const auto stored = Read(key.section, key.name);
  const auto* value = stored ? std::get_if<std::int32_t>(&*stored) : nullptr;
  return value != nullptr ? *value : key.fallback;
}

std::string SettingsStore::Get(const SettingKey<std::string_view>& key) const {
  auto stored = Read(key.section, key.name);
  auto* value = stored ? std::get_if<std::string>(&*stored) : nullptr;
  return value != nullptr ? std::move(*value) : std::string(key.fallback);
}

std::string SettingsStore::Get(const NumberedKey& key) const {
  return Get(SettingKey<std::string_view>{key.section, key.name, key.fallback});
}

void SettingsStore::Set(const SettingKey<std::int32_t>& key, std::int32_t value) {
  Put(key.section, key.name, value);
}

void SettingsStore::Set(const SettingKey<std::string_view>& key, std::string_view value) {
  Put(key.section, key.name, std::string(value));
}

void SettingsStore::Set(const NumberedKey& key, std::string_view value) {
  Put(key.section, key.name, std::string(value));
}

bool SettingsStore::Change(const std::function<void()>& change) {
  change();
  return true;
}

void SettingsStore::Put(std::string_view section, std::string_view name, StoredSetting value) {
  Write(section, name, std::move(value));
  MarkChanged();
}

std::optional<StoredSetting> MemorySettingsStore::Read(std::string_view section,
                                                       std::string_view name) const {
  const auto found = settings_.find({std::string(section), std::string(name)});
  if (found == settings_.end()) return std::nullopt;
  return found->second;
}

void MemorySettingsStore::Write(std::string_view section, std::string_view name,
                                StoredSetting value) {
  settings_.insert_or_assign({std::string(section), std::string(name)}, std::move(value));
}

}  // namespace kav
