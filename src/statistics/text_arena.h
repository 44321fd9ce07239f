// Many short texts in blocks of memory that never move.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// Memory grows block by block, so no text is ever copied to make room.
class TextArena {
 public:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 18U;
  /// As many as a place of 32 bits can address.
  static constexpr std::size_t kMostBlocks = (std::size_t{1} << 32U) / kBlockSize;

  /// Appends `first` and `second`, at most kBlockSize characters together. Answers the place of the
  /// first character, 0 if there is none; nullopt if there are kMostBlocks already. Throws
  /// std::bad_alloc.
  std::optional<std::uint32_t> Put(std::string_view first, std::string_view second) {
    if (!MakeRoom(first.size() + second.size())) return std::nullopt;
    return PutInRoom(first, second);
  }

  // Put in two steps: the first can fail, the second cannot.
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

  /// The text of `length` characters at `place`, valid as long as the arena.
  std::string_view At(std::uint32_t place, std::size_t length) const {
    return {blocks_[place / kBlockSize].data() + place % kBlockSize, length};
  }

  /// The number of characters in it.
  std::size_t Size() const { return size_; }

  /// An end of the texts; CutTo removes all that was put since.
  struct Mark {
    std::size_t blocks;
    std::size_t lastBlock;
    std::size_t size;
  };
  Mark End() const;
  void CutTo(const Mark& mark);

 private:
  /// Answers false if there are kMostBlocks already.
  bool BeginBlock();

  /// Copies `text` as two overlapping pieces of Half characters: a copy of a fixed length needs no
  /// call.
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
  std::size_t lastBlock_ = kBlockSize;  ///< characters of the last block that are in use
  std::size_t size_ = 0;
};

}  // namespace kav
