#include "screens/grid/grid_edit_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "common/number_text.h"
#include "grid/grid_texts.h"
#include "screens/grid/grid_keys_view.h"
#include "screens/grid/grid_painter_view.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kLongestText = 1000;

/// Where a cell is, by the texts of its headers.
QString NameOfPlace(const GridModel& grid, GridCell cell) {
  const auto row = grid.GetItemText(cell.row, grid.FixedColumnCount() - 1);
  const auto column = grid.GetItemText(grid.FixedRowCount() - 1, cell.column);
  return ToQt(kRowOfCell) + ToQt(row) + ", " + ToQt(kColumnOfCell) + ToQt(column);
}

bool HasSeveralCells(const QString& text) {
  return text.contains(u'\t') || text.trimmed().contains(u'\n');
}

}  // namespace

GridEdit::GridEdit(GridTable& table, GridSelector& selector, const GridHooks& hooks)
    : QLineEdit(table.viewport()), table_(table), selector_(selector), hooks_(hooks) {
  setStyle(ScreenStyle());
  setFrame(false);
  setMaxLength(kLongestText);
  OpenDoor(*this, DoorKind::Cell);
  hide();
}

void GridEdit::Begin() {
  const GridCell cell = table_.Focus();
  if (cell_ || cell.IsNone()) return;
  table_.Reveal(cell);
  if (hooks_.beginEdit) hooks_.beginEdit(cell.row, cell.column);
  // The hook may have changed the grid.
  if (cell_ || table_.Focus() != cell) return;
  cell_ = cell;
  const GridModel& grid = table_.Model();
  setAlignment(TextAlignment(grid.GetItemFormat(cell.row, cell.column)));
  setAccessibleName(NameOfPlace(grid, cell));
  setText(ToQt(grid.GetItemText(cell.row, cell.column)));
  selectAll();
  Place();
  show();
  setFocus(Qt::OtherFocusReason);
}

void GridEdit::BeginWith(const QString& text) {
  Begin();
  if (!cell_) return;
  selectAll();
  insert(text);
}

std::optional<GridCell> GridEdit::GiveUp() {
  const std::optional<GridCell> cell = std::exchange(cell_, std::nullopt);
  if (!cell) return cell;
  // Hidden while it has the focus, the box would hand it to the widget behind the grid.
  if (hasFocus()) table_.setFocus(Qt::OtherFocusReason);
  hide();
  table_.viewport()->update();
  return cell;
}

void GridEdit::Finish() {
  const std::optional<GridCell> cell = GiveUp();
  if (!cell) return;
  // A text longer than the box takes is cut by it, but only if it was touched.
  const std::u16string text = isModified()
                                  ? OnOneLine(this->text().toStdU16String())
                                  : std::u16string(table_.GetItemText(cell->row, cell->column));
  const bool isTaken = table_.SetItem({cell->row, cell->column, GridItem::kText, text, {}});
  if (!isTaken && !table_.Model().HasSource(*cell)) return;
  if (hooks_.endEdit) hooks_.endEdit(cell->row, cell->column, ToQt(text));
  table_.Tell(QAccessible::NameChanged, *cell);
}

void GridEdit::Place() {
  if (!cell_) return;
  setFont(table_.font());
  QRect area = table_.CellArea(*cell_).translated(-table_.Room().topLeft());
  // A narrow column would show no more than the caret.
  area.setWidth(std::max(area.width(), 5 * font().pixelSize()));
  area.moveRight(std::min(area.right(), std::max(table_.Room().width(), area.width()) - 1));
  setGeometry(area);
  const int margin = std::max(0, TextMargin(font().pixelSize()) - 2);
  setTextMargins(margin, 0, margin, 0);
}

bool GridEdit::event(QEvent* event) {
  const bool isShortcut = event->type() == QEvent::ShortcutOverride;
  if (!isShortcut && event->type() != QEvent::KeyPress) return QLineEdit::event(event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool isPaste = key.matches(QKeySequence::Paste);
  // The box knows only the other key for it; the owner would redo a change of its own.
  const bool isRedo = key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier;
  if (!isPaste && !isRedo && !EndsEdit(key) && !LeadsOut(key)) return QLineEdit::event(event);
  event->accept();
  if (isShortcut) return true;
  if (isRedo) {
    redo();
  } else if (isPaste) {
    Paste();
  } else {
    OnEnd(key);
  }
  return true;
}

/// Whether the key leads from an end of the text to a cell beside it.
bool GridEdit::LeadsOut(const QKeyEvent& key) const {
  constexpr Qt::KeyboardModifiers kOther =
      Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const bool isLeft = key.key() == Qt::Key_Left;
  if (!cell_ || (key.modifiers() & kOther) != 0 || hasSelectedText()) return false;
  if (!isLeft && key.key() != Qt::Key_Right) return false;
  if (cursorPosition() != (isLeft ? 0 : text().size())) return false;
  const GridCell next{cell_->row, cell_->column + (isLeft ? -1 : 1)};
  return table_.Model().Nearest(next) == next;
}

void GridEdit::Paste() {
  const QString block = QApplication::clipboard()->text();
  if (!HasSeveralCells(block) || !hooks_.pasteBlock) {
    // A spreadsheet ends a single cell with the end of a line.
    return insert(block.trimmed());
  }
  GiveUp();
  hooks_.pasteBlock();
}

void GridEdit::dropEvent(QDropEvent* event) {
  const QString text = event->mimeData()->text();
  if (!cell_ || !hooks_.drop || !HasSeveralCells(text)) return QLineEdit::dropEvent(event);
  event->setDropAction(Qt::CopyAction);
  event->accept();
  // The other program waits until this event is done.
  QTimer::singleShot(0, this, [this, text] {
    if (const auto cell = GiveUp()) hooks_.drop(*cell, text);
  });
}

void GridEdit::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* paste = menu->findChild<QAction*>("edit-paste")) {
    paste->disconnect(SIGNAL(triggered(bool)));
    connect(paste, &QAction::triggered, this, [this] { Paste(); });
  }
  menu->popup(event->globalPos());
}

void GridEdit::OnEnd(const QKeyEvent& key) {
  if (!cell_) return;
  if (key.key() == Qt::Key_Escape) {
    GiveUp();
    return;
  }
  const GridCell cell = *cell_;
  Finish();
  const int step = StepOf(key);
  if (!IsTab(key)) {
    const GridMove* move = MoveOf(key.key(), {});
    if (move == nullptr) return selector_.GoByEnter(cell, step);
    selector_.Go(cell, *move, GridReach::Focus);
  } else if (!selector_.GoByTab(cell, step)) {
    focusNextPrevChild(step > 0);
  }
}

void GridEdit::focusOutEvent(QFocusEvent* event) {
  // The box's own menu takes the focus only for as long as it is open.
  if (event->reason() != Qt::PopupFocusReason) Finish();
  QLineEdit::focusOutEvent(event);
}

void GridEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  const int line = 2 * std::max(1, height() / 26);
  painter.setPen(QPen(palette().color(QPalette::Highlight), line, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.drawRect(rect().adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

}  // namespace kav
