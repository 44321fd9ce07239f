#include "screens/grid/grid_ctrl.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "common/number_text.h"
#include "screens/grid/grid_edit_view.h"
#include "screens/grid/grid_painter_view.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kUsualTextPixels = 12;

/// The angle of one step of a wheel.
constexpr int kWheelStep = 120;

// Scaled widths stay within what the toolkit can count.
constexpr double kSmallestScale = 0.1;
constexpr double kLargestScale = 100;

/// Characters of a text beyond these make its column no wider.
constexpr std::size_t kLongestMeasured = 2000;

/// The pixels of the first `count` lines together; `sizeOf` gives the unscaled size of a line.
template <class Sizes>
int PixelsOf(int count, double scale, const Sizes& sizeOf) {
  int sum = 0;
  for (int i = 0; i < count; ++i) sum += sizeOf(i);
  return qRound(sum * scale);
}

/// Hides the fixed lines and sizes the others so that neighbours meet whatever the scale.
template <class Sizes>
void Arrange(QHeaderView& header, int fixed, double scale, const Sizes& sizeOf) {
  // Otherwise the table would react to each line.
  const QSignalBlocker quiet(header);
  int sum = 0;
  for (int i = 0; i < header.count(); ++i) {
    const int begin = qRound(sum * scale);
    sum += sizeOf(i);
    header.setSectionHidden(i, i < fixed);
    if (i >= fixed) header.resizeSection(i, qRound(sum * scale) - begin);
  }
}

}  // namespace

/// The cells as the toolkit asks for them, fixed ones included: their lines are hidden.
class CGridCtrl::Cells final : public QAbstractTableModel {
 public:
  Cells(QObject* parent, const GridModel& grid) : QAbstractTableModel(parent), grid_(grid) {}

  void Reload() {
    beginResetModel();
    endResetModel();
  }
  int rowCount(const QModelIndex&) const override { return grid_.RowCount(); }
  int columnCount(const QModelIndex&) const override { return grid_.ColumnCount(); }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    return ToQt(grid_.GetItemText(index.row(), index.column()));
  }

 private:
  const GridModel& grid_;
};

class CGridCtrl::Painter final : public QAbstractItemDelegate {
 public:
  explicit Painter(CGridCtrl& grid) : QAbstractItemDelegate(&grid), grid_(grid) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    painter->setFont(grid_.font());
    PaintCell(*painter, option.rect, {index.row(), index.column()}, grid_.Look());
  }
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return {}; }

 private:
  CGridCtrl& grid_;
};

CGridCtrl::CGridCtrl(QWidget* parent, std::pmr::memory_resource* memory)
    : QTableView(parent),
      model_(memory),
      cells_(new Cells(this, model_)),
      headers_{horizontalHeader()->viewport(), verticalHeader()->viewport(),
               findChild<QAbstractButton*>({}, Qt::FindDirectChildrenOnly)},
      edit_(new GridEdit(viewport())) {
  setLayoutDirection(Qt::LeftToRight);
  setFrameShape(QFrame::NoFrame);
  setPalette(ScreenPalette());
  setAttribute(Qt::WA_InputMethodEnabled, false);
  for (QWidget* part : {static_cast<QWidget*>(this), viewport()}) part->setMouseTracking(true);
  setShowGrid(false);
  setAutoScroll(false);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerPixel);
  viewport()->setBackgroundRole(QPalette::Window);
  for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
    header->setMinimumSectionSize(0);
    header->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  headers_[2]->setAttribute(Qt::WA_TransparentForMouseEvents);
  for (QWidget* part : headers_) part->installEventFilter(this);
  for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
    bar->setStyle(ScreenStyle());
    bar->setCursor(Qt::ArrowCursor);
  }
  edit_->installEventFilter(this);
  setItemDelegate(new Painter(*this));
  QTableView::setModel(cells_);
  SetScale(1, kUsualTextPixels);
}

CGridCtrl::~CGridCtrl() {
  // The box loses the focus when it goes, which must end no edit any more.
  edit_->removeEventFilter(this);
}

bool CGridCtrl::SetRowCount(int count) {
  return count == model_.RowCount() || Reshape(&GridModel::SetRowCount, count);
}

bool CGridCtrl::SetColumnCount(int count) {
  return count == model_.ColumnCount() || Reshape(&GridModel::SetColumnCount, count);
}

