#include "screens/widgets/line_marks.h"

#include <algorithm>
#include <cstddef>

#include "line/parentheses.h"
#include "screens/widgets/colours.h"

namespace kav {
namespace {

int Length(Selection place) {
  return static_cast<int>(place.end - place.start);
}

}  // namespace

QColor FaintColour(const QPalette& palette) {
  constexpr double kShare = 0.62;
  return Mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), kShare);
}

std::vector<MarkedPart> MarkedParts(std::u16string_view text, Selection selected,
                                    std::optional<Selection> fault) {
  std::vector<MarkedPart> parts;
  if (selected.IsEmpty()) {
    if (const auto pair = PairAtCaret(text, selected.start)) {
      parts.push_back({static_cast<int>(pair->open), 1, LineMark::Pair});
      parts.push_back({static_cast<int>(pair->close), 1, LineMark::Pair});
    }
  }
  if (!fault || text.empty()) return parts;
  Selection place{std::min(fault->start, text.size()), std::min(fault->end, text.size())};
  if (place.IsEmpty()) {
    const std::size_t start = std::max<std::size_t>(place.start, 1) - 1;
    place = {CutsCharacter(text, start) ? start - 1 : start, std::max<std::size_t>(place.end, 1)};
  }
  parts.push_back({static_cast<int>(place.start), Length(place), LineMark::Fault});
  return parts;
}

QTextCharFormat FormatOf(LineMark mark, const QPalette& palette) {
  constexpr double kTint = 0.25;
  QTextCharFormat format;
  format.setBackground(
      Mixed(palette.color(QPalette::Highlight), palette.color(QPalette::Base), kTint));
  // In the colour of the letters, which is another one within a selection.
  if (mark == LineMark::Fault) format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
  return format;
}

}  // namespace kav
