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
    : LineScreen(frame, QSize(kScreenWidth, kScreenHeight), KeySpots(),
                 {static_cast<int>(Key::Equals), static_cast<int>(Key::Clear)}),
      model_(frame.Store()) {
  AddMenus(ScreenMode::Scientific, DisplayPage::Normal, [this] { model_.TakeDisplaySettings(); });
  CScientificDlg::Refresh();
}

CScientificDlg::~CScientificDlg() {
  model_.Save();
}

void CScientificDlg::OnKey(int key) {
  TakeLine();
  CarryOut(model_.Press(static_cast<Key>(key)));
  Refresh();
  if (static_cast<Key>(key) == Key::Equals) SaveAfterPainting([this] { model_.Save(); });
}

void CScientificDlg::TakeLine() {
  model_.SetLine(TextOf(Line()), SelectionOf(Line()));
}

void CScientificDlg::Refresh() {
  WriteLine(Line(), model_.Line());
  Result().Show(model_.ResultText());
  Keys().Refresh([this](int id) {
    const Key key = static_cast<Key>(id);
    return KeyState{model_.Caption(key), model_.IsEnabled(key) && IsOffered(key),
                    model_.IsVisible(key)};
  });
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

void CScientificDlg::Do(const ShowMenu<Key>& request) {
  const Key key = request.key;
  PopUp(key == Key::MemoryMenu ? OfferedMemoryMenu() : model_.MenuOf(key), key,
        [this, key](int id) { CarryOut(model_.Choose(key, id)); });
}

void CScientificDlg::Do(const OpenMacroEditor& request) {
  Open(request);
}

void CScientificDlg::Do(const OpenMacroList& request) {
  if (const std::optional<int> index = Open(request)) model_.TakeMacro(*index);
}

void CScientificDlg::Do(const OpenConverter& request) {
  model_.TakeConverter(Open(request));
}

void CScientificDlg::Do(const StoreMemoryVariable& request) {
  Dialogs().storeVariable(this, request.value);
  ParentFrame().SaveStore();
}

void CScientificDlg::Do(const RecallMemoryVariable& request) {
  if (const auto value = Open(request)) model_.TakeVariable(*value);
}

void CScientificDlg::Do(const OpenConstants& request) {
  if (const auto value = Open(request)) model_.TakeConstant(*value);
}

void CScientificDlg::PopUp(const Menu& items, Key key, const std::function<void(int)>& choose) {
  LineScreen::PopUp(items, static_cast<int>(key), choose);
}

bool CScientificDlg::IsOffered(Key key) const {
  if (key == Key::Macro) return Dialogs().macroList && Dialogs().macroEditor;
  return key != Key::Converter || Dialogs().converter;
}

Menu CScientificDlg::OfferedMemoryMenu() const {
  return OfferedOf(model_.MenuOf(Key::MemoryMenu), [&dialogs = Dialogs()](int id) {
    switch (id) {
      case memory_item::kRecallVariable:
        return static_cast<bool>(dialogs.recallVariable);
      case memory_item::kStoreVariable:
        return static_cast<bool>(dialogs.storeVariable);
      case memory_item::kConstants:
        return static_cast<bool>(dialogs.constants);
      default:
        return true;
    }
  });
}

std::unique_ptr<QWidget> MakeScientificScreen(Frame& frame) {
  return std::make_unique<CScientificDlg>(frame);
}

}  // namespace kav
