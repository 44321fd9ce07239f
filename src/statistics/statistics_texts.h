// What the user reads on the statistics screens, except the captions of their buttons.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "statistics/data_list.h"

namespace kav {

// Fields, list and total.
inline constexpr std::u16string_view kXLabel = u"X :";
inline constexpr std::u16string_view kYLabel = u"Y :";
inline constexpr std::u16string_view kCountLabel = u"Count :";
inline constexpr std::u16string_view kTotalLabel = u"Total : ";
inline constexpr std::u16string_view kXHeading = u"X";
inline constexpr std::u16string_view kYHeading = u"Y";
inline constexpr std::u16string_view kCountHeading = u"Count";
inline constexpr std::u16string_view kShortCountHeading = u"Cnt";

// What screen readers call the parts of the screens that have no caption.
inline constexpr std::u16string_view kXName = u"X";
inline constexpr std::u16string_view kYName = u"Y";
inline constexpr std::u16string_view kCountName = u"Count";
inline constexpr std::u16string_view kTotalName = u"Total";
inline constexpr std::u16string_view kDataListName = u"Data";

// Questions, and what is told if there is nothing to do.
inline constexpr std::u16string_view kSaveDataQuestion = u"Do you want to save changes to Data?";
inline constexpr std::u16string_view kDeleteRowQuestion =
    u"Are you sure you want to delete the selected data?";
inline constexpr std::u16string_view kClearRowsQuestion =
    u"Are you sure you want to delete all data?";
inline constexpr std::u16string_view kNoRowIsSelected = u"No items were selected!";

inline std::u16string IntegerText(std::int64_t number) {
  return Widen(PrintInteger(number));
}

/// What a count has to be.
inline std::u16string WholeCount() {
  return u"whole number from " + IntegerText(kLeastCount) + u" to " + IntegerText(kLargestCount);
}
/// The totals that a list can have.
inline constexpr std::u16string_view kTotalBounds = u"-2147483648 to 2147483647";
inline std::u16string MostRowsText() {
  return IntegerText(static_cast<std::int64_t>(DataList::kMostRows));
}
inline std::u16string LongestValueText() {
  return IntegerText(static_cast<std::int64_t>(DataList::kLongestValue));
}

// What fields take. `name` is the name of the field.
inline std::u16string ValueIsNoNumber(std::u16string_view name) {
  return std::u16string(name).append(u" must be a number such as -12.5 or 1.5e-3.");
}
inline std::u16string ValueIsTooLarge(std::u16string_view name) {
  return std::u16string(name).append(
      u" is too large: it must be a number from -1.79e308 to 1.79e308.");
}
inline std::u16string CountIsOutOfRange() {
  return std::u16string(kCountName).append(u" must be a ").append(WholeCount()).append(u".");
}

/// Why rows typed or pasted are not put into a list.
inline std::u16string WhyRowsDoNotFit(DataRefusal refusal) {
  switch (refusal) {
    case DataRefusal::TotalOutOfRange:
      return std::u16string(u"The total of all counts must be from ")
          .append(kTotalBounds)
          .append(u". The list was not changed.");
    case DataRefusal::TooManyRows:
      return u"A list holds up to " + MostRowsText() + u" rows. The list was not changed.";
    case DataRefusal::ValueTooLong:
      return u"A value holds up to " + LongestValueText() +
             u" characters. The list was not changed.";
    case DataRefusal::CountOutOfRange:
    case DataRefusal::NoNumber:
    case DataRefusal::NoMemory:
      break;
  }
  return u"There is not enough memory for more rows. The list was not changed.";
}

// The regression models, in their menu and on the button that opens it.
inline constexpr std::u16string_view kLinearItem = u"Linear : A*X+B";
inline constexpr std::u16string_view kPowerItem = u"Power : A*X^B";
inline constexpr std::u16string_view kInverseItem = u"Inverse : A/X+B";
inline constexpr std::u16string_view kLogarithmicItem = u"Logarithmic : A*ln(X)+B";
inline constexpr std::u16string_view kExponentialItem = u"Exponential : A*exp(B*X)";
inline constexpr std::u16string_view kQuadraticItem = u"Quadratic : A*X^2+B*X+C";
inline constexpr std::u16string_view kLinearCaption = u"Lin";
inline constexpr std::u16string_view kPowerCaption = u"Pow";
inline constexpr std::u16string_view kInverseCaption = u"Inv";
inline constexpr std::u16string_view kLogarithmicCaption = u"Log";
inline constexpr std::u16string_view kExponentialCaption = u"Exp";
inline constexpr std::u16string_view kQuadraticCaption = u"Quad";

/// `message` is the engine's.
inline std::u16string EquationIsUnreadable(std::u16string_view message,
                                           std::u16string_view equation) {
  return std::u16string(message).append(u"\n").append(equation);
}
/// `model` as its menu shows it.
inline std::u16string ModelHasNoCurve(std::u16string_view model) {
  return std::u16string(u"The model \"").append(model).append(u"\" has no curve for these data.");
}
inline constexpr std::u16string_view kNoMemoryForGraph =
    u"There is not enough memory for the graph. Close other programs.";

// The list, and the boxes over it.
/// `key` is the digit that sorts by a column when pressed with Ctrl.
inline std::u16string SortHint(int key) {
  return std::u16string(u"Sorts the rows (Ctrl+").append(IntegerText(key)).append(u")");
}
/// What the arrow above a column says.
inline constexpr std::u16string_view kSortedUpwards = u"Sorted, the smallest number first";
inline constexpr std::u16string_view kSortedDownwards = u"Sorted, the largest number first";
inline constexpr std::u16string_view kLoadingData = u"Loading Data...";
inline constexpr std::u16string_view kSavingData = u"Saving Data...";
inline constexpr std::u16string_view kPastingData = u"Pasting Data...";

}  // namespace kav
