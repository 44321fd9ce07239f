#include "screens/grid/grid_ctrl.h"

#include <QApplication>
#include <memory>

#include "screens/grid/grid_keys_view.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/text_drops.h"

namespace kav {

CGridCtrl::CGridCtrl(QWidget* parent, std::pmr::memory_resource* memory)
    : GridTable(parent, memory) {
  TakeTextDrops(*this, {[this](QPoint place, const std::u16string&) { return LandingAt(place); },
                        [this](QPoint place, const std::u16string& text) {
                          if (!LandingAt(place).isEmpty()) {
                            hooks_.drop(CellAt(place + Room().topLeft()), ToQt(text));
                          }
                        }});
}

/// The cell at a place of the viewport, if something can be dropped on it.
QRect CGridCtrl::LandingAt(QPoint place) const {
  const QPoint corner = Room().topLeft();
  const GridCell cell = CellAt(place + corner);
  if (!hooks_.drop || cell.IsNone() || Model().IsFixed(cell)) return {};
  return CellArea(cell).translated(-corner);
}

void CGridCtrl::Interrupt() {
  GiveUpEdit();
  mouse_.EndDrag();
}

void CGridCtrl::ResetSelectedRange() {
  GiveUpEdit();
  Mark({});
}

void CGridCtrl::SetFocusCell(GridCell cell) {
  GiveUpEdit();
  Mark(SelectionOf(Model(), cell, cell));
  Reveal(Focus());
  selector_.TellFocus();
}

void CGridCtrl::EditCell(GridCell cell, const QString& text) {
  setFocus(Qt::OtherFocusReason);
  SetFocusCell(cell);
  edit_.BeginWith(text);
}

void CGridCtrl::SelectTo(GridCell cell) {
  GiveUpEdit();
  Mark(SelectionTo(Model(), Marked(), cell, GridReach::Selection));
  selector_.TellFocus();
}

void CGridCtrl::ClearSelectedCells() {
  const GridRange range = Selection();
  for (int row = range.top; !range.IsNone() && row <= range.bottom; ++row) {
    for (int column = range.left; column <= range.right; ++column) {
      SetItem({row, column, GridItem::kText, u"", {}});
    }
  }
}

void CGridCtrl::scrollContentsBy(int dx, int dy) {
  FinishEdit();
  GridTable::scrollContentsBy(dx, dy);
}

void CGridCtrl::updateGeometries() {
  GridTable::updateGeometries();
  edit_.Place();
}

void CGridCtrl::focusInEvent(QFocusEvent* event) {
  // Someone who comes by keys must see the focus cell.
  const bool isByKey =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (isByKey && Focus().IsNone()) selector_.Select({0, 0}, GridReach::Focus);
  if (isByKey) Reveal(SelectionEnd());
  selector_.TellFocus();
  Repaint();
}

void CGridCtrl::focusOutEvent(QFocusEvent*) {
  Repaint();
}

bool CGridCtrl::event(QEvent* event) {
  const bool isShortcut = event->type() == QEvent::ShortcutOverride;
  if (isShortcut || event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    // A key of the grid is not to work as a shortcut of the screen around it.
    if (isShortcut && IsGridKey(key)) {
      event->accept();
      return true;
    }
    if (!isShortcut && IsTab(key) && selector_.GoByTab(Focus(), StepOf(key))) return true;
  }
  return GridTable::event(event);
}

void CGridCtrl::keyPressEvent(QKeyEvent* event) {
  // While the edit box is open, only keys that it ignored come here.
  if (IsEditing() || !IsGridKey(*event)) return event->ignore();
  if (const GridMove* move = MoveOf(event->key(), event->modifiers())) {
    const GridReach reach = ReachOf(event->modifiers());
    selector_.Go(reach == GridReach::Selection ? SelectionEnd() : Focus(), *move, reach);
  } else if (IsSelectAll(*event)) {
    selector_.SelectAll();
  } else {
    EditBy(*event);
  }
}

void CGridCtrl::EditBy(const QKeyEvent& key) {
  if (Focus().IsNone()) selector_.Select({0, 0}, GridReach::Focus);
  EditFocusCell();
  // The old text is selected, so what is typed replaces it.
  if (!TypesIntoCell(key) || !IsEditing()) return;
  const std::unique_ptr<QKeyEvent> typed(key.clone());
  QApplication::sendEvent(&edit_, typed.get());
}

}  // namespace kav
