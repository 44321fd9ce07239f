// What the user reads about macros and their calls.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "settings/editor_button.h"

namespace kav {

inline constexpr std::string_view kMacroCallMisplaced = "Expression error.";
inline constexpr std::string_view kMacroNameUnknown = "Macro Name error";
inline constexpr std::string_view kMacroArgumentsWrong = "Macro argument error";
inline constexpr std::string_view kMacroFormulaInvalid = "Macro formula is invalid";
inline constexpr std::string_view kLineIsEmpty = "Expression is null.";

// The types of macros as they are stored and chosen. Any text but the first two stands for three
// arguments.
inline constexpr std::string_view kMacroTypeX = "TYPE1 : F(X)";
inline constexpr std::string_view kMacroTypeXY = "TYPE2 : F(X,Y)";
inline constexpr std::string_view kMacroTypeXYZ = "TYPE3 : F(X,Y,Z)";

// What follows a macro's name in a list, by its type.
inline constexpr std::u16string_view kMacroArgumentsX = u"(X)";
inline constexpr std::u16string_view kMacroArgumentsXY = u"(X,Y)";
inline constexpr std::u16string_view kMacroArgumentsXYZ = u"(X,Y,Z)";

inline constexpr std::u16string_view kNoMacroStored = u"Not exist saved macro";

// The captions of the editor and of the list.
inline constexpr std::u16string_view kMacroEditorTitle = u"Edit Macro";
inline constexpr std::u16string_view kMacroListTitle = u"Macro List";
inline constexpr std::u16string_view kMacroNameCaption = u"Macro Name";
inline constexpr std::u16string_view kMacroTypeCaption = u"Argument Type";
inline constexpr std::u16string_view kFunctionsButton = u"F(X)";
inline constexpr std::u16string_view kVariablesButton = u"Variables";
inline constexpr std::array kMacroButtonHelp{
    EditorButtonHelp{EditorButton::New, u"begin a new macro"},
    EditorButtonHelp{EditorButton::Edit, u"change the selected macro"},
    EditorButtonHelp{EditorButton::Delete, u"delete the selected macro"},
    EditorButtonHelp{EditorButton::Save, u"store the macro as it stands in the fields"},
    EditorButtonHelp{EditorButton::Cancel, u"give up what was changed in the fields"},
    EditorButtonHelp{EditorButton::Memory,
                     u"write the value of a memory variable into the expression"},
    EditorButtonHelp{EditorButton::Functions, u"write a function into the expression"},
    EditorButtonHelp{EditorButton::Variables, u"write a variable of the macro into the expression"},
};
inline constexpr std::u16string_view kDeleteMacroQuestion =
    u"Are you sure you want to delete the selected macro?";

// Accessible names of a list of macros and of a formula, which have no caption.
inline constexpr std::u16string_view kMacroListName = u"Macros";
inline constexpr std::u16string_view kFormulaName = u"Formula";

inline std::u16string DecimalText(std::size_t number) {
  return Widen(PrintInteger(static_cast<std::int64_t>(number)));
}

inline std::u16string MacroFormulaCaption(std::size_t most) {
  return u"Macro Expression(Max Len:" + DecimalText(most) + u")";
}

// Why a macro is not saved.
inline constexpr std::u16string_view kMacroNameIsNull = u"Macro Name is NULL";
inline constexpr std::u16string_view kMacroNameHasMarks = u"Can not use '(',')',':' in Macro Name.";
inline constexpr std::u16string_view kMacroTypeIsNull = u"Argument Type is NULL";
inline constexpr std::u16string_view kMacroFormulaIsNull = u"Macro Expression is NULL";

inline std::u16string MaximumOfMacros(std::size_t most) {
  return u"Maximum of macro is " + DecimalText(most);
}

inline std::u16string MacroFormulaIsTooLong(std::size_t length, std::size_t most) {
  return u"Macro Expression has " + DecimalText(length) + u" characters, more than " +
         DecimalText(most) + u".";
}

}  // namespace kav
