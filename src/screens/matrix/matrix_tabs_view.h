// The tabs of the matrix screen.
#pragma once

#include <QTabBar>

namespace kav {

/// A tab for each matrix. Together they fill the strip: what their texts leave of its width they
/// share alike.
class MatrixTabs final : public QTabBar {
 public:
  explicit MatrixTabs(QWidget* parent);

  void LayOut(const QRect& place);

 private:
  void resizeEvent(QResizeEvent* event) override;
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
  void FitTexts();
  int TextWidth(int index) const;
};

}  // namespace kav
