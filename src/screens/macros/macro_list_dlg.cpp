#include "screens/macros/macro_list_dlg.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "common/number_text.h"
#include "macros/macro_list_model.h"
#include "macros/macros_texts.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/formula_view.h"
#include "screens/widgets/label_list.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

// Enough for the longest formula.
constexpr int kListedFormulaLines = 6;

class CMacroListDlg final : public Dialog {
 public:
  CMacroListDlg(QWidget* parent, SettingsStore& store);

  std::optional<int> Selected() const { return model_.Selected(); }

 private:
  void LayOut();
  void Connect();
  void Refresh();
  void OnSelect();
  void SetTextHeight(int text) override;
  void FitFormula();

  MacroListModel model_;
  LabelList* list_ = new LabelList(kMacroListName);
  FormulaView* formula_ = new FormulaView(kListedFormulaLines);
  DialogButton* ok_ = new DialogButton(kOkCaption);
  DialogButton* cancel_ = new DialogButton(kCancelCaption);
};

CMacroListDlg::CMacroListDlg(QWidget* parent, SettingsStore& store)
    : Dialog(parent, kMacroListTitle), model_(store) {
  SetPage(GuidePage::Macros);
  formula_->setReadOnly(true);
  formula_->setFocusPolicy(Qt::NoFocus);
  formula_->setFrameShape(QFrame::NoFrame);
  formula_->viewport()->setAutoFillBackground(false);
  formula_->setAccessibleName(ToQt(kFormulaName));
  LayOut();
  Connect();
  Refresh();
}

void CMacroListDlg::LayOut() {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(ok_);
  buttons->addWidget(cancel_);
  auto* all = new QVBoxLayout(this);
  all->addWidget(list_, 1);
  all->addWidget(formula_);
  all->addLayout(buttons);
  ok_->setDefault(true);
}

void CMacroListDlg::Connect() {
  connect(list_, &QListWidget::itemSelectionChanged, this, &CMacroListDlg::OnSelect);
  connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void CMacroListDlg::Refresh() {
  list_->Write(model_.Labels(), model_.Selected());
  const Macro* macro = model_.SelectedEntry();
  formula_->setPlainText(OneLine(macro != nullptr ? Widen(macro->formula) : std::u16string()));
  ok_->setEnabled(macro != nullptr);
  FitFormula();
}

void CMacroListDlg::SetTextHeight(int text) {
  Dialog::SetTextHeight(text);
  formula_->setFont(font());
  // The height is that of lines in full-size letters, even if the formula is shown in smaller ones.
  formula_->KeepHeight();
  FitFormula();
}

void CMacroListDlg::FitFormula() {
  // It cannot be scrolled. In a wide typeface, a long formula has room only in smaller letters.
  const int most = font().pixelSize();
  for (int text = most; text >= most / 2; text -= std::max(text / 8, 1)) {
    formula_->setFont(ScreenFont(text));
    if (formula_->verticalScrollBar()->maximum() == 0) return;
  }
}

void CMacroListDlg::OnSelect() {
  model_.Select(list_->Selected());
  Refresh();
}

}  // namespace

std::optional<int> RunMacroList(QWidget* parent, SettingsStore& store) {
  CMacroListDlg dlg(parent, store);
  return dlg.RunModal() ? dlg.Selected() : std::nullopt;
}

}  // namespace kav
