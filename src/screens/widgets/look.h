// The common look of all screens: font, colours, the portrait area and its units.
#pragma once

#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <vector>

class QStyle;
class QWidget;

namespace kav {

/// The face of everything on a screen, `pixels` high (at least 1).
QFont ScreenFont(int pixels);

/// A text and its room in pixels across.
struct SpacedText {
  QString text;
  int width;
};

/// The largest size in pixels, from `most` down to `least`, at which each of the texts has room;
/// `least` if there is no such size.
int FittingPixels(const std::vector<SpacedText>& texts, int most, int least);

/// Those of `texts` that may be the widest in some face: not those with less than two thirds of the
/// characters of the longest. To measure a few hundred takes longer than a dialog may to open.
QStringList LongOnes(const QStringList& texts);

/// The largest size from `pixels` down to 1 at which a line is no higher than `height` pixels. The
/// lines of some fonts are much higher than their letters.
int PixelsForLine(int pixels, double height);

/// The desktop's style, except that fixed numbers of pixels grow with the text: the room around the
/// entries of menus, ticks, arrows, the caret. It has to be set on each widget: children do not
/// inherit it. The application owns it.
QStyle* ScreenStyle();

/// The free pixels before the text of a drop-down list.
inline constexpr int kChoiceMargin = 1;

/// No window is smaller, in logical pixels.
inline constexpr QSize kSmallestWindow(180, 240);

/// The part of a window of `window` pixels that a screen fills: all of it if it is upright, else a
/// centred column.
QRect PortraitArea(QSize window);
/// The same within `part` of a window.
QRect PortraitArea(const QRect& part);

/// The part of the desktop where the screen of the window of `opener` stands: all of the window,
/// unless something stands beside the screen. Only then it is moved to where the desktop shows it.
QRect ScreenPartOver(const QWidget& opener);

/// The part of the desktop that what `opener` opens may cover: the portrait area of the screen. For
/// texts larger than usual it is wider, as far as the desktop is, and they have room to be larger.
QRect AreaOver(const QWidget& opener);

/// How much larger than usual the texts of all windows are to be where they have room: what the
/// user wants of a window of a size, and of the desktop. Windows take a new share when they are
/// laid out the next time.
double TextShare();
void SetTextShare(double share);
void SetDesktopTextShare(double share);

/// The height in pixels of the text of menus and dialogs, if the portrait area is `height` pixels
/// high.
int TextPixels(int height);

/// Converts places in dialog units to pixels. Neighbours in units stay neighbours in pixels,
/// without gaps or overlaps, at any scale.
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
