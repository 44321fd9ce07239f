// Finds the visible ones of many equal discs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "plotter/graph_model.h"

namespace kav {

/// A rectangle of bits.
class BitGrid {
 public:
  BitGrid(std::size_t width, std::size_t height);

  // Bits `first` to `last` of a row, first <= last.
  bool AreSet(std::size_t row, std::size_t first, std::size_t last) const;
  void Set(std::size_t row, std::size_t first, std::size_t last);

 private:
  std::size_t wordsPerRow_;
  std::vector<std::uint64_t> words_;
};

/// Takes discs of one radius and one colour, centred on pixels of an area, in the order of
/// painting. It turns away those that would change no pixel. So the number to be painted is limited
/// by the size of the area, however many discs there are.
class DiscCover {
 public:
  /// `radius` is in pixels.
  DiscCover(const PlotArea& area, double radius);

  /// Whether the disc around this pixel of the area changes any pixel.
  bool Add(int column, int row);

 private:
  /// In a row of pixels, how many on each side of the centre's column the disc touches and how many
  /// it covers. Negative if not even the pixel in that column.
  struct Reach {
    int met;
    int covered;
  };

  PlotArea area_;
  int margin_;                  ///< rows and columns that a disc touches beyond its centre's
  std::vector<Reach> reaches_;  ///< of 2 * margin_ + 1 rows from the top
  BitGrid centres_;
  BitGrid covered_;
};

}  // namespace kav
