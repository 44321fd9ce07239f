// Cells as the text that spreadsheets copy and paste.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "display/comma_reading.h"
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
  PastedNumber firstRefused{};        ///< of those the first, as it was pasted

  /// Whether all of it is one number, in the first cell.
  bool IsOneNumber() const {
    return numbers.size() == 1 && beyond == 0 && refused == 0 && numbers.front().row == 0 &&
           numbers.front().column == 0;
  }
};

/// What to ask before `text` is read as a table; nullopt if its commas can be read in one way only.
/// Between TABs they never separate cells.
std::optional<CommaQuestion> QuestionOfCells(std::u16string_view text);

/// `text` for ReadCells, if its commas have that meaning. Where they are decimal ones, cells are
/// separated by semicolons.
std::u16string CellsWithCommas(std::u16string_view text, CommaMeaning meaning);

/// Why `text` cannot become a cell: it has commas that do not stand between the thousands of a
/// number, or that could be a decimal point. nullopt if it can.
std::optional<std::u16string> CellRefusal(std::u16string_view text);

/// `text` as it becomes a cell that is not refused: a number without the commas between its
/// thousands.
std::u16string TypedCell(const std::u16string& text);

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
