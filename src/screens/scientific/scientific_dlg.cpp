#include "screens/scientific/scientific_dlg.h"

#include <algorithm>
#include <array>
#include <variant>
#include <vector>

#include "line/line_texts.h"

namespace kav {
namespace {

/// Of the expression line's height.
constexpr double kLineTextHeight = 0.42;

struct KeyShortcut {
  Key key;
  const char* keys;
};

// For the keys whose work cannot be typed. The letters are none of those of the menus.
constexpr std::array kShortcuts{
    KeyShortcut{Key::Deg, "Alt+D"},         KeyShortcut{Key::Dec, "Alt+B"},
    KeyShortcut{Key::PlayBack, "Alt+P"},    KeyShortcut{Key::Shift, "Alt+S"},
    KeyShortcut{Key::ShiftActive, "Alt+S"}, KeyShortcut{Key::Macro, "Alt+A"},
    KeyShortcut{Key::Converter, "Alt+N"},   KeyShortcut{Key::MemoryMenu, "Alt+C"},
};

const char* ShortcutOf(Key key) {
  const auto* row = std::find_if(kShortcuts.begin(), kShortcuts.end(),
                                 [key](const KeyShortcut& s) { return s.key == key; });
  return row != kShortcuts.end() ? row->keys : nullptr;
}

/// Every caption that `key` can show.
std::vector<std::u16string_view> CaptionsOf(Key key) {
  if (key == Key::Deg) return {kDegreesCaption, kRadiansCaption};
  std::vector<std::u16string_view> captions;
  if (key == Key::Dec) {
    for (const MenuItem& item : BuildBaseMenu())
      captions.push_back(BaseCaption(*BaseOfItem(item.id)));
    return captions;
  }
  for (const Face face : {Face::Plain, Face::Shifted, Face::Base}) {
    const KeyFace& shown = FaceOf(key, face);
    if (shown.face == face) captions.push_back(shown.caption);
  }
  return captions;
}

std::vector<KeySpot> KeySpots() {
  std::vector<KeySpot> spots;
  for (const KeyPlace& place : KeyPlaces()) {
    KeySpot spot{static_cast<int>(place.key), QRect(place.x, place.y, place.width, kKeyHeight),
                 place.colour, CaptionsOf(place.key), ShortcutOf(place.key)};
    // Both Shift keys have one name.
    if (place.key == Key::ShiftActive) spot.description = kShiftIsOn;
    spots.push_back(std::move(spot));
  }
  return spots;
}

}  // namespace

CScientificDlg::CScientificDlg(Frame& frame)
    : KeyScreenOf(model_, frame, QSize(kScreenWidth, kScreenHeight), KeySpots()),
      model_(frame.Store()) {
  AddMenus(ScreenMode::Scientific, DisplayPage::Normal, [this] { model_.TakeDisplaySettings(); });
  CScientificDlg::Refresh();
}

CScientificDlg::~CScientificDlg() {
  model_.Save();
}

void CScientificDlg::OnKey(Key key) {
  KeyScreenOf::OnKey(key);
  if (key == Key::Equals) SaveAfterPainting([this] { model_.Save(); });
}

void CScientificDlg::TakeLine() {
  model_.SetLine(TextOf(Line()), SelectionOf(Line()));
}

void CScientificDlg::Refresh() {
  WriteLine(Line(), model_.Line());
  Result().Show(model_.ResultText());
  RefreshKeys();
  Line().setFocus();
}

void CScientificDlg::LayOut(const DialogUnits& units) {
  Keys().setGeometry(rect());
  Keys().LayOut(units);
  Line().setGeometry(units.Pixels(UnitsOf(kExpressionPlace)));
  Line().SetTextHeight(qRound(Line().height() * kLineTextHeight));
  Result().LayOut(units.Pixels(UnitsOf(kResultPlace)));
}

void CScientificDlg::CarryOut(const ScientificRequest& request) {
  std::visit([this](const auto& what) { Do(what); }, request);
}

std::unique_ptr<QWidget> MakeScientificScreen(Frame& frame) {
  return std::make_unique<CScientificDlg>(frame);
}

}  // namespace kav
