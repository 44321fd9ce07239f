// One writer at a time, across processes.
#pragma once

#include <chrono>
#include <string>
#include <utility>

#include "common/expected.h"
#include "settings/file_descriptor.h"
#include "settings/file_error.h"

namespace kav {

/// Holds the exclusive lock of a lock file as long as it lives; any end of the process ends the
/// lock too. The lock file itself stays: if it were removed, two processes could lock two files of
/// one name.
class FileLock {
 public:
  /// Locks the file `path`, which is made if it is missing (readable by its owner only). Waits up
  /// to `patience` for a process that holds the lock, then fails with FileError::Busy.
  static Expected<FileLock, FileError> Acquire(const std::string& path,
                                               std::chrono::milliseconds patience);

 private:
  explicit FileLock(FileDescriptor file) : file_(std::move(file)) {}

  FileDescriptor file_;
};

}  // namespace kav
