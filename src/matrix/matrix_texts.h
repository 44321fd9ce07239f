// What the user reads from the matrix calculator: the 8-bit texts of the evaluator and its
// operations, and the 16-bit texts of the screen.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "settings/file_error_texts.h"

namespace kav {

// The operations as their messages name them. The misspelled one stays so: users know the message.
inline constexpr std::string_view kMatrixAddition = "Matrix Addition(+)";
inline constexpr std::string_view kMatrixSubtraction = "Matrix Subtration(-)";
inline constexpr std::string_view kMatrixMultiplication = "Matrix Multiplication(*)";
inline constexpr std::string_view kMatrixPower = "Matrix Power(^)";
inline constexpr std::string_view kMatrixInverse = "Matrix Inverse";
inline constexpr std::string_view kMatrixTranspose = "Matrix Transpose";
inline constexpr std::string_view kMatrixLinearEquation = "Matrix Linear Equation";
inline constexpr std::string_view kMatrixDeterminant = "Matrix Determinant";
inline constexpr std::string_view kMatrixTriangular = "Matrix Triangular";
inline constexpr std::string_view kMatrixRank = "Matrix Rank";
inline constexpr std::string_view kMatrixTrace = "Matrix Trace";
inline constexpr std::string_view kMatrixNorm = "Matrix Norm";
inline constexpr std::string_view kMatrixEigenvalues = "Matrix Eigenvalues";
inline constexpr std::string_view kMatrixLu = "Matrix LU";
inline constexpr std::string_view kMatrixQr = "Matrix QR";

// What went wrong, behind the operation's name in "[" and "] ".
inline constexpr std::string_view kSizeMismatch = "Matrix Size Mismatch";
inline constexpr std::string_view kArgumentError = "Matrix Argument Error";
inline constexpr std::string_view kNotInvertible = "Not Invertible(Determinant Equals 0)";
inline constexpr std::string_view kZeroInDiagonal = "Error(0 in Diagonal).";
inline constexpr std::string_view kNoConvergence =
    "No result: the iteration does not end for this matrix";

/// Follows the name of an operation that takes whole numbers from 0 on.
inline constexpr std::string_view kNeitherFractionNorNegative =
    " is not supported non-integer and negative integer.";

inline constexpr std::string_view kNoRoomForMatrix = "System Error : Check your freespace on PDA";

/// `name` is one of kMatrixNames.
inline std::u16string NamedMatrixIsInvalid(std::u16string_view name) {
  return std::u16string(u"Matrix ").append(name).append(u" is invalid");
}

/// `reason` is a clause without a full stop.
inline std::u16string MatrixCannotBeSaved(std::u16string_view path, std::u16string_view reason) {
  return FileFailure(u"The matrix cannot be saved in ", path, reason);
}

// The menus and the question of the screen.
inline constexpr std::u16string_view kConstantsItem = u"Constants";
inline constexpr std::u16string_view kRecallMemVarItem = u"Recall MemVar";
inline constexpr std::u16string_view kConverterItem = u"Converter";
inline constexpr std::u16string_view kMacroItem = u"Macro";
inline constexpr std::u16string_view kMatrixCutItem = u"M Cut";
inline constexpr std::u16string_view kMatrixCopyItem = u"M Copy";
inline constexpr std::u16string_view kMatrixPasteItem = u"M Paste";
inline constexpr std::u16string_view kMatrixSaveItem = u"M Save";
inline constexpr std::u16string_view kMatrixLoadItem = u"M Load";
inline constexpr std::u16string_view kResetWidthsItem = u"Reset Col Width";
inline constexpr std::u16string_view kAutofitWidthsItem = u"Autofit Col Width";
inline constexpr std::u16string_view kClearCellsQuestion =
    u"Are you sure you want to delete the selected cell(s)?";

inline std::u16string MatrixFileIsInvalid(std::u16string_view path) {
  return std::u16string(path).append(u" is invalid.");
}

/// What pasting left out for lack of room; `count` is not 0.
inline std::u16string CellsDidNotFit(std::size_t count) {
  return Widen(PrintInteger(static_cast<std::int64_t>(count)))
      .append(count == 1 ? u" cell did not fit into the matrix."
                         : u" cells did not fit into the matrix.");
}

/// "row 2, column 3"; both counted from 0.
inline std::u16string PlaceOfCell(int row, int column) {
  return u"row " + Widen(PrintInteger(row + 1)) + u", column " + Widen(PrintInteger(column + 1));
}

/// Why a block was not pasted: its cell `row`, `column`, counted from 0.
inline std::u16string BlockHasNoNumber(std::u16string_view text, int row, int column) {
  return std::u16string(u"Nothing was pasted: \"").append(text) + u"\" in " +
         PlaceOfCell(row, column) + u" of the pasted cells is no number.";
}

inline std::u16string CommasAreNoThousands(std::u16string_view text) {
  return std::u16string(u"The commas in \"")
      .append(text)
      .append(u"\" do not separate thousands. Write one number, with a point for its decimals.");
}

/// An answer in the history of all sessions.
inline std::u16string MatrixOf(int rows, int columns) {
  return u"Matrix " + Widen(std::to_string(rows)) + u" x " + Widen(std::to_string(columns));
}

// What "=" says of cells, besides its answer.
inline std::u16string CellIsEmpty(int row, int column) {
  return u"R" + PlaceOfCell(row, column).substr(1) + u" is empty.";
}
/// `name` is one of kMatrixNames.
inline std::u16string CellCountsAs(std::u16string_view name, std::u16string_view place,
                                   std::u16string_view text, std::u16string_view number) {
  return std::u16string(name).append(u", ").append(place).append(u": \"").append(text).append(
             u"\" is no number and counts as ") +
         std::u16string(number) + u'.';
}
inline std::u16string MoreCellsAreNoNumbers(std::size_t count) {
  return Widen(PrintInteger(static_cast<std::int64_t>(count)))
      .append(count == 1 ? u" more cell is no number." : u" more cells are no numbers.");
}

/// Before the program ends; `names` as "[M1], [M2]".
inline std::u16string SaveMatricesQuestion(std::u16string_view names) {
  return std::u16string(u"Do you want to save changes to ").append(names).append(u"?");
}

// The menu of what is asked of the shown matrix, in the menu bar.
inline constexpr std::u16string_view kPropertiesMenu = u"M&atrix";

/// What the result line says of an answer whose rows are not in the order of the unknowns.
inline constexpr std::u16string_view kOrderOfUnknowns = u"Order of unknowns: ";

// The dialog that gives a matrix another size.
inline constexpr std::u16string_view kMatrixSizeTitle = u"Select Matrix Size";
inline constexpr std::u16string_view kRowsName = u"Rows";
inline constexpr std::u16string_view kColumnsName = u"Columns";

// What screen readers call the grid, which has no caption.
inline constexpr std::u16string_view kMatrixGridName = u"Cells";
inline constexpr std::u16string_view kMatrixTabsName = u"Matrices";

}  // namespace kav
