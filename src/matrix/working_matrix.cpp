#include "matrix/working_matrix.h"

namespace kav {

WorkingMatrix::WorkingMatrix(const MatrixValue& texts) : WorkingMatrix(texts.rows, texts.columns) {
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) {
      const std::u16string& text = texts.At(row, column);
      CellAt(row, column) = {ReadCell(text), 0, &text};
    }
  }
}

WorkingMatrix WorkingMatrix::Identity(int size) {
  WorkingMatrix identity(size, size);
  for (int i = 0; i < size; ++i) identity.Store(i, i, 1);
  return identity;
}

bool WorkingMatrix::IsSame(const WorkingMatrix& other) const {
  if (rows_ != other.rows_ || columns_ != other.columns_) return false;
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) {
      if (At(row, column) != other.At(row, column)) return false;
    }
  }
  return true;
}

std::u16string WorkingMatrix::TextAt(int row, int column) const {
  const Cell& cell = CellAt(row, column);
  return cell.original != nullptr ? *cell.original : CellText(cell.stored);
}

MatrixValue WorkingMatrix::Texts() const {
  MatrixValue texts = MatrixOfSize(rows_, columns_);
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) texts.At(row, column) = TextAt(row, column);
  }
  return texts;
}

}  // namespace kav