bool CGridCtrl::SetFixedRowCount(int count) {
  return count == model_.FixedRowCount() || Reshape(&GridModel::SetFixedRowCount, count);
}

bool CGridCtrl::SetFixedColumnCount(int count) {
  return count == model_.FixedColumnCount() || Reshape(&GridModel::SetFixedColumnCount, count);
}

bool CGridCtrl::Reshape(bool (GridModel::*set)(int), int count) {
  GiveUpEdit();
  EndDrag();
  if (!(model_.*set)(count)) return false;
  const GridCell focus = Focus();
  const GridCell end = SelectionEnd();
  const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  cells_->Reload();
  ArrangeLines();
  horizontalScrollBar()->setValue(scrolled.x());
  verticalScrollBar()->setValue(scrolled.y());
  if (!focus.IsNone()) Mark(focus, end);
  return true;
}

void CGridCtrl::SetSource(GridSource source) {
  GiveUpEdit();
  model_.SetSource(std::move(source));
  Repaint();
}

bool CGridCtrl::SetItem(const GridItem& item) {
  if (!model_.SetItem(item)) return false;
  Repaint();
  return true;
}

bool CGridCtrl::SetColumnWidth(int column, int width) {
  const int old = model_.GetColumnWidth(column);
  if (!model_.SetColumnWidth(column, width)) return false;
  if (model_.GetColumnWidth(column) != old) ArrangeLines();
  return true;
}

void CGridCtrl::AutoSizeColumns() {
  for (int column = 0; column < model_.ColumnCount(); ++column) {
    model_.SetColumnWidth(column, FittingWidth(column));
  }
  ArrangeLines();
}

int CGridCtrl::FittingWidth(int column) const {
  const QFontMetricsF metrics(font());
  double widest = 0;
  for (int row = 0; row < model_.RowCount(); ++row) {
    const std::u16string text = Shortened(model_.GetItemText(row, column), kLongestMeasured);
    widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdU16String(text)));
  }
  // The line at the edge takes room too. Rounded up, so that the end of the text is not cut off.
  const double pixels =
      std::ceil(widest + 2 * TextMargin(font().pixelSize()) + std::max(1.0, scale_ / 2));
  return static_cast<int>(std::ceil(pixels / scale_));
}

void CGridCtrl::SetScale(double scale, int textPixels) {
  scale_ = std::clamp(scale, kSmallestScale, kLargestScale);
  setFont(ScreenFont(textPixels));
  edit_->setFont(font());
  for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
    bar->setFont(font());
    bar->updateGeometry();
    bar->setSingleStep(std::max(1, qRound(GridModel::kDefaultHeight * scale_)));
  }
  ArrangeLines();
}

void CGridCtrl::ArrangeLines() {
  const auto width = [this](int column) { return model_.GetColumnWidth(column); };
  const auto height = [this](int row) { return model_.GetRowHeight(row); };
  const int columns = model_.FixedColumnCount();
  const int rows = model_.FixedRowCount();
  Arrange(*horizontalHeader(), columns, scale_, width);
  Arrange(*verticalHeader(), rows, scale_, height);
  verticalHeader()->setFixedWidth(PixelsOf(columns, scale_, width));
  horizontalHeader()->setFixedHeight(PixelsOf(rows, scale_, height));
  updateGeometries();
  Repaint();
}

void CGridCtrl::updateGeometries() {
  QTableView::updateGeometries();
  PlaceEdit();
}

void CGridCtrl::scrollContentsBy(int dx, int dy) {
  FinishEdit();
  QTableView::scrollContentsBy(dx, dy);
}

// Places.

int CGridCtrl::Left(int column) const {
  return PixelsOf(column, scale_, [this](int i) { return model_.GetColumnWidth(i); });
}

int CGridCtrl::Top(int row) const {
  return PixelsOf(row, scale_, [this](int i) { return model_.GetRowHeight(i); });
}

QRect CGridCtrl::CellArea(GridCell cell) const {
  if (!model_.IsThere(cell)) return {};
  const int left = Left(cell.column);
  const int top = Top(cell.row);
  const QRect area(left, top, Left(cell.column + 1) - left, Top(cell.row + 1) - top);
  return area.translated(
      cell.column < model_.FixedColumnCount() ? 0 : -horizontalScrollBar()->value(),
      cell.row < model_.FixedRowCount() ? 0 : -verticalScrollBar()->value());
}

