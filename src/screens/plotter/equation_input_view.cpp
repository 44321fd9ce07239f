#include "screens/plotter/equation_input_view.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "plotter/plotter_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kLines = 2;
/// Of the height of the whole.
constexpr double kInputTextHeight = 0.31;

}  // namespace

EquationInputView::EquationInputView(QWidget* parent)
    : QWidget(parent), formula_(new FormulaView(kLines)) {
  formula_->setParent(this);
  formula_->setFrameShape(QFrame::NoFrame);
  formula_->setAccessibleName(ToQt(kEquationInputName));
  // Each by itself: a style is not handed on to those within.
  formula_->setStyle(ScreenStyle());
  for (auto* part : formula_->findChildren<QWidget*>()) part->setStyle(ScreenStyle());
  formula_->installEventFilter(this);
  OpenDoor(*formula_);
  setFocusProxy(formula_);
}

void EquationInputView::Edit(EditCommand command) {
  switch (command) {
    case EditCommand::Undo:
      return formula_->undo();
    case EditCommand::Redo:
      return formula_->redo();
    case EditCommand::Cut:
      return formula_->cut();
    case EditCommand::Copy:
      return formula_->copy();
    case EditCommand::Paste:
      return formula_->paste();
    case EditCommand::SelectAll:
      return formula_->selectAll();
  }
}

bool EquationInputView::CanEdit(EditCommand command) const {
  switch (command) {
    case EditCommand::Undo:
      return formula_->document()->isUndoAvailable();
    case EditCommand::Redo:
      return formula_->document()->isRedoAvailable();
    case EditCommand::Cut:
    case EditCommand::Copy:
      return formula_->textCursor().hasSelection();
    case EditCommand::Paste:
    case EditCommand::SelectAll:
      break;
  }
  return true;
}

bool EquationInputView::eventFilter(QObject* watched, QEvent* event) {
  // The outline shows where the focus is.
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
  return QWidget::eventFilter(watched, event);
}

void EquationInputView::paintEvent(QPaintEvent*) {
  QStyleOptionFrame box;
  box.initFrom(this);
  box.fontMetrics = formula_->fontMetrics();
  box.state.setFlag(QStyle::State_HasFocus, formula_->hasFocus());
  QPainter painter(this);
  ScreenStyle()->drawPrimitive(QStyle::PE_PanelLineEdit, &box, &painter, this);
}

void EquationInputView::resizeEvent(QResizeEvent*) {
  FitText();
}

void EquationInputView::FitText() {
  const double usual = height() * kInputTextHeight;
  const int most = qRound(usual * TextShare());
  // Larger letters get no larger room around them: the lines have to share the height with it.
  const int around = std::min(most, qRound(usual));
  const int outline = std::max(2, around / 6);
  // Each line has its part of what outline and margins leave of the height.
  const int text = PixelsForLine(most, (height() - 2 * outline - around / 4.0) / kLines);
  formula_->setFont(ScreenFont(text));
  formula_->document()->setDocumentMargin(text / 8.0);
  // As many lines as are seen whole: a part of a further one could not be read.
  const QRect within = rect().adjusted(outline, outline, -outline, -outline);
  const double margin = formula_->document()->documentMargin();
  const double line = QFontMetricsF(formula_->font()).lineSpacing();
  const int lines = std::max(kLines, static_cast<int>((within.height() - 2 * margin) / line));
  const int needed = static_cast<int>(std::ceil(lines * line + 2 * margin));
  formula_->setGeometry(within.x(), within.y(), within.width(), std::min(within.height(), needed));
}

}  // namespace kav
