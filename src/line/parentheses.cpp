#include "line/parentheses.h"

namespace kav {
namespace {

std::optional<std::size_t> CloseOf(std::u16string_view text, std::size_t open) {
  std::size_t depth = 0;
  for (std::size_t i = open; i < text.size(); ++i) {
    if (text[i] == u'(') ++depth;
    if (text[i] == u')' && --depth == 0) return i;
  }
  return std::nullopt;
}

std::optional<std::size_t> OpenOf(std::u16string_view text, std::size_t close) {
  std::size_t depth = 0;
  for (std::size_t i = close + 1; i-- > 0;) {
    if (text[i] == u')') ++depth;
    if (text[i] == u'(' && --depth == 0) return i;
  }
  return std::nullopt;
}

std::optional<ParenthesisPair> PairOf(std::u16string_view text, std::size_t place) {
  if (text[place] == u'(') {
    if (const auto close = CloseOf(text, place)) return ParenthesisPair{place, *close};
  }
  if (text[place] == u')') {
    if (const auto open = OpenOf(text, place)) return ParenthesisPair{*open, place};
  }
  return std::nullopt;
}

}  // namespace

std::optional<ParenthesisPair> PairAtCaret(std::u16string_view text, std::size_t caret) {
  if (caret > 0 && caret <= text.size()) {
    if (const auto pair = PairOf(text, caret - 1)) return pair;
  }
  return caret < text.size() ? PairOf(text, caret) : std::nullopt;
}

}  // namespace kav
