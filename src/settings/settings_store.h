// Where everything that outlives a run is kept: sections of named integers and texts.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "settings/setting_key.h"

namespace kav {

/// A setting as it is stored: a signed 32-bit integer or a UTF-8 text.
using StoredSetting = std::variant<std::int32_t, std::string>;

/// The user's settings as models see them. Reads and writes are in memory and never fail; the owner
/// of the store decides whether it is saved to disk.
class SettingsStore {
 public:
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  virtual ~SettingsStore() = default;

  /// The stored integer; the key's default if nothing or no integer is stored.
  std::int32_t Get(const SettingKey<std::int32_t>& key) const;
  /// The stored text; the key's default if nothing or no text is stored.
  std::string Get(const SettingKey<std::string_view>& key) const;
  std::string Get(const NumberedKey& key) const;

  void Set(const SettingKey<std::int32_t>& key, std::int32_t value);
  void Set(const SettingKey<std::string_view>& key, std::string_view value);
  void Set(const NumberedKey& key, std::string_view value);

  /// Runs `change`, which reads and writes settings of this store, as one step for all programs
  /// that share them: `change` finds what the others stored before, and none of them stores
  /// anything until all is kept. For changes whose result depends on what is stored, such as the
  /// next free number. Not to be called within another change. False if it was made in memory only.
  virtual bool Change(const std::function<void()>& change);

  /// Takes over what other programs have stored; what this one has changed and not saved yet stays.
  virtual void Refresh() {}

  /// A number that changes whenever any setting may have changed.
  std::uint64_t Revision() const { return revision_; }

 protected:
  /// To be called when settings change otherwise than by Set.
  void MarkChanged() { ++revision_; }

 private:
  virtual std::optional<StoredSetting> Read(std::string_view section,
                                            std::string_view name) const = 0;
  virtual void Write(std::string_view section, std::string_view name, StoredSetting value) = 0;
  void Put(std::string_view section, std::string_view name, StoredSetting value);

  std::uint64_t revision_ = 0;
};

/// Settings that live as long as the object: for tests, and for a run without a place to keep them.
class MemorySettingsStore final : public SettingsStore {
 private:
  std::optional<StoredSetting> Read(std::string_view section, std::string_view name) const override;
  void Write(std::string_view section, std::string_view name, StoredSetting value) override;

  std::map<std::pair<std::string, std::string>, StoredSetting> settings_;
};

}  // namespace kav
