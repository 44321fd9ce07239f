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

void MatrixEdits::Change(int index, MatrixValue matrix) {
  if (SameMatrix(Matrix(index), matrix)) return;
  Remember(Now(index));
  matrices_[Place(index)] = std::move(matrix);
}

void MatrixEdits::Change(int index, MatrixSheet sheet) {
  if (SameMatrix(Matrix(index), sheet.matrix) && Widths(index) == sheet.widths) return;
  Step before = Now(index);
  before.widths = Widths(index);
  Remember(std::move(before));
  matrices_[Place(index)] = std::move(sheet.matrix);
  widths_[Place(index)] = sheet.widths;
}

std::optional<int> MatrixEdits::Undo() {
  return Move(undo_, redo_);
}

std::optional<int> MatrixEdits::Redo() {
  return Move(redo_, undo_);
}

MatrixEdits::Step MatrixEdits::Now(int index) const {
  return {index, Matrix(index), CountCharacters(Matrix(index)), std::nullopt};
}

std::optional<int> MatrixEdits::Move(Steps& from, Steps& to) {
  if (from.empty()) return std::nullopt;
  Step step = std::move(from.back());
  from.pop_back();
  to.push_back(Now(step.index));
  matrices_[Place(step.index)] = std::move(step.matrix);
  if (step.widths) to.back().widths = std::exchange(widths_[Place(step.index)], *step.widths);
  return step.index;
}

void MatrixEdits::Remember(Step before) {
  redo_.clear();
  undo_.push_back(std::move(before));
  std::size_t characters =
      std::accumulate(undo_.begin(), undo_.end(), std::size_t{0},
                      [](std::size_t sum, const Step& step) { return sum + step.characters; });
  while (undo_.size() > kMostSteps || (characters > kMostCharacters && undo_.size() > 1)) {
    characters -= undo_.front().characters;
    undo_.pop_front();
  }
}

}  // namespace kav
