#include "matrix/matrix_board.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "matrix/cell_table_text.h"
#include "matrix/matrix_file.h"
#include "matrix/matrix_texts.h"

namespace kav {

MatrixBoard::MatrixBoard(const DisplaySettings& settings)
    : edits_(Resized({}, settings.matrixRows, settings.matrixColumns),
             UniformWidths(settings.columnWidth)) {}

void MatrixBoard::SetWidths(const ColumnWidths& widths) {
  ColumnWidths taken = widths;
  taken.front() = kHeaderColumnWidth;
  edits_.SetWidths(shown_, taken);
}

void MatrixBoard::Show(int index) {
  if (index < 0 || index >= kMatrixCount) return;
  shown_ = index;
  isLocked_ = false;
}

void MatrixBoard::TakeAnswer(MatrixValue result) {
  edits_.Change(kAnswerMatrix, std::move(result));
  Show(kAnswerMatrix);
}

std::u16string_view MatrixBoard::CellText(int row, int column) const {
  return HasCell(row, column) ? std::u16string_view(Shown().At(row, column)) : u"";
}

bool MatrixBoard::HasCell(int row, int column) const {
  return row >= 0 && row < Shown().rows && column >= 0 && column < Shown().columns;
}

void MatrixBoard::SetCell(int row, int column, std::u16string text) {
  if (!HasCell(row, column)) return;
  MatrixValue changed = Shown();
  // A line end or a TAB would end the cell in a file.
  changed.At(row, column) = OnOneLine(std::move(text));
  edits_.Change(shown_, std::move(changed));
}

void MatrixBoard::ClearCells(const CellRange& cells) {
  edits_.Change(shown_, Cleared(Shown(), cells));
}

void MatrixBoard::Resize(int rows, int columns) {
  edits_.Change(shown_, Resized(Shown(), rows, columns));
}

std::u16string MatrixBoard::CopyCells(const CellRange& cells) const {
  const MatrixValue& matrix = Shown();
  const CellRange all{0, 0, matrix.rows - 1, matrix.columns - 1};
  return PrintCells(matrix, cells.IsOneCell() ? all : WithinMatrix(cells, matrix));
}

std::u16string MatrixBoard::CutCells(const CellRange& cells) {
  std::u16string text = PrintCells(Shown(), WithinMatrix(cells, Shown()));
  ClearCells(cells);
  return text;
}

std::optional<std::u16string> MatrixBoard::PasteCells(int row, int column,
                                                      std::u16string_view text) {
  return PasteInto({row, column, row, column}, text);
}

std::optional<std::u16string> MatrixBoard::PasteInto(const CellRange& cells,
                                                     std::u16string_view text) {
  if (!HasCell(cells.top, cells.left)) return std::nullopt;
  const PastedCells pasted =
      ReadCells(text, kLargestMatrix - cells.top, kLargestMatrix - cells.left);
  if (pasted.refused > 0) {
    const PastedNumber& first = pasted.firstRefused;
    return BlockHasNoNumber(first.text, first.row, first.column);
  }
  edits_.Change(shown_, pasted.IsOneNumber() ? Filled(Shown(), cells, pasted.numbers.front().text)
                                             : Overwritten(Shown(), cells.top, cells.left, pasted));
  if (pasted.beyond == 0) return std::nullopt;
  return CellsDidNotFit(pasted.beyond);
}

void MatrixBoard::Undo() {
  ShowChanged(edits_.Undo());
}

void MatrixBoard::Redo() {
  ShowChanged(edits_.Redo());
}

void MatrixBoard::ShowChanged(std::optional<int> index) {
  if (index && *index != shown_) Show(*index);
}

std::optional<std::u16string> MatrixBoard::SaveTo(const std::string& path) {
  auto failure = SaveMatrixFile(path, Shown());
  if (!failure) RememberFile();
  return failure;
}

void MatrixBoard::RememberFile() {
  if (shown_ != kAnswerMatrix) inFiles_[static_cast<std::size_t>(shown_)] = Shown();
}

std::vector<int> MatrixBoard::Unsaved() const {
  std::vector<int> unsaved;
  for (int index = 0; index < kAnswerMatrix; ++index) {
    const MatrixValue& matrix = edits_.Matrix(index);
    const bool isInFile = SameMatrix(matrix, inFiles_[static_cast<std::size_t>(index)]);
    if (!isInFile && HasText(matrix)) unsaved.push_back(index);
  }
  return unsaved;
}

std::optional<std::u16string> MatrixBoard::LoadFrom(const std::string& path) {
  auto loaded = LoadMatrixFile(path);
  if (!loaded) return std::move(loaded).error();
  edits_.Change(shown_, *std::move(loaded));
  RememberFile();
  return std::nullopt;
}

void MatrixBoard::Cut() {
  Copy();
  edits_.Change(shown_, MatrixOfSize(Shown().rows, Shown().columns));
}

void MatrixBoard::Copy() {
  clipboard_ = Clipboard{Shown(), Widths()};
}

void MatrixBoard::Paste() {
  if (clipboard_) edits_.Change(shown_, clipboard_->matrix, clipboard_->widths);
}

}  // namespace kav
