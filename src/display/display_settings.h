// How numbers are shown on the screens and what a new matrix is like, as the user has set it.
#pragma once

#include <cstdint>

#include "display/number_format.h"
#include "settings/settings_store.h"

namespace kav {

/// The integers from `least` to `most`, both included.
struct IntegerRange {
  int least;
  int most;

  constexpr bool Contains(int value) const { return value >= least && value <= most; }
};

// What the user may choose. More than 15 decimals show nothing but noise. A column narrower than 10
// pixels shows no digit, and one wider than 400 leaves no room for others.
inline constexpr IntegerRange kPrecisionRange{0, 15};
inline constexpr IntegerRange kColumnWidthRange{10, 400};
inline constexpr IntegerRange kMatrixSizeRange{1, 10};

/// The side of a matrix cell that its text stands on. The numbers are those of the settings.
enum class CellAlignment : std::int32_t { Left = 0, Right = 1 };

/// All values are within the ranges above; column widths are in pixels.
struct DisplaySettings {
  DisplayFormat normal;
  DisplayFormat matrix;
  int matrixRows = 0;
  int matrixColumns = 0;
  CellAlignment alignment = CellAlignment::Left;
  int columnWidth = 0;
};

/// The stored settings. An integer out of range becomes the nearest one in range, an unknown
/// display type the default one.
DisplaySettings LoadDisplaySettings(const SettingsStore& store);

/// Stores all of `settings` in one step.
void StoreDisplaySettings(const DisplaySettings& settings, SettingsStore& store);

}  // namespace kav
