// The input of the plotter's screen as a widget.
#pragma once

#include <QWidget>

#include "screens/widgets/formula_view.h"
#include "screens/widgets/screen.h"

namespace kav {

/// A formula of two lines in a box like that of a field.
class EquationInputView final : public QWidget {
 public:
  explicit EquationInputView(QWidget* parent);

  /// Gives the letters their size.
  void FitText();

  FormulaView& Formula() const { return *formula_; }

  // What the Edit menu does to it, and whether there is something to do.
  void Edit(EditCommand command);
  bool CanEdit(EditCommand command) const;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  FormulaView* formula_;
};

}  // namespace kav
