// The places of a table of values.
#pragma once

#include <cstddef>
#include <optional>

namespace kav {

/// From `first` to `last`, which is met if a number of steps leads there. `step` leads downwards if
/// it is negative.
struct TablePlaces {
  double first = 0;
  double last = 0;
  double step = 1;
};

inline constexpr std::size_t kMostTableRows = 1'000'000;

/// How many places there are; nullopt if no number of steps leads from the first to the last, or if
/// they are more than kMostTableRows.
std::optional<std::size_t> TableRows(const TablePlaces& places);

/// The place in row `row`, from 0, without what binary arithmetic added: the third of 0.1, 0.2 and
/// so on is 0.3.
double TablePlace(const TablePlaces& places, std::size_t row);

}  // namespace kav
