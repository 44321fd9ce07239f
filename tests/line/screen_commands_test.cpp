#include "line/screen_commands.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "common/number_text.h"
#include "line/keypad.h"
#include "matrix/matrix_keypad.h"
#include "plotter/plotter_keypad.h"
#include "statistics/statistics_keypad.h"

namespace kav::screen_commands_test {
namespace {

TEST(ScreenCommands, EachHasTheKeysThatPeopleKnow) {
  const std::map<ScreenCommand, std::string> rows{
      {ScreenCommand::Guide, "F1"},          {ScreenCommand::Config, "Ctrl+,"},
      {ScreenCommand::FullScreen, "F11"},    {ScreenCommand::Scientific, "Alt+1"},
      {ScreenCommand::Plotter, "Alt+2"},     {ScreenCommand::OneVariable, "Alt+3"},
      {ScreenCommand::TwoVariable, "Alt+4"}, {ScreenCommand::Matrix, "Alt+5"},
      {ScreenCommand::Exit, "Ctrl+Q"},       {ScreenCommand::Keys, ""}};
  for (const auto& [command, keys] : rows) EXPECT_EQ(ShortcutOf(command), keys);
}

/// The sequences of a row, one by one.
std::vector<std::string> KeysOf(const ShortcutRow& row) {
  std::vector<std::string> keys{""};
  for (const char c : row.keys) {
    if (c == ';') {
      keys.emplace_back();
    } else if (c != ' ') {
      keys.back() += c;
    }
  }
  return keys;
}

TEST(ScreenCommands, NoKeysStandTwiceAndEachRowSaysWhatTheyDo) {
  std::set<std::string> keys;
  std::set<std::u16string_view> texts;
  for (const ShortcutRow& row : ScreenShortcuts()) {
    for (const std::string& key : KeysOf(row)) EXPECT_TRUE(keys.insert(key).second) << key;
    EXPECT_TRUE(texts.insert(row.text).second) << row.keys;
    EXPECT_GE(row.text.size(), 5U) << row.keys;
  }
  for (const char* redo : {"Ctrl+Y", "Ctrl+Shift+Z"}) EXPECT_TRUE(keys.contains(redo)) << redo;
}

template <class Rows>
void ExpectNoClash(const Rows& rows, const char* pad) {
  std::set<std::string> general{"Alt+F", "Alt+E", "Alt+M", "Alt+H"};  // the menus of the menu bar
  for (const ShortcutRow& row : ScreenShortcuts()) {
    for (const std::string& key : KeysOf(row)) general.insert(key);
  }
  int seen = 0;
  for (const auto& row : rows) {
    seen += row.shortcut.empty() ? 0 : 1;
    EXPECT_FALSE(general.contains(std::string(row.shortcut))) << pad << ' ' << row.shortcut;
  }
  EXPECT_GE(seen, 3) << pad;
}

TEST(ScreenCommands, NoKeyOfAKeypadHasTheKeysOfACommandOrOfAMenu) {
  ExpectNoClash(KeyPlaces(), "scientific");
  ExpectNoClash(MatrixKeyRows(), "matrix");
  ExpectNoClash(PlotterKeyRows(), "plotter");
  ExpectNoClash(StatisticsKeyRows(DataShape::OneVariable), "one variable");
  ExpectNoClash(StatisticsKeyRows(DataShape::TwoVariables), "two variables");
}

}  // namespace
}  // namespace kav::screen_commands_test
