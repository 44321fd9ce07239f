#include "app/window_place.h"

#include <QWidget>
#include <algorithm>
#include <array>
#include <limits>

#include "common/number_text.h"
#include "screens/widgets/look.h"

namespace kav {
namespace {

constexpr QSize kComfortable(360, 560);
constexpr std::string_view kMaximized = "maximized";

/// Cuts the first word off `text`.
std::string_view TakeWord(std::string_view& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

std::optional<int> TakeInteger(std::string_view& text) {
  // No desktop is larger, and sums of two such numbers are far from the end of the integers.
  constexpr double kLargest = 1 << 20;
  const std::optional<double> number = ReadWholeNumber(TakeWord(text));
  if (!number || !(*number >= -kLargest && *number <= kLargest)) return std::nullopt;
  return static_cast<int>(*number);
}

int Overlap(const QRect& a, const QRect& b) {
  const QSize common = a.intersected(b).size();
  return common.isEmpty() ? 0 : common.width() * common.height();
}

}  // namespace

std::string PrintPlace(const WindowPlace& place) {
  std::string text;
  for (const int number :
       {place.rect.x(), place.rect.y(), place.rect.width(), place.rect.height()}) {
    if (!text.empty()) text += ' ';
    text += PrintInteger(number);
  }
  if (place.isMaximized) text.append(" ").append(kMaximized);
  return text;
}

std::optional<WindowPlace> ReadPlace(std::string_view text) {
  std::array<int, 4> numbers{};
  for (int& number : numbers) {
    const std::optional<int> read = TakeInteger(text);
    if (!read) return std::nullopt;
    number = *read;
  }
  const QRect rect(numbers[0], numbers[1], numbers[2], numbers[3]);
  if (rect.isEmpty() || !(text.empty() || text == kMaximized)) return std::nullopt;
  return WindowPlace{rect, text == kMaximized};
}

QRect MovedOntoDesktop(const QRect& wanted, std::span<const QRect> desktops) {
  const QRect& desktop = *std::max_element(
      desktops.begin(), desktops.end(),
      [&](const QRect& a, const QRect& b) { return Overlap(a, wanted) < Overlap(b, wanted); });
  QRect place(wanted.topLeft(), wanted.size().boundedTo(desktop.size()));
  place.moveLeft(std::clamp(place.x(), desktop.x(), desktop.x() + desktop.width() - place.width()));
  place.moveTop(
      std::clamp(place.y(), desktop.y(), desktop.y() + desktop.height() - place.height()));
  return place;
}

QRect FirstPlace(const QRect& desktop) {
  QRect place(QPoint(0, 0), kComfortable.boundedTo(desktop.size()));
  place.moveCenter(desktop.center());
  return place;
}

QRect PlaceInFrame(const QRect& frame, const QMargins& margins, std::span<const QRect> desktops) {
  const QRect place = MovedOntoDesktop(frame, desktops);
  // A window is moved by the corner of its frame.
  return {place.topLeft(), place.marginsRemoved(margins).size()};
}

GrownSize Grown(QSize first, int percent, QSize most) {
  constexpr int kWhole = 100;
  const auto share = [](int part, int whole) { return part * kWhole / std::max(whole, 1); };
  // A window that is larger than that already does not shrink for it.
  const int largest = std::max(
      kWhole, std::min(share(most.width(), first.width()), share(most.height(), first.height())));
  const auto atLeast = [](int part, int whole) {
    return (part * kWhole + whole - 1) / std::max(whole, 1);
  };
  const int smallest =
      std::min(kWhole, std::max(atLeast(kSmallestWindow.width(), first.width()),
                                atLeast(kSmallestWindow.height(), first.height())));
  const int taken = std::clamp(percent, smallest, largest);
  return {first * taken / kWhole, taken};
}

WindowPlace PlaceOf(const QWidget& window) {
  if (!window.isMaximized() && !window.isFullScreen()) {
    return {QRect(window.pos(), window.size())};
  }
  // A window is moved by the corner of its frame, but its normal place is known without the frame.
  const QPoint frame = window.geometry().topLeft() - window.pos();
  const QRect normal = window.normalGeometry();
  return {QRect(normal.topLeft() - frame, normal.size()), window.isMaximized(),
          window.isFullScreen()};
}

void TakePlace(QWidget& window, const WindowPlace& place) {
  window.move(place.rect.topLeft());
  window.resize(place.rect.size());
  if (place.isMaximized) window.setWindowState(window.windowState() | Qt::WindowMaximized);
  if (place.fillsScreen) window.setWindowState(window.windowState() | Qt::WindowFullScreen);
}

}  // namespace kav
