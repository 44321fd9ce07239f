// A statistics screen without its widgets: fields, list, editing, files, results.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "line/screen_menus.h"
#include "settings/settings_store.h"
#include "statistics/data_fields.h"
#include "statistics/data_list.h"
#include "statistics/row_buttons.h"
#include "statistics/row_undo.h"
#include "statistics/statistics_keypad.h"
#include "statistics/statistics_request.h"
#include "statistics/statistics_texts.h"
#include "statistics/work_progress.h"

namespace kav {

/// The whole state of a screen. The class itself is that of one-variable statistics. Before each
/// command the screen hands over the texts of its fields (SetFields) and the selected row (Select).
class StatisticsModel {
 public:
  /// `store` must outlive the model.
  StatisticsModel(DataShape shape, SettingsStore& store);
  StatisticsModel(const StatisticsModel&) = delete;
  StatisticsModel& operator=(const StatisticsModel&) = delete;
  virtual ~StatisticsModel() { DropRows(list_); }

  const DataList& List() const { return list_; }
  DataShape Shape() const { return list_.Shape(); }
  /// Grows with each change of the list.
  unsigned Revision() const { return revision_; }

  const TypedRow& Fields() const { return fields_; }
  void SetFields(TypedRow fields);
  /// The field that had the focus last. A recalled value goes there.
  DataField FocusedField() const { return focused_; }
  void SetFocusedField(DataField field) { focused_ = field; }

  /// The selected row, the first of several; nullopt for none.
  void Select(std::optional<std::size_t> row);
  std::optional<std::size_t> Selected() const { return selected_; }

  const std::u16string& ResultText() const { return resultText_; }
  std::u16string TotalText() const { return IntegerText(list_.Total()); }
  bool IsEditing() const { return edited_.has_value(); }

  // The buttons.
  virtual std::u16string_view Caption(StatisticsKey key) const;
  virtual bool IsVisible(StatisticsKey key) const;
  virtual bool IsEnabled(StatisticsKey key) const;
  /// Presses a button. A disabled or hidden one does nothing.
  StatisticsRequest Press(StatisticsKey key);

  // What the user answered to questions, menus and dialogs.
  void DeleteRow();
  void ClearRows();
  /// The menu that `key` opens now; empty for a key without one.
  virtual Menu MenuOf(StatisticsKey key) const;
  /// An id that the menu of `key` does not offer does nothing.
  virtual StatisticsRequest Choose(StatisticsKey key, int id);
  /// Writes a recalled value into the field that had the focus, which gets it.
  StatisticsRequest TakeVariable(std::u16string_view value);
  // Both answer what the user is told: why the work failed, or nothing.
  std::optional<std::u16string> SaveTo(const std::string& path, const WorkProgress& progress);
  std::optional<std::u16string> LoadFrom(const std::string& path, const WorkProgress& progress);
  /// The question to ask before another screen takes the place of this one, if any. Yes means
  /// AskSaveFile.
  std::optional<std::u16string_view> QuestionBeforeLeaving() const;
  /// The same before the program ends: asks for any row that is in no file.
  std::optional<std::u16string_view> QuestionBeforeEnd() const;
  void TakeDisplaySettings();

  // What was done to the rows, other than sorting. While a row is edited, nothing is undone.
  bool CanUndoRows() const { return !IsEditing() && undo_.CanUndo(); }
  bool CanRedoRows() const { return !IsEditing() && undo_.CanRedo(); }
  /// Both answer what the user is told, if it cannot be done.
  std::optional<std::u16string> UndoRows();
  std::optional<std::u16string> RedoRows();
  /// Whether `typed` is not what was in the fields at the last change of the rows: then it is the
  /// typing that is undone first.
  bool IsTypedSince(const TypedRow& typed) const { return typed != fieldsAtChange_; }

  /// A click on the heading of a column: sorts by it, upwards and downwards in turn. Columns are
  /// numbered as in DataList::Sort.
  void SortBy(std::size_t column);
  /// What the rows are sorted by, as long as they are.
  std::optional<DataSorting> Sorted() const { return sorted_; }
  /// The rows at the indices `rows` as text for spreadsheets.
  std::u16string CopyRows(std::span<const std::size_t> rows) const;
  /// Inserts the rows of `text` at the top of the list. Answers what the user is told, if anything.
  std::optional<std::u16string> PasteRows(std::u16string_view text, const WorkProgress& progress);
  /// Takes a text that is dropped on a cell, or beside the rows. One number takes the place of what
  /// is in the cell, as if it were typed after "Edit"; all else is pasted. Answers what the user is
  /// told, if anything.
  std::optional<std::u16string> PasteAt(const std::optional<DataCell>& cell,
                                        std::u16string_view text, const WorkProgress& progress);

 protected:
  /// Presses a result button, which is enabled. Here it is one that shows a moment.
  virtual StatisticsRequest PressResult(StatisticsKey key);
  /// Called after each change of the rows, other than sorting.
  virtual void Forget() {}
  /// Shows `value` and keeps it as the last result. Answers Nothing.
  StatisticsRequest Show(double value);
  DisplayFormat Format() const { return format_; }
  AngleUnit Angle() const;

 private:
  StatisticsRequest Perform(StatisticsKey key);
  StatisticsRequest AddRow();
  StatisticsRequest BeginEdit();
  StatisticsRequest ApplyEdit();
  void EndEdit();
  StatisticsRequest AskDelete() const;
  void TakeRows(DataList rows);
  void TakeGrown(std::size_t before);
  void MarkChanged();
  RowsBeside Beside() const { return {isModified_, selected_, sorted_, buttons_}; }
  void KeepUndo(WayBack back, const RowsBeside& before);
  std::optional<std::u16string> TakeUndone(const std::optional<DataRefusal>& refusal,
                                           const RowsBeside& beside);

  SettingsStore& store_;
  DisplayFormat format_;
  DataList list_;
  TypedRow fields_;
  DataField focused_ = DataField::X;
  std::optional<std::size_t> selected_;
  std::optional<std::size_t> edited_;
  RowButtons buttons_;
  std::u16string resultText_ = u"0";
  double lastResult_ = 0;
  bool hasResult_ = false;  ///< else `resultText_` is what a new screen shows
  bool isModified_ = false;
  std::optional<DataSorting> sorted_;
  DataList::Direction nextDirection_ = DataList::Direction::Ascending;
  unsigned revision_ = 0;
  RowUndo undo_;
  TypedRow fieldsAtChange_;
};

}  // namespace kav
