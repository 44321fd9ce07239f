#include "screens/widgets/text_drops.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace kav {
namespace {

/// The time from one line to the next while something is held near an edge.
constexpr int kScrollMilliseconds = 100;

/// The frame around what would change.
class LandingMark final : public QWidget {
 public:
  explicit LandingMark(QWidget* cells) : QWidget(cells) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

  void ShowAt(const QRect& area) {
    setGeometry(area);
    setVisible(!area.isEmpty());
    raise();
  }

 private:
  void paintEvent(QPaintEvent*) override {
    constexpr float kTint = 0.2F;
    const int line = std::max(2, fontMetrics().height() / 8);
    QColor colour = palette().color(QPalette::Highlight);
    QPainter painter(this);
    painter.setPen(QPen(colour, line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    colour.setAlphaF(kTint);
    painter.setBrush(colour);
    painter.drawRect(QRectF(rect()).adjusted(line / 2., line / 2., -line / 2., -line / 2.));
  }
};

class TextDrops final : public QObject {
 public:
  TextDrops(QAbstractScrollArea& cells, TextDropHooks hooks)
      : QObject(&cells), cells_(cells), hooks_(std::move(hooks)) {
    cells.viewport()->setAcceptDrops(true);
    cells.viewport()->installEventFilter(this);
  }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
        Enter(static_cast<QDragEnterEvent&>(*event));
        return true;
      case QEvent::DragMove:
        Answer(static_cast<QDropEvent&>(*event));
        return true;
      case QEvent::DragLeave:
        End();
        return true;
      case QEvent::Drop:
        Drop(static_cast<QDropEvent&>(*event));
        return true;
      default:
        return false;
    }
  }

  void Enter(QDropEvent& event) {
    const QMimeData& data = *event.mimeData();
    // A program that drags a file offers its name as a text.
    text_ = data.hasText() && !data.hasUrls() ? data.text().toStdU16String() : std::u16string();
    Answer(event);
    // Where nothing can be dropped at first, something may be a little further.
    if (!text_.empty()) event.accept();
  }

  /// Shows where it would land, and says to where it comes from whether it would.
  void Answer(QDropEvent& event) {
    place_ = event.position().toPoint();
    const bool isTaken = Mark();
    event.setAccepted(isTaken);
    if (!isTaken) return;
    if (event.possibleActions().testFlag(Qt::CopyAction)) event.setDropAction(Qt::CopyAction);
    event.accept();
    Scroll();
  }

  bool Mark() {
    const bool isOpen = cells_.isEnabled() && !text_.empty();
    const QRect area = isOpen ? hooks_.landing(place_, text_) : QRect();
    if (mark_ == nullptr && !area.isEmpty()) mark_ = new LandingMark(cells_.viewport());
    if (mark_ != nullptr) mark_->ShowAt(area);
    return !area.isEmpty();
  }

  void Drop(QDropEvent& event) {
    Answer(event);
    const bool isTaken = event.isAccepted();
    std::u16string text = std::exchange(text_, {});
    End();
    if (!isTaken) return;
    // The other program waits until this event is done.
    QTimer::singleShot(
        0, this, [this, place = place_, text = std::move(text)] { hooks_.drop(place, text); });
  }

  void End() {
    text_.clear();
    scrolling_.stop();
    if (mark_ != nullptr) mark_->hide();
  }

  // Near an edge.

  /// -1 near the start of a room of `size` pixels, 1 near its end, else 0.
  int SideOf(int place, int size) const {
    const int edge = std::min(cells_.fontMetrics().height(), size / 4);
    return (place >= size - edge ? 1 : 0) - (place < edge ? 1 : 0);
  }

  QPoint Sides() const {
    const QSize room = cells_.viewport()->size();
    return {SideOf(place_.x(), room.width()), SideOf(place_.y(), room.height())};
  }

  void Scroll() {
    if (Sides().isNull()) {
      scrolling_.stop();
    } else if (!scrolling_.isActive()) {
      scrolling_.start(kScrollMilliseconds, this);
    }
  }

  void timerEvent(QTimerEvent*) override {
    const QPoint sides = Sides();
    const auto move = [](QScrollBar& bar, int side) {
      bar.setValue(bar.value() + side * bar.singleStep());
    };
    move(*cells_.horizontalScrollBar(), sides.x());
    move(*cells_.verticalScrollBar(), sides.y());
    Mark();
  }

  QAbstractScrollArea& cells_;
  TextDropHooks hooks_;
  std::u16string text_;  ///< what is being dragged; empty while nothing is
  QPoint place_;
  LandingMark* mark_ = nullptr;
  QBasicTimer scrolling_;
};

}  // namespace

void TakeTextDrops(QAbstractScrollArea& cells, TextDropHooks hooks) {
  new TextDrops(cells, std::move(hooks));
}

}  // namespace kav
