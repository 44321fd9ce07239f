#include "matrix/matrix_file.h"

#include <cstddef>

#include "common/number_text.h"
#include "matrix/matrix_texts.h"
#include "settings/atomic_file.h"
#include "settings/file_error_texts.h"

namespace kav {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char kBetweenCells = '\t';

/// The low byte; a blank if that would end a cell or a row.
char ByteOf(char16_t c) {
  const char byte = static_cast<char>(static_cast<unsigned char>(c & 0xFFU));
  return byte == kBetweenCells || byte == '\n' ? ' ' : byte;
}

/// Each byte as the character of its number, unlike in UTF-8.
std::u16string CharactersOf(std::string_view bytes) {
  std::u16string cell;
  cell.reserve(bytes.size());
  for (const char byte : bytes) cell += static_cast<char16_t>(static_cast<unsigned char>(byte));
  return cell;
}

/// Removes the first line and its end from `rest`; nullopt if nothing is left.
std::optional<std::string_view> TakeLine(std::string_view& rest) {
  if (rest.empty()) return std::nullopt;
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

/// `text` as a decimal number, truncated; nullopt outside 1 to kLargestMatrix.
std::optional<int> ReadCount(std::string_view text) {
  const auto number = ReadWholeNumber(text);
  if (!number || !(*number >= 1) || !(*number < kLargestMatrix + 1)) return std::nullopt;
  return static_cast<int>(*number);
}

struct MatrixSize {
  int rows;
  int columns;
};

std::optional<MatrixSize> ReadHeader(std::string_view line) {
  const std::size_t star = line.find('*');
  if (star == line.npos || !line.starts_with('[') || !line.ends_with(']')) return std::nullopt;
  const auto rows = ReadCount(line.substr(1, star - 1));
  const auto columns = ReadCount(line.substr(star + 1, line.size() - star - 2));
  if (!rows || !columns) return std::nullopt;
  return MatrixSize{*rows, *columns};
}

/// Whether `line` has as many cells as `matrix` has columns; if so, they are row `row` of it.
bool ReadRow(std::string_view line, int row, MatrixValue& matrix) {
  for (int column = 0; column < matrix.columns; ++column) {
    const std::size_t end = line.find(kBetweenCells);
    const bool isLast = column + 1 == matrix.columns;
    if ((end == line.npos) != isLast) return false;
    matrix.At(row, column) = CharactersOf(line.substr(0, end));
    if (!isLast) line.remove_prefix(end + 1);
  }
  return true;
}

}  // namespace

std::string PrintMatrix(const MatrixValue& matrix, std::string_view lineEnd) {
  std::string text = "[" + PrintInteger(matrix.rows) + "*" + PrintInteger(matrix.columns) + "]";
  text += lineEnd;
  for (int row = 0; row < matrix.rows; ++row) {
    for (int column = 0; column < matrix.columns; ++column) {
      if (column != 0) text += kBetweenCells;
      for (const char16_t c : matrix.At(row, column)) text += ByteOf(c);
    }
    text += lineEnd;
  }
  return text;
}

Expected<MatrixValue, MatrixFault> ReadMatrixText(std::string_view bytes) {
  using Kind = MatrixFault::Kind;
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  int line = 1;
  const auto header = TakeLine(bytes);
  const auto size = header ? ReadHeader(*header) : std::nullopt;
  if (!size) return MatrixFault{Kind::NoSize, line};
  MatrixValue matrix = MatrixOfSize(size->rows, size->columns);
  for (int row = 0; row < matrix.rows; ++row) {
    ++line;
    const auto cells = TakeLine(bytes);
    if (!cells) return MatrixFault{Kind::NoRow, line};
    if (!ReadRow(*cells, row, matrix)) return MatrixFault{Kind::OtherCells, line};
  }
  while (const auto left = TakeLine(bytes)) {
    ++line;
    if (!left->empty()) return MatrixFault{Kind::RowLeft, line};
  }
  return matrix;
}

std::optional<MatrixValue> ReadMatrix(std::string_view bytes) {
  auto matrix = ReadMatrixText(bytes);
  if (!matrix) return std::nullopt;
  return *std::move(matrix);
}

Expected<MatrixValue, MatrixFault> ReadMatrixFile(std::string_view bytes) {
  auto matrix = ReadMatrixText(bytes);
  if (!matrix) return matrix;
  for (auto& row : matrix->cells) {
    for (std::u16string& cell : row) std::erase(cell, u',');
  }
  return matrix;
}

Expected<MatrixValue, std::u16string> LoadMatrixFile(const std::string& path) {
  if (const auto bytes = ReadWholeFile(path, kLargestMatrixFile)) {
    if (auto matrix = ReadMatrixFile(*bytes)) return *std::move(matrix);
  }
  return MatrixFileIsInvalid(Widen(path));
}

std::optional<std::u16string> SaveMatrixFile(const std::string& path, const MatrixValue& matrix) {
  const auto error = SaveFile(path, PrintMatrix(matrix));
  if (!error) return std::nullopt;
  return MatrixCannotBeSaved(Widen(path), ReasonAndRemedy(*error));
}

}  // namespace kav
