// The lines of a screen as widgets: what was typed into them, and what a model writes there.
#pragma once

#include <QLineEdit>
#include <string>

#include "engine/calc_modes.h"
#include "line/expression_line.h"

namespace kav {

/// A line in a plain box. It keeps its selection while the focus is elsewhere, because the keys of
/// the screen work on the selection. Line breaks and tabs become blanks: pasted text often ends
/// with one, and no key could write it.
class LineView : public QLineEdit {
 public:
  explicit LineView(QWidget* parent);

  /// Letters are `pixels` high, or lower if the line would not fit the widget's present height.
  virtual void SetTextHeight(int pixels);

  /// In which base its numbers are.
  BaseMode Base() const { return base_; }
  void SetBase(BaseMode base) { base_ = base; }

 protected:
  /// How thick the outline is that shows the focus.
  double FocusLine() const;

  void initStyleOption(QStyleOptionFrame* option) const override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  BaseMode base_ = BaseMode::Decimal;
};

/// The text of the line, and the ends of its selection from left to right, whichever way it was
/// made. Line breaks and tabs read as blanks: what is pasted often ends with one.
std::u16string TextOf(const QLineEdit& line);
Selection SelectionOf(const QLineEdit& line);

/// Both together.
ExpressionLine LineIn(const QLineEdit& line);

/// Makes the widget show `line`. What changes is one step for the line's undo.
void WriteLine(QLineEdit& widget, const ExpressionLine& line);

/// A read-only line, right-aligned. Letters are as large as its height allows, and smaller for a
/// long text. If even that is too long, it shows its beginning and scrolls.
class ResultView final : public LineView {
 public:
  explicit ResultView(QWidget* parent);

  void Show(const std::u16string& text);
  void LayOut(const QRect& place);
  /// Keeps a long text off what stands at the left.
  void LeaveAtLeft(int pixels);

 private:
  void FitText();

  int atLeft_ = 0;
};

}  // namespace kav
