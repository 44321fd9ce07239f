// An open file of the operating system that closes itself; reading and writing that no signal and
// no slow partner interrupts.
#pragma once

#include <unistd.h>

#include <cstddef>
#include <string_view>
#include <utility>

#include "common/expected.h"

namespace kav {

/// Owns a file descriptor, or none (-1, as a failed open gives it).
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept
      : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (IsOpen()) close(descriptor_);
  }

  bool IsOpen() const { return descriptor_ >= 0; }
  int Number() const { return descriptor_; }

 private:
  int descriptor_;
};

/// Lets a write beyond the limit on the size of files fail like one to a full disk. Without this, a
/// signal ends the program there and then. To be called once, when the program starts.
void SurviveSizeLimit();

/// Writes all of `text`, waiting if the other side is slow. Answers 0 or the system's error.
int WriteAll(int descriptor, std::string_view text);

/// Reads up to `size` bytes into `data`, waiting until there are any. Answers how many there were,
/// 0 at the end of the input; fails with the system's error.
Expected<std::size_t, int> ReadSome(int descriptor, char* data, std::size_t size);

}  // namespace kav
