#include "line/near_words.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/ascii.h"

namespace kav {
namespace {

/// A name that other calculators and books use.
struct OtherName {
  std::u16string_view name;
  std::u16string_view word;
};
constexpr std::array kOtherNames{
    OtherName{u"sine", u"sin"},        OtherName{u"cosine", u"cos"},
    OtherName{u"tangent", u"tan"},     OtherName{u"tg", u"tan"},
    OtherName{u"arcsin", u"asin"},     OtherName{u"arccos", u"acos"},
    OtherName{u"arctan", u"atan"},     OtherName{u"arctg", u"atan"},
    OtherName{u"arcsine", u"asin"},    OtherName{u"arccosine", u"acos"},
    OtherName{u"arctangent", u"atan"}, OtherName{u"sh", u"sinh"},
    OtherName{u"ch", u"cosh"},         OtherName{u"th", u"tanh"},
    OtherName{u"lg", u"log"},          OtherName{u"logten", u"log"},
    OtherName{u"log10", u"log"},       OtherName{u"loge", u"ln"},
    OtherName{u"exponential", u"exp"}, OtherName{u"squareroot", u"sqrt"},
    OtherName{u"sqroot", u"sqrt"},     OtherName{u"root", u"sqrt"},
    OtherName{u"sqr", u"sqrt"},        OtherName{u"absolute", u"abs"},
    OtherName{u"integer", u"int"},     OtherName{u"trunc", u"int"},
    OtherName{u"fraction", u"frac"},   OtherName{u"answer", u"ans"},
    OtherName{u"inv", u"inverse"},     OtherName{u"det", u"determinant"},
    OtherName{u"trans", u"transpose"},
};

/// Whether `longer` is `shorter` with one letter more.
bool HasOneMore(std::u16string_view longer, std::u16string_view shorter) {
  if (longer.size() != shorter.size() + 1) return false;
  const auto apart = std::mismatch(shorter.begin(), shorter.end(), longer.begin());
  return std::equal(apart.first, shorter.end(), apart.second + 1);
}

/// Whether two texts of the same length differ in one letter, or in two neighbours' places.
bool HasOneOther(std::u16string_view a, std::u16string_view b) {
  const auto [x, y] = std::mismatch(a.begin(), a.end(), b.begin());
  if (x == a.end()) return false;
  if (std::equal(x + 1, a.end(), y + 1)) return true;
  return x + 1 != a.end() && *x == *(y + 1) && *(x + 1) == *y && std::equal(x + 2, a.end(), y + 2);
}

bool IsNear(std::u16string_view a, std::u16string_view b) {
  if (a.size() == b.size()) return HasOneOther(a, b);
  return HasOneMore(a, b) || HasOneMore(b, a);
}

/// The letters to add, take away, write otherwise or exchange with their neighbour to make `b` of
/// `a`.
std::size_t LettersBetween(std::u16string_view a, std::u16string_view b) {
  // What it takes for the beginnings of `b`: row i is about the first i letters of `a`.
  std::vector<std::size_t> beforeLast;
  std::vector<std::size_t> last(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) last[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::vector<std::size_t> row(b.size() + 1, i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t other = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, other});
      const bool areExchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (areExchanged) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    beforeLast = std::exchange(last, std::move(row));
  }
  return last.back();
}

bool IsMacro(const KnownWord& word) {
  return word.kind == PieceKind::Call;
}

/// The macros whose names are nearly `name`, or spelled in other cases.
std::vector<std::u16string> MacrosNear(std::u16string_view name, const KnownWords& words) {
  std::vector<std::u16string> near;
  const std::u16string folded = InLowerCase(name);
  for (const KnownWord& word : words) {
    const std::u16string known = InLowerCase(word.text);
    if (!IsMacro(word) || (known != folded && !IsNear(known, folded))) continue;
    near.push_back(std::u16string(kCallMark16) + word.text);
  }
  return near;
}

}  // namespace

bool IsUnknown(const LinePiece& piece, std::u16string_view text, const KnownWords& words) {
  if (piece.kind == PieceKind::Unknown) return IsLetter(text.front());
  if (piece.kind != PieceKind::Call) return false;
  // The name of a macro without its mark calls nothing.
  if (text.find(u':') == text.npos) return true;
  text.remove_prefix(kCallMark16.size());
  return std::none_of(words.begin(), words.end(),
                      [&](const KnownWord& word) { return IsMacro(word) && word.text == text; });
}

std::vector<std::u16string> WordsNear(std::u16string_view text, const KnownWords& words) {
  const std::u16string folded = InLowerCase(text);
  if (folded.find(u':') != folded.npos) {
    return MacrosNear(text.substr(kCallMark16.size()), words);
  }
  std::vector<std::u16string> near;
  const auto isKnown = [&](std::u16string_view name) {
    return std::any_of(words.begin(), words.end(),
                       [&](const KnownWord& word) { return !IsMacro(word) && word.text == name; });
  };
  for (const OtherName& row : kOtherNames) {
    if (row.name == folded && isKnown(row.word)) return {std::u16string(row.word)};
  }
  // A single letter is near to too many words, and the digits of a name tell it from others.
  const bool isPlain =
      folded.size() > 1 && std::all_of(folded.begin(), folded.end(), IsLower<char16_t>);
  for (const KnownWord& word : words) {
    if (IsMacro(word) && InLowerCase(word.text) == folded) {
      near.push_back(std::u16string(kCallMark16) + word.text);
    }
    if (!IsMacro(word) && isPlain && word.text.size() > 1 && IsNear(word.text, folded)) {
      near.push_back(word.text);
    }
  }
  return near;
}

std::optional<std::size_t> NearestName(std::u16string_view given,
                                       const std::vector<std::u16string>& names) {
  constexpr std::size_t kLettersForEach = 3;
  // Nobody types more by mistake, and the work grows with the square.
  constexpr std::size_t kLongest = 100;
  if (given.size() > kLongest) return std::nullopt;
  const std::u16string folded = InLowerCase(given);
  std::optional<std::size_t> nearest;
  std::size_t most = given.size() / kLettersForEach + 1;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i].size() > kLongest) continue;
    const std::size_t letters = LettersBetween(folded, InLowerCase(names[i]));
    if (letters >= most) continue;
    most = letters;
    nearest = i;
  }
  return nearest;
}

}  // namespace kav
