// Tips in the letters of the screens.
#pragma once

#include <QPoint>
#include <QString>

class QWidget;

namespace kav {

/// Shows `text` near `place` of the desktop, as long as the mouse rests on `widget`: in lines that
/// are no wider than the screen it belongs to.
void ShowTip(QWidget& widget, QPoint place, const QString& text);

}  // namespace kav
