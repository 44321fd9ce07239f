// What the two statistics screens have in common: the widgets of a StatisticsModel.
#pragma once

#include <QLineEdit>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "screens/statistics/data_fields_view.h"
#include "screens/statistics/data_table_view.h"
#include "screens/statistics/work_progress_view.h"
#include "screens/widgets/key_screen.h"
#include "screens/widgets/line_view.h"
#include "statistics/statistics_model.h"

namespace kav {

class ResultUses;

/// Enter in a field presses "Add". While a row is edited, Enter presses "Ok" and Esc "Cancel".
/// Typing goes to the field that had the focus last, unless the focused widget has a use for the
/// key. The Edit menu works on that field, or on the selection in the result if there is one; the
/// rows of the list have a menu of their own.
class StatisticsScreen : public KeyScreenOf<StatisticsKey, StatisticsModel> {
 public:
  /// Work on the list that takes longer than `patience` shows its progress.
  StatisticsScreen(Frame& frame, ScreenMode mode, std::unique_ptr<StatisticsModel> model,
                   std::span<const DataColumn> columns, std::chrono::milliseconds patience);

  bool MayLeave(LeaveReason reason) override;

 protected:
  using KeyScreenOf::Do;
  /// Only one kind of screen has a graph.
  virtual void Do(const OpenGraph&) {}

  void Refresh() override;

 private:
  std::optional<std::u16string> CopiedResult() const;
  void SetTableHooks();
  void OnKey(StatisticsKey key) override;
  void OnHeading(std::size_t column);
  void OnSelection();
  void TakeLine() override;
  GuidePage Page() const override {
    return model_->Shape() == DataShape::OneVariable ? GuidePage::OneVariable
                                                     : GuidePage::TwoVariable;
  }
  void LayOut(const DialogUnits& units) override;
  void FocusLine(DataField field);

  // What a key asks for.
  void CarryOut(const StatisticsRequest& request) override;
  void OnYes(StatisticsKey key) override;
  void Do(const AskFirst<StatisticsKey>& request);
  void Do(const FieldRefusal& request);
  void Do(const FocusField& request);
  void Do(const AskSaveFile&) { Save(); }
  void Do(const AskLoadFile& request);
  void Do(const RecallMemoryVariable& request);
  using Work = std::function<std::optional<std::u16string>(const WorkProgress&)>;
  SaveEnd Save();
  void Tell(const std::optional<std::u16string>& text);
  std::optional<std::u16string> Run(std::u16string_view title, const Work& work);

  // The Edit menu, the menu of the rows and the keyboard.
  QLineEdit& Edited() const;
  void Edit(EditCommand command) override;
  bool CanEdit(EditCommand command) const override;
  bool CanEditRows(EditCommand command) const;
  bool EditsRows(EditCommand command) const;
  void OpenRowsMenu(const QPoint& place);
  void CopyRows() const;
  void PasteRows();
  void Paste(const std::u16string& pasted, const std::optional<DataCell>& cell);
  void PasteText(const std::u16string& text, const std::optional<DataCell>& cell);
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool OnFieldKey(const QKeyEvent& event);
  void keyPressEvent(QKeyEvent* event) override;
  bool MoveFocus(int key);

  const std::unique_ptr<StatisticsModel> model_;
  const std::chrono::milliseconds patience_;
  DataFieldsView fields_;
  DataTableView* table_;
  ResultView* result_;
  ResultUses* uses_ = nullptr;
  unsigned shown_;  ///< the revision of the list that the table shows
};

}  // namespace kav
