#include "line/screen_keyboard.h"

#include <array>
#include <initializer_list>
#include <span>

namespace kav {
namespace {

// clang-format off
constexpr std::array kLine{
    KeyboardRow{"Enter; =",    u"evaluate the line"},
    KeyboardRow{"Esc",         u"clear the line"},
    KeyboardRow{"+; -; *; /",  u"go on with the line that was evaluated"},
    KeyboardRow{"Up",          u"from an end of the line: go back to the lines before it"},
    KeyboardRow{"Down",        u"come back from them, then go to the keys"},
};
constexpr std::array kHistory{
    KeyboardRow{"Enter",              u"in the history: write the marked line into the line"},
    KeyboardRow{"Shift+Enter; Right", u"in the history: write the answer of the marked line"},
    KeyboardRow{"Delete",             u"in the history: delete the marked line"},
    KeyboardRow{"Esc",                u"in the history: go back to the line"},
};
constexpr std::array kMatrix{
    KeyboardRow{"Ctrl+Page Up; Ctrl+Page Down", u"show the matrix before or behind"},
    KeyboardRow{"Arrow; Page Up; Page Down",   u"in the grid: go from cell to cell"},
    KeyboardRow{"Home; End",                    u"in the grid: go to the first or last column"},
    KeyboardRow{"Ctrl+Arrow",                  u"in the grid: go to the border"},
    KeyboardRow{"Ctrl+Home; Ctrl+End",          u"in the grid: go to the first or last cell"},
    KeyboardRow{"Shift+Arrow",                 u"in the grid: select cells"},
    KeyboardRow{"Tab; Shift+Tab",               u"in the grid: go to the next cell, and back"},
    KeyboardRow{"Enter; F2",                    u"in the grid: edit the cell"},
    KeyboardRow{"Delete; Backspace",            u"in the grid: empty the selected cells"},
    KeyboardRow{"Enter; Shift+Enter",           u"in a cell: take what was typed and go down, or up"},
    KeyboardRow{"Esc",                          u"in a cell: leave it as it was"},
};
constexpr std::array kData{
    KeyboardRow{"Enter",            u"add the row, or take the row that is edited"},
    KeyboardRow{"Esc",              u"leave the row that is edited as it was"},
    KeyboardRow{"Up; Down",         u"go from field to field, and to the keys"},
    KeyboardRow{"Enter",            u"in the list: edit the selected row"},
    KeyboardRow{"Delete",           u"in the list: delete the selected row"},
    KeyboardRow{"Up; Down; Page Up; Page Down; Home; End", u"in the list: go from row to row"},
};
constexpr std::array kSortingOfTwo{
    KeyboardRow{"Ctrl+1; Ctrl+2",   u"sort the list by X or by Count"},
};
constexpr std::array kSortingOfThree{
    KeyboardRow{"Ctrl+1; Ctrl+2; Ctrl+3", u"sort the list by X, by Y or by Count"},
};
constexpr std::array kPlotter{
    KeyboardRow{"Enter",            u"add the equation to the list"},
    KeyboardRow{"Ctrl+Enter",       u"draw the graph of the equations"},
    KeyboardRow{"Esc",              u"clear the equation"},
    KeyboardRow{"Up; Down",         u"go through the equations added before"},
    KeyboardRow{"Enter",            u"in a field of the range: draw the graph"},
    KeyboardRow{"Esc",              u"in a field of the range: go back to the equation"},
    KeyboardRow{"F2",               u"put the equation in the place of the selected one"},
    KeyboardRow{"F8",               u"switch the curve of the selected equation off or on"},
};
constexpr std::array kGraph{
    KeyboardRow{"Arrow; Ctrl+Arrow", u"in the graph: move the range"},
    KeyboardRow{"+; -",                u"in the graph: zoom in or out"},
    KeyboardRow{"Home; Ctrl+0",        u"in the graph: go back to the first range"},
    KeyboardRow{"Ctrl+Z",              u"in the graph: go back to the range before"},
    KeyboardRow{"Ctrl+G",              u"in the graph: open the options"},
    KeyboardRow{"Ctrl+C",              u"in the graph: copy x and the selected value"},
    KeyboardRow{"Left; Right",         u"while tracing: move the marker, with Shift by ten columns"},
    KeyboardRow{"Up; Down",            u"while tracing: choose the curve"},
};
// clang-format on

std::vector<KeyboardRow> Joined(std::initializer_list<std::span<const KeyboardRow>> parts) {
  std::vector<KeyboardRow> rows;
  for (const auto part : parts) rows.insert(rows.end(), part.begin(), part.end());
  return rows;
}

}  // namespace

std::vector<KeyboardRow> KeyboardOf(GuidePage page) {
  switch (page) {
    case GuidePage::Scientific:
      return Joined({kLine, kHistory});
    case GuidePage::Matrix:
      return Joined({kLine, kMatrix, kHistory});
    case GuidePage::OneVariable:
      return Joined({kData, kSortingOfTwo});
    case GuidePage::TwoVariable:
      return Joined({kData, kSortingOfThree, kGraph});
    case GuidePage::Plotter:
      return Joined({kPlotter, kGraph});
    case GuidePage::Graph:
      return Joined({kGraph});
    default:
      return {};
  }
}

}  // namespace kav
