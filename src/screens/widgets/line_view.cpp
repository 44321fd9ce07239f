#include "screens/widgets/line_view.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <algorithm>
#include <utility>

#include "common/number_text.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// The share of a result line's height that its text takes, at most and at least.
constexpr double kLargestText = 0.68;
constexpr double kSmallestText = 0.3;
/// Or at most so much, if the user wants large texts.
constexpr double kLargestWanted = 0.8;

/// As long as a line can be; beyond, widths in pixels leave the range that Qt lays text out in.
constexpr int kLongestText = 1 << 20;

/// Keeps the selection of a line, and its direction, over what the line does with it meanwhile.
class SelectionKeeper {
 public:
  explicit SelectionKeeper(QLineEdit& line)
      : line_(line),
        caret_(line.cursorPosition()),
        start_(line.selectionStart()),
        length_(line.selectionLength()) {}
  SelectionKeeper(const SelectionKeeper&) = delete;
  SelectionKeeper& operator=(const SelectionKeeper&) = delete;
  ~SelectionKeeper() {
    if (length_ == 0) {
      line_.deselect();
      line_.setCursorPosition(caret_);
    } else if (caret_ == start_) {
      line_.setSelection(start_ + length_, -length_);
    } else {
      line_.setSelection(start_, length_);
    }
  }

 private:
  QLineEdit& line_;
  int caret_;
  int start_;
  int length_;
};

/// How round the corners of a line are: as those of the keys in the portrait area, also where the
/// line is a part of it, or in a wide window as those of a key as high as the line.
double CornerOf(const QWidget& line) {
  const int area = PortraitArea(line.window()->size()).width();
  return std::min(std::max(line.width(), area) * 0.014, line.height() * 0.2);
}

}  // namespace

LineView::LineView(QWidget* parent) : QLineEdit(parent) {
  setStyle(ScreenStyle());
  setFrame(false);
  setMaxLength(kLongestText);
}

void LineView::SetTextHeight(int pixels) {
  setFont(ScreenFont(PixelsForLine(pixels, height())));
  const int margin = std::max(3, pixels / 4);
  setTextMargins(margin, 0, margin, 0);
}

double LineView::FocusLine() const {
  return 2 * std::max(1.0, height() / 60.0);
}

void LineView::initStyleOption(QStyleOptionFrame* option) const {
  QLineEdit::initStyleOption(option);
  // The outline of other fields has other corners, and would look out from under this one.
  option->features |= QStyleOptionFrame::Flat;
}

void LineView::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double line = FocusLine() / (hasFocus() ? 1 : 2);
  const double radius = CornerOf(*this);
  const QRectF outline = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
  QPainterPath corners;
  corners.addRect(rect());
  corners.addRoundedRect(outline, radius, radius);
  painter.fillPath(corners, palette().color(QPalette::Window));
  painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), line));
  painter.drawRoundedRect(outline, radius, radius);
}

void LineView::focusInEvent(QFocusEvent* event) {
  const SelectionKeeper keeper(*this);
  QLineEdit::focusInEvent(event);
}

void LineView::focusOutEvent(QFocusEvent* event) {
  const SelectionKeeper keeper(*this);
  QLineEdit::focusOutEvent(event);
}

std::u16string TextOf(const QLineEdit& line) {
  return OnOneLine(line.text().toStdU16String());
}

Selection SelectionOf(const QLineEdit& line) {
  if (!line.hasSelectedText()) {
    const auto caret = static_cast<std::size_t>(line.cursorPosition());
    return {caret, caret};
  }
  return {static_cast<std::size_t>(line.selectionStart()),
          static_cast<std::size_t>(line.selectionEnd())};
}

ExpressionLine LineIn(const QLineEdit& line) {
  ExpressionLine shown;
  shown.Set(TextOf(line), SelectionOf(line));
  return shown;
}

void WriteLine(QLineEdit& widget, const ExpressionLine& line) {
  const std::u16string old = widget.text().toStdU16String();
  if (line.Text() != old) {
    const TextChange change = ChangeBetween(old, line.Text());
    // Undo joins insertions that follow one another as long as the caret does not move between.
    widget.home(false);
    widget.setSelection(static_cast<int>(change.start), static_cast<int>(change.length));
    widget.insert(ToQt(change.text));
  }
  const auto start = static_cast<int>(line.Selected().start);
  const auto end = static_cast<int>(line.Selected().end);
  if (start == end) return widget.setCursorPosition(start);
  widget.setSelection(start, end - start);
}

ResultView::ResultView(QWidget* parent) : LineView(parent) {
  setReadOnly(true);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  Wear(*this, Attire::Result);
}

void ResultView::Show(const std::u16string& text) {
  const QString shown = QString::fromStdU16String(text);
  deselect();
  if (shown == this->text()) return;
  setText(shown);
  setAccessibleDescription(shown);
  setToolTip(shown);
  // Before the first layout, fonts would be loaded for a size that is never seen.
  if (isVisible()) FitText();
}

void ResultView::LayOut(const QRect& place) {
  setGeometry(place);
  FitText();
}

void ResultView::LeaveAtLeft(int pixels) {
  if (std::exchange(atLeft_, pixels) != pixels && isVisible()) FitText();
}

void ResultView::FitText() {
  const double share = TextShare();
  const double wanted = std::min(kLargestText * share, kLargestWanted);
  const int most = static_cast<int>(height() * wanted);
  const int least = static_cast<int>(height() * kSmallestText);
  SetTextHeight(FittingPixels({{text(), width() - most - atLeft_}}, most, std::min(least, most)));
  setCursorPosition(0);
}

}  // namespace kav
