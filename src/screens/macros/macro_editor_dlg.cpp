#include "screens/macros/macro_editor_dlg.h"

#include <QMenu>
#include <cstddef>

#include "line/keypad.h"
#include "macros/macro_editor_model.h"
#include "macros/macros_texts.h"
#include "screens/macros/macro_fields_view.h"
#include "screens/memory/memory_variables_dlg.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/pop_up.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/stored_list_dlg.h"

namespace kav {
namespace {

class CMacroEditorDlg final : public StoredListDlg<MacroEditorModel, MacroFieldsView> {
 public:
  CMacroEditorDlg(QWidget* parent, SettingsStore& store);

 private:
  void OnMemory();
  void OnFunctions();
  void OnVariables();
  /// A menu of `items`, called `name`; `choose` is told the chosen one by its index.
  QMenu* MenuOf(std::u16string_view name, const PopUpTexts& items,
                void (MacroEditorModel::*choose)(std::size_t));

  SettingsStore& store_;
};

CMacroEditorDlg::CMacroEditorDlg(QWidget* parent, SettingsStore& store)
    : StoredListDlg(parent, store, kMacroEditorTitle, kMacroListName), store_(store) {
  SetPage(GuidePage::Macros);
  AddButton(EditorButton::Memory, kMemoryCaption, [this] { OnMemory(); });
  AddButton(EditorButton::Functions, kFunctionsButton, [this] { OnFunctions(); });
  AddButton(EditorButton::Variables, kVariablesButton, [this] { OnVariables(); });
  Start({{EditorButton::Memory, EditorButton::Functions, EditorButton::Variables},
         {EditorButton::Save, EditorButton::Cancel}});
}

void CMacroEditorDlg::OnMemory() {
  TakeFields();
  const auto value = RunRecallVariable(this, store_);
  if (value) Editor().InsertIntoFormula(*value);
  RefreshAndFocus(MacroField::Formula);
}

void CMacroEditorDlg::OnFunctions() {
  constexpr MenuPlace kPlace{110, 138, MenuSide::Left};
  QMenu* menu = MenuOf(kFunctionsButton, MacroEditorModel::FunctionItems(),
                       &MacroEditorModel::ChooseFunction);
  PopUpAt(*menu, *this, kPlace);
}

void CMacroEditorDlg::OnVariables() {
  TakeFields();
  const DialogButton& button = ButtonOf(EditorButton::Variables);
  MenuOf(kVariablesButton, Editor().VariableItems(), &MacroEditorModel::ChooseVariable)
      ->popup(button.mapToGlobal(QPoint(0, button.height())));
}

QMenu* CMacroEditorDlg::MenuOf(std::u16string_view name, const PopUpTexts& items,
                               void (MacroEditorModel::*choose)(std::size_t)) {
  QMenu* menu = MakePopUp();
  menu->setAccessibleName(ToQt(name));
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i].empty()) {
      menu->addSeparator();
      continue;
    }
    connect(menu->addAction(ToQt(items[i])), &QAction::triggered, this, [this, choose, i] {
      TakeFields();
      (Editor().*choose)(i);
      RefreshAndFocus(MacroField::Formula);
    });
  }
  return menu;
}

}  // namespace

void RunMacroEditor(QWidget* parent, SettingsStore& store) {
  CMacroEditorDlg(parent, store).RunModal();
}

}  // namespace kav
