#include "screens/widgets/line_screen.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>
#include <utility>

#include "line/line_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/offer_strip.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Whether the focus only returns from a menu or another window.
bool IsReturn(const QFocusEvent& event) {
  return event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason ||
         event.reason() == Qt::ActiveWindowFocusReason;
}

}  // namespace

LineScreen::LineScreen(Frame& frame, QSize size, std::vector<KeySpot> keys)
    : KeyScreen(frame, size), line_(new ExpressionView(this)), result_(new ResultView(this)) {
  line_->setAccessibleName(ToQt(kExpressionName));
  line_->setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  line_->installEventFilter(this);
  OpenDoor(*line_, DoorKind::Line);
  result_->setAccessibleName(ToQt(kResultName));
  connect(line_, &QLineEdit::textChanged, this, [this] { ShowLive(); });
  AddKeys(std::move(keys));
}

/// Presses the key of the screen that `event` stands for; whether there is one.
bool LineScreen::PressKeyOf(const QKeyEvent& event) {
  if (event.text() == u"=" || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
    OnEquals();
    return true;
  }
  if (event.key() != Qt::Key_Escape) return false;
  OnClear();
  return true;
}

bool LineScreen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    // Before the line, which would write the "=" and uses Enter and Esc itself. It would also write
    // the letter of Alt and a letter, if that key is disabled.
    const auto& pressed = *static_cast<QKeyEvent*>(event);
    return PressKeyOf(pressed) || pressed.modifiers() == Qt::AltModifier;
  }
  if (event->type() == QEvent::InputMethod &&
      static_cast<QInputMethodEvent*>(event)->commitString() == u"=") {
    OnEquals();
    return true;
  }
  // A user who goes to the line is done with the result; a menu only gives the focus back.
  if (event->type() == QEvent::FocusIn && !IsReturn(*static_cast<QFocusEvent*>(event))) {
    result_->deselect();
  }
  return KeyScreen::eventFilter(watched, event);
}

void LineScreen::keyPressEvent(QKeyEvent* event) {
  if (PressKeyOf(*event)) return;
  if (focusWidget() == line_) return PressInLine(*event);
  if (!IsTyping(*event)) return KeyScreen::keyPressEvent(event);
  line_->setFocus();
  // Out of the keys one only comes back to the line.
  if (event->key() == Qt::Key_Up) return;
  QCoreApplication::sendEvent(line_, event);
}

/// What the line itself has no use for.
void LineScreen::PressInLine(QKeyEvent& event) {
  const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (event.key() == Qt::Key_Up && isPlain) {
    return WriteLine(*line_, walk_.Up(LineIn(*line_), [this] { return EarlierLines(); }));
  }
  if (event.key() == Qt::Key_Down) {
    const auto later = isPlain ? walk_.Down(LineIn(*line_)) : std::nullopt;
    return later ? WriteLine(*line_, *later) : Keys().Enter();
  }
  KeyScreen::keyPressEvent(&event);
}

void LineScreen::FinishLine() {
  walk_.End();
  ShowFault(std::nullopt, std::nullopt);
}

void LineScreen::ShowFault(std::optional<Selection> place,
                           const std::optional<std::u16string>& mended) {
  line_->MarkFault(place);
  if (mended == offered_) return;
  offered_ = mended;
  if (offers_ != nullptr) offers_->Drop();
  if (!mended) return;
  if (offers_ == nullptr) {
    offers_ = new OfferStrip(this);
    offers_->StandBelow(*result_);
  }
  offers_->Offers(*line_, kDidYouMean, {{*mended, [this] { OnMend(); }}});
}

void LineScreen::ShowLive() {
  line_->ShowLive(LiveResult(TextOf(*line_)));
}

QLineEdit& LineScreen::Edited() const {
  if (result_->hasSelectedText()) return *result_;
  return *line_;
}

void LineScreen::Edit(EditCommand command) {
  EditLine(Edited(), command);
}

bool LineScreen::CanEdit(EditCommand command) const {
  return CanEditLine(Edited(), command);
}

void LineScreen::SaveAfterPainting(const std::function<void()>& save) {
  // The disk may be slow, and the user waits for the answer.
  line_->repaint();
  result_->repaint();
  QTimer::singleShot(0, this, [this, save] {
    save();
    ParentFrame().SaveStore();
  });
}

}  // namespace kav
