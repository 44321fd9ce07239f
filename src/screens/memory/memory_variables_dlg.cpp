#include "screens/memory/memory_variables_dlg.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "memory/memory_texts.h"
#include "memory/memory_variables_model.h"
#include "screens/widgets/access_view.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/fitting_number.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// A number that is too long for the list keeps its exponent.
class LineDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 private:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QWidget& list = *option->widget;
    const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, option, &list) + 1;
    const int room = option->rect.width() - 2 * margin;
    // Before the list lays it out, a line has no width.
    if (room > 0) option->text = FittingNumber(option->text, option->fontMetrics, room);
  }
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }
};

/// When the list gets the focus, its first line is current, but not selected. The first key that
/// moves selects the current line, so that the first can be reached like all others.
class VariableList final : public QListWidget {
 public:
  using QListWidget::QListWidget;

  /// There is room for any number, so that letters keep their size when another one is stored.
  QSize minimumSizeHint() const override {
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const int line = fontMetrics().horizontalAdvance(ToQt(kLongestVariableLine)) + 2 * margin;
    const int around = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    const int height = QListWidget::minimumSizeHint().height();
    return {line + around, std::max(height, LeastHeightOfList(*this))};
  }

 private:
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    const bool moves = key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home;
    if (moves && selectedItems().isEmpty() && currentItem() != nullptr) {
      setCurrentItem(currentItem(), QItemSelectionModel::ClearAndSelect);
    } else {
      QListWidget::keyPressEvent(event);
    }
  }
};

class CMemoryVariablesDlg final : public Dialog {
 public:
  CMemoryVariablesDlg(QWidget* parent, VariablesMode mode, SettingsStore& store);

  /// What was recalled; nullopt if nothing was.
  std::optional<std::u16string> Recalled() && { return std::move(recalled_); }

 private:
  void Connect();
  void LayOut();
  void Refresh();
  void OnSelect();
  void OnAction();
  void OnClear();
  void OnClearAll();

  MemoryVariablesModel model_;
  std::optional<std::u16string> recalled_;
  VariableList* list_ = new VariableList;
  DialogButton* action_;
  DialogButton* clear_ = new DialogButton(kClearCaption, kClearHelp);
  DialogButton* clearAll_ = new DialogButton(kClearAllCaption, kClearAllHelp);
  DialogButton* close_ = new DialogButton(kCloseCaption);
};

CMemoryVariablesDlg::CMemoryVariablesDlg(QWidget* parent, VariablesMode mode, SettingsStore& store)
    : Dialog(parent, kVariablesTitle),
      model_(std::move(mode), store),
      action_(new DialogButton(model_.ActionCaption(), model_.ActionHelp())) {
  SetPage(GuidePage::Memory);
  list_->setAccessibleName(ToQt(kVariableListName));
  LetKeyboardFollow(*list_);
  list_->setItemDelegate(new LineDelegate(list_));
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (int i = 0; i < MemoryVariables::kCount; ++i) list_->addItem(QString());
  LayOut();
  Connect();
  Refresh();
}

void CMemoryVariablesDlg::LayOut() {
  auto* buttons = new QGridLayout;
  buttons->addWidget(clearAll_, 0, 0);
  buttons->addWidget(clear_, 0, 1);
  buttons->addWidget(action_, 1, 0);
  buttons->addWidget(close_, 1, 1);
  auto* all = new QVBoxLayout(this);
  all->addWidget(list_, 1);
  all->addLayout(buttons);
  action_->setDefault(true);
}

void CMemoryVariablesDlg::Connect() {
  connect(list_, &QListWidget::itemSelectionChanged, this, &CMemoryVariablesDlg::OnSelect);
  connect(list_, &QListWidget::itemDoubleClicked, this, &CMemoryVariablesDlg::OnAction);
  connect(action_, &QPushButton::clicked, this, &CMemoryVariablesDlg::OnAction);
  connect(clear_, &QPushButton::clicked, this, &CMemoryVariablesDlg::OnClear);
  connect(clearAll_, &QPushButton::clicked, this, &CMemoryVariablesDlg::OnClearAll);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
}

void CMemoryVariablesDlg::Refresh() {
  int row = 0;
  for (const std::u16string& line : model_.Lines()) list_->item(row++)->setText(OneLine(line));
}

void CMemoryVariablesDlg::OnSelect() {
  const auto selected = list_->selectionModel()->selectedRows();
  model_.Select(selected.isEmpty() ? std::nullopt : std::optional(selected.front().row()));
}

void CMemoryVariablesDlg::OnAction() {
  VariableOutcome outcome = model_.Act();
  if (const auto* missing = std::get_if<VariableMissing>(&outcome)) {
    ShowStop(this, missing->text);
  } else if (auto* recalled = std::get_if<VariableRecalled>(&outcome)) {
    recalled_ = std::move(recalled->value);
    accept();
  }
  Refresh();
}

void CMemoryVariablesDlg::OnClear() {
  const auto question = model_.ClearQuestion();
  if (!question || !AskYesNo(this, *question)) return;
  model_.Clear();
  Refresh();
}

void CMemoryVariablesDlg::OnClearAll() {
  if (!AskYesNo(this, model_.ClearAllQuestion())) return;
  model_.ClearAll();
  Refresh();
}

}  // namespace

void RunStoreVariable(QWidget* parent, SettingsStore& store, const std::u16string& value) {
  CMemoryVariablesDlg(parent, StoreMode{value}, store).RunModal();
}

std::optional<std::u16string> RunRecallVariable(QWidget* parent, SettingsStore& store) {
  CMemoryVariablesDlg dlg(parent, RecallMode{}, store);
  dlg.RunModal();
  return std::move(dlg).Recalled();
}

}  // namespace kav
