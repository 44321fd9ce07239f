#include "screens/widgets/key_screen.h"

#include <QAction>
#include <QActionGroup>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>
#include <array>
#include <utility>

#include "line/key_help.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/pop_up.h"

namespace kav {
namespace {

/// `text` as the label of a menu entry, in which '&' and a tab have a meaning.
QString LabelOf(const std::u16string& text) {
  return QString::fromStdU16String(text)
      .replace(QChar(u'&'), QString("&&"))
      .replace(QChar(u'\t'), QChar(u' '));
}

}  // namespace

void KeyScreen::AddKeys(std::vector<KeySpot> keys) {
  keys_ = new KeySheet(this, std::move(keys), [this](int key) { OnKeyNumber(key); });
  keys_->lower();
}

void KeyScreen::PopUp(const Menu& items, int key, const std::function<void(int)>& choose) {
  if (items.empty()) return;
  QMenu* menu = MakePopUp();
  menu->setAccessibleName(keys_->KeyCaption(key));
  auto* marked = new QActionGroup(menu);  // of which one is in force
  for (const MenuItem& item : items) {
    if (item.IsSeparator()) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(LabelOf(item.text));
    if (!item.whole.empty()) {
      menu->setToolTipsVisible(true);
      action->setToolTip(TipOf(item.whole));
      action->setStatusTip(QString::fromStdU16String(item.whole));
    }
    connect(action, &QAction::triggered, this, [choose, id = item.id] { choose(id); });
    if (item.mark == MenuMark::None) continue;
    marked->addAction(action);
    action->setCheckable(true);
    action->setChecked(item.mark == MenuMark::Set);
  }
  if (const auto place = PlaceOfMenu(key)) return PopUpAt(*menu, *this, Area(), *place);
  const QRect below = keys_->KeyArea(key);
  menu->popup(mapToGlobal(QPoint(below.left(), below.bottom() + 1)));
  // Only now its width is known.
  const int beyond = menu->geometry().right() - mapToGlobal(rect().bottomRight()).x();
  if (beyond > 0) menu->move(menu->x() - beyond, menu->y());
}

void KeyScreen::AddMenus(ScreenMode mode, DisplayPage page,
                         const std::function<void()>& takeDisplaySettings) {
  const ScreenDialogs& dialogs = Dialogs();
  const auto config = [this, page, takeDisplaySettings](QWidget* parent) {
    if (Dialogs().displaySettings(parent, page)) takeDisplaySettings();
  };
  AddFileMenu({Opening(config), Opening(dialogs.unitEditor), Opening(dialogs.macroEditor),
               mode == ScreenMode::Plotter ? kPlotterEditMacroEntry : kEditMacroEntry});
  AddEditMenu({[this](EditCommand command) { Edit(command); },
               [this](EditCommand command) { return CanEdit(command); }, MoreToEdit(),
               EntriesOfResult()});
  AddModeMenu(mode);
  AddHelpMenu();
}

std::function<void()> KeyScreen::Opening(const std::function<void(QWidget*)>& open) {
  return [this, open] {
    TakeLine();
    open(this);
    Refresh();
    ParentFrame().SaveStore();
  };
}

void KeyScreen::Do(const TellStop& request) {
  ShowStop(this, request.text, request.more);
}

void KeyScreen::Do(const TellNotice& request) {
  ShowNotice(this, request.text);
}

void KeyScreen::Do(const OpenMacroEditor& request) {
  if (!request.message.empty()) ShowStop(this, request.message);
  Dialogs().macroEditor(this);
  ParentFrame().SaveStore();
  Refresh();
}

void KeyScreen::Do(const StoreMemoryVariable& request) {
  Dialogs().storeVariable(this, request.value);
  ParentFrame().SaveStore();
}

bool KeyScreen::event(QEvent* event) {
  // Comes before each key that is pressed, whatever has the focus.
  if (event->type() == QEvent::ShortcutOverride) held_.Hear(*static_cast<QKeyEvent*>(event));
  return Screen::event(event);
}

void KeyScreen::OpenKeys() {
  if (!Dialogs().keys) return;
  std::vector<ListedKey> listed = ListedKeyboard(Page());
  const std::vector<ListedKey> onScreen = keys_->Listed();
  listed.insert(listed.end(), onScreen.begin(), onScreen.end());
  Dialogs().keys(this, listed);
}

std::optional<std::u16string> KeyScreen::RecallVariable() {
  auto value = Dialogs().recallVariable(this);
  // Variables may have been cleared in it as well.
  ParentFrame().SaveStore();
  return value;
}

bool IsTyping(const QKeyEvent& event) {
  if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
  constexpr std::array kEditing{Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Home, Qt::Key_End,
                                Qt::Key_Up};
  return !event.text().isEmpty() ||
         std::find(kEditing.begin(), kEditing.end(), event.key()) != kEditing.end();
}

}  // namespace kav
