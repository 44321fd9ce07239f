#include "screens/widgets/key_sheet.h"

#include <QKeyEvent>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

#include "screens/widgets/app_texts.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Captions take at most this much of a key's height.
constexpr double kTextHeight = 0.6;
/// Or this much, if the user wants large texts.
constexpr double kLargeTextHeight = 0.8;

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

}  // namespace

KeySheet::KeySheet(QWidget* parent, std::vector<KeySpot> spots,
                   const std::function<void(int)>& onKey)
    : QWidget(parent) {
  setAccessibleName(ToQt(kKeysName));
  for (KeySpot& spot : spots) {
    const int id = spot.id;
    auto* view = new KeyView(std::move(spot), this);
    connect(view, &QAbstractButton::clicked, this, [onKey, id] { onKey(id); });
    keys_.push_back(view);
  }
  OrderTabs();
}

/// Tab leads along the rows, whatever keys share their places.
void KeySheet::OrderTabs() {
  std::vector<KeyView*> order = keys_;
  std::sort(order.begin(), order.end(), [](const KeyView* a, const KeyView* b) {
    const QPoint one = a->Spot().place.topLeft();
    const QPoint other = b->Spot().place.topLeft();
    return std::pair(one.y(), one.x()) < std::pair(other.y(), other.x());
  });
  for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void KeySheet::Refresh(const std::function<KeyState(int)>& stateOf) {
  for (KeyView* view : keys_) {
    const KeyState state = stateOf(view->Spot().id);
    view->Show(ToQt(state.caption));
    view->setEnabled(state.isEnabled);
    view->setVisible(state.isVisible);
  }
}

void KeySheet::Show(KeyLettering lettering) {
  for (KeyView* view : keys_) view->Show(lettering);
}

std::vector<ListedKey> KeySheet::Listed() const {
  std::vector<ListedKey> listed;
  listed.reserve(keys_.size());
  for (const KeyView* view : keys_) {
    listed.push_back({view->Spot().captions, view->Spot().shortcut});
  }
  return listed;
}

void KeySheet::LayOut(const DialogUnits& units) {
  LayOut([&units](const QRect& spot) { return units.Pixels(spot); });
}

void KeySheet::LayOut(const std::function<QRect(const QRect& spot)>& pixelsOf) {
  std::vector<SpacedText> captions;
  for (KeyView* view : keys_) {
    view->setGeometry(pixelsOf(view->Spot().place));
    for (const FaceText& caption : view->Spot().captions) {
      captions.push_back({ToQt(caption.caption), view->TextWidth()});
    }
  }
  // One size for all captions that the keys can show: a mixture of sizes looks restless.
  const double share = TextShare();
  const double wanted = std::min(kTextHeight * std::max(share, 1.0), kLargeTextHeight);
  const int most = static_cast<int>(keys_.front()->height() * wanted);
  textHeight_ = FittingPixels(captions, most, 1);
  if (share < 1) textHeight_ = std::max(static_cast<int>(textHeight_ * share), 1);
  for (KeyView* view : keys_) view->SetTextHeight(textHeight_);
}

void KeySheet::Enter() {
  const auto first = std::find_if(keys_.begin(), keys_.end(), [](const KeyView* view) {
    return view->isVisible() && view->isEnabled();
  });
  if (first != keys_.end()) (*first)->setFocus(Qt::TabFocusReason);
}

QRect KeySheet::KeyArea(int id) const {
  return KeyOf(id).geometry();
}

QString KeySheet::KeyCaption(int id) const {
  return KeyOf(id).text();
}

const KeyView& KeySheet::KeyOf(int id) const {
  return **std::find_if(keys_.begin(), keys_.end(),
                        [id](const KeyView* v) { return v->Spot().id == id; });
}

void KeySheet::keyPressEvent(QKeyEvent* event) {
  const QPoint direction = DirectionOf(event->key());
  const auto* focus = dynamic_cast<KeyView*>(QWidget::focusWidget());
  if (direction.isNull() || focus == nullptr) return event->ignore();
  KeyView* neighbour = Neighbour(*focus, direction);
  if (neighbour != nullptr) return neighbour->setFocus(Qt::TabFocusReason);
  // Above the keys stands the line, and the screen leads there.
  if (direction.y() < 0) event->ignore();
}

KeyView* KeySheet::Neighbour(const KeyView& from, QPoint direction) const {
  KeyView* nearest = nullptr;
  int least = std::numeric_limits<int>::max();
  for (KeyView* view : keys_) {
    if (!view->isVisible() || !view->isEnabled()) continue;
    const QPoint way = view->Spot().place.center() - from.Spot().place.center();
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
