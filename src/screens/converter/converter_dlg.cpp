#include "screens/converter/converter_dlg.h"

#include <QLabel>
#include <QLineEdit>
#include <QSpacerItem>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <string_view>

#include "converter/converter_model.h"
#include "converter/converter_texts.h"
#include "screens/converter/choice_view.h"
#include "screens/converter/user_conversion_dlg.h"
#include "screens/memory/memory_variables_dlg.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/fitting_text.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Free room of a layout with a button in its middle. Nothing else stands elsewhere for it as long
/// as there is that much room.
class RoomWithButton final : public QSpacerItem {
 public:
  explicit RoomWithButton(QWidget* button)
      : QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding), button_(button) {}

 private:
  QSize sizeHint() const override { return {0, button_->sizeHint().height()}; }
  QSize minimumSize() const override { return {0, button_->minimumSizeHint().height()}; }
  void setGeometry(const QRect& room) override {
    const int high = std::min(button_->sizeHint().height(), room.height());
    button_->setGeometry(room.x(), room.y() + (room.height() - high) / 2, room.width(), high);
    QSpacerItem::setGeometry(room);
  }

  QWidget* button_;
};

class CConverterDlg final : public Dialog {
 public:
  CConverterDlg(QWidget* parent, SettingsStore& store, const ConverterInput& input);

  /// What the user made of `input`, once the dialog is closed.
  ConverterOutcome Outcome(const ConverterInput& input) const;

 private:
  void LayOut();
  void Connect();
  void Refresh();
  void RefreshChoices();
  void RefreshValue();
  void OnCategory(int category);
  void AskForConversions(std::u16string_view missing);
  void OnEdit();
  void OnMemory();
  void OnAccept();
  void SetTextHeight(int text) override;

  SettingsStore& store_;
  ConverterModel model_;
  bool asks_ = false;  ///< for conversions, since the empty category was chosen
  ChoiceView* category_ = new ChoiceView(kCategoryName);
  QLineEdit* value_ = new QLineEdit;
  ChoiceView* input_ = new ChoiceView(kInputUnitName);
  ChoiceView* output_ = new ChoiceView(kOutputUnitName);
  /// A number, or why there is none.
  FittingText<QLineEdit>* result_ = new FittingText<QLineEdit>(1);
  DialogButton* swap_ = new DialogButton(kSwapCaption, kSwapHelp);
  DialogButton* edit_ = new DialogButton(kUserConversionsTitle, kEditConversionsHelp);
  DialogButton* memory_ = new DialogButton(kMemoryCaption, kStoreOutputHelp);
  DialogButton* ok_ = new DialogButton(kOkCaption);
  DialogButton* cancel_ = new DialogButton(kCancelCaption);
};

CConverterDlg::CConverterDlg(QWidget* parent, SettingsStore& store, const ConverterInput& input)
    : Dialog(parent, kConverterTitle), store_(store), model_(store, input.value, input.positions) {
  SetPage(GuidePage::Converter);
  value_->setAccessibleName(ToQt(kInputValueName));
  result_->setReadOnly(true);
  result_->setAccessibleName(ToQt(kConverterResultName));
  Wear(*result_, Attire::Result);
  swap_->setAccessibleName(ToQt(kSwapName));
  LayOut();
  Connect();
  Refresh();
  value_->setFocus();
  value_->selectAll();
}

void CConverterDlg::LayOut() {
  // So that nothing else moves when the second list is hidden.
  QSizePolicy policy = output_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  output_->setSizePolicy(policy);
  auto* buttons = new QHBoxLayout;
  for (DialogButton* button : {memory_, ok_, cancel_}) buttons->addWidget(button, 1);
  auto* all = new QVBoxLayout(this);
  all->addWidget(category_);
  all->addStretch(1);
  all->addWidget(new QLabel(ToQt(kInputCaption)));
  all->addWidget(value_);
  all->addWidget(input_);
  all->addWidget(swap_);
  all->addWidget(new QLabel(ToQt(kOutputCaption)));
  all->addWidget(result_);
  all->addWidget(output_);
  edit_->setParent(this);
  all->addItem(new RoomWithButton(edit_));
  all->setStretch(all->count() - 1, 2);
  all->addLayout(buttons);
  setTabOrder(cancel_, edit_);
  ok_->setDefault(true);
}

