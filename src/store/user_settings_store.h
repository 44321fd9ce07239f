// The user's settings in a file: read when first needed, saved without losing what others saved.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "settings/file_error.h"
#include "settings/settings_store.h"
#include "store/settings_toml.h"

namespace kav {

/// Who uses a store: a command, which waits for another process that is saving, and fails if it
/// cannot save; or a window, whose user does not wait, and which goes on with what is not saved
/// yet.
enum class StoreUser { Command, Window };

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
  explicit UserSettingsStore(std::string path, StoreUser user = StoreUser::Command);

  /// Writes what this process has changed since the last save into the file, over what other
  /// processes have written, and takes over what they wrote. Writes nothing if nothing changed.
  /// Returns once all is on the disk; false if it could not be written, and then the changes stay
  /// for the next try. A damaged file, or one that could not be read at first, is kept under
  /// another name. Waits up to two seconds for another process that is saving, for a window a
  /// quarter of a second; after a wait in vain it waits no more until the file was free once.
  bool Save();

  /// Save for a window, without any wait. False if another process is saving: nobody is told then,
  /// and it is to be called again soon. True if it was saved, or could not be for another reason.
  bool TrySave();

  /// Tells, even if it was told before, that another process has kept the file for long.
  void TellBusy();

  /// Locks the file, reads it again, makes the change and writes it, with all earlier changes, to
  /// the disk before it unlocks the file. If any of this fails, the change is made in memory, and
  /// the next save tries again. In a window it is not told if another process just was saving.
  bool Change(const std::function<void()>& change) override;

  /// Takes back what was changed and could not be saved, for a caller that must not go on with what
  /// will not last. Answers why it could not be saved, as the notice says it; nullopt if nothing
  /// was taken back.
  std::optional<std::u16string> TakeBackUnsaved();

  /// Everything that is stored, and what is changed and not saved yet, as a text that Import takes;
  /// or why it cannot be had.
  Expected<std::string, std::u16string> Export() const;

  /// Makes the settings in `toml` all there are, on the disk before it returns. The file as it was
  /// is kept beside, with ".before-import" after its name. Answers why nothing was changed; nullopt
  /// if it was.
  std::optional<std::u16string> Import(std::string_view toml);

  /// For dialogs that should show what other processes have stored. No effect if the file cannot be
  /// read or is damaged, and none before settings are first asked for, which reads them anyway.
  void Refresh() override;

  /// The next thing to tell the user; nullopt if there is none. Each is told once until settings
  /// could be saved again. To be asked after settings are first read, and after each save.
  std::optional<std::u16string> TakeNotice();
  bool HasNotice() const { return !notices_.empty(); }

 private:
  std::optional<StoredSetting> Read(std::string_view section, std::string_view name) const override;
  void Write(std::string_view section, std::string_view name, StoredSetting value) override;

  /// Why settings could not be saved.
  struct Hindrance {
    std::u16string text;
    bool isOtherProcess = false;
  };
  using Outcome = std::optional<Hindrance>;

  const SettingsTable& Stored() const;
  bool Kept(Outcome hindrance);
  std::u16string NotSaved(FileError error) const;
  Outcome WithLock(std::chrono::milliseconds patience,
                   const std::function<Outcome(const std::string& file)>& action);
  Outcome SaveOver(const std::string& file);
  Outcome Merge(const std::string& file);
  Outcome ReplaceBy(const std::string& file, const SettingsTable& settings);
  SettingsTable All() const;
  void Tell(std::u16string text) const;

  std::string path_;
  StoreUser user_;
  std::chrono::milliseconds patience_;
  SettingsTable changes_;
  std::u16string failure_;  ///< why the last try to save them failed
  // What the file held when it was last read. It is read late, in const functions too: nobody sees
  // when.
  mutable std::optional<SettingsTable> stored_;
  mutable bool isUnread_ =
      false;  ///< the file could not be read, and changes_ were made without it
  mutable std::deque<std::u16string> notices_;
  mutable std::set<std::u16string> told_;
};

}  // namespace kav
