#include "settings/atomic_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "settings/file_descriptor.h"

namespace kav {
namespace {

// The name of a new file is the old name, this mark, and some characters that make it unique.
constexpr std::string_view kNewMark = ".new-";
constexpr std::string_view kUniquePart = "XXXXXX";
constexpr std::string_view kDamagedMark = ".damaged";
constexpr int kLongestChainOfLinks = 40;
constexpr int kMostKeptAside = 10000;
constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;

/// `path` up to and with its last '/'; empty for a name in the working folder.
std::string FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return std::string(slash == std::string_view::npos ? "" : path.substr(0, slash + 1));
}

/// The folder as a path that can be opened.
std::string OpenableFolderOf(std::string_view path) {
  std::string folder = FolderOf(path);
  return folder.empty() ? "." : folder;
}

/// Whether anything has this name, if only a link that leads nowhere.
bool IsTaken(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

/// Gives `file` the owner and the permissions of the file that it replaces, if there is one. If
/// this user may not set another owner, only the permissions of the owner are taken over.
bool TakeOverRights(const std::string& replaced, const FileDescriptor& file) {
  struct stat status {};
  if (stat(replaced.c_str(), &status) != 0) return true;
  const bool ownerKept = fchown(file.Number(), status.st_uid, status.st_gid) == 0;
  const mode_t mode = status.st_mode & (ownerKept ? kPermissions : static_cast<mode_t>(S_IRWXU));
  return fchmod(file.Number(), mode) == 0;
}

/// Whether the file `path` is read-only: renaming another file to its name would ignore that.
bool IsWriteProtected(const std::string& path) {
  return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0 && errno != ENOENT;
}

/// Flushes a rename in `path`'s folder to the disk. Without effect if folders cannot be flushed.
void FlushFolderOf(const std::string& path) {
  const FileDescriptor folder(
      open(OpenableFolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) fsync(folder.Number());
}

bool IsLeftoverOf(std::string_view fileName, std::string_view entry) {
  if (entry.size() != fileName.size() + kNewMark.size() + kUniquePart.size()) return false;
  return entry.substr(0, fileName.size()) == fileName &&
         entry.substr(fileName.size(), kNewMark.size()) == kNewMark;
}

}  // namespace

std::string FollowLinks(std::string path) {
  std::array<char, PATH_MAX> target{};
  for (int i = 0; i < kLongestChainOfLinks; ++i) {
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length <= 0) return path;
    const std::string_view next(target.data(), static_cast<std::size_t>(length));
    path = next.front() == '/' ? std::string(next) : FolderOf(path).append(next);
  }
  return path;
}

Expected<std::string, FileError> ReadWholeFile(const std::string& path, std::size_t limit) {
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) return FileErrorFromErrno(errno);
  if (!S_ISREG(status.st_mode)) return FileError::NotAFile;
  if (static_cast<std::uintmax_t>(status.st_size) > limit) return FileError::TooLarge;
  // With one byte more than the size the first read also tells whether the file just grew.
  std::string content(static_cast<std::size_t>(status.st_size) + 1, '\0');
  std::size_t filled = 0;
  while (true) {
    const auto got = ReadSome(file.Number(), &content[filled], content.size() - filled);
    if (!got) return FileErrorFromErrno(got.error());
    if (*got == 0) break;
    filled += *got;
    if (filled > limit) return FileError::TooLarge;
    if (filled == content.size()) content.resize(std::min(2 * filled, limit + 1));
  }
  content.resize(filled);
  return content;
}

void MakeFoldersFor(const std::string& path) {
  if (access(OpenableFolderOf(path).c_str(), F_OK) == 0) return;
  for (std::size_t i = path.find('/', 1); i != std::string::npos; i = path.find('/', i + 1)) {
    mkdir(path.substr(0, i).c_str(), S_IRWXU);
  }
}

std::optional<FileError> ReplaceFile(const std::string& path, std::string_view content) {
  if (IsWriteProtected(path)) return FileErrorFromErrno(errno);
  std::string newPath = path;
  newPath.append(kNewMark).append(kUniquePart);
  const FileDescriptor file(mkostemp(newPath.data(), O_CLOEXEC));
  if (!file.IsOpen()) return FileErrorFromErrno(errno);
  if (!TakeOverRights(path, file) || WriteAll(file.Number(), content) != 0 ||
      fsync(file.Number()) != 0 || rename(newPath.c_str(), path.c_str()) != 0) {
    const FileError error = FileErrorFromErrno(errno);
    unlink(newPath.c_str());
    return error;
  }
  FlushFolderOf(path);
  return std::nullopt;
}

std::optional<FileError> SaveFile(const std::string& path, std::string_view content) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) return FileError::NotAFile;
  return ReplaceFile(FollowLinks(path), content);
}

void RemoveLeftovers(const std::string& path) {
  const std::string folder = FolderOf(path);
  const std::string_view fileName = std::string_view(path).substr(folder.size());
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(OpenableFolderOf(path).c_str()),
                                                    &closedir);
  if (!entries) return;
  while (const dirent* entry = readdir(entries.get())) {
    const std::string_view name = static_cast<const char*>(entry->d_name);
    if (IsLeftoverOf(fileName, name)) unlink((folder + entry->d_name).c_str());
  }
}

std::optional<FileError> KeepAside(const std::string& path) {
  const std::string aside = path + std::string(kDamagedMark);
  for (int number = 1; number < kMostKeptAside; ++number) {
    const std::string name = number == 1 ? aside : aside + '-' + std::to_string(number);
    if (IsTaken(name)) continue;
    if (rename(path.c_str(), name.c_str()) == 0) return std::nullopt;
    return FileErrorFromErrno(errno);
  }
  return FileError::Full;
}

}  // namespace kav
