// What the user reads about macros and their calls.
#pragma once

#include <string_view>

namespace kav {

inline constexpr std::string_view kMacroCallMisplaced = "Expression error.";
inline constexpr std::string_view kMacroNameUnknown = "Macro Name error";
inline constexpr std::string_view kMacroArgumentsWrong = "Macro argument error";
inline constexpr std::string_view kMacroFormulaInvalid = "Macro formula is invalid";
inline constexpr std::string_view kLineIsEmpty = "Expression is null.";

// The types of macros as they are stored; every other text stands for three arguments.
inline constexpr std::string_view kMacroTypeX = "TYPE1 : F(X)";
inline constexpr std::string_view kMacroTypeXY = "TYPE2 : F(X,Y)";

inline constexpr std::u16string_view kNoMacroStored = u"Not exist saved macro";

}  // namespace kav
