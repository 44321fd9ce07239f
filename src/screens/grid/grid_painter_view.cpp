#include "screens/grid/grid_painter_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "common/number_text.h"
#include "display/number_in_room.h"
#include "screens/widgets/colour_scheme.h"

namespace kav {
namespace {

/// Fills a cell whose number has no room.
constexpr QChar kNoRoom(u'#');

/// A longer text is shown as one that is no number.
constexpr std::size_t kLongestNumber = 400;

int LineWidth(const GridLook& look) {
  return std::max(1, static_cast<int>(look.scale / 2));
}

QColor HeaderPaper(GridCell cell, const GridLook& look) {
  const GridRange& selection = look.selection;
  const bool isOfColumn = cell.column >= selection.left && cell.column <= selection.right;
  const bool isOfRow = cell.row >= selection.top && cell.row <= selection.bottom;
  const bool isSelected = !selection.IsNone() && (isOfColumn || isOfRow);
  return isSelected ? ColourNow(Colour::SelectedHeader) : look.colours.color(QPalette::Window);
}

QColor Paper(GridCell cell, const GridLook& look) {
  if (look.grid.IsFixed(cell)) return HeaderPaper(cell, look);
  // The focus cell keeps its own paper, so that it can be told from what is selected with it.
  if (look.selection.Contains(cell) && cell != look.focus) return ColourNow(Colour::SelectedPaper);
  const bool isMarked = look.grid.GetItemFormat(cell.row, cell.column).isMarked;
  return isMarked ? ColourNow(Colour::MarkedPaper) : look.colours.color(QPalette::Base);
}

/// What a cell with `room` pixels across shows of a text that is too long for it. Of a number it is
/// less precise but of the very magnitude, or signs that say that it does not fit.
QString Cut(const QFontMetrics& metrics, std::u16string_view text, int room) {
  const auto number = ReadDecimalDigits(Shortened(text, kLongestNumber));
  // No more characters than pixels: a text of any length costs no more than one that fits.
  const std::u16string most = Shortened(text, static_cast<std::size_t>(room));
  if (!number) return metrics.elidedText(QString::fromStdU16String(most), Qt::ElideRight, room);
  const int digit = std::max(1, metrics.horizontalAdvance(u'0'));
  // A point is narrower than a digit.
  for (int length = room / digit + 2; length > 0; --length) {
    QString shown =
        QString::fromStdU16String(NumberInRoom(*number, static_cast<std::size_t>(length)));
    if (shown.isEmpty()) break;
    if (metrics.horizontalAdvance(shown) <= room) return shown;
  }
  const int sign = std::max(1, metrics.horizontalAdvance(kNoRoom));
  return {std::max(1, room / sign), kNoRoom};
}

QString Fitting(const QFontMetrics& metrics, std::u16string_view text, int room) {
  if (text.size() <= static_cast<std::size_t>(room)) {
    QString all = QString::fromStdU16String(OnOneLine(std::u16string(text)));
    if (metrics.horizontalAdvance(all) <= room) return all;
  }
  return Cut(metrics, text, room);
}

void PaintText(QPainter& painter, const QRect& area, GridCell cell, const GridLook& look) {
  const std::u16string_view text = look.grid.GetItemText(cell.row, cell.column);
  const GridFormat format = look.grid.GetItemFormat(cell.row, cell.column);
  const bool isHeader = look.grid.IsFixed(cell);
  // A header's text is short and centred, and its column may be just wide enough for it.
  const int margin = isHeader ? LineWidth(look) : TextMargin(painter.font().pixelSize());
  const QRect room = area.adjusted(margin, 0, -margin, 0);
  if (text.empty() || room.width() <= 0) return;
  const QString shown = Fitting(painter.fontMetrics(), text, room.width());
  const bool isMarked = format.isMarked && !isHeader;
  painter.setPen(isMarked ? ColourNow(Colour::MarkedText) : look.colours.color(QPalette::Text));
  painter.drawText(room, static_cast<int>(TextAlignment(format) | Qt::TextSingleLine), shown);
}

void PaintFocus(QPainter& painter, const QRect& area, const GridLook& look) {
  const int width = look.hasKeys ? 2 * std::max(1, qRound(look.scale * 0.75)) : LineWidth(look);
  const QColor colour = look.colours.color(look.hasKeys ? QPalette::Highlight : QPalette::Dark);
  painter.fillRect(QRect(area.left(), area.top(), area.width(), width), colour);
  painter.fillRect(QRect(area.left(), area.bottom() + 1 - width, area.width(), width), colour);
  painter.fillRect(QRect(area.left(), area.top(), width, area.height()), colour);
  painter.fillRect(QRect(area.right() + 1 - width, area.top(), width, area.height()), colour);
}

}  // namespace

int TextMargin(int textPixels) {
  return std::max(2, textPixels / 4);
}

Qt::Alignment TextAlignment(GridFormat format) {
  switch (format.alignment) {
    case GridAlignment::Left:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case GridAlignment::Centre:
      return Qt::AlignCenter;
    case GridAlignment::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
  }
  return Qt::AlignCenter;
}

void PaintCell(QPainter& painter, const QRect& area, GridCell cell, const GridLook& look) {
  const QRect inside = area.adjusted(0, 0, -LineWidth(look), -LineWidth(look));
  painter.fillRect(area, ColourNow(Colour::GridLine));
  painter.fillRect(inside, Paper(cell, look));
  PaintText(painter, inside, cell, look);
  if (cell == look.focus && inside.isValid()) PaintFocus(painter, inside, look);
}

}  // namespace kav
