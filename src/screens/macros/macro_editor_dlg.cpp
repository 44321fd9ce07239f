#include "screens/macros/macro_editor_dlg.h"

#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>
#include <array>
#include <cstddef>

#include "macros/macro_editor_model.h"
#include "macros/macros_texts.h"
#include "screens/macros/macro_fields_view.h"
#include "screens/memory/memory_variables_dlg.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/label_list.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

class CMacroEditorDlg final : public Dialog {
 public:
  CMacroEditorDlg(QWidget* parent, SettingsStore& store);

  /// Esc and the window's own closing give up what is edited first.
  void reject() override;

 private:
  struct ButtonRow {
    EditorButton button;
    std::u16string_view caption;
    void (CMacroEditorDlg::*onClick)();
  };
  static constexpr std::size_t kButtonCount = 9;
  static const std::array<ButtonRow, kButtonCount> kButtons;

  void MakeButtons();
  void LayOut();
  void Refresh();

  void OnSelect();
  void OnNew();
  void OnEdit();
  void OnDelete();
  void OnSave();
  void OnCancel();
  void OnMemory();
  void OnFunctions();
  void OnVariables();

  void BeginEditing();
  /// Back in the list, or at the button that begins one.
  void FocusList();
  void RefreshFormula();
  void TakeFields() { model_.Take(fields_->Typed()); }
  void PopUp(EditorButton under, const PopUpTexts& items,
             void (MacroEditorModel::*choose)(std::size_t));
  DialogButton* ButtonOf(EditorButton button) const {
    return buttons_[static_cast<std::size_t>(button)];
  }

  SettingsStore& store_;
  MacroEditorModel model_;
  MacroFieldsView* fields_ = new MacroFieldsView;
  QLabel* count_ = new QLabel;
  LabelList* list_ = new LabelList(kMacroListName);
  std::array<DialogButton*, kButtonCount> buttons_{};
};

const std::array<CMacroEditorDlg::ButtonRow, CMacroEditorDlg::kButtonCount>
    CMacroEditorDlg::kButtons{{
        {EditorButton::New, kNewCaption, &CMacroEditorDlg::OnNew},
        {EditorButton::Edit, kEditCaption, &CMacroEditorDlg::OnEdit},
        {EditorButton::Delete, kDeleteCaption, &CMacroEditorDlg::OnDelete},
        {EditorButton::Close, kCloseCaption, &CMacroEditorDlg::reject},
        {EditorButton::Save, kSaveCaption, &CMacroEditorDlg::OnSave},
        {EditorButton::Cancel, kCancelCaption, &CMacroEditorDlg::OnCancel},
        {EditorButton::Memory, kMemoryCaption, &CMacroEditorDlg::OnMemory},
        {EditorButton::Functions, kFunctionsButton, &CMacroEditorDlg::OnFunctions},
        {EditorButton::Variables, kVariablesButton, &CMacroEditorDlg::OnVariables},
    }};

CMacroEditorDlg::CMacroEditorDlg(QWidget* parent, SettingsStore& store)
    : Dialog(parent, kMacroEditorTitle), store_(store), model_(store) {
  MakeButtons();
  LayOut();
  connect(list_, &QListWidget::itemSelectionChanged, this, &CMacroEditorDlg::OnSelect);
  connect(list_, &QListWidget::itemDoubleClicked, this, &CMacroEditorDlg::OnEdit);
  Refresh();
  FocusList();
}

void CMacroEditorDlg::MakeButtons() {
  for (const ButtonRow& row : kButtons) {
    auto* button = new DialogButton(row.caption);
    buttons_[static_cast<std::size_t>(row.button)] = button;
    connect(button, &QPushButton::clicked, this, row.onClick);
  }
}

