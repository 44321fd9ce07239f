#include "plotter/disc_cover.h"

#include <algorithm>
#include <cmath>

namespace kav {
namespace {

constexpr std::size_t kWordBits = 64;

/// The bits of word number `word` of a row that are among bits `first` to `last` of the row.
std::uint64_t Mask(std::size_t word, std::size_t first, std::size_t last) {
  constexpr std::uint64_t kAll = ~std::uint64_t{0};
  std::uint64_t mask = kAll;
  if (word == first / kWordBits) mask &= kAll << first % kWordBits;
  if (word == last / kWordBits) mask &= kAll >> (kWordBits - 1 - last % kWordBits);
  return mask;
}

/// The distance in columns of the last pixel that, moved outwards by `margin`, has a point within
/// `radius` at the distance `vertical` from the centre's row; negative if there is none.
int ReachAt(double radius, double vertical, double margin) {
  if (vertical > radius) return -1;
  const double half = std::sqrt(radius * radius - vertical * vertical);
  return static_cast<int>(std::floor(half - margin));
}

int MarginOf(double radius) {
  return static_cast<int>(std::ceil(radius + 0.5));
}

}  // namespace

BitGrid::BitGrid(std::size_t width, std::size_t height)
    : wordsPerRow_((width + kWordBits - 1) / kWordBits), words_(wordsPerRow_ * height) {}

bool BitGrid::AreSet(std::size_t row, std::size_t first, std::size_t last) const {
  for (std::size_t word = first / kWordBits; word <= last / kWordBits; ++word) {
    const std::uint64_t mask = Mask(word, first, last);
    if ((words_[row * wordsPerRow_ + word] & mask) != mask) return false;
  }
  return true;
}

void BitGrid::Set(std::size_t row, std::size_t first, std::size_t last) {
  for (std::size_t word = first / kWordBits; word <= last / kWordBits; ++word) {
    words_[row * wordsPerRow_ + word] |= Mask(word, first, last);
  }
}

DiscCover::DiscCover(const PlotArea& area, double radius)
    : area_(area),
      margin_(MarginOf(radius)),
      centres_(static_cast<std::size_t>(area.right - area.left + 1 + 2 * margin_),
               static_cast<std::size_t>(area.bottom - area.top + 1 + 2 * margin_)),
      covered_(centres_) {
  for (int row = -margin_; row <= margin_; ++row) {
    // A disc touches a pixel if it holds the nearest of its points, and covers it if it holds the
    // farthest.
    const double nearest = std::max(std::abs(row) - 0.5, 0.);
    const double farthest = std::abs(row) + 0.5;
    reaches_.push_back({ReachAt(radius, nearest, -0.5), ReachAt(radius, farthest, 0.5)});
  }
}

bool DiscCover::Add(int column, int row) {
  const int gridColumn = column - area_.left + margin_;
  const int gridRow = row - area_.top + margin_;
  const auto x = static_cast<std::size_t>(gridColumn);
  const auto y = static_cast<std::size_t>(gridRow);
  if (centres_.AreSet(y, x, x)) return false;
  centres_.Set(y, x, x);
  bool isSeen = false;
  for (std::size_t i = 0; i < reaches_.size(); ++i) {
    const std::size_t at = y + i - static_cast<std::size_t>(margin_);
    const auto [met, covered] = reaches_[i];
    const auto side = static_cast<std::size_t>(std::max(met, 0));
    if (met >= 0 && !covered_.AreSet(at, x - side, x + side)) isSeen = true;
    if (covered < 0) continue;
    covered_.Set(at, x - static_cast<std::size_t>(covered), x + static_cast<std::size_t>(covered));
  }
  return isSeen;
}

}  // namespace kav
