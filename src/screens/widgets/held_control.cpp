#include "screens/widgets/held_control.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace kav {
namespace {

constexpr int kHeldMs = 500;

/// Whether Ctrl is not held alone any more.
bool IsEnd(const QEvent& event) {
  switch (event.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
      return static_cast<const QKeyEvent&>(event).key() != Qt::Key_Control;
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::WindowDeactivate:
      return true;
    default:
      return false;
  }
}

}  // namespace

void HeldControl::Hear(const QKeyEvent& key) {
  if (key.key() != Qt::Key_Control || key.isAutoRepeat()) return;
  timer_.start(kHeldMs, this);
  // Fields use up what is pressed. What happens in the program is watched no longer than needed.
  QCoreApplication::instance()->installEventFilter(this);
}

bool HeldControl::eventFilter(QObject*, QEvent* event) {
  if (IsEnd(*event)) End();
  return false;
}

void HeldControl::timerEvent(QTimerEvent*) {
  timer_.stop();
  isShown_ = true;
  show_(KeyLettering::Shortcuts);
}

void HeldControl::End() {
  timer_.stop();
  QCoreApplication::instance()->removeEventFilter(this);
  if (std::exchange(isShown_, false)) show_(KeyLettering::Captions);
}

}  // namespace kav
