#include "screens/statistics/statistics_screen_view.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

#include "display/comma_reading.h"
#include "display/copied_text.h"
#include "display/own_spelling.h"
#include "line/line_texts.h"
#include "screens/statistics/row_access_view.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/comma_question.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/look.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/offer_strip.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/result_uses.h"
#include "statistics/statistics_menus.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// The highest line, in heights of its letters. Some faces have higher lines, which would leave
/// room for too few rows.
constexpr double kHighestLine = 1.3;

/// Columns leave numbers room for letters that are so much larger.
constexpr double kLargeNumbers = 1.3;

constexpr FileKind kDataFiles{u"TXT(*.txt)", u"txt"};

bool IsByTab(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
}

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Whether a key for which the focused widget has no use types something.
bool IsForField(const QKeyEvent& event) {
  if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
  return !event.text().isEmpty() && !IsEnter(event) && event.key() != Qt::Key_Escape;
}

DataTableView* NewTable(QWidget* parent, const DataList& list,
                        std::span<const DataColumn> columns) {
  OfferRowTablesToScreenReaders();
  return new DataTableView(parent, list, columns);
}

}  // namespace

StatisticsScreen::StatisticsScreen(Frame& frame, ScreenMode mode,
                                   std::unique_ptr<StatisticsModel> model,
                                   std::span<const DataColumn> columns,
                                   std::chrono::milliseconds patience)
    : KeyScreenOf(*model, frame, QSize(kScreenWidth, kScreenHeight)),
      model_(std::move(model)),
      patience_(patience),
      fields_(this, model_->Shape()),
      table_(NewTable(this, model_->List(), columns)),
      result_(new ResultView(this)),
      shown_(model_->Revision()) {
  for (const DataField field : fields_.All()) fields_.Line(field).installEventFilter(this);
  table_->installEventFilter(this);
  SetTableHooks();
  result_->setAccessibleName(ToQt(kResultName));
  uses_ = new ResultUses(result_, [this] { return CopiedResult(); });
  AddKeys(SpotsOf(StatisticsKeyRows(model_->Shape())));
  AddMenus(mode, DisplayPage::Normal, [this] { model_->TakeDisplaySettings(); });
  StatisticsScreen::Refresh();
}

std::optional<std::u16string> StatisticsScreen::CopiedResult() const {
  if (model_->ResultText().empty()) return std::nullopt;
  return PlainDigits(model_->ResultText());
}

void StatisticsScreen::SetTableHooks() {
  DataTableHooks hooks;
  hooks.selectionChanged = [this] { OnSelection(); };
  hooks.headingPressed = [this](std::size_t column) { OnHeading(column); };
  hooks.edit = [this] { OnKey(StatisticsKey::Edit); };
  hooks.remove = [this] { OnKey(StatisticsKey::Delete); };
  hooks.copy = [this] { CopyRows(); };
  hooks.paste = [this] { PasteRows(); };
  hooks.drop = [this](const std::optional<DataCell>& cell, const std::u16string& text) {
    table_->setFocus();
    Paste(text, cell);
  };
  table_->SetHooks(std::move(hooks));
  table_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(table_, &QWidget::customContextMenuRequested, this, &StatisticsScreen::OpenRowsMenu);
}

void StatisticsScreen::OnKey(StatisticsKey key) {
  const bool takesRow = key == StatisticsKey::Add || key == StatisticsKey::Ok;
  if (takesRow && AsksFirst(*this, [this, key] { OnKey(key); })) return;
  TakeLine();
  const StatisticsRequest request = model_->Press(key);
  const bool goesToField =
      std::holds_alternative<FocusField>(request) || std::holds_alternative<FieldRefusal>(request);
  if (!goesToField) QGuiApplication::inputMethod()->hide();
  Follow(request);
}

void StatisticsScreen::OnHeading(std::size_t column) {
  TakeLine();
  model_->SortBy(column);
  Refresh();
}

void StatisticsScreen::OnSelection() {
  model_->Select(table_->FirstSelected());
  RefreshKeys();
  QGuiApplication::inputMethod()->hide();
}

void StatisticsScreen::TakeLine() {
  model_->SetFields(fields_.Typed());
}

void StatisticsScreen::Refresh() {
  fields_.Show(model_->Fields());
  fields_.ShowTotal(model_->IsEditing() ? std::nullopt : std::optional(model_->TotalText()));
  result_->Show(model_->ResultText());
  table_->setEnabled(!model_->IsEditing());
  if (std::exchange(shown_, model_->Revision()) != model_->Revision()) table_->Reload();
  table_->Select(model_->Selected());
  table_->ShowSorted(model_->Sorted());
  RefreshKeys();
  if (focusWidget() != table_) FocusLine(model_->FocusedField());
}

