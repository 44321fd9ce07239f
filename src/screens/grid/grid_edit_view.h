// The box in which the text of a cell is edited.
#pragma once

#include <QLineEdit>

namespace kav {

/// A line that lies over a cell and is hidden at first.
class GridEdit final : public QLineEdit {
 public:
  static constexpr int kLongestText = 1000;

  explicit GridEdit(QWidget* parent);

  /// What was typed, on one line.
  QString TypedText() const;

 private:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace kav
