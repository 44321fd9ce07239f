#include "statistics/statistics_model.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "common/number_text.h"
#include "line/shown_number.h"
#include "settings/keys.h"
#include "statistics/pasted_rows.h"
#include "statistics/statistics_menus.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// Results are of a spread, which a single row does not have.
constexpr std::size_t kRowsForResults = 2;

/// A number as lists, fields and memory variables hold it.
std::u16string PlainText(double value, DisplayFormat format) {
  return InsertedNumber(value, format, BaseMode::Decimal);
}

std::u16string IntegerText(std::int32_t value) {
  return Widen(PrintInteger(value));
}

/// Calls `use` with the row that holds `numbers` as texts.
template <class Use>
std::optional<DataRefusal> WithRow(const FieldNumbers& numbers, DisplayFormat format, Use use) {
  const std::string x = Narrow(PlainText(numbers.x, format));
  const std::string y = Narrow(PlainText(numbers.y, format));
  return use(DataRow{{x, y}, numbers.count});
}

/// What a button answers whose row was not taken: another count may help against a total that is
/// out of range.
StatisticsRequest AnswerTo(DataRefusal refusal) {
  if (refusal != DataRefusal::TotalOutOfRange) return TellStop{WhyRowsDoNotFit(refusal)};
  return FieldRefusal{WhyRowsDoNotFit(refusal), DataField::Count};
}

bool IsInt32(std::int64_t value) {
  return value >= std::numeric_limits<std::int32_t>::min() &&
         value <= std::numeric_limits<std::int32_t>::max();
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
  // A row that was deleted took its selection along and left the buttons as they were: that there
  // is none now is no change.
  if (row == selected_ && !row) return;
  selected_ = row;
  enabled_.ofSelection = row.has_value();
}

std::u16string StatisticsModel::TotalText() const {
  return IntegerText(list_.Total());
}

std::u16string_view StatisticsModel::Caption(StatisticsKey key) const {
  for (const StatisticsKeyRow& row : StatisticsKeyRows(Shape())) {
    if (row.key == key) return row.caption;
  }
  return {};
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
  const auto rows = StatisticsKeyRows(Shape());
  return std::any_of(rows.begin(), rows.end(),
                     [key](const StatisticsKeyRow& row) { return row.key == key; });
}

