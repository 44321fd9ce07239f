#include "screens/converter/user_conversion_dlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <array>
#include <cstddef>
#include <initializer_list>

#include "converter/converter_texts.h"
#include "converter/user_conversion_model.h"
#include "screens/converter/user_conversion_fields_view.h"
#include "screens/memory/memory_variables_dlg.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/label_list.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

class CUserConversionDlg final : public Dialog {
 public:
  CUserConversionDlg(QWidget* parent, SettingsStore& store);

  /// Esc and the window's own closing give up what is edited first.
  void reject() override;

 private:
  struct ButtonRow {
    ConversionButton button;
    std::u16string_view caption;
    void (CUserConversionDlg::*onClick)();
  };
  static constexpr std::size_t kButtonCount = 7;
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

  void BeginEditing();
  /// Back in the list, or at the button that begins one.
  void FocusList();
  void Browse();
  DialogButton* ButtonOf(ConversionButton button) const {
    return buttons_[static_cast<std::size_t>(button)];
  }

  SettingsStore& store_;
  UserConversionModel model_;
  UserConversionFieldsView* fields_ = new UserConversionFieldsView;
  QLabel* count_ = new QLabel;
  LabelList* list_ = new LabelList(kUserConversionsName);
  std::array<DialogButton*, kButtonCount> buttons_{};
};

const std::array<CUserConversionDlg::ButtonRow, CUserConversionDlg::kButtonCount>
    CUserConversionDlg::kButtons{{
        {ConversionButton::New, kNewCaption, &CUserConversionDlg::OnNew},
        {ConversionButton::Edit, kEditCaption, &CUserConversionDlg::OnEdit},
        {ConversionButton::Delete, kDeleteCaption, &CUserConversionDlg::OnDelete},
        {ConversionButton::Close, kCloseCaption, &CUserConversionDlg::reject},
        {ConversionButton::Save, kSaveCaption, &CUserConversionDlg::OnSave},
        {ConversionButton::Cancel, kCancelCaption, &CUserConversionDlg::OnCancel},
        {ConversionButton::Memory, kMemoryCaption, &CUserConversionDlg::OnMemory},
    }};

CUserConversionDlg::CUserConversionDlg(QWidget* parent, SettingsStore& store)
    : Dialog(parent, kUserConversionsTitle), store_(store), model_(store) {
  MakeButtons();
  LayOut();
  connect(list_, &QListWidget::itemSelectionChanged, this, &CUserConversionDlg::OnSelect);
  connect(list_, &QListWidget::itemDoubleClicked, this, &CUserConversionDlg::OnEdit);
  Browse();
}

void CUserConversionDlg::MakeButtons() {
  for (const ButtonRow& row : kButtons) {
    auto* button = new DialogButton(row.caption);
    buttons_[static_cast<std::size_t>(row.button)] = button;
    connect(button, &QPushButton::clicked, this, row.onClick);
  }
}

void CUserConversionDlg::LayOut() {
  const auto row = [this](std::initializer_list<ConversionButton> buttons) {
    auto* layout = new QHBoxLayout;
    for (const ConversionButton button : buttons) layout->addWidget(ButtonOf(button), 1);
    return layout;
  };
  auto* all = new QVBoxLayout(this);
  all->addWidget(fields_);
  all->addLayout(row({ConversionButton::Memory, ConversionButton::Save, ConversionButton::Cancel}));
  all->addWidget(count_);
  all->addWidget(list_, 1);
  all->addLayout(row({ConversionButton::New, ConversionButton::Edit, ConversionButton::Delete,
                      ConversionButton::Close}));
}

void CUserConversionDlg::Refresh() {
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

void CUserConversionDlg::OnSelect() {
  model_.Select(list_->Selected());
  Refresh();
}

void CUserConversionDlg::OnNew() {
  model_.New();
  BeginEditing();
}

void CUserConversionDlg::OnEdit() {
  model_.Edit();
  BeginEditing();
}

void CUserConversionDlg::BeginEditing() {
  if (!model_.IsEditing()) return Browse();
  Refresh();
  fields_->Focus(model_.FirstField());
}

void CUserConversionDlg::OnDelete() {
  // The rates that others stored meanwhile are to be warned of as well.
  model_.LookAgain();
  Browse();
  if (!model_.Selected()) return;
  if (!AskYesNo(this, UserConversionModel::DeleteQuestion(), model_.DeleteWarning())) return;
  model_.Delete();
  Browse();
}

void CUserConversionDlg::OnSave() {
  model_.Take(fields_->Typed());
  if (const auto refusal = model_.Save()) {
    ShowStop(this, refusal->text);
    return fields_->Focus(refusal->focus);
  }
  Browse();
}

void CUserConversionDlg::OnCancel() {
  model_.Cancel();
  Browse();
}

void CUserConversionDlg::OnMemory() {
  model_.Take(fields_->Typed());
  const auto value = RunRecallVariable(this, store_);
  if (value) model_.TakeRate(*value);
  Refresh();
  fields_->Focus(ConversionField::Rate);
}

void CUserConversionDlg::reject() {
  if (model_.IsEditing()) return OnCancel();
  Dialog::reject();
}

void CUserConversionDlg::Browse() {
  Refresh();
  FocusList();
}

void CUserConversionDlg::FocusList() {
  if (model_.Labels().empty()) return ButtonOf(ConversionButton::New)->setFocus();
  list_->setFocus();
}

}  // namespace

void RunUserConversions(QWidget* parent, SettingsStore& store) {
  CUserConversionDlg(parent, store).RunModal();
}

}  // namespace kav
