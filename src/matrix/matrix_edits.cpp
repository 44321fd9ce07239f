#include "matrix/matrix_edits.h"

#include <algorithm>
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

MatrixValue EmptyMatrix(int rows, int columns) {
  const auto [least, most] = kMatrixSizeRange;
  return MatrixOfSize(std::clamp(rows, least, most), std::clamp(columns, least, most));
}

MatrixValue Resized(const MatrixValue& matrix, int rows, int columns) {
  // What was cut off must not come back when the matrix grows again: it is not there any more.
  MatrixValue resized = EmptyMatrix(rows, columns);
  for (int row = 0; row < std::min(resized.rows, matrix.rows); ++row) {
    for (int column = 0; column < std::min(resized.columns, matrix.columns); ++column) {
      resized.At(row, column) = matrix.At(row, column);
    }
  }
  return resized;
}

CellRange WithinMatrix(const CellRange& range, const MatrixValue& matrix) {
  const CellRange within{std::max(range.top, 0), std::max(range.left, 0),
                         std::min(range.bottom, matrix.rows - 1),
                         std::min(range.right, matrix.columns - 1)};
  if (within.top > within.bottom || within.left > within.right) return {0, 0, -1, -1};
  return within;
}

MatrixValue Cleared(MatrixValue matrix, const CellRange& range) {
  const CellRange within = WithinMatrix(range, matrix);
  for (int row = within.top; row <= within.bottom; ++row) {
    for (int column = within.left; column <= within.right; ++column) {
      matrix.At(row, column).clear();
    }
  }
  return matrix;
}

MatrixEdits::MatrixEdits(const MatrixValue& matrix, const ColumnWidths& widths) {
  matrices_.fill(matrix);
  widths_.fill(widths);
}

void MatrixEdits::Change(int index, MatrixValue matrix) {
  if (SameMatrix(Matrix(index), matrix)) return;
  Remember(Now(index, false));
  matrices_[Place(index)] = std::move(matrix);
}

void MatrixEdits::Change(int index, MatrixSheet sheet) {
  if (SameMatrix(Matrix(index), sheet.matrix) && Widths(index) == sheet.widths) return;
  Remember(Now(index, true));
  matrices_[Place(index)] = std::move(sheet.matrix);
  widths_[Place(index)] = sheet.widths;
}

std::optional<int> MatrixEdits::Undo() {
  return Move(undo_, redo_);
}

std::optional<int> MatrixEdits::Redo() {
  return Move(redo_, undo_);
}

MatrixEdits::Step MatrixEdits::Now(int index, bool withWidths) const {
  Step step{index, Matrix(index), {}, CountCharacters(Matrix(index))};
  if (withWidths) step.widths = Widths(index);
  return step;
}

std::optional<int> MatrixEdits::Move(Steps& from, Steps& to) {
  if (from.empty()) return std::nullopt;
  Step step = std::move(from.back());
  from.pop_back();
  to.push_back(Now(step.index, step.widths.has_value()));
  matrices_[Place(step.index)] = std::move(step.matrix);
  if (step.widths) widths_[Place(step.index)] = *step.widths;
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
