#include "store/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <thread>

namespace kav {
namespace {

// Savers hold the lock for some milliseconds, most of them spent waiting for the disk.
constexpr std::chrono::milliseconds kBetweenTries{2};

}  // namespace

Expected<FileLock, FileError> FileLock::Acquire(const std::string& path,
                                                std::chrono::milliseconds patience) {
  // Follows no link, which somebody may have put into a shared folder, and waits for no pipe.
  constexpr int kFlags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  FileDescriptor file(open(path.c_str(), kFlags, S_IRUSR | S_IWUSR));
  if (!file.IsOpen()) return FileErrorFromErrno(errno);
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return FileErrorFromErrno(errno);
    if (std::chrono::steady_clock::now() >= deadline) return FileError::Busy;
    std::this_thread::sleep_for(kBetweenTries);
  }
  return FileLock(std::move(file));
}

}  // namespace kav
