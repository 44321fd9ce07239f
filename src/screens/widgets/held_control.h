// The Ctrl key, held alone.
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <functional>
#include <utility>

#include "screens/widgets/key_view.h"

class QKeyEvent;

namespace kav {

/// Has the keys show their shortcuts while Ctrl is held alone: not at once, so that whoever copies
/// does not see them flash, and until it is released or anything else is pressed.
class HeldControl final : public QObject {
 public:
  explicit HeldControl(std::function<void(KeyLettering)> show) : show_(std::move(show)) {}

  /// To be told each key before it is pressed.
  void Hear(const QKeyEvent& key);

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void End();

  std::function<void(KeyLettering)> show_;
  QBasicTimer timer_;
  bool isShown_ = false;
};

}  // namespace kav
