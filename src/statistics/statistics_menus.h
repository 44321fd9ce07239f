// The pop-up menus of the statistics screens.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "line/screen_menus.h"
#include "statistics/regression.h"
#include "statistics/statistics_keypad.h"

namespace kav {

/// The ids of the menu of memory variables.
namespace variables_item {
inline constexpr int kStore = 1;
inline constexpr int kRecall = 2;
}  // namespace variables_item

/// Whether there is a result that a memory variable could take.
enum class LastResult { CanBeStored, CannotBeStored };
Menu BuildVariablesMenu(LastResult result);

/// The regression models, with their numbers as ids.
Menu BuildModelMenu();
/// nullopt for an id that the menu does not have.
std::optional<RegressionModel> ModelOfItem(int id);
/// The name and the equation of `model`, as its menu shows them.
std::u16string_view ModelItem(RegressionModel model);
/// The short name of `model`, as the button of the menu shows it.
std::u16string_view ModelCaption(RegressionModel model);

/// Every caption that a button may ever show.
std::vector<FaceText> CaptionsOf(const StatisticsKeyRow& row);

}  // namespace kav
