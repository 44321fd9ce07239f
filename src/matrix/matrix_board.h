// The four matrices, the one of them that is shown, and the matrix clipboard.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "display/display_settings.h"
#include "matrix/cell_range.h"
#include "matrix/column_widths.h"
#include "matrix/matrix_edits.h"
#include "matrix/matrix_value.h"

namespace kav {

/// Every change of a matrix is a step of its undo. A cell or a matrix that is not there is empty,
/// and changing it does nothing.
class MatrixBoard {
 public:
  /// Empty matrices as new ones are by `settings`; [M1] is shown.
  explicit MatrixBoard(const DisplaySettings& settings);

  const Matrices& All() const { return edits_.All(); }
  int ShownIndex() const { return shown_; }
  const MatrixValue& Shown() const { return edits_.Matrix(shown_); }
  const ColumnWidths& Widths() const { return edits_.Widths(shown_); }
  void SetWidths(const ColumnWidths& widths);
  /// Ends a lock.
  void Show(int index);

  /// Whether the user may empty cells of the shown matrix and give it another size.
  bool IsOpen() const { return shown_ != kAnswerMatrix && !isLocked_; }
  /// Not open until Show: what an expression that failed was about is to be looked at first.
  void Lock() { isLocked_ = true; }
  /// Makes `result` the [M Ans] and shows it.
  void TakeAnswer(MatrixValue result);

  // The shown matrix.
  std::u16string_view CellText(int row, int column) const;
  void SetCell(int row, int column, std::u16string text);
  void ClearCells(const CellRange& cells);
  void Resize(int rows, int columns);
  std::u16string CopyCells(const CellRange& cells) const;
  std::optional<std::u16string> PasteCells(int row, int column, std::u16string_view text);
  std::optional<std::u16string> SaveTo(const std::string& path) const;
  std::optional<std::u16string> LoadFrom(const std::string& path);

  // The matrix clipboard: a matrix with its widths.
  void Cut();
  void Copy();
  void Paste();

  bool CanUndo() const { return edits_.CanUndo(); }
  bool CanRedo() const { return edits_.CanRedo(); }
  void Undo();
  void Redo();

 private:
  bool HasCell(int row, int column) const;
  void ShowChanged(std::optional<int> index);

  MatrixEdits edits_;
  MatrixSheet clipboard_;  ///< of 0 rows: empty
  int shown_ = 0;
  bool isLocked_ = false;
};

}  // namespace kav
