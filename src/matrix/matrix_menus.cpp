#include "matrix/matrix_menus.h"

#include <array>
#include <cstddef>

#include "common/number_text.h"
#include "engine/function_names.h"
#include "matrix/matrix_functions.h"
#include "matrix/matrix_texts.h"
#include "matrix/matrix_value.h"

namespace kav {
namespace {

struct ToolChoice {
  int id;
  std::u16string_view text;
};

constexpr std::array kToolChoices{
    ToolChoice{tools_item::kConstants, kConstantsItem},
    ToolChoice{tools_item::kRecallVariable, kRecallMemVarItem},
    ToolChoice{tools_item::kConverter, kConverterItem},
    ToolChoice{tools_item::kMacro, kMacroItem},
};

/// In the order of MatrixFunctions.
constexpr std::array<std::u16string_view, 5> kOperationItems{
    u"Inverse", u"Transpose", u"Linear Equation", u"Determinant", u"Triangular"};

struct MatrixToolChoice {
  int id;
  std::u16string_view text;
  bool isForAnswer;
};

constexpr MatrixToolChoice kSeparator{0, {}, true};

constexpr std::array kMatrixToolChoices{
    MatrixToolChoice{matrix_tools_item::kCut, kMatrixCutItem, false},
    MatrixToolChoice{matrix_tools_item::kCopy, kMatrixCopyItem, true},
    MatrixToolChoice{matrix_tools_item::kPaste, kMatrixPasteItem, false},
    kSeparator,
    MatrixToolChoice{matrix_tools_item::kSave, kMatrixSaveItem, true},
    MatrixToolChoice{matrix_tools_item::kLoad, kMatrixLoadItem, false},
    kSeparator,
    MatrixToolChoice{matrix_tools_item::kResetWidths, kResetWidthsItem, true},
    MatrixToolChoice{matrix_tools_item::kAutofitWidths, kAutofitWidthsItem, true},
};

constexpr std::size_t PlaceOf(int id) {
  return static_cast<std::size_t>(id) - 1;
}

/// Items numbered from 1, with the texts that `textOf` finds in `choices`.
template <class Choices, class TextOf>
Menu NumberedMenu(const Choices& choices, TextOf textOf) {
  Menu menu;
  int id = 0;
  for (const auto& choice : choices) menu.push_back({++id, std::u16string(textOf(choice))});
  return menu;
}

}  // namespace

Menu BuildFunctionMenu() {
  return NumberedMenu(kFunctionNames,
                      [](const FunctionName& function) { return Widen(function.name); });
}

std::u16string FunctionPrefix(int id) {
  return Widen(kFunctionNames[PlaceOf(id)].name) + u"(";
}

Menu BuildToolsMenu() {
  Menu menu;
  for (const ToolChoice& choice : kToolChoices) {
    menu.push_back({choice.id, std::u16string(choice.text)});
  }
  return menu;
}

Menu BuildOperationMenu() {
  return NumberedMenu(kOperationItems, [](std::u16string_view item) { return item; });
}

std::u16string OperationText(int id) {
  return Widen(MatrixFunctions()[PlaceOf(id)].name) + u"(";
}

Menu BuildMatrixToolsMenu(int index) {
  Menu menu;
  for (const MatrixToolChoice& choice : kMatrixToolChoices) {
    if (index == kAnswerMatrix && !choice.isForAnswer) continue;
    menu.push_back({choice.id, std::u16string(choice.text)});
  }
  return menu;
}

Menu BuildVariableMenu() {
  return NumberedMenu(kMatrixNames, [](std::u16string_view name) { return name; });
}

}  // namespace kav
