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

/// The content of a settings file, empty where there is no file yet; nullopt where the file is too
/// large to be one.
Expected<std::optional<std::string>, FileError> ReadFile(const std::string& path) {
  auto content = ReadWholeFile(path, kLargestFile);
  if (content) return std::optional(*std::move(content));
  switch (content.error()) {
    case FileError::NotThere:
    case FileError::BadPath:
      return std::optional(std::string());
    case FileError::TooLarge:
      return std::optional<std::string>();
    default:
      return content.error();
  }
}

/// What cannot be read back is not written.
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
  // Back to what the file holds: no change of ours, so another process may have its own.
  if (const auto found = changed.find(name); found != changed.end()) changed.erase(found);
  if (changed.empty()) changes_.erase(std::string(section));
}

const SettingsTable& UserSettingsStore::Stored() const {
  if (stored_) return *stored_;
  stored_.emplace();
  const auto content = ReadFile(path_);
  if (!content) {
    Tell(SettingsCannotBeRead(path_, content.error()));
    return *stored_;
  }
  if (auto settings = *content ? ReadSettings(**content) : std::nullopt) {
    stored_ = std::move(settings);
  } else {
    Tell(SettingsAreDamaged(path_));
  }
  return *stored_;
}

void UserSettingsStore::Refresh() {
  if (!stored_) return;
  const auto content = ReadFile(path_);
  if (!content || !*content) return;
  auto settings = ReadSettings(**content);
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

/// Does `action` on the file behind all links while no other process saves; answers its failure or
/// that to get the lock.
std::optional<std::u16string> UserSettingsStore::WithLock(
    const std::function<std::optional<std::u16string>(const std::string& file)>& action) {
  if (path_.empty()) return SettingsCannotBeSaved(path_, FileError::BadPath);
  const std::string file = FollowLinks(path_);
  MakeFoldersFor(file);
  const auto lock = FileLock::Acquire(file + ".lock", patience_);
  if (!lock) {
    // Whoever hangs with the lock in hand is waited for once, not at every save.
    if (lock.error() == FileError::Busy) patience_ = std::chrono::milliseconds(0);
    return SettingsCannotBeSaved(path_, lock.error());
  }
  patience_ = kPatience;
  return action(file);
}

/// With the lock in hand.
std::optional<std::u16string> UserSettingsStore::SaveOver(const std::string& file) {
  const auto current = ReadFile(file);
  if (!current) return SettingsCannotBeRead(path_, current.error());
  auto merged = *current ? WithChanges(**current, changes_) : std::nullopt;
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
  if (!error && merged != *current) error = ReplaceFile(file, *merged);
  if (error) return SettingsCannotBeSaved(path_, *error);
  stored_ = std::move(readBack);
  changes_.clear();
  MarkChanged();
  return std::nullopt;
}

/// Everything this process knows: what it read, and what it changed.
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
