// Which of many equal discs can be seen.
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

  /// Whether all bits of a row are set from `first` to `last`, which is not before it.
  bool AreSet(std::size_t row, std::size_t first, std::size_t last) const;
  void Set(std::size_t row, std::size_t first, std::size_t last);

 private:
  std::size_t wordsPerRow_;
  std::vector<std::uint64_t> words_;
};

/// Takes discs of one radius around pixels of an area, of one colour, in the order of painting.
/// Those that it turns away would change nothing. How many it lets through depends on the size of
/// the area, and not on how many there are.
class DiscCover {
 public:
  /// `radius` is in pixels of the area.
  DiscCover(const PlotArea& area, double radius);

  /// Whether the disc around this pixel, which is in the area, changes anything.
  bool Add(int column, int row);

 private:
  /// Of a row of pixels beside the centre's, how many to each side of its column the disc meets and
  /// how many it covers; negative for none, not even the one in that column.
  struct Reach {
    int met;
    int covered;
  };

  PlotArea area_;
  int margin_;                  ///< rows and columns that a disc meets beyond its centre's
  std::vector<Reach> reaches_;  ///< of 2 * margin_ + 1 rows from the top
  BitGrid centres_;
  BitGrid covered_;
};

}  // namespace kav
