#include "screens/matrix/matrix_grid_view.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "common/number_text.h"
#include "display/own_spelling.h"
#include "matrix/cell_table_text.h"
#include "matrix/matrix_texts.h"
#include "screens/grid/grid_access_view.h"
#include "screens/widgets/comma_question.h"
#include "screens/widgets/look.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/offer_strip.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/result_uses.h"

namespace kav {
namespace {

/// The height of the grid's letters at scale 1.
constexpr double kCellText = 11.5;

CGridCtrl* NewGrid(QWidget* parent) {
  OfferGridsToScreenReaders();
  return new CGridCtrl(parent);
}

/// What a column needs to show its texts at scale 1, counted from 0: as in a larger scale, because
/// letters have whole pixels.
int NeededWidth(const MatrixValue& matrix, int column) {
  constexpr int kFine = 10;
  constexpr std::size_t kLongestMeasured = 2000;
  const QFontMetricsF metrics(ScreenFont(qRound(kFine * kCellText)));
  double widest = 0;
  for (int row = 0; row < matrix.rows; ++row) {
    const std::u16string text = Shortened(matrix.At(row, column), kLongestMeasured);
    widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdU16String(text)));
  }
  constexpr double kAround = 0.6;  // of the letters' height: margins and line
  return static_cast<int>(std::ceil(widest / kFine + kAround * kCellText));
}

}  // namespace

MatrixGridView::MatrixGridView(QWidget* parent, MatrixModel& model, MatrixGridHooks hooks)
    : model_(model), hooks_(std::move(hooks)), grid_(NewGrid(parent)) {
  grid_->setStyle(ScreenStyle());
  grid_->setAccessibleName(ToQt(kMatrixGridName));
  SetHooks();
  grid_->SetSource([this](GridCell cell) { return ContentOf(cell); });
}

MatrixGridView::~MatrixGridView() {
  // The grid outlives the model: an edit that only its end would finish finds nobody to tell.
  grid_->SetHooks({});
  grid_->SetSource({});
}

void MatrixGridView::SetHooks() {
  GridHooks hooks;
  hooks.beginEdit = [this](int row, int column) {
    hooks_.beginEdit(row - kHeaders, column - kHeaders);
  };
  hooks.endEdit = [this](int row, int column, const QString& text) {
    TypeCell({row, column}, text);
  };
  hooks.pasteBlock = [this] { PasteCells(QApplication::clipboard()->text()); };
  hooks.drop = [this](GridCell cell, const QString& text) { DropOn(cell, text); };
  hooks.columnResized = [this](int column, int width) { TakeWidth(column, width); };
  grid_->SetHooks(std::move(hooks));
}

void MatrixGridView::TypeCell(GridCell cell, const QString& text) {
  const std::u16string own = OwnSpelling(text.toStdU16String());
  auto why = model_.TypeCell(cell.row - kHeaders, cell.column - kHeaders, own);
  hooks_.changed();
  if (!why) return;
  refused_ = RefusedEdit{cell, ToQt(own), *std::move(why)};
  // Not before the key or the click that ended the edit has done its work.
  QTimer::singleShot(0, grid_, [this] { TellRefusedEdit(); });
}

void MatrixGridView::TellRefusedEdit() {
  if (!refused_) return;
  const RefusedEdit refused = *std::exchange(refused_, std::nullopt);
  const std::u16string text = refused.text.toStdU16String();
  const auto question = QuestionOfLine(text);
  if (question && text != declined_) {
    const auto take = [this, cell = refused.cell, text, question](CommaMeaning meaning) {
      TypeCell(cell, ToQt(LineWithCommas(text, *question, meaning)));
    };
    const auto giveUp = [this, refused] {
      declined_ = refused.text.toStdU16String();
      grid_->EditCell(refused.cell, refused.text);
    };
    AskForCommas(*grid_, LineQuestionText(*question), *question, take, giveUp);
    return OfferStripOf(*grid_).Enter();
  }
  declined_.clear();
  ShowStop(grid_->parentWidget(), refused.why);
  grid_->EditCell(refused.cell, refused.text);
}

void MatrixGridView::Show() {
  const MatrixValue& matrix = model_.ShownMatrix();
  const GridModel& shown = grid_->Model();
  if (inGrid_ != model_.Shown() || shown.RowCount() != matrix.rows + kHeaders ||
      shown.ColumnCount() != matrix.columns + kHeaders) {
    Rebuild();
    WriteWidths();
    Scale();
  } else if (places_.showsTexts) {
    WriteWidths();
    Scale();
  }
  WriteWidths();
  grid_->viewport()->update();
}