GridCell CGridCtrl::CellAt(QPoint place) const {
  const GridCell cell{RowAt(place.y()), ColumnAt(place.x())};
  return !Whole().contains(place) || cell.row < 0 || cell.column < 0 ? GridCell{} : cell;
}

int CGridCtrl::ColumnAt(int x) const {
  if (x >= Room().left()) return columnAt(x - Room().left());
  for (int column = 0; x >= 0 && column < model_.FixedColumnCount(); ++column) {
    if (x < Left(column + 1)) return column;
  }
  return -1;
}

int CGridCtrl::RowAt(int y) const {
  if (y >= Room().top()) return rowAt(y - Room().top());
  for (int row = 0; y >= 0 && row < model_.FixedRowCount(); ++row) {
    if (y < Top(row + 1)) return row;
  }
  return -1;
}

int CGridCtrl::FirstRow() const {
  const int row = rowAt(0);
  return row < 0 ? model_.RowCount() : row;
}

bool CGridCtrl::IsInView(GridCell cell) const {
  QRect area = Whole();
  if (cell.row >= model_.FixedRowCount()) area.setTop(Room().top());
  if (cell.column >= model_.FixedColumnCount()) area.setLeft(Room().left());
  return area.intersects(CellArea(cell));
}

// The wheel.

void CGridCtrl::wheelEvent(QWheelEvent* event) {
  const bool isBeside = !Whole().contains(event->position().toPoint());
  if (isBeside || !ScrollByWheel(event->angleDelta())) event->ignore();
}

bool CGridCtrl::ScrollByWheel(QPoint turned) {
  const bool isSideways = std::abs(turned.x()) > std::abs(turned.y());
  QScrollBar& bar = isSideways ? *horizontalScrollBar() : *verticalScrollBar();
  if (bar.minimum() == bar.maximum()) return false;
  const int angle = isSideways ? turned.x() : turned.y();
  // A part of a line that was turned the other way does not count.
  if ((wheel_ < 0 && angle > 0) || (wheel_ > 0 && angle < 0)) wheel_ = 0;
  const int most = kWheelStep * GridModel::kMostRows;
  wheel_ += std::clamp(angle, -most, most) * std::clamp(QApplication::wheelScrollLines(), 0, 100);
  const int lines = wheel_ / kWheelStep;
  wheel_ -= lines * kWheelStep;
  if (isSideways) {
    bar.setValue(bar.value() - lines * bar.singleStep());
    return true;
  }
  const int row = std::clamp(FirstRow() - lines, model_.FixedRowCount(), model_.RowCount());
  if (lines != 0) bar.setValue(Top(row) - Top(model_.FixedRowCount()));
  return true;
}

// The look.

GridLook CGridCtrl::Look() const {
  return {model_, Selection(), Focus(), palette(), scale_, hasFocus() || editing_};
}

void CGridCtrl::Repaint() {
  viewport()->update();
  for (QWidget* part : headers_) part->update();
}

/// `part` shows the headers of columns, those of rows, or the corner between them.
void CGridCtrl::PaintHeaders(QWidget& part) const {
  const QRect shown = part.rect().translated(part.mapTo(this, QPoint(0, 0)));
  QPainter painter(&part);
  painter.setFont(font());
  painter.translate(-shown.topLeft());
  painter.fillRect(shown, palette().color(QPalette::Window));
  const GridCell first = CellAt(shown.topLeft());
  if (first.IsNone()) return;
  const auto orLast = [](int line, int count) { return line < 0 ? count - 1 : line; };
  const int bottom = orLast(RowAt(shown.bottom()), model_.RowCount());
  const int right = orLast(ColumnAt(shown.right()), model_.ColumnCount());
  const GridLook look = Look();
  for (int row = first.row; row <= bottom; ++row) {
    for (int column = first.column; column <= right; ++column) {
      PaintCell(painter, CellArea({row, column}), {row, column}, look);
    }
  }
}

bool CGridCtrl::eventFilter(QObject* part, QEvent* event) {
  if (part == edit_ && FilterEdit(*event)) return true;
  const auto header = std::find(headers_.begin(), headers_.end(), part);
  if (event->type() != QEvent::Paint || header == headers_.end()) {
    return QTableView::eventFilter(part, event);
  }
  PaintHeaders(**header);
  return true;
}

}  // namespace kav