void StatisticsScreen::LayOut(const DialogUnits& units) {
  const StatisticsPlaces& places = StatisticsPlacesOf(model_->Shape());
  Keys().setGeometry(rect());
  Keys().LayOut(units);
  fields_.LayOut(units, places);
  table_->setGeometry(units.Pixels(UnitsOf(places.list)));
  const int text = qRound(fields_.Line(DataField::X).height() * kFieldText *
                          std::min(TextShare(), kLargeNumbers));
  table_->SetTextHeight(PixelsForLine(text, text * kHighestLine));
  result_->LayOut(units.Pixels(UnitsOf(places.result)));
}

void StatisticsScreen::FocusLine(DataField field) {
  model_->SetFocusedField(field);
  fields_.Line(field).setFocus();
}

void StatisticsScreen::CarryOut(const StatisticsRequest& request) {
  std::visit([this](const auto& what) { Do(what); }, request);
}

void StatisticsScreen::Do(const AskFirst<StatisticsKey>& request) {
  // What is lost can be typed again only as long as it is one row.
  const bool isYes = request.key == StatisticsKey::Clear ? AskNoOrYes(this, request.question)
                                                         : AskYesNo(this, request.question);
  if (isYes) OnYes(request.key);
  Refresh();
}

void StatisticsScreen::Do(const FieldRefusal& request) {
  ShowStop(this, request.text);
  Do(FocusField{request.focus});
}

void StatisticsScreen::Do(const FocusField& request) {
  FocusLine(request.field);
  SelectFromEnd(fields_.Line(request.field));
}

void StatisticsScreen::OnYes(StatisticsKey key) {
  if (key == StatisticsKey::Delete) return model_->DeleteRow();
  model_->ClearRows();
}

SaveEnd StatisticsScreen::Save() {
  const auto path = AskFileToSave(this, kDataFiles);
  if (!path) return SaveEnd::Cancelled;
  const auto failure = Run(
      kSavingData, [&](const WorkProgress& progress) { return model_->SaveTo(*path, progress); });
  Tell(failure);
  if (failure) return SaveEnd::Failed;
  // Unless the user gave up while it was written.
  return model_->QuestionBeforeEnd() ? SaveEnd::Cancelled : SaveEnd::Saved;
}

void StatisticsScreen::Do(const AskLoadFile& request) {
  const bool goesOn =
      request.question.empty() ||
      AskToSave(this, LeaveReason::Loading, request.question, [this] { return Save(); });
  if (!goesOn) return;
  const auto path = AskFileToOpen(this, kDataFiles);
  if (!path) return;
  Tell(Run(kLoadingData,
           [&](const WorkProgress& progress) { return model_->LoadFrom(*path, progress); }));
  table_->scrollToTop();
}

void StatisticsScreen::Do(const RecallMemoryVariable&) {
  if (const auto value = RecallVariable()) Follow(model_->TakeVariable(*value));
}

void StatisticsScreen::Tell(const std::optional<std::u16string>& text) {
  Refresh();
  if (text) ShowStop(this, *text);
}

std::optional<std::u16string> StatisticsScreen::Run(std::u16string_view title, const Work& work) {
  WorkProgressView progress(this, title, patience_);
  return work([&progress](double done) { return progress.Update(done); });
}

bool StatisticsScreen::MayLeave(LeaveReason reason) {
  const auto question =
      reason == LeaveReason::Ending ? model_->QuestionBeforeEnd() : model_->QuestionBeforeLeaving();
  if (!question) return true;
  TakeLine();
  return AskToSave(this, reason, *question, [this] { return Save(); });
}

QLineEdit& StatisticsScreen::Edited() const {
  if (result_->hasSelectedText()) return *result_;
  return fields_.Line(model_->FocusedField());
}

void StatisticsScreen::Edit(EditCommand command) {
  if (!EditsRows(command)) return EditLine(Edited(), command);
  TakeLine();
  Tell(command == EditCommand::Undo ? model_->UndoRows() : model_->RedoRows());
}

bool StatisticsScreen::CanEdit(EditCommand command) const {
  return CanEditRows(command) || CanEditLine(Edited(), command);
}

bool StatisticsScreen::CanEditRows(EditCommand command) const {
  if (command == EditCommand::Undo) return model_->CanUndoRows();
  return command == EditCommand::Redo && model_->CanRedoRows();
}

