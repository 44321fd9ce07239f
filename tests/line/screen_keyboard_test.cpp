// The tables of the keyboard, and the pages of the guide that tell of them.
#include "line/screen_keyboard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "common/number_text.h"
#include "line/key_help.h"
#include "line/keypad.h"
#include "line/screen_commands.h"
#include "matrix/matrix_keypad.h"
#include "plotter/plotter_keypad.h"
#include "statistics/statistics_keypad.h"

namespace kav::screen_keyboard_test {
namespace {

constexpr GuidePage kScreens[] = {GuidePage::Scientific, GuidePage::Matrix, GuidePage::OneVariable,
                                  GuidePage::TwoVariable, GuidePage::Plotter};

/// Rows as a page of the guide has them: keys and what they do.
using Rows = std::vector<std::pair<std::string, std::string>>;

std::string Listed(std::string_view keys) {
  return std::regex_replace(std::string(keys), std::regex(";"), ",");
}

/// The keys of a row, one by one.
std::set<std::string> KeysOf(std::string_view row) {
  std::set<std::string> keys;
  std::istringstream parts{std::string(row)};
  for (std::string key; std::getline(parts >> std::ws, key, ';');) keys.insert(key);
  return keys;
}

std::string TextOf(const char* document) {
  std::ifstream file(std::string(KAV_DOCS_FOLDER) + "/" + document);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The rows of the tables of docs/keyboard.md by their headings.
std::map<std::string, Rows> TablesOfThePage() {
  std::map<std::string, Rows> tables;
  Rows* table = nullptr;
  std::istringstream page(TextOf("keyboard.md"));
  const std::regex row("\\| (.+) \\| (.+) \\|");
  std::smatch cells;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("## ")) table = &tables[line.substr(3)];
    if (table == nullptr || !std::regex_match(line, cells, row)) continue;
    if (cells[1] != "Key") table->push_back({cells[1], cells[2]});
  }
  return tables;
}

TEST(ScreenKeyboard, ThePageOfTheGuideHasTheSameTables) {
  std::map<std::string, Rows> expected;
  for (const ShortcutRow& row : ScreenShortcuts()) {
    expected["Every screen"].push_back({Listed(row.keys), Narrow(row.text)});
  }
  for (const GuidePage page : kScreens) {
    for (const KeyboardRow& row : KeyboardOf(page)) {
      expected[Narrow(HeadingOf(page))].push_back({Listed(row.keys), Narrow(row.text)});
    }
  }
  for (const KeyboardRow& row : KeyboardOf(GuidePage::Graph)) {
    expected[Narrow(HeadingOf(GuidePage::Graph))].push_back({Listed(row.keys), Narrow(row.text)});
  }
  EXPECT_EQ(TablesOfThePage(), expected);
}

TEST(ScreenKeyboard, EveryShortcutThatTheGuideTellsOfIsListed) {
  std::set<std::string> known;
  const auto know = [&known](std::string_view keys) { known.merge(KeysOf(keys)); };
  for (const ShortcutRow& row : ScreenShortcuts()) know(row.keys);
  for (const GuidePage page : kScreens) {
    for (const KeyboardRow& row : KeyboardOf(page)) know(row.keys);
  }
  for (const auto& row : KeyPlaces()) know(row.shortcut);
  for (const auto& row : MatrixKeyRows()) know(row.shortcut);
  for (const auto& row : PlotterKeyRows()) know(row.shortcut);
  for (const auto& row : StatisticsKeyRows(DataShape::TwoVariables)) know(row.shortcut);
  const std::regex shortcut(
      "\\b((Ctrl|Alt|Shift)\\+(Shift\\+)?(Page (Up|Down)|[A-Z0-9][a-z]*)|F[1-9][0-9]*\\b)(?!\\()");
  int seen = 0;
  for (const char* document : {"guide.md", "matrix.md", "plotter.md", "statistics.md"}) {
    const std::string text = std::regex_replace(TextOf(document), std::regex("\\n"), " ");
    for (std::sregex_iterator at(text.begin(), text.end(), shortcut), end; at != end; ++at) {
      ++seen;
      EXPECT_TRUE(known.contains(at->str())) << document << ' ' << at->str();
    }
  }
  EXPECT_GE(seen, 10);
}

TEST(ScreenKeyboard, EachScreenSaysWhatEnterEscAndTheArrowsDo) {
  for (const GuidePage page : kScreens) {
    std::set<std::string> keys;
    std::set<std::pair<std::string_view, std::u16string_view>> rows;
    for (const KeyboardRow& row : KeyboardOf(page)) {
      SCOPED_TRACE(std::string(row.keys) + ": " + Narrow(row.text));
      EXPECT_TRUE(rows.insert({row.keys, row.text}).second);
      EXPECT_TRUE(row.text.size() >= 8 && row.text.size() <= 70);
      EXPECT_TRUE(row.text.front() >= u'a' && row.text.front() <= u'z');
      keys.merge(KeysOf(row.keys));
    }
    for (const char* key : {"Enter", "Esc", "Up", "Down"}) {
      EXPECT_TRUE(keys.contains(key)) << Narrow(HeadingOf(page)) << ' ' << key;
    }
  }
  std::set<std::string> everywhere;
  for (const ShortcutRow& row : ScreenShortcuts()) everywhere.merge(KeysOf(row.keys));
  for (const char* key : {"Tab", "Backspace", "Delete", "Esc", "Enter", "Home", "End", "Menu"}) {
    EXPECT_TRUE(everywhere.contains(key)) << key;
  }
  EXPECT_TRUE(KeyboardOf(GuidePage::Converter).empty());
}

TEST(ScreenKeyboard, TheListOfKeysHasThemBeforeTheKeysOfTheScreen) {
  std::vector<ListedKey> keys = ListedKeyboard(GuidePage::Plotter);
  keys.push_back({{{u"SIN", u"sine of an angle"}}, ""});
  const std::vector<KeyListRow> rows = ListOfKeys(keys);
  const std::vector<KeyboardRow> keyboard = KeyboardOf(GuidePage::Plotter);
  const std::size_t general = ScreenShortcuts().size();
  ASSERT_EQ(rows.size(), general + keyboard.size() + 1);
  for (std::size_t i = 0; i < keyboard.size(); ++i) {
    EXPECT_EQ(rows[general + i],
              (KeyListRow{u"", Widen(Listed(keyboard[i].keys)), std::u16string(keyboard[i].text)}));
  }
  EXPECT_EQ(rows[general].text, u"add the equation to the list");
  EXPECT_EQ(rows.back().key, u"SIN");
}

}  // namespace
}  // namespace kav::screen_keyboard_test
