// What is selected in the lists of the unit converter.
#pragma once

namespace kav {

/// Positions in the lists, from 0; -1 for nothing.
struct UnitPositions {
  int category = -1;
  int input = -1;   ///< a unit, or a conversion if the category lists conversions
  int output = -1;  ///< a unit; nothing if the category lists conversions
};

}  // namespace kav
