// Changes of matrices that can be taken back.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <optional>

#include "matrix/cell_range.h"
#include "matrix/column_widths.h"
#include "matrix/matrix_value.h"

namespace kav {

/// A matrix and how wide its columns are: what M Cut and M Copy take along.
struct MatrixSheet {
  MatrixValue matrix;
  ColumnWidths widths{};
};

/// The header column and all others `columnWidth` wide.
ColumnWidths UniformWidths(int columnWidth);

/// A matrix of empty cells; its sizes are brought into 1 to kLargestMatrix.
MatrixValue EmptyMatrix(int rows, int columns);
/// The cells of `matrix` that are within the new size, and empty ones beside them.
MatrixValue Resized(const MatrixValue& matrix, int rows, int columns);
/// The cells of `range` that `matrix` has; a range of none is all 0 to -1.
CellRange WithinMatrix(const CellRange& range, const MatrixValue& matrix);
/// `matrix` with the cells of `range` empty.
MatrixValue Cleared(MatrixValue matrix, const CellRange& range);

/// The four matrices and their widths, with the way back from each change and forth again. A step
/// leads back to the cells and the size of one matrix, and to its widths where it changed them too.
class MatrixEdits {
 public:
  /// As many steps are kept, and as long as their cells have no more characters than this in all.
  static constexpr std::size_t kMostSteps = 100;
  static constexpr std::size_t kMostCharacters = std::size_t{1} << 24;

  /// All of them as these.
  MatrixEdits(const MatrixValue& matrix, const ColumnWidths& widths);

  const Matrices& All() const { return matrices_; }
  const MatrixValue& Matrix(int index) const { return matrices_[Place(index)]; }
  const ColumnWidths& Widths(int index) const { return widths_[Place(index)]; }

  /// Not a step: widths are no content.
  void SetWidths(int index, const ColumnWidths& widths) { widths_[Place(index)] = widths; }
  /// One step, or none where all is as it was.
  void Change(int index, MatrixValue matrix);
  void Change(int index, MatrixSheet sheet);

  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  /// Which matrix changed; nullopt where there was nothing to take back or to do again.
  std::optional<int> Undo();
  std::optional<int> Redo();

 private:
  struct Step {
    int index;
    MatrixValue matrix;
    std::optional<ColumnWidths> widths;
    std::size_t characters;
  };
  using Steps = std::deque<Step>;

  static std::size_t Place(int index) { return static_cast<std::size_t>(index); }
  Step Now(int index, bool withWidths) const;
  std::optional<int> Move(Steps& from, Steps& to);
  void Remember(Step before);

  Matrices matrices_;
  std::array<ColumnWidths, kMatrixCount> widths_;
  Steps undo_;
  Steps redo_;
};

}  // namespace kav
