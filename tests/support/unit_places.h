// What is selected in the lists of the unit converter, to be compared and printed.
#pragma once

#include <array>

#include "common/unit_positions.h"

namespace kav::test {

/// The category, the input and the output.
using Places = std::array<int, 3>;

inline Places PlacesOf(const UnitPositions& positions) {
  return {positions.category, positions.input, positions.output};
}

}  // namespace kav::test
