#include "settings/atomic_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/random.h>
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
#include "settings/file_rights.h"

namespace kav {
namespace {

// The name of a new file is the old name, this mark, and some characters that make it unique.
constexpr std::string_view kNewMark = ".new-";
constexpr std::size_t kUniqueLength = 6;
constexpr int kLongestChainOfLinks = 40;
constexpr int kMostKeptAside = 10000;

constexpr int kMostTries = 100;

/// `path` up to and with its last '/'; empty for a name in the working folder.
std::string UpToName(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return std::string(slash == std::string_view::npos ? "" : path.substr(0, slash + 1));
}

/// Whether anything has this name, if only a link that leads nowhere.
bool IsTaken(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

/// Whether the file `path` is read-only: renaming another file to its name would ignore that.
bool IsWriteProtected(const std::string& path) {
  return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0 && errno != ENOENT;
}

std::string UniquePart() {
  constexpr std::string_view kCharacters =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
  std::array<unsigned char, kUniqueLength> random{};
  // Without random numbers all bytes are 0: then the first free name is the only one to be had.
  [[maybe_unused]] const ssize_t filled = getrandom(random.data(), random.size(), 0);
  std::string part;
  for (const unsigned char byte : random) part += kCharacters[byte % kCharacters.size()];
  return part;
}

/// A new file, open for writing, and its path.
struct NewFile {
  std::string path;
  FileDescriptor file;
};

/// Makes a file beside `path` with a name of its own. On failure it is not open, and errno tells
/// why.
NewFile MakeNewFile(const std::string& path, mode_t mode) {
  constexpr int kHow = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
  NewFile made{{}, FileDescriptor(-1)};
  for (int i = 0; i < kMostTries && !made.file.IsOpen(); ++i) {
    made.path = path + std::string(kNewMark) + UniquePart();
    made.file = FileDescriptor(open(made.path.c_str(), kHow, mode));  // NOLINT: the system's
    if (!made.file.IsOpen() && errno != EEXIST) break;
  }
  return made;
}

/// Whether what was written is on the disk. What a file system cannot flush on demand, it writes
/// when it likes.
bool IsFlushed(const FileDescriptor& file) {
  return fsync(file.Number()) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

/// Flushes a rename in `path`'s folder to the disk. Without effect if folders cannot be flushed.
void FlushFolderOf(const std::string& path) {
  const FileDescriptor folder(open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) fsync(folder.Number());
}

/// The first name for what is kept aside of `path` that nothing has.
std::optional<std::string> FreeNameAside(const std::string& path, std::string_view mark) {
  const std::string aside = path + std::string(mark);
  for (int number = 1; number < kMostKeptAside; ++number) {
    std::string name = number == 1 ? aside : aside + '-' + std::to_string(number);
    if (!IsTaken(name)) return name;
  }
  return std::nullopt;
}

bool IsLeftoverOf(std::string_view fileName, std::string_view entry) {
  if (entry.size() != fileName.size() + kNewMark.size() + kUniqueLength) return false;
  return entry.substr(0, fileName.size()) == fileName &&
         entry.substr(fileName.size(), kNewMark.size()) == kNewMark;
}

}  // namespace

std::string FolderOf(std::string_view path) {
  std::string folder = UpToName(path);
  return folder.empty() ? "." : folder;
}

std::string FollowLinks(std::string path) {
  std::array<char, PATH_MAX> target{};
  for (int i = 0; i < kLongestChainOfLinks; ++i) {
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length <= 0) return path;
    const std::string_view next(target.data(), static_cast<std::size_t>(length));
    path = next.front() == '/' ? std::string(next) : UpToName(path).append(next);
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
  if (access(FolderOf(path).c_str(), F_OK) == 0) return;
  for (std::size_t i = path.find('/', 1); i != std::string::npos; i = path.find('/', i + 1)) {
    const std::string folder = path.substr(0, i);
    if (mkdir(folder.c_str(), S_IRWXU) != 0) continue;
    const FileDescriptor made(
        open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    GiveToOwnerOf(FolderOf(folder), made);
  }
}

std::optional<FileError> ReplaceFile(const std::string& path, std::string_view content,
                                     NewFileOwner owner) {
  if (IsWriteProtected(path)) return FileErrorFromErrno(errno);
  const bool isReplacing = IsTaken(path);
  // While the rights of the old file are not taken over yet, nobody else may open the new one.
  const NewFile made = MakeNewFile(path, isReplacing ? kOwnerOnly : kAsTheMaskGives);
  if (!made.file.IsOpen()) return FileErrorFromErrno(errno);
  if (isReplacing) {
    TakeOverRights(path, made.file);
  } else if (owner == NewFileOwner::OwnerOfFolder) {
    GiveToOwnerOf(FolderOf(path), made.file);
  }
  if (WriteAll(made.file.Number(), content) != 0 || !IsFlushed(made.file) ||
      rename(made.path.c_str(), path.c_str()) != 0) {
    const FileError error = FileErrorFromErrno(errno);
    unlink(made.path.c_str());
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
  const std::string folder = UpToName(path);
  const std::string_view fileName = std::string_view(path).substr(folder.size());
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(FolderOf(path).c_str()), &closedir);
  if (!entries) return;
  while (const dirent* entry = readdir(entries.get())) {
    const std::string_view name = static_cast<const char*>(entry->d_name);
    if (IsLeftoverOf(fileName, name)) unlink((folder + entry->d_name).c_str());
  }
}

std::optional<FileError> KeepAside(const std::string& path, std::string_view mark) {
  const auto name = FreeNameAside(path, mark);
  if (!name) return FileError::Full;
  if (rename(path.c_str(), name->c_str()) != 0) return FileErrorFromErrno(errno);
  return std::nullopt;
}

std::optional<FileError> ReplaceAndKeep(const std::string& path, std::string_view content,
                                        std::string_view mark, NewFileOwner owner) {
  const auto name = FreeNameAside(path, mark);
  if (!name) return FileError::Full;
  const bool hasBothNames = link(path.c_str(), name->c_str()) == 0;
  if (!hasBothNames) {
    // A disk without hard links.
    if (const auto error = KeepAside(path, mark)) return error;
  }
  const auto error = ReplaceFile(path, content, owner);
  if (error && hasBothNames) unlink(name->c_str());
  return error;
}

}  // namespace kav
