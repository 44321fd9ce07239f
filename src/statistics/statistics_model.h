// A statistics screen without its pixels: fields, list, editing, files, results.
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
#include "statistics/data_file.h"
#include "statistics/data_list.h"
#include "statistics/statistics_keypad.h"
#include "statistics/statistics_request.h"

namespace kav {

/// Holds the whole state of a screen. What the fields hold is handed in before each command by
/// SetFields, and the selected rows by Select. The store must outlive it.
class StatisticsModel {
 public:
  StatisticsModel(DataShape shape, SettingsStore& store);
  StatisticsModel(const StatisticsModel&) = delete;
  StatisticsModel& operator=(const StatisticsModel&) = delete;
  virtual ~StatisticsModel() = default;

  const DataList& List() const { return list_; }
  DataShape Shape() const { return list_.Shape(); }
  /// Counts the changes of the list, for whoever shows it.
  unsigned Revision() const { return revision_; }

  const TypedRow& Fields() const { return fields_; }
  void SetFields(TypedRow fields);
  /// The field that had the focus last: what is recalled goes there.
  DataField FocusedField() const { return focused_; }
  void SetFocusedField(DataField field) { focused_ = field; }

  /// The selected row, the first if there are several; nullopt for none.
  void Select(std::optional<std::size_t> row);
  std::optional<std::size_t> Selected() const { return selected_; }

  const std::u16string& ResultText() const { return resultText_; }
  std::u16string TotalText() const;
  bool IsEditing() const { return edited_.has_value(); }
  bool IsModified() const { return isModified_; }

  // The buttons.
  virtual std::u16string_view Caption(StatisticsKey key) const;
  virtual bool IsVisible(StatisticsKey key) const;
  virtual bool IsEnabled(StatisticsKey key) const;
  /// A disabled or hidden one does nothing.
  StatisticsRequest Press(StatisticsKey key);

  // What questions, menus and dialogs bring back.
  void DeleteRow();
  void ClearRows();
  /// The menu that `key` opens now; empty for a key without one.
  virtual Menu MenuOf(StatisticsKey key) const;
  /// An id that the menu of `key` does not offer does nothing.
  virtual StatisticsRequest Choose(StatisticsKey key, int id);
  /// Writes a recalled value into the field that had the focus, which gets it.
  StatisticsRequest TakeVariable(std::u16string_view value);
  /// Both: what is to be told; nullopt where nothing is.
  std::optional<std::u16string> SaveTo(const std::string& path, const WorkProgress& progress);
  std::optional<std::u16string> LoadFrom(const std::string& path, const WorkProgress& progress);
  /// Before another screen takes its place: to be asked, on Yes as AskSaveFile.
  std::optional<std::u16string_view> QuestionBeforeLeaving() const;
  void TakeDisplaySettings();

  // The list.
  /// A click on the heading of a column.
  void SortBy(std::size_t column);
  /// The rows at `rows` as lines for spreadsheets.
  std::u16string CopyRows(std::span<const std::size_t> rows) const;
  /// Puts the rows of `text` on top of the list; what is to be told.
  std::optional<std::u16string> PasteRows(std::u16string_view text, const WorkProgress& progress);

 protected:
  /// A result button that is enabled was pressed.
  virtual StatisticsRequest PressResult(StatisticsKey key) = 0;
  /// The rows have changed, or the model has.
  virtual void Forget() {}
  /// Shows `value` and keeps it as the last result.
  void Show(double value);
  /// The numbers in the fields, or why they are none.
  std::variant<FieldNumbers, FieldRefusal> ReadFields() const;
  DisplayFormat Format() const { return format_; }
  AngleUnit Angle() const;

 private:
  /// The buttons that are enabled and disabled together, step by step: what happens to the list
  /// says which, not what it holds.
  struct EnabledButtons {
    bool ofSelection = false;  ///< "Edit" and "Delete"
    bool ofRows = false;       ///< "Clear" and "Save"
    bool ofResults = false;
  };

  StatisticsRequest Perform(StatisticsKey key);
  StatisticsRequest AddRow();
  StatisticsRequest BeginEdit();
  StatisticsRequest ApplyEdit();
  void EndEdit();
  StatisticsRequest AskDelete() const;
  void TakeRows(DataList rows);
  void EnableGrown(std::size_t before);
  void MarkChanged();
  bool CanStoreResult() const;

  SettingsStore& store_;
  DisplayFormat format_;
  DataList list_;
  TypedRow fields_;
  DataField focused_ = DataField::X;
  std::optional<std::size_t> selected_;
  std::optional<std::size_t> edited_;
  EnabledButtons enabled_;
  std::u16string resultText_ = u"0";
  double lastResult_ = 0;
  bool hasResult_ = false;  ///< else the text is what a fresh screen shows
  bool isModified_ = false;
  DataList::Direction nextDirection_ = DataList::Direction::Ascending;
  unsigned revision_ = 0;
};

}  // namespace kav
