#include "screens/display/display_settings_dlg.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTabBar>
#include <initializer_list>

#include "display/display_settings_texts.h"
#include "screens/display/display_type_view.h"
#include "screens/display/look_view.h"
#include "screens/display/matrix_defaults_view.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/fitting_text.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// `widget`, whose room stays free while it is hidden, so that nothing else moves.
template <class Widget>
Widget* RetainingSize(Widget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

class CDisplaySettingsDlg final : public Dialog {
 public:
  CDisplaySettingsDlg(QWidget* parent, SettingsStore& store, DisplayPage first);

 private:
  QWidget* NewGroup();
  QLayout* NewBottomRow();
  void Connect();
  void Refresh();
  void OnPage(int page);
  void OnAccept();
  void ShowRefusal(const Refusal<DisplayField>& refusal);
  void SetTextHeight(int text) override;

  SettingsStore& store_;
  DisplaySettingsModel model_;
  QGroupBox* group_ = new QGroupBox;
  DisplayTypeView* types_ = new DisplayTypeView;
  QLineEdit* precision_ = new QLineEdit;
  QLabel* meaning_ = RetainingSize(new QLabel(ToQt(kRecommendedMeaning)));
  FittingText<QLabel>* example_ = new FittingText<QLabel>(0);
  MatrixDefaultsView* matrixParts_ = RetainingSize(new MatrixDefaultsView(model_));
  LookView* look_ = new LookView(model_);
  QTabBar* pages_ = new QTabBar;
  DialogButton* accept_ = new DialogButton(kOkCaption);
  DialogButton* cancel_ = new DialogButton(kCancelCaption);
};

CDisplaySettingsDlg::CDisplaySettingsDlg(QWidget* parent, SettingsStore& store, DisplayPage first)
    : Dialog(parent, kDisplaySettingsTitle), store_(store), model_(store, first) {
  SetPage(GuidePage::Settings);
  auto* all = new QVBoxLayout(this);
  all->addWidget(NewGroup());
  // In one place, of which each page shows its own.
  auto* own = new QGridLayout;
  own->addWidget(matrixParts_, 0, 0);
  own->addWidget(look_, 0, 0);
  all->addLayout(own);
  all->addStretch(1);
  all->addLayout(NewBottomRow());
  Connect();
  Refresh();
  types_->Buttons().checkedButton()->setFocus();
}

QWidget* CDisplaySettingsDlg::NewGroup() {
  precision_->setAccessibleName(ToQt(kPrecisionCaption));
  example_->setAccessibleName(ToQt(kExampleCaption));
  example_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* parts = new QGridLayout(group_);
  // The margins of the dialog suffice, and only they grow with it.
  parts->setContentsMargins(0, 0, 0, 0);
  parts->addWidget(types_, 0, 0, 1, 3);
  parts->addWidget(new QLabel(ToQt(kPrecisionCaption)), 1, 0);
  parts->addWidget(precision_, 1, 1);
  parts->addWidget(meaning_, 1, 2);
  parts->addWidget(new QLabel(ToQt(kExampleCaption)), 2, 0, Qt::AlignTop);
  parts->addWidget(example_, 2, 1, 1, 2);
  return group_;
}

QLayout* CDisplaySettingsDlg::NewBottomRow() {
  pages_->setAccessibleName(ToQt(kPagesName));
  pages_->setShape(QTabBar::RoundedSouth);
  pages_->setExpanding(false);
  // Both tabs must be visible. Without scroll arrows, they get the room for that.
  pages_->setUsesScrollButtons(false);
  pages_->setElideMode(Qt::ElideNone);
  pages_->setDrawBase(false);
  for (const auto page : {kNormalPage, kMatrixPage}) pages_->addTab(ToQt(page));
  accept_->setDefault(true);
  auto* parts = new QHBoxLayout;
  parts->addWidget(pages_);
  parts->addStretch(1);
  parts->addWidget(accept_);
  parts->addWidget(cancel_);
  return parts;
}

void CDisplaySettingsDlg::Connect() {
  connect(&types_->Buttons(), &QButtonGroup::idToggled, this, [this](int type, bool isOn) {
    if (!isOn) return;
    model_.ChooseType(static_cast<DisplayType>(type));
    Refresh();
  });
  connect(precision_, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_.TypePrecision(text.toStdU16String());
    Refresh();
  });
  for (QLineEdit* box : {precision_, &matrixParts_->ColumnWidth()}) {
    OpenDoor(*box, DoorKind::Number);
  }
  connect(pages_, &QTabBar::currentChanged, this, &CDisplaySettingsDlg::OnPage);
  connect(accept_, &QPushButton::clicked, this, &CDisplaySettingsDlg::OnAccept);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void CDisplaySettingsDlg::Refresh() {
  const QSignalBlocker noTap(pages_);
  pages_->setCurrentIndex(static_cast<int>(model_.Page()));
  group_->setTitle(ToQt(model_.GroupCaption()));
  types_->Show(model_.Type());
  // Not the same text again: that would move the caret.
  const QString precision = ToQt(model_.Precision());
  if (precision_->text() != precision) precision_->setText(precision);
  precision_->setEnabled(model_.TakesPrecision());
  example_->Write(ToQt(model_.Example()));
  matrixParts_->Refresh();
  look_->Refresh();
  look_->setVisible(model_.ShowsLook());
  for (QWidget* part :
       std::initializer_list<QWidget*>{matrixParts_, &types_->RecommendedMark(), meaning_}) {
    part->setVisible(model_.ShowsMatrixParts());
  }
}

void CDisplaySettingsDlg::SetTextHeight(int text) {
  Dialog::SetTextHeight(text);
  example_->Fit(text);
}

void CDisplaySettingsDlg::OnPage(int page) {
  const auto refusal = model_.TurnTo(static_cast<DisplayPage>(page));
  Refresh();
  if (refusal) ShowRefusal(*refusal);
}

void CDisplaySettingsDlg::OnAccept() {
  if (AsksFirst(*this, [this] { OnAccept(); })) return;
  const auto refusal = model_.Accept(store_);
  if (refusal) {
    Refresh();
    return ShowRefusal(*refusal);
  }
  UseColours(model_.Look().colours);
  accept();
}

void CDisplaySettingsDlg::ShowRefusal(const Refusal<DisplayField>& refusal) {
  ShowStop(this, refusal.text);
  QLineEdit* box =
      refusal.focus == DisplayField::Precision ? precision_ : &matrixParts_->ColumnWidth();
  box->setFocus();
  box->selectAll();
}

}  // namespace

bool RunDisplaySettings(QWidget* parent, SettingsStore& store, DisplayPage first) {
  return CDisplaySettingsDlg(parent, store, first).RunModal();
}

}  // namespace kav
