#include "screens/widgets/screen.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QShortcut>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "screens/widgets/access_view.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/bottom_menu_bar.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/menu_access.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/pop_up.h"
#include "screens/widgets/qt_text.h"
#include "settings/keys.h"

namespace kav {
namespace {

void AddAction(QMenu* menu, const MenuEntry& entry) {
  QAction* action = menu->addAction(ToQt(entry.text));
  action->setShortcut(entry.shortcut);
  action->setShortcutContext(Qt::WidgetShortcut);
  action->setStatusTip(ToQt(entry.tip));
  QObject::connect(action, &QAction::triggered, action, entry.action);
  if (!entry.isEnabled) return;
  QObject::connect(menu, &QMenu::aboutToShow, action,
                   [action, isEnabled = entry.isEnabled] { action->setEnabled(isEnabled()); });
}

QKeySequence KeysOf(ScreenCommand command) {
  return {QLatin1String(ShortcutOf(command))};
}

/// The command that leads to the screen `mode`: both have the order of the stored numbers.
constexpr ScreenCommand CommandTo(ScreenMode mode) {
  return static_cast<ScreenCommand>(static_cast<int>(ScreenCommand::Scientific) +
                                    static_cast<int>(mode) -
                                    static_cast<int>(ScreenMode::Scientific));
}
static_assert(CommandTo(ScreenMode::Scientific) == ScreenCommand::Scientific);
static_assert(CommandTo(ScreenMode::Plotter) == ScreenCommand::Plotter);
static_assert(CommandTo(ScreenMode::OneVariable) == ScreenCommand::OneVariable);
static_assert(CommandTo(ScreenMode::TwoVariable) == ScreenCommand::TwoVariable);
static_assert(CommandTo(ScreenMode::Matrix) == ScreenCommand::Matrix);

/// An entry of the Edit menu.
struct EditRow {
  EditCommand command;
  std::u16string_view text;
  QKeySequence::StandardKey shortcut;
  std::u16string_view tip = {};
};

constexpr std::array kEditRows{
    EditRow{EditCommand::Undo, kUndoEntry, QKeySequence::Undo},
    EditRow{EditCommand::Redo, kRedoEntry, QKeySequence::Redo},
    EditRow{EditCommand::Cut, kCutEntry, QKeySequence::Cut, kCutTip},
    EditRow{EditCommand::Copy, kCopyEntry, QKeySequence::Copy, kCopyTip},
    EditRow{EditCommand::Paste, kPasteEntry, QKeySequence::Paste, kPasteTip},
    EditRow{EditCommand::SelectAll, kSelectAllEntry, QKeySequence::SelectAll},
};

}  // namespace

void EditLine(QLineEdit& line, EditCommand command) {
  switch (command) {
    case EditCommand::Undo:
      return line.undo();
    case EditCommand::Redo:
      return line.redo();
    case EditCommand::Cut:
      return line.cut();
    case EditCommand::Copy:
      return line.copy();
    case EditCommand::Paste:
      return line.paste();
    case EditCommand::SelectAll:
      return line.selectAll();
  }
}

bool CanEditLine(const QLineEdit& line, EditCommand command) {
  switch (command) {
    case EditCommand::Undo:
      return line.isUndoAvailable();
    case EditCommand::Redo:
      return line.isRedoAvailable();
    case EditCommand::Cut:
      return !line.isReadOnly() && line.hasSelectedText();
    case EditCommand::Copy:
      return line.hasSelectedText();
    case EditCommand::Paste:
      return !line.isReadOnly();
    case EditCommand::SelectAll:
      break;
  }
  return true;
}

std::optional<EditCommand> UndoCommandOf(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Undo)) return EditCommand::Undo;
  const bool isRedo = event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
  if (isRedo || event.matches(QKeySequence::Redo)) return EditCommand::Redo;
  return std::nullopt;
}

Screen::Screen(Frame& frame, QSize size)
    : frame_(frame), size_(size), menuBar_(new BottomMenuBar(this)) {
  OfferWidgetsToScreenReaders();
  DescribeMenusToScreenReaders();
  setWindowTitle(ToQt(kApplicationName));
  Wear(*this, Attire::Window);
  setMinimumSize(kSmallestWindow);
  MakeShortcuts();
}

void Screen::MakeShortcuts() {
  for (const ShortcutRow& row : ScreenShortcuts()) {
    if (!row.command) continue;
    auto* shortcut = new QShortcut(this);
    shortcut->setKeys(QKeySequence::listFromString(QLatin1String(row.keys)));
    connect(shortcut, &QShortcut::activated, this,
            [this, command = *row.command] { Obey(command); });
  }
}

void Screen::Obey(ScreenCommand command) {
  switch (command) {
    case ScreenCommand::Guide:
      return OpenGuide(this, {});
    case ScreenCommand::Keys:
      return OpenKeys();
    case ScreenCommand::Config:
      if (config_) config_();
      return;
    case ScreenCommand::FullScreen:
      return setWindowState(windowState() ^ Qt::WindowFullScreen);
    case ScreenCommand::Exit:
      return EndProgram();
    case ScreenCommand::CopyLine:
      return CopyLine();
    case ScreenCommand::LargerText:
      return frame_.ScaleText(TextStep::Larger);
    case ScreenCommand::SmallerText:
      return frame_.ScaleText(TextStep::Smaller);
    case ScreenCommand::UsualText:
      return frame_.ScaleText(TextStep::Usual);
    default:
      break;
  }
  for (const ScreenChoice& choice : others_) {
    if (CommandTo(choice.mode) == command) return GoTo(choice.mode);
  }
}

