// The menu bar of a screen.
#pragma once

#include <QMenuBar>

namespace kav {

/// A menu bar with room around its titles in proportion to their size. It shows which menu the
/// keyboard has chosen, even if that is not open. Tab leaves it; the arrows move among its menus.
/// They have its letters, smaller ones where they would be wider than the window.
class BottomMenuBar final : public QMenuBar {
 public:
  explicit BottomMenuBar(QWidget* parent);

  /// Writes the titles in `font`. The bar takes its look only then: to measure it in the font of
  /// the desktop before, which nothing is written in, would cost each start the load of one more
  /// font.
  void SetLetters(const QFont& font);

  /// Highlights the first menu, as for a user who presses and releases Alt.
  void Enter();

 private:
  void actionEvent(QActionEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace kav
