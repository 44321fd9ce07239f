// The macro editor: the list of all macros, and the fields of the one that is looked at or edited.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "line/expression_line.h"
#include "macros/macro_saving.h"
#include "macros/macros_texts.h"
#include "settings/stored_list_editor.h"

namespace kav {

/// What stands in the fields.
struct MacroFields {
  std::u16string name;
  std::optional<VariableType> type;
  ExpressionLine formula;
};

/// The macros as an editor's list, see settings/stored_list_editor.h.
struct MacroEditorTraits : MacroTraits {
  using Fields = MacroFields;

  static constexpr MacroField kFirstOfNew = MacroField::Name;
  static constexpr MacroField kFirstOfEdited = MacroField::Name;
  static constexpr std::u16string_view kDeleteQuestion = kDeleteMacroQuestion;
  static constexpr const auto& kButtonHelp = kMacroButtonHelp;
  static constexpr bool kKeepsListButtons = true;
  /// Long texts are cut, as ShownText cuts them.
  static MacroFields FieldsOf(const Macro& macro);
  /// The caret stands at the end of the formula.
  static MacroFields FieldsToEdit(const Macro& macro);
  static TypedMacro TypedOf(const MacroFields& fields, const std::optional<StoredIdentity>& edited);
};

/// The items of a pop-up menu in their order. An empty one is a separator.
using PopUpTexts = std::vector<std::u16string_view>;

/// The editor, and what helps to type a formula. That has an effect only while editing.
class MacroEditorModel : public StoredListEditor<MacroEditorTraits> {
 public:
  using StoredListEditor::StoredListEditor;

  static PopUpTexts FunctionItems();
  /// Edits the formula as the key of that function does. `item` counts FunctionItems from 0;
  /// nothing happens if it is a separator or beyond the last.
  void ChooseFunction(std::size_t item);
  /// The variables that a macro of the chosen type has; all three if no type is chosen.
  PopUpTexts VariableItems() const;
  /// Inserts that one of VariableItems in lower case; nothing if `item` is beyond the last.
  void ChooseVariable(std::size_t item);
  /// Puts `text`, as it is shown, in place of what is selected in the formula.
  void InsertIntoFormula(std::u16string_view text);
};

}  // namespace kav
