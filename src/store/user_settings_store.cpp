#include "store/user_settings_store.h"

#include <cstddef>
#include <utility>
#include <variant>

#include "common/expected.h"
#include "common/number_text.h"
#include "settings/atomic_file.h"
#include "store/file_lock.h"
#include "store/settings_texts.h"

namespace kav {
namespace {

// Room for a history of lines of a megabyte each; a larger file is no settings file.
constexpr std::size_t kLargestFile = std::size_t{64} << 20U;
constexpr std::chrono::milliseconds kPatience{2000};

/// A file that is too large to hold settings.
struct TooLarge {};
using FileContent = std::variant<std::string, TooLarge, FileError>;

/// The content of a settings file; empty if there is no file yet.
FileContent ReadFile(const std::string& path) {
  auto content = ReadWholeFile(path, kLargestFile);
  if (content) return *std::move(content);
  switch (content.error()) {
    case FileError::NotThere:
    case FileError::BadPath:
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

/// The settings in `toml`, which is about to be written; nullopt if it would not read back.
std::optional<SettingsTable> ReadBack(std::string_view toml) {
  return toml.size() > kLargestFile ? std::nullopt : ReadSettings(toml);
}

void Lay(SettingsTable& under, const SettingsTable& over) {
  for (const auto& [section, settings] : over) {
    for (const auto& [name, value] : settings) under[section].insert_or_assign(name, value);
  }
}

}  // namespace

UserSettingsStore::UserSettingsStore(std::string path)
    : path_(std::move(path)), patience_(kPatience) {}

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
  const FileContent content = ReadFile(path_);
  if (auto settings = SettingsIn(content)) {
    stored_ = std::move(settings);
  } else if (const auto* error = std::get_if<FileError>(&content)) {
    Tell(SettingsCannotBeRead(path_, *error));
  } else {
    Tell(SettingsAreDamaged(path_));
  }
  return *stored_;
}

void UserSettingsStore::Refresh() {
  if (!stored_) return;
  auto settings = SettingsIn(ReadFile(path_));
  if (!settings || settings == stored_) return;
  stored_ = std::move(settings);
  MarkChanged();
}

bool UserSettingsStore::Save() {
  if (changes_.empty()) return true;
  return Kept(WithLock([this](const std::string& file) { return SaveOver(file); }));
}

bool UserSettingsStore::Change(const std::function<void()>& change) {
  bool isMade = false;
  auto failure = WithLock([&](const std::string& file) -> std::optional<std::u16string> {
    Refresh();
    change();
    isMade = true;
    if (changes_.empty()) return std::nullopt;
    return SaveOver(file);
  });
  if (!isMade) change();
  return Kept(std::move(failure));
}

bool UserSettingsStore::Kept(std::optional<std::u16string> failure) {
  if (!failure) return true;
  failure_ = *failure;
  Tell(*std::move(failure));
  return false;
}

std::optional<std::u16string> UserSettingsStore::TakeBackUnsaved() {
  if (changes_.empty()) return std::nullopt;
  changes_.clear();
  MarkChanged();
  return failure_;
}

/// Does `action` on the file that all links lead to while no other process saves; answers why it or
/// the locking failed.
std::optional<std::u16string> UserSettingsStore::WithLock(
    const std::function<std::optional<std::u16string>(const std::string& file)>& action) {
  if (path_.empty()) return SettingsCannotBeSaved(path_, FileError::BadPath);
  const std::string file = FollowLinks(path_);
  MakeFoldersFor(file);
  const auto lock = FileLock::Acquire(file + ".lock", patience_);
  if (!lock) {
    // A process that hangs while it holds the lock is waited for once, not at every save.
    if (lock.error() == FileError::Busy) patience_ = std::chrono::milliseconds(0);
    return SettingsCannotBeSaved(path_, lock.error());
  }
  patience_ = kPatience;
  return action(file);
}

/// Only while the lock is held.
std::optional<std::u16string> UserSettingsStore::SaveOver(const std::string& file) {
  const FileContent content = ReadFile(file);
  if (const auto* error = std::get_if<FileError>(&content)) {
    return SettingsCannotBeRead(path_, *error);
  }
  const auto* current = std::get_if<std::string>(&content);
  auto merged = current != nullptr ? WithChanges(*current, changes_) : std::nullopt;
  const bool isDamaged = !merged;
  if (isDamaged) {
    Tell(SettingsAreDamaged(path_));
    merged = WithChanges("", All());
  }
  auto readBack = merged ? ReadBack(*merged) : std::nullopt;
  if (!readBack) return SettingsCannotBeSaved(path_, FileError::TooLarge);
  RemoveLeftovers(file);
  std::optional<FileError> error;
  if (isDamaged) error = KeepAside(file);
  const bool isSame = current != nullptr && *merged == *current;
  if (!error && !isSame) error = ReplaceFile(file, *merged);
  if (error) return SettingsCannotBeSaved(path_, *error);
  stored_ = std::move(readBack);
  changes_.clear();
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
