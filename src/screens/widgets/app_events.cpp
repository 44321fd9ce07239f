#include "screens/widgets/app_events.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/pop_up.h"
#include "screens/widgets/tool_tip.h"
#include "screens/widgets/word_selection.h"

namespace kav {
namespace {

bool IsKeypadSeparator(const QKeyEvent& key) {
  constexpr Qt::KeyboardModifiers kCommands =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (!key.modifiers().testFlag(Qt::KeypadModifier) || (key.modifiers() & kCommands)) return false;
  return key.key() == Qt::Key_Comma || (key.key() == Qt::Key_Period && key.text() != u".");
}

/// Gives `receiver` the point that `key` stands for in its place.
void SendPoint(QObject* receiver, QKeyEvent& key) {
  QKeyEvent point(key.type(), Qt::Key_Period, key.modifiers(), QString(u'.'), key.isAutoRepeat(),
                  static_cast<ushort>(key.count()));
  point.setAccepted(key.isAccepted());
  QCoreApplication::sendEvent(receiver, &point);
  key.setAccepted(point.isAccepted());
}

bool IsCtrlY(const QKeyEvent& key) {
  return key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier;
}

/// Gives `receiver` the keys that redo on every desktop in place of those that do so on some.
void SendRedo(QObject* receiver, QKeyEvent& key) {
  QKeyEvent redo(key.type(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, QString(),
                 key.isAutoRepeat(), static_cast<ushort>(key.count()));
  redo.setAccepted(key.isAccepted());
  QCoreApplication::sendEvent(receiver, &redo);
  key.setAccepted(redo.isAccepted());
}

void DressPolished(QMenu& menu) {
  if (menu.parentWidget() == nullptr) return;
  const QWidget& window = *menu.parentWidget()->window();
  const auto* bar = qobject_cast<const QMenuBar*>(menu.parentWidget());
  if (bar == nullptr) return DressMenu(menu, MenuFont(window), window);
  // Polished with its window, long before that has its size, it cannot be fitted yet.
  DressMenu(menu, bar->font());
}

void Dress(QObject* watched) {
  if (auto* menu = qobject_cast<QMenu*>(watched)) DressPolished(*menu);
  DressFileBox(*watched);
}

}  // namespace

AppEvents::AppEvents() {
  qApp->installEventFilter(this);
}

bool AppEvents::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
      auto& key = *static_cast<QKeyEvent*>(event);
      if (IsKeypadSeparator(key)) {
        SendPoint(watched, key);
        return true;
      }
      if (!IsCtrlY(key)) return false;
      SendRedo(watched, key);
      return true;
    }
    case QEvent::MouseButtonDblClick:
      return SelectWord(*watched, *event);
    case QEvent::ApplicationPaletteChange:
    case QEvent::ThemeChange:
      if (watched == qApp) FollowDesktop();
      return false;
    case QEvent::ToolTip:
      return AnswerTip(*watched, *static_cast<QHelpEvent*>(event));
    case QEvent::Polish:
      Dress(watched);
      return false;
    default:
      return false;
  }
}

}  // namespace kav