void CConverterDlg::Connect() {
  connect(category_, &QComboBox::currentIndexChanged, this, &CConverterDlg::OnCategory);
  // To choose the chosen category again counts, too.
  connect(category_, &QComboBox::activated, this, &CConverterDlg::OnCategory);
  connect(input_, &QComboBox::currentIndexChanged, this, [this](int unit) {
    model_.ChooseInput(unit);
    Refresh();
  });
  connect(output_, &QComboBox::currentIndexChanged, this, [this](int unit) {
    model_.ChooseOutput(unit);
    Refresh();
  });
  connect(value_, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_.SetText(text.toStdU16String());
    Refresh();
  });
  OpenDoor(*value_, DoorKind::Number);
  connect(swap_, &QPushButton::clicked, this, [this] {
    model_.Swap();
    Refresh();
  });
  connect(edit_, &QPushButton::clicked, this, &CConverterDlg::OnEdit);
  connect(memory_, &QPushButton::clicked, this, &CConverterDlg::OnMemory);
  connect(ok_, &QPushButton::clicked, this, &CConverterDlg::OnAccept);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void CConverterDlg::Refresh() {
  RefreshChoices();
  RefreshValue();
  result_->Write(ToQt(model_.ShownResult()));
  result_->home(false);
  memory_->setEnabled(model_.Result().has_value());
}

void CConverterDlg::SetTextHeight(int text) {
  Dialog::SetTextHeight(text);
  result_->Fit(text);
}

void CConverterDlg::RefreshChoices() {
  const UnitPositions& chosen = model_.Positions();
  category_->Write(ConverterModel::Categories(), chosen.category);
  input_->Write(model_.Inputs(), chosen.input);
  output_->Write(model_.Outputs(), chosen.output);
  const bool hasUnits = !model_.ListsConversions();
  const QString inputName = ToQt(hasUnits ? kInputUnitName : kConversionName);
  input_->setAccessibleName(inputName);
  input_->setPlaceholderText(inputName);
  output_->setVisible(hasUnits);
  swap_->setEnabled(model_.CanSwap());
}

void CConverterDlg::RefreshValue() {
  // Not the same text again: that would move the caret.
  const QString text = ToQt(model_.Text());
  if (value_->text() != text) value_->setText(text);
  const auto refusal = model_.TextRefusal();
  Wear(*value_, refusal ? Attire::Refused : Attire::Refusable);
  value_->setAccessibleDescription(refusal ? ToQt(*refusal) : QString());
}

void CConverterDlg::OnCategory(int category) {
  if (asks_) return;
  const auto missing = model_.ChooseCategory(category);
  Refresh();
  if (!missing) return;
  asks_ = true;
  // Not in the middle of the choice: it raises both signals, and where a screen reader listens the
  // key that ends it comes a second time.
  QTimer::singleShot(0, this, [this, text = *missing] { AskForConversions(text); });
}

void CConverterDlg::AskForConversions(std::u16string_view missing) {
  ShowStop(this, missing);
  RunUserConversions(this, store_);
  model_.RereadUserConversions();
  asks_ = false;
  Refresh();
}

void CConverterDlg::OnEdit() {
  RunUserConversions(this, store_);
  model_.TakeUserConversions();
  Refresh();
}

void CConverterDlg::OnMemory() {
  if (const auto result = model_.Result()) RunStoreVariable(this, store_, *result);
}

void CConverterDlg::OnAccept() {
  if (AsksFirst(*value_, [this] { OnAccept(); })) return;
  const auto refusal = model_.OkRefusal();
  if (!refusal) return accept();
  ShowStop(this, *refusal);
  value_->setFocus();
}

ConverterOutcome CConverterDlg::Outcome(const ConverterInput& input) const {
  return {result() == Accepted ? model_.Result() : std::nullopt, model_.Positions(), input.memory};
}

}  // namespace

ConverterOutcome RunConverter(QWidget* parent, SettingsStore& store, const ConverterInput& input) {
  CConverterDlg dlg(parent, store, input);
  dlg.RunModal();
  return dlg.Outcome(input);
}

}  // namespace kav
