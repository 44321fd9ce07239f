// The layout of the sources, held: which folder may name which, who may name Qt, and that every
// source of the logic has the test of its name. The table of rooms stands here and nowhere else.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// The rooms of the logic and the other rooms that each may name.
const std::map<std::string, std::set<std::string>> kMayName{
    {"common", {}},
    {"settings", {"common"}},
    {"engine", {"common", "settings"}},
    {"memory", {"common", "settings"}},
    {"macros", {"common", "engine", "settings"}},
    {"converter", {"common", "engine", "settings"}},
    {"scientific", {"common", "engine", "macros", "settings"}},
    {"matrix", {"common", "engine", "macros", "scientific", "settings"}},
    {"plotter", {"common", "engine", "scientific", "settings"}},
    {"statistics", {"common", "engine", "plotter", "scientific", "settings"}},
    {"matrix/grid", {}},
};

/// The settings on disk: a library of their own, for those who start a program.
const std::set<std::string> kStore{
    "settings/file_lock",     "settings/settings_path",       "settings/settings_texts",
    "settings/settings_toml", "settings/toml_library",        "settings/toml_text",
    "settings/toml_writer",   "settings/user_settings_store",
};

/// Files that may name what their room may not.
const std::map<std::string, std::set<std::string>> kExceptions{
    // Its popup edits the formula as the keys of the keypad do.
    {"macros/macro_editor_model", {"scientific/expression_line", "scientific/keypad"}},
};

/// Logic above its room, for its own screen only.
const std::set<std::string> kNamedByScreensOnly{"macros/macro_editor_model"};

/// What a screen may name of the application around it.
const std::set<std::string> kOfferedToScreens{"app/bottom_menu_bar",
                                              "app/dialog",
                                              "app/dialog_texts",
                                              "app/file_choice",
                                              "app/choice_box",
                                              "app/fitting_text",
                                              "app/formula_view",
                                              "app/key_painter",
                                              "app/key_screen",
                                              "app/label_list",
                                              "app/line_screen",
                                              "app/line_view",
                                              "app/look",
                                              "app/message_box",
                                              "app/qt_text",
                                              "app/screen"};

/// The one file that names the screens of every room.
const std::string kNamesAllScreens = "app/frame_window";

enum class Layer { Logic, Store, Screen, App, Cli };

/// A source or header: its path below src without the extension, and where that puts it.
struct Unit {
  std::string stem;
  std::string room;
  Layer layer;
};

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

Layer LayerOf(const std::string& stem, const std::string& room) {
  if (room == "app") return Layer::App;
  if (room == "cli") return Layer::Cli;
  for (const char* end : {"_dlg", "_view", "_ctrl"}) {
    if (EndsWith(stem, end)) return Layer::Screen;
  }
  return kStore.contains(stem) ? Layer::Store : Layer::Logic;
}

Unit UnitOf(const fs::path& relative) {
  const std::string room = relative.parent_path().generic_string();
  const std::string stem = fs::path(relative).replace_extension().generic_string();
  return {stem, room, LayerOf(stem, room)};
}

bool LogicMayName(const Unit& from, const Unit& to) {
  if (to.layer != Layer::Logic || kNamedByScreensOnly.contains(to.stem)) return false;
  const auto exception = kExceptions.find(from.stem);
  if (exception != kExceptions.end() && exception->second.contains(to.stem)) return true;
  const auto allowed = kMayName.find(from.room);
  return allowed != kMayName.end() && allowed->second.contains(to.room);
}

bool AppMayName(const Unit& from, const Unit& to) {
  if (to.layer == Layer::Screen) return from.stem == kNamesAllScreens;
  return to.layer != Layer::Cli;
}

bool MayName(const Unit& from, const Unit& to) {
  if (from.stem == to.stem) return true;
  const bool sameRoom = from.room == to.room;
  switch (from.layer) {
    case Layer::Logic:
      return LogicMayName(from, to) ||
             (sameRoom && to.layer == Layer::Logic && !kNamedByScreensOnly.contains(to.stem));
    case Layer::Store:
      return to.layer == Layer::Store || (sameRoom && to.layer == Layer::Logic) ||
             LogicMayName(from, to);
    case Layer::Screen:
      return to.layer == Layer::Logic || to.layer == Layer::Screen ||
             kOfferedToScreens.contains(to.stem);
    case Layer::App:
      return AppMayName(from, to);
    case Layer::Cli:
      return sameRoom || to.layer == Layer::Store ||
             (to.layer == Layer::Logic && !kNamedByScreensOnly.contains(to.stem));
  }
  return false;
}