void Screen::OpenGuide(QWidget* window, std::optional<GuidePage> page) {
  if (frame_.Dialogs().guide) frame_.Dialogs().guide(window, page.value_or(Page()));
}

void Screen::EndProgram() {
  if (MayBeLeft(LeaveReason::Ending)) frame_.Exit();
}

void Screen::ExportSettings() {
  Keep();
  frame_.ExportSettings(this);
}

void Screen::ImportSettings() {
  // As before a change of screens: this one goes.
  if (MayBeLeft(LeaveReason::Switching)) frame_.ImportSettings(this);
}

void Screen::GoTo(ScreenMode mode) {
  if (MayBeLeft(LeaveReason::Switching)) frame_.ChangeMode(mode);
}

void Screen::AddMenu(std::u16string_view title, const std::vector<MenuEntry>& entries) {
  if (entries.empty()) return;
  QMenu* menu = menuBar_->addMenu(ToQt(title));
  for (const MenuEntry& entry : entries) AddAction(menu, entry);
}

void Screen::AddFileMenu(const FileCommands& commands) {
  config_ = commands.config;
  AddMenu(kFileMenu, {{kAboutEntry, [this] { ShowAbout(this); }},
                      {kConfigEntry, commands.config, KeysOf(ScreenCommand::Config)},
                      {kEditUnitsEntry, commands.editUnits},
                      {commands.editMacrosEntry, commands.editMacros},
                      {kExportEntry, [this] { ExportSettings(); }},
                      {kImportEntry, [this] { ImportSettings(); }},
                      {kExitEntry, [this] { EndProgram(); }, KeysOf(ScreenCommand::Exit)}});
}

void Screen::AddEditMenu(const EditHooks& hooks) {
  std::vector<MenuEntry> entries;
  entries.reserve(kEditRows.size() + hooks.results.size() + hooks.more.size());
  for (const EditRow& row : kEditRows) {
    entries.push_back(
        {row.text, [edit = hooks.edit, command = row.command] { edit(command); }, row.shortcut,
         [can = hooks.canEdit, command = row.command] { return can(command); }, row.tip});
    if (row.command != EditCommand::Copy) continue;
    entries.insert(entries.end(), hooks.results.begin(), hooks.results.end());
  }
  entries.insert(entries.end(), hooks.more.begin(), hooks.more.end());
  AddMenu(kEditMenu, entries);
}

void Screen::AddModeMenu(ScreenMode own) {
  others_ = frame_.ScreensBeside(own);
  std::vector<MenuEntry> entries;
  entries.reserve(others_.size());
  for (const ScreenChoice& choice : others_) {
    entries.push_back({choice.caption, [this, mode = choice.mode] { GoTo(mode); },
                       KeysOf(CommandTo(choice.mode))});
  }
  AddMenu(kModeMenu, entries);
}

void Screen::AddHelpMenu() {
  AddMenu(kHelpMenu,
          {{kGuideEntry, [this] { Obey(ScreenCommand::Guide); }, KeysOf(ScreenCommand::Guide)},
           {kKeysEntry, [this] { Obey(ScreenCommand::Keys); }},
           {kAboutEntry, [this] { ShowAbout(this); }}});
}

QMenu* Screen::MakePopUp() {
  return NewPopUp(this, menuBar_->font());
}

void Screen::changeEvent(QEvent* event) {
  // Texts of another size than the usual have another share of a window that fills the desktop.
  const bool mayDiffer = frame_.Store().Get(kTextScale) != kUsualTextScale;
  if (event->type() == QEvent::WindowStateChange && mayDiffer) LayOutAll();
  QWidget::changeEvent(event);
}

void Screen::wheelEvent(QWheelEvent* event) {
  if (event->modifiers() != Qt::ControlModifier) return QWidget::wheelEvent(event);
  turned_ += event->angleDelta().y();
  const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
  turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
  for (int i = 0; i < std::abs(steps); ++i) {
    frame_.ScaleText(steps > 0 ? TextStep::Larger : TextStep::Smaller);
  }
}

void Screen::resizeEvent(QResizeEvent*) {
  LayOutAll();
}

void Screen::LayOutAll() {
  const double scale = TextScaleFromSetting(frame_.Store().Get(kTextScale));
  // A window that cannot grow has the texts grow in it.
  const bool isAtItsOwnSize = !isMaximized() && !isFullScreen();
  const int grown = isAtItsOwnSize ? frame_.Store().Get(kWindowScale) : kUsualTextScale;
  SetTextShare(scale / std::clamp(grown, kLeastTextScale, kMostTextScale));
  const QRect area = Area();
  int text = TextPixels(area.height());
  menuBar_->SetLetters(ScreenFont(text));
  // In a wide face, the titles have room in smaller letters only.
  while (text > 1 && menuBar_->sizeHint().width() > area.width()) {
    menuBar_->SetLetters(ScreenFont(--text));
  }
  const int menuHeight = menuBar_->sizeHint().height();
  menuBar_->setGeometry(area.x(), area.bottom() + 1 - menuHeight, area.width(), menuHeight);
  LayOut(DialogUnits(area.adjusted(0, 0, 0, -menuHeight), size_));
}

void Screen::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ColourNow(Colour::Backdrop));
  painter.fillRect(Area(), palette().color(QPalette::Window));
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
