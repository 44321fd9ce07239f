#include "screens/scientific/scientific_dlg.h"

#include <variant>

#include "screens/widgets/field_door.h"

namespace kav {
namespace {

/// Of the expression line's height.
constexpr double kLineTextHeight = 0.42;

}  // namespace

CScientificDlg::CScientificDlg(Frame& frame)
    : KeyScreenOf(model_, frame, QSize(kScreenWidth, kScreenHeight), SpotsOf(KeyPlaces()),
                  PastRoom::Calculator, SideNeighbour::Column),
      model_(frame.Store()) {
  AddMenus(ScreenMode::Scientific, DisplayPage::Normal, [this] { model_.TakeDisplaySettings(); });
  CScientificDlg::Refresh();
}

CScientificDlg::~CScientificDlg() {
  model_.Save();
}

void CScientificDlg::OnKey(Key key) {
  const bool isEquals = key == Key::Equals;
  if (isEquals && AsksFirst(Line(), [this] { OnKey(Key::Equals); })) return;
  if (isEquals) FinishLine();
  KeyScreenOf::OnKey(key);
  if (isEquals) SaveAfterPainting([this] { model_.Save(); }, model_.Evaluated());
}

bool CScientificDlg::OnOperator(char16_t typed) {
  TakeLine();
  if (!model_.TypeOperator(typed)) return false;
  Refresh();
  return true;
}

void CScientificDlg::OnMend() {
  TakeLine();
  FinishLine();
  Follow(model_.TakeMend());
  SaveAfterPainting([this] { model_.Save(); }, model_.Evaluated());
}

void CScientificDlg::TakeLine() {
  model_.SetLine(TextOf(Line()), SelectionOf(Line()));
}

void CScientificDlg::Refresh() {
  WriteLine(Line(), model_.Line());
  Result().Show(model_.ResultText());
  ShowLive();
  ShowMemory(model_.MemoryText());
  Line().SetBase(model_.Base());
  Result().SetBase(model_.Base());
  RefreshKeys();
  ShowFault(model_.Fault());
  Line().setFocus();
}

void CScientificDlg::LayOut(const DialogUnits& units) {
  Keys().setGeometry(rect());
  Keys().LayOut(units);
  Line().setGeometry(units.Pixels(UnitsOf(kExpressionPlace)));
  Line().SetTextHeight(qRound(Line().height() * kLineTextHeight * TextShare()));
  LayOutResult(units.Pixels(UnitsOf(kResultPlace)));
  LayOutHistory(units.Pixels(QRect(0, 0, kScreenWidth, kScreenHeight)));
}

void CScientificDlg::TakePast(const PastLine& past, PastPart part) {
  TakeLine();
  part == PastPart::Line ? model_.TakePastLine(past) : model_.TakePastAnswer(past);
  Refresh();
}

void CScientificDlg::CarryOut(const ScientificRequest& request) {
  std::visit([this](const auto& what) { Do(what); }, request);
}

std::unique_ptr<QWidget> MakeScientificScreen(Frame& frame) {
  return std::make_unique<CScientificDlg>(frame);
}

}  // namespace kav
