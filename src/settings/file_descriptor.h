// An open file of the operating system that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

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

}  // namespace kav
