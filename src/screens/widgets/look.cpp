#include "screens/widgets/look.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "screens/widgets/screen_part.h"

namespace kav {

namespace {

// Of the program, as its fonts are: widgets of all windows ask for them.
double textShare = 1;
double desktopTextShare = 1;

/// The face that the keys are made for, if it is installed, else the one closest to it in shape and
/// width.
QString FaceName() {
  const QStringList installed = QFontDatabase::families();
  for (const char* face : {"Tahoma", "DejaVu Sans Condensed", "DejaVu Sans", "Verdana"}) {
    if (installed.contains(QLatin1String(face))) return face;
  }
  return "Tahoma";  // with the hint below, the system finds a stand-in
}

/// What a window with a frame like that of `window` may fill of the desktop.
QRect RoomFor(const QWidget& window) {
  const QRect inner = window.geometry();
  const QRect outer = window.frameGeometry();
  return window.screen()->availableGeometry().adjusted(
      inner.left() - outer.left(), inner.top() - outer.top(), inner.right() - outer.right(),
      inner.bottom() - outer.bottom());
}

/// `area` where `room` holds all of it, or its beginning if it is larger.
QRect MovedInto(const QRect& room, const QRect& area) {
  const int x = std::min(area.x(), room.right() + 1 - area.width());
  const int y = std::min(area.y(), room.bottom() + 1 - area.height());
  return {QPoint(std::max(x, room.x()), std::max(y, room.y())), area.size()};
}

}  // namespace

QFont ScreenFont(int pixels) {
  static const QString kFace = FaceName();
  QFont font(kFace);
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(pixels, 1));
  return font;
}

int FittingPixels(const std::vector<SpacedText>& texts, int most, int least) {
  int pixels = std::max(most, least);
  while (pixels > least) {
    const QFontMetricsF metrics(ScreenFont(pixels));
    double excess = 0;  // the width of the text that is furthest out of its room, by that room
    for (const SpacedText& text : texts) {
      excess = std::max(excess, metrics.horizontalAdvance(text.text) / std::max(text.width, 1));
    }
    if (excess <= 1) break;
    // Widths grow nearly as sizes do: the guess is right, or too large by a pixel or two.
    pixels = std::clamp(static_cast<int>(pixels / excess), least, pixels - 1);
  }
  return pixels;
}

QStringList LongOnes(const QStringList& texts) {
  qsizetype longest = 0;
  for (const QString& text : texts) longest = std::max(longest, text.size());
  QStringList longOnes;
  for (const QString& text : texts) {
    if (3 * text.size() >= 2 * longest) longOnes.append(text);
  }
  return longOnes;
}

int PixelsForLine(int pixels, double height) {
  while (pixels > 1) {
    const double line = QFontMetricsF(ScreenFont(pixels)).lineSpacing();
    if (line <= height) break;
    pixels = std::clamp(static_cast<int>(pixels * height / line), 1, pixels - 1);
  }
  return std::max(pixels, 1);
}

QRect PortraitArea(QSize window) {
  constexpr double kWidest = 3.0 / 4;  // width by height, that of the screens' own display
  constexpr double kTallest = 2;       // height by width: beyond it, keys would be mere strips
  const int width = std::min(window.width(), qRound(window.height() * kWidest));
  const int height = std::min(window.height(), qRound(width * kTallest));
  return {(window.width() - width) / 2, (window.height() - height) / 2, width, height};
}

QRect PortraitArea(const QRect& part) {
  return PortraitArea(part.size()).translated(part.topLeft());
}

QRect ScreenPartOver(const QWidget& opener) {
  const QWidget& window = *opener.window();
  QRect own = window.rect();
  if (const auto* parted = dynamic_cast<const HasScreenPart*>(&window)) own = parted->ScreenPart();
  const QRect part(window.mapToGlobal(own.topLeft()), own.size());
  if (own == window.rect()) return part;
  // The middle of a window may be seen where one of its sides is not.
  return MovedInto(RoomFor(window), part);
}

QRect AreaOver(const QWidget& opener) {
  const QWidget& window = *opener.window();
  const QRect area = PortraitArea(ScreenPartOver(window));
  if (TextShare() <= 1) return area;
  const QRect desktop = window.screen()->availableGeometry();
  const int room = desktop.width() - (window.frameGeometry().width() - window.width());
  const int wanted = std::min(qRound(area.width() * TextShare()), room);
  if (wanted <= area.width()) return area;
  const int left = area.left() - (wanted - area.width()) / 2;
  return {std::clamp(left, desktop.left(), desktop.left() + room - wanted), area.top(), wanted,
          area.height()};
}

double TextShare() {
  return textShare * desktopTextShare;
}

void SetTextShare(double share) {
  textShare = share;
}

void SetDesktopTextShare(double share) {
  desktopTextShare = share;
}

int TextPixels(int height) {
  return qRound(height * 0.036 * TextShare());
}

QRect DialogUnits::Pixels(const QRect& units) const {
  const QPoint topLeft(X(units.x()), Y(units.y()));
  const QPoint end(X(units.x() + units.width()), Y(units.y() + units.height()));
  return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

int DialogUnits::X(int units) const {
  return area_.x() + units * area_.width() / size_.width();
}

int DialogUnits::Y(int units) const {
  return area_.y() + units * area_.height() / size_.height();
}

}  // namespace kav
