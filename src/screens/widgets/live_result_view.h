// The result of a line while it is being typed, in a corner of that line.
#pragma once

#include <QLabel>
#include <QRect>
#include <string_view>

namespace kav {

/// A small text that is not in anybody's way: taps go through it, and it is not drawn where it
/// would touch what is typed. Screen readers find it, and are not told of each change.
class LiveResultView final : public QLabel {
 public:
  /// Lies over `line`, hidden.
  explicit LiveResultView(QWidget* line);

  void Say(std::u16string_view result);

  /// Shows it in the lower right corner of `box`, in letters of `pixels`, unless that is within a
  /// letter's width of `text`.
  void Place(const QRect& box, const QRect& text, int pixels);

 private:
  void changeEvent(QEvent* event) override;
  void Dress();
};

}  // namespace kav