void MatrixGridView::Rebuild() {
  const MatrixValue& matrix = model_.ShownMatrix();
  inGrid_.reset();
  grid_->ResetSelectedRange();
  // If there is no memory for it, the old grid stays, and the next refresh tries again.
  if (!grid_->SetFixedRowCount(0) || !grid_->SetFixedColumnCount(0) ||
      !grid_->SetRowCount(matrix.rows + kHeaders) ||
      !grid_->SetColumnCount(matrix.columns + kHeaders) || !grid_->SetFixedRowCount(kHeaders) ||
      !grid_->SetFixedColumnCount(kHeaders)) {
    return;
  }
  const auto header = [this](int row, int column, int number) {
    const std::u16string text = QString::number(number).toStdU16String();
    grid_->SetItem(
        {row, column, GridItem::kText | GridItem::kFormat, text, {GridAlignment::Centre, false}});
  };
  for (int row = 0; row < matrix.rows; ++row) header(row + kHeaders, 0, row + 1);
  for (int column = 0; column < matrix.columns; ++column) header(0, column + kHeaders, column + 1);
  inGrid_ = model_.Shown();
}

GridContent MatrixGridView::ContentOf(GridCell cell) const {
  const int row = cell.row - kHeaders;
  const int column = cell.column - kHeaders;
  const GridAlignment alignment =
      model_.Alignment() == CellAlignment::Left ? GridAlignment::Left : GridAlignment::Right;
  return {model_.ShownMatrix().At(row, column), {alignment, model_.IsMarked(row, column)}};
}

int MatrixGridView::ShownWidth(int column) const {
  const auto at = static_cast<std::size_t>(column);
  return model_.Widths()[at] + grown_[at];
}

void MatrixGridView::WriteWidths() {
  for (int column = 0; column < grid_->Model().ColumnCount(); ++column) {
    grid_->SetColumnWidth(column, ShownWidth(column));
  }
}

GridNeeds MatrixGridView::Needs() const {
  const int columns = model_.ShownMatrix().columns;
  GridNeeds needs{kHeaderColumnWidth, kHeaderColumnWidth + columns * model_.NewColumnWidth()};
  for (int column = 0; column < columns; ++column) {
    needs.texts += std::max(model_.Widths()[static_cast<std::size_t>(column) + kHeaders],
                            NeededWidth(model_.ShownMatrix(), column));
  }
  return needs;
}

bool MatrixGridView::NeedsOtherPlace(QSize window) const {
  if (!places_.showsTexts || !IsWideForMatrices(window)) return false;
  return PlacesIn(window, places_.body, Needs()).grid != places_.grid;
}

void MatrixGridView::TakeWidths() {
  ColumnWidths widths = model_.Widths();
  for (int column = 0; column < grid_->Model().ColumnCount(); ++column) {
    // A column that is shown wider than it is has not got that width from the user.
    if (grid_->GetColumnWidth(column) == ShownWidth(column)) continue;
    widths[static_cast<std::size_t>(column)] = grid_->GetColumnWidth(column);
    grown_[static_cast<std::size_t>(column)] = 0;
  }
  model_.SetColumnWidths(widths);
}

/// The user gave a column a width.
void MatrixGridView::TakeWidth(int column, int width) {
  TakeWidths();
  const bool isFitted = width == grid_->FittingWidth(column);
  Fitted()[static_cast<std::size_t>(column)] = isFitted ? width : 0;
}

void MatrixGridView::LayOut(const MatrixPlaces& places) {
  places_ = places;
  grid_->setGeometry(places_.grid);
  Scale();
}

/// Columns that were fitted to their texts are so at any scale.
void MatrixGridView::Scale() {
  const MatrixValue& matrix = model_.ShownMatrix();
  const double scale = FittingScale(places_, matrix.rows, matrix.columns, model_.NewColumnWidth());
  if (places_.showsTexts) {
    ScaleToTexts();
  } else {
    grown_ = {};
    WriteWidths();
    if (scale != grid_->Scale()) grid_->SetScale(scale, qRound(kCellText * scale));
  }
  for (int column = 0; column < grid_->Model().ColumnCount(); ++column) {
    const int width = model_.Widths()[static_cast<std::size_t>(column)];
    int& kept = Fitted()[static_cast<std::size_t>(column)];
    // Another width was given to it since.
    if (kept != width) kept = 0;
    if (kept != 0) grid_->SetColumnWidth(column, kept = grid_->FittingWidth(column));
  }
  TakeWidths();
}

