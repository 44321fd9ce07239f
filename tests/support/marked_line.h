// Lines written with their selection in them, as tests read best: "si|n" has the caret behind the
// i, "s[i]n" has the i selected, and "s]i[n" has it selected from right to left.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "line/expression_line.h"

namespace kav::test {

inline ExpressionLine MarkedLine(std::u16string_view marked) {
  std::u16string text;
  Selection selection;
  for (const char16_t c : marked) {
    if (c == u'|') {
      selection = {text.size(), text.size()};
    } else if (c == u'[') {
      selection.start = text.size();
    } else if (c == u']') {
      selection.end = text.size();
    } else {
      text += c;
    }
  }
  ExpressionLine line;
  line.Set(std::move(text), selection);
  return line;
}

inline std::u16string Marked(const ExpressionLine& line) {
  std::u16string text = line.Text();
  const auto [start, end] = line.Selected();
  if (start == end) return text.insert(start, u"|");
  const bool isForward = start < end;
  text.insert(std::max(start, end), isForward ? u"]" : u"[");
  return text.insert(std::min(start, end), isForward ? u"[" : u"]");
}

}  // namespace kav::test
