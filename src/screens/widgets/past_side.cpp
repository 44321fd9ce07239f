#include "screens/widgets/past_side.h"

#include <cstdint>
#include <utility>

#include "screens/widgets/look.h"
#include "settings/keys.h"

namespace kav {
namespace {

constexpr std::int32_t kShown = 1;
constexpr std::int32_t kHidden = 0;

}  // namespace

PastSide::PastSide(QWidget& screen, Frame& frame, PastRoom room, SideNeighbour neighbour,
                   PastSideHooks hooks)
    : screen_(screen),
      frame_(frame),
      room_(room),
      neighbour_(neighbour),
      hooks_(std::move(hooks)),
      isWanted_(neighbour == SideNeighbour::Column && frame.Store().Get(kHistoryShown) != kHidden) {
}

QRect PastSide::ScreenPart() const {
  return isWanted_ ? PlacesBeside(screen_.size(), neighbour_).screen : screen_.rect();
}

QRect PastSide::PanelPart() const {
  return isWanted_ ? PlacesBeside(screen_.size(), neighbour_).side : QRect();
}

void PastSide::LayOut(const QRect& keys, int pixels) {
  keys_ = keys;
  pixels_ = pixels;
  if (panel_ == nullptr) return;
  if (IsBeside() && isOver_) {
    isOver_ = false;
    hooks_.uncover();
  }
  Place();
}

void PastSide::Place() {
  if (!IsBeside() && !isOver_) return Hide();
  panel_->LayOut(isOver_ ? keys_ : PanelPart(), pixels_);
  panel_->show();
  panel_->raise();
}

void PastSide::Hide() {
  // Before the panel goes with the keyboard, which would go anywhere.
  const QWidget* focus = screen_.focusWidget();
  if (focus != nullptr && panel_->isAncestorOf(focus)) hooks_.leave();
  panel_->hide();
}

void PastSide::Painted() {
  if (panel_ != nullptr || !IsBeside()) return;
  // Reading and making it would keep the user from the line.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (panel_ == nullptr && IsBeside()) MakePanel();
      },
      Qt::QueuedConnection);
}

void PastSide::MakePanel() {
  panel_ = new PastPanel(&screen_, PastLinesModel(frame_.Past(), frame_.Store(), room_),
                         {.take = [this](const PastLine& past, PastPart part) { Take(past, part); },
                          .close = [this] { Close(); },
                          .leave = [this] { isOver_ ? Close() : hooks_.leave(); },
                          .changed = [this] { frame_.SaveStore(); }});
  Place();
  panel_->Load();
}

void PastSide::Load() {
  if (IsShown()) panel_->Load();
}

void PastSide::Toggle() {
  IsShown() ? Close() : Show();
}

void PastSide::RememberWanted() {
  if (neighbour_ != SideNeighbour::Column) return;
  frame_.Store().Set(kHistoryShown, isWanted_ ? kShown : kHidden);
  frame_.SaveStore();
}

void PastSide::Show() {
  const bool hasRoom = !PlacesBeside(screen_.size(), neighbour_).side.isEmpty();
  if (hasRoom) {
    isWanted_ = true;
    RememberWanted();
    hooks_.layOut();
  } else {
    isOver_ = true;
    hooks_.cover();
  }
  if (panel_ == nullptr) MakePanel();
  Place();
  panel_->Load();
  panel_->Enter();
}

void PastSide::Close() {
  const bool wasOver = std::exchange(isOver_, false);
  if (wasOver) {
    hooks_.uncover();
  } else {
    isWanted_ = false;
    RememberWanted();
  }
  hooks_.leave();
  Hide();
  if (!wasOver) hooks_.layOut();
}

void PastSide::Take(const PastLine& past, PastPart part) {
  if (isOver_) Close();
  hooks_.take(past, part);
}

}  // namespace kav
