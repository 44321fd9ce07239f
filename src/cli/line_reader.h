// Standard input, or another open file, line by line.
#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>

namespace kav {

/// Hands out the lines of an open file, without their "\n" or "\r\n"; the last one needs none. The
/// memory taken is a block, or twice the longest line where that is more.
class LineReader {
 public:
  static constexpr std::size_t kAnyLength = std::numeric_limits<std::size_t>::max();

  /// Reads `descriptor`, which must stay open. `beforeWaiting` is called before each read that has
  /// to wait for the other side. A line longer than `longest` bytes (at least a block) may lose
  /// repeated blanks and what follows its first `longest` bytes.
  LineReader(int descriptor, std::size_t longest, std::function<void()> beforeWaiting);

  /// The next line, valid until the next call; nullopt at the end and after a failure.
  std::optional<std::string_view> Next();

  /// The system's error that ended the reading, 0 where none did.
  int Error() const { return error_; }

 private:
  bool Fill();
  void MakeRoom();
  void Shorten();
  void Grow();
  std::string_view Take(std::size_t end, std::size_t next);

  int descriptor_;
  std::size_t longest_;
  std::function<void()> beforeWaiting_;
  std::unique_ptr<char[]> data_;
  std::size_t capacity_;
  std::size_t begin_ = 0;    ///< of the bytes that were not handed out
  std::size_t scanned_ = 0;  ///< up to here they hold no line end
  std::size_t end_ = 0;
  bool isAtEnd_ = false;
  int error_ = 0;
};

}  // namespace kav
