// Words that were meant where a line holds one that nobody knows.
#pragma once

#include <cstddef>
#include <optional>
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

/// The index of the one of `names` that was meant by `given`, which is none of them: the one that
/// takes the fewest letters more, less, other or exchanged with their neighbour, the first of them.
/// nullopt if even that takes more than one for each three letters of `given`, which then means
/// something else. Upper and lower case do not count.
std::optional<std::size_t> NearestName(std::u16string_view given,
                                       const std::vector<std::u16string>& names);

}  // namespace kav
