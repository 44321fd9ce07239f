#include "matrix/matrix_text.h"

#include <cstddef>

#include "common/number_text.h"

namespace kav {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr char kBetweenCells = '\t';

/// The low byte, but for what would end a cell or a row: that becomes a blank.
char ByteOf(char16_t c) {
  const char byte = static_cast<char>(static_cast<unsigned char>(c & 0xFFU));
  return byte == kBetweenCells || byte == '\n' ? ' ' : byte;
}

/// Each byte as the character of its number, which is not what UTF-8 would make of it.
std::u16string CharactersOf(std::string_view bytes) {
  std::u16string cell;
  cell.reserve(bytes.size());
  for (const char byte : bytes) cell += static_cast<char16_t>(static_cast<unsigned char>(byte));
  return cell;
}

/// Takes the first line off `rest`, and what ends it; nullopt where nothing is left.
std::optional<std::string_view> TakeLine(std::string_view& rest) {
  if (rest.empty()) return std::nullopt;
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

/// The count that `text` is: a decimal number, cut to an integer.
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
  if (star == line.npos || line.front() != '[' || line.back() != ']') return std::nullopt;
  const auto rows = ReadCount(line.substr(1, star - 1));
  const auto columns = ReadCount(line.substr(star + 1, line.size() - star - 2));
  if (!rows || !columns) return std::nullopt;
  return MatrixSize{*rows, *columns};
}

/// Whether `line` holds exactly the cells of a row, which then are in `matrix`.
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

std::string PrintMatrix(const MatrixValue& matrix) {
  std::string text = "[" + PrintInteger(matrix.rows) + "*" + PrintInteger(matrix.columns) + "]";
  text += kLineEnd;
  for (int row = 0; row < matrix.rows; ++row) {
    for (int column = 0; column < matrix.columns; ++column) {
      if (column != 0) text += kBetweenCells;
      for (const char16_t c : matrix.At(row, column)) text += ByteOf(c);
    }
    text += kLineEnd;
  }
  return text;
}

std::optional<MatrixValue> ReadMatrix(std::string_view bytes) {
  const auto header = TakeLine(bytes);
  const auto size = header ? ReadHeader(*header) : std::nullopt;
  if (!size) return std::nullopt;
  MatrixValue matrix;
  matrix.rows = size->rows;
  matrix.columns = size->columns;
  for (int row = 0; row < matrix.rows; ++row) {
    const auto line = TakeLine(bytes);
    if (!line || !ReadRow(*line, row, matrix)) return std::nullopt;
  }
  if (!bytes.empty()) return std::nullopt;
  return matrix;
}

}  // namespace kav
