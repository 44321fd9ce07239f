#include "screens/widgets/bottom_menu_bar.h"

#include <QActionEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

#include "screens/widgets/app_texts.h"
#include "screens/widgets/look.h"
#include "screens/widgets/pop_up.h"
#include "screens/widgets/qt_text.h"

namespace kav {
BottomMenuBar::BottomMenuBar(QWidget* parent) : QMenuBar(parent) {
  setNativeMenuBar(false);  // the desktop's own would not stand at the bottom
  setAccessibleName(ToQt(kMenuBarName));
}

void BottomMenuBar::SetLetters(const QFont& font) {
  setFont(font);
  if (style() != ScreenStyle()) setStyle(ScreenStyle());
}

void BottomMenuBar::Enter() {
  // Qt has no other way into that state. (The release of a modifier key still has that key's bit.)
  QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::AltModifier);
  QCoreApplication::sendEvent(window(), &press);
  QCoreApplication::sendEvent(window(), &release);
}

void BottomMenuBar::actionEvent(QActionEvent* event) {
  QMenuBar::actionEvent(event);
  QMenu* menu = event->action()->menu();
  if (event->type() != QEvent::ActionAdded || menu == nullptr) return;
  menu->setAccessibleName(menu->title().remove(u'&'));
  connect(menu, &QMenu::aboutToShow, this, [this, menu] { DressMenu(*menu, font(), *window()); });
}

void BottomMenuBar::keyPressEvent(QKeyEvent* event) {
  const bool next = event->key() == Qt::Key_Tab;
  if (!next && event->key() != Qt::Key_Backtab) return QMenuBar::keyPressEvent(event);
  focusNextPrevChild(next);
}

void BottomMenuBar::paintEvent(QPaintEvent* event) {
  QMenuBar::paintEvent(event);
  QPainter painter(this);
  // The line that sets a menu bar off from what is below it belongs above this one.
  painter.fillRect(0, height() - 1, width(), 1, palette().color(QPalette::Window));
  painter.fillRect(0, 0, width(), 1, palette().color(QPalette::Mid).lighter(120));
  if (!hasFocus() || activeAction() == nullptr) return;
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(actionGeometry(activeAction()).adjusted(0, 2, -1, -2));
}

}  // namespace kav