/// An `#include` line: what it names, and whether in quotes (ours) or brackets (installed).
struct Include {
  std::string name;
  bool isOurs;
};

std::vector<Include> IncludesIn(const std::string& text) {
  static const std::regex kInclude(R"re(^\s*#\s*include\s*(["<])([^">]+)[">])re");
  std::vector<Include> includes;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::smatch match;
    if (std::regex_search(line, match, kInclude)) includes.push_back({match[2], match[1] == "\""});
  }
  return includes;
}

bool IsQt(const std::string& header) {
  return header.front() == 'Q';
}
bool IsToml(const std::string& header) {
  return header.rfind("toml", 0) == 0;
}

/// What is wrong with one include; empty where nothing is.
std::string Fault(const Unit& from, const Include& include) {
  if (!include.isOurs) {
    if (IsQt(include.name) && from.layer != Layer::Screen && from.layer != Layer::App) {
      return "only screens and app name Qt";
    }
    if (IsToml(include.name) && from.layer != Layer::Store) return "only the store names TOML";
    return {};
  }
  const fs::path path(include.name);
  if (path.lexically_normal() != path || !path.has_parent_path() || *path.begin() == "..") {
    return "an include is spelled from src";
  }
  return MayName(from, UnitOf(path)) ? "" : "climbs";
}

fs::path SourceFolder() {
  return fs::path(KAV_SOURCE_FOLDER) / "src";
}
fs::path TestFolder() {
  return fs::path(KAV_SOURCE_FOLDER) / "tests";
}

/// Every source and header below src, relative to it, in order.
std::vector<fs::path> Sources() {
  std::vector<fs::path> sources;
  for (const auto& entry : fs::recursive_directory_iterator(SourceFolder())) {
    const auto extension = entry.path().extension();
    if (extension == ".h" || extension == ".cpp") {
      sources.push_back(entry.path().lexically_relative(SourceFolder()));
    }
  }
  std::sort(sources.begin(), sources.end());
  return sources;
}

