// What is marked in a line, and in which colours.
#pragma once

#include <QColor>
#include <QPalette>
#include <QTextCharFormat>
#include <optional>
#include <string_view>
#include <vector>

#include "line/expression_line.h"

namespace kav {

/// What is said beside a text, and less loudly than it.
QColor FaintColour(const QPalette& palette);

enum class LineMark { Pair, Fault };

/// `length` characters from `start` on.
struct MarkedPart {
  int start;
  int length;
  LineMark mark;

  bool operator==(const MarkedPart&) const = default;
};

/// The marked parts of `text` with `selected`: the pair of parentheses at the caret, unless a part
/// of the text is selected, and the place where an evaluation failed. A place without a length is
/// that behind the character before it.
std::vector<MarkedPart> MarkedParts(std::u16string_view text, Selection selected,
                                    std::optional<Selection> fault);

/// How a mark looks. That of a failure is seen without its colour too, and within a selection.
QTextCharFormat FormatOf(LineMark mark, const QPalette& palette);

}  // namespace kav
