// The grid as a widget.
#pragma once

#include "screens/grid/grid_edit_view.h"
#include "screens/grid/grid_mouse_view.h"

namespace kav {

/// Shows and edits a grid. Keys: arrows, Home, End, Page Up and Page Down move the focus cell, with
/// Shift the end of the selection; Tab and Shift+Tab lead from cell to cell and out of the grid;
/// typing, F2, Enter and a double click begin an edit. Enter, Tab or another cell end an edit, Esc
/// gives it up. The right edge of a column's header resizes it. Other keys (Ctrl+C, Delete...) go
/// on to the parent.
class CGridCtrl final : public GridTable {
 public:
  /// Keeps its cells in `memory`, which must outlive it.
  explicit CGridCtrl(QWidget* parent,
                     std::pmr::memory_resource* memory = std::pmr::get_default_resource());

  /// The hooks are called until others are set: an owner that goes first takes its hooks back.
  void SetHooks(GridHooks hooks) { hooks_ = std::move(hooks); }

  // Another selection, source or shape gives up an edit.
  void ResetSelectedRange();  ///< afterwards there is neither selection nor focus cell
  /// Makes the nearest cell that is not fixed the focus cell, and all that is selected.
  void SetFocusCell(GridCell cell);
  /// Selects from the focus cell to `cell`; without a focus cell as SetFocusCell.
  void SelectTo(GridCell cell);
  /// Empties their texts and leaves their formats. Cells with a source stay: their owner clears
  /// them.
  void ClearSelectedCells();

  bool IsEditing() const { return edit_.Cell().has_value(); }
  /// As F2; does nothing if there is no focus cell.
  void EditFocusCell() { edit_.Begin(); }
  /// Edits a cell, with `text` in the box in place of the cell's.
  void EditCell(GridCell cell, const QString& text);
  void FinishEdit() { edit_.Finish(); }  ///< takes what was typed, if an edit is going on
  /// The cell, which keeps its text; nullopt if no edit is going on.
  std::optional<GridCell> GiveUpEdit() { return edit_.GiveUp(); }

 private:
  void Interrupt() override;
  bool HasKeys() const override { return hasFocus() || IsEditing(); }
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void EditBy(const QKeyEvent& key);
  QRect LandingAt(QPoint place) const;

  GridHooks hooks_;
  GridSelector selector_{*this};
  GridEdit edit_{*this, selector_, hooks_};
  GridMouse mouse_{*this, selector_, edit_, hooks_};
};

}  // namespace kav
