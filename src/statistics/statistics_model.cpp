#include "statistics/statistics_model.h"

#include <cmath>
#include <utility>

#include "common/number_text.h"
#include "line/line_texts.h"
#include "line/shown_number.h"
#include "settings/keys.h"
#include "statistics/data_file.h"
#include "statistics/pasted_rows.h"
#include "statistics/statistics_menus.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// Calls `use` with the row that holds `numbers` as texts.
template <class Use>
std::optional<DataRefusal> WithRow(const FieldNumbers& numbers, DisplayFormat format, Use use) {
  const std::string x = Narrow(PlainText(numbers.x, format));
  const std::string y = Narrow(PlainText(numbers.y, format));
  return use(DataRow{{x, y}, numbers.count});
}

/// What a button answers if its row was not taken. If the total is out of range, another count may
/// help.
StatisticsRequest AnswerTo(DataRefusal refusal) {
  if (refusal != DataRefusal::TotalOutOfRange) return TellStop{WhyRowsDoNotFit(refusal)};
  return FieldRefusal{WhyRowsDoNotFit(refusal), DataField::Count};
}

/// What the user is told about a work that ended so: why it failed, if it did.
template <class Outcome>
std::optional<std::u16string> FailureOf(const Outcome& outcome) {
  if (const auto* failed = std::get_if<WorkFailed>(&outcome)) return failed->text;
  return std::nullopt;
}

}  // namespace

StatisticsModel::StatisticsModel(DataShape shape, SettingsStore& store)
    : store_(store), format_(LoadDisplayFormat(store)), list_(shape) {}

void StatisticsModel::SetFields(TypedRow fields) {
  fields_ = std::move(fields);
}

void StatisticsModel::Select(std::optional<std::size_t> row) {
  if (IsEditing()) return;
  if (row && *row >= list_.RowCount()) row.reset();
  // Deleting a row removes the selection but leaves the buttons as they are. They stay so when the
  // table reports that nothing is selected.
  if (row == selected_ && !row) return;
  selected_ = row;
  buttons_.AfterSelecting(row.has_value());
}

std::u16string_view StatisticsModel::Caption(StatisticsKey key) const {
  const StatisticsKeyRow* row = RowOf(key, Shape());
  return row != nullptr ? row->caption : std::u16string_view();
}

bool StatisticsModel::IsVisible(StatisticsKey key) const {
  switch (key) {
    case StatisticsKey::Add:
      return !IsEditing();
    case StatisticsKey::Ok:
    case StatisticsKey::Cancel:
      return IsEditing();
    default:
      break;
  }
  return RowOf(key, Shape()) != nullptr;
}

bool StatisticsModel::IsEnabled(StatisticsKey key) const {
  switch (key) {
    case StatisticsKey::Edit:
    case StatisticsKey::Delete:
    case StatisticsKey::Clear:
    case StatisticsKey::Save:
    case StatisticsKey::Load:
      return !IsEditing() && buttons_.Allow(key);
    default:
      return buttons_.Allow(key);
  }
}

StatisticsRequest StatisticsModel::Press(StatisticsKey key) {
  if (!IsVisible(key) || !IsEnabled(key)) return Nothing{};
  StatisticsRequest request = Perform(key);
  if (const auto* focus = std::get_if<FocusField>(&request)) focused_ = focus->field;
  if (const auto* refused = std::get_if<FieldRefusal>(&request)) focused_ = refused->focus;
  return request;
}

StatisticsRequest StatisticsModel::Perform(StatisticsKey key) {
  switch (key) {
    case StatisticsKey::Add:
      return AddRow();
    case StatisticsKey::Edit:
      return BeginEdit();
    case StatisticsKey::Ok:
      return ApplyEdit();
    case StatisticsKey::Cancel:
      EndEdit();
      return Nothing{};
    case StatisticsKey::Delete:
      return AskDelete();
    case StatisticsKey::Clear:
      return AskFirst<StatisticsKey>{key, kClearRowsQuestion};
    case StatisticsKey::Save:
      return AskSaveFile{};
    case StatisticsKey::Load:
      return AskLoadFile{QuestionBeforeLeaving().value_or(std::u16string_view())};
    case StatisticsKey::MemoryMenu:
      return ShowMenu<StatisticsKey>{key};
    default:
      return PressResult(key);
  }
}

