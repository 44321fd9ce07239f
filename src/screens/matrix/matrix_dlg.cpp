#include "screens/matrix/matrix_dlg.h"

#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "matrix/matrix_properties.h"
#include "matrix/matrix_texts.h"
#include "screens/matrix/matrix_leaving.h"
#include "screens/matrix/matrix_places.h"
#include "screens/matrix/matrix_size_dlg.h"
#include "screens/matrix/matrix_tabs_view.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/message_box.h"

namespace kav {
namespace {

/// Of the height of the line.
constexpr double kLineTextHeight = 0.62;

}  // namespace

CMatrixDlg::CMatrixDlg(Frame& frame)
    : KeyScreenOf(model_, frame, QSize(kScreenWidth, kScreenHeight), SpotsOf(MatrixKeyRows()),
                  PastRoom::Matrix, SideNeighbour::Sheet),
      model_(frame.Store()),
      tabs_(new MatrixTabs(this)),
      grid_(this, model_,
            {.beginEdit = [this](int row, int column) { BeginCellEdit(row, column); },
             .changed = [this] { ShowMatrix(); }}) {
  const auto kept = std::move(frame.KeptBy(ScreenMode::Matrix));
  if (auto* matrices = dynamic_cast<KeptMatrices*>(kept.get())) {
    model_.Board() = std::move(matrices->board);
  }
  connect(tabs_, &QTabBar::currentChanged, this, &CMatrixDlg::OnTab);
  connect(&Line(), &QLineEdit::textChanged, this, [this] { isLineNewer_ = true; });
  grid_.Grid().installEventFilter(this);
  setTabOrder(&Result(), tabs_);
  setTabOrder(tabs_, &grid_.Grid());
  AddMenus(ScreenMode::Matrix, DisplayPage::Matrix, [this] { model_.TakeDisplaySettings(); });
  AddPropertiesMenu();
  CMatrixDlg::Refresh();
}

CMatrixDlg::~CMatrixDlg() {
  grid_.FinishEdit();
  model_.Save();
}

bool CMatrixDlg::MayLeave(LeaveReason reason) {
  if (!grid_.FinishEdit()) return false;
  if (reason != LeaveReason::Switching) {
    return AskToSaveMatrices(this, model_.Board(), [this] { ShowMatrix(); });
  }
  ParentFrame().KeptBy(ScreenMode::Matrix) = std::make_unique<KeptMatrices>(model_.Board());
  return true;
}

void CMatrixDlg::BeginCellEdit(int row, int column) {
  TakeLine();
  model_.BeginCellEdit(row, column);
  const bool wasNewer = isLineNewer_;
  WriteLine(Line(), model_.Line());
  isLineNewer_ = wasNewer;
}

void CMatrixDlg::OnKey(MatrixKey key) {
  if (!grid_.FinishEdit()) return;
  const bool isEquals = key == MatrixKey::Equals;
  if (isEquals && AsksFirst(Line(), [this] { OnKey(MatrixKey::Equals); })) return;
  if (isEquals) FinishLine();
  KeyScreenOf::OnKey(key);
  if (isEquals) SaveAfterPainting([this] { model_.Save(); }, model_.Evaluated());
}

void CMatrixDlg::AddPropertiesMenu() {
  std::vector<MenuEntry> entries;
  entries.reserve(MatrixProperties().size());
  for (const MatrixProperty& property : MatrixProperties()) {
    entries.push_back(
        {property.item, [this, &property] { OnProperty(property); }, {}, {}, property.help});
  }
  AddMenu(kPropertiesMenu, entries);
}

void CMatrixDlg::OnProperty(const MatrixProperty& property) {
  if (!grid_.FinishEdit()) return;
  TakeLine();
  Follow(model_.Find(property));
}

void CMatrixDlg::OnTab(int index) {
  if (!grid_.FinishEdit()) return ShowMatrix();
  // Someone who goes from tab to tab by keys is not there yet.
  const bool isByKeys = tabs_->hasFocus();
  TakeLine();
  model_.Show(index);
  Refresh();
  if (isByKeys) tabs_->setFocus();
}

bool CMatrixDlg::OnOperator(char16_t typed) {
  TakeLine();
  if (!model_.TypeOperator(typed)) return false;
  Refresh();
  return true;
}

void CMatrixDlg::OnMend() {
  if (!grid_.FinishEdit()) return;
  TakeLine();
  FinishLine();
  Follow(model_.TakeMend());
  SaveAfterPainting([this] { model_.Save(); }, model_.Evaluated());
}

void CMatrixDlg::TakeLine() {
  model_.SetLine(TextOf(Line()), SelectionOf(Line()));
}

void CMatrixDlg::Refresh() {
  WriteLine(Line(), model_.Line());
  ShowMatrix();
  ShowFault(model_.Fault());
  Line().setFocus();
}

void CMatrixDlg::ShowMatrix() {
  if (model_.Board().ChangeCount() != seenChanges_) isLineNewer_ = false;
  seenChanges_ = model_.Board().ChangeCount();
  Result().Show(model_.ResultText());
  ShowLive();
  ShowMemory(model_.MemoryText());
  RefreshKeys();
  {
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(model_.Shown());
  }
  grid_.Show();
  // Longer texts may need more of a wide window.
  if (isVisible() && grid_.NeedsOtherPlace(ScreenPart().size())) LayOutAll();
}

QRect CMatrixDlg::Area() const {
  return IsWiderThanUpright(ScreenPart().size()) ? ScreenPart() : KeyScreenOf::Area();
}

void CMatrixDlg::LayOut(const DialogUnits& units) {
  const QRect body = units.Pixels(QRect(0, 0, kScreenWidth, kScreenHeight));
  const bool isUpright = !IsWiderThanUpright(ScreenPart().size());
  const MatrixPlaces places =
      isUpright ? UprightPlaces(units) : PlacesIn(ScreenPart().size(), body, grid_.Needs());
  Keys().setGeometry(rect());
  Keys().LayOut(places.keys);
  Line().setGeometry(places.line);
  Line().SetTextHeight(qRound(Line().height() * kLineTextHeight * TextShare()));
  LayOutResult(places.result);
  tabs_->LayOut(places.tabs);
  grid_.LayOut(places);
  LayOutHistory(body);
}

void CMatrixDlg::TakePast(const PastLine& past, PastPart part) {
  TakeLine();
  part == PastPart::Line ? model_.TakePastLine(past) : model_.TakePastAnswer(past);
  Refresh();
}

void CMatrixDlg::Cover() {
  grid_.FinishEdit();
  KeyScreenOf::Cover();
  tabs_->hide();
  grid_.Grid().hide();
}

void CMatrixDlg::Uncover() {
  KeyScreenOf::Uncover();
  tabs_->show();
  grid_.Grid().show();
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
  grid_.FitColumns();
}

void CMatrixDlg::Tell(const std::optional<std::u16string>& failure) {
  Refresh();
  if (failure) ShowStop(this, *failure);
}

std::unique_ptr<QWidget> MakeMatrixScreen(Frame& frame) {
  return std::make_unique<CMatrixDlg>(frame);
}

}  // namespace kav
