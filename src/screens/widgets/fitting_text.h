// A text that gets smaller letters if it is too long for its place.
#pragma once

#include <QResizeEvent>
#include <QString>
#include <algorithm>
#include <vector>

#include "screens/widgets/look.h"

namespace kav {

/// A `Widget` that shows a text of one or more lines, as wide as its place. It is always as high as
/// with its largest letters, so that a change of the text moves nothing.
template <class Widget>
class FittingText : public Widget {
 public:
  /// Beside a text, `free` times the height of its letters stays free.
  explicit FittingText(double free) : free_(free) {}

  void Write(const QString& text) {
    if (this->text() != text) this->setText(text);
    Fit(most_);
  }

  /// Letters are `most` pixels high at most.
  void Fit(int most) {
    if (most != most_) {
      most_ = most;
      this->setFont(ScreenFont(most));
      height_ = Widget::sizeHint().height();
    }
    const int room = this->width() - qRound(free_ * most);
    std::vector<SpacedText> lines;
    for (const QString& line : this->text().split(u'\n')) lines.push_back({line, room});
    const int pixels = FittingPixels(lines, most, 1);
    if (this->font().pixelSize() != pixels) this->setFont(ScreenFont(pixels));
  }

  QSize sizeHint() const override { return {0, height_}; }
  QSize minimumSizeHint() const override { return {0, height_}; }

 private:
  void resizeEvent(QResizeEvent* event) override {
    Fit(most_);
    Widget::resizeEvent(event);
  }

  double free_;
  int most_ = 1;
  int height_ = 0;
};

}  // namespace kav
