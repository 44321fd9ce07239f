// The colours that all windows have now, and how they come to have others.
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include "display/look_settings.h"
#include "screens/widgets/colours.h"

class QWidget;

namespace kav {

/// The scheme for what the user chose, on a desktop with the colours `desktop` and the set of icons
/// called `icons`. A desktop is dark if its texts are lighter than its windows; it has high
/// contrast if its windows, fields and buttons are next to black and white, at least 20:1, or if
/// its icons are those for high contrast.
ColourScheme SchemeFor(ColourChoice choice, const QPalette& desktop, const QString& icons);

/// Gives all windows, those that are open too, the colours of `choice`. The desktop's colours are
/// those of the application, which this program leaves as they are.
void UseColours(ColourChoice choice);
/// The same again, for a desktop that has other colours now.
void FollowDesktop();

ColourScheme SchemeNow();
QColor ColourNow(Colour what);

/// All colours of a window now. A widget that is to have them gets them by Wear, so that it has
/// others as soon as the user or the desktop changes them.
const QPalette& ScreenPalette();

/// What a widget wears: all colours of a window, or some of its own over those of its parent.
enum class Attire { Window, Result, Refusable, Refused, Choices };

/// Gives `widget` the colours of `attire`, now and whenever the scheme changes.
void Wear(QWidget& widget, Attire attire);

}  // namespace kav
