// The user's settings as the commands read and change them.
#pragma once

#include <optional>
#include <string_view>

#include "cli/answer_writer.h"
#include "cli/options.h"
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

  /// To be asked after each change. Why it could not be saved; it is taken back then, so that no
  /// later change saves it. nullopt if it is on the disk.
  std::optional<Failure> TakeFailure();

  /// The angle unit of the options, or else the stored one.
  AngleUnit Angle();
  /// The same for `line`. Only functions and macros depend on it, and both are written with
  /// letters: if `line` has none but `variables`, the settings stay unread, which would take longer
  /// than the calculation.
  AngleUnit AngleFor(std::string_view line, std::string_view variables);

  /// Tells the notices that wait.
  void TellNotices();

 private:
  UserSettingsStore store_;
  std::optional<AngleUnit> angle_;  ///< nullopt: not read yet
};

}  // namespace kav
