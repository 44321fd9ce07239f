// The menus that open over a screen or a dialog.
#pragma once

#include <QFont>
#include <QPoint>
#include <QRect>
#include <QString>
#include <string_view>

class QMenu;
class QWidget;

namespace kav {

struct MenuPlace;

/// An empty menu with the look of the screens and letters of `font`. It belongs to `owner`, and is
/// deleted when it is closed.
QMenu* NewPopUp(QWidget* owner, const QFont& font);

/// The characters of a line of a tip, at most.
inline constexpr int kLongestTipLine = 60;

/// `text`, with its line breaks, as a tip shows it as a whole: in lines that a screen has room for,
/// and nothing in it is markup. Of a text that would fill the desktop, the beginning.
QString TipOf(std::u16string_view text);

/// The letters of the menus of a screen or dialog, `window`.
QFont MenuFont(const QWidget& window);

/// Gives `menu` the look of the screens and letters of `font`.
void DressMenu(QMenu& menu, const QFont& font);
/// The same, with smaller letters if it would be wider than `window` else.
void DressMenu(QMenu& menu, const QFont& font, const QWidget& window);

/// Opens `menu` at `place` of the screen or dialog `window`.
void PopUpAt(QMenu& menu, const QWidget& window, const MenuPlace& place);
/// The same for a screen that fills `area` of `window`.
void PopUpAt(QMenu& menu, const QWidget& window, const QRect& area, const MenuPlace& place);

}  // namespace kav
