// One writer at a time, across processes.
#pragma once

#include <chrono>
#include <string>
#include <utility>

#include "common/expected.h"
#include "settings/file_descriptor.h"
#include "settings/file_error.h"

namespace kav {

/// Holds an exclusive lock as long as it lives; any end of the process ends the lock too.
class FileLock {
 public:
  /// Locks the right to write the file `path`. What is locked is the folder of the file: that
  /// leaves nothing behind, least of all something that is another user's and that this one may not
  /// open. On a disk that locks files only, it is a file beside `path` with ".lock" after its name.
  /// On a disk without any locks nothing is held. Waits up to `patience` for a process that holds
  /// the lock, then fails with FileError::Busy; fails too if the folder cannot be opened.
  static Expected<FileLock, FileError> AcquireFor(const std::string& path,
                                                  std::chrono::milliseconds patience);

  /// Locks the file `path`, which is made if it is missing (readable by its owner only), with the
  /// same patience. The file stays: if it were removed, two processes could lock two files of one
  /// name.
  static Expected<FileLock, FileError> Acquire(const std::string& path,
                                               std::chrono::milliseconds patience);

  /// False where the disk has no locks.
  bool IsHeld() const { return file_.IsOpen(); }

 private:
  explicit FileLock(FileDescriptor file) : file_(std::move(file)) {}

  FileDescriptor file_;
};

}  // namespace kav
