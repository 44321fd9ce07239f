// The menu bar of a screen.
#pragma once

#include <QMenuBar>

namespace kav {

/// A menu bar with room around its titles in proportion to their size. It shows which menu the
/// keyboard has chosen, even if that is not open. Tab leaves it; the arrows move among its menus.
class BottomMenuBar final : public QMenuBar {
 public:
  explicit BottomMenuBar(QWidget* parent);

  /// Highlights the first menu, as for a user who presses and releases Alt.
  void Enter();

 private:
  void actionEvent(QActionEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace kav
