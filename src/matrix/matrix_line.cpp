#include "matrix/matrix_line.h"

#include <algorithm>
#include <cstddef>

#include "common/ascii.h"
#include "matrix/matrix_functions.h"
#include "matrix/matrix_texts.h"

namespace kav {
namespace {

constexpr std::u16string_view kMacroMark = u"M:";

/// Whether `word` is the name of a matrix function.
bool IsFunction(std::u16string_view word) {
  const auto functions = MatrixFunctions();
  return std::any_of(functions.begin(), functions.end(), [&](const MatrixFunctionRow& row) {
    return EqualsIgnoringCase(word, row.name);
  });
}

/// Whether one of the words (runs of letters) of `text` is the name of a matrix function.
bool NamesFunction(std::u16string_view text) {
  for (std::size_t start = 0; start < text.size();) {
    std::size_t end = start;
    while (end < text.size() && IsLetter(text[end])) ++end;
    if (IsFunction(text.substr(start, end - start))) return true;
    start = end + 1;
  }
  return false;
}

bool Names(std::u16string_view line, std::u16string_view matrix) {
  return std::search(line.begin(), line.end(), matrix.begin(), matrix.end(),
                     [](char16_t a, char16_t b) { return LowerCase(a) == LowerCase(b); }) !=
         line.end();
}

}  // namespace

bool IsMatrixExpression(std::u16string_view line) {
  while (true) {
    const std::size_t mark = line.find(kMacroMark);
    const std::u16string_view before = line.substr(0, mark);
    if (before.find(u'[') != before.npos || NamesFunction(before)) return true;
    const std::size_t open = mark == line.npos ? mark : line.find(u'(', mark);
    if (open == line.npos) return false;
    line.remove_prefix(open);
  }
}

bool NamesMatrix(std::u16string_view line, int index) {
  return Names(line, kMatrixNames[static_cast<std::size_t>(index)]);
}

std::optional<int> FirstInvalidMatrix(std::u16string_view line, const Matrices& matrices) {
  for (int i = 0; i < kMatrixCount; ++i) {
    if (NamesMatrix(line, i) && HasEmptyCell(matrices[static_cast<std::size_t>(i)])) return i;
  }
  return std::nullopt;
}

std::u16string MatrixIsInvalid(int index) {
  return NamedMatrixIsInvalid(kMatrixNames[static_cast<std::size_t>(index)]);
}

}  // namespace kav
