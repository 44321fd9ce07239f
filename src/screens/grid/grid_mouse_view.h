// What the mouse does on a grid.
#pragma once

#include <QBasicTimer>
#include <optional>

#include "screens/grid/grid_edit_view.h"

class QMouseEvent;
class QWheelEvent;

namespace kav {

/// Takes the mouse from a table. A click or a drag selects cells, in the headers columns and rows;
/// the edge of a column's header resizes it, a double click fits it or begins an edit, the wheel
/// scrolls.
class GridMouse final : public QObject {
 public:
  /// Of the hooks it tells the widths. All must outlive it.
  GridMouse(GridTable& table, GridSelector& selector, GridEdit& edit, const GridHooks& hooks);

  void EndDrag();

 private:
  bool eventFilter(QObject* table, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  // Whether the event is the grid's.
  bool Press(const QMouseEvent& event);
  bool DoubleClick(const QMouseEvent& event);
  bool Wheel(const QWheelEvent& event);
  void Move(const QMouseEvent& event);
  void PressAt(GridCell cell, GridReach reach);
  void DragTo(QPoint place);
  std::optional<int> EdgeAt(QPoint place) const;
  void Resize(int column, int width);

  GridTable& table_;
  GridSelector& selector_;
  GridEdit& edit_;
  const GridHooks& hooks_;
  // Between press and release: what is selected, or the column that is resized.
  std::optional<GridLines> selected_;
  std::optional<int> resized_;
  QPoint place_;
  int offset_ = 0;  // to be added to the mouse's x for the column's width
  QBasicTimer scrolling_;
  int turned_ = 0;  // by the wheel but not scrolled yet, in lines times 120
};

}  // namespace kav
