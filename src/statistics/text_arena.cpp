#include "statistics/text_arena.h"

namespace kav {

bool TextArena::BeginBlock() {
  if (blocks_.size() == kMostBlocks) return false;
  blocks_.emplace_back(kBlockSize, '\0');
  lastBlock_ = 0;
  return true;
}

TextArena::Mark TextArena::End() const {
  return {blocks_.size(), lastBlock_, size_};
}

void TextArena::CutTo(const Mark& mark) {
  blocks_.resize(mark.blocks);
  lastBlock_ = mark.lastBlock;
  size_ = mark.size;
}

}  // namespace kav
