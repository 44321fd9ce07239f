// The four matrices, which of them is shown, and the matrix clipboard.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "display/display_settings.h"
#include "matrix/matrix_edits.h"
#include "matrix/matrix_value.h"

namespace kav {

/// Every change of a matrix is one step of undo, or none if nothing changes. Rows, columns and
/// matrices count from 0. A cell outside of the shown matrix is empty, and changing it does
/// nothing.
class MatrixBoard {
 public:
  /// Empty matrices, of the size and with the widths that `settings` has for new ones; [M1] is
  /// shown.
  explicit MatrixBoard(const DisplaySettings& settings);

  const Matrices& All() const { return edits_.All(); }
  int ShownIndex() const { return shown_; }
  const MatrixValue& Shown() const { return edits_.Matrix(shown_); }
  const ColumnWidths& Widths() const { return edits_.Widths(shown_); }
  /// Takes all widths except that of the header column, which never changes.
  void SetWidths(const ColumnWidths& widths);
  /// Ends a lock. Does nothing if there is no matrix `index`.
  void Show(int index);

  /// Whether the user may clear cells of the shown matrix and resize it.
  bool IsOpen() const { return shown_ != kAnswerMatrix && !isLocked_; }
  /// Nothing is open until the next Show: after an expression failed, the user is to look at its
  /// matrices first.
  void Lock() { isLocked_ = true; }
  /// Makes `result` the [M Ans] and shows it.
  void TakeAnswer(MatrixValue result);

  // The shown matrix.
  std::u16string_view CellText(int row, int column) const;
  /// Line ends and TABs in `text` become blanks.
  void SetCell(int row, int column, std::u16string text);
  void ClearCells(const CellRange& cells);
  void Resize(int rows, int columns);
  /// The cells of the matrix that are in `cells`, as PrintCells writes them; all of the matrix if
  /// `cells` is one cell.
  std::u16string CopyCells(const CellRange& cells) const;
  /// Empties the cells of the matrix that are in `cells`; what stood in them, as PrintCells writes
  /// it.
  std::u16string CutCells(const CellRange& cells);
  /// Writes the numbers that ReadCells finds in `text` from a cell on; the matrix grows for them.
  /// A text that is no number keeps all of them out. What the user is to be told if not all came
  /// in.
  std::optional<std::u16string> PasteCells(int row, int column, std::u16string_view text);
  /// The same from the first cell of `cells` on, but a single number fills all of them.
  std::optional<std::u16string> PasteInto(const CellRange& cells, std::u16string_view text);
  // As matrix_file.h has them; what the user is to be told if it failed.
  std::optional<std::u16string> SaveTo(const std::string& path);
  std::optional<std::u16string> LoadFrom(const std::string& path);

  /// The matrices of the user that are in no file as they are now; not those that are all empty.
  std::vector<int> Unsaved() const;

  // The matrix clipboard, which holds a matrix with its widths. Paste does nothing while it is
  // empty.
  void Cut();
  void Copy();
  void Paste();

  // Undo and Redo show the matrix that they change.
  std::size_t ChangeCount() const { return edits_.ChangeCount(); }
  bool CanUndo() const { return edits_.CanUndo(); }
  bool CanRedo() const { return edits_.CanRedo(); }
  void Undo();
  void Redo();

 private:
  struct Clipboard {
    MatrixValue matrix;
    ColumnWidths widths;
  };

  bool HasCell(int row, int column) const;
  void ShowChanged(std::optional<int> index);
  void RememberFile();

  MatrixEdits edits_;
  std::optional<Clipboard> clipboard_;
  std::array<MatrixValue, kAnswerMatrix> inFiles_;  // as they were last saved or loaded
  int shown_ = 0;
  bool isLocked_ = false;
};

}  // namespace kav
