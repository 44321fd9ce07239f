#include "screens/matrix/matrix_dlg.h"

#include <QHelpEvent>
#include <QTimer>
#include <QToolTip>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <variant>

#include "matrix/matrix_texts.h"
#include "screens/grid/grid_access_view.h"
#include "screens/matrix/matrix_leaving.h"
#include "screens/matrix/matrix_size_dlg.h"
#include "screens/matrix/matrix_tabs_view.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Of the height of the line.
constexpr double kLineTextHeight = 0.62;
/// The height of the grid's letters at scale 1.
constexpr double kCellText = 11.5;

CGridCtrl* NewGrid(QWidget* parent) {
  OfferGridsToScreenReaders();
  return new CGridCtrl(parent);
}

}  // namespace

CMatrixDlg::CMatrixDlg(Frame& frame)
    : KeyScreenOf(model_, frame, QSize(kScreenWidth, kScreenHeight), SpotsOf(MatrixKeyRows())),
      model_(frame.Store()),
      tabs_(new MatrixTabs(this)),
      grid_(NewGrid(this)) {
  const auto kept = std::move(frame.KeptBy(ScreenMode::Matrix));
  if (auto* matrices = dynamic_cast<KeptMatrices*>(kept.get())) {
    model_.Board() = std::move(matrices->board);
  }
  connect(tabs_, &QTabBar::currentChanged, this, &CMatrixDlg::OnTab);
  connect(&Line(), &QLineEdit::textChanged, this, [this] { isLineNewer_ = true; });
  MakeGrid();
  setTabOrder(&Result(), tabs_);
  setTabOrder(tabs_, grid_);
  AddMenus(ScreenMode::Matrix, DisplayPage::Matrix, [this] { model_.TakeDisplaySettings(); });
  CMatrixDlg::Refresh();
}

CMatrixDlg::~CMatrixDlg() {
  // The grid outlives the model: an edit that only its end would finish finds nobody to tell.
  grid_->FinishEdit();
  grid_->SetHooks({});
  grid_->SetSource({});
  model_.Save();
}

bool CMatrixDlg::MayLeave(LeaveReason reason) {
  if (!FinishEdit()) return false;
  if (reason != LeaveReason::Switching) {
    return AskToSaveMatrices(this, model_.Board(), [this] { ShowMatrix(); });
  }
  ParentFrame().KeptBy(ScreenMode::Matrix) = std::make_unique<KeptMatrices>(model_.Board());
  return true;
}

void CMatrixDlg::MakeGrid() {
  grid_->setStyle(ScreenStyle());
  grid_->setAccessibleName(ToQt(kMatrixGridName));
  grid_->installEventFilter(this);
  GridHooks hooks;
  hooks.beginEdit = [this](int row, int column) {
    TakeLine();
    model_.BeginCellEdit(row - kHeaders, column - kHeaders);
    const bool wasNewer = isLineNewer_;
    WriteLine(Line(), model_.Line());
    isLineNewer_ = wasNewer;
  };
  hooks.endEdit = [this](int row, int column, const QString& text) {
    auto why = model_.TypeCell(row - kHeaders, column - kHeaders, text.toStdU16String());
    ShowMatrix();
    if (!why) return;
    refused_ = RefusedEdit{{row, column}, text, *std::move(why)};
    // Not before the key or the click that ended the edit has done its work.
    QTimer::singleShot(0, this, [this] { TellRefusedEdit(); });
  };
  hooks.pasteBlock = [this] { PasteCells(); };
  hooks.columnResized = [this](int column, int width) {
    TakeWidths();
    const bool isFitted = width == grid_->FittingWidth(column);
    fitted_[static_cast<std::size_t>(model_.Shown())][static_cast<std::size_t>(column)] =
        isFitted ? width : 0;
  };
  grid_->SetHooks(std::move(hooks));
  grid_->SetSource([this](GridCell cell) { return ContentOf(cell); });
}

void CMatrixDlg::OnKey(MatrixKey key) {
  if (!FinishEdit()) return;
  KeyScreenOf::OnKey(key);
  if (key == MatrixKey::Equals) SaveAfterPainting([this] { model_.Save(); });
}

void CMatrixDlg::OnTab(int index) {
  if (!FinishEdit()) return ShowMatrix();
  // Someone who goes from tab to tab by keys is not there yet.
  const bool isByKeys = tabs_->hasFocus();
  TakeLine();
  model_.Show(index);
  Refresh();
  if (isByKeys) tabs_->setFocus();
}

void CMatrixDlg::TakeLine() {
  model_.SetLine(TextOf(Line()), SelectionOf(Line()));
}

void CMatrixDlg::Refresh() {
  WriteLine(Line(), model_.Line());
  ShowMatrix();
  Line().setFocus();
}

