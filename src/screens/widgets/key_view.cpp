#include "screens/widgets/key_view.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "line/key_help.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/key_painter.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/tool_tip.h"

namespace kav {
namespace {

/// As keyboards repeat.
constexpr int kRepeatDelayMs = 500;
constexpr int kRepeatIntervalMs = 50;

struct KeyPaint {
  Colour background;
  Colour text;
};

KeyPaint PaintOf(KeyColour colour) {
  switch (colour) {
    case KeyColour::Digit:
      return {Colour::DigitKey, Colour::DigitKeyText};
    case KeyColour::Orange:
      return {Colour::OrangeKey, Colour::OrangeKeyText};
    case KeyColour::ActiveShift:
      return {Colour::ActiveShiftKey, Colour::ActiveShiftKeyText};
    case KeyColour::Mode:
      return {Colour::ModeKey, Colour::ModeKeyText};
    case KeyColour::Editing:
      return {Colour::EditingKey, Colour::EditingKeyText};
    case KeyColour::Equals:
      return {Colour::EqualsKey, Colour::EqualsKeyText};
    case KeyColour::Function:
      break;
  }
  return {Colour::FunctionKey, Colour::FunctionKeyText};
}

KeyColours ColoursOf(KeyColour colour) {
  const auto [background, text] = PaintOf(colour);
  return {ColourNow(background), ColourNow(text)};
}

}  // namespace

KeyView::KeyView(KeySpot spot, QWidget* parent) : QAbstractButton(parent), spot_(std::move(spot)) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  if (!spot_.repeats) return;
  setAutoRepeat(true);
  setAutoRepeatDelay(kRepeatDelayMs);
  setAutoRepeatInterval(kRepeatIntervalMs);
}

void KeyView::Show(const QString& caption) {
  if (text() == caption) return;
  setText(caption);
  // A new text takes the old one's shortcut away.
  setShortcut(QKeySequence(QLatin1String(spot_.shortcut)));
  setAccessibleDescription(ToQt(DescriptionOf(CaptionNow(), spot_.shortcut)));
}

void KeyView::Show(KeyLettering lettering) {
  lettering_ = lettering;
  if (!spot_.shortcut.empty()) update();
}

FaceText KeyView::CaptionNow() const {
  const auto& all = spot_.captions;
  const auto now = std::find_if(all.begin(), all.end(), [shown = text()](const FaceText& one) {
    return ToQt(one.caption) == shown;
  });
  return now != all.end() ? *now : FaceText{};
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

void KeyView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (lettering_ == KeyLettering::Captions || spot_.shortcut.empty()) {
    return PaintKey(painter, *this, ColoursOf(spot_.colour), TextFont());
  }
  const QString keys = QLatin1String(spot_.shortcut);
  const int text = FittingPixels({{keys, TextWidth()}}, textHeight_, 1);
  PaintKey(painter, *this, ColoursOf(spot_.colour), ScreenFont(text), keys);
}

bool KeyView::event(QEvent* event) {
  if (event->type() == QEvent::Enter) isTouched_ = false;
  if (event->type() != QEvent::ToolTip) return QAbstractButton::event(event);
  if (!isTouched_) {
    ShowTip(*this, static_cast<QHelpEvent*>(event)->globalPos(),
            ToQt(TipOf(CaptionNow(), spot_.shortcut)));
  }
  return true;
}

void KeyView::mousePressEvent(QMouseEvent* event) {
  hasRepeated_ = false;
  isTouched_ = event->source() != Qt::MouseEventNotSynthesized;
  QAbstractButton::mousePressEvent(event);
}

void KeyView::keyPressEvent(QKeyEvent* event) {
  // Space presses the key. All else, arrows and Enter included, is for the sheet or the screen.
  if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select) {
    if (!event->isAutoRepeat()) hasRepeated_ = false;
    QAbstractButton::keyPressEvent(event);
  } else {
    event->ignore();
  }
}

void KeyView::keyReleaseEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat() && EndsRepeating()) return;
  QAbstractButton::keyReleaseEvent(event);
}

void KeyView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && EndsRepeating()) return;
  QAbstractButton::mouseReleaseEvent(event);
}

/// Lets the key go without the work of a tap, if it has done its work while it was held.
bool KeyView::EndsRepeating() {
  if (!std::exchange(hasRepeated_, false) || !isDown()) return false;
  setDown(false);
  return true;
}

void KeyView::timerEvent(QTimerEvent* event) {
  // The button's own timer works only while it is down, not beside it.
  if (spot_.repeats && isDown()) hasRepeated_ = true;
  QAbstractButton::timerEvent(event);
}

}  // namespace kav
