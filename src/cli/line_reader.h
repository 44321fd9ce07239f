// An open file, read line by line.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace kav {

/// Reads the lines of an open file, without their "\n" or "\r\n". The last line needs no end. Takes
/// the memory of a block of 64 KiB, or of twice the longest line if that is more.
class LineReader {
 public:
  /// A line of more bytes is none: nobody would wait for its end.
  static constexpr std::size_t kEndless = std::size_t{1} << 26U;

  /// Reads `descriptor`, which must stay open and is not closed. Calls `beforeWaiting` before each
  /// read that has to wait. A line of more than `longest` bytes (at least a block) may lose
  /// repeated blanks, and whatever follows its first `longest` bytes.
  LineReader(int descriptor, std::size_t longest, std::function<void()> beforeWaiting);

  /// The next line, valid until the next call; nullopt at the end of the file, after a failure, and
  /// for an endless line.
  std::optional<std::string_view> Next();

  /// Whether the line that Next returned is not all that was read.
  bool IsShortened() const { return lineLoss_ > 0; }
  /// Whether an endless line ended the reading.
  bool IsEndless() const { return isEndless_; }

  /// The errno of the failure that ended the reading, or 0.
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
  std::size_t begin_ = 0;    ///< of the bytes that no line has had yet
  std::size_t scanned_ = 0;  ///< there is no line end before it
  std::size_t end_ = 0;
  std::size_t loss_ = 0;      ///< bytes that the line being read has lost
  std::size_t lineLoss_ = 0;  ///< the same of the line that was returned
  bool isAtEnd_ = false;
  bool isEndless_ = false;
  int error_ = 0;
};

}  // namespace kav
