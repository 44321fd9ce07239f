// Tips in the letters of the screens.
#pragma once

#include <QPoint>
#include <QString>
#include <string_view>

class QAbstractButton;
class QHelpEvent;
class QObject;
class QWidget;

namespace kav {

/// Shows `text` near `place` of the desktop, as long as the mouse rests on `widget`: in lines that
/// are no wider than the screen it belongs to.
void ShowTip(QWidget& widget, QPoint place, const QString& text);

/// Tells a mouse that rests on `button`, and screen readers, what it does, in a few words. A finger
/// is told nothing.
void Explain(QAbstractButton& button, std::u16string_view description);

/// Shows the tip that `watched` has as a property, in this way. Else the widget itself is to answer
/// `event`, in letters at which the longest line of TipOf has room on the desktop.
bool AnswerTip(QObject& watched, const QHelpEvent& event);

}  // namespace kav
