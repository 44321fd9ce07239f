#include "matrix/cell_table_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "common/number_text.h"
#include "display/number_input.h"
#include "matrix/matrix_texts.h"

namespace kav {
namespace {

// The smallest double, written in full, has somewhat fewer digits.
constexpr std::size_t kLongestNumber = 1100;

/// So many characters of a text that is no number are shown.
constexpr std::size_t kLongestRefused = 30;

constexpr char16_t kTab = u'\t';
constexpr char16_t kComma = u',';
constexpr char16_t kBlank = u' ';

char16_t SeparatorOf(std::u16string_view text) {
  for (const char16_t separator : {kTab, kComma}) {
    if (text.find(separator) != std::u16string_view::npos) return separator;
  }
  return kBlank;
}

/// Removes the front of `text` up to and including `end`; what came before `end`.
std::u16string_view TakeUpTo(char16_t end, std::u16string_view& text) {
  const std::u16string_view taken = text.substr(0, text.find(end));
  text.remove_prefix(std::min(taken.size() + 1, text.size()));
  return taken;
}

/// Whether `cell` is a number, with separators between its thousands or without. A comma that was
/// meant as a decimal point must not turn 1,5 into 15.
bool IsShownNumber(std::u16string_view cell) {
  const auto number = ReadShownNumber(Narrow(cell));
  return number && std::isfinite(*number);
}

/// The number `cell` as it is stored: without separators.
std::u16string Cleaned(std::u16string_view cell) {
  std::u16string cleaned(cell);
  std::erase(cleaned, kComma);
  return cleaned;
}

}  // namespace

bool IsNumberText(std::u16string_view text) {
  const auto number = ReadWholeNumber(Narrow(text));
  return number && std::isfinite(*number);
}

std::optional<CommaQuestion> QuestionOfCells(std::u16string_view text) {
  std::optional<CommaQuestion> question = QuestionOfCommas(text);
  if (!question || text.find(kTab) == text.npos) return question;
  std::vector<CommaMeaning>& meanings = question->meanings;
  std::erase(meanings, CommaMeaning::Separator);
  // ReadCells takes whole groups of three digits as thousands by itself.
  if (meanings.empty() || meanings == std::vector{CommaMeaning::Grouping}) return std::nullopt;
  return question;
}

std::u16string CellsWithCommas(std::u16string_view text, CommaMeaning meaning) {
  std::u16string read = WithCommas(text, meaning);
  // With decimal commas no comma is left to separate cells.
  if (meaning == CommaMeaning::DecimalPoint) std::replace(read.begin(), read.end(), u';', kTab);
  return read;
}

std::optional<std::u16string> CellRefusal(std::u16string_view text) {
  if (text.find(kComma) == text.npos) return std::nullopt;
  if (auto refusal = CommaRefusal(text)) return refusal;
  if (IsShownNumber(text)) return std::nullopt;
  return CommasAreNoThousands(Shortened(text, kLongestRefused));
}

std::u16string TypedCell(const std::u16string& text) {
  return text.find(kComma) != text.npos && IsShownNumber(text) ? Cleaned(text) : text;
}

std::u16string PrintCells(const MatrixValue& matrix, const CellRange& range) {
  std::u16string text;
  for (int row = range.top; row <= range.bottom; ++row) {
    if (row > range.top) text += u'\n';
    for (int column = range.left; column <= range.right; ++column) {
      if (column > range.left) text += kTab;
      text += OnOneLine(matrix.At(row, column));
    }
  }
  return text;
}

PastedCells ReadCells(std::u16string_view text, int rows, int columns) {
  const char16_t separator = SeparatorOf(text);
  PastedCells cells;
  for (std::ptrdiff_t row = 0; !text.empty(); ++row) {
    std::u16string_view line = TakeUpTo(u'\n', text);
    if (line.ends_with(u'\r')) line.remove_suffix(1);
    for (std::ptrdiff_t column = 0; !line.empty(); ++column) {
      // Several blanks separate only once.
      if (separator == kBlank) line = TrimBlanks(line);
      const std::u16string_view cell = TrimBlanks(TakeUpTo(separator, line));
      if (cell.empty()) continue;
      if (row >= rows || column >= columns) {
        ++cells.beyond;
      } else if (cell.size() > kLongestNumber || !IsShownNumber(cell)) {
        if (cells.refused++ > 0) continue;
        cells.firstRefused = {static_cast<int>(row), static_cast<int>(column),
                              Shortened(cell, kLongestRefused)};
      } else {
        cells.numbers.push_back({static_cast<int>(row), static_cast<int>(column), Cleaned(cell)});
      }
    }
  }
  return cells;
}

MatrixValue Overwritten(const MatrixValue& matrix, int row, int column, const PastedCells& pasted) {
  int rows = matrix.rows;
  int columns = matrix.columns;
  for (const PastedNumber& number : pasted.numbers) {
    rows = std::max(rows, row + number.row + 1);
    columns = std::max(columns, column + number.column + 1);
  }
  MatrixValue changed = Resized(matrix, rows, columns);
  for (const PastedNumber& number : pasted.numbers) {
    changed.At(row + number.row, column + number.column) = number.text;
  }
  return changed;
}

}  // namespace kav
