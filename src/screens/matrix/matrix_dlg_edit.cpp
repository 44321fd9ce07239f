// How the matrix screen is edited: its keys and the Edit menu, in the line and in the grid.
#include <QKeyEvent>
#include <array>
#include <optional>

#include "screens/matrix/matrix_dlg.h"

namespace kav {

/// Shows the matrix beside the shown one, if there is one, and leaves the focus where it is.
void CMatrixDlg::ShowNeighbour(int step) {
  const int index = model_.Shown() + step;
  if (index < 0 || index >= kMatrixCount || !grid_.FinishEdit()) return;
  const GridCell focus = grid_.Grid().Focus();
  TakeLine();
  model_.Show(index);
  ShowMatrix();
  if (!focus.IsNone()) grid_.Grid().SetFocusCell(focus);
}

void CMatrixDlg::keyPressEvent(QKeyEvent* event) {
  const bool isPageKey = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
  if (isPageKey && event->modifiers() == Qt::ControlModifier) {
    return ShowNeighbour(event->key() == Qt::Key_PageDown ? 1 : -1);
  }
  if (const auto command = UndoCommandOf(*event)) return Edit(*command);
  KeyScreenOf::keyPressEvent(event);
}

bool CMatrixDlg::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &Line()) {
    if (event->type() == QEvent::FocusIn) editsGrid_ = false;
    if (event->type() == QEvent::KeyPress) {
      // Before the line, which knows only its own edits.
      if (const auto command = UndoCommandOf(*static_cast<QKeyEvent*>(event))) {
        Edit(*command);
        return true;
      }
    }
  }
  if (watched == &grid_.Grid()) {
    if (event->type() == QEvent::FocusIn) {
      editsGrid_ = true;
      Result().deselect();
    }
    if (event->type() == QEvent::ToolTip) return grid_.ShowHint(*static_cast<QHelpEvent*>(event));
    return event->type() == QEvent::KeyPress && OnGridKey(*static_cast<QKeyEvent*>(event));
  }
  return LineScreen::eventFilter(watched, event);
}

bool CMatrixDlg::OnGridKey(const QKeyEvent& event) {
  struct EditKey {
    QKeySequence::StandardKey keys;
    EditCommand command;
  };
  constexpr std::array kEditKeys{
      EditKey{QKeySequence::Cut, EditCommand::Cut},
      EditKey{QKeySequence::Copy, EditCommand::Copy},
      EditKey{QKeySequence::Paste, EditCommand::Paste},
  };
  // Before the grid, which would begin to edit a cell with it.
  if (event.text() == u"=") {
    OnEquals();
    return true;
  }
  for (const EditKey& row : kEditKeys) {
    if (!event.matches(row.keys)) continue;
    Edit(row.command);
    return true;
  }
  if (event.key() != Qt::Key_Delete && event.key() != Qt::Key_Backspace) return false;
  grid_.ClearCells();
  ShowMatrix();
  return true;
}

bool CMatrixDlg::EditsGrid() const {
  return editsGrid_ && !Result().hasSelectedText();
}

void CMatrixDlg::Edit(EditCommand command) {
  if (command == EditCommand::Undo || command == EditCommand::Redo) return UndoOrRedo(command);
  if (!EditsGrid()) return LineScreen::Edit(command);
  if (!grid_.FinishEdit()) return;
  grid_.Edit(command);
  ShowMatrix();
}

/// Whether the next undo or redo is one of the line.
bool CMatrixDlg::UndoesLine(EditCommand command) const {
  if (!CanEditLine(Line(), command)) return false;
  if (command == EditCommand::Redo) return undoneLine_ || !model_.CanRedo();
  return (isLineNewer_ && !EditsGrid()) || !model_.CanUndo();
}

void CMatrixDlg::UndoOrRedo(EditCommand command) {
  if (!grid_.FinishEdit()) return;
  const bool undoesLine = UndoesLine(command);
  if (undoesLine) {
    EditLine(Line(), command);
  } else if (command == EditCommand::Undo) {
    model_.Undo();
  } else {
    model_.Redo();
  }
  if (command == EditCommand::Undo) undoneLine_ = undoesLine;
  ShowMatrix();
}

bool CMatrixDlg::CanEdit(EditCommand command) const {
  if (command == EditCommand::Undo) return model_.CanUndo() || CanEditLine(Line(), command);
  if (command == EditCommand::Redo) return model_.CanRedo() || CanEditLine(Line(), command);
  return EditsGrid() ? grid_.CanEdit(command) : LineScreen::CanEdit(command);
}

}  // namespace kav
