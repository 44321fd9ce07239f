// The box in which the text of a cell is edited.
#pragma once

#include <QLineEdit>
#include <optional>

#include "screens/grid/grid_hooks.h"
#include "screens/grid/grid_selector_view.h"

namespace kav {

/// Edits one cell after the other. While no edit is going on the box is hidden. Enter, Tab, Esc and
/// keys that leave the line, or lead on at an end of its text, end an edit, as does the loss of the
/// focus. Several cells that are pasted or dropped
/// are left to the hooks.
class GridEdit final : public QLineEdit {
 public:
  /// Of the hooks it tells those of edits. All must outlive it.
  GridEdit(GridTable& table, GridSelector& selector, const GridHooks& hooks);

  /// The cell that is being edited; nullopt if no edit is going on.
  const std::optional<GridCell>& Cell() const { return cell_; }
  /// Edits the focus cell, its text selected. Does nothing if there is none, or if an edit is going
  /// on.
  void Begin();
  /// The same with `text` in the box.
  void BeginWith(const QString& text);
  /// Gives the cell what was typed, if an edit is going on.
  void Finish();
  /// Leaves the cell its text, and returns it; nullopt if no edit is going on.
  std::optional<GridCell> GiveUp();
  /// Lays the box over its cell, in the table's font.
  void Place();

 private:
  bool event(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void OnEnd(const QKeyEvent& key);
  bool LeadsOut(const QKeyEvent& key) const;
  void Paste();

  GridTable& table_;
  GridSelector& selector_;
  const GridHooks& hooks_;
  std::optional<GridCell> cell_;
};

}  // namespace kav
