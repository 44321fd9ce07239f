// A table that shows a grid: its lines, headers and places.
#pragma once

#include <QAccessible>
#include <QTableView>
#include <algorithm>
#include <array>

#include "grid/grid_selection.h"

namespace kav {

/// Shows a grid and what is selected in it. Sizes are pixels of a screen 240 pixels wide; SetScale
/// enlarges them. Places are pixels of the widget, headers included.
class GridTable : public QTableView {
 public:
  // As GridModel has them. Selection and focus stay, or move to the nearest cells that are left.
  const GridModel& Model() const { return model_; }
  void SetSource(GridSource source);
  bool SetRowCount(int count) { return Reshape(&GridModel::SetRowCount, model_.RowCount(), count); }
  bool SetColumnCount(int count) {
    return Reshape(&GridModel::SetColumnCount, model_.ColumnCount(), count);
  }
  bool SetFixedRowCount(int count) {
    return Reshape(&GridModel::SetFixedRowCount, model_.FixedRowCount(), count);
  }
  bool SetFixedColumnCount(int count) {
    return Reshape(&GridModel::SetFixedColumnCount, model_.FixedColumnCount(), count);
  }
  bool SetItem(const GridItem& item);
  bool SetColumnWidth(int column, int width);
  int GetColumnWidth(int column) const { return model_.GetColumnWidth(column); }
  std::u16string_view GetItemText(int row, int column) const {
    return model_.GetItemText(row, column);
  }

  /// The width, in unscaled pixels, that the widest text of a column needs, margins included.
  int FittingWidth(int column) const;
  void AutoSizeColumns();  ///< gives every column its fitting width

  /// `scale` pixels, above 0, stand for one; texts are `textPixels` high.
  void SetScale(double scale, int textPixels);
  double Scale() const { return scale_; }

  // The selection is one range; the focus cell is one of its corners. Headers are never in it.
  GridCell Focus() const { return selection_.focus; }
  GridRange Selection() const { return selection_.Range(); }
  GridCell SelectionEnd() const { return selection_.end; }  ///< the corner opposite to the focus
  const GridSelection& Marked() const { return selection_; }
  void Mark(const GridSelection& selection);
  /// Scrolls a cell into view; does nothing for none.
  void Reveal(GridCell cell);
  /// Tells screen readers of a cell, if it is there.
  void Tell(QAccessible::Event type, GridCell cell);

  /// May lie outside of the grid or under the headers, if scrolled away. Empty if there is no such
  /// cell.
  QRect CellArea(GridCell cell) const;
  /// Fixed cells included; none beside the cells.
  GridCell CellAt(QPoint place) const;
  /// Whether a part of the cell shows.
  bool IsInView(GridCell cell) const;
  // All but the scroll bars, and the part of it that the headers leave to the cells.
  QRect Whole() const { return {QPoint(0, 0), Room().bottomRight()}; }
  QRect Room() const { return viewport()->geometry(); }
  // The line at a place; -1 beside the lines.
  int ColumnAt(int x) const;
  int RowAt(int y) const;
  /// Of the cells that are not fixed. Its row is RowCount(), its column -1, if there is none.
  GridCell FirstShown() const;
  int PageRows() const;  ///< how many rows Page Up and Page Down lead on, at least 1
  /// Scrolls until `row`, or the nearest that is not fixed, is the first one.
  void ScrollToRow(int row);

 protected:
  GridTable(QWidget* parent, std::pmr::memory_resource* memory);

  void updateGeometries() override;
  void Repaint();
  /// Ends what the user is doing with cells that are about to be others.
  virtual void Interrupt() = 0;
  /// Whether the grid or a part of it has the keys.
  virtual bool HasKeys() const { return hasFocus(); }

 private:
  class Shape;

  bool eventFilter(QObject* part, QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool Reshape(bool (GridModel::*set)(int), int old, int count);
  /// Gives all parts letters so many pixels high.
  void TakeLetters(int pixels);
  void ArrangeLines();
  /// Gives rows, columns and headers their places, as ArrangeLines does before it shows them.
  void PlaceLines();
  int RowHeight() const { return std::max(1, qRound(GridModel::kDefaultHeight * scale_)); }
  // The edge before a line, as if nothing were scrolled.
  int Left(int column) const { return qRound(model_.Left(column) * scale_); }
  int Top(int row) const { return qRound(model_.Top(row) * scale_); }
  void Paint(QWidget& part) const;

  GridModel model_;
  Shape* shape_;
  GridSelection selection_;
  double scale_ = 1;
  QWidget* corner_;                  // covers what the ends of two scroll bars draw between them
  std::array<QWidget*, 3> headers_;  // that show column headers, row headers and the corner
};

}  // namespace kav