void CMacroEditorDlg::LayOut() {
  const auto row = [this](std::initializer_list<EditorButton> buttons) {
    auto* layout = new QHBoxLayout;
    for (const EditorButton button : buttons) layout->addWidget(ButtonOf(button), 1);
    return layout;
  };
  auto* all = new QVBoxLayout(this);
  all->addWidget(fields_);
  all->addLayout(row({EditorButton::Memory, EditorButton::Functions, EditorButton::Variables}));
  all->addLayout(row({EditorButton::Save, EditorButton::Cancel}));
  all->addWidget(count_);
  all->addWidget(list_, 1);
  all->addLayout(
      row({EditorButton::New, EditorButton::Edit, EditorButton::Delete, EditorButton::Close}));
}

void CMacroEditorDlg::Refresh() {
  // Before they are enabled: what was shown last is not to be undone.
  fields_->Write(model_.Fields());
  fields_->SetEditable(model_.IsEditing());
  count_->setText(ToQt(model_.CountText()));
  list_->Write(model_.Labels(), model_.Selected());
  list_->setEnabled(!model_.IsEditing());
  for (const ButtonRow& row : kButtons) {
    ButtonOf(row.button)->setVisible(model_.Shows(row.button));
    ButtonOf(row.button)->setEnabled(model_.Enables(row.button));
  }
  ButtonOf(model_.DefaultButton())->setDefault(true);
}

void CMacroEditorDlg::OnSelect() {
  model_.Select(list_->Selected());
  Refresh();
}

void CMacroEditorDlg::OnNew() {
  model_.New();
  BeginEditing();
}

void CMacroEditorDlg::OnEdit() {
  model_.Edit();
  BeginEditing();
}

void CMacroEditorDlg::BeginEditing() {
  Refresh();
  if (!model_.IsEditing()) return FocusList();
  fields_->Focus(MacroField::Name);
}

void CMacroEditorDlg::OnDelete() {
  if (!AskYesNo(this, MacroEditorModel::DeleteQuestion())) return;
  model_.Delete();
  Refresh();
  FocusList();
}

void CMacroEditorDlg::OnSave() {
  TakeFields();
  if (const auto refusal = model_.Save()) {
    ShowStop(this, refusal->text);
    return fields_->Focus(refusal->focus);
  }
  Refresh();
  FocusList();
}

void CMacroEditorDlg::OnCancel() {
  model_.Cancel();
  Refresh();
  FocusList();
}

void CMacroEditorDlg::OnMemory() {
  TakeFields();
  const auto value = RunRecallVariable(this, store_);
  if (value) model_.InsertIntoFormula(*value);
  RefreshFormula();
}

void CMacroEditorDlg::OnFunctions() {
  PopUp(EditorButton::Functions, MacroEditorModel::FunctionItems(),
        &MacroEditorModel::ChooseFunction);
}

void CMacroEditorDlg::OnVariables() {
  TakeFields();
  PopUp(EditorButton::Variables, model_.VariableItems(), &MacroEditorModel::ChooseVariable);
}

void CMacroEditorDlg::reject() {
  if (model_.IsEditing()) return OnCancel();
  Dialog::reject();
}

void CMacroEditorDlg::FocusList() {
  if (model_.Labels().empty()) return ButtonOf(EditorButton::New)->setFocus();
  list_->setFocus();
}

void CMacroEditorDlg::RefreshFormula() {
  Refresh();
  fields_->Focus(MacroField::Formula);
}

void CMacroEditorDlg::PopUp(EditorButton under, const PopUpTexts& items,
                            void (MacroEditorModel::*choose)(std::size_t)) {
  QMenu* menu = MakePopUp();
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i].empty()) {
      menu->addSeparator();
      continue;
    }
    connect(menu->addAction(ToQt(items[i])), &QAction::triggered, this, [this, choose, i] {
      TakeFields();
      (model_.*choose)(i);
      RefreshFormula();
    });
  }
  const DialogButton& button = *ButtonOf(under);
  menu->popup(button.mapToGlobal(QPoint(0, button.height())));
}

}  // namespace

void RunMacroEditor(QWidget* parent, SettingsStore& store) {
  CMacroEditorDlg(parent, store).RunModal();
}

}  // namespace kav