bool StatisticsModel::IsEnabled(StatisticsKey key) const {
  switch (key) {
    case StatisticsKey::Add:
    case StatisticsKey::Ok:
    case StatisticsKey::Cancel:
    case StatisticsKey::MemoryMenu:
      return true;
    case StatisticsKey::Edit:
    case StatisticsKey::Delete:
      return !IsEditing() && enabled_.ofSelection;
    case StatisticsKey::Clear:
    case StatisticsKey::Save:
      return !IsEditing() && enabled_.ofRows;
    case StatisticsKey::Load:
      return !IsEditing();
    default:
      return enabled_.ofResults;
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

std::variant<FieldNumbers, FieldRefusal> StatisticsModel::ReadFields() const {
  return ReadTypedRow(fields_, Shape());
}

StatisticsRequest StatisticsModel::AddRow() {
  const auto read = ReadFields();
  if (const auto* refused = std::get_if<FieldRefusal>(&read)) return *refused;
  const std::size_t before = list_.RowCount();
  const auto refusal = WithRow(std::get<FieldNumbers>(read), format_,
                               [this](const DataRow& row) { return list_.InsertTop(row); });
  if (refusal) return AnswerTo(*refusal);
  EnableGrown(before);
  MarkChanged();
  return FocusField{DataField::X};
}

/// The list has grown at its top from `before` rows, as if by one row after the other.
void StatisticsModel::EnableGrown(std::size_t before) {
  const std::size_t now = list_.RowCount();
  if (selected_) *selected_ += now - before;
  if (before < 1 && now >= 1) enabled_.ofRows = true;
  if (before < kRowsForResults && now >= kRowsForResults) enabled_.ofResults = true;
}

void StatisticsModel::MarkChanged() {
  isModified_ = true;
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
  const auto read = ReadFields();
  if (const auto* refused = std::get_if<FieldRefusal>(&read)) return *refused;
  const auto refusal = WithRow(std::get<FieldNumbers>(read), format_,
                               [this](const DataRow& row) { return list_.Rewrite(*edited_, row); });
  if (refusal) return AnswerTo(*refusal);
  EndEdit();
  MarkChanged();
  return Nothing{};
}

void StatisticsModel::EndEdit() {
  edited_.reset();
  enabled_.ofSelection = true;
  enabled_.ofRows = true;
}

StatisticsRequest StatisticsModel::AskDelete() const {
  if (!selected_) return TellStop{std::u16string(kNoRowIsSelected)};
  // Files may hold negative counts, without which the others can be too many.
  if (!IsInt32(std::int64_t{list_.Total()} - list_.Count(*selected_))) {
    return TellStop{WhyRowsDoNotFit(DataRefusal::TotalOutOfRange)};
  }
  return AskFirst<StatisticsKey>{StatisticsKey::Delete, kDeleteRowQuestion};
}

void StatisticsModel::DeleteRow() {
  if (IsEditing() || !selected_ || list_.Erase(*selected_)) return;
  selected_.reset();
  if (list_.RowCount() == kRowsForResults - 1) enabled_.ofResults = false;
  if (list_.RowCount() == 0) enabled_.ofRows = false;
  MarkChanged();
}

void StatisticsModel::ClearRows() {
  if (!IsEditing()) TakeRows(DataList(Shape()));
}

/// Makes `rows`, which are nowhere but in a file if at all, the list.
void StatisticsModel::TakeRows(DataList rows) {
  list_ = std::move(rows);
  selected_.reset();
  const std::size_t complete = list_.CompleteRowCount();
  enabled_ = {false, complete >= 1, complete >= kRowsForResults};
  MarkChanged();
  isModified_ = false;
}

Menu StatisticsModel::MenuOf(StatisticsKey key) const {
  if (key != StatisticsKey::MemoryMenu) return {};
  return BuildVariablesMenu(CanStoreResult() ? LastResult::CanBeStored
                                             : LastResult::CannotBeStored);
}

bool StatisticsModel::CanStoreResult() const {
  return static_cast<bool>(FormatNumber(lastResult_, format_));
}

StatisticsRequest StatisticsModel::Choose(StatisticsKey key, int id) {
  if (!Offers(MenuOf(key), id)) return Nothing{};
  if (id == variables_item::kRecall) return RecallMemoryVariable{};
  return StoreMemoryVariable{PlainText(lastResult_, format_)};
}

StatisticsRequest StatisticsModel::TakeVariable(std::u16string_view value) {
  std::u16string text = PlainText(ReadLeadingNumber(Narrow(value)), format_);
  switch (focused_) {
    case DataField::X:
      fields_.x = std::move(text);
      break;
    case DataField::Y:
      fields_.y = std::move(text);
      break;
    case DataField::Count:
      fields_.count = std::move(text);
      break;
  }
  return FocusField{focused_};
}

std::optional<std::u16string> StatisticsModel::SaveTo(const std::string& path,
                                                      const WorkProgress& progress) {
  const auto problem = SaveDataFile(path, list_, progress);
  if (!problem) {
    isModified_ = false;
    return std::nullopt;
  }
  if (const auto* failed = std::get_if<WorkFailed>(&*problem)) return failed->text;
  return std::nullopt;
}

std::optional<std::u16string> StatisticsModel::LoadFrom(const std::string& path,
                                                        const WorkProgress& progress) {
  if (IsEditing()) return std::nullopt;
  auto loaded = LoadDataFile(path, Shape(), progress);
  if (auto* rows = std::get_if<DataList>(&loaded)) TakeRows(std::move(*rows));
  if (const auto* failed = std::get_if<WorkFailed>(&loaded)) return failed->text;
  return std::nullopt;
}

std::optional<std::u16string_view> StatisticsModel::QuestionBeforeLeaving() const {
  if (!isModified_ || list_.Total() <= 1) return std::nullopt;
  return kSaveDataQuestion;
}

void StatisticsModel::TakeDisplaySettings() {
  format_ = LoadDisplayFormat(store_);
  if (hasResult_) Show(lastResult_);
}

void StatisticsModel::Show(double value) {
  lastResult_ = value;
  hasResult_ = true;
  resultText_ = ShownNumber(value, format_, BaseMode::Decimal);
}

AngleUnit StatisticsModel::Angle() const {
  return AngleUnitFromSetting(store_.Get(kAngleType));
}

void StatisticsModel::SortBy(std::size_t column) {
  if (IsEditing() || column > static_cast<std::size_t>(Shape())) return;
  list_.Sort(column, nextDirection_);
  nextDirection_ = nextDirection_ == DataList::Direction::Ascending
                       ? DataList::Direction::Descending
                       : DataList::Direction::Ascending;
  ++revision_;
}

std::u16string StatisticsModel::CopyRows(std::span<const std::size_t> rows) const {
  return PrintRows(list_, rows);
}

std::optional<std::u16string> StatisticsModel::PasteRows(std::u16string_view text,
                                                         const WorkProgress& progress) {
  if (IsEditing()) return std::nullopt;
  auto read = ReadPastedRows(text, Shape(), format_, progress);
  if (const auto* failed = std::get_if<WorkFailed>(&read)) return failed->text;
  auto* pasted = std::get_if<PastedRows>(&read);
  if (pasted == nullptr) return std::nullopt;
  const std::size_t before = list_.RowCount();
  if (const auto refusal = list_.InsertTop(pasted->rows)) return WhyRowsDoNotFit(*refusal);
  EnableGrown(before);
  if (list_.RowCount() != before) MarkChanged();
  if (pasted->complaint.empty()) return std::nullopt;
  return std::move(pasted->complaint);
}

}  // namespace kav
