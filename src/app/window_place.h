// Where a window stands on the desktop, as the settings keep it.
#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>
#include <optional>
#include <span>
#include <string>
#include <string_view>

class QWidget;

namespace kav {

/// Place and size of a window that is neither maximized nor fills the screen, and whether it does.
struct WindowPlace {
  QRect rect;
  bool isMaximized = false;
  bool fillsScreen = false;  ///< for the next window only: it is not printed

  bool operator==(const WindowPlace&) const = default;
};

/// "x y width height", followed by "maximized" if it is.
std::string PrintPlace(const WindowPlace& place);

/// The place that PrintPlace wrote as `text`; nullopt for any other text.
std::optional<WindowPlace> ReadPlace(std::string_view text);

/// `wanted`, moved and if necessary shrunk to lie within the desktop that it overlaps most.
/// `desktops` has at least one; the first is the main one.
QRect MovedOntoDesktop(const QRect& wanted, std::span<const QRect> desktops);

/// Where a first window opens on a desktop: in its middle, of a comfortable size.
QRect FirstPlace(const QRect& desktop);

/// The place for a window within a frame that takes `frame` with `margins` of it around the window:
/// moved and shrunk so that the frame lies within the desktop that it overlaps most.
QRect PlaceInFrame(const QRect& frame, const QMargins& margins, std::span<const QRect> desktops);

/// A size, and how large it is beside one that was asked for, in percent.
struct GrownSize {
  QSize size;
  int percent;
};

/// A window of `first` pixels grown by `percent`, or shrunk: in its shape, and as far as `most` and
/// kSmallestWindow let it.
GrownSize Grown(QSize first, int percent, QSize most);

/// Reads and sets the place of a window.
WindowPlace PlaceOf(const QWidget& window);
void TakePlace(QWidget& window, const WindowPlace& place);

}  // namespace kav
