// What all screens have in common to the eye: face, colours, the portrait area and its units.
#pragma once

#include <QFont>
#include <QPalette>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <vector>

class QStyle;

namespace kav {

/// The face of everything on a screen, `pixels` high (at least 1).
QFont ScreenFont(int pixels);

/// A text and the pixels that it may take across.
struct SpacedText {
  QString text;
  int width;
};

/// The largest size in pixels, from `most` down to `least`, at which each of the texts has room;
/// `least` where there is none.
int FittingPixels(const std::vector<SpacedText>& texts, int most, int least);

/// Those of `texts` that may be the widest in some face: not those with less than two thirds of the
/// characters of the longest. To measure a few hundred takes longer than a dialog may to open.
QStringList LongOnes(const QStringList& texts);

/// `pixels`, or the largest size below at which a line is no higher than `height` pixels; at
/// least 1. The lines of some faces are much higher than their letters.
int PixelsForLine(int pixels, double height);

/// The colours of a screen, whatever the desktop's are: those of the keys are made for a light one.
QPalette ScreenPalette();

/// Beside the portrait area of a wide window.
QColor BackdropColour();

/// The desktop's style, but for measures that are a fixed number of pixels there and here grow with
/// the text: the room around the entries of menus, ticks, arrows, the caret. A widget does not hand
/// it on to those within it. The application owns it.
QStyle* ScreenStyle();

/// What a list that drops down keeps free before its text, in pixels.
inline constexpr int kChoiceMargin = 1;

/// The part of a window of `window` pixels that a screen fills: all of it as long as it stands
/// upright, else a centred column.
QRect PortraitArea(QSize window);

/// The height of the running text, menus and dialogs alike, of a screen whose portrait area is
/// `height` pixels high.
int TextPixels(int height);

/// Places in dialog units, in pixels. Neighbours in units stay neighbours in pixels, without gaps
/// and overlaps, whatever the scale.
class DialogUnits {
 public:
  /// `area` pixels hold `size` units.
  DialogUnits(const QRect& area, QSize size) : area_(area), size_(size) {}

  QRect Pixels(const QRect& units) const;

 private:
  int X(int units) const;
  int Y(int units) const;

  QRect area_;
  QSize size_;
};

}  // namespace kav
