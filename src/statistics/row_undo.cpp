#include "statistics/row_undo.h"

#include <algorithm>
#include <new>
#include <utility>

#include "common/expected.h"

namespace kav {
namespace {

using Back = Expected<WayBack, DataRefusal>;

DataRow RowOf(const HeldRow& held) {
  return {{held.values[0], held.values[1]}, held.count};
}

// Each goes a way back and answers the one that leads forth again.

Back Go(PutRowBack& back, DataList& list) {
  // Fewer rows may be left if others went when the rows were sorted.
  const std::size_t row = std::min(back.row, list.RowCount());
  if (const auto refusal = list.Insert(row, RowOf(back.held))) return *refusal;
  return WayBack(TakeRowOut{row});
}

Back Go(const TakeRowOut& back, DataList& list) {
  HeldRow held = HoldRow(list, back.row);
  if (const auto refusal = list.Erase(back.row)) return *refusal;
  return WayBack(PutRowBack{back.row, std::move(held)});
}

Back Go(RewriteRow& back, DataList& list) {
  HeldRow held = HoldRow(list, back.row);
  if (const auto refusal = list.Rewrite(back.row, RowOf(back.held))) return *refusal;
  return WayBack(RewriteRow{back.row, std::move(held)});
}

Back Go(const TakeTopOut& back, DataList& list) {
  auto rows = list.TakeTop(back.rows);
  if (!rows) return rows.error();
  return WayBack(PutTopBack{*std::move(rows)});
}

Back Go(PutTopBack& back, DataList& list) {
  const std::size_t rows = back.rows.RowCount();
  if (const auto refusal = list.InsertTop(back.rows)) return *refusal;
  DropRows(back.rows);
  return WayBack(TakeTopOut{rows});
}

Back Go(ReplaceRows& back, DataList& list) {
  std::swap(back.rows, list);
  return WayBack(ReplaceRows{std::move(back.rows)});
}

/// The rows that `back` holds as a list; null if it holds none.
const DataList* ListIn(const WayBack& back) {
  if (const auto* replace = std::get_if<ReplaceRows>(&back)) return &replace->rows;
  if (const auto* top = std::get_if<PutTopBack>(&back)) return &top->rows;
  return nullptr;
}

/// Gives the memory of the rows that `back` holds to the machine.
void Free(WayBack& back) {
  if (auto* replace = std::get_if<ReplaceRows>(&back)) DropRows(replace->rows);
  if (auto* top = std::get_if<PutTopBack>(&back)) DropRows(top->rows);
}

}  // namespace

HeldRow HoldRow(const DataList& list, std::size_t row) {
  HeldRow held;
  for (std::size_t i = 0; i < VariablesOf(list.Shape()); ++i) {
    held.values[i] = list.ValueText(row, i);
  }
  if (!list.CountText(row).empty()) held.count = list.Count(row);
  return held;
}

void RowUndo::Keep(WayBack back, const RowsBeside& before) {
  Drop(undone_, 0, undone_.size());
  done_.push_back({std::move(back), before});
  while (done_.size() > kMostSteps || HeldRows() > DataList::kMostRows) Drop(done_, 0, 1);
}

void RowUndo::AfterSorting() {
  Drop(undone_, 0, undone_.size());
  // Behind the last list that was replaced, the steps are of the rows that were sorted.
  const auto replaced = std::find_if(done_.rbegin(), done_.rend(), [](const Step& step) {
    return std::holds_alternative<ReplaceRows>(step.back);
  });
  const auto sinceThen = replaced.base() - done_.begin();
  const auto needsPlace = [](const Step& step) {
    return !std::holds_alternative<PutRowBack>(step.back);
  };
  done_.erase(std::remove_if(replaced.base(), done_.end(), needsPlace), done_.end());
  std::for_each(done_.begin() + sinceThen, done_.end(),
                [](Step& step) { step.beside.sorted.reset(); });
}

void RowUndo::AfterSaving() {
  for (Steps* steps : {&done_, &undone_}) {
    for (Step& step : *steps) step.beside.isModified = true;
  }
}

void RowUndo::BeforeLoading() {
  if (HeldRows() > kMostBesideLoading) Clear();
}

void RowUndo::Clear() {
  Drop(done_, 0, done_.size());
  Drop(undone_, 0, undone_.size());
}

std::optional<DataRefusal> RowUndo::Undo(DataList& list, RowsBeside& beside) {
  return Move(done_, undone_, list, beside);
}

std::optional<DataRefusal> RowUndo::Redo(DataList& list, RowsBeside& beside) {
  return Move(undone_, done_, list, beside);
}

std::optional<DataRefusal> RowUndo::Move(Steps& from, Steps& to, DataList& list,
                                         RowsBeside& beside) {
  if (from.empty()) return std::nullopt;
  Step& step = from.back();
  try {
    auto forth = std::visit([&list](auto& back) { return Go(back, list); }, step.back);
    if (!forth) return forth.error();
    to.push_back({*std::move(forth), beside});
  } catch (const std::bad_alloc&) {
    return DataRefusal::NoMemory;
  }
  beside = step.beside;
  from.pop_back();
  return std::nullopt;
}

void RowUndo::Drop(Steps& steps, std::size_t first, std::size_t last) {
  const auto begin = steps.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = steps.begin() + static_cast<std::ptrdiff_t>(last);
  std::for_each(begin, end, [](Step& step) { Free(step.back); });
  steps.erase(begin, end);
}

std::size_t RowUndo::HeldRows() const {
  std::size_t rows = 0;
  for (const Steps* steps : {&done_, &undone_}) {
    for (const Step& step : *steps) {
      const DataList* list = ListIn(step.back);
      if (list != nullptr) rows += list->RowCount();
    }
  }
  return rows;
}

}  // namespace kav
