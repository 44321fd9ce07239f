// A line cut into words, numbers and signs, whether it can be evaluated or not.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calc_modes.h"

namespace kav {

/// What a piece of a line is to its neighbours. A value is a number that has a name, or a matrix; a
/// call is "M:" with the name of a macro; a postfix sign is "!".
enum class PieceKind {
  Number,
  Value,
  Function,
  Call,
  Open,
  Close,
  Postfix,
  Operator,
  Unknown,
};

/// A word that a line may hold, in lower case; the name of a macro as it was given.
struct KnownWord {
  std::u16string text;
  PieceKind kind;
};
using KnownWords = std::vector<KnownWord>;

/// The words of expressions in `modes`; without the names of macros.
KnownWords WordsOf(const CalcModes& modes);

/// The mark that opens the call of a macro.
inline constexpr std::u16string_view kCallMark16 = u"M:";

struct LinePiece {
  PieceKind kind;
  std::size_t start;
  std::size_t length;

  std::size_t End() const { return start + length; }
};

/// The pieces of `line`, blanks left out. A word that is none of `words` is Unknown, as is any
/// other character.
std::vector<LinePiece> CutIntoPieces(std::u16string_view line, const KnownWords& words,
                                     BaseMode base);

/// `text` with A to Z in lower case.
std::u16string InLowerCase(std::u16string_view text);

}  // namespace kav
