#include "cli/line_reader.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "cli/descriptor.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

constexpr std::size_t kReadBlock = 65536;

}  // namespace

LineReader::LineReader(int descriptor, std::size_t longest, std::function<void()> beforeWaiting)
    : descriptor_(descriptor),
      longest_(longest),
      beforeWaiting_(std::move(beforeWaiting)),
      data_(std::make_unique_for_overwrite<char[]>(kReadBlock)),
      capacity_(kReadBlock) {}

std::optional<std::string_view> LineReader::Next() {
  do {
    const void* found = std::memchr(&data_[scanned_], '\n', end_ - scanned_);
    if (found != nullptr) {
      const auto at = static_cast<std::size_t>(static_cast<const char*>(found) - data_.get());
      return Take(at, at + 1);
    }
    scanned_ = end_;
  } while (Fill());
  if (begin_ == end_ || error_ != 0 || isEndless_) return std::nullopt;
  return Take(end_, end_);
}

std::string_view LineReader::Take(std::size_t end, std::size_t next) {
  const std::size_t start = std::exchange(begin_, next);
  lineLoss_ = std::exchange(loss_, 0);
  scanned_ = next;
  if (end > start && data_[end - 1] == '\r') --end;
  return {&data_[start], end - start};
}

/// Reads on; false at the end of the file. Never reads again after it, since a terminal may have
/// more.
bool LineReader::Fill() {
  if (isAtEnd_) return false;
  isEndless_ = loss_ + (end_ - begin_) > kEndless;
  isAtEnd_ = isEndless_;
  if (isAtEnd_) return false;
  MakeRoom();
  if (WouldWait(descriptor_)) beforeWaiting_();
  const auto block = ReadSome(descriptor_, &data_[end_], capacity_ - end_);
  error_ = block ? 0 : block.error();
  isAtEnd_ = !block || *block == 0;
  if (!isAtEnd_) end_ += *block;
  return !isAtEnd_;
}

void LineReader::MakeRoom() {
  std::copy(&data_[begin_], &data_[end_], data_.get());
  end_ -= std::exchange(begin_, 0);
  // Reads of less than half a block are not worth a call; a line that leaves no more gets room.
  if (capacity_ - end_ < kReadBlock / 2) capacity_ / 2 >= longest_ ? Shorten() : Grow();
  scanned_ = end_;
}

void LineReader::Grow() {
  auto larger = std::make_unique_for_overwrite<char[]>(2 * capacity_);
  std::copy(data_.get(), &data_[end_], larger.get());
  data_ = std::move(larger);
  capacity_ *= 2;
}

/// Shortens an overlong line by its repeated blanks and, if that is not enough, by its end.
void LineReader::Shorten() {
  char* const end =
      std::unique(data_.get(), &data_[end_], [](char a, char b) { return a == ' ' && b == ' '; });
  loss_ += end_;
  end_ = std::min(static_cast<std::size_t>(end - data_.get()), longest_);
  loss_ -= end_;
}

}  // namespace kav
