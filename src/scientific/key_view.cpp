#include "scientific/key_view.h"

#include <QKeyEvent>
#include <QPainter>

#include "app/look.h"

namespace kav {
namespace {

struct Colours {
  QRgb background;
  QRgb text;
};

Colours ColoursOf(KeyColour colour) {
  constexpr QRgb kBlack = qRgb(0, 0, 0);
  constexpr QRgb kOrange = qRgb(255, 192, 126);
  switch (colour) {
    case KeyColour::Digit:
      return {qRgb(255, 255, 255), qRgb(255, 0, 0)};
    case KeyColour::Orange:
      return {kOrange, kBlack};
    case KeyColour::ActiveShift:
      return {kBlack, kOrange};
    case KeyColour::Mode:
      return {qRgb(189, 192, 255), kBlack};
    case KeyColour::Editing:
      return {qRgb(254, 192, 190), kBlack};
    case KeyColour::Equals:
      return {qRgb(0, 150, 222), qRgb(255, 255, 0)};
    case KeyColour::Function:
      break;
  }
  return {qRgb(192, 255, 192), kBlack};
}

/// `share` (0 to 1) of `colour`, the rest of `other`.
QColor Mixed(QColor colour, QColor other, double share) {
  const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
  return {mix(colour.red(), other.red()), mix(colour.green(), other.green()),
          mix(colour.blue(), other.blue())};
}

}  // namespace

KeyView::KeyView(const KeyPlace& place, QWidget* parent) : QAbstractButton(parent), place_(place) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
}

void KeyView::SetTextHeight(int pixels) {
  textHeight_ = pixels;
  update();
}

int KeyView::TextWidth() const {
  return width() - 2 * qMax(2, height() / 10);
}

QFont KeyView::TextFont() const {
  return ScreenFont(textHeight_);
}

QColor KeyView::Background() const {
  const QColor colour(ColoursOf(place_.colour).background);
  const QColor body = palette().color(QPalette::Window);
  if (!isEnabled()) return Mixed(colour, body, 0.35);
  if (isDown()) return Mixed(colour, TextColour(), 0.75);
  if (underMouse()) return Mixed(colour, TextColour(), 0.93);
  return colour;
}

QColor KeyView::TextColour() const {
  const Colours colours = ColoursOf(place_.colour);
  if (isEnabled()) return colours.text;
  return Mixed(QColor(colours.text), palette().color(QPalette::Window), 0.35);
}

void KeyView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // Two fills, one within the other, cost much less than a fill and a stroke.
  const QColor background = Background();
  const double line = qMax(1.0, height() / 36.0) * (hasFocus() ? 2 : 1);
  const double radius = height() * 0.18;
  const QRectF outline(rect());
  painter.setBrush(hasFocus() ? palette().color(QPalette::Highlight)
                              : Mixed(background, QColor(70, 80, 90), 0.6));
  painter.drawRoundedRect(outline, radius, radius);
  painter.setBrush(background);
  painter.drawRoundedRect(outline.adjusted(line, line, -line, -line), radius - line, radius - line);
  painter.setPen(TextColour());
  painter.setFont(TextFont());
  painter.drawText(rect(), Qt::AlignCenter, text());
}

void KeyView::keyPressEvent(QKeyEvent* event) {
  // Space presses the key. All else, arrows and Enter included, is for the keypad or the screen.
  if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select) {
    QAbstractButton::keyPressEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace kav
