#include "screens/grid/grid_table_view.h"

#include <QAbstractButton>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "common/number_text.h"
#include "screens/grid/grid_painter_view.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"

namespace kav {
namespace {

constexpr int kUsualTextPixels = 12;

// Scaled widths stay within what the toolkit can count.
constexpr double kSmallestScale = 0.1;
constexpr double kLargestScale = 100;

/// Characters of a text beyond these make its column no wider.
constexpr std::size_t kLongestMeasured = 2000;

/// Hides the fixed lines and sizes the others; `edge` gives the place before a line.
template <class Edges>
void Arrange(QHeaderView& header, int fixed, const Edges& edge) {
  // Otherwise the table would react to each line.
  const QSignalBlocker quiet(header);
  for (int i = 0; i < header.count(); ++i) {
    header.setSectionHidden(i, i < fixed);
    // Neighbours meet whatever the scale.
    if (i >= fixed) header.resizeSection(i, edge(i + 1) - edge(i));
  }
}

}  // namespace

/// The shape as the toolkit asks for it; the table paints the cells itself. The lines of fixed
/// cells are there, too, but hidden.
class GridTable::Shape final : public QAbstractTableModel {
 public:
  Shape(QObject* parent, const GridModel& grid) : QAbstractTableModel(parent), grid_(grid) {}

  void Reload() {
    beginResetModel();
    endResetModel();
  }
  int rowCount(const QModelIndex&) const override { return grid_.RowCount(); }
  int columnCount(const QModelIndex&) const override { return grid_.ColumnCount(); }
  QVariant data(const QModelIndex&, int) const override { return {}; }

