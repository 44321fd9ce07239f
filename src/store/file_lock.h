// One writer at a time, across processes.
#pragma once

#include <chrono>
#include <string>
#include <utility>

#include "common/expected.h"
#include "settings/file_descriptor.h"
#include "settings/file_error.h"

namespace kav {

/// Holds the exclusive lock of a lock file for as long as it lives; the end of the process, however
/// it comes, ends it too. The lock file itself stays: removing it would let two processes lock two
/// files of one name.
class FileLock {
 public:
  /// Locks the file `path`, made where it is missing (readable by its owner only). Waits up to
  /// `patience` for the process that has it; FileError::Busy when that was not enough.
  static Expected<FileLock, FileError> Acquire(const std::string& path,
                                               std::chrono::milliseconds patience);

 private:
  explicit FileLock(FileDescriptor file) : file_(std::move(file)) {}

  FileDescriptor file_;
};

}  // namespace kav
