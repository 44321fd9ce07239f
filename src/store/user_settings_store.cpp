#include "store/user_settings_store.h"

#include <unistd.h>

#include <new>
#include <utility>
#include <variant>

#include "common/expected.h"
#include "common/number_text.h"
#include "common/version.h"
#include "settings/atomic_file.h"
#include "settings/keys.h"
#include "store/file_lock.h"
#include "store/settings_texts.h"

namespace kav {
namespace {

constexpr std::chrono::milliseconds kPatience{2000};
// Long enough for a process that saves just then, short enough not to be felt.
constexpr std::chrono::milliseconds kPatienceOfWindow{250};

std::chrono::milliseconds PatienceOf(StoreUser user) {
  return user == StoreUser::Window ? kPatienceOfWindow : kPatience;
}

/// A file that is too large to hold settings.
struct TooLarge {};
using FileContent = std::variant<std::string, TooLarge, FileError>;

/// What `action` answers, or `otherwise` if the memory does not suffice for it.
template <class Answer, class Action>
Answer WithMemoryFor(const Action& action, const Answer& otherwise) {
  try {
    return action();
  } catch (const std::bad_alloc&) {
    return otherwise;
  }
}

/// The content of a settings file; empty if there is no file yet.
FileContent ReadFile(const std::string& path) {
  auto content = ReadWholeFile(path, kLargestSettingsFile);
  if (content) return *std::move(content);
  switch (content.error()) {
    case FileError::NotThere:
    case FileError::BadPath:
    case FileError::NameTooLong:
      return std::string();
    case FileError::TooLarge:
      return TooLarge{};
    default:
      return content.error();
  }
}

/// The settings in what was read; nullopt if they are damaged or cannot be read.
std::optional<SettingsTable> SettingsIn(const FileContent& content) {
  const auto* toml = std::get_if<std::string>(&content);
  return toml == nullptr ? std::nullopt : ReadSettings(*toml);
}

/// What a settings file holds or, if that is not known, what is to be told about it.
struct ReadOutcome {
  std::optional<SettingsTable> settings;
  std::u16string notice;
  bool isUnread = false;  ///< it may be sound
};

ReadOutcome ReadStored(const std::string& path) {
  const FileContent content = ReadFile(path);
  if (const auto* error = std::get_if<FileError>(&content)) {
    return {std::nullopt, SettingsCannotBeRead(path, *error), true};
  }
  if (std::holds_alternative<TooLarge>(content)) return {std::nullopt, SettingsAreTooLarge(path)};
  return {SettingsIn(content), SettingsAreDamaged(path)};
}

/// The settings in `toml`, which is about to be written; nullopt if it would not read back.
std::optional<SettingsTable> ReadBack(std::string_view toml) {
  return toml.size() > kLargestSettingsFile ? std::nullopt : ReadSettings(toml);
}

void Lay(SettingsTable& under, const SettingsTable& over) {
  for (const auto& [section, settings] : over) {
    for (const auto& [name, value] : settings) under[section].insert_or_assign(name, value);
  }
}

}  // namespace

UserSettingsStore::UserSettingsStore(std::string path, StoreUser user)
    : path_(std::move(path)), user_(user), patience_(PatienceOf(user)) {}

std::optional<StoredSetting> UserSettingsStore::Read(std::string_view section,
                                                     std::string_view name) const {
  const StoredSetting* found = FindSetting(changes_, section, name);
  if (found == nullptr) found = FindSetting(Stored(), section, name);
  if (found == nullptr) return std::nullopt;
  return *found;
}

void UserSettingsStore::Write(std::string_view section, std::string_view name,
                              StoredSetting value) {
  if (auto* text = std::get_if<std::string>(&value)) *text = Narrow(Widen(*text));
  const StoredSetting* stored = FindSetting(Stored(), section, name);
  SettingsSection& changed = changes_[std::string(section)];
  if (stored == nullptr || *stored != value) {
    changed.insert_or_assign(std::string(name), std::move(value));
    return;
  }
  // Set back to what the file holds: no change of ours, so that of another process may stand.
  if (const auto found = changed.find(name); found != changed.end()) changed.erase(found);
  if (changed.empty()) changes_.erase(std::string(section));
}

const SettingsTable& UserSettingsStore::Stored() const {
  if (stored_) return *stored_;
  stored_.emplace();
  auto read = WithMemoryFor(
      [this] { return ReadStored(path_); },
      ReadOutcome{std::nullopt, SettingsCannotBeRead(path_, FileError::NoMemory), true});
  if (read.settings) {
    stored_ = std::move(read.settings);
  } else {
    Tell(std::move(read.notice));
    isUnread_ = read.isUnread;
  }
  return *stored_;
}

void UserSettingsStore::Refresh() {
  if (!stored_) return;
  auto settings =
      WithMemoryFor([this] { return SettingsIn(ReadFile(path_)); }, std::optional<SettingsTable>());
  if (!settings) return;
  isUnread_ = isUnread_ && !changes_.empty();
  if (settings == stored_) return;
  stored_ = std::move(settings);
  MarkChanged();
}

bool UserSettingsStore::Save() {
  if (changes_.empty()) return true;
  return Kept(WithLock(patience_, [this](const std::string& file) { return SaveOver(file); }));
}

bool UserSettingsStore::TrySave() {
  if (changes_.empty()) return true;
  auto hindrance = WithLock(std::chrono::milliseconds(0),
                            [this](const std::string& file) { return SaveOver(file); });
  if (hindrance && hindrance->isOtherProcess) return false;
  Kept(std::move(hindrance));
  return true;
}

void UserSettingsStore::TellBusy() {
  std::u16string text = NotSaved(FileError::Busy);
  told_.erase(text);
  Tell(std::move(text));
}

bool UserSettingsStore::Change(const std::function<void()>& change) {
  bool isMade = false;
  auto hindrance = WithLock(patience_, [&](const std::string& file) -> Outcome {
    Refresh();
    change();
    isMade = true;
    if (changes_.empty()) return std::nullopt;
    return SaveOver(file);
  });
  if (!isMade) change();
  const bool isLeftForLater = hindrance && hindrance->isOtherProcess && user_ == StoreUser::Window;
  return !isLeftForLater && Kept(std::move(hindrance));
}

bool UserSettingsStore::Kept(Outcome hindrance) {
  if (!hindrance) return true;
  failure_ = hindrance->text;
  Tell(std::move(hindrance->text));
  return false;
}

std::optional<std::u16string> UserSettingsStore::TakeBackUnsaved() {
  if (changes_.empty()) return std::nullopt;
  changes_.clear();
  MarkChanged();
  return failure_;
}

std::u16string UserSettingsStore::NotSaved(FileError error) const {
  std::u16string text = SettingsCannotBeSaved(path_, error);
  if (user_ == StoreUser::Window && !path_.empty()) text += kUntilThenTheyLast;
  return text;
}

/// Does `action` on the file that all links lead to while no other process saves; answers why it or
/// the locking failed.
UserSettingsStore::Outcome UserSettingsStore::WithLock(
    std::chrono::milliseconds patience,
    const std::function<Outcome(const std::string& file)>& action) {
  if (path_.empty()) return Hindrance{NotSaved(FileError::BadPath)};
  const std::string file = FollowLinks(path_);
  // The name of a folder, which is not to be made only to be in the way then.
  if (file.ends_with('/')) return Hindrance{NotSaved(FileError::NotAFile)};
  MakeFoldersFor(file);
  const auto lock = FileLock::AcquireFor(file, patience);
  if (!lock) {
    const bool isOtherProcess = lock.error() == FileError::Busy;
    // A process that hangs while it holds the lock is waited for once, not at every save.
    if (isOtherProcess) patience_ = std::chrono::milliseconds(0);
    return Hindrance{NotSaved(lock.error()), isOtherProcess};
  }
  patience_ = PatienceOf(user_);
  if (lock->IsHeld()) RemoveLeftovers(file);
  return action(file);
}

/// Only while the lock is held.
UserSettingsStore::Outcome UserSettingsStore::SaveOver(const std::string& file) {
  return WithMemoryFor([&] { return Merge(file); },
                       Outcome(Hindrance{NotSaved(FileError::NoMemory)}));
}

/// SaveOver, if the memory suffices.
UserSettingsStore::Outcome UserSettingsStore::Merge(const std::string& file) {
  const FileContent content = ReadFile(file);
  if (const auto* error = std::get_if<FileError>(&content)) {
    return Hindrance{SettingsCannotBeRead(path_, *error)};
  }
  const auto* current = std::get_if<std::string>(&content);
  auto merged = current != nullptr ? WithChanges(*current, changes_) : std::nullopt;
  const bool isDamaged = !merged;
  // What was set without knowing the file may stand in place of something better.
  const bool isOverUnread = isUnread_ && current != nullptr && !current->empty();
  if (isDamaged) {
    Tell(current != nullptr ? SettingsAreDamaged(path_) : SettingsAreTooLarge(path_));
    merged = WithChanges("", All());
  }
  auto readBack = merged ? ReadBack(*merged) : std::nullopt;
  if (!readBack) return Hindrance{NotSaved(FileError::TooLarge)};
  std::optional<FileError> error;
  if (isDamaged || isOverUnread) {
    error = ReplaceAndKeep(file, *merged, kDamagedMark, NewFileOwner::OwnerOfFolder);
  } else if (*merged != *current) {
    error = ReplaceFile(file, *merged, NewFileOwner::OwnerOfFolder);
  }
  if (error) return Hindrance{NotSaved(*error)};
  stored_ = std::move(readBack);
  changes_.clear();
  // Should it fail again, that is news.
  told_.clear();
  if (std::exchange(isUnread_, false) && isOverUnread) Tell(SettingsWereUnread(path_));
  MarkChanged();
  return std::nullopt;
}

Expected<std::string, std::u16string> UserSettingsStore::Export() const {
  const auto text = [this]() -> Expected<std::string, std::u16string> {
    auto read = path_.empty() ? ReadOutcome{SettingsTable(), {}} : ReadStored(path_);
    if (!read.settings) return std::move(read.notice);
    Lay(*read.settings, changes_);
    // What tells an import that the text is one of settings, whoever has stored any.
    (*read.settings)[std::string(kVersion.section)].try_emplace(std::string(kVersion.name),
                                                                std::string(KAV_VERSION));
    return *WithChanges("", *read.settings);
  };
  return WithMemoryFor(text, Expected<std::string, std::u16string>(
                                 SettingsCannotBeRead(path_, FileError::NoMemory)));
}

std::optional<std::u16string> UserSettingsStore::Import(std::string_view toml) {
  if (toml.size() > kLargestSettingsFile) return std::u16string(kTooLargeForSettings);
  if (!IsExport(toml)) return std::u16string(kNoSettingsToImport);
  const auto settings = ReadSettings(toml);
  auto hindrance =
      WithLock(patience_, [&](const std::string& file) { return ReplaceBy(file, *settings); });
  if (!hindrance) return std::nullopt;
  return std::move(hindrance->text);
}

/// Makes `settings` all that the file holds. Only while the lock is held.
UserSettingsStore::Outcome UserSettingsStore::ReplaceBy(const std::string& file,
                                                        const SettingsTable& settings) {
  const auto text = WithChanges("", settings);
  auto readBack = text ? ReadBack(*text) : std::nullopt;
  if (!readBack) return Hindrance{NotSaved(FileError::TooLarge)};
  const bool isThere = access(file.c_str(), F_OK) == 0;
  const auto error =
      isThere ? ReplaceAndKeep(file, *text, kBeforeImportMark, NewFileOwner::OwnerOfFolder)
              : ReplaceFile(file, *text, NewFileOwner::OwnerOfFolder);
  if (error) return Hindrance{NotSaved(*error)};
  stored_ = std::move(readBack);
  changes_.clear();
  told_.clear();
  isUnread_ = false;
  MarkChanged();
  return std::nullopt;
}

/// All settings that this process knows: what it has read, and what it has changed.
SettingsTable UserSettingsStore::All() const {
  SettingsTable all = Stored();
  Lay(all, changes_);
  return all;
}

std::optional<std::u16string> UserSettingsStore::TakeNotice() {
  if (notices_.empty()) return std::nullopt;
  std::u16string notice = std::move(notices_.front());
  notices_.pop_front();
  return notice;
}

void UserSettingsStore::Tell(std::u16string text) const {
  if (told_.insert(text).second) notices_.push_back(std::move(text));
}

}  // namespace kav
