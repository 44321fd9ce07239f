// One key of a screen as a widget.
#pragma once

#include <QAbstractButton>
#include <QRect>
#include <string_view>
#include <vector>

#include "line/keypad.h"

namespace kav {

/// What a key is, whatever it shows at the moment.
struct KeySpot {
  int id;       ///< its owner's name for it
  QRect place;  ///< in dialog units
  KeyColour colour;
  std::vector<std::u16string_view> captions;  ///< all that it may ever show
  std::string_view shortcut = {};             ///< such as "Alt+D"; empty for none
  std::u16string_view description = {};       ///< for screen readers, beside its caption
};

/// A button painted in the colours of its key; the owner gives it a caption and connects it. It
/// takes the focus only by the Tab key, so that a tap leaves the caret where it is.
class KeyView final : public QAbstractButton {
 public:
  KeyView(KeySpot spot, QWidget* parent);

  const KeySpot& Spot() const { return spot_; }

  /// Captions are written `pixels` high.
  void SetTextHeight(int pixels);
  QFont TextFont() const;

  /// The room for a caption, in pixels across.
  int TextWidth() const;

 private:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  KeySpot spot_;
  int textHeight_ = 1;
};

}  // namespace kav
