#include "scientific/scientific_dlg.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <algorithm>
#include <array>
#include <optional>
#include <variant>
#include <vector>

#include "app/message_box.h"
#include "scientific/scientific_texts.h"

namespace kav {
namespace {

/// Of the expression line's height.
constexpr double kLineTextHeight = 0.42;

QRect UnitsOf(const LinePlace& place) {
  return {place.x, place.y, place.width, place.height};
}

/// The key of the keypad that a key of the keyboard presses, whatever has the focus.
std::optional<Key> KeyOf(const QKeyEvent& event) {
  if (event.text() == u"=") return Key::Equals;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Key::Equals;
    case Qt::Key_Escape:
      return Key::Clear;
    default:
      return std::nullopt;
  }
}

/// Whether a key that the focused widget has no use for is typing.
bool IsForLine(const QKeyEvent& event) {
  if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
  constexpr std::array kEditing{Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Home, Qt::Key_End,
                                Qt::Key_Up};
  return !event.text().isEmpty() ||
         std::find(kEditing.begin(), kEditing.end(), event.key()) != kEditing.end();
}

/// Whether the focus only returns from a menu or another window.
bool IsReturn(const QFocusEvent& event) {
  return event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason ||
         event.reason() == Qt::ActiveWindowFocusReason;
}

/// `text` as the label of a menu entry, where '&' and a tab have meanings of their own.
QString LabelOf(const std::u16string& text) {
  return QString::fromStdU16String(text)
      .replace(QChar(u'&'), QString("&&"))
      .replace(QChar(u'\t'), QChar(u' '));
}

/// `items` without those of `ids`, and without separators that then separate nothing.
Menu Without(const Menu& items, const std::vector<int>& ids) {
  Menu rest;
  for (const MenuItem& item : items) {
    if (std::find(ids.begin(), ids.end(), item.id) != ids.end()) continue;
    if (item.IsSeparator() && (rest.empty() || rest.back().IsSeparator())) continue;
    rest.push_back(item);
  }
  if (!rest.empty() && rest.back().IsSeparator()) rest.pop_back();
  return rest;
}

}  // namespace

CScientificDlg::CScientificDlg(Frame& frame)
    : Screen(frame, QSize(kScreenWidth, kScreenHeight)),
      model_(frame.Store()),
      line_(new LineView(this)),
      result_(new ResultView(this)),
      keypad_(new KeypadView(this, [this](Key key) { OnKey(key); })) {
  keypad_->lower();
  line_->setAccessibleName(QStringView(kExpressionName).toString());
  line_->setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  line_->installEventFilter(this);
  result_->setAccessibleName(QStringView(kResultName).toString());
  AddMenus();
  Refresh();
}

CScientificDlg::~CScientificDlg() {
  model_.Save();
}

void CScientificDlg::OnKey(Key key) {
  TakeLine();
  CarryOut(model_.Press(key));
  Refresh();
  if (key == Key::Equals) SaveAfterPainting();
}

void CScientificDlg::TakeLine() {
  model_.SetLine(TextOf(*line_), SelectionOf(*line_));
}

void CScientificDlg::Refresh() {
  WriteLine(*line_, model_.Line());
  result_->Show(model_.ResultText());
  keypad_->Refresh(model_, [this](Key key) { return IsOffered(key); });
  line_->setFocus();
}

void CScientificDlg::SaveAfterPainting() {
  // The disk may be slow: whoever waits for an answer sees it first.
  line_->repaint();
  result_->repaint();
  QTimer::singleShot(0, this, [this] {
    model_.Save();
    TheFrame().SaveStore();
  });
}

void CScientificDlg::LayOut(const DialogUnits& units) {
  keypad_->setGeometry(rect());
  keypad_->LayOut(units);
  line_->setGeometry(units.Pixels(UnitsOf(kExpressionPlace)));
  line_->SetTextHeight(qRound(line_->height() * kLineTextHeight));
  result_->LayOut(units.Pixels(UnitsOf(kResultPlace)));
}

bool CScientificDlg::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    // Ahead of the line, which would write the "=" and knows Enter and Esc in its own way.
    const std::optional<Key> key = KeyOf(*static_cast<QKeyEvent*>(event));
    if (key) OnKey(*key);
    return key.has_value();
  }
  if (event->type() == QEvent::InputMethod &&
      static_cast<QInputMethodEvent*>(event)->commitString() == u"=") {
    OnKey(Key::Equals);
    return true;
  }
  // Whoever comes back to the line has done with the result. (From a menu one only returns.)
  if (event->type() == QEvent::FocusIn && !IsReturn(*static_cast<QFocusEvent*>(event))) {
    result_->deselect();
  }
  return Screen::eventFilter(watched, event);
}

