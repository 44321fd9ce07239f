// The guide on the screen.
#pragma once

#include <memory>

#include "line/guide_pages.h"

class QDialog;
class QWidget;

namespace kav {

/// Shows the guide at `page` over `parent` until it is closed.
void RunGuide(QWidget* parent, GuidePage page);

/// The guide as a window of its own, made when it is first opened.
class Guide final {
 public:
  Guide();
  Guide(const Guide&) = delete;
  Guide& operator=(const Guide&) = delete;
  ~Guide();

  /// Shows it at `page`, beside `window`, and returns at once. A window that waits for an answer
  /// would keep the keyboard from it: over such a one it is opened by RunGuide.
  void Open(QWidget* window, GuidePage page);

 private:
  std::unique_ptr<QDialog> dialog_;
};

}  // namespace kav
