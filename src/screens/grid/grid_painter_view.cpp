#include "screens/grid/grid_painter_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "common/number_text.h"

namespace kav {
namespace {

constexpr QColor kLine(200, 206, 213);
constexpr QColor kMarkedPaper(255, 226, 214);
constexpr QColor kMarkedText(165, 30, 0);
constexpr QColor kSelectedPaper(204, 226, 244);
constexpr QColor kSelectedHeader(187, 205, 222);

/// Cells from `top` and `left` on, up to but without `bottom` and `right`, and where they show.
struct Part {
  int top, left, bottom, right;
  QRect area;
};

struct CellColours {
  QColor paper;
  QColor text;
};

class Painting {
 public:
  Painting(QPainter& painter, const GridModel& grid, const GridGeometry& geometry,
           const GridLook& look)
      : painter_(painter),
        grid_(grid),
        geometry_(geometry),
        look_(look),
        line_(std::max(1, static_cast<int>(look.scale / 2))),
        margin_(TextMargin(painter.font().pixelSize())) {}

  void PaintAll() const;

 private:
  Part DataPart() const;
  void PaintPart(const Part& part) const;
  void PaintCell(GridCell cell) const;
  void PaintText(GridCell cell, const QRect& area, const QColor& colour) const;
  void PaintFocus(const Part& data) const;
  CellColours ColoursOf(GridCell cell) const;
  CellColours HeaderColours(GridCell cell) const;

  QPainter& painter_;
  const GridModel& grid_;
  const GridGeometry& geometry_;
  const GridLook& look_;
  int line_;
  int margin_;
};

void Painting::PaintAll() const {
  painter_.fillRect(look_.area, look_.colours.color(QPalette::Window));
  const QSize fixed = geometry_.FixedSize();
  const int rows = grid_.FixedRowCount();
  const int columns = grid_.FixedColumnCount();
  const Part data = DataPart();
  const QRect& area = look_.area;
  PaintPart(data);
  PaintFocus(data);
  // The headers come last: what is scrolled away lies under them.
  PaintPart({0,
             data.left,
             rows,
             data.right,
             {data.area.left(), area.top(), data.area.width(), fixed.height()}});
  PaintPart({data.top,
             0,
             data.bottom,
             columns,
             {area.left(), data.area.top(), fixed.width(), data.area.height()}});
  PaintPart({0, 0, rows, columns, QRect(area.topLeft(), fixed)});
}

/// The cells that are not fixed, of these only the visible ones.
Part Painting::DataPart() const {
  const QSize fixed = geometry_.FixedSize();
  const QRect area = look_.area.adjusted(fixed.width(), fixed.height(), 0, 0);
  const int lastRow = geometry_.RowAt(area.bottom());
  const int lastColumn = geometry_.ColumnAt(area.right());
  const int firstColumn = geometry_.ColumnAt(area.left());
  return {geometry_.FirstRow(), firstColumn < 0 ? grid_.ColumnCount() : firstColumn,
          lastRow < 0 ? grid_.RowCount() : lastRow + 1,
          lastColumn < 0 ? grid_.ColumnCount() : lastColumn + 1, area};
}

void Painting::PaintPart(const Part& part) const {
  if (part.area.isEmpty()) return;
  painter_.save();
  painter_.setClipRect(part.area);
  for (int row = part.top; row < part.bottom; ++row) {
    for (int column = part.left; column < part.right; ++column) PaintCell({row, column});
  }
  painter_.restore();
}

void Painting::PaintCell(GridCell cell) const {
  const QRect area = geometry_.CellArea(cell);
  const CellColours colours = ColoursOf(cell);
  painter_.fillRect(area, kLine);
  painter_.fillRect(area.adjusted(0, 0, -line_, -line_), colours.paper);
  PaintText(cell, area.adjusted(0, 0, -line_, -line_), colours.text);
}

void Painting::PaintText(GridCell cell, const QRect& area, const QColor& colour) const {
  const std::u16string_view text = grid_.GetItemText(cell.row, cell.column);
  // A header's text is short and centred, and its column may be just wide enough for it.
  const int margin = grid_.IsFixed(cell) ? line_ : margin_;
  const QRect room = area.adjusted(margin, 0, -margin, 0);
  if (text.empty() || room.width() <= 0) return;
  // No more characters than pixels: a text of any length costs no more than one that fits.
  const std::u16string most = Shortened(text, static_cast<std::size_t>(room.width()));
  const QString shown = painter_.fontMetrics().elidedText(QString::fromStdU16String(most),
                                                          Qt::ElideRight, room.width());
  const Qt::Alignment alignment = TextAlignment(grid_.GetItemFormat(cell.row, cell.column));
  painter_.setPen(colour);
  painter_.drawText(room, static_cast<int>(alignment | Qt::TextSingleLine), shown);
}

void Painting::PaintFocus(const Part& data) const {
  const QRect area = geometry_.CellArea(grid_.Focus()).adjusted(0, 0, -line_, -line_);
  if (!area.isValid()) return;
  const int width = look_.hasFocus ? 2 * std::max(1, qRound(look_.scale * 0.75)) : line_;
  const QColor colour = look_.colours.color(look_.hasFocus ? QPalette::Highlight : QPalette::Dark);
  painter_.save();
  painter_.setClipRect(data.area);
  painter_.fillRect(QRect(area.left(), area.top(), area.width(), width), colour);
  painter_.fillRect(QRect(area.left(), area.bottom() + 1 - width, area.width(), width), colour);
  painter_.fillRect(QRect(area.left(), area.top(), width, area.height()), colour);
  painter_.fillRect(QRect(area.right() + 1 - width, area.top(), width, area.height()), colour);
  painter_.restore();
}

CellColours Painting::ColoursOf(GridCell cell) const {
  if (grid_.IsFixed(cell)) return HeaderColours(cell);
  const bool isMarked = grid_.GetItemFormat(cell.row, cell.column).isMarked;
  const QColor text = isMarked ? kMarkedText : look_.colours.color(QPalette::Text);
  // The focus cell keeps its own paper, so that it can be told from what is selected with it.
  const bool isSelected = grid_.Selection().Contains(cell) && cell != grid_.Focus();
  if (isSelected) return {kSelectedPaper, text};
  return {isMarked ? kMarkedPaper : look_.colours.color(QPalette::Base), text};
}

CellColours Painting::HeaderColours(GridCell cell) const {
  const GridRange selection = grid_.Selection();
  const bool isOfColumn = cell.column >= selection.left && cell.column <= selection.right;
  const bool isOfRow = cell.row >= selection.top && cell.row <= selection.bottom;
  const bool isSelected = !selection.IsNone() && (isOfColumn || isOfRow);
  return {isSelected ? kSelectedHeader : look_.colours.color(QPalette::Window),
          look_.colours.color(QPalette::Text)};
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

void PaintGrid(QPainter& painter, const GridModel& grid, const GridGeometry& geometry,
               const GridLook& look) {
  Painting(painter, grid, geometry, look).PaintAll();
}

}  // namespace kav
