// Reading and writing open files of the operating system, to the end and whatever interrupts.
#pragma once

#include <cstddef>
#include <string_view>

namespace kav {

/// Writes all of `text`, waiting where the other side is slow. Answers 0 or the system's error.
int WriteAll(int descriptor, std::string_view text);

/// What one read brought: the number of bytes, 0 at the end of the input, and the system's error or
/// 0 where there was none.
struct ReadBlock {
  std::size_t size;
  int error;
};

/// Reads up to `size` bytes into `data`, waiting until there are any.
ReadBlock ReadSome(int descriptor, char* data, std::size_t size);

/// Whether a read would have to wait.
bool WouldWait(int descriptor);

/// Makes sure that the three standard files are taken, so that no file opened later gets the number
/// of one that was closed from the start; using a closed one keeps failing.
void ReserveStandardFiles();

}  // namespace kav
