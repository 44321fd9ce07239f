#include "cli/failure_note.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "cli/cli_texts.h"
#include "common/number_text.h"
#include "common/visible_text.h"
#include "line/expression_line.h"

namespace kav {
namespace {

constexpr std::string_view kIndent = "  ";
constexpr std::string_view kCut = "...";
/// Of a line, on either side of the place.
constexpr std::size_t kMostBeside = 30;

struct CharacterRange {
  char32_t first;
  char32_t last;
};
// Characters that take two columns of a terminal, and those that take none.
constexpr CharacterRange kWide[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF},   {0xAC00, 0xD7A3},
                                    {0xF900, 0xFAFF}, {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
                                    {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};
constexpr CharacterRange kWithoutWidth[] = {{0x0300, 0x036F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF},
                                            {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F},
                                            {0xFE20, 0xFE2F}};

bool IsAmong(std::span<const CharacterRange> ranges, char32_t c) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [c](const CharacterRange& row) { return c >= row.first && c <= row.last; });
}

/// The columns that `text`, which has no control characters, takes.
std::size_t WidthOf(std::u16string_view text) {
  std::size_t width = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (CutsCharacter(text, i + 1)) {
      c = 0x10000 + ((c - 0xD800) << 10U) + (text[++i] - char32_t{0xDC00});
    }
    width += IsAmong(kWide, c) ? 2U : IsAmong(kWithoutWidth, c) ? 0U : 1U;
  }
  return width;
}

/// `text` on one line of a terminal: a blank for each break and TAB, a code for other control
/// characters.
std::u16string Shown(std::u16string text) {
  std::replace_if(
      text.begin(), text.end(), [](char16_t c) { return c == u'\t' || c == u'\n' || c == u'\r'; },
      u' ');
  return WithVisibleControls(text);
}

/// A position that parts no character, at or behind `position`.
std::size_t Whole(std::u16string_view line, std::size_t position) {
  return CutsCharacter(line, position) ? position + 1 : position;
}

std::string MarkedLine(std::u16string_view line, const TextPlace& place) {
  const std::size_t at =
      Whole(line, std::min(place.length == 0 ? place.position + 1 : place.position, line.size()));
  const std::size_t start = at > kMostBeside ? Whole(line, at - kMostBeside) : 0;
  const std::size_t end = Whole(line, std::min(at + kMostBeside, line.size()));
  const std::u16string before = Shown(std::u16string(line.substr(start, at - start)));
  std::string marked(kIndent);
  if (start > 0) marked += kCut;
  const std::size_t column = marked.size() + WidthOf(before);
  marked += Narrow(before + Shown(std::u16string(line.substr(at, end - at))));
  if (end < line.size()) marked += kCut;
  return marked + '\n' + std::string(column, ' ') + "^\n";
}

}  // namespace

std::string FailureNote(std::u16string_view line, const LineFault& fault) {
  std::string note;
  if (fault.place) note += MarkedLine(line, *fault.place);
  if (fault.mended) note += DidYouMean(Narrow(Shown(*fault.mended))) + '\n';
  return note;
}

}  // namespace kav
