#include "store/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <string_view>
#include <thread>

#include "settings/atomic_file.h"
#include "settings/file_rights.h"

namespace kav {
namespace {

// Savers hold the lock for some milliseconds, most of them spent waiting for the disk.
constexpr std::chrono::milliseconds kBetweenTries{2};
constexpr std::string_view kLockMark = ".lock";

/// What came of locking an open file or folder.
enum class Attempt { Locked, Busy, Impossible };

/// If it is impossible, errno tells why.
Attempt Lock(const FileDescriptor& file, std::chrono::milliseconds patience) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return Attempt::Impossible;
    if (std::chrono::steady_clock::now() >= deadline) return Attempt::Busy;
    std::this_thread::sleep_for(kBetweenTries);
  }
  return Attempt::Locked;
}

}  // namespace

Expected<FileLock, FileError> FileLock::AcquireFor(const std::string& path,
                                                   std::chrono::milliseconds patience) {
  FileDescriptor folder(open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // A folder may be one to write in and not to list.
  if (!folder.IsOpen() && errno != EACCES) return FileErrorFromErrno(errno);
  const Attempt attempt = folder.IsOpen() ? Lock(folder, patience) : Attempt::Impossible;
  if (attempt == Attempt::Locked) return FileLock(std::move(folder));
  if (attempt == Attempt::Busy) return FileError::Busy;
  auto beside = Acquire(path + std::string(kLockMark), patience);
  if (beside || beside.error() == FileError::Busy) return beside;
  return FileLock(FileDescriptor(-1));
}

Expected<FileLock, FileError> FileLock::Acquire(const std::string& path,
                                                std::chrono::milliseconds patience) {
  // Follows no link, which somebody may have put into a shared folder, and waits for no pipe.
  constexpr int kFlags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  FileDescriptor file(open(path.c_str(), kFlags, kOwnerOnly));  // NOLINT: the system's interface
  if (!file.IsOpen()) return FileErrorFromErrno(errno);
  switch (Lock(file, patience)) {
    case Attempt::Locked:
      break;
    case Attempt::Busy:
      return FileError::Busy;
    case Attempt::Impossible:
      return FileErrorFromErrno(errno);
  }
  GiveToOwnerOf(FolderOf(path), file);
  return FileLock(std::move(file));
}

}  // namespace kav
