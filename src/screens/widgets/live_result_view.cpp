#include "screens/widgets/live_result_view.h"

#include <QEvent>
#include <QFontMetrics>

#include "line/line_texts.h"
#include "screens/widgets/line_marks.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {

LiveResultView::LiveResultView(QWidget* line) : QLabel(line) {
  setStyle(ScreenStyle());
  setTextFormat(Qt::PlainText);
  setAccessibleName(ToQt(kLiveResultName));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setForegroundRole(QPalette::WindowText);
  Dress();
  hide();
}

void LiveResultView::Say(std::u16string_view result) {
  const QString text = QStringLiteral("= ") + ToQt(result);
  if (text == this->text()) return;
  setText(text);
  setAccessibleDescription(text);
}

void LiveResultView::Place(const QRect& box, const QRect& text, int pixels) {
  setFont(ScreenFont(pixels));
  const QFontMetrics letters(font());
  // The height of what is drawn: digits have nothing below their line but commas.
  const QRect ink = letters.tightBoundingRect(this->text() + u',');
  const QSize size(letters.horizontalAdvance(this->text()), ink.height());
  const QRect corner(box.right() - size.width() + 1, box.bottom() - size.height() + 1, size.width(),
                     size.height());
  const int gap = pixels;
  const bool isFree = box.contains(corner) && !corner.adjusted(-gap, 0, 0, 0).intersects(text);
  // A label draws its whole lines in the middle of its height.
  const int line = letters.height();
  const int baseline = corner.top() - ink.top();
  setGeometry(corner.left(), baseline - letters.ascent(), size.width(), line);
  setVisible(isFree);
}

void LiveResultView::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) Dress();
}

void LiveResultView::Dress() {
  QPalette colours = palette();
  const QColor faint = FaintColour(colours);
  if (colours.color(QPalette::WindowText) == faint) return;
  colours.setColor(QPalette::WindowText, faint);
  setPalette(colours);
}

}  // namespace kav
