// The user's settings in a file: read when first needed, saved without harming what others saved.
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
/// Whatever is wrong with the file or its place, reading and writing settings goes on in memory;
/// what the user should know waits in TakeNotice. A text that is not UTF-8 is stored with U+FFFD
/// for each byte that is wrong. Texts and names otherwise come back exactly as they went in.
class UserSettingsStore final : public SettingsStore {
 public:
  /// Settings in the file `path` (DefaultSettingsPath unless the user named another); an empty path
  /// means that there is no place for them. Does not touch the disk: the file is read, once, when
  /// the first setting is asked for or set. File and folders are made when they are first saved to.
  explicit UserSettingsStore(std::string path);

  /// Writes what this process changed since the last time into the file, over what other processes
  /// wrote meanwhile, and takes over what they wrote. Nothing is written where nothing changed.
  /// Returns once all is on the disk; false where it could not be written, and then the changes
  /// stay for the next try. A damaged file is kept under another name first. Waits up to
  /// two seconds for another process that is saving; after a wait in vain, no more until the file
  /// was free once.
  bool Save();

  /// Holds the file's lock from before the file is read anew until the change, with all that was
  /// changed earlier, is on the disk. Where that cannot be, the change is made in memory, to be
  /// saved with the next save.
  bool Change(const std::function<void()>& change) override;

  /// Takes back what was changed and could not be saved, for whoever must not go on with what will
  /// not last. Answers why it could not, as a notice told or tells; nullopt where nothing waits.
  std::optional<std::u16string> TakeBackUnsaved();

  /// For what opens late and should show the others' entries too. No effect where the file cannot
  /// be read, and none before settings were first asked for, which reads them anyway.
  void Refresh() override;

  /// The next thing to tell the user, nullopt where there is none. Each is told once in the life of
  /// the store. Ask after settings were first read, and after saving.
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
  std::u16string failure_;  ///< why the last try to save them was none
  // What the file held when it was last read; reading it late is no change that anybody sees.
  mutable std::optional<SettingsTable> stored_;
  mutable std::deque<std::u16string> notices_;
  mutable std::set<std::u16string> told_;
};

}  // namespace kav
