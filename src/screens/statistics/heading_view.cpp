#include "screens/statistics/heading_view.h"

#include <QPainter>
#include <QPainterPath>

namespace kav {
namespace {

/// The height of the arrow, as a part of that of the headings.
constexpr double kArrow = 0.15;

}  // namespace

HeadingView::HeadingView(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setSectionResizeMode(Interactive);
  setSectionsClickable(true);
  setHighlightSections(false);
  setMinimumSectionSize(1);
  setSortIndicator(-1, Qt::AscendingOrder);
}

void HeadingView::paintSection(QPainter* painter, const QRect& area, int column) const {
  painter->save();
  QHeaderView::paintSection(painter, area, column);
  painter->restore();
  if (column != sortIndicatorSection()) return;
  const double height = area.height() * kArrow;
  const bool isUpwards = sortIndicatorOrder() == Qt::AscendingOrder;
  const double tip = area.top() + (isUpwards ? 1 : 1 + height);
  const double base = area.top() + (isUpwards ? 1 + height : 1);
  const double middle = QRectF(area).center().x();
  QPainterPath arrow({middle - height, base});
  arrow.lineTo(middle + height, base);
  arrow.lineTo(middle, tip);
  arrow.closeSubpath();
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->fillPath(arrow, palette().color(QPalette::Text));
  painter->restore();
}

}  // namespace kav
