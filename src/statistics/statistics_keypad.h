// The two statistics screens as pictures: where their parts stand and how their buttons are called.
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

/// All there is to say about one button of a screen; places are in dialog units of a screen of
/// kScreenWidth by kScreenHeight. Buttons of which only some are visible at a time share places.
struct StatisticsKeyRow {
  StatisticsKey key;
  LinePlace place;
  KeyColour colour;
  std::u16string_view caption;           ///< of Model: what it shows is the model's
  std::u16string_view description = {};  ///< for screen readers, if the caption is no word
  std::string_view shortcut = {};        ///< such as "Alt+C"; empty for none
};

/// The buttons of a screen, each once, from the top.
std::span<const StatisticsKeyRow> StatisticsKeyRows(DataShape shape);

/// Where the rest of a screen stands, in the same units. "Cancel" takes the place of both parts of
/// the total.
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

/// What a result button shows of a variable: 0 (X) or 1 (Y).
struct KeyMoment {
  std::size_t variable;
  Moment moment;
};
/// nullopt for a button that shows something else.
std::optional<KeyMoment> MomentOf(StatisticsKey key);

}  // namespace kav
