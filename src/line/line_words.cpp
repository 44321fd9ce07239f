#include "line/line_words.h"

#include <algorithm>

#include "common/ascii.h"
#include "common/number_text.h"
#include "engine/function_names.h"

namespace kav {
namespace {

constexpr std::u16string_view kAnd = u"and";

int RadixOf(BaseMode base) {
  switch (base) {
    case BaseMode::Binary:
      return 2;
    case BaseMode::Octal:
      return 8;
    case BaseMode::Hexadecimal:
      return 16;
    case BaseMode::Decimal:
      break;
  }
  return 10;
}

PieceKind KindOfSign(char16_t sign) {
  if (sign == u'(') return PieceKind::Open;
  if (sign == u')') return PieceKind::Close;
  if (sign == u'!') return PieceKind::Postfix;
  constexpr std::u16string_view kOperators = u"+-*/%^<>,";
  return kOperators.find(sign) == kOperators.npos ? PieceKind::Unknown : PieceKind::Operator;
}

/// Reads the pieces of a line in lower case from the left.
class Cutter {
 public:
  Cutter(std::u16string_view text, const KnownWords& words, BaseMode base)
      : text_(text), words_(words), base_(base) {}

  LinePiece Take(std::size_t start) const {
    const char16_t c = text_[start];
    if (IsCallAt(start)) return {PieceKind::Call, start, text_.find(u'(', start) - start};
    if (c == u'[') return TakeMatrix(start);
    if (IsAnswerAt(start)) return TakeWord(start);
    if (base_ == BaseMode::Hexadecimal && StartsWith(start, kAnd)) {
      return {PieceKind::Operator, start, kAnd.size()};
    }
    if (DigitValue(c) < RadixOf(base_) || (c == u'.' && base_ == BaseMode::Decimal)) {
      return TakeNumber(start);
    }
    if (IsLetter(c)) return TakeWord(start);
    const bool isShift = (c == u'<' || c == u'>') && At(start + 1) == c;
    return {KindOfSign(c), start, isShift ? std::size_t{2} : std::size_t{1}};
  }

 private:
  char16_t At(std::size_t place) const { return place < text_.size() ? text_[place] : u'\0'; }
  bool StartsWith(std::size_t start, std::u16string_view word) const {
    return text_.substr(start, word.size()) == word;
  }
  std::size_t WordEnd(std::size_t start) const {
    while (IsLetter(At(start))) ++start;
    return start;
  }
  bool IsCallAt(std::size_t start) const {
    return StartsWith(start, u"m:") && text_.find(u'(', start) != text_.npos;
  }
  bool IsAnswerAt(std::size_t start) const {
    return text_.substr(start, WordEnd(start) - start) == Widen(kAnswerWord);
  }

  LinePiece TakeMatrix(std::size_t start) const {
    const std::size_t close = text_.find(u']', start);
    if (close == text_.npos) return {PieceKind::Unknown, start, 1};
    return {PieceKind::Value, start, close + 1 - start};
  }

  LinePiece TakeNumber(std::size_t start) const {
    std::size_t end = start;
    if (base_ != BaseMode::Decimal) {
      while (DigitValue(At(end)) < RadixOf(base_) && !StartsWith(end, kAnd)) ++end;
      return {PieceKind::Number, start, end - start};
    }
    const auto isDigit = [this](std::size_t at) { return IsDigit(At(at)) || At(at) == u'.'; };
    while (isDigit(end)) ++end;
    // The "e" of "2exp(1)" belongs to the word.
    const std::size_t sign = At(end + 1) == u'+' || At(end + 1) == u'-' ? 1 : 0;
    if (At(end) == u'e' && IsDigit(At(end + 1 + sign))) {
      end += 1 + sign;
      while (isDigit(end)) ++end;
    }
    return {PieceKind::Number, start, end - start};
  }

  LinePiece TakeWord(std::size_t start) const {
    const std::size_t end = WordEnd(start);
    const PieceKind kind = KindOf(text_.substr(start, end - start));
    if (kind != PieceKind::Function && kind != PieceKind::Unknown)
      return {kind, start, end - start};
    // A function with digits, such as "log10(", is a name of its own.
    std::size_t behind = end;
    while (IsDigit(At(behind))) ++behind;
    if (behind > end && At(behind) == u'(') return {PieceKind::Unknown, start, behind - start};
    return {kind, start, end - start};
  }

  PieceKind KindOf(std::u16string_view word) const {
    const auto known = std::find_if(words_.begin(), words_.end(),
                                    [&](const KnownWord& row) { return row.text == word; });
    return known == words_.end() ? PieceKind::Unknown : known->kind;
  }

  std::u16string_view text_;
  const KnownWords& words_;
  BaseMode base_;
};

}  // namespace

KnownWords WordsOf(const CalcModes& modes) {
  KnownWords words;
  if (modes.answer) words.push_back({Widen(kAnswerWord), PieceKind::Value});
  if (modes.baseMode != BaseMode::Decimal) {
    for (const char16_t* word : {u"and", u"or", u"xor", u"xnor", u"not"}) {
      words.push_back({word, PieceKind::Operator});
    }
    return words;
  }
  words.push_back({Widen(kPiWord), PieceKind::Value});
  words.push_back({u"p", PieceKind::Operator});
  words.push_back({u"c", PieceKind::Operator});
  for (const FunctionName& row : kFunctionNames) {
    words.push_back({Widen(row.name), PieceKind::Function});
  }
  return words;
}

std::vector<LinePiece> CutIntoPieces(std::u16string_view line, const KnownWords& words,
                                     BaseMode base) {
  const std::u16string text = InLowerCase(line);
  const Cutter cutter(text, words, base);
  std::vector<LinePiece> pieces;
  for (std::size_t at = 0; at < text.size();) {
    if (text[at] == u' ') {
      ++at;
      continue;
    }
    pieces.push_back(cutter.Take(at));
    at = pieces.back().End();
  }
  return pieces;
}

std::u16string InLowerCase(std::u16string_view text) {
  std::u16string folded(text);
  for (char16_t& c : folded) c = LowerCase(c);
  return folded;
}

}  // namespace kav
