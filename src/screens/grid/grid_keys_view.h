// What keys mean to a grid.
#pragma once

#include <QKeyEvent>

#include "grid/grid_selection.h"

namespace kav {

/// Whether the grid takes the key itself, Tab aside.
bool IsGridKey(const QKeyEvent& key);

/// Null if the key does not move. It is the same with Shift.
const GridMove* MoveOf(int key, Qt::KeyboardModifiers modifiers);
GridReach ReachOf(Qt::KeyboardModifiers modifiers);
bool IsSelectAll(const QKeyEvent& key);
bool IsTab(const QKeyEvent& key);
/// How many cells Tab or Enter leads on: 1, or -1 with Shift.
int StepOf(const QKeyEvent& key);
/// Whether the key writes a character, which begins an edit with it.
bool TypesIntoCell(const QKeyEvent& key);
/// Whether the key ends an edit that is going on, Esc included.
bool EndsEdit(const QKeyEvent& key);

}  // namespace kav
