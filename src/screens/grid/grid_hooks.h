// What a grid tells its owner.
#pragma once

#include <QString>
#include <functional>

#include "grid/grid_model.h"

namespace kav {

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
  /// A text of several cells is pasted into the box of a cell, whose edit has been given up.
  std::function<void()> pasteBlock = {};
  /// A text is dropped on a cell, or one of several cells into its box, whose edit has been given
  /// up. Without it nothing can be dropped.
  std::function<void(GridCell cell, const QString& text)> drop = {};
};

}  // namespace kav
