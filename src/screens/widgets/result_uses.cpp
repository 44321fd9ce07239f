#include "screens/widgets/result_uses.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

#include "display/copied_text.h"
#include "line/line_texts.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {

void CopyText(const std::u16string& text) {
  const QString copied = QString::fromStdU16String(text);
  QApplication::clipboard()->setText(copied);
}

ResultUses::ResultUses(ResultView* result, std::function<std::optional<std::u16string>()> copied)
    : QObject(result), result_(*result), copied_(std::move(copied)) {
  result_.installEventFilter(this);
}

bool ResultUses::Copy() const {
  const auto text = copied_();
  if (text) CopyText(*text);
  return text.has_value();
}

bool ResultUses::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: {
      const bool copies = static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy);
      return copies && !result_.hasSelectedText() && Copy();
    }
    case QEvent::MouseButtonDblClick:
      thirdClick_.setRemainingTime(QApplication::doubleClickInterval());
      return false;
    case QEvent::MouseButtonPress:
      return Press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return Move(static_cast<QMouseEvent*>(event)->position().toPoint());
    case QEvent::MouseButtonRelease:
      return Release();
    default:
      return false;
  }
}

bool ResultUses::Press(const QMouseEvent& event) {
  held_ = Held::Nothing;
  // A third click takes all, as in every line.
  if (event.button() != Qt::LeftButton || !thirdClick_.hasExpired()) return false;
  pressedAt_ = event.position().toPoint();
  const int at = result_.cursorPositionAt(pressedAt_);
  const bool isOnSelection =
      result_.hasSelectedText() && at >= result_.selectionStart() && at <= result_.selectionEnd();
  held_ = isOnSelection ? Held::Selection : Held::Result;
  // The line would give up its selection.
  return isOnSelection;
}

bool ResultUses::Move(QPoint place) {
  if (held_ == Held::Nothing) return false;
  const int distance = QApplication::startDragDistance();
  if (held_ == Held::Selection) {
    if ((place - pressedAt_).manhattanLength() >= distance) {
      Drag(PlainDigits(result_.selectedText().toStdU16String()));
    }
    return true;
  }
  // Within the line the mouse selects.
  if (place.y() >= -distance && place.y() < result_.height() + distance) return false;
  const auto text = copied_();
  if (!text) return false;
  result_.selectAll();
  Drag(*text);
  return true;
}

bool ResultUses::Release() {
  const Held held = std::exchange(held_, Held::Nothing);
  if (held != Held::Selection) return false;
  result_.deselect();
  return true;
}

void ResultUses::Drag(const std::u16string& text) {
  held_ = Held::Nothing;
  auto* data = new QMimeData;
  data->setText(QString::fromStdU16String(text));
  auto* drag = new QDrag(&result_);
  drag->setMimeData(data);
  drag->exec(Qt::CopyAction);
  result_.deselect();
}

MemoryMark::MemoryMark(ResultView* result) : QLabel(ToQt(kMemoryMark), result), result_(*result) {
  setAccessibleName(ToQt(kMemoryName));
  setAutoFillBackground(true);
  setAlignment(Qt::AlignCenter);
  hide();
}

void MemoryMark::Show(const std::u16string& value) {
  const QString text = value.empty() ? QString() : ToQt(MemoryIs(value));
  setToolTip(text);
  setAccessibleDescription(text);
  setVisible(!value.empty());
  LayOut();
}

void MemoryMark::LayOut() {
  constexpr double kHeight = 0.5;  // of the result line
  const int edge = std::max(2, result_.height() / 10);
  setFont(ScreenFont(PixelsForLine(result_.height(), result_.height() * kHeight)));
  const QSize needed = sizeHint();
  setGeometry(edge, edge, needed.width(), qRound(result_.height() * kHeight));
  result_.LeaveAtLeft(isHidden() ? 0 : needed.width());
}

}  // namespace kav