StatisticsRequest StatisticsModel::PressResult(StatisticsKey key) {
  const auto shown = MomentOf(key);
  return shown ? Show(MomentOf(list_, shown->variable, shown->moment)) : Nothing{};
}

StatisticsRequest StatisticsModel::AddRow() {
  auto typed = ReadTypedRow(fields_, Shape(), Angle());
  if (!typed) return std::move(typed).error();
  const std::size_t before = list_.RowCount();
  const RowsBeside beside = Beside();
  const auto refusal =
      WithRow(*typed, format_, [this](const DataRow& row) { return list_.InsertTop(row); });
  if (refusal) return AnswerTo(*refusal);
  KeepUndo(TakeRowOut{0}, beside);
  TakeGrown(before);
  MarkChanged();
  return FocusField{DataField::X};
}

/// Keeps selection and buttons right after rows were inserted above the `before` rows of the list.
void StatisticsModel::TakeGrown(std::size_t before) {
  if (selected_) *selected_ += list_.RowCount() - before;
  buttons_.AfterInserting(before, list_.RowCount());
}

void StatisticsModel::MarkChanged() {
  isModified_ = true;
  sorted_.reset();
  ++revision_;
  Forget();
}

StatisticsRequest StatisticsModel::BeginEdit() {
  if (!selected_) return Nothing{};
  edited_ = selected_;
  fields_.x = Widen(list_.ValueText(*edited_, 0));
  if (Shape() == DataShape::TwoVariables) fields_.y = Widen(list_.ValueText(*edited_, 1));
  fields_.count = IntegerText(list_.Count(*edited_));
  return FocusField{DataField::X};
}

StatisticsRequest StatisticsModel::ApplyEdit() {
  auto typed = ReadTypedRow(fields_, Shape(), Angle());
  if (!typed) return std::move(typed).error();
  RewriteRow back{*edited_, HoldRow(list_, *edited_)};
  const auto refusal =
      WithRow(*typed, format_, [this](const DataRow& row) { return list_.Rewrite(*edited_, row); });
  if (refusal) return AnswerTo(*refusal);
  KeepUndo(std::move(back), Beside());
  EndEdit();
  MarkChanged();
  return Nothing{};
}

void StatisticsModel::EndEdit() {
  edited_.reset();
  buttons_.AfterEditing();
}

StatisticsRequest StatisticsModel::AskDelete() const {
  if (!selected_) return TellStop{std::u16string(kNoRowIsSelected)};
  if (const auto refusal = list_.CheckErase(*selected_)) return TellStop{WhyRowsDoNotFit(*refusal)};
  return AskFirst<StatisticsKey>{StatisticsKey::Delete, kDeleteRowQuestion};
}

void StatisticsModel::DeleteRow() {
  if (IsEditing() || !selected_) return;
  PutRowBack back{*selected_, HoldRow(list_, *selected_)};
  if (list_.Erase(*selected_)) return;
  KeepUndo(std::move(back), Beside());
  selected_.reset();
  buttons_.AfterErasing(list_.RowCount());
  MarkChanged();
}

void StatisticsModel::ClearRows() {
  if (!IsEditing()) TakeRows(DataList(Shape()));
}

/// Makes `rows` the list, which then needs no saving.
void StatisticsModel::TakeRows(DataList rows) {
  const bool isChange = list_.RowCount() > 0 || rows.RowCount() > 0;
  std::swap(list_, rows);
  if (isChange) KeepUndo(ReplaceRows{std::move(rows)}, Beside());
  selected_.reset();
  buttons_.AfterLoading(list_.CompleteRowCount());
  MarkChanged();
  isModified_ = false;
}

Menu StatisticsModel::MenuOf(StatisticsKey key) const {
  if (key != StatisticsKey::MemoryMenu) return {};
  return BuildVariablesMenu(FormatNumber(lastResult_, format_) ? LastResult::CanBeStored
                                                               : LastResult::CannotBeStored);
}

StatisticsRequest StatisticsModel::Choose(StatisticsKey key, int id) {
  if (!Offers(MenuOf(key), id)) return Nothing{};
  if (id == variables_item::kRecall) return RecallMemoryVariable{};
  return StoreMemoryVariable{PlainText(lastResult_, format_)};
}