 private:
  const GridModel& grid_;
};

GridTable::GridTable(QWidget* parent, std::pmr::memory_resource* memory)
    : QTableView(parent),
      model_(memory),
      shape_(new Shape(this, model_)),
      corner_(new QWidget(this)),
      headers_{horizontalHeader()->viewport(), verticalHeader()->viewport(),
               findChild<QAbstractButton*>({}, Qt::FindDirectChildrenOnly)} {
  setLayoutDirection(Qt::LeftToRight);
  setFrameShape(QFrame::NoFrame);
  Wear(*this, Attire::Window);
  setAttribute(Qt::WA_InputMethodEnabled, false);
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
  corner_->setAutoFillBackground(true);
  corner_->hide();
  QTableView::setModel(shape_);
  TakeLetters(kUsualTextPixels);
  PlaceLines();
  GridTable::updateGeometries();
}

// The cells.

void GridTable::SetSource(GridSource source) {
  Interrupt();
  model_.SetSource(std::move(source));
  Repaint();
}

bool GridTable::SetItem(const GridItem& item) {
  if (!model_.SetItem(item)) return false;
  Repaint();
  return true;
}

bool GridTable::Reshape(bool (GridModel::*set)(int), int old, int count) {
  if (count == old) return true;
  Interrupt();
  if (!(model_.*set)(count)) return false;
  const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  shape_->Reload();
  ArrangeLines();
  horizontalScrollBar()->setValue(scrolled.x());
  verticalScrollBar()->setValue(scrolled.y());
  if (!Focus().IsNone()) Mark(SelectionOf(model_, Focus(), SelectionEnd()));
  return true;
}

void GridTable::Mark(const GridSelection& selection) {
  selection_ = selection;
  Repaint();
}

void GridTable::Tell(QAccessible::Event type, GridCell cell) {
  if (!QAccessible::isActive() || !model_.IsThere(cell)) return;
  QAccessibleEvent event(this, type);
  event.setChild(model_.PlaceOf(cell));
  QAccessible::updateAccessibility(&event);
}

// The lines.

bool GridTable::SetColumnWidth(int column, int width) {
  const int old = model_.GetColumnWidth(column);
  if (!model_.SetColumnWidth(column, width)) return false;
  if (model_.GetColumnWidth(column) != old) ArrangeLines();
  return true;
}

void GridTable::AutoSizeColumns() {
  for (int column = 0; column < model_.ColumnCount(); ++column) {
    model_.SetColumnWidth(column, FittingWidth(column));
  }
  ArrangeLines();
}

int GridTable::FittingWidth(int column) const {
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

void GridTable::SetScale(double scale, int textPixels) {
  scale_ = std::clamp(scale, kSmallestScale, kLargestScale);
  TakeLetters(textPixels);
  ArrangeLines();
}

void GridTable::TakeLetters(int pixels) {
  setFont(ScreenFont(pixels));
  for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
    bar->setFont(font());
    bar->updateGeometry();
    bar->setSingleStep(RowHeight());
  }
}

void GridTable::ArrangeLines() {
  PlaceLines();
  updateGeometries();
  Repaint();
}

void GridTable::PlaceLines() {
  const auto left = [this](int column) { return Left(column); };
  const auto top = [this](int row) { return Top(row); };
  Arrange(*horizontalHeader(), model_.FixedColumnCount(), left);
  Arrange(*verticalHeader(), model_.FixedRowCount(), top);
  verticalHeader()->setFixedWidth(Left(model_.FixedColumnCount()));
  horizontalHeader()->setFixedHeight(Top(model_.FixedRowCount()));
}

void GridTable::updateGeometries() {
  QTableView::updateGeometries();
  const QWidget* across = horizontalScrollBar()->parentWidget();
  const QWidget* down = verticalScrollBar()->parentWidget();
  corner_->setVisible(across->isVisible() && down->isVisible());
  // With the last line of each bar.
  corner_->setGeometry(
      QRect(QPoint(across->geometry().right(), down->geometry().bottom()), rect().bottomRight()));
  corner_->raise();
}

// Places.

QRect GridTable::CellArea(GridCell cell) const {
  if (!model_.IsThere(cell)) return {};
  const QPoint from(Left(cell.column), Top(cell.row));
  const QPoint to(Left(cell.column + 1) - 1, Top(cell.row + 1) - 1);
  return QRect(from, to).translated(
      cell.column < model_.FixedColumnCount() ? 0 : -horizontalScrollBar()->value(),
      cell.row < model_.FixedRowCount() ? 0 : -verticalScrollBar()->value());
}

GridCell GridTable::CellAt(QPoint place) const {
  const GridCell cell{RowAt(place.y()), ColumnAt(place.x())};
  return !Whole().contains(place) || cell.row < 0 || cell.column < 0 ? GridCell{} : cell;
}

int GridTable::ColumnAt(int x) const {
  if (x >= Room().left()) return columnAt(x - Room().left());
  for (int column = 0; x >= 0 && column < model_.FixedColumnCount(); ++column) {
    if (x < Left(column + 1)) return column;
  }
  return -1;
}

int GridTable::RowAt(int y) const {
  if (y >= Room().top()) return rowAt(y - Room().top());
  for (int row = 0; y >= 0 && row < model_.FixedRowCount(); ++row) {
    if (y < Top(row + 1)) return row;
  }
  return -1;
}

bool GridTable::IsInView(GridCell cell) const {
  QRect area = Whole();
  if (cell.row >= model_.FixedRowCount()) area.setTop(Room().top());
  if (cell.column >= model_.FixedColumnCount()) area.setLeft(Room().left());
  return area.intersects(CellArea(cell));
}

GridCell GridTable::FirstShown() const {
  return {rowAt(0) < 0 ? model_.RowCount() : rowAt(0), columnAt(0)};
}

int GridTable::PageRows() const {
  return std::max(1, Room().height() / RowHeight() - 1);
}

void GridTable::ScrollToRow(int row) {
  const int fixed = model_.FixedRowCount();
  verticalScrollBar()->setValue(Top(std::clamp(row, fixed, model_.RowCount())) - Top(fixed));
}

void GridTable::Reveal(GridCell cell) {
  if (!cell.IsNone()) scrollTo(model()->index(cell.row, cell.column));
}

// The look.

void GridTable::Repaint() {
  viewport()->update();
  for (QWidget* part : headers_) part->update();
}

/// `part` shows the cells, the headers of columns, those of rows, or the corner between them.
void GridTable::Paint(QWidget& part) const {
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
  const GridLook look{model_, Selection(), Focus(), palette(), scale_, HasKeys()};
  for (int row = first.row; row <= bottom; ++row) {
    for (int column = first.column; column <= right; ++column) {
      PaintCell(painter, CellArea({row, column}), {row, column}, look);
    }
  }
}

bool GridTable::eventFilter(QObject* part, QEvent* event) {
  const auto header = std::find(headers_.begin(), headers_.end(), part);
  if (event->type() != QEvent::Paint || header == headers_.end()) {
    return QTableView::eventFilter(part, event);
  }
  Paint(**header);
  return true;
}

void GridTable::paintEvent(QPaintEvent*) {
  Paint(*viewport());
}

bool GridTable::viewportEvent(QEvent* event) {
  // The viewport leaves the mouse to the table, which sees places of its own.
  constexpr std::array kOfMouse{QEvent::MouseButtonPress,
                                QEvent::MouseButtonRelease,
                                QEvent::MouseButtonDblClick,
                                QEvent::MouseMove,
                                QEvent::Wheel,
                                QEvent::ToolTip};
  const bool isOfMouse =
      std::find(kOfMouse.begin(), kOfMouse.end(), event->type()) != kOfMouse.end();
  return !isOfMouse && QTableView::viewportEvent(event);
}

}  // namespace kav
