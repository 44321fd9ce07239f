#include "screens/matrix/matrix_leaving.h"

#include <cstddef>
#include <string>
#include <vector>

#include "matrix/matrix_line.h"
#include "matrix/matrix_texts.h"
#include "screens/widgets/leaving.h"
#include "screens/widgets/message_box.h"

namespace kav {
namespace {

SaveEnd SaveShown(QWidget* parent, MatrixBoard& board) {
  if (const auto empty = FirstEmptyCell(board.Shown())) {
    ShowStop(parent, MatrixIsInvalid(board.ShownIndex()), CellIsEmpty(empty->row, empty->column));
    return SaveEnd::Failed;
  }
  const auto path = AskFileToSave(parent, kMatrixFiles);
  if (!path) return SaveEnd::Cancelled;
  const auto failure = board.SaveTo(*path);
  if (!failure) return SaveEnd::Saved;
  ShowStop(parent, *failure);
  return SaveEnd::Failed;
}

}  // namespace

bool AskToSaveMatrices(QWidget* parent, MatrixBoard& board, const std::function<void()>& shown) {
  const std::vector<int> unsaved = board.Unsaved();
  if (unsaved.empty()) return true;
  std::u16string names;
  for (const int index : unsaved) {
    if (!names.empty()) names += u", ";
    names += kMatrixNames[static_cast<std::size_t>(index)];
  }
  return AskToSave(parent, LeaveReason::Ending, SaveMatricesQuestion(names), [&] {
    for (const int index : unsaved) {
      board.Show(index);
      shown();
      const SaveEnd end = SaveShown(parent, board);
      if (end != SaveEnd::Saved) return end;
    }
    return SaveEnd::Saved;
  });
}

}  // namespace kav
