// What can be done with a result besides reading it.
#pragma once

#include <QDeadlineTimer>
#include <QLabel>
#include <QMouseEvent>
#include <QObject>
#include <QPoint>
#include <functional>
#include <optional>
#include <string>

#include "screens/widgets/line_view.h"

namespace kav {

/// Ctrl+C in a result of which nothing is selected copies all of it. A mouse pressed on what is
/// selected drags that. Elsewhere it selects while it stays in the result, and drags all of it once
/// it leaves upwards or downwards. What is dragged is dropped in plain digits.
class ResultUses final : public QObject {
 public:
  /// `copied` is what the result is for other programs; nullopt if there is none. `result` owns
  /// this.
  ResultUses(ResultView* result, std::function<std::optional<std::u16string>()> copied);

  /// Whether something was copied.
  bool Copy() const;

 private:
  /// What the pressed mouse would drag.
  enum class Held { Nothing, Selection, Result };

  bool eventFilter(QObject* watched, QEvent* event) override;
  // Whether the line is not to hear of it.
  bool Press(const QMouseEvent& event);
  bool Move(QPoint place);
  bool Release();
  void Drag(const std::u16string& text);

  ResultView& result_;
  std::function<std::optional<std::u16string>()> copied_;
  Held held_ = Held::Nothing;
  QPoint pressedAt_;
  QDeadlineTimer thirdClick_;  ///< until when another click is the third one
};

/// Puts a text on the clipboard.
void CopyText(const std::u16string& text);

/// The small M at the left of a result line, there while the memory register is not 0.
class MemoryMark final : public QLabel {
 public:
  explicit MemoryMark(ResultView* result);

  /// `value` as it is shown; empty for 0.
  void Show(const std::u16string& value);
  /// Takes its place in the result line.
  void LayOut();

 private:
  ResultView& result_;
};

}  // namespace kav
