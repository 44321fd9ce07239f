// The grid as a widget.
#pragma once

#include <QBasicTimer>
#include <QTableView>
#include <array>
#include <functional>
#include <optional>

#include "grid/grid_model.h"

namespace kav {

class GridEdit;
struct GridLook;

/// What the grid tells its owner about what the user does; calls of the owner are not told. Hooks
/// may be empty.
struct GridHooks {
  /// An edit begins: its box is not open yet, the cell has its old text.
  std::function<void(int row, int column)> beginEdit;
  /// An edit has ended. `text`, perhaps the old one, is the cell's already, or for the owner to
  /// take if the cell has a source. Not told if the edit was given up, or if there was no memory
  /// for the text, which then is lost.
  std::function<void(int row, int column, const QString& text)> endEdit;
  /// A column has another width; during a drag, each time.
  std::function<void(int column, int width)> columnResized;
  /// The selection or the focus cell is another one.
  std::function<void()> selectionChanged;
};

/// Shows and edits a grid. Sizes are pixels of a screen 240 pixels wide; SetScale enlarges them.
/// Places are pixels of the widget, headers included. Keys: arrows, Home, End, Page Up and Page
/// Down move the focus cell, with Shift the end of the selection; Tab and Shift+Tab lead from cell
/// to cell and out of the grid; typing, F2, Enter and a double click begin an edit. Enter, Tab or
/// another cell end an edit, Esc gives it up. The right edge of a column's header resizes it. Other
/// keys (Ctrl+C, Delete...) go on to the parent.
class CGridCtrl final : public QTableView {
 public:
  /// Keeps its cells in `memory`, which must outlive it.
  explicit CGridCtrl(QWidget* parent,
                     std::pmr::memory_resource* memory = std::pmr::get_default_resource());
  CGridCtrl(const CGridCtrl&) = delete;
  CGridCtrl& operator=(const CGridCtrl&) = delete;
  ~CGridCtrl() override;

  /// The hooks are called until others are set: an owner that goes first takes its hooks back.
  void SetHooks(GridHooks hooks) { hooks_ = std::move(hooks); }

  // As GridModel has them. Another shape gives up an edit; selection and focus stay, or move to the
  // nearest cells that are left.
  const GridModel& Model() const { return model_; }
  void SetSource(GridSource source);
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
  /// Makes every column as wide as the widest text in it, margins included.
  void AutoSizeColumns();

  // The selection is one range; the focus cell is one of its corners. Headers are never in it.
  GridCell Focus() const;
  GridRange Selection() const;
  GridCell SelectionEnd() const;  ///< the corner opposite to the focus cell
  void ResetSelectedRange();      ///< afterwards there is neither selection nor focus cell
  /// Makes the nearest cell that is not fixed the focus cell, and all that is selected.
  void SetFocusCell(GridCell cell);
  /// Selects from the focus cell to `cell`; without a focus cell as SetFocusCell.
  void SelectTo(GridCell cell);
  /// Empties their texts and leaves their formats. Cells with a source stay: their owner clears
  /// them.
  void ClearSelectedCells();

  /// `scale` pixels, above 0, stand for one; texts are `textPixels` high.
  void SetScale(double scale, int textPixels);

  void SetEditable(bool isEditable);  ///< at first it is
  bool IsEditable() const { return isEditable_; }
  bool IsEditing() const { return editing_.has_value(); }
  /// As F2; does nothing if there is no focus cell or cells cannot be edited.
  void EditFocusCell();
  void FinishEdit();  ///< takes what was typed, if an edit is going on
  /// The cell, which keeps its text; nullopt if no edit is going on.
  std::optional<GridCell> GiveUpEdit();

  /// May lie outside of the grid or under the headers, if scrolled away.
  QRect CellArea(GridCell cell) const;
  /// Fixed cells included; none beside the cells.
  GridCell CellAt(QPoint place) const;
  /// Whether a part of the cell shows.
  bool IsInView(GridCell cell) const;

 private:
  class Cells;
  class Painter;
  /// What the mouse does between press and release.
  enum class Drag { None, Cells, Columns, Rows, ColumnWidth };
  /// Whether the focus cell moves, or stays and what is between is selected.
  enum class Reach { Focus, Selection };

  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  bool eventFilter(QObject* part, QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& now, const QItemSelection& before) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

  bool Reshape(bool (GridModel::*set)(int), int count);
  void ArrangeLines();
  QRect Room() const { return viewport()->geometry(); }
  QRect Whole() const { return {QPoint(0, 0), Room().bottomRight()}; }
  // The edge before a line, as if nothing were scrolled.
  int Left(int column) const;
  int Top(int row) const;
  // The line at a place; -1 beside the lines.
  int ColumnAt(int x) const;
  int RowAt(int y) const;
  int FirstRow() const;
  void Reveal(GridCell cell);
  int FittingWidth(int column) const;
  void Repaint();
  GridLook Look() const;
  void PaintHeaders(QWidget& part) const;
  void Mark(GridCell focus, GridCell end);

  // What the user does; the hooks are told.
  bool OnKey(const QKeyEvent& event);
  static Reach ReachOf(Qt::KeyboardModifiers modifiers);
  GridCell Anchor(GridCell cell, Reach reach) const;
  GridCell Moved(GridCell cell, int rows, int columns) const;
  bool GoByTab(GridCell cell, int step);
  void Select(GridCell cell, Reach reach, Drag drag = Drag::Cells);
  void SelectRange(GridCell focus, GridCell end);
  int EdgeAt(QPoint place) const;
  void PressAt(GridCell cell, Reach reach);
  void DragTo(QPoint place);
  void EndDrag();
  void ResizeColumn(int column, int width);
  bool ScrollByWheel(QPoint turned);

  void PlaceEdit();
  QString NameOfPlace(GridCell cell) const;
  bool FilterEdit(QEvent& event);
  void OnEditKey(const QKeyEvent& event);
  void TellFocus();

  GridModel model_;
  Cells* cells_;
  std::array<QWidget*, 3> headers_;  // that show column headers, row headers and the corner
  GridHooks hooks_;
  double scale_ = 1;
  bool isEditable_ = true;
  GridEdit* edit_;
  std::optional<GridCell> editing_;
  Drag drag_ = Drag::None;
  QPoint dragPlace_;
  int dragColumn_ = 0;
  int dragOffset_ = 0;  // to be added to the mouse's x for that column's width
  QBasicTimer scrolling_;
  int wheel_ = 0;  // turned but not scrolled yet, in lines times 120
};

}  // namespace kav
