// The user's settings in a file: read when first needed, saved without losing what others saved.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "settings/settings_store.h"
#include "store/settings_toml.h"

namespace kav {

/// Settings kept in a TOML file. Several processes may have stores on one file: each saves only
/// what it changed, and a reader finds the file as it was before or after a save, never between.
///
/// If anything is wrong with the file or its place, settings are still read and written in memory,
/// and TakeNotice tells what the user should know. A text that is not UTF-8 is stored with U+FFFD
/// for each byte that is wrong. All other texts and names come back exactly as they went in.
class UserSettingsStore final : public SettingsStore {
 public:
  /// Settings in the file `path` (DefaultSettingsPath unless the user named another); an empty path
  /// means that there is no place for them. Does not touch the disk: the file is read once, when
  /// the first setting is asked for or set. The file and its folders are made by the first save.
  explicit UserSettingsStore(std::string path);

  /// Writes what this process has changed since the last save into the file, over what other
  /// processes have written, and takes over what they wrote. Writes nothing if nothing changed.
  /// Returns once all is on the disk; false if it could not be written, and then the changes stay
  /// for the next try. A damaged file is kept under another name first. Waits up to two seconds for
  /// another process that is saving; after a wait in vain it waits no more until the file was free
  /// once.
  bool Save();

  /// Locks the file, reads it again, makes the change and writes it, with all earlier changes, to
  /// the disk before it unlocks the file. If any of this fails, the change is made in memory, and
  /// the next save tries again.
  bool Change(const std::function<void()>& change) override;

  /// Takes back what was changed and could not be saved, for a caller that must not go on with what
  /// will not last. Answers why it could not be saved, as the notice says it; nullopt if nothing
  /// was taken back.
  std::optional<std::u16string> TakeBackUnsaved();

  /// For dialogs that should show what other processes have stored. No effect if the file cannot be
  /// read or is damaged, and none before settings are first asked for, which reads them anyway.
  void Refresh() override;

  /// The next thing to tell the user; nullopt if there is none. Each is told once in the life of
  /// the store. To be asked after settings are first read, and after each save.
  std::optional<std::u16string> TakeNotice();

 private:
  std::optional<StoredSetting> Read(std::string_view section, std::string_view name) const override;
  void Write(std::string_view section, std::string_view name, StoredSetting value) override;

  const SettingsTable& Stored() const;
  bool Kept(std::optional<std::u16string> failure);
  std::optional<std::u16string> WithLock(
      const std::function<std::optional<std::u16string>(const std::string& file)>& action);
  std::optional<std::u16string> SaveOver(const std::string& file);
  SettingsTable All() const;
  void Tell(std::u16string text) const;

  std::string path_;
  std::chrono::milliseconds patience_;
  SettingsTable changes_;
  std::u16string failure_;  ///< why the last try to save them failed
  // What the file held when it was last read. It is read late, in const functions too: nobody sees
  // when.
  mutable std::optional<SettingsTable> stored_;
  mutable std::deque<std::u16string> notices_;
  mutable std::set<std::u16string> told_;
};

}  // namespace kav
