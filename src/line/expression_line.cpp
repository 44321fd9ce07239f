#include "line/expression_line.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "common/number_text.h"

namespace kav {
namespace {

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace

void ExpressionLine::Set(std::u16string text, Selection selection) {
  text_ = std::move(text);
  Select(selection);
}

void ExpressionLine::Select(Selection selection) {
  selection_ = {Clamped(selection.start), Clamped(selection.end)};
}

void ExpressionLine::SelectAll() {
  selection_ = {0, text_.size()};
}

void ExpressionLine::Clear() {
  Set({}, {});
}

void ExpressionLine::InsertText(std::u16string_view text) {
  const auto [start, end] = std::minmax(selection_.start, selection_.end);
  text_.replace(start, end - start, text);
  const std::size_t caret = start + text.size();
  Select({caret, caret});
}

void ExpressionLine::WrapSelection(std::u16string_view prefix, std::u16string_view suffix,
                                   std::size_t shift) {
  const auto [start, end] = selection_;
  if (start > end) std::swap(prefix, suffix);
  const auto insertAt = [this](std::size_t position, std::u16string_view text) {
    Select({position, position});
    InsertText(text);
  };
  insertAt(start, prefix);
  // One further than an empty prefix moves the end: "+" and "-" land behind the next character.
  const std::size_t behindPrefix = shift + 1;
  insertAt(end + behindPrefix, suffix);
  if (start == end) Select({start + behindPrefix, start + behindPrefix});
}

void ExpressionLine::DeleteBackward() {
  if (!selection_.IsEmpty()) return InsertText({});
  const std::size_t caret = selection_.start;
  if (caret == 0) return;
  Erase(CutsCharacter(text_, caret - 1) ? caret - 2 : caret - 1, caret);
}

void ExpressionLine::DeleteForward() {
  if (!selection_.IsEmpty()) return InsertText({});
  const std::size_t caret = selection_.start;
  if (caret == text_.size()) return;
  Erase(caret, Clamped(caret + 1));
}

std::size_t ExpressionLine::Clamped(std::size_t position) const {
  const std::size_t inside = std::min(position, text_.size());
  return CutsCharacter(text_, inside) ? inside + 1 : inside;
}

void ExpressionLine::Erase(std::size_t start, std::size_t end) {
  text_.erase(start, end - start);
  Select({start, start});
}

TextChange ChangeBetween(std::u16string_view old, std::u16string_view now) {
  const auto [a, b] = std::mismatch(old.begin(), old.end(), now.begin(), now.end());
  const auto [c, d] = std::mismatch(old.rbegin(), std::make_reverse_iterator(a), now.rbegin(),
                                    std::make_reverse_iterator(b));
  const auto start = static_cast<std::size_t>(a - old.begin());
  const auto common = static_cast<std::size_t>(c - old.rbegin());
  return {start, old.size() - start - common, now.substr(start, now.size() - start - common)};
}

std::u16string ShownText(std::u16string_view text) {
  return Shortened(text, kLongestShownText);
}

bool CutsCharacter(std::u16string_view text, std::size_t position) {
  return position > 0 && position < text.size() && IsHighSurrogate(text[position - 1]) &&
         IsLowSurrogate(text[position]);
}

}  // namespace kav
