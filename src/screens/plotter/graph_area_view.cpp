#include "screens/plotter/graph_area_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "plotter/plotter_texts.h"
#include "screens/plotter/graph_painter_view.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

// In pixels of a plot 230 pixels wide.
constexpr double kTapRadius = 3;  // a finger lifts a little beside the place where it went down

constexpr int kNotch = 120;
constexpr int kLargeStep = 10;

/// What a key does to the range while not tracing.
std::optional<RangeChange> ChangeOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return RangeChange::MoveLeft;
    case Qt::Key_Right:
      return RangeChange::MoveRight;
    case Qt::Key_Up:
      return RangeChange::MoveUp;
    case Qt::Key_Down:
      return RangeChange::MoveDown;
    case Qt::Key_Home:
      return RangeChange::Reset;
    default:
      return std::nullopt;
  }
}

}  // namespace

GraphAreaView::GraphAreaView(GraphModel& model, GraphAreaHooks hooks)
    : model_(model), hooks_(std::move(hooks)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAccessibleName(ToQt(kGraphName));
}

void GraphAreaView::Redraw() {
  isCurrent_ = false;
  setAccessibleDescription(ToQt(model_.Description()));
  update();
}

void GraphAreaView::MoveMarker() {
  update();
}

void GraphAreaView::KeepHeight(int pixels) {
  keptHeight_ = pixels;
  updateGeometry();
}

void GraphAreaView::FitArea() {
  const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
  const PlotArea area = AreaWithin(pixels);
  if (area == model_.Area()) return;
  model_.SetArea(area);
  Redraw();
}

void GraphAreaView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) isCurrent_ = false;
  QWidget::changeEvent(event);
}

void GraphAreaView::resizeEvent(QResizeEvent*) {
  FitArea();
}

void GraphAreaView::paintEvent(QPaintEvent*) {
  FitArea();  // the window may be on another display now, with another resolution
  if (!std::exchange(isCurrent_, true)) DrawGraph(model_, picture_, SchemeNow());
  QPainter painter(this);
  painter.save();
  painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
  painter.drawImage(0, 0, picture_);
  PaintShapes(painter, BuildMarker(model_), model_.Area(), SchemeNow());
  painter.restore();
  if (drag_ && !drag_->isTap && !model_.Traces()) PaintBand(painter);
  if (hasFocus()) PaintFocus(painter);
}

void GraphAreaView::PaintBand(QPainter& painter) const {
  QColor colour = palette().color(QPalette::Highlight);
  painter.setPen(QPen(colour, std::max(1.0, std::round(Unit() / 2))));
  colour.setAlphaF(0.15F);
  painter.setBrush(colour);
  painter.drawRect(QRectF(drag_->from, drag_->to).normalized());
}

void GraphAreaView::PaintFocus(QPainter& painter) const {
  const double line = std::max(1.0, std::round(Unit()));
  painter.setPen(QPen(palette().color(QPalette::Highlight), line, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

void GraphAreaView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  const QPointF place = event->position();
  drag_ = Drag{place, place, true};
  if (model_.Traces()) hooks_.tap(PlaceOf(place));
}

void GraphAreaView::mouseMoveEvent(QMouseEvent* event) {
  if (!drag_) return;
  drag_->to = event->position();
  const QPointF way = drag_->to - drag_->from;
  // What could be a box is none, however large the plot.
  const double radius = std::min(kTapRadius * Unit(), kShortestDrag);
  if (std::hypot(way.x(), way.y()) > radius) drag_->isTap = false;
  if (model_.Traces()) return hooks_.tap(NearestInPlot(drag_->to));
  update();
}

void GraphAreaView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !drag_) return;
  const Drag drag = *std::exchange(drag_, std::nullopt);
  if (model_.Traces()) return;
  update();
  if (drag.isTap) return hooks_.tap(PlaceOf(drag.from));
  hooks_.box(PlaceOf(drag.from), PlaceOf(event->position()));
}

void GraphAreaView::wheelEvent(QWheelEvent* event) {
  wheel_ += event->angleDelta().y();
  for (; wheel_ >= kNotch; wheel_ -= kNotch) hooks_.change(RangeChange::ZoomIn);
  for (; wheel_ <= -kNotch; wheel_ += kNotch) hooks_.change(RangeChange::ZoomOut);
}

void GraphAreaView::keyPressEvent(QKeyEvent* event) {
  const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const int columns = modifiers == Qt::ShiftModifier ? kLargeStep : 1;
  const bool isPlain = modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier;
  if (!isPlain || !OnKey(event->key(), columns)) QWidget::keyPressEvent(event);
}

bool GraphAreaView::OnKey(int key, int columns) {
  if (model_.Traces()) return OnTraceKey(key, columns);
  const auto change = ChangeOf(key);
  if (change) hooks_.change(*change);
  return change.has_value();
}

bool GraphAreaView::OnTraceKey(int key, int columns) {
  switch (key) {
    case Qt::Key_Left:
      hooks_.step(-columns);
      return true;
    case Qt::Key_Right:
      hooks_.step(columns);
      return true;
    case Qt::Key_Up:
      hooks_.goToCurve(-1);
      return true;
    case Qt::Key_Down:
      hooks_.goToCurve(1);
      return true;
    default:
      return false;
  }
}

GraphPlace GraphAreaView::PlaceOf(QPointF point) const {
  return {std::floor(point.x() * devicePixelRatioF()), std::floor(point.y() * devicePixelRatioF())};
}

GraphPlace GraphAreaView::NearestInPlot(QPointF point) const {
  const PlotArea& area = model_.Area();
  const GraphPlace place = PlaceOf(point);
  return {std::clamp<double>(place.column, area.left, area.right),
          std::clamp<double>(place.row, area.top, area.bottom)};
}

double GraphAreaView::Unit() const {
  return model_.Area().Scale() / devicePixelRatioF();
}

}  // namespace kav
