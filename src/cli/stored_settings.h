// The user's settings as the commands read and change them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/answer_writer.h"
#include "cli/options.h"
#include "common/expected.h"
#include "engine/calc_modes.h"
#include "store/user_settings_store.h"

namespace kav {

/// The settings file of the options, or the user's own. It is read when a setting is first asked
/// for, and written by SettingsStore::Change only. Notices about the file go to standard error, at
/// the latest when the object goes.
class StoredSettings {
 public:
  explicit StoredSettings(const Options& options);
  ~StoredSettings();
  StoredSettings(const StoredSettings&) = delete;
  StoredSettings& operator=(const StoredSettings&) = delete;

  SettingsStore& Store() { return store_; }

  /// Why the last change could not be saved; nullopt if it is on the disk. To be asked after each
  /// change: one that could not be saved is taken back, so that no later one saves it as well.
  std::optional<Failure> TakeFailure();

  // See UserSettingsStore.
  Expected<std::string, std::u16string> Export() const { return store_.Export(); }
  std::optional<std::u16string> Import(std::string_view toml) { return store_.Import(toml); }

  /// The angle unit of the options, or else the stored one.
  AngleUnit Angle();
  /// The same for `line`, or any unit if it does not matter. It matters to functions and macros,
  /// which are written with letters. If `line` has none but `variables`, the settings are not read,
  /// since that takes longer than the calculation.
  AngleUnit AngleFor(std::string_view line, std::string_view variables);

  /// Tells the notices that wait.
  void TellNotices();

 private:
  UserSettingsStore store_;
  std::optional<AngleUnit> angle_;  ///< nullopt: not read yet
};

}  // namespace kav