void CScientificDlg::keyPressEvent(QKeyEvent* event) {
  if (const std::optional<Key> key = KeyOf(*event)) return OnKey(*key);
  if (focusWidget() == line_) {
    if (event->key() == Qt::Key_Down) return keypad_->Enter();
    return Screen::keyPressEvent(event);
  }
  if (!IsForLine(*event)) return Screen::keyPressEvent(event);
  line_->setFocus();
  QCoreApplication::sendEvent(line_, event);
}

void CScientificDlg::CarryOut(const KeyRequest& request) {
  std::visit([this](const auto& what) { Do(what); }, request);
}

void CScientificDlg::Do(const ShowHistoryMenu&) {
  PopUp(model_.HistoryMenu(), Key::PlayBack, [this](int id) { model_.ChooseHistory(id); });
}

void CScientificDlg::Do(const ShowBaseMenu&) {
  PopUp(model_.BaseMenu(), Key::Dec, [this](int id) { model_.ChooseBase(id); });
}

void CScientificDlg::Do(const ShowMemoryMenu&) {
  PopUp(OfferedMemoryMenu(), Key::MemoryMenu,
        [this](int id) { CarryOut(model_.ChooseMemory(id)); });
}

void CScientificDlg::Do(const OpenMacroEditor& request) {
  if (!request.message.empty()) ShowStop(this, request.message);
  TheRooms().macroEditor(this);
  TheFrame().SaveStore();
}

void CScientificDlg::Do(const OpenMacroList&) {
  if (const std::optional<int> index = TheRooms().macroList(this)) model_.TakeMacro(*index);
}

void CScientificDlg::Do(const OpenConverter& request) {
  model_.TakeConverter(TheRooms().converter(this, request.input));
  TheFrame().SaveStore();
}

void CScientificDlg::Do(const StoreMemoryVariable& request) {
  TheRooms().storeVariable(this, request.value);
  TheFrame().SaveStore();
}

void CScientificDlg::Do(const RecallMemoryVariable&) {
  // Variables may have been cleared in it as well.
  if (const auto value = TheRooms().recallVariable(this)) model_.TakeVariable(*value);
  TheFrame().SaveStore();
}

void CScientificDlg::Do(const OpenConstants&) {
  if (const auto value = TheRooms().constants(this)) model_.TakeConstant(*value);
}

void CScientificDlg::PopUp(const Menu& items, Key key, const std::function<void(int)>& choose) {
  QMenu* menu = MakePopUp();
  for (const MenuItem& item : items) {
    if (item.IsSeparator()) {
      menu->addSeparator();
      continue;
    }
    connect(menu->addAction(LabelOf(item.text)), &QAction::triggered, this,
            [this, choose, id = item.id] {
              choose(id);
              Refresh();
            });
  }
  const QRect below = keypad_->KeyArea(key);
  menu->popup(mapToGlobal(QPoint(below.left(), below.bottom() + 1)));
  // How wide it is, is known from now on.
  const int beyond = menu->geometry().right() - mapToGlobal(rect().bottomRight()).x();
  if (beyond > 0) menu->move(menu->x() - beyond, menu->y());
}

bool CScientificDlg::IsOffered(Key key) const {
  if (key == Key::Macro) return TheRooms().macroList && TheRooms().macroEditor;
  return key != Key::Converter || TheRooms().converter;
}

Menu CScientificDlg::OfferedMemoryMenu() const {
  std::vector<int> missing;
  if (!TheRooms().recallVariable) missing.push_back(memory_item::kRecallVariable);
  if (!TheRooms().storeVariable) missing.push_back(memory_item::kStoreVariable);
  if (!TheRooms().constants) missing.push_back(memory_item::kConstants);
  return Without(model_.MemoryMenu(), missing);
}

std::function<void()> CScientificDlg::Opening(const std::function<void(QWidget*)>& open) {
  if (!open) return nullptr;
  return [this, open] {
    TakeLine();
    open(this);
    Refresh();
    TheFrame().SaveStore();
  };
}

void CScientificDlg::AddMenus() {
  const Rooms& rooms = TheRooms();
  std::function<void(QWidget*)> config;
  if (rooms.displaySettings) {
    config = [this](QWidget* parent) {
      if (TheRooms().displaySettings(parent)) model_.TakeDisplaySettings();
    };
  }
  AddFileMenu({Opening(config), Opening(rooms.unitEditor), Opening(rooms.macroEditor)});
  AddEditMenu([this]() -> QLineEdit* { return result_->hasSelectedText() ? result_ : line_; });
  AddModeMenu(ScreenMode::Scientific);
}

std::unique_ptr<QWidget> MakeScientificScreen(Frame& frame) {
  return std::make_unique<CScientificDlg>(frame);
}

}  // namespace kav
