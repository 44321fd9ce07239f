#include "screens/memory/constants_view.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "memory/memory_texts.h"
#include "screens/widgets/access_view.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kName = 0;
constexpr int kValue = 1;
constexpr double kValueShare = 0.44;  // of the width

constexpr std::ptrdiff_t kAllRows = std::numeric_limits<std::ptrdiff_t>::max();

/// `number` in one or two lines of `room` pixels each, its exponent in one of them. A number that
/// is too long loses digits in its middle, and so keeps the exponent.
QString InTwoLines(const QString& number, const QFontMetrics& metrics, int room) {
  // What the first line may leave free because the next character, at most as wide as an ellipsis,
  // does not fit.
  const int slack = metrics.horizontalAdvance(QStringLiteral(u"\u20260"));
  QString text = metrics.elidedText(number, Qt::ElideMiddle, 2 * room - slack);
  auto fits = static_cast<int>(text.size());
  while (fits > 1 && metrics.horizontalAdvance(text, fits) > room) --fits;
  if (fits == text.size()) return text;
  const qsizetype exponent = text.indexOf(u'e');
  return text.insert(exponent > 0 && exponent < fits ? exponent : fits, QChar::LineSeparator);
}

/// Every row has room for a name and a value in two lines.
class CellDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    const int gap = option.fontMetrics.height() / 4;
    return {0, option.fontMetrics.size(0, "X\nX").height() + gap};
  }

 private:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() == kName) return;
    const QStyle& style = *option->widget->style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, option, option->widget) + 1;
    option->text = InTwoLines(option->text, option->fontMetrics, option->rect.width() - 2 * margin);
  }
};

}  // namespace

/// The model as item views read it.
class ConstantsView::TableModel final : public QAbstractTableModel {
 public:
  TableModel(QObject* parent, const ConstantsModel& model)
      : QAbstractTableModel(parent), model_(model) {}

  void Reload() {
    beginResetModel();
    endResetModel();
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(model_.ShownCount());
  }

  int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 2; }

  QVariant data(const QModelIndex& index, int role) const override {
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || row >= model_.ShownCount()) return {};
    const Constant& constant = model_.Shown(row);
    return OneLine(index.column() == kName ? constant.name : constant.value);
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return ToQt(section == kName ? kNameColumn : kValueColumn);
  }

 private:
  const ConstantsModel& model_;
};

ConstantsView::ConstantsView(ConstantsModel& model, std::function<void()> onSelect)
    : model_(model), onSelect_(std::move(onSelect)), table_(new TableModel(this, model)) {
  setAccessibleName(ToQt(kConstantsTitle));
  setModel(table_);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setItemDelegate(new CellDelegate(this));
  setWordWrap(true);
  setAlternatingRowColors(true);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header()->setSectionsMovable(false);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(kName, QHeaderView::Stretch);
  header()->setSectionResizeMode(kValue, QHeaderView::Fixed);
  header()->setMinimumSectionSize(1);
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &ConstantsView::OnSelection);
  LetKeyboardFollow(*this);
}

void ConstantsView::Reload() {
  table_->Reload();
  ShowSelection();
}

bool ConstantsView::TakeKey(int key) {
  const std::pair<int, std::ptrdiff_t> moves[] = {
      {Qt::Key_Up, -1},
      {Qt::Key_Down, 1},
      {Qt::Key_PageUp, -RowsOnAPage()},
      {Qt::Key_PageDown, RowsOnAPage()},
  };
  for (const auto& [moving, rows] : moves) {
    if (key != moving) continue;
    model_.Move(rows);
    ShowSelection();
    return true;
  }
  return false;
}

void ConstantsView::keyPressEvent(QKeyEvent* event) {
  if (TakeKey(event->key())) return;
  if (event->key() != Qt::Key_Home && event->key() != Qt::Key_End) {
    return QTreeView::keyPressEvent(event);
  }
  model_.Move(event->key() == Qt::Key_Home ? -kAllRows : kAllRows);
  if (!model_.SelectedRow()) return;
  ShowSelection();
}

void ConstantsView::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  header()->resizeSection(kValue, qRound(viewport()->width() * kValueShare));
}

void ConstantsView::OnSelection() {
  const QModelIndexList rows = selectionModel()->selectedRows();
  model_.Select(rows.isEmpty() ? std::nullopt
                               : std::optional(static_cast<std::size_t>(rows.front().row())));
  onSelect_();
}

void ConstantsView::ShowSelection() {
  const auto row = model_.SelectedRow();
  setCurrentIndex(row ? table_->index(static_cast<int>(*row), kName) : QModelIndex());
  if (row) scrollTo(currentIndex());
}

int ConstantsView::RowsOnAPage() const {
  return std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)) - 1);
}

}  // namespace kav
