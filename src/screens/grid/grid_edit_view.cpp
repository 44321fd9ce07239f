#include "screens/grid/grid_edit_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <array>

#include "common/number_text.h"
#include "screens/widgets/look.h"

namespace kav {
namespace {

constexpr std::array kEndingKeys{Qt::Key_Return, Qt::Key_Enter,   Qt::Key_Escape,
                                 Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Up,
                                 Qt::Key_Down,   Qt::Key_PageUp,  Qt::Key_PageDown};

bool EndsEdit(const QKeyEvent& event) {
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) {
    return false;
  }
  return std::find(kEndingKeys.begin(), kEndingKeys.end(), event.key()) != kEndingKeys.end();
}

}  // namespace

GridEdit::GridEdit(QWidget* parent, Hooks hooks) : QLineEdit(parent), hooks_(std::move(hooks)) {
  setStyle(ScreenStyle());
  setFrame(false);
  setMaxLength(kLongestText);
  hide();
}

QString GridEdit::TypedText() const {
  return QString::fromStdU16String(OnOneLine(text().toStdU16String()));
}

bool GridEdit::event(QEvent* event) {
  const bool isShortcut = event->type() == QEvent::ShortcutOverride;
  if (isShortcut || event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (EndsEdit(key)) {
      event->accept();
      // The box may be closed by this: nothing of it is touched after.
      if (!isShortcut) hooks_.key(key.key(), key.modifiers());
      return true;
    }
  }
  return QLineEdit::event(event);
}

void GridEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  const int line = 2 * std::max(1, height() / 26);
  painter.setPen(QPen(palette().color(QPalette::Highlight), line, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.drawRect(rect().adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

void GridEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // The box's own menu takes the focus only for as long as it is open.
  if (event->reason() != Qt::PopupFocusReason) hooks_.focusLost();
}

}  // namespace kav
