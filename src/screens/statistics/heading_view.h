// The headings of a table of data.
#pragma once

#include <QHeaderView>

namespace kav {

/// Headings that can be clicked and dragged. The arrow of the sorted column, setSortIndicator's,
/// stands above its heading, where it takes no room from the letters: upwards if the values grow.
class HeadingView final : public QHeaderView {
 public:
  explicit HeadingView(QWidget* parent);

 private:
  void paintSection(QPainter* painter, const QRect& area, int column) const override;
};

}  // namespace kav
