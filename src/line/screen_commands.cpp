#include "line/screen_commands.h"

#include <array>

#include "line/past_lines_texts.h"

namespace kav {
namespace {

// clang-format off
constexpr std::array kShortcuts{
    ShortcutRow{"F1",     ScreenCommand::Guide,       u"open the guide at the page of this screen"},
    ShortcutRow{"F10",    {},                         u"go to the menus"},
    ShortcutRow{"F11",    ScreenCommand::FullScreen,  u"fill the whole desktop, and go back to a window"},
    ShortcutRow{"Ctrl+,", ScreenCommand::Config,      u"open the display settings"},
    ShortcutRow{"Ctrl++; Ctrl+=", ScreenCommand::LargerText, u"make keys and texts larger"},
    ShortcutRow{"Ctrl+-", ScreenCommand::SmallerText, u"make keys and texts smaller"},
    ShortcutRow{"Ctrl+0", ScreenCommand::UsualText,   u"give keys and texts their usual size"},
    ShortcutRow{"Alt+1",  ScreenCommand::Scientific,  u"go to the scientific calculator"},
    ShortcutRow{"Alt+2",  ScreenCommand::Plotter,     u"go to the function plotter"},
    ShortcutRow{"Alt+3",  ScreenCommand::OneVariable, u"go to the statistics of one variable"},
    ShortcutRow{"Alt+4",  ScreenCommand::TwoVariable, u"go to the statistics of two variables"},
    ShortcutRow{"Alt+5",  ScreenCommand::Matrix,      u"go to the matrix calculator"},
    ShortcutRow{"Ctrl+Z", {},                         u"undo the last change"},
    ShortcutRow{"Ctrl+Y; Ctrl+Shift+Z", {},           u"redo what was undone"},
    ShortcutRow{"Ctrl+X", {},                         u"cut what is selected"},
    ShortcutRow{"Ctrl+C", {},                         u"copy what is selected, or else the result"},
    ShortcutRow{"Ctrl+Shift+C", ScreenCommand::CopyLine, u"copy the line and its result"},
    ShortcutRow{"Ctrl+V", {},                         u"paste"},
    ShortcutRow{"Ctrl+A", {},                         u"select all"},
    ShortcutRow{kHistoryKeys, {},                         u"show or hide the history of the scientific and the matrix screen"},
    ShortcutRow{"Tab; Shift+Tab", {},                 u"go on to the next field or key, and back"},
    ShortcutRow{"Arrow", {},                         u"go from key to key, once one has the focus"},
    ShortcutRow{"Space",  {},                         u"press the key that has the focus"},
    ShortcutRow{"Backspace; Delete", {},              u"in a field: delete what is selected, or else before or behind the caret"},
    ShortcutRow{"Home; End", {},                      u"in a field: go to its beginning or end"},
    ShortcutRow{"Shift+Arrow", {},                   u"in a field: select"},
    ShortcutRow{"Down",   {},                         u"go to what is offered below a field; a digit or Enter takes it"},
    ShortcutRow{"Enter",  {},                         u"in a menu or a dialog: choose, or press the marked button"},
    ShortcutRow{"Esc",    {},                         u"give up a menu, a dialog or what is offered"},
    ShortcutRow{"Menu; Shift+F10", {},                u"open the menu of a field or a list"},
    ShortcutRow{"Ctrl",   {},                         u"held alone: show the shortcuts on the keys"},
    ShortcutRow{"Ctrl+Q", ScreenCommand::Exit,        u"end the program"},
};
// clang-format on

}  // namespace

std::span<const ShortcutRow> ScreenShortcuts() {
  return kShortcuts;
}

std::string_view ShortcutOf(ScreenCommand command) {
  for (const ShortcutRow& row : kShortcuts) {
    if (row.command == command) return row.keys;
  }
  return {};
}

}  // namespace kav