std::string TextOf(const fs::path& relative) {
  std::ifstream file(SourceFolder() / relative, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(Layering, NoIncludeClimbs) {
  std::size_t checked = 0;
  for (const auto& source : Sources()) {
    for (const auto& include : IncludesIn(TextOf(source))) {
      EXPECT_EQ(Fault(UnitOf(source), include), "") << source << " includes " << include.name;
      ++checked;
    }
  }
  EXPECT_GT(checked, 50U) << "the sources were not found";
}

TEST(Layering, EveryIncludeInQuotesIsAFileOfOurs) {
  for (const auto& source : Sources()) {
    for (const auto& include : IncludesIn(TextOf(source))) {
      if (!include.isOurs) continue;
      EXPECT_TRUE(fs::exists(SourceFolder() / include.name)) << source << ": " << include.name;
    }
  }
}

TEST(Layering, EveryFolderIsARoomOfTheTable) {
  for (const auto& source : Sources()) {
    const Unit unit = UnitOf(source);
    if (unit.layer == Layer::App || unit.layer == Layer::Cli) continue;
    EXPECT_TRUE(kMayName.contains(unit.room)) << source;
  }
}

TEST(Layering, EverySourceOfTheLogicHasTheTestOfItsName) {
  for (const auto& source : Sources()) {
    const Unit unit = UnitOf(source);
    if (source.extension() != ".cpp") continue;
    if (unit.layer != Layer::Logic && unit.layer != Layer::Store) continue;
    EXPECT_TRUE(fs::exists(TestFolder() / (unit.stem + "_test.cpp"))) << source;
  }
}

TEST(Layering, EveryHeaderIsIncludedOnce) {
  for (const auto& source : Sources()) {
    if (source.extension() != ".h") continue;
    EXPECT_NE(TextOf(source).find("#pragma once\n"), std::string::npos) << source;
  }
}

// The rules themselves, so that a change of the checker above cannot go unseen.
struct Row {
  const char* from;
  Include include;
  const char* fault;
};

TEST(Layering, TheRulesTellALegalIncludeFromAClimbingOne) {
  const std::vector<Row> rows{
      {"common/number_text.cpp", {"common/expected.h", true}, ""},
      {"common/number_text.cpp", {"settings/keys.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"settings/keys.h", true}, ""},
      {"engine/tokenizer.cpp", {"macros/macro_store.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"engine/display_settings_dlg.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"app/message_box.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"cli/options.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"settings/user_settings_store.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"tokenizer.h", true}, "an include is spelled from src"},
      {"engine/tokenizer.cpp", {"../common/expected.h", true}, "an include is spelled from src"},
      {"engine/tokenizer.cpp", {"engine/../cli/options.h", true}, "an include is spelled from src"},
      {"engine/tokenizer.cpp", {"QString", false}, "only screens and app name Qt"},
      {"engine/tokenizer.cpp", {"QtCore/QString", false}, "only screens and app name Qt"},
      {"engine/tokenizer.cpp", {"toml++/toml.h", false}, "only the store names TOML"},
      {"engine/tokenizer.cpp", {"vector", false}, ""},
      {"memory/constants_table.cpp", {"engine/tokenizer.h", true}, "climbs"},
      {"macros/macro_store.cpp", {"engine/tokenizer.h", true}, ""},
      {"macros/macro_store.cpp", {"scientific/keypad.h", true}, "climbs"},
      {"macros/macro_store.cpp", {"macros/macro_editor_model.h", true}, "climbs"},
      {"macros/macro_editor_model.cpp", {"scientific/keypad.h", true}, ""},
      {"macros/macro_editor_model.cpp", {"macros/macro_editor_model.h", true}, ""},
      {"macros/macro_editor_model.cpp", {"scientific/history.h", true}, "climbs"},
      {"macros/macro_editor_dlg.cpp", {"macros/macro_editor_model.h", true}, ""},
      {"matrix/grid/grid_model.cpp", {"common/expected.h", true}, "climbs"},
      {"matrix/grid/grid_model.cpp", {"matrix/grid/grid_model.h", true}, ""},
      {"statistics/regression.cpp", {"plotter/graph_model.h", true}, ""},
      {"statistics/regression.cpp", {"plotter/graph_view.h", true}, "climbs"},
      {"scientific/scientific_dlg.cpp", {"QWidget", false}, ""},
      {"scientific/scientific_dlg.cpp", {"converter/converter_dlg.h", true}, ""},
      {"scientific/scientific_dlg.cpp", {"app/message_box.h", true}, ""},
      {"scientific/scientific_dlg.cpp", {"app/frame_window.h", true}, "climbs"},
      {"scientific/scientific_dlg.cpp", {"settings/user_settings_store.h", true}, "climbs"},
      {"settings/user_settings_store.cpp", {"settings/settings_toml.h", true}, ""},
      {"settings/user_settings_store.cpp", {"common/number_text.h", true}, ""},
      {"settings/user_settings_store.cpp", {"engine/calc_error.h", true}, "climbs"},
      {"settings/settings_toml.cpp", {"toml++/toml.h", false}, ""},
      {"settings/settings_toml.cpp", {"QString", false}, "only screens and app name Qt"},
      {"app/frame_window.cpp", {"scientific/scientific_dlg.h", true}, ""},
      {"app/application.cpp", {"scientific/scientific_dlg.h", true}, "climbs"},
      {"app/application.cpp", {"settings/user_settings_store.h", true}, ""},
      {"app/application.cpp", {"cli/options.h", true}, "climbs"},
      {"cli/main.cpp", {"settings/user_settings_store.h", true}, ""},
      {"cli/main.cpp", {"scientific/scientific_model.h", true}, ""},
      {"cli/main.cpp", {"scientific/scientific_dlg.h", true}, "climbs"},
      {"cli/main.cpp", {"app/screen.h", true}, "climbs"},
      {"cli/main.cpp", {"QString", false}, "only screens and app name Qt"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Fault(UnitOf(row.from), row.include), row.fault)
        << row.from << " includes " << row.include.name;
  }
}

TEST(Layering, IncludesAreReadAsTheCompilerReadsThem) {
  const auto includes = IncludesIn("#include \"a/b.h\"\n  # include <QString>\n// #include <no>\n");
  ASSERT_EQ(includes.size(), 2U);
  EXPECT_EQ(includes[0].name, "a/b.h");
  EXPECT_TRUE(includes[0].isOurs);
  EXPECT_EQ(includes[1].name, "QString");
  EXPECT_FALSE(includes[1].isOurs);
}

}  // namespace
