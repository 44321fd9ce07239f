// Words that were meant where a line holds one that nobody knows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "line/line_words.h"

namespace kav {

/// Whether `piece`, which reads `text`, is a word, or the call of a macro, that `words` do not
/// hold.
bool IsUnknown(const LinePiece& piece, std::u16string_view text, const KnownWords& words);

/// The words that the unknown `text` may stand for: another usual name of one of `words`, else
/// those that differ in a letter more, less or other, or in two neighbours that changed places; for
/// the name of a macro without its mark that call. Each as a line writes it.
std::vector<std::u16string> WordsNear(std::u16string_view text, const KnownWords& words);

}  // namespace kav
