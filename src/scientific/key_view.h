// One key of the keypad as a widget.
#pragma once

#include <QAbstractButton>

#include "scientific/keypad.h"

namespace kav {

/// A button painted in the colours of its key: what it does and how it is called is up to its
/// owner. It takes the focus by the Tab key only, so that a tap leaves the caret where it is.
class KeyView final : public QAbstractButton {
 public:
  KeyView(const KeyPlace& place, QWidget* parent);

  const KeyPlace& Place() const { return place_; }

  /// Captions are written `pixels` high.
  void SetTextHeight(int pixels);
  QFont TextFont() const;

  /// The room for a caption, in pixels across.
  int TextWidth() const;

 private:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  QColor Background() const;
  QColor TextColour() const;

  const KeyPlace& place_;
  int textHeight_ = 1;
};

}  // namespace kav
