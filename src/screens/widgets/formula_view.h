// An input for a formula, wrapped over several lines.
#pragma once

#include <QPlainTextEdit>

#include "line/expression_line.h"

namespace kav {

/// A formula is one line, even if it is shown wrapped. Enter is left to the dialog, Tab moves on,
/// and line breaks and tabs in pasted text become blanks. The parentheses at the caret are marked.
class FormulaView final : public QPlainTextEdit {
 public:
  /// As high as `lines` lines of text; more of them scroll. In letters larger than usual, it needs
  /// only the height that these lines have in the usual ones.
  explicit FormulaView(int lines);

  /// Keeps the height that it needs in the letters of now, also in smaller ones.
  void KeepHeight();

  /// The text, and the ends of its selection from left to right, whichever way it was made.
  ExpressionLine Line() const;

  /// Makes the widget show `line`. What changes is one step for undo; while the widget is disabled,
  /// it is a new beginning instead, with nothing to be undone.
  void Write(const ExpressionLine& line);

  /// Whether the caret stands in the first of the rows over which the formula is wrapped.
  bool IsInFirstRow() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  void keyPressEvent(QKeyEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  void changeEvent(QEvent* event) override;

  QSize SizeOf(int lines) const;
  void Change(const TextChange& change);
  void Select(Selection selection);
  void MarkPair();

  int lines_;
  int keptHeight_ = 0;  ///< 0 if none is kept
};

}  // namespace kav