void CMatrixDlg::ShowMatrix() {
  if (model_.ChangeCount() != seenChanges_) isLineNewer_ = false;
  seenChanges_ = model_.ChangeCount();
  Result().Show(model_.ResultText());
  RefreshKeys();
  {
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(model_.Shown());
  }
  const MatrixValue& matrix = model_.ShownMatrix();
  const GridModel& shown = grid_->Model();
  if (inGrid_ != model_.Shown() || shown.RowCount() != matrix.rows + kHeaders ||
      shown.ColumnCount() != matrix.columns + kHeaders) {
    RebuildGrid();
    WriteWidths();
    ScaleGrid();
  }
  WriteWidths();
  grid_->viewport()->update();
}

void CMatrixDlg::RebuildGrid() {
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

GridContent CMatrixDlg::ContentOf(GridCell cell) const {
  const int row = cell.row - kHeaders;
  const int column = cell.column - kHeaders;
  const GridAlignment alignment =
      model_.Alignment() == CellAlignment::Left ? GridAlignment::Left : GridAlignment::Right;
  return {model_.ShownMatrix().At(row, column), {alignment, model_.IsMarked(row, column)}};
}

void CMatrixDlg::WriteWidths() {
  for (int column = 0; column < grid_->Model().ColumnCount(); ++column) {
    grid_->SetColumnWidth(column, model_.Widths()[static_cast<std::size_t>(column)]);
  }
}

void CMatrixDlg::TakeWidths() {
  ColumnWidths widths = model_.Widths();
  for (int column = 0; column < grid_->Model().ColumnCount(); ++column) {
    widths[static_cast<std::size_t>(column)] = grid_->GetColumnWidth(column);
  }
  model_.SetColumnWidths(widths);
}

std::optional<CellRange> CMatrixDlg::SelectedCells() const {
  const GridRange range = grid_->Selection();
  if (range.IsNone()) return std::nullopt;
  return CellRange{range.top - kHeaders, range.left - kHeaders, range.bottom - kHeaders,
                   range.right - kHeaders};
}

QRect CMatrixDlg::Area() const {
  return IsWideForMatrices(size()) ? rect() : KeyScreenOf::Area();
}

void CMatrixDlg::LayOut(const DialogUnits& units) {
  const QRect body = units.Pixels(QRect(0, 0, kScreenWidth, kScreenHeight));
  places_ = IsWideForMatrices(size()) ? WidePlaces(body) : UprightPlaces(units);
  Keys().setGeometry(rect());
  Keys().LayOut(places_.keys);
  Line().setGeometry(places_.line);
  Line().SetTextHeight(qRound(Line().height() * kLineTextHeight));
  Result().LayOut(places_.result);
  tabs_->setGeometry(places_.tabs);
  grid_->setGeometry(places_.grid);
  ScaleGrid();
}

/// Columns that were fitted to their texts are so at any scale.
void CMatrixDlg::ScaleGrid() {
  const MatrixValue& matrix = model_.ShownMatrix();
  const double scale = FittingScale(places_, matrix.rows, matrix.columns, model_.NewColumnWidth());
  if (scale != grid_->Scale()) grid_->SetScale(scale, qRound(kCellText * scale));
  ColumnWidths& fitted = fitted_[static_cast<std::size_t>(model_.Shown())];
  for (int column = 0; column < grid_->Model().ColumnCount(); ++column) {
    const int width = model_.Widths()[static_cast<std::size_t>(column)];
    int& kept = fitted[static_cast<std::size_t>(column)];
    // Another width was given to it since.
    if (kept != width) kept = 0;
    if (kept != 0) grid_->SetColumnWidth(column, kept = grid_->FittingWidth(column));
  }
  TakeWidths();
}

void CMatrixDlg::CarryOut(const MatrixRequest& request) {
  std::visit([this](const auto& what) { Do(what); }, request);
}

void CMatrixDlg::Do(const AskMatrixSize& request) {
  const auto size = RunMatrixSize(this, {request.rows, request.columns});
  if (size) model_.Resize(size->rows, size->columns);
  Refresh();
}

void CMatrixDlg::Do(const AskSaveFile&) {
  if (const auto path = AskFileToSave(this, kMatrixFiles)) Tell(model_.SaveTo(*path));
}

void CMatrixDlg::Do(const AskLoadFile&) {
  if (const auto path = AskFileToOpen(this, kMatrixFiles)) Tell(model_.LoadFrom(*path));
}

void CMatrixDlg::Do(const AutofitColumns&) {
  grid_->AutoSizeColumns();
  TakeWidths();
  fitted_[static_cast<std::size_t>(model_.Shown())] = model_.Widths();
}

void CMatrixDlg::Tell(const std::optional<std::u16string>& failure) {
  Refresh();
  if (failure) ShowStop(this, *failure);
}

bool CMatrixDlg::ShowHint(const QHelpEvent& event) {
  const GridCell cell = grid_->CellAt(event.pos());
  if (cell.IsNone() || grid_->Model().IsFixed(cell)) return false;
  const std::u16string hint = model_.CellHint(cell.row - kHeaders, cell.column - kHeaders);
  QToolTip::showText(event.globalPos(), QString::fromStdU16String(hint), grid_,
                     grid_->CellArea(cell));
  return true;
}

std::unique_ptr<QWidget> MakeMatrixScreen(Frame& frame) {
  return std::make_unique<CMatrixDlg>(frame);
}

}  // namespace kav
