// The least that a program can do to read a file of values and counts: the bound for ours.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <charconv>
#include <cstddef>
#include <cstring>
#include <vector>

namespace kav {

/// Calls `use` with the value and the count of each line "value TAB count CR LF" of the file at
/// `path`. Reads blocks of 64 KiB, and the numbers by std::from_chars. Keeps nothing and looks for
/// no faults.
template <class Use>
void ForEachCountedValue(const char* path, Use use) {
  const int file = open(path, O_RDONLY);
  std::vector<char> block(65'536);
  std::size_t kept = 0;
  while (true) {
    const ssize_t got = read(file, block.data() + kept, block.size() - kept);
    if (got <= 0) break;
    const char* at = block.data();
    const char* const end = at + kept + got;
    const char* last = end;
    while (last != at && last[-1] != '\n') --last;
    while (at != last) {
      double value = 0;
      long count = 0;
      const auto behindValue = std::from_chars(at, last, value);
      const auto behindCount = std::from_chars(behindValue.ptr + 1, last, count);
      use(value, count);
      at = behindCount.ptr + 2;
    }
    kept = static_cast<std::size_t>(end - last);
    std::memmove(block.data(), last, kept);
  }
  close(file);
}

}  // namespace kav
