#include "screens/widgets/key_painter.h"

#include <QAbstractButton>
#include <QPainter>
#include <QPalette>

#include "screens/widgets/colour_scheme.h"

namespace kav {
namespace {

/// The edge of a key: between its own colour and that of all edges, which in the strongest contrast
/// is the edge itself.
QColor EdgeOf(const QColor& background) {
  const QColor edge = ColourNow(Colour::KeyEdge);
  constexpr double kOwnShare = 0.6;
  return HasStrongEdges(SchemeNow()) ? edge : Mixed(background, edge, kOwnShare);
}

}  // namespace

KeyColours ColoursNow(const QAbstractButton& key, const KeyColours& colours) {
  const auto& [background, text] = colours;
  if (!key.isEnabled() && HasStrongEdges(SchemeNow())) {
    return {key.palette().color(QPalette::Window), ColourNow(Colour::DisabledText)};
  }
  if (!key.isEnabled()) {
    const QColor body = key.palette().color(QPalette::Window);
    return {Mixed(background, body, 0.35), Mixed(text, body, 0.35)};
  }
  // A dark key that is held becomes lighter, and so loses more of its contrast than a light one.
  const double held = SchemeNow() == ColourScheme::Dark ? 0.85 : 0.75;
  if (key.isDown()) return {Mixed(background, text, held), text};
  if (key.underMouse()) return {Mixed(background, text, 0.93), text};
  return colours;
}

void PaintKey(QPainter& painter, const QAbstractButton& key, const KeyColours& colours,
              const QFont& font) {
  PaintKey(painter, key, colours, font, key.text());
}

void PaintKey(QPainter& painter, const QAbstractButton& key, const KeyColours& colours,
              const QFont& font, const QString& caption) {
  const auto [background, text] = ColoursNow(key, colours);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // Two fills, one within the other, cost much less than a fill and a stroke.
  const double line = qMax(1.0, key.height() / 36.0) * (key.hasFocus() ? 2 : 1);
  const double radius = key.height() * 0.18;
  const QRectF outline(key.rect());
  painter.setBrush(key.hasFocus() ? key.palette().color(QPalette::Highlight) : EdgeOf(background));
  painter.drawRoundedRect(outline, radius, radius);
  painter.setBrush(background);
  painter.drawRoundedRect(outline.adjusted(line, line, -line, -line), radius - line, radius - line);
  painter.setPen(text);
  painter.setFont(font);
  // Behind "&" stands the letter of a shortcut, which the caption does not show.
  painter.drawText(key.rect(), Qt::AlignCenter | Qt::TextHideMnemonic, caption);
}

}  // namespace kav
