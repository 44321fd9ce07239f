#include "screens/widgets/formula_view.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <optional>

#include "display/own_spelling.h"
#include "line/expression_line.h"
#include "screens/widgets/line_marks.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

std::u16string InOneLine(const QString& text) {
  std::u16string line = text.toStdU16String();
  std::replace_if(
      line.begin(), line.end(),
      [](char16_t c) {
        return c < u' ' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
      },
      u' ');
  return line;
}

}  // namespace

FormulaView::FormulaView(int lines) : lines_(lines) {
  setTabChangesFocus(true);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { MarkPair(); });
  connect(this, &QPlainTextEdit::selectionChanged, this, [this] { MarkPair(); });
  connect(this, &QPlainTextEdit::textChanged, this, [this] { MarkPair(); });
}

ExpressionLine FormulaView::Line() const {
  const QTextCursor cursor = textCursor();
  ExpressionLine line;
  line.Set(InOneLine(toPlainText()), {static_cast<std::size_t>(cursor.selectionStart()),
                                      static_cast<std::size_t>(cursor.selectionEnd())});
  return line;
}

void FormulaView::Write(const ExpressionLine& line) {
  if (isEnabled()) {
    Change(ChangeBetween(toPlainText().toStdU16String(), line.Text()));
  } else {
    setPlainText(QString::fromStdU16String(line.Text()));
  }
  Select(line.Selected());
}

void FormulaView::Change(const TextChange& change) {
  if (change.length == 0 && change.text.empty()) return;
  Select({change.start, change.start + change.length});
  // A block of edits is a step of its own for undo.
  QTextCursor cursor = textCursor();
  cursor.beginEditBlock();
  cursor.insertText(ToQt(change.text));
  cursor.endEditBlock();
}

void FormulaView::Select(Selection selection) {
  // Characters that mean something to documents may have been left out of the text.
  const auto place = [end = document()->characterCount() - 1](std::size_t position) {
    return std::min(static_cast<int>(position), end);
  };
  QTextCursor cursor = textCursor();
  cursor.setPosition(place(selection.start));
  cursor.setPosition(place(selection.end), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void FormulaView::MarkPair() {
  const ExpressionLine line = Line();
  QList<QTextEdit::ExtraSelection> marks;
  for (const MarkedPart& part : MarkedParts(line.Text(), line.Selected(), std::nullopt)) {
    QTextCursor place(document());
    place.setPosition(part.start);
    place.setPosition(part.start + part.length, QTextCursor::KeepAnchor);
    marks.append({place, FormatOf(part.mark, palette())});
  }
  if (!marks.isEmpty() || !extraSelections().isEmpty()) setExtraSelections(marks);
}

bool FormulaView::IsInFirstRow() const {
  const QTextCursor cursor = textCursor();
  const QTextLine row = cursor.block().layout()->lineForTextPosition(cursor.positionInBlock());
  return !row.isValid() || row.lineNumber() == 0;
}

void FormulaView::KeepHeight() {
  keptHeight_ = 0;
  keptHeight_ = minimumSizeHint().height();
  // A layout without enough room may still take a little of it, which a fixed height forbids.
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  updateGeometry();
}

QSize FormulaView::sizeHint() const {
  const QSize size = SizeOf(lines_);
  return keptHeight_ > 0 ? QSize(size.width(), keptHeight_) : size;
}

QSize FormulaView::minimumSizeHint() const {
  if (keptHeight_ > 0) return sizeHint();
  constexpr int kFewest = 2;
  const int lines = qRound(lines_ / std::max(TextShare(), 1.0));
  return SizeOf(std::min(std::max(lines, kFewest), lines_));
}

QSize FormulaView::SizeOf(int lines) const {
  const int line = fontMetrics().lineSpacing();
  const int around = 2 * (qRound(document()->documentMargin()) + frameWidth());
  // Lines are laid out in fractions of pixels, and the last must not miss one.
  return {10 * line, lines * line + around + line / 4};
}

void FormulaView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return event->ignore();
  QPlainTextEdit::keyPressEvent(event);
}

void FormulaView::insertFromMimeData(const QMimeData* source) {
  // Before line breaks are blanks: one at the end is dropped.
  const std::u16string own = OwnPiece(0, source->text().toStdU16String(), 0);
  textCursor().insertText(
      QString::fromStdU16String(ShownText(InOneLine(QString::fromStdU16String(own)))));
  ensureCursorVisible();
}

void FormulaView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) updateGeometry();
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) MarkPair();
}

}  // namespace kav
