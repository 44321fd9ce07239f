// What "=" says of cells that are no numbers, besides the answer that it gives.
#pragma once

#include <string>
#include <string_view>

#include "display/number_format.h"
#include "matrix/matrix_value.h"

namespace kav {

/// Says of each cell that is no number what it counts as, once as long as its text stays the same.
class CellNotes {
 public:
  /// Of the matrices that `line` names: a line of text for each of the first cells that were not
  /// told before, and how many more there are; empty if there is nothing new. Numbers are written
  /// by `format`.
  std::u16string NewsOf(std::u16string_view line, const Matrices& matrices, DisplayFormat format);

 private:
  Matrices told_;  ///< the texts that were told, at their places
};

}  // namespace kav
