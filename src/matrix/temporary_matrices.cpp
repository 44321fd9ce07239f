#include "matrix/temporary_matrices.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

#include "common/number_text.h"
#include "matrix/matrix_file.h"
#include "settings/atomic_file.h"

namespace kav {
namespace {

constexpr std::string_view kFolderStart = "kav-matrix-";
constexpr std::string_view kUniquePart = "XXXXXX";
constexpr std::string_view kFileStart = "kavm";
constexpr std::string_view kFileEnd = ".dat";
// The system's folder may hold any number of files; what this start does not reach, a later one
// removes.
constexpr int kMostEntries = 20000;
constexpr int kMostTries = 5;
constexpr int kOpenFolder = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

std::string SystemFolder() {
  const char* folder = std::getenv("TMPDIR");  // NOLINT(concurrency-mt-unsafe): one thread
  return folder != nullptr && *folder == '/' ? folder : "/tmp";
}

bool IsMatrixName(std::string_view name) {
  return name.size() > kFileStart.size() + kFileEnd.size() && name.starts_with(kFileStart) &&
         name.ends_with(kFileEnd);
}

bool IsFolderName(std::string_view name) {
  return name.size() == kFolderStart.size() + kUniquePart.size() && name.starts_with(kFolderStart);
}

/// Calls `take` with the names in the open folder `folder`, at most kMostEntries of them.
template <class Take>
void ForEachName(const FileDescriptor& folder, Take take) {
  const int copy = openat(folder.Number(), ".", kOpenFolder);
  const std::unique_ptr<DIR, int (*)(DIR*)> names(copy < 0 ? nullptr : fdopendir(copy), &closedir);
  if (!names) {
    if (copy >= 0) close(copy);
    return;
  }
  for (int i = 0; i < kMostEntries; ++i) {
    const dirent* entry = readdir(names.get());
    if (entry == nullptr) return;
    take(static_cast<const char*>(entry->d_name));
  }
}

void RemoveMatricesIn(const FileDescriptor& folder) {
  ForEachName(folder, [&](const char* name) {
    if (IsMatrixName(name)) unlinkat(folder.Number(), name, 0);
  });
}

bool LockFolder(const FileDescriptor& folder, int how) {
  while (flock(folder.Number(), how) != 0) {
    if (errno != EINTR) return false;
  }
  return true;
}

/// Removes the folder `name` of `parent` if it is this user's and its process is gone. If somebody
/// has put anything else into it, that stays, and so does the folder.
void RemoveIfLeft(const FileDescriptor& parent, const char* name) {
  const FileDescriptor folder(openat(parent.Number(), name, kOpenFolder));
  struct stat status {};
  if (!folder.IsOpen() || fstat(folder.Number(), &status) != 0) return;
  if (status.st_uid != geteuid() || !LockFolder(folder, LOCK_EX | LOCK_NB)) return;
  RemoveMatricesIn(folder);
  unlinkat(parent.Number(), name, AT_REMOVEDIR);
}

void RemoveLeftFolders(const std::string& path) {
  const FileDescriptor parent(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!parent.IsOpen()) return;
  ForEachName(parent, [&](const char* name) {
    if (IsFolderName(name)) RemoveIfLeft(parent, name);
  });
}

/// Whether the open folder still has the name `path`. Another start may have removed it as left
/// behind before it was locked.
bool IsThere(const FileDescriptor& folder, const std::string& path) {
  struct stat opened {};
  struct stat named {};
  return fstat(folder.Number(), &opened) == 0 && lstat(path.c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

bool WriteFile(const std::string& path, std::string_view content) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC;
  const int file = open(path.c_str(), kFlags, S_IRUSR | S_IWUSR);
  if (file < 0) return false;
  const bool isWritten = WriteAll(file, content) == 0;
  // Some file systems report only here that no space was left.
  return close(file) == 0 && isWritten;
}

}  // namespace

TemporaryMatrices::TemporaryMatrices() : TemporaryMatrices(SystemFolder()) {}

TemporaryMatrices::TemporaryMatrices(std::string parent) : parent_(std::move(parent)) {
  RemoveLeftFolders(parent_);
}

TemporaryMatrices::~TemporaryMatrices() {
  if (!IsOwner()) return;
  RemoveMatricesIn(lock_);
  rmdir(folder_.c_str());
}

std::string TemporaryMatrices::NameOf(int number) {
  return std::string(kFileStart).append(PrintInteger(number)).append(kFileEnd);
}

bool TemporaryMatrices::Write(const std::string& name, const MatrixValue& matrix) {
  // The system may have cleared away a folder that was not touched for days.
  if (!(IsOwner() && IsThere(lock_, folder_)) && !MakeFolder()) return false;
  if (WriteFile(PathOf(name), PrintMatrix(matrix))) return true;
  Remove(name);
  return false;
}

std::optional<MatrixValue> TemporaryMatrices::Read(const std::string& name) const {
  const auto bytes = ReadWholeFile(PathOf(name), kLargestMatrixFile);
  return bytes ? ReadMatrix(*bytes) : std::nullopt;
}

void TemporaryMatrices::Remove(const std::string& name) {
  if (IsOwner()) unlink(PathOf(name).c_str());
}

bool TemporaryMatrices::IsOwner() const {
  return lock_.IsOpen() && owner_ == getpid();
}

bool TemporaryMatrices::MakeFolder() {
  for (int i = 0; i < kMostTries; ++i) {
    std::string path = parent_ + '/' + std::string(kFolderStart).append(kUniquePart);
    if (mkdtemp(path.data()) == nullptr) return false;
    FileDescriptor folder(open(path.c_str(), kOpenFolder));
    if (!folder.IsOpen()) {
      rmdir(path.c_str());
      continue;
    }
    // On a file system without locks this fails and RemoveIfLeft too, which then removes nothing.
    LockFolder(folder, LOCK_SH);
    if (!IsThere(folder, path)) continue;
    folder_ = std::move(path);
    lock_ = std::move(folder);
    owner_ = getpid();
    return true;
  }
  return false;
}

}  // namespace kav
