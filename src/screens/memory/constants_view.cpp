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
#include "screens/widgets/fitting_number.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kName = 0;
constexpr int kValue = 1;
constexpr double kMostForValues = 0.52;  // of the width

/// To measure the rows of a table of megabytes takes seconds.
constexpr std::size_t kMostMeasured = 5000;

constexpr std::ptrdiff_t kAllRows = std::numeric_limits<std::ptrdiff_t>::max();

/// `text` with a line break in each word that is wider than `room` pixels.
QString WithWordsBroken(QString text, const QFontMetrics& metrics, int room) {
  qsizetype word = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u' ' || text[i] == u'-') word = i + 1;
    if (i <= word || metrics.horizontalAdvance(text.mid(word, i + 1 - word)) <= room) continue;
    text.insert(i, QChar::LineSeparator);
    word = i + 1;
  }
  return text;
}

/// A row is as high as its name needs. Values stand on one line, long ones in smaller letters.
class CellDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QFontMetrics& metrics = option.fontMetrics;
    const int gap = metrics.height() / 4;
    if (index.column() != kName) return {0, metrics.height() + gap};
    const bool isOfMany = static_cast<const QTreeView&>(*option.widget).uniformRowHeights();
    if (isOfMany) return {0, metrics.size(0, "X\nX").height() + gap};
    const int room = RoomIn(option, index);
    const QString name = WithWordsBroken(index.data().toString(), metrics, room);
    const QRect lines(0, 0, room, kMostLines * metrics.lineSpacing());
    return {0,
            metrics.boundingRect(lines, Qt::TextWordWrap, name).intersected(lines).height() + gap};
  }

 private:
  static constexpr int kMostLines = 6;  // the user's own table may have names of any length

  static int RoomIn(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const auto& list = static_cast<const QTreeView&>(*option.widget);
    const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, &list) + 1;
    return list.columnWidth(index.column()) - 2 * margin;
  }

  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const int room = RoomIn(*option, index);
    if (index.column() == kName) {
      option->text = WithWordsBroken(option->text, option->fontMetrics, room);
      return;
    }
    const int most = option->font.pixelSize();
    option->font.setPixelSize(FittingPixels({{option->text, room}}, most, most / 2));
    option->fontMetrics = QFontMetrics(option->font);
    option->text = FittingNumber(option->text, option->fontMetrics, room);
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
  QStringList values;
  for (std::size_t row = 0; row < std::min(model.ShownCount(), kMostMeasured); ++row) {
    values.append(OneLine(model.Shown(row).value));
  }
  longValues_ = LongOnes(values);
  setModel(table_);
  setRootIsDecorated(false);
  setUniformRowHeights(model.ShownCount() > kMostMeasured);
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

QSize ConstantsView::minimumSizeHint() const {
  constexpr int kFewestLines = 4;  // of two rows or more: long names take two lines
  const int lines = LeastHeightOfList(*this, kFewestLines);
  const int heading = lines > 0 ? header()->sizeHint().height() : 0;
  return QTreeView::minimumSizeHint().expandedTo({0, lines + heading});
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
  LayOutColumns();
}

void ConstantsView::changeEvent(QEvent* event) {
  QTreeView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  widestValue_ = 0;
  for (const QString& value : longValues_) {
    widestValue_ = std::max(widestValue_, fontMetrics().horizontalAdvance(value));
  }
  LayOutColumns();
}

/// Names have what values leave, but almost half of the width.
void ConstantsView::LayOutColumns() {
  const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
  const int needed = std::max(widestValue_ + 2 * margin, header()->sectionSizeHint(kValue));
  const int most = qRound(viewport()->width() * kMostForValues);
  header()->resizeSection(kValue, std::min(needed, most));
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
  const QModelIndex first = indexAt({0, 0});
  const QModelIndex last = indexAt({0, viewport()->height() - 1});
  const int rows = last.isValid() ? last.row() - first.row() : table_->rowCount({});
  return std::max(1, rows - 1);
}

}  // namespace kav
