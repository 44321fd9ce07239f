#include "screens/grid/grid_ctrl.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "common/number_text.h"
#include "screens/grid/grid_access_view.h"
#include "screens/grid/grid_edit_view.h"
#include "screens/grid/grid_painter_view.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kUsualTextPixels = 12;

/// Beyond, widths in pixels leave the range that they are counted in.
constexpr double kSmallestScale = 0.1;
constexpr double kLargestScale = 100;

/// A text that is longer makes its column no wider.
constexpr std::size_t kLongestMeasured = 2000;

/// Moves `bar` so far that what takes `first` to `last` is between `from` and `to`; where it has no
/// room there, its beginning is.
void Reveal(QScrollBar& bar, int first, int last, int from, int to) {
  if (first < from) {
    bar.setValue(bar.value() - (from - first));
  } else if (last > to) {
    bar.setValue(bar.value() + std::min(last - to, first - from));
  }
}

}  // namespace

CGridCtrl::CGridCtrl(QWidget* parent, std::pmr::memory_resource* memory)
    : QAbstractScrollArea(parent), model_(memory) {
  OfferGridsToScreenReaders();
  setLayoutDirection(Qt::LeftToRight);
  setFrameShape(QFrame::NoFrame);
  setPalette(ScreenPalette());
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) bar->setStyle(ScreenStyle());
  edit_ = new GridEdit(
      viewport(), {[this](int key, Qt::KeyboardModifiers modifiers) { OnEditKey(key, modifiers); },
                   [this] { FinishEdit(); }});
  SetScale(1, kUsualTextPixels);
}

CGridCtrl::~CGridCtrl() {
  // As long as the box is there, it tells this widget of the loss of the focus.
  delete edit_;
}

void CGridCtrl::ResetSelectedRange() {
  GiveUpEdit();
  model_.ResetSelectedRange();
  viewport()->update();
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
  UpdateBars();
  TellShape(*this);
  return true;
}

bool CGridCtrl::SetItem(const GridItem& item) {
  if (!model_.SetItem(item)) return false;
  viewport()->update();
  return true;
}

bool CGridCtrl::SetColumnWidth(int column, int width) {
  const int old = model_.GetColumnWidth(column);
  if (!model_.SetColumnWidth(column, width)) return false;
  if (model_.GetColumnWidth(column) != old) UpdateBars();
  return true;
}

void CGridCtrl::ClearSelectedCells() {
  model_.ClearSelectedCells();
  viewport()->update();
}

void CGridCtrl::SetFocusCell(GridCell cell) {
  GiveUpEdit();
  model_.SetFocus(cell);
  ScrollTo(model_.Focus());
  TellFocus(*this);
  viewport()->update();
}

void CGridCtrl::SelectTo(GridCell cell) {
  GiveUpEdit();
  model_.SelectTo(cell);
  TellFocus(*this);
  viewport()->update();
}

void CGridCtrl::AutoSizeColumns() {
  for (int column = 0; column < model_.ColumnCount(); ++column) {
    model_.SetColumnWidth(column, FittingWidth(column));
  }
  UpdateBars();
}

int CGridCtrl::FittingWidth(int column) const {
  const QFontMetricsF metrics(font());
  double widest = 0;
  for (int row = 0; row < model_.RowCount(); ++row) {
    const std::u16string text = Shortened(model_.GetItemText(row, column), kLongestMeasured);
    widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdU16String(text)));
  }
  // Besides the margins the line at the edge. A part of a pixel takes a whole one, lest the end of
  // the text is cut off.
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
  }
  UpdateBars();
}

GridGeometry CGridCtrl::Geometry() const {
  return {model_, scale_, {horizontalScrollBar()->value(), verticalScrollBar()->value()}};
}

QRect CGridCtrl::CellArea(GridCell cell) const {
  return Geometry().CellArea(cell);
}

GridCell CGridCtrl::CellAt(QPoint place) const {
  const GridGeometry geometry = Geometry();
  const GridCell cell{geometry.RowAt(place.y()), geometry.ColumnAt(place.x())};
  return cell.row < 0 || cell.column < 0 ? GridCell{} : cell;
}

bool CGridCtrl::IsInView(GridCell cell) const {
  QRect area = viewport()->rect();
  if (cell.row >= model_.FixedRowCount()) area.setTop(Room().top());
  if (cell.column >= model_.FixedColumnCount()) area.setLeft(Room().left());
  return area.intersects(CellArea(cell));
}

