#include "screens/widgets/word_selection.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextCursor>
#include <cstddef>
#include <string>

#include "line/word_at.h"
#include "screens/widgets/line_view.h"

namespace kav {
namespace {

/// `place` moved by half a letter: the toolkit finds the caret's place nearest to a point, which
/// for the right half of a letter is behind it.
QPoint BeforeLetterAt(QPoint place, const QWidget& widget) {
  return place - QPoint(widget.fontMetrics().horizontalAdvance(u'0') / 2, 0);
}

void SelectIn(QLineEdit& line, QPoint place) {
  const auto* view = dynamic_cast<const LineView*>(&line);
  const BaseMode base = view != nullptr ? view->Base() : BaseMode::Decimal;
  const int at = line.cursorPositionAt(BeforeLetterAt(place, line));
  const std::u16string text = line.text().toStdU16String();
  const Selection word = WordAt(text, static_cast<std::size_t>(at), base);
  line.setSelection(static_cast<int>(word.start), static_cast<int>(word.end - word.start));
}

void SelectIn(QPlainTextEdit& formula, QPoint place) {
  QTextCursor cursor = formula.cursorForPosition(BeforeLetterAt(place, formula));
  const std::u16string text = formula.toPlainText().toStdU16String();
  const Selection word =
      WordAt(text, static_cast<std::size_t>(cursor.position()), BaseMode::Decimal);
  cursor.setPosition(static_cast<int>(word.start));
  cursor.setPosition(static_cast<int>(word.end), QTextCursor::KeepAnchor);
  formula.setTextCursor(cursor);
}

}  // namespace

bool SelectWord(QObject& watched, QEvent& event) {
  static bool isHandled = false;  // the click comes here once more on its way to the widget
  if (isHandled || event.type() != QEvent::MouseButtonDblClick) return false;
  const auto& click = static_cast<const QMouseEvent&>(event);
  if (click.button() != Qt::LeftButton) return false;
  const QPointer<QLineEdit> line = qobject_cast<QLineEdit*>(&watched);
  QPointer<QPlainTextEdit> formula = qobject_cast<QPlainTextEdit*>(watched.parent());
  if (formula != nullptr && formula->viewport() != &watched) formula = nullptr;
  if (line == nullptr && formula == nullptr) return false;
  const QPoint place = click.position().toPoint();
  // First the widget, which counts the clicks: a third one takes all.
  isHandled = true;
  QCoreApplication::sendEvent(&watched, &event);
  isHandled = false;
  if (line != nullptr) SelectIn(*line, place);
  if (formula != nullptr) SelectIn(*formula, place);
  return true;
}

}  // namespace kav
