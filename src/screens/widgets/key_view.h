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
  std::vector<FaceText> captions;  ///< all that it may ever show
  std::string_view shortcut = {};  ///< such as "Alt+D"; empty for none
  bool repeats = false;            ///< goes on working while it is held
};

/// What keys have written on them.
enum class KeyLettering { Captions, Shortcuts };

/// A button painted in the colours of its key; the owner gives it a caption and connects it. It
/// takes the focus only by the Tab key, so that a tap leaves the caret where it is. The mouse that
/// rests on it is told what it does.
class KeyView final : public QAbstractButton {
 public:
  KeyView(KeySpot spot, QWidget* parent);

  const KeySpot& Spot() const { return spot_; }

  /// Shows `caption`, one of the spot's.
  void Show(const QString& caption);
  /// Keys without a shortcut keep their caption.
  void Show(KeyLettering lettering);

  /// Captions are written `pixels` high.
  void SetTextHeight(int pixels);
  QFont TextFont() const;

  /// The room for a caption, in pixels across.
  int TextWidth() const;

 private:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  bool EndsRepeating();

  KeySpot spot_;
  FaceText CaptionNow() const;

  bool hasRepeated_ = false;  ///< since it was pressed
  int textHeight_ = 1;
  KeyLettering lettering_ = KeyLettering::Captions;
  bool isTouched_ = false;  ///< by a finger, which rests on no key
};

}  // namespace kav
