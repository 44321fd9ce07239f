// The layout of the two statistics screens: where their parts stand and what their buttons say.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "line/keypad.h"
#include "statistics/data_list.h"
#include "statistics/one_variable.h"

namespace kav {

enum class StatisticsKey {
  // clang-format off
  Add, Edit, Ok, Cancel, Delete, Clear, Save, Load, MemoryMenu,
  SumX, SquaresX, MeanX, SampleX, PopulationX,
  SumY, SquaresY, MeanY, SampleY, PopulationY, Products,
  Model, Correlation, A, B, C, EstimateX, EstimateX1, EstimateX2, EstimateY, Plot,
  // clang-format on
};

/// All there is to say about one button of a screen. Buttons that are never visible together may
/// share a place.
struct StatisticsKeyRow {
  StatisticsKey key;
  LinePlace place;
  KeyColour colour;
  std::u16string_view caption;      ///< not that of Model, which changes
  std::u16string_view description;  ///< what it does, in a few words
  std::string_view shortcut = {};   ///< such as "Alt+C"; empty for none
};

/// The buttons of a screen, each once, from the top.
std::span<const StatisticsKeyRow> StatisticsKeyRows(DataShape shape);
/// The row of `key` among them; nullptr if the screen has no such button.
const StatisticsKeyRow* RowOf(StatisticsKey key, DataShape shape);

/// Where the rest of a screen stands. While a row is edited, "Cancel" stands in place of the total.
struct StatisticsPlaces {
  LinePlace xLabel;
  LinePlace x;
  LinePlace yLabel;  ///< without width for one variable, as `y` is
  LinePlace y;
  LinePlace countLabel;
  LinePlace count;
  LinePlace totalLabel;
  LinePlace total;
  LinePlace list;
  LinePlace result;
};
const StatisticsPlaces& StatisticsPlacesOf(DataShape shape);

/// What a result button shows; `variable` is 0 for X and 1 for Y.
struct KeyMoment {
  std::size_t variable;
  Moment moment;
};
/// nullopt for a button that shows no moment.
std::optional<KeyMoment> MomentOf(StatisticsKey key);

}  // namespace kav