/// Whether the next undo or redo is one of the rows. What was done last is undone first.
bool StatisticsScreen::EditsRows(EditCommand command) const {
  if (!CanEditRows(command)) return false;
  return !CanEditLine(Edited(), command) || !model_->IsTypedSince(fields_.Typed());
}

void StatisticsScreen::OpenRowsMenu(const QPoint& place) {
  QMenu* menu = MakePopUp();
  const auto add = [this, menu](std::u16string_view text, auto action) {
    return menu->addAction(ToQt(text), this, action);
  };
  const auto isFull = model_->List().RowCount() > 0;
  add(kCopyEntry, [this] { CopyRows(); })->setEnabled(table_->FirstSelected().has_value());
  add(kPasteEntry, [this] { PasteRows(); });
  add(kSelectAllEntry, [this] { table_->selectAll(); })->setEnabled(isFull);
  menu->popup(table_->viewport()->mapToGlobal(place));
}

void StatisticsScreen::CopyRows() const {
  const std::vector<std::size_t> rows = table_->SelectedRows();
  if (rows.empty()) return;
  QApplication::clipboard()->setText(QString::fromStdU16String(model_->CopyRows(rows)));
}

void StatisticsScreen::PasteRows() {
  Paste(QApplication::clipboard()->text().toStdU16String(), std::nullopt);
}

/// Asks first what commas mean. Without `cell`, rows are pasted.
void StatisticsScreen::Paste(const std::u16string& pasted, const std::optional<DataCell>& cell) {
  TakeLine();
  std::u16string text = OwnCells(pasted);
  const auto question = QuestionOfCommas(text);
  if (!question) return PasteText(text, cell);
  const auto take = [this, cell, text = std::move(text)](CommaMeaning meaning) {
    PasteText(WithCommas(text, meaning), cell);
  };
  AskForCommas(*table_, CommaQuestionText(*question), *question, take);
  OfferStripOf(*table_).Enter();
}

void StatisticsScreen::PasteText(const std::u16string& text, const std::optional<DataCell>& cell) {
  Tell(Run(kPastingData,
           [&](const WorkProgress& progress) { return model_->PasteAt(cell, text, progress); }));
}

bool StatisticsScreen::eventFilter(QObject* watched, QEvent* event) {
  const std::optional<DataField> field = fields_.FieldOf(watched);
  if (event->type() == QEvent::FocusIn) {
    if (field) model_->SetFocusedField(*field);
    // After the Tab key, typing replaces the text.
    if (field && IsByTab(*static_cast<QFocusEvent*>(event))) SelectFromEnd(fields_.Line(*field));
    result_->deselect();
  }
  if (field && event->type() == QEvent::KeyPress) {
    return OnFieldKey(*static_cast<QKeyEvent*>(event));
  }
  return KeyScreen::eventFilter(watched, event);
}

bool StatisticsScreen::OnFieldKey(const QKeyEvent& event) {
  if (IsEnter(event)) {
    OnKey(model_->IsEditing() ? StatisticsKey::Ok : StatisticsKey::Add);
    return true;
  }
  // Before the field, which knows only its own edits.
  if (const auto command = UndoCommandOf(event)) {
    Edit(*command);
    return true;
  }
  const bool copies = event.matches(QKeySequence::Copy);
  if (copies && !fields_.Line(model_->FocusedField()).hasSelectedText()) return uses_->Copy();
  // A disabled key does not take its Alt shortcut, and the field would insert the letter.
  return event.modifiers() == Qt::AltModifier;
}

void StatisticsScreen::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && model_->IsEditing()) return OnKey(StatisticsKey::Cancel);
  if (const auto command = UndoCommandOf(*event)) return Edit(*command);
  if (MoveFocus(event->key())) return;
  if (fields_.FieldOf(focusWidget()) || !IsForField(*event)) {
    return KeyScreen::keyPressEvent(event);
  }
  LineView& line = fields_.Line(model_->FocusedField());
  line.setFocus();
  QCoreApplication::sendEvent(&line, event);
}

bool StatisticsScreen::MoveFocus(int key) {
  if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
  const std::vector<DataField>& all = fields_.All();
  const auto field = fields_.FieldOf(focusWidget());
  const auto from = field ? std::find(all.begin(), all.end(), *field) : all.end();
  // The fields are above the keys.
  if (from == all.end() && key == Qt::Key_Down) return false;
  if (from == all.begin() && key == Qt::Key_Up) return false;
  if (key == Qt::Key_Up) {
    FocusLine(*(from - 1));
  } else if (from + 1 != all.end()) {
    FocusLine(*(from + 1));
  } else {
    Keys().Enter();
  }
  return true;
}

}  // namespace kav
