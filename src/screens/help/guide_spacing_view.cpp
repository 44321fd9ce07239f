#include "screens/help/guide_spacing_view.h"

#include <QBrush>
#include <QColor>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>

namespace kav {
namespace {

// By the height of the letters.
constexpr double kAboveHeading = 0.8;
constexpr double kBesideText = 0.25;
constexpr double kBesideItem = 0.1;
constexpr double kInCell = 0.25;

bool HasNothing(const QTextTable& table, int row) {
  for (int column = 0; column < table.columns(); ++column) {
    const QTextTableCell cell = table.cellAt(row, column);
    if (cell.firstCursorPosition() != cell.lastCursorPosition()) return false;
  }
  return true;
}

void SpaceTable(QTextTable& table, int letters, const QColor& line) {
  if (table.rows() > 1 && HasNothing(table, 0)) table.removeRows(0, 1);
  QTextTableFormat format = table.format();
  format.setHeaderRowCount(0);
  format.setCellSpacing(0);
  format.setCellPadding(kInCell * letters);
  format.setBorderCollapse(true);
  format.setBorder(1);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderBrush(line);
  table.setFormat(format);
}

void SpaceBlock(QTextCursor& cursor, const QTextBlock& block, int letters) {
  cursor.setPosition(block.position());
  if (cursor.currentTable() != nullptr) return;
  QTextBlockFormat format = block.blockFormat();
  const bool isHeading = format.headingLevel() > 0;
  const double beside = letters * (block.textList() != nullptr ? kBesideItem : kBesideText);
  format.setTopMargin(isHeading ? letters * kAboveHeading : beside);
  format.setBottomMargin(beside);
  cursor.setBlockFormat(format);
}

}  // namespace

void SpaceOut(QTextDocument& text, int letters, const QColor& line) {
  QTextCursor cursor(&text);
  cursor.beginEditBlock();
  for (QTextFrame* frame : text.rootFrame()->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(frame)) SpaceTable(*table, letters, line);
  }
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    SpaceBlock(cursor, block, letters);
  }
  cursor.endEditBlock();
}

}  // namespace kav