StatisticsRequest StatisticsModel::TakeVariable(std::u16string_view value) {
  const double number = ReadLeadingNumber(Narrow(value));
  if (!std::isfinite(number)) return TellStop{std::u16string(kRecalledIsTooLarge)};
  fields_.*TextOf(focused_) = PlainText(number, format_);
  return FocusField{focused_};
}

std::optional<std::u16string> StatisticsModel::SaveTo(const std::string& path,
                                                      const WorkProgress& progress) {
  const auto outcome = SaveDataFile(path, list_, progress);
  if (std::holds_alternative<DataSaved>(outcome)) {
    isModified_ = false;
    undo_.AfterSaving();
  }
  return FailureOf(outcome);
}

std::optional<std::u16string> StatisticsModel::LoadFrom(const std::string& path,
                                                        const WorkProgress& progress) {
  if (IsEditing()) return std::nullopt;
  undo_.BeforeLoading();
  auto loaded = LoadDataFile(path, Shape(), progress);
  if (auto* rows = std::get_if<DataList>(&loaded)) {
    TakeRows(std::move(*rows));
  } else {
    GiveFreedMemoryBack();
  }
  return FailureOf(loaded);
}

std::optional<std::u16string_view> StatisticsModel::QuestionBeforeLeaving() const {
  if (!isModified_ || list_.Total() <= 1) return std::nullopt;
  return kSaveDataQuestion;
}

std::optional<std::u16string_view> StatisticsModel::QuestionBeforeEnd() const {
  if (!isModified_ || list_.RowCount() == 0) return std::nullopt;
  return kSaveDataQuestion;
}

void StatisticsModel::TakeDisplaySettings() {
  format_ = LoadDisplayFormat(store_);
  if (hasResult_) Show(lastResult_);
}

StatisticsRequest StatisticsModel::Show(double value) {
  lastResult_ = value;
  hasResult_ = true;
  resultText_ = ShownNumber(value, format_, BaseMode::Decimal);
  return Nothing{};
}

AngleUnit StatisticsModel::Angle() const {
  return AngleUnitFromSetting(store_.Get(kAngleType));
}

void StatisticsModel::SortBy(std::size_t column) {
  if (IsEditing() || column > VariablesOf(Shape())) return;
  list_.Sort(column, nextDirection_);
  sorted_ = {column, nextDirection_};
  nextDirection_ = nextDirection_ == DataList::Direction::Ascending
                       ? DataList::Direction::Descending
                       : DataList::Direction::Ascending;
  undo_.AfterSorting();
  ++revision_;
}

std::u16string StatisticsModel::CopyRows(std::span<const std::size_t> rows) const {
  return PrintRows(list_, rows);
}

std::optional<std::u16string> StatisticsModel::PasteRows(std::u16string_view text,
                                                         const WorkProgress& progress) {
  if (IsEditing()) return std::nullopt;
  auto read = ReadPastedRows(text, Shape(), format_, progress);
  auto* pasted = std::get_if<PastedRows>(&read);
  if (pasted == nullptr) return FailureOf(read);
  const std::size_t before = list_.RowCount();
  const RowsBeside beside = Beside();
  if (const auto refusal = list_.InsertTop(pasted->rows)) return WhyRowsDoNotFit(*refusal);
  TakeGrown(before);
  if (list_.RowCount() != before) {
    KeepUndo(TakeTopOut{list_.RowCount() - before}, beside);
    MarkChanged();
  }
  DropRows(pasted->rows);
  if (pasted->complaint.empty()) return std::nullopt;
  return std::move(pasted->complaint);
}

std::optional<std::u16string> StatisticsModel::PasteAt(const std::optional<DataCell>& cell,
                                                       std::u16string_view text,
                                                       const WorkProgress& progress) {
  const auto number = cell ? OneCellOf(text) : std::nullopt;
  if (!number) return PasteRows(text, progress);
  const bool isThere = cell->row < list_.RowCount() && cell->column <= VariablesOf(Shape());
  if (!isThere || IsEditing()) return std::nullopt;
  RewriteRow back{cell->row, HoldRow(list_, cell->row)};
  if (auto refusal = OverwriteCell(list_, *cell, *number, format_, Angle())) return refusal;
  KeepUndo(std::move(back), Beside());
  selected_ = cell->row;
  EndEdit();
  MarkChanged();
  return std::nullopt;
}

}  // namespace kav