/// Where there is room beside an upright screen, columns of the usual width are as wide as their
/// texts, and letters as small as it takes to see all of them.
void MatrixGridView::ScaleToTexts() {
  const MatrixValue& matrix = model_.ShownMatrix();
  const double fitting = ScaleOfTexts(places_, matrix.rows, std::max(Needs().texts, Needs().usual));
  // Letters have whole pixels, and so need a little more or less than their share.
  constexpr int kMostTries = 6;
  constexpr double kLess = 0.98;
  double scale = fitting;
  for (int i = 0; i < kMostTries; ++i) {
    if (scale != grid_->Scale()) grid_->SetScale(scale, qRound(kCellText * scale));
    const bool fits = WidthOfTexts() * scale <= places_.grid.width();
    if (fits || Needs().texts * fitting > places_.grid.width() + 1) break;
    scale *= kLess;
  }
  GrowColumns();
}

/// With the grid's own letters.
int MatrixGridView::WidthOfTexts() const {
  int width = kHeaderColumnWidth;
  for (int column = kHeaders; column < grid_->Model().ColumnCount(); ++column) {
    const int own = model_.Widths()[static_cast<std::size_t>(column)];
    width += std::max(own, grid_->FittingWidth(column));
  }
  return width;
}

void MatrixGridView::GrowColumns() {
  const int columns = model_.ShownMatrix().columns;
  ColumnWidths wanted{};
  int all = kHeaderColumnWidth;
  int more = 0;
  for (int column = kHeaders; column < columns + kHeaders; ++column) {
    const auto at = static_cast<std::size_t>(column);
    const int width = model_.Widths()[at];
    all += width;
    if (width == model_.NewColumnWidth())
      wanted[at] = std::max(grid_->FittingWidth(column) - width, 0);
    more += wanted[at];
  }
  const int room = std::max(static_cast<int>(places_.grid.width() / grid_->Scale()) - all, 0);
  for (int& column : wanted) {
    if (more > room) column = column * room / more;
  }
  grown_ = wanted;
  WriteWidths();
}

void MatrixGridView::FitColumns() {
  grown_ = {};
  grid_->AutoSizeColumns();
  TakeWidths();
  Fitted() = model_.Widths();
}

bool MatrixGridView::ShowHint(const QHelpEvent& event) {
  const GridCell cell = grid_->CellAt(event.pos());
  if (cell.IsNone() || grid_->Model().IsFixed(cell)) return false;
  const std::u16string hint = model_.CellHint(cell.row - kHeaders, cell.column - kHeaders);
  QToolTip::showText(event.globalPos(), QString::fromStdU16String(hint), grid_,
                     grid_->CellArea(cell));
  return true;
}

void MatrixGridView::Edit(EditCommand command) {
  switch (command) {
    case EditCommand::Cut:
      return CutCells();
    case EditCommand::Copy:
      return CopyCells();
    case EditCommand::Paste:
      return PasteCells(QApplication::clipboard()->text());
    case EditCommand::SelectAll:
      return SelectAll();
    default:
      return;
  }
}

bool MatrixGridView::CanEdit(EditCommand command) const {
  const bool isOfCells = command == EditCommand::Cut || command == EditCommand::Copy;
  return !isOfCells || SelectedCells().has_value();
}

std::optional<CellRange> MatrixGridView::SelectedCells() const {
  const GridRange range = grid_->Selection();
  if (range.IsNone()) return std::nullopt;
  return CellRange{range.top - kHeaders, range.left - kHeaders, range.bottom - kHeaders,
                   range.right - kHeaders};
}

void MatrixGridView::CopyCells() const {
  if (const auto cells = SelectedCells()) CopyText(model_.CopyCells(*cells));
}

void MatrixGridView::CutCells() {
  if (const auto cells = SelectedCells()) CopyText(model_.CutCells(*cells));
}

void MatrixGridView::PasteCells(const QString& pasted) {
  const std::u16string text = OwnCells(pasted.toStdU16String());
  const auto question = QuestionOfCells(text);
  if (!question) return PasteText(text);
  AskForCommas(*grid_, CommaQuestionText(*question), *question,
               [this, text](CommaMeaning meaning) { PasteText(CellsWithCommas(text, meaning)); });
  OfferStripOf(*grid_).Enter();
}

void MatrixGridView::PasteText(const std::u16string& text) {
  const auto told = model_.PasteInto(SelectedCells().value_or(CellRange{}), text);
  hooks_.changed();
  if (told) ShowNotice(grid_->parentWidget(), *told);
}

/// A drop is a paste at that cell.
void MatrixGridView::DropOn(GridCell cell, const QString& text) {
  if (!FinishEdit()) return;
  grid_->setFocus(Qt::OtherFocusReason);
  grid_->SetFocusCell(cell);
  PasteCells(text);
}

void MatrixGridView::ClearCells() {
  if (const auto cells = SelectedCells()) model_.ClearCells(*cells);
}

void MatrixGridView::SelectAll() {
  grid_->SetFocusCell({kHeaders, kHeaders});
  grid_->SelectTo({grid_->Model().RowCount() - 1, grid_->Model().ColumnCount() - 1});
}

}  // namespace kav
