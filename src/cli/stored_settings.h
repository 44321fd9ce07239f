// The user's settings as the commands read them.
#pragma once

#include "cli/options.h"
#include "engine/calc_modes.h"
#include "settings/user_settings_store.h"

namespace kav {

/// The settings file of the options or the user's own. Nothing is read from the disk before a
/// setting is asked for, and nothing is ever written. What the user should know about the file goes
/// to standard error, at the latest when the object goes.
class StoredSettings {
 public:
  explicit StoredSettings(const Options& options);
  ~StoredSettings();
  StoredSettings(const StoredSettings&) = delete;
  StoredSettings& operator=(const StoredSettings&) = delete;

  const SettingsStore& Store() const { return store_; }
  /// The stored angle unit.
  AngleUnit Angle();
  void TellNotices();

 private:
  UserSettingsStore store_;
};

}  // namespace kav
