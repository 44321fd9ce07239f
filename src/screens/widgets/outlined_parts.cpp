#include "screens/widgets/outlined_parts.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"

namespace kav {
namespace {

/// The width of an outline beside texts `height` pixels high.
double LineBy(int height) {
  return std::max(1.0, height / 20.0);
}

/// Within `area`, so that all of a line of that width is.
QRectF Inset(const QRect& area, double line) {
  return QRectF(area).adjusted(line / 2, line / 2, -line / 2, -line / 2);
}

void DrawFrame(const QStyleOption& option, QPainter& painter) {
  painter.setPen(option.palette.color(QPalette::Mid));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

/// Below the title, where also the desktop's own frame begins.
void DrawGroupFrame(const QStyleOption& option, QPainter& painter) {
  constexpr int kBelowTitle = 3;
  const int mark = ScreenStyle()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option);
  QStyleOption frame = option;
  frame.rect.setTop(option.rect.top() + std::max(mark, option.fontMetrics.height()) + kBelowTitle);
  DrawFrame(frame, painter);
}

void DrawMenuPanel(const QStyleOption& option, QPainter& painter) {
  painter.fillRect(option.rect, option.palette.color(QPalette::Base));
  DrawFrame(option, painter);
}

/// The square or disc of a box to be ticked or chosen.
void DrawIndicatorGround(const QStyleOption& option, QPainter& painter, double radius) {
  const double line = LineBy(option.fontMetrics.height());
  const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
  const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(option.palette.color(isEnabled ? QPalette::Base : QPalette::Window));
  painter.setPen(QPen(option.palette.color(hasFocus ? QPalette::Highlight : QPalette::Dark), line));
  painter.drawRoundedRect(Inset(option.rect, line), radius, radius);
}

void DrawTickBox(const QStyleOption& option, QPainter& painter) {
  DrawIndicatorGround(option, painter, 2);
  const QRectF area(option.rect);
  const double line = LineBy(option.fontMetrics.height());
  painter.setPen(QPen(option.palette.color(QPalette::Text), 2 * line));
  painter.setBrush(Qt::NoBrush);
  if (option.state.testFlag(QStyle::State_NoChange)) {
    painter.drawLine(QPointF(area.left() + area.width() / 4, area.center().y()),
                     QPointF(area.right() - area.width() / 4, area.center().y()));
  }
  if (!option.state.testFlag(QStyle::State_On)) return;
  QPainterPath tick(QPointF(area.left() + 0.25 * area.width(), area.top() + 0.5 * area.height()));
  tick.lineTo(area.left() + 0.43 * area.width(), area.top() + 0.72 * area.height());
  tick.lineTo(area.left() + 0.75 * area.width(), area.top() + 0.28 * area.height());
  painter.drawPath(tick);
}

void DrawChoiceDisc(const QStyleOption& option, QPainter& painter) {
  const QRectF area(option.rect);
  DrawIndicatorGround(option, painter, area.width() / 2);
  if (!option.state.testFlag(QStyle::State_On)) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(option.palette.color(QPalette::Text));
  painter.drawEllipse(area.center(), area.width() / 4, area.height() / 4);
}

void DrawTab(const QStyleOption& option, QPainter& painter) {
  const bool isChosen = option.state.testFlag(QStyle::State_Selected);
  const int line = isChosen ? static_cast<int>(2 * LineBy(option.fontMetrics.height())) : 1;
  painter.fillRect(option.rect, option.palette.color(isChosen ? QPalette::Base : QPalette::Button));
  const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
  const auto chosen = hasFocus ? QPalette::Highlight : QPalette::Text;
  const auto edge = isChosen ? chosen : QPalette::Mid;
  painter.setPen(
      QPen(option.palette.color(edge), line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(Inset(option.rect, line));
}

void DrawSeparator(const QStyleOption& option, QPainter& painter) {
  const int margin = option.fontMetrics.height() / 3;
  const QRect row = option.rect.adjusted(margin, 0, -margin, 0);
  painter.fillRect(QRect(row.left(), row.center().y(), row.width(), 1),
                   option.palette.color(QPalette::Mid));
}

using Draw = void (*)(const QStyleOption&, QPainter&);

Draw DrawingOf(QStyle::PrimitiveElement element) {
  switch (element) {
    case QStyle::PE_Frame:
      return DrawFrame;
    case QStyle::PE_FrameGroupBox:
      return DrawGroupFrame;
    case QStyle::PE_PanelMenu:
      return DrawMenuPanel;
    case QStyle::PE_IndicatorCheckBox:
      return DrawTickBox;
    case QStyle::PE_IndicatorRadioButton:
      return DrawChoiceDisc;
    default:
      return nullptr;
  }
}

Draw DrawingOf(QStyle::ControlElement element, const QStyleOption& option) {
  if (element == QStyle::CE_TabBarTabShape) return DrawTab;
  const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
  const bool isSeparator = element == QStyle::CE_MenuItem && entry != nullptr &&
                           entry->menuItemType == QStyleOptionMenuItem::Separator;
  return isSeparator ? DrawSeparator : nullptr;
}

bool DrawBy(Draw draw, const QStyleOption& option, QPainter& painter) {
  if (draw == nullptr || SchemeNow() == ColourScheme::Light) return false;
  painter.save();
  draw(option, painter);
  painter.restore();
  return true;
}

}  // namespace

bool DrawOutlined(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter) {
  return DrawBy(DrawingOf(element), option, painter);
}

bool DrawOutlined(QStyle::ControlElement element, const QStyleOption& option, QPainter& painter) {
  return DrawBy(DrawingOf(element, option), option, painter);
}

}  // namespace kav
