#include "screens/widgets/pop_up.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QHoverEvent>
#include <QMenu>
#include <QStringList>
#include <algorithm>

#include "line/keypad.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Takes the mouse off the keys of `window`. One that it left while a menu was open has not heard
/// of that, and would look as if it was still there.
void ForgetMouse(const QWidget& window) {
  constexpr QPointF kOutside(-1, -1);
  for (auto* key : window.findChildren<QAbstractButton*>()) {
    if (!key->underMouse()) continue;
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(key, &leave);
    QHoverEvent hover(QEvent::HoverLeave, kOutside, kOutside, kOutside);
    QApplication::sendEvent(key, &hover);
  }
}

}  // namespace

QMenu* NewPopUp(QWidget* owner, const QFont& font) {
  auto* menu = new QMenu(owner);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  DressMenu(*menu, font);
  QObject::connect(menu, &QMenu::aboutToHide, owner, [owner] { ForgetMouse(*owner->window()); });
  return menu;
}

QString TipOf(std::u16string_view text) {
  constexpr qsizetype kLongestTip = 2400;
  const QString shown = ToQt(text.substr(0, kLongestTip));
  QStringList lines;
  for (const QString& line : shown.split(u'\n')) {
    for (qsizetype at = 0; at == 0 || at < line.size(); at += kLongestTipLine) {
      lines.append(line.mid(at, kLongestTipLine).toHtmlEscaped());
    }
  }
  if (shown.size() < static_cast<qsizetype>(text.size())) lines.last() += u'…';
  return "<div style='white-space: pre'>" + lines.join("<br>") + "</div>";
}

QFont MenuFont(const QWidget& window) {
  // A dialog has made its letters as large as it has room for.
  if (qobject_cast<const QDialog*>(&window) != nullptr) return window.font();
  return ScreenFont(TextPixels(PortraitArea(window.size()).height()));
}

void DressMenu(QMenu& menu, const QFont& font) {
  menu.setStyle(ScreenStyle());
  Wear(menu, Attire::Window);
  menu.setFont(font);
}

void DressMenu(QMenu& menu, const QFont& font, const QWidget& window) {
  DressMenu(menu, font);
  const int room = AreaOver(window).width();
  int pixels = font.pixelSize();
  // An entry may be a long name of the user's: letters stay large enough to be read, half as large
  // as usual.
  const int least = qRound(pixels / std::max(TextShare(), 1.0)) / 2;
  while (pixels > least && menu.sizeHint().width() > room) menu.setFont(ScreenFont(--pixels));
}

void PopUpAt(QMenu& menu, const QWidget& window, const MenuPlace& place) {
  PopUpAt(menu, window, PortraitArea(window.size()), place);
}

void PopUpAt(QMenu& menu, const QWidget& window, const QRect& area, const MenuPlace& place) {
  const QRect point =
      DialogUnits(area, QSize(kPlaceWidth, kPlaceHeight)).Pixels(QRect(place.x, place.y, 1, 1));
  const int left = place.side == MenuSide::Left ? point.x() : point.x() - menu.sizeHint().width();
  menu.popup(window.mapToGlobal(QPoint(left, point.y())));
}

}  // namespace kav
