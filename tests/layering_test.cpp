// The layout of the sources, held: the floors of the house, who may name Qt, and that every source
// of the logic has the test of its name. The table of floors stands here and nowhere else.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "support/source_files.h"

namespace kav::layering_test {
namespace {

namespace fs = std::filesystem;
using test::Include;
using test::IncludesIn;
using test::SourceFiles;
using test::SourceFolder;
using test::TextOf;

/// The folders below src from the ground up. A file may name files of its own folder and of the
/// floors below; folders on one floor do not know each other.
const std::vector<std::vector<std::string>> kFloors{
    {"common", "grid"},
    {"settings", "engine"},
    {"display", "memory", "store"},
    {"converter", "line"},
    {"macros"},
    {"plotter"},
    {"scientific", "matrix", "statistics"},
    {"screens/widgets"},
    {"screens/display", "screens/grid", "screens/help", "screens/memory"},
    {"screens/converter", "screens/macros", "screens/plotter"},
    {"screens/matrix", "screens/scientific", "screens/statistics"},
    {"cli", "app"},
};

/// The one file of app/ that names the screens of every room.
const std::string kNamesAllScreens = "app/frame_window";

/// What kind of code a folder holds.
enum class Kind {
  Logic,   ///< the C++ standard library only
  Store,   ///< the settings on disk, for those who start a program
  Widget,  ///< what all screens stand on
  Screen,
  App,
  Cli
};

/// A source or header: its path below src without the extension, and where that puts it.
struct Unit {
  std::string stem;
  std::string room;
  Kind kind;
};

Kind KindOf(const std::string& room) {
  if (room == "app") return Kind::App;
  if (room == "cli") return Kind::Cli;
  if (room == "store") return Kind::Store;
  if (room == "screens/widgets") return Kind::Widget;
  return room.rfind("screens/", 0) == 0 ? Kind::Screen : Kind::Logic;
}

Unit UnitOf(const fs::path& relative) {
  const std::string room = relative.parent_path().generic_string();
  return {fs::path(relative).replace_extension().generic_string(), room, KindOf(room)};
}

/// Counted from the ground; nothing for a folder that is on no floor.
std::optional<std::size_t> FloorOf(const std::string& room) {
  for (std::size_t floor = 0; floor < kFloors.size(); ++floor) {
    if (std::count(kFloors[floor].begin(), kFloors[floor].end(), room) != 0) return floor;
  }
  return std::nullopt;
}

bool IsPicture(Kind kind) {
  return kind == Kind::Widget || kind == Kind::Screen;
}

/// Whether `to`, on a lower floor, is out of sight of `from` all the same.
bool IsHidden(const Unit& from, const Unit& to) {
  if (to.kind == Kind::Store) return from.kind != Kind::App && from.kind != Kind::Cli;
  if (from.kind == Kind::Cli) return IsPicture(to.kind);
  if (from.kind == Kind::App && to.kind == Kind::Screen) return from.stem != kNamesAllScreens;
  return false;
}

bool MayName(const Unit& from, const Unit& to) {
  if (from.room == to.room) return true;
  const auto fromFloor = FloorOf(from.room);
  const auto toFloor = FloorOf(to.room);
  return fromFloor && toFloor && *toFloor < *fromFloor && !IsHidden(from, to);
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
    if (IsQt(include.name) && !IsPicture(from.kind) && from.kind != Kind::App) {
      return "only screens and app name Qt";
    }
    if (IsToml(include.name) && from.kind != Kind::Store) return "only the store names TOML";
    const bool isEigen = include.name.rfind("Eigen", 0) == 0;
    if (isEigen && from.stem != "matrix/matrix_decompositions") return "one source names Eigen";
    return {};
  }
  const fs::path path(include.name);
  if (path.lexically_normal() != path || !path.has_parent_path() || *path.begin() == "..") {
    return "an include is spelled from src";
  }
  return MayName(from, UnitOf(path)) ? "" : "climbs";
}

fs::path TestFolder() {
  return fs::path(KAV_SOURCE_FOLDER) / "tests";
}

TEST(Layering, NoIncludeClimbs) {
  std::size_t checked = 0;
  for (const auto& source : SourceFiles()) {
    for (const auto& include : IncludesIn(TextOf(source))) {
      EXPECT_EQ(Fault(UnitOf(source), include), "") << source << " includes " << include.name;
      ++checked;
    }
  }
  EXPECT_GT(checked, 50U) << "the sources were not found";
}

TEST(Layering, EveryIncludeInQuotesIsAFileOfOurs) {
  for (const auto& source : SourceFiles()) {
    for (const auto& include : IncludesIn(TextOf(source))) {
      if (!include.isOurs) continue;
      // One that the build makes stands there as its pattern.
      EXPECT_TRUE(fs::exists(SourceFolder() / include.name) ||
                  fs::exists(SourceFolder() / (include.name + ".in")))
          << source << ": " << include.name;
    }
  }
}

TEST(Layering, EveryFolderIsOnOneFloor) {
  std::map<std::string, int> floors;
  for (const auto& floor : kFloors) {
    for (const auto& room : floor) {
      EXPECT_EQ(++floors[room], 1) << room;
      EXPECT_TRUE(fs::is_directory(SourceFolder() / room)) << room;
    }
  }
  for (const auto& source : SourceFiles()) {
    EXPECT_TRUE(FloorOf(UnitOf(source).room)) << source;
  }
}

/// The lines of docs/architecture.md.
std::vector<std::string> LinesOfThePage() {
  std::ifstream file(fs::path(KAV_SOURCE_FOLDER) / "docs" / "architecture.md");
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

/// The floors as the page draws them, from the ground up: from the line of the roof to that of the
/// ground, each floor a line, and before some the name of the storey.
std::vector<std::vector<std::string>> DrawnFloors() {
  std::vector<std::vector<std::string>> floors;
  bool inside = false;
  for (const auto& line : LinesOfThePage()) {
    inside = inside || line.starts_with("roof ");
    if (!inside) continue;
    if (line.starts_with("```")) break;
    std::istringstream words(line.front() == ' ' ? line : line.substr(line.find(' ')));
    floors.emplace_back();
    for (std::string word; words >> word;) floors.back().push_back(word);
  }
  std::reverse(floors.begin(), floors.end());
  return floors;
}

TEST(Layering, TheArchitecturePageDrawsTheseFloors) {
  auto drawn = DrawnFloors();
  auto floors = kFloors;
  for (auto* all : {&drawn, &floors}) {
    for (auto& floor : *all) std::sort(floor.begin(), floor.end());
  }
  EXPECT_EQ(drawn, floors);
}

TEST(Layering, TheArchitecturePageDescribesEachRoomOnce) {
  std::vector<std::string> described;
  for (const auto& line : LinesOfThePage()) {
    const std::size_t end = line.find("/` | ");
    if (line.starts_with("| `") && end != std::string::npos && line.ends_with(" |")) {
      described.push_back(line.substr(3, end - 3));
    }
  }
  std::vector<std::string> rooms;
  for (const auto& floor : kFloors) rooms.insert(rooms.end(), floor.begin(), floor.end());
  std::sort(described.begin(), described.end());
  std::sort(rooms.begin(), rooms.end());
  EXPECT_EQ(described, rooms);
}

/// For each source or header, without the extension: the others that it includes.
using Graph = std::map<std::string, std::set<std::string>>;

Graph IncludeGraph() {
  Graph graph;
  for (const auto& source : SourceFiles()) {
    const std::string from = UnitOf(source).stem;
    for (const auto& include : IncludesIn(TextOf(source))) {
      const std::string to = UnitOf(include.name).stem;
      if (include.isOurs && to != from) graph[from].insert(to);
    }
  }
  return graph;
}

/// All that `from` includes, directly or not.
std::set<std::string> Reached(const Graph& graph, const std::string& from) {
  std::set<std::string> reached;
  std::vector<std::string> waiting{from};
  while (!waiting.empty()) {
    const auto next = graph.find(waiting.back());
    waiting.pop_back();
    if (next == graph.end()) continue;
    for (const auto& to : next->second) {
      if (reached.insert(to).second) waiting.push_back(to);
    }
  }
  return reached;
}

TEST(Layering, NoFileIncludesItselfInACircle) {
  const Graph graph = IncludeGraph();
  EXPECT_GT(graph.size(), 50U) << "the sources were not found";
  for (const auto& file : graph) {
    EXPECT_FALSE(Reached(graph, file.first).contains(file.first)) << file.first;
  }
}

TEST(Layering, ACircleIsSeen) {
  const Graph graph{{"a", {"b"}}, {"b", {"c", "d"}}, {"c", {"a"}}, {"d", {"e"}}};
  EXPECT_TRUE(Reached(graph, "a").contains("a"));
  EXPECT_TRUE(Reached(graph, "c").contains("c"));
  EXPECT_FALSE(Reached(graph, "d").contains("d"));
}

TEST(Layering, EverySourceOfTheLogicHasTheTestOfItsName) {
  for (const auto& source : SourceFiles()) {
    const Unit unit = UnitOf(source);
    if (source.extension() != ".cpp") continue;
    if (unit.kind != Kind::Logic && unit.kind != Kind::Store) continue;
    EXPECT_TRUE(fs::exists(TestFolder() / (unit.stem + "_test.cpp"))) << source;
  }
}

/// Whether a text makes a colour of its own: by numbers or by the name of one.
bool MakesAColour(const std::string& text) {
  static const std::regex kColour(
      R"(QColor\s*[({]\s*("|'|#|\d|Qt::|qRgb)|QColor\s+\w+\s*[({=]\s*[({]?\s*(\d|Qt::)|\bqRgba?\s*\(|)"
      R"(Qt::(white|black|red|dark\w+|green|blue|cyan|magenta|yellow|gray|light[A-Z]\w+)\b)");
  // Few lines can have one, and the search takes its time.
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const bool mayHave = line.find("QColor") != std::string::npos ||
                         line.find("qRgb") != std::string::npos ||
                         line.find("Qt::") != std::string::npos;
    if (mayHave && std::regex_search(line, kColour)) return true;
  }
  return false;
}

TEST(Layering, ColoursStandInOneTable) {
  for (const auto& source : SourceFiles()) {
    if (UnitOf(source).stem == "screens/widgets/colours") continue;
    EXPECT_FALSE(MakesAColour(TextOf(source))) << source;
  }
}

TEST(Layering, AColourIsSeen) {
  for (const char* text :
       {"QColor(1, 2, 3)", "QColor{255, 0, 0}", "QColor(Qt::white)", "QColor(\"red\")",
        "constexpr QColor kLine(200, 206, 213);", "QColor colour = Qt::white;", "qRgb(1, 2, 3)",
        "painter.setPen(Qt::black);", "setBrush(Qt::lightGray)", "QColor( qRgb(1, 2, 3))"}) {
    EXPECT_TRUE(MakesAColour(text)) << text;
  }
  for (const char* text : {"QColor colour = palette().color(QPalette::Text);", "const QColor& a",
                           "QColor::fromRgb(shade)", "Qt::transparent", "QColor(colour)"}) {
    EXPECT_FALSE(MakesAColour(text)) << text;
  }
}

TEST(Layering, EveryHeaderIsIncludedOnce) {
  for (const auto& source : SourceFiles()) {
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
      {"common/number_text.cpp", {"grid/grid_model.h", true}, "climbs"},
      {"grid/grid_model.cpp", {"grid/grid_texts.h", true}, ""},
      {"grid/grid_model.cpp", {"common/expected.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"common/expected.h", true}, ""},
      {"matrix/matrix_properties.cpp", {"Eigen/Dense", false}, "one source names Eigen"},
      {"engine/tokenizer.cpp", {"settings/keys.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"display/number_format.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"screens/display/display_settings_dlg.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"screens/widgets/message_box.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"cli/options.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"app/session.h", true}, "climbs"},
      {"engine/tokenizer.cpp", {"tokenizer.h", true}, "an include is spelled from src"},
      {"engine/tokenizer.cpp", {"../common/expected.h", true}, "an include is spelled from src"},
      {"engine/tokenizer.cpp", {"engine/../cli/options.h", true}, "an include is spelled from src"},
      {"engine/tokenizer.cpp", {"QString", false}, "only screens and app name Qt"},
      {"engine/tokenizer.cpp", {"QtCore/QString", false}, "only screens and app name Qt"},
      {"engine/tokenizer.cpp", {"toml++/toml.h", false}, "only the store names TOML"},
      {"engine/tokenizer.cpp", {"vector", false}, ""},
      {"engine/tokenizer.cpp", {"unheard_of/tokenizer.h", true}, "climbs"},
      {"unheard_of/tokenizer.cpp", {"common/expected.h", true}, "climbs"},
      {"display/number_format.cpp", {"engine/calc_modes.h", true}, ""},
      {"memory/memory_variables.cpp", {"display/number_format.h", true}, "climbs"},
      {"line/keypad.cpp", {"macros/macro_store.h", true}, "climbs"},
      {"macros/macro_store.cpp", {"engine/tokenizer.h", true}, ""},
      {"macros/macro_editor_model.cpp", {"line/keypad.h", true}, ""},
      {"macros/macro_store.cpp", {"plotter/plot_range.h", true}, "climbs"},
      {"macros/macro_store.cpp", {"store/user_settings_store.h", true}, "climbs"},
      {"statistics/regression.cpp", {"plotter/graph_model.h", true}, ""},
      {"statistics/regression.cpp", {"matrix/matrix_value.h", true}, "climbs"},
      {"statistics/regression.cpp", {"screens/plotter/graph_view.h", true}, "climbs"},
      {"store/user_settings_store.cpp", {"store/settings_toml.h", true}, ""},
      {"store/user_settings_store.cpp", {"common/number_text.h", true}, ""},
      {"store/user_settings_store.cpp", {"line/history.h", true}, "climbs"},
      {"store/settings_toml.cpp", {"toml++/toml.h", false}, ""},
      {"store/settings_toml.cpp", {"QString", false}, "only screens and app name Qt"},
      {"screens/widgets/look.cpp", {"QWidget", false}, ""},
      {"screens/widgets/look.cpp", {"line/keypad.h", true}, ""},
      {"screens/widgets/look.cpp", {"screens/memory/constants_dlg.h", true}, "climbs"},
      {"screens/scientific/scientific_dlg.cpp", {"QWidget", false}, ""},
      {"screens/scientific/scientific_dlg.cpp", {"screens/converter/converter_dlg.h", true}, ""},
      {"screens/scientific/scientific_dlg.cpp", {"screens/matrix/matrix_dlg.h", true}, "climbs"},
      {"screens/scientific/scientific_dlg.cpp", {"screens/widgets/message_box.h", true}, ""},
      {"screens/scientific/scientific_dlg.cpp", {"app/frame_window.h", true}, "climbs"},
      {"screens/scientific/scientific_dlg.cpp", {"store/user_settings_store.h", true}, "climbs"},
      {"screens/converter/converter_dlg.cpp", {"screens/memory/constants_dlg.h", true}, ""},
      {"app/frame_window.cpp", {"screens/scientific/scientific_dlg.h", true}, ""},
      {"app/application.cpp", {"screens/scientific/scientific_dlg.h", true}, "climbs"},
      {"app/application.cpp", {"screens/widgets/message_box.h", true}, ""},
      {"app/application.cpp", {"store/user_settings_store.h", true}, ""},
      {"app/application.cpp", {"cli/options.h", true}, "climbs"},
      {"cli/main.cpp", {"store/user_settings_store.h", true}, ""},
      {"cli/main.cpp", {"scientific/scientific_model.h", true}, ""},
      {"cli/main.cpp", {"screens/scientific/scientific_dlg.h", true}, "climbs"},
      {"cli/main.cpp", {"screens/widgets/screen.h", true}, "climbs"},
      {"cli/main.cpp", {"app/session.h", true}, "climbs"},
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
}  // namespace kav::layering_test
