#include "line/line_mend.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "common/ascii.h"
#include "common/number_text.h"
#include "line/expression_line.h"
#include "line/near_words.h"

namespace kav {
namespace {

/// Nobody types a line of more characters.
constexpr std::size_t kLongestMended = 1000;
/// More lines than this are not tried.
constexpr std::size_t kMostTried = 32;

using Pieces = std::vector<LinePiece>;

/// A line, and what each of its pieces may become.
struct Broken {
  std::u16string_view line;
  Pieces pieces;
};

bool EndsOperand(PieceKind kind) {
  return kind == PieceKind::Number || kind == PieceKind::Value || kind == PieceKind::Close ||
         kind == PieceKind::Postfix;
}
bool BeginsOperand(PieceKind kind) {
  return kind == PieceKind::Number || kind == PieceKind::Value || kind == PieceKind::Open ||
         kind == PieceKind::Function || kind == PieceKind::Call;
}

/// The line with the ")" that its "(" lack.
std::optional<std::u16string> WithClosing(const Broken& broken) {
  const std::u16string_view line = broken.line;
  const auto opening = std::count(line.begin(), line.end(), u'(');
  const auto closing = std::count(line.begin(), line.end(), u')');
  if (opening <= closing) return std::nullopt;
  std::u16string mended(line);
  return mended.insert(broken.pieces.back().End(), static_cast<std::size_t>(opening - closing),
                       u')');
}

/// The line with "*" wherever two operands touch. Two numbers rather lack a digit.
std::optional<std::u16string> WithProducts(const Broken& broken) {
  std::u16string mended;
  std::size_t done = 0;
  for (std::size_t i = 1; i < broken.pieces.size(); ++i) {
    const LinePiece& left = broken.pieces[i - 1];
    const PieceKind right = broken.pieces[i].kind;
    if (!EndsOperand(left.kind) || !BeginsOperand(right)) continue;
    if (left.kind == PieceKind::Number && right == PieceKind::Number) return std::nullopt;
    mended.append(broken.line.substr(done, left.End() - done)).push_back(u'*');
    done = left.End();
  }
  if (done == 0) return std::nullopt;
  return mended.append(broken.line.substr(done));
}

/// The line without the operator at its end, and the blanks before that.
std::optional<std::u16string> WithoutLastOperator(const Broken& broken) {
  const Pieces& pieces = broken.pieces;
  if (pieces.size() < 2 || pieces.back().kind != PieceKind::Operator) return std::nullopt;
  const std::size_t end = pieces[pieces.size() - 2].End();
  return std::u16string(broken.line.substr(0, end)).append(broken.line.substr(pieces.back().End()));
}

/// The lines with known words in place of all unknown ones.
std::vector<std::u16string> WithKnownWords(const Broken& broken, const KnownWords& words) {
  std::vector<std::u16string> lines{{}};
  std::size_t done = 0;
  for (const LinePiece& piece : broken.pieces) {
    const std::u16string_view text = broken.line.substr(piece.start, piece.length);
    if (!IsUnknown(piece, text, words)) continue;
    const std::vector<std::u16string> near = WordsNear(text, words);
    if (near.empty() || lines.size() * near.size() > kMostTried) return {};
    std::vector<std::u16string> longer;
    longer.reserve(lines.size() * near.size());
    for (const std::u16string& line : lines) {
      for (const std::u16string& word : near) {
        longer.push_back(line);
        longer.back().append(broken.line.substr(done, piece.start - done)).append(word);
      }
    }
    lines = std::move(longer);
    done = piece.End();
  }
  if (done == 0) return {};
  for (std::u16string& line : lines) line += broken.line.substr(done);
  return lines;
}

/// Where `line` becomes `mended`: a whole word of it, if it is a word that changes.
TextPlace ChangedPlace(std::u16string_view line, std::u16string_view mended) {
  const TextChange change = ChangeBetween(line, mended);
  std::size_t start = change.start;
  std::size_t end = start + change.length;
  const bool isWord =
      !change.text.empty() ? IsLetter(change.text.front()) : start < end && IsLetter(line[start]);
  while (isWord && start > 0 && IsLetter(line[start - 1])) --start;
  while (isWord && end < line.size() && IsLetter(line[end])) ++end;
  // What is missing is missing behind a character.
  if (start == end && start > 0) return {start - 1, 0};
  return {start, end - start};
}

}  // namespace

std::optional<std::u16string> MendOf(std::u16string_view line, const KnownWords& words,
                                     BaseMode base, const LineCheck& hasValue) {
  if (line.size() > kLongestMended) return std::nullopt;
  const Broken broken{line, CutIntoPieces(line, words, base)};
  if (broken.pieces.empty()) return std::nullopt;
  std::vector<std::u16string> tried = WithKnownWords(broken, words);
  for (auto& mended : {WithClosing(broken), WithProducts(broken), WithoutLastOperator(broken)}) {
    if (mended) tried.push_back(*mended);
  }
  std::optional<std::u16string> found;
  for (std::u16string& mended : tried) {
    if (!hasValue(mended)) continue;
    if (found) return std::nullopt;
    found = std::move(mended);
  }
  return found;
}

LineFault MakeFault(std::u16string_view line, std::optional<TextPlace> known,
                    std::optional<std::u16string> mended) {
  LineFault fault{std::nullopt, std::move(mended)};
  if (known) {
    fault.place = WidenedPlace(Narrow(line), *known);
  } else if (fault.mended) {
    fault.place = ChangedPlace(line, *fault.mended);
  }
  return fault;
}

TextPlace WidenedPlace(std::string_view line, TextPlace place) {
  const std::size_t start = std::min(place.position, line.size());
  return {Widen(line.substr(0, start)).size(), Widen(line.substr(start, place.length)).size()};
}

}  // namespace kav
