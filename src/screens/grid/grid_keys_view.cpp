#include "screens/grid/grid_keys_view.h"

#include <algorithm>
#include <array>

namespace kav {
namespace {

/// To the border, wherever a cell is.
constexpr int kFar = GridModel::kMostRows;

struct MoveKey {
  int key;
  bool withControl;
  GridMove move;
};
constexpr MoveKey kMoveKeys[]{
    {Qt::Key_Left, false, {0, -1}},       {Qt::Key_Right, false, {0, 1}},
    {Qt::Key_Up, false, {-1, 0}},         {Qt::Key_Down, false, {1, 0}},
    {Qt::Key_Home, false, {0, -kFar}},    {Qt::Key_End, false, {0, kFar}},
    {Qt::Key_PageUp, false, {0, 0, -1}},  {Qt::Key_PageDown, false, {0, 0, 1}},
    {Qt::Key_Left, true, {0, -kFar}},     {Qt::Key_Right, true, {0, kFar}},
    {Qt::Key_Up, true, {-kFar, 0}},       {Qt::Key_Down, true, {kFar, 0}},
    {Qt::Key_Home, true, {-kFar, -kFar}}, {Qt::Key_End, true, {kFar, kFar}},
};

constexpr Qt::KeyboardModifiers kCommands =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

bool AsksForEdit(const QKeyEvent& key) {
  if ((key.modifiers() & (kCommands | Qt::ShiftModifier)) != 0) return false;
  return key.key() == Qt::Key_F2 || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}  // namespace

bool IsGridKey(const QKeyEvent& key) {
  return MoveOf(key.key(), key.modifiers()) != nullptr || IsSelectAll(key) || AsksForEdit(key) ||
         TypesIntoCell(key);
}

const GridMove* MoveOf(int key, Qt::KeyboardModifiers modifiers) {
  if ((modifiers & (Qt::AltModifier | Qt::MetaModifier)) != 0) return nullptr;
  const bool withControl = (modifiers & Qt::ControlModifier) != 0;
  for (const MoveKey& row : kMoveKeys) {
    if (row.key == key && row.withControl == withControl) return &row.move;
  }
  return nullptr;
}

GridReach ReachOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier) != 0 ? GridReach::Selection : GridReach::Focus;
}

bool IsSelectAll(const QKeyEvent& key) {
  return key.key() == Qt::Key_A && (key.modifiers() & kCommands) == Qt::ControlModifier;
}

bool IsTab(const QKeyEvent& key) {
  const bool isTab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
  return isTab && (key.modifiers() & kCommands) == 0;
}

int StepOf(const QKeyEvent& key) {
  const bool isBack = key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier) != 0;
  return isBack ? -1 : 1;
}

bool TypesIntoCell(const QKeyEvent& key) {
  if ((key.modifiers() & kCommands) != 0) return false;
  return !key.text().isEmpty() && key.text().front().isPrint();
}

bool EndsEdit(const QKeyEvent& key) {
  constexpr std::array kKeys{Qt::Key_Return, Qt::Key_Enter,   Qt::Key_Escape,
                             Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Up,
                             Qt::Key_Down,   Qt::Key_PageUp,  Qt::Key_PageDown};
  if ((key.modifiers() & kCommands) != 0) return false;
  return std::find(kKeys.begin(), kKeys.end(), key.key()) != kKeys.end();
}

}  // namespace kav
