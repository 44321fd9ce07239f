// The macro editor: a list of all macros, and the fields of the one that is looked at or edited.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/refusal.h"
#include "line/expression_line.h"
#include "macros/macro_list_model.h"
#include "macros/macro_saving.h"
#include "settings/settings_store.h"

namespace kav {

/// What stands in the fields.
struct MacroFields {
  std::u16string name;
  std::optional<VariableType> type;
  ExpressionLine formula;
};

enum class EditorButton { New, Edit, Delete, Close, Save, Cancel, Memory, Functions, Variables };

/// The lines of a pop-up menu; an empty one is a separator.
using PopUpTexts = std::vector<std::u16string_view>;

/// Browses until something is edited, and again once that is saved or given up. Other programs may
/// store macros at the same time: New, Edit, Cancel, Save and Delete find what they stored.
class MacroEditorModel {
 public:
  /// The first macro, if any, is selected. `settings` must outlive the model.
  explicit MacroEditorModel(SettingsStore& settings);

  std::vector<std::u16string> Labels() const { return list_.Labels(); }
  /// A place in the list, from 0.
  std::optional<int> Selected() const { return list_.Selected(); }
  std::u16string CountText() const;
  bool IsEditing() const { return isEditing_; }
  const MacroFields& Fields() const { return fields_; }

  bool Shows(EditorButton button) const;
  bool Enables(EditorButton button) const;
  /// The one that Enter presses.
  EditorButton DefaultButton() const;

  /// The fields show the macro of that place, or nothing. No effect while editing.
  void Select(std::optional<int> place);
  /// The fields are cleared, to be filled in.
  void New();
  /// The fields of the selected macro; goes on browsing where another program removed it.
  void Edit();
  /// To be asked before Delete.
  static std::u16string_view DeleteQuestion();
  /// Removes the selected macro. The one behind it is selected then, or else the last.
  void Delete();

  // The rest has an effect only while editing.

  /// What the user typed. To be told before any of those that follow.
  void Take(MacroFields typed);
  /// Why the fields cannot be saved, and then they stay as typed; nullopt where they are, and then
  /// what was saved is selected.
  std::optional<Refusal<MacroField>> Save();
  /// The fields show the selected macro again.
  void Cancel();

  static PopUpTexts FunctionItems();
  /// Edits the formula as the key of that function does.
  void ChooseFunction(std::size_t item);
  /// The variables of a macro of the chosen type.
  PopUpTexts VariableItems() const;
  void ChooseVariable(std::size_t item);
  /// Puts `text`, as it is shown, in place of what is selected in the formula.
  void InsertIntoFormula(std::u16string_view text);

 private:
  void BrowseAnew();
  void Browse();

  SettingsStore& settings_;
  MacroListModel list_;
  bool isEditing_ = false;
  // Whose fields are edited; nullopt for a new macro.
  std::optional<MacroIdentity> edited_;
  MacroFields fields_;
};

}  // namespace kav