/// What the headers leave of the viewport.
QRect CGridCtrl::Room() const {
  const QSize fixed = Geometry().FixedSize();
  return viewport()->rect().adjusted(fixed.width(), fixed.height(), 0, 0);
}

void CGridCtrl::UpdateBars() {
  const GridGeometry geometry = Geometry();
  const QSize all = geometry.FullSize();
  const QSize fixed = geometry.FixedSize();
  const QSize most = maximumViewportSize();
  // Where all has room without bars, no bar takes the room that makes the other one necessary.
  const bool fits = all.width() <= most.width() && all.height() <= most.height();
  const QSize room = fits ? most : viewport()->size();
  const int line = std::max(1, qRound(GridModel::kDefaultHeight * scale_));
  const auto set = [line](QScrollBar& bar, int allPixels, int roomPixels, int fixedPixels) {
    bar.setRange(0, std::max(0, allPixels - roomPixels));
    bar.setPageStep(std::max(1, roomPixels - fixedPixels));
    bar.setSingleStep(line);
  };
  set(*horizontalScrollBar(), all.width(), room.width(), fixed.width());
  set(*verticalScrollBar(), all.height(), room.height(), fixed.height());
  PlaceEdit();
  viewport()->update();
}

void CGridCtrl::ScrollTo(GridCell cell) {
  const QRect area = CellArea(cell);
  if (area.isEmpty()) return;
  const QRect room = Room();
  Reveal(*horizontalScrollBar(), area.left(), area.right(), room.left(), room.right());
  Reveal(*verticalScrollBar(), area.top(), area.bottom(), room.top(), room.bottom());
}

void CGridCtrl::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.setFont(font());
  const bool hasKeys = hasFocus() || editing_;
  PaintGrid(painter, model_, Geometry(), {viewport()->rect(), palette(), scale_, hasKeys});
}

void CGridCtrl::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  UpdateBars();
}

void CGridCtrl::scrollContentsBy(int, int) {
  FinishEdit();
  viewport()->update();
}

void CGridCtrl::SetEditable(bool isEditable) {
  if (!isEditable) GiveUpEdit();
  isEditable_ = isEditable;
}

void CGridCtrl::EditFocusCell() {
  const GridCell cell = model_.Focus();
  if (!isEditable_ || editing_ || cell.IsNone()) return;
  ScrollTo(cell);
  if (hooks_.beginEdit) hooks_.beginEdit(cell.row, cell.column);
  // Whoever was told may have changed the grid.
  if (!isEditable_ || editing_ || model_.Focus() != cell) return;
  editing_ = cell;
  edit_->setAlignment(TextAlignment(model_.GetItemFormat(cell.row, cell.column)));
  edit_->setAccessibleName(NameOfPlace(*this, cell));
  edit_->setText(ToQt(model_.GetItemText(cell.row, cell.column)));
  edit_->selectAll();
  PlaceEdit();
  edit_->show();
  edit_->setFocus(Qt::OtherFocusReason);
}

std::optional<GridCell> CGridCtrl::CloseEdit() {
  const std::optional<GridCell> cell = editing_;
  editing_.reset();
  if (!cell) return cell;
  // Hidden while it has the focus, the box would hand it to the widget behind the grid.
  if (edit_->hasFocus()) setFocus(Qt::OtherFocusReason);
  edit_->hide();
  viewport()->update();
  return cell;
}

void CGridCtrl::GiveUpEdit() {
  CloseEdit();
}

void CGridCtrl::FinishEdit() {
  const std::optional<GridCell> cell = CloseEdit();
  if (!cell) return;
  // A text longer than the box takes is cut by it, but only if it was touched.
  const QString text =
      edit_->isModified() ? edit_->TypedText() : ToQt(model_.GetItemText(cell->row, cell->column));
  const std::u16string typed = text.toStdU16String();
  if (!SetItem({cell->row, cell->column, GridItem::kText, typed, {}})) return;
  TellText(*this, *cell);
  if (hooks_.endEdit) hooks_.endEdit(cell->row, cell->column, text);
}

void CGridCtrl::PlaceEdit() {
  if (!editing_) return;
  // A narrow column would show no more than the caret.
  QRect area = CellArea(*editing_);
  area.setWidth(std::max(area.width(), 5 * font().pixelSize()));
  area.moveRight(std::min(area.right(), std::max(viewport()->width(), area.width()) - 1));
  edit_->setGeometry(area);
  const int margin = std::max(0, TextMargin(font().pixelSize()) - 2);
  edit_->setTextMargins(margin, 0, margin, 0);
}

}  // namespace kav
