// Cells as the text that spreadsheets copy and paste.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "matrix/cell_range.h"
#include "matrix/matrix_value.h"

namespace kav {

/// Whether the whole of `text`, blanks around it aside, is one number that a double can hold.
bool IsNumberText(std::u16string_view text);

/// The cells of `range` as lines: a TAB between cells, a line feed between rows. A control
/// character in a cell is a blank here.
std::u16string PrintCells(const MatrixValue& matrix, const CellRange& range);

/// Numbers, as texts without blanks or separators, and their places counted from 0.
struct PastedNumber {
  int row;
  int column;
  std::u16string text;
};
struct PastedCells {
  std::vector<PastedNumber> numbers;  ///< those of the first rows and columns
  std::size_t beyond = 0;             ///< how many texts stand in other rows or columns
  std::size_t refused = 0;            ///< how many texts within them are no numbers
};

/// Reads `text`, whose lines end with LF or CR LF and are rows of cells: separated by TAB where
/// there is any, or else by commas, or else by blanks. Between TABs a number may have commas
/// between its thousands, which are taken off; anywhere else they make it none. An empty cell has
/// its place and counts as nothing. Of the table the first `rows` rows and `columns` columns, from
/// 1 to kLargestMatrix, are kept. A text longer than any number is none.
PastedCells ReadCells(std::u16string_view text, int rows, int columns);

/// `matrix` with those numbers from its cell `row`, `column` on; it grows where they are outside.
MatrixValue Overwritten(const MatrixValue& matrix, int row, int column, const PastedCells& pasted);

}  // namespace kav
