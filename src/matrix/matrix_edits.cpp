#include "matrix/matrix_edits.h"

#include <numeric>
#include <utility>

namespace kav {
namespace {

std::size_t CountCharacters(const MatrixValue& matrix) {
  std::size_t count = 0;
  for (int row = 0; row < matrix.rows; ++row) {
    for (int column = 0; column < matrix.columns; ++column) count += matrix.At(row, column).size();
  }
  return count;
}

}  // namespace

ColumnWidths UniformWidths(int columnWidth) {
  ColumnWidths widths;
  widths.fill(columnWidth);
  widths.front() = kHeaderColumnWidth;
  return widths;
}

MatrixEdits::MatrixEdits(const MatrixValue& matrix, const ColumnWidths& widths) {
  matrices_.fill(matrix);
  widths_.fill(widths);
}

void MatrixEdits::Change(int index, MatrixValue matrix, std::optional<ColumnWidths> widths) {
  const bool keepsWidths = !widths || *widths == Widths(index);
  if (keepsWidths && SameMatrix(Matrix(index), matrix)) return;
  redo_.clear();
  undo_.push_back(Exchange({Place(index), std::move(matrix), widths}));
  DropOldest();
}

std::optional<int> MatrixEdits::Undo() {
  return Move(undo_, redo_);
}

std::optional<int> MatrixEdits::Redo() {
  return Move(redo_, undo_);
}

/// Does `step`; the step that leads back.
MatrixEdits::Step MatrixEdits::Exchange(Step step) {
  std::swap(matrices_[step.index], step.matrix);
  ++changes_;
  if (step.widths) std::swap(widths_[step.index], *step.widths);
  step.characters = CountCharacters(step.matrix);
  return step;
}

std::optional<int> MatrixEdits::Move(Steps& from, Steps& to) {
  if (from.empty()) return std::nullopt;
  to.push_back(Exchange(std::move(from.back())));
  from.pop_back();
  return static_cast<int>(to.back().index);
}

void MatrixEdits::DropOldest() {
  std::size_t characters =
      std::accumulate(undo_.begin(), undo_.end(), std::size_t{0},
                      [](std::size_t sum, const Step& step) { return sum + step.characters; });
  while (undo_.size() > kMostSteps || (characters > kMostCharacters && undo_.size() > 1)) {
    characters -= undo_.front().characters;
    undo_.pop_front();
  }
}

}  // namespace kav
