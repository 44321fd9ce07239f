// The part of a window that is its screen.
#pragma once

#include <QRect>

namespace kav {

/// A window that shows something beside its screen, where it has room for both.
class HasScreenPart {
 public:
  HasScreenPart() = default;
  HasScreenPart(const HasScreenPart&) = delete;
  HasScreenPart& operator=(const HasScreenPart&) = delete;
  virtual ~HasScreenPart() = default;

  /// What is the screen's, in pixels of the window.
  virtual QRect ScreenPart() const = 0;
};

}  // namespace kav
