// Changes of matrices that can be undone.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <optional>

#include "matrix/matrix_value.h"

namespace kav {

/// The header column, then the columns of a matrix, in pixels of a screen 240 pixels wide.
using ColumnWidths = std::array<int, kLargestMatrix + 1>;
inline constexpr int kHeaderColumnWidth = 20;

/// The header column, and all others `columnWidth` wide.
ColumnWidths UniformWidths(int columnWidth);

/// The four matrices and their widths, with undo and redo. A step restores the cells and the size
/// of one matrix, and its widths if the step changed them. An index is 0 to kMatrixCount - 1.
class MatrixEdits {
 public:
  /// The oldest steps are dropped beyond this many, or if the cells of all have more characters in
  /// sum than this; the last step is always kept.
  static constexpr std::size_t kMostSteps = 100;
  static constexpr std::size_t kMostCharacters = std::size_t{1} << 24;

  /// All four as these.
  MatrixEdits(const MatrixValue& matrix, const ColumnWidths& widths);

  const Matrices& All() const { return matrices_; }
  const MatrixValue& Matrix(int index) const { return matrices_[Place(index)]; }
  const ColumnWidths& Widths(int index) const { return widths_[Place(index)]; }

  /// Not a step: widths are no content.
  void SetWidths(int index, const ColumnWidths& widths) { widths_[Place(index)] = widths; }
  /// One step, or none if nothing changes. nullopt keeps the widths.
  void Change(int index, MatrixValue matrix, std::optional<ColumnWidths> widths = std::nullopt);

  /// Grows with every change, undo and redo.
  std::size_t ChangeCount() const { return changes_; }

  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  /// Which matrix changed; nullopt if there was nothing to undo or redo.
  std::optional<int> Undo();
  std::optional<int> Redo();

 private:
  struct Step {
    std::size_t index;
    MatrixValue matrix;
    std::optional<ColumnWidths> widths;
    std::size_t characters = 0;
  };
  using Steps = std::deque<Step>;

  static std::size_t Place(int index) { return static_cast<std::size_t>(index); }
  Step Exchange(Step step);
  std::optional<int> Move(Steps& from, Steps& to);
  void DropOldest();

  Matrices matrices_;
  std::array<ColumnWidths, kMatrixCount> widths_;
  Steps undo_;
  Steps redo_;
  std::size_t changes_ = 0;
};

}  // namespace kav
