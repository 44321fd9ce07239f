// The user's settings as the commands read and change them.
#pragma once

#include <optional>
#include <string>

#include "cli/options.h"
#include "engine/calc_modes.h"
#include "store/user_settings_store.h"

namespace kav {

/// The settings file of the options or the user's own. Nothing is read from the disk before a
/// setting is asked for, and nothing is written but by SettingsStore::Change. What the user should
/// know about the file goes to standard error, at the latest when the object goes.
class StoredSettings {
 public:
  explicit StoredSettings(const Options& options);
  ~StoredSettings();
  StoredSettings(const StoredSettings&) = delete;
  StoredSettings& operator=(const StoredSettings&) = delete;

  SettingsStore& Store() { return store_; }
  /// To be asked after each change: why it could not be kept, and then it is taken back and will
  /// not come with a later one; nullopt where it is on the disk.
  std::optional<std::string> TakeFailure();
  /// The stored angle unit.
  AngleUnit Angle();
  void TellNotices();

 private:
  UserSettingsStore store_;
};

}  // namespace kav
