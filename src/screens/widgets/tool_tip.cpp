#include "screens/widgets/tool_tip.h"

#include <QFontMetrics>
#include <QStringList>
#include <QToolTip>
#include <QWidget>

#include "screens/widgets/look.h"
#include "screens/widgets/pop_up.h"

namespace kav {
namespace {

/// Of the width of the screen.
constexpr double kWidest = 0.8;

/// The toolkit breaks no line of a plain text.
QString InLines(const QString& text, const QFontMetrics& metrics, int width) {
  QStringList lines;
  for (const QString& word : text.split(u' ')) {
    const QString longer = lines.isEmpty() ? word : lines.last() + u' ' + word;
    if (lines.isEmpty() || metrics.horizontalAdvance(longer) > width) {
      lines.append(word);
    } else {
      lines.last() = longer;
    }
  }
  return lines.join(u'\n');
}

/// The colours of the fields of `widget`, so that a dark screen has dark tips.
QPalette TipPalette(const QWidget& widget) {
  QPalette palette = widget.palette();
  palette.setBrush(QPalette::ToolTipBase, palette.brush(QPalette::Base));
  palette.setBrush(QPalette::ToolTipText, palette.brush(QPalette::Text));
  return palette;
}

}  // namespace

void ShowTip(QWidget& widget, QPoint place, const QString& text) {
  const QWidget& window = *widget.window();
  const QFont font = MenuFont(window);
  if (QToolTip::font() != font) QToolTip::setFont(font);
  QToolTip::setPalette(TipPalette(widget));
  const int width = qRound(PortraitArea(window.size()).width() * kWidest);
  QToolTip::showText(place, InLines(text, QFontMetrics(font), width), &widget, widget.rect());
}

}  // namespace kav
