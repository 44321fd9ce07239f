// What the user reads about the memory variables and the constants.
#pragma once

#include <string>
#include <string_view>

#include "common/visible_text.h"

namespace kav {

// A line of the list is the prefix, the number in two digits, the separator and the value.
inline constexpr std::u16string_view kVariablePrefix = u"Mem";
inline constexpr std::u16string_view kVariableSeparator = u" = ";
/// As wide as the line of any number, which has 15 digits at most.
inline constexpr std::u16string_view kLongestVariableLine = u"Mem20 = -1.23456789012345e-300";

inline constexpr std::u16string_view kVariablesTitle = u"Memory Variable";
inline constexpr std::u16string_view kStoreCaption = u"Store";
inline constexpr std::u16string_view kRecallCaption = u"Recall";
inline constexpr std::u16string_view kClearCaption = u"Clear";
inline constexpr std::u16string_view kClearAllCaption = u"Clear All";
// What these buttons do.
inline constexpr std::u16string_view kStoreHelp = u"store the value in the selected variable";
inline constexpr std::u16string_view kRecallHelp = u"take the value of the selected variable";
inline constexpr std::u16string_view kClearHelp = u"set the selected variable to 0";
inline constexpr std::u16string_view kClearAllHelp = u"set all variables to 0";
inline constexpr std::u16string_view kVariableListName = u"Variables";

inline constexpr std::u16string_view kNoVariableSelected = u"Please select a memory variable";
inline constexpr std::u16string_view kClearQuestion =
    u"Are you sure you want to clear the selected variable?";
inline constexpr std::u16string_view kClearAllQuestion =
    u"Are you sure you want to clear all variable?";

inline constexpr std::u16string_view kConstantsTitle = u"Constants";
inline constexpr std::u16string_view kFilterCaption = u"Filter";
inline constexpr std::u16string_view kNameColumn = u"Name";
inline constexpr std::u16string_view kValueColumn = u"Value";
inline constexpr std::u16string_view kConstantName = u"Constant Name";
inline constexpr std::u16string_view kConstantValue = u"Constant Value";

inline std::u16string ShownOfAll(std::u16string_view shown, std::u16string_view all) {
  return std::u16string(shown).append(u" of ").append(all);
}

inline constexpr std::u16string_view kNoConstantSelected = u"Please select a constant";

inline std::u16string ConstantsNotFound(std::string_view path) {
  return ShownName(path) + u" file was not found.";
}

inline std::u16string ConstantsAreTooLarge(std::string_view path) {
  return ShownName(path) + u" file is larger than 4 MB: it is no table of constants.";
}

}  // namespace kav
