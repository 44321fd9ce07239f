// The pop-up menus of the matrix screen.
#pragma once

#include <string>

#include "line/screen_menus.h"

namespace kav {

// The ids of the two menus whose items do more than write. In the other menus they count from 1.
namespace tools_item {
inline constexpr int kConstants = 1;
inline constexpr int kRecallVariable = 2;
inline constexpr int kConverter = 3;
inline constexpr int kMacro = 4;
}  // namespace tools_item

namespace matrix_tools_item {
inline constexpr int kCut = 1;
inline constexpr int kCopy = 2;
inline constexpr int kPaste = 3;
inline constexpr int kSave = 4;
inline constexpr int kLoad = 5;
inline constexpr int kResetWidths = 6;
inline constexpr int kAutofitWidths = 7;
}  // namespace matrix_tools_item

/// The functions of number expressions, by their names.
Menu BuildFunctionMenu();
/// What the item `id` of that menu writes before the selection; ")" comes behind it.
std::u16string FunctionPrefix(int id);

Menu BuildToolsMenu();

/// The functions of matrix expressions.
Menu BuildOperationMenu();
/// What the item `id` of that menu writes: the function's name and "(".
std::u16string OperationText(int id);

/// The tools for the matrix `index`. For [M Ans] there is none that would replace it.
Menu BuildMatrixToolsMenu(int index);

/// The names of the matrices; the items write them.
Menu BuildVariableMenu();

}  // namespace kav
