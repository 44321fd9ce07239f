// The grid as a widget.
#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <functional>
#include <optional>

#include "grid/grid_model.h"
#include "grid/grid_moves.h"
#include "screens/grid/grid_geometry_view.h"

namespace kav {

class GridEdit;

/// What the grid tells the one it belongs to; what is empty is not told. All come from what the
/// user does, none from a call.
struct GridHooks {
  /// An edit begins: its box is not open yet, the cell has its old text.
  std::function<void(int row, int column)> beginEdit;
  /// An edit has ended and `text` is the cell's new text already, which may be the old one. Not
  /// told where it was given up, and where there was no memory for the text, which then is lost.
  std::function<void(int row, int column, const QString& text)> endEdit;
  /// A column was made wider or narrower; during a drag, each time.
  std::function<void(int column, int width)> columnResized;
  /// The selection or the focus cell is another one.
  std::function<void()> selectionChanged;
};

/// Shows and edits a grid. Sizes are pixels of a screen 240 pixels wide; SetScale makes them
/// larger. Keys: arrows, Home, End, Page Up and Page Down move the focus, with Shift the end of the
/// selection; Tab and Shift+Tab lead from cell to cell (leaving the grid at its last and first
/// one); typing, F2, Enter and a double click begin an edit, which Enter, Tab or another cell end
/// and Esc gives up. Columns are resized by dragging a header's right edge. What it does not know
/// itself (Ctrl+C, Delete...) it leaves to its parent.
class CGridCtrl final : public QAbstractScrollArea {
 public:
  /// `memory` is where the cells are, and must outlive the widget.
  explicit CGridCtrl(QWidget* parent,
                     std::pmr::memory_resource* memory = std::pmr::get_default_resource());
  CGridCtrl(const CGridCtrl&) = delete;
  CGridCtrl& operator=(const CGridCtrl&) = delete;
  ~CGridCtrl() override;

  /// They are told until others are set: whoever goes before the grid takes them back.
  void SetHooks(GridHooks hooks) { hooks_ = std::move(hooks); }

  const GridModel& Model() const { return model_; }

  // As GridModel has them; the widget follows. A change of the shape gives up an edit.
  void ResetSelectedRange();
  bool SetRowCount(int count);
  bool SetColumnCount(int count);
  bool SetFixedRowCount(int count);
  bool SetFixedColumnCount(int count);
  bool SetItem(const GridItem& item);
  bool SetColumnWidth(int column, int width);
  int GetColumnWidth(int column) const { return model_.GetColumnWidth(column); }
  std::u16string_view GetItemText(int row, int column) const {
    return model_.GetItemText(row, column);
  }
  void ClearSelectedCells();
  void SetFocusCell(GridCell cell);
  void SelectTo(GridCell cell);

  /// Makes every column as wide as the widest text in it, edges included.
  void AutoSizeColumns();

  /// How many pixels stand for one, above 0; texts are `textPixels` high.
  void SetScale(double scale, int textPixels);

  /// Whether cells can be edited in place; at first they can.
  void SetEditable(bool isEditable);
  bool IsEditable() const { return isEditable_; }
  bool IsEditing() const { return editing_.has_value(); }
  /// Does what F2 does; nothing where there is no focus cell or cells cannot be edited.
  void EditFocusCell();
  /// Ends an edit that is going on, taking what was typed.
  void FinishEdit();
  void GiveUpEdit();  ///< ends it, and the cell keeps its text

  /// In viewport coordinates; what is scrolled away lies outside of it or under the headers.
  QRect CellArea(GridCell cell) const;
  /// The cell at a place of the viewport, fixed ones included; none beside the cells.
  GridCell CellAt(QPoint place) const;
  /// Whether something of a cell shows.
  bool IsInView(GridCell cell) const;

 private:
  /// What the mouse does between being pressed and being released.
  enum class Drag { None, Cells, Columns, Rows, ColumnWidth };
  /// Whether the focus goes along to a cell, or stays and what is between is selected.
  enum class Reach { Focus, Selection };

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

  GridGeometry Geometry() const;
  QRect Room() const;
  bool Reshape(bool (GridModel::*set)(int), int count);
  void UpdateBars();
  void ScrollTo(GridCell cell);
  bool ScrollByWheel(QPoint turned);
  int FittingWidth(int column) const;

  // What the user does; the hooks are told.
  bool OnKey(const QKeyEvent& event);
  bool GoTo(std::optional<GridCell> cell);
  void Go(GridCell from, GridMove move, Reach reach);
  void Select(GridCell cell, Reach reach);
  void SelectColumn(int column, Reach reach);
  void SelectRow(int row, Reach reach);
  void ChangeSelection(const std::function<void()>& change);
  int EdgeAt(QPoint place) const;
  void PressAt(GridCell cell, Reach reach);
  void DragTo(QPoint place);
  void EndDrag();
  void ResizeColumn(int column, int width);

  std::optional<GridCell> CloseEdit();
  void PlaceEdit();
  void OnEditKey(int key, Qt::KeyboardModifiers modifiers);

  GridModel model_;
  GridHooks hooks_;
  double scale_ = 1;
  bool isEditable_ = true;
  GridEdit* edit_;
  std::optional<GridCell> editing_;
  Drag drag_ = Drag::None;
  QPoint dragPlace_;
  int dragColumn_ = 0;
  int dragOffset_ = 0;  // the width of that column where the mouse is at 0
  QBasicTimer scrolling_;
  int wheel_ = 0;  // lines by 120 that were turned and are not scrolled yet
};

}  // namespace kav
