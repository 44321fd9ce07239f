// Cells as the text that spreadsheets copy and paste.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "matrix/matrix_value.h"

namespace kav {

/// Whether all of `text`, apart from blanks around it, is one number that a double can hold.
bool IsNumberText(std::u16string_view text);

/// The cells of `range`, which must be within `matrix`: a TAB between cells, a line feed between
/// rows. A control character in a cell becomes a blank.
std::u16string PrintCells(const MatrixValue& matrix, const CellRange& range);

/// A number as text, without blanks or separators, and its place counted from 0.
struct PastedNumber {
  int row;
  int column;
  std::u16string text;
};
struct PastedCells {
  std::vector<PastedNumber> numbers;  ///< in the rows and columns that there is room for
  std::size_t beyond = 0;             ///< how many cells are in other rows or columns
  std::size_t refused = 0;            ///< how many cells that there is room for are no numbers
};

/// Reads `text` as a table with room for `rows` rows and `columns` columns, 1 to kLargestMatrix.
/// Each line is a row and ends with LF or CR LF. If the text has a TAB, TABs separate the cells,
/// else commas if it has one, else blanks. Between TABs a number may have commas between its
/// thousands, which are removed. An empty cell takes its place and is not counted. A cell longer
/// than any number is none.
PastedCells ReadCells(std::u16string_view text, int rows, int columns);

/// `matrix` with the numbers of `pasted` from its cell `row`, `column` on. It grows for them; they
/// must fit into kLargestMatrix rows and columns.
MatrixValue Overwritten(const MatrixValue& matrix, int row, int column, const PastedCells& pasted);

}  // namespace kav
