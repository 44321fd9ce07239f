#include "app/screen.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <utility>

#include "app/app_texts.h"
#include "app/bottom_menu_bar.h"
#include "app/message_box.h"

namespace kav {
namespace {

constexpr QSize kSmallest(180, 240);

void AddAction(QMenu* menu, const MenuEntry& entry) {
  QAction* action = menu->addAction(QStringView(entry.text).toString());
  action->setShortcut(entry.shortcut);
  action->setShortcutContext(Qt::WidgetShortcut);
  QObject::connect(action, &QAction::triggered, action, entry.action);
  if (!entry.isEnabled) return;
  QObject::connect(menu, &QMenu::aboutToShow, action,
                   [action, isEnabled = entry.isEnabled] { action->setEnabled(isEnabled()); });
}

}  // namespace

Screen::Screen(Frame& frame, QSize size)
    : frame_(frame), size_(size), menuBar_(new BottomMenuBar(this)) {
  setWindowTitle(QStringView(kApplicationName).toString());
  setPalette(ScreenPalette());
  setMinimumSize(kSmallest);
}

void Screen::AddMenu(std::u16string_view title, const std::vector<MenuEntry>& entries) {
  QMenu* menu = nullptr;
  for (const MenuEntry& entry : entries) {
    if (!entry.action) continue;
    if (menu == nullptr) menu = menuBar_->addMenu(QStringView(title).toString());
    AddAction(menu, entry);
  }
  if (menu == nullptr) return;
  connect(menu, &QMenu::aboutToShow, menu, [this, menu] { Dress(menu); });
}

void Screen::AddFileMenu(const FileCommands& commands) {
  AddMenu(kFileMenu, {{kAboutEntry, [this] { ShowAbout(this); }},
                      {kConfigEntry, commands.config},
                      {kEditUnitsEntry, commands.editUnits},
                      {kEditMacroEntry, commands.editMacros},
                      {kExitEntry, [this] { frame_.Exit(); }}});
}

void Screen::AddEditMenu(const std::function<QLineEdit*()>& line) {
  const auto on = [line](auto edit) { return [line, edit] { (line()->*edit)(); }; };
  const auto is = [line](auto state) { return [line, state] { return (line()->*state)(); }; };
  AddMenu(kEditMenu,
          {{kUndoEntry, on(&QLineEdit::undo), QKeySequence::Undo, is(&QLineEdit::isUndoAvailable)},
           {kRedoEntry, on(&QLineEdit::redo), QKeySequence::Redo, is(&QLineEdit::isRedoAvailable)},
           {kCutEntry, on(&QLineEdit::cut), QKeySequence::Cut, is(&QLineEdit::hasSelectedText)},
           {kCopyEntry, on(&QLineEdit::copy), QKeySequence::Copy, is(&QLineEdit::hasSelectedText)},
           {kPasteEntry, on(&QLineEdit::paste), QKeySequence::Paste},
           {kSelectAllEntry, on(&QLineEdit::selectAll), QKeySequence::SelectAll}});
}

void Screen::AddModeMenu(ScreenMode own) {
  std::vector<MenuEntry> entries;
  for (const ScreenChoice& choice : frame_.ScreensBeside(own)) {
    entries.push_back({choice.caption, [this, mode = choice.mode] { frame_.ChangeMode(mode); }});
  }
  AddMenu(kModeMenu, entries);
}

QMenu* Screen::MakePopUp() {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  Dress(menu);
  return menu;
}

void Screen::Dress(QMenu* menu) {
  menu->setStyle(ScreenStyle());
  menu->setFont(menuBar_->font());
}

void Screen::resizeEvent(QResizeEvent*) {
  const QRect area = PortraitArea(size());
  menuBar_->setFont(ScreenFont(TextPixels(area.height())));
  const int menuHeight = menuBar_->sizeHint().height();
  menuBar_->setGeometry(area.x(), area.bottom() + 1 - menuHeight, area.width(), menuHeight);
  LayOut(DialogUnits(area.adjusted(0, 0, 0, -menuHeight), size_));
}

void Screen::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), BackdropColour());
  painter.fillRect(PortraitArea(size()), palette().color(QPalette::Window));
}

void Screen::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) return menuBar_->Enter();
  QWidget::keyPressEvent(event);
}

bool Screen::focusNextPrevChild(bool next) {
  // The menu bar takes its turn with the Tab key between the last widget of the body and the first.
  const QWidget* first = FirstInRound();
  const QWidget* before = focusWidget();
  const bool moved = QWidget::focusNextPrevChild(next);
  const bool passedTheEnd = (next ? focusWidget() : before) == first;
  if (passedTheEnd && before != menuBar_) menuBar_->Enter();
  return moved;
}

const QWidget* Screen::FirstInRound() const {
  const QWidget* widget = nextInFocusChain();
  while (widget != this && !(widget->isVisible() && widget->isEnabled() &&
                             (widget->focusPolicy() & Qt::TabFocus) != 0)) {
    widget = widget->nextInFocusChain();
  }
  return widget;
}

}  // namespace kav
