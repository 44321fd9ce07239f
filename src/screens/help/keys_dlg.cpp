#include "screens/help/keys_dlg.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/widgets/access_view.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kLongestWanted = 100;

/// What the column of the keys takes of the width.
constexpr double kKeyShare = 0.36;

/// "Mac (Alt+A)", or only one of both.
QString KeyText(const KeyListRow& row) {
  if (row.key.empty()) return ToQt(row.shortcut);
  if (row.shortcut.empty()) return ToQt(row.key);
  return ToQt(row.key) + " (" + ToQt(row.shortcut) + ')';
}

/// Leaves a little room above and below the lines of a row.
class RoomyDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) +
           QSize(0, option.fontMetrics.height() / 6 + 2);
  }
};

class CKeysDlg final : public Dialog {
 public:
  CKeysDlg(QWidget* parent, const std::vector<ListedKey>& keys);

 private:
  void LayOut();
  void Refresh();
  void ShareWidth();
  void SetTextHeight(int text) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  std::vector<KeyListRow> rows_;
  QLineEdit* search_ = new QLineEdit;
  QTableWidget* table_ = new QTableWidget;
  DialogButton* close_ = new DialogButton(kCloseCaption);
};

CKeysDlg::CKeysDlg(QWidget* parent, const std::vector<ListedKey>& keys)
    : Dialog(parent, kKeysTitle), rows_(ListOfKeys(keys)) {
  search_->setPlaceholderText(ToQt(kSearchCaption));
  search_->setAccessibleName(ToQt(kSearchCaption));
  search_->setMaxLength(kLongestWanted);
  table_->setAccessibleName(ToQt(kKeysTitle));
  table_->setColumnCount(2);
  table_->setHorizontalHeaderLabels({ToQt(kKeyHeading), ToQt(kWorkHeading)});
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  table_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setMinimumSectionSize(1);
  table_->horizontalHeader()->setSectionsClickable(false);
  table_->horizontalHeader()->setMinimumSectionSize(1);
  table_->setItemDelegate(new RoomyDelegate(table_));
  LetKeyboardFollow(*table_);
  table_->viewport()->installEventFilter(this);
  connect(search_, &QLineEdit::textChanged, this, &CKeysDlg::Refresh);
  connect(close_, &QPushButton::clicked, this, &QDialog::accept);
  LayOut();
  Refresh();
}

void CKeysDlg::LayOut() {
  auto* all = new QVBoxLayout(this);
  all->addWidget(search_);
  all->addWidget(table_, 1);
  all->addWidget(close_);
  close_->setDefault(true);
  search_->setFocus();
}

void CKeysDlg::Refresh() {
  const std::vector<KeyListRow> found = Found(rows_, search_->text().toStdU16String());
  table_->setRowCount(static_cast<int>(found.size()));
  for (int i = 0; const KeyListRow& row : found) {
    table_->setItem(i, 0, new QTableWidgetItem(KeyText(row)));
    table_->setItem(i, 1, new QTableWidgetItem(ToQt(row.text)));
    ++i;
  }
  if (!found.empty()) table_->setCurrentCell(0, 0);
  ShareWidth();
}

void CKeysDlg::ShareWidth() {
  const int width = table_->viewport()->width();
  const int keys = static_cast<int>(width * kKeyShare);
  table_->setColumnWidth(0, keys);
  table_->setColumnWidth(1, width - keys);
  table_->resizeRowsToContents();
}

void CKeysDlg::SetTextHeight(int text) {
  Dialog::SetTextHeight(text);
  // Only between words is a line broken.
  int widest = 0;
  for (const KeyListRow& row : rows_) {
    for (const QString& word : KeyText(row).split(' ')) {
      widest = std::max(widest, table_->fontMetrics().horizontalAdvance(word));
    }
  }
  table_->setMinimumWidth(static_cast<int>((widest + text) / kKeyShare) + 2 * text);
  ShareWidth();
}

bool CKeysDlg::eventFilter(QObject* watched, QEvent* event) {
  const bool isHandled = Dialog::eventFilter(watched, event);
  if (event->type() == QEvent::Resize) ShareWidth();
  return isHandled;
}

}  // namespace

void RunKeys(QWidget* parent, const std::vector<ListedKey>& keys) {
  CKeysDlg(parent, keys).RunModal();
}

}  // namespace kav
