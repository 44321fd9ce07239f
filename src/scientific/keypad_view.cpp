#include "scientific/keypad_view.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

#include "scientific/scientific_texts.h"
#include "scientific/screen_menus.h"

namespace kav {
namespace {

/// Captions take at most this much of a key's height.
constexpr double kTextHeight = 0.6;

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

QKeySequence ShortcutOf(Key key) {
  const auto* row = std::find_if(kShortcuts.begin(), kShortcuts.end(),
                                 [key](const KeyShortcut& s) { return s.key == key; });
  return row != kShortcuts.end() ? QKeySequence(QLatin1String(row->keys)) : QKeySequence();
}

QRect UnitsOf(const KeyPlace& place) {
  return {place.x, place.y, place.width, kKeyHeight};
}

QPoint DirectionOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {0, 0};
  }
}

/// Every caption that the key of `view` can show.
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

}  // namespace

KeypadView::KeypadView(QWidget* parent, const std::function<void(Key)>& onKey) : QWidget(parent) {
  for (const KeyPlace& place : KeyPlaces()) {
    auto* view = new KeyView(place, this);
    connect(view, &QAbstractButton::clicked, this, [onKey, key = place.key] { onKey(key); });
    // Both Shift keys have one name.
    if (place.key == Key::ShiftActive) {
      view->setAccessibleDescription(QStringView(kShiftIsOn).toString());
    }
    keys_.push_back(view);
  }
}

void KeypadView::Refresh(const ScientificModel& model, const std::function<bool(Key)>& offered) {
  for (KeyView* view : keys_) {
    const Key key = view->Place().key;
    const QString caption = QStringView(model.Caption(key)).toString();
    if (view->text() != caption) {
      view->setText(caption);
      view->setShortcut(ShortcutOf(key));  // a new text takes the old one's shortcut away
      view->setToolTip(view->shortcut().toString(QKeySequence::NativeText));
    }
    view->setEnabled(model.IsEnabled(key) && offered(key));
    view->setVisible(model.IsVisible(key));
  }
}

void KeypadView::LayOut(const DialogUnits& units) {
  std::vector<SpacedText> captions;
  for (KeyView* view : keys_) {
    view->setGeometry(units.Pixels(UnitsOf(view->Place())));
    for (const std::u16string_view caption : CaptionsOf(view->Place().key)) {
      captions.push_back({QStringView(caption).toString(), view->TextWidth()});
    }
  }
  // One size for all, whatever they show: captions of many sizes would make a restless picture.
  const int most = static_cast<int>(keys_.front()->height() * kTextHeight);
  const int textHeight = FittingPixels(captions, most, 1);
  for (KeyView* view : keys_) view->SetTextHeight(textHeight);
}

void KeypadView::Enter() {
  const auto first = std::find_if(keys_.begin(), keys_.end(), [](const KeyView* view) {
    return view->isVisible() && view->isEnabled();
  });
  if (first != keys_.end()) (*first)->setFocus(Qt::TabFocusReason);
}

QRect KeypadView::KeyArea(Key key) const {
  const auto view = std::find_if(keys_.begin(), keys_.end(),
                                 [key](const KeyView* v) { return v->Place().key == key; });
  return (*view)->geometry();
}

void KeypadView::keyPressEvent(QKeyEvent* event) {
  const QPoint direction = DirectionOf(event->key());
  const auto* focus = dynamic_cast<KeyView*>(QWidget::focusWidget());
  if (direction.isNull() || focus == nullptr) return event->ignore();
  KeyView* neighbour = Neighbour(*focus, direction);
  if (neighbour != nullptr) return neighbour->setFocus(Qt::TabFocusReason);
  // Above the keys stands the line, and the screen leads there.
  if (direction.y() < 0) event->ignore();
}

KeyView* KeypadView::Neighbour(const KeyView& from, QPoint direction) const {
  KeyView* nearest = nullptr;
  int least = std::numeric_limits<int>::max();
  for (KeyView* view : keys_) {
    if (!view->isVisible() || !view->isEnabled()) continue;
    const QPoint way = UnitsOf(view->Place()).center() - UnitsOf(from.Place()).center();
    const int along = QPoint::dotProduct(way, direction);
    const int across = std::abs(way.x() * direction.y()) + std::abs(way.y() * direction.x());
    // What lies more to the side than ahead is not meant, and a key of the same row or column comes
    // before one that is beside it.
    constexpr int kDetour = 8;
    if (along <= across || along + kDetour * across >= least) continue;
    least = along + kDetour * across;
    nearest = view;
  }
  return nearest;
}

}  // namespace kav
