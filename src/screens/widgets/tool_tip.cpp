#include "screens/widgets/tool_tip.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QStringList>
#include <QToolTip>
#include <QWidget>

#include "line/key_help.h"
#include "screens/widgets/look.h"
#include "screens/widgets/pop_up.h"
#include "screens/widgets/qt_text.h"

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

/// The tip of a button.
class ButtonTip final : public QObject {
 public:
  ButtonTip(QAbstractButton& button, std::u16string_view description)
      : QObject(&button), button_(button), description_(description) {
    button.installEventFilter(this);
  }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Enter) isTouched_ = false;
    if (event->type() == QEvent::MouseButtonPress) {
      isTouched_ = static_cast<QMouseEvent*>(event)->source() != Qt::MouseEventNotSynthesized;
    }
    if (event->type() != QEvent::ToolTip) return false;
    const std::u16string caption = button_.text().remove(u'&').toStdU16String();
    const QString tip = ToQt(kav::TipOf(FaceText{caption, description_}, {}));
    if (!isTouched_) ShowTip(button_, static_cast<QHelpEvent*>(event)->globalPos(), tip);
    return true;
  }

  QAbstractButton& button_;
  std::u16string description_;
  bool isTouched_ = false;
};

}  // namespace

void Explain(QAbstractButton& button, std::u16string_view description) {
  button.setAccessibleDescription(ToQt(description));
  new ButtonTip(button, description);
}

void ShowTip(QWidget& widget, QPoint place, const QString& text) {
  const QWidget& window = *widget.window();
  const QFont font = MenuFont(window);
  if (QToolTip::font() != font) QToolTip::setFont(font);
  QToolTip::setPalette(TipPalette(widget));
  const int width = qRound(PortraitArea(window.size()).width() * kWidest);
  QToolTip::showText(place, InLines(text, QFontMetrics(font), width), &widget, widget.rect());
}

}  // namespace kav
