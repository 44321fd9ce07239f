// Reading and writing files by their descriptors, undisturbed by signals and files that refuse to
// wait.
#pragma once

#include <cstddef>
#include <string_view>

namespace kav {

/// Writes all of `text`; waits if the other side is slow. Returns 0 or the errno of the failure.
int WriteAll(int descriptor, std::string_view text);

/// The result of one read: the number of bytes, 0 at the end of the input, and the errno of a
/// failure or 0.
struct ReadBlock {
  std::size_t size;
  int error;
};

/// Reads up to `size` bytes into `data`; waits until there are any.
ReadBlock ReadSome(int descriptor, char* data, std::size_t size);

/// Whether a read would have to wait.
bool WouldWait(int descriptor);

/// Takes the numbers of those standard files that were closed from the start, so that no file
/// opened later gets them. Reading and writing these standard files still fails.
void ReserveStandardFiles();

}  // namespace kav
