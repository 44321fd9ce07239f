#include "screens/widgets/tool_tip.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QStringList>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

#include "line/key_help.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"
#include "screens/widgets/pop_up.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Of the width of the screen.
constexpr double kWidest = 0.8;

/// `word` in pieces that are no wider than `width` pixels or one character.
QStringList Pieces(QString word, const QFontMetrics& metrics, int width) {
  QStringList pieces;
  while (word.size() > 1 && metrics.horizontalAdvance(word) > width) {
    qsizetype fitting = 1;
    int used = metrics.horizontalAdvance(word[0]);
    while (fitting < word.size() && used <= width) {
      used += metrics.horizontalAdvance(word[fitting]);
      if (used <= width) ++fitting;
    }
    if (word[fitting - 1].isHighSurrogate()) ++fitting;
    pieces.append(word.left(fitting));
    word.remove(0, fitting);
  }
  if (!word.isEmpty() || pieces.isEmpty()) pieces.append(word);
  return pieces;
}

/// The toolkit breaks no line of a plain text.
QString InLines(const QString& text, const QFontMetrics& metrics, int width) {
  QStringList lines;
  for (const QString& word : text.split(u' ')) {
    const QString longer = lines.isEmpty() ? word : lines.last() + u' ' + word;
    if (!lines.isEmpty() && metrics.horizontalAdvance(longer) <= width) {
      lines.last() = longer;
    } else {
      lines += Pieces(word, metrics, width);
    }
  }
  return lines.join(u'\n');
}

void SetLook(const QFont& font) {
  if (QToolTip::font() != font) QToolTip::setFont(font);
  QToolTip::setPalette(ScreenPalette());
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
  SetLook(font);
  const int width = qRound(PortraitArea(window.size()).width() * kWidest);
  QToolTip::showText(place, InLines(text, QFontMetrics(font), width), &widget, widget.rect());
}

bool AnswerTip(QObject& watched, const QHelpEvent& event) {
  auto* widget = qobject_cast<QWidget*>(&watched);
  if (widget == nullptr) return false;
  const QString tip = widget->toolTip();
  if (!tip.isEmpty() && !Qt::mightBeRichText(tip)) {
    ShowTip(*widget, event.globalPos(), tip);
    return true;
  }
  constexpr int kLeast = 8;
  const int most = MenuFont(*widget->window()).pixelSize();
  const int room = qRound(widget->screen()->availableSize().width() * kWidest);
  SetLook(ScreenFont(FittingPixels({{QString(kLongestTipLine, u'0'), room}}, most, kLeast)));
  return false;
}

}  // namespace kav
