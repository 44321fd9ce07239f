// Undoing and redoing what was done to the rows of a statistics screen.
#include <utility>

#include "statistics/statistics_model.h"
#include "statistics/statistics_texts.h"

namespace kav {

void StatisticsModel::KeepUndo(WayBack back, const RowsBeside& before) {
  undo_.Keep(std::move(back), before);
  fieldsAtChange_ = fields_;
}

std::optional<std::u16string> StatisticsModel::UndoRows() {
  if (!CanUndoRows()) return std::nullopt;
  RowsBeside beside = Beside();
  const auto refusal = undo_.Undo(list_, beside);
  return TakeUndone(refusal, beside);
}

std::optional<std::u16string> StatisticsModel::RedoRows() {
  if (!CanRedoRows()) return std::nullopt;
  RowsBeside beside = Beside();
  const auto refusal = undo_.Redo(list_, beside);
  return TakeUndone(refusal, beside);
}

std::optional<std::u16string> StatisticsModel::TakeUndone(const std::optional<DataRefusal>& refusal,
                                                          const RowsBeside& beside) {
  if (refusal) return WhyRowsDoNotFit(*refusal);
  MarkChanged();
  isModified_ = beside.isModified;
  selected_ = beside.selected;
  if (selected_ && *selected_ >= list_.RowCount()) selected_.reset();
  sorted_ = beside.sorted;
  buttons_ = beside.buttons;
  fieldsAtChange_ = fields_;
  return std::nullopt;
}

}  // namespace kav
