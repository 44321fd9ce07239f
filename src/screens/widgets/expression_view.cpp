#include "screens/widgets/expression_view.h"

#include <QFontMetricsF>
#include <QInputMethodEvent>
#include <QPainter>
#include <QPolygonF>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>
#include <utility>

#include "screens/widgets/live_result_view.h"
#include "screens/widgets/look.h"

namespace kav {
namespace {

/// Of the height of letters that have room.
constexpr double kSmallestText = 0.5;
constexpr double kLiveText = 0.46;
constexpr int kSmallestLive = 9;

/// What a line keeps free beside its text within its margins, for the caret, and for the pixels by
/// which a text with marks in it may be wider than without.
constexpr int kBesideText = 12;

/// No screen is as wide as more letters than these; to measure them would take long.
constexpr int kMostMeasured = 2000;

const QString kEllipsis(u'\u2026');

}  // namespace

ExpressionView::ExpressionView(QWidget* parent) : LineView(parent) {
  connect(this, &QLineEdit::textChanged, this, [this] { OnText(); });
  connect(this, &QLineEdit::cursorPositionChanged, this, [this] { Mark(); });
  connect(this, &QLineEdit::selectionChanged, this, [this] { Mark(); });
}

void ExpressionView::SetTextHeight(int pixels) {
  normal_ = PixelsForLine(pixels, height());
  margin_ = std::max(3, pixels / 4);
  FitText();
}

void ExpressionView::OnText() {
  fault_.reset();
  FitText();
  Mark();
}

int ExpressionView::TextWidth(int pixels) const {
  const QFontMetricsF letters(ScreenFont(pixels));
  return qCeil(letters.horizontalAdvance(text()));
}

void ExpressionView::FitText() {
  if (normal_ == 0) return;
  const int least = std::max(qRound(normal_ * kSmallestText), 1);
  const int room = width() - 2 * margin_ - kBesideText;
  const bool isShort = text().size() * normal_ <= room;
  const bool isLong = text().size() > kMostMeasured;
  int pixels = normal_;
  if (isLong) pixels = least;
  if (!isShort && !isLong) pixels = FittingPixels({{text(), room}}, normal_, least);
  isCut_ = isLong || (pixels == least && TextWidth(least) > room);
  if (font().pixelSize() != pixels) setFont(ScreenFont(pixels));
  const int ellipsis = isCut_ ? qCeil(QFontMetricsF(font()).horizontalAdvance(kEllipsis)) : 0;
  const int margin = std::max(margin_, ellipsis + qCeil(FocusLine()) + 1);
  setTextMargins(isCut_ ? margin : margin_, 0, isCut_ ? margin : margin_, 0);
  PlaceLive();
}

void ExpressionView::ShowLive(const std::optional<std::u16string>& result) {
  isLive_ = result.has_value();
  if (isLive_) {
    if (live_ == nullptr) live_ = new LiveResultView(this);
    live_->Say(*result);
  }
  PlaceLive();
}

void ExpressionView::PlaceLive() {
  if (live_ == nullptr) return;
  if (!isLive_) return live_->hide();
  const int line = fontMetrics().height();
  const int top = (height() - line) / 2;
  const int end = isCut_ ? width() : margin_ + kBesideText + TextWidth(font().pixelSize());
  const int beside = margin_ + qCeil(FocusLine());
  const int below = qCeil(FocusLine()) + std::max(1, height() / 50);
  live_->Place(rect().adjusted(beside, below, -beside, -below), QRect(0, top, end, line),
               std::max(kSmallestLive, qRound(normal_ * kLiveText)));
}

void ExpressionView::MarkFault(std::optional<Selection> place) {
  if (fault_ == place) return;
  fault_ = place;
  Mark();
}

void ExpressionView::Mark() {
  if (isComposing_) return;
  std::vector<MarkedPart> parts = MarkedParts(text().toStdU16String(), SelectionOf(*this), fault_);
  if (parts == marked_) return;
  marked_ = std::move(parts);
  // As an input method marks what it composes; its places count from the caret.
  QList<QInputMethodEvent::Attribute> attributes;
  for (const MarkedPart& part : marked_) {
    QTextCharFormat format = FormatOf(part.mark, palette());
    // Within a selection a second one would stand over the feet of the letters.
    if (HasWave()) format.setUnderlineStyle(QTextCharFormat::NoUnderline);
    attributes.append(
        {QInputMethodEvent::TextFormat, part.start - cursorPosition(), part.length, format});
  }
  QInputMethodEvent marks(QString(), attributes);
  LineView::inputMethodEvent(&marks);
}

void ExpressionView::inputMethodEvent(QInputMethodEvent* event) {
  isComposing_ = !event->preeditString().isEmpty();
  LineView::inputMethodEvent(event);
  // It took the marks away.
  marked_.clear();
  Mark();
}

void ExpressionView::changeEvent(QEvent* event) {
  LineView::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || marked_.empty()) return;
  marked_.clear();
  Mark();
}

void ExpressionView::resizeEvent(QResizeEvent* event) {
  LineView::resizeEvent(event);
  FitText();
}

void ExpressionView::paintEvent(QPaintEvent* event) {
  LineView::paintEvent(event);
  if (isCut_) PaintEllipses();
  if (isComposing_) return;
  for (const MarkedPart& part : marked_) {
    if (part.mark == LineMark::Fault) PaintWave(part);
  }
}

bool ExpressionView::HasWave() const {
  return text().size() <= kMostMeasured;
}

/// Below the letters, where also a selection does not reach.
void ExpressionView::PaintWave(const MarkedPart& part) {
  if (!HasWave()) return;
  QTextLayout letters(text(), font());
  letters.beginLayout();
  const QTextLine line = letters.createLine();
  letters.endLayout();
  const double origin = cursorRect().center().x() - line.cursorToX(cursorPosition());
  const double end = origin + line.cursorToX(part.start + part.length);
  const double step = std::max(2.0, font().pixelSize() / 8.0);
  const double lowest = height() - FocusLine() - 1;
  const double top = std::min((height() + fontMetrics().height()) / 2.0 + 1, lowest - step);
  const double start = origin + line.cursorToX(part.start);
  const int steps = std::max(qRound((end - start) / step), 2);
  QPolygonF wave;
  for (int i = 0; i <= steps; ++i) wave.append({start + i * step, i % 2 == 0 ? top + step : top});
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(rect().adjusted(textMargins().left(), 0, -textMargins().right(), 0));
  painter.setPen(QPen(palette().color(QPalette::Text), std::max(1.0, font().pixelSize() / 16.0)));
  painter.drawPolyline(wave);
}

void ExpressionView::PaintEllipses() {
  const int left = textMargins().left();
  const int right = width() - textMargins().right();
  const int middle = height() / 2;
  QPainter painter(this);
  painter.setPen(FaintColour(palette()));
  const auto paint = [&](const QRect& place, Qt::Alignment side) {
    painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter), kEllipsis);
  };
  if (cursorPositionAt({left, middle}) > 0) {
    paint({0, 0, left, height()}, Qt::AlignRight);
  }
  if (cursorPositionAt({right, middle}) < text().size()) {
    paint({right, 0, width() - right, height()}, Qt::AlignLeft);
  }
}

}  // namespace kav
