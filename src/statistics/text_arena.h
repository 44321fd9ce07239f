// Short texts, one behind the other, in blocks that never move.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// Its memory grows block by block, so that it never holds a text twice.
class TextArena {
 public:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 18U;
  /// The room that a place of 32 bits can address.
  static constexpr std::size_t kMostBlocks = (std::size_t{1} << 32U) / kBlockSize;

  /// Puts `first` and `second`, at most kBlockSize characters together, behind all others and
  /// answers where they begin, 0 for no characters at all; nullopt where there is no room. Throws
  /// std::bad_alloc.
  std::optional<std::uint32_t> Put(std::string_view first, std::string_view second) {
    if (!MakeRoom(first.size() + second.size())) return std::nullopt;
    return PutInRoom(first, second);
  }

  /// The two steps of Put.
  bool MakeRoom(std::size_t length) { return length <= kBlockSize - lastBlock_ || BeginBlock(); }
  std::uint32_t PutInRoom(std::string_view first, std::string_view second) {
    const std::size_t length = first.size() + second.size();
    if (length == 0) return 0;
    char* const to = blocks_.back().data() + lastBlock_;
    Copy(first, to);
    Copy(second, to + first.size());
    const std::size_t place = (blocks_.size() - 1) * kBlockSize + lastBlock_;
    lastBlock_ += length;
    size_ += length;
    return static_cast<std::uint32_t>(place);
  }

  std::string_view At(std::uint32_t place, std::size_t length) const {
    return {blocks_[place / kBlockSize].data() + place % kBlockSize, length};
  }

  /// The characters that it holds.
  std::size_t Size() const { return size_; }

  /// Where it ends, and the way back there.
  struct Mark {
    std::size_t blocks;
    std::size_t lastBlock;
    std::size_t size;
  };
  Mark End() const;
  void CutTo(const Mark& mark);

 private:
  /// false: there may be no more.
  bool BeginBlock();

  /// Two copies that overlap do for most texts: a copy of a fixed length needs no call.
  template <std::size_t Half>
  static void CopyEnds(std::string_view text, char* to) {
    char ends[2 * Half];
    std::memcpy(ends, text.data(), Half);
    std::memcpy(ends + Half, text.data() + text.size() - Half, Half);
    std::memcpy(to, ends, Half);
    std::memcpy(to + text.size() - Half, ends + Half, Half);
  }
  static void Copy(std::string_view text, char* to) {
    if (text.size() >= 4 && text.size() <= 8) return CopyEnds<4>(text, to);
    if (text.size() > 8 && text.size() <= 16) return CopyEnds<8>(text, to);
    text.copy(to, text.size());
  }

  std::vector<std::string> blocks_;     ///< each of kBlockSize characters
  std::size_t lastBlock_ = kBlockSize;  ///< how many of the last one are in use
  std::size_t size_ = 0;
};

}  // namespace kav
