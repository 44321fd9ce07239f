// The keys of the scientific screen as widgets.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "app/look.h"
#include "scientific/key_view.h"
#include "scientific/scientific_model.h"

namespace kav {

/// All keys, each where its table has it: a sheet that lies over the whole body of the screen,
/// under the two lines.
class KeypadView final : public QWidget {
 public:
  /// `onKey` is called when a key is tapped, or pressed by the Space key or its shortcut.
  KeypadView(QWidget* parent, const std::function<void(Key)>& onKey);

  /// Shows the keys as they are in `model`; those that are not `offered` cannot be pressed.
  void Refresh(const ScientificModel& model, const std::function<bool(Key)>& offered);

  void LayOut(const DialogUnits& units);

  /// Gives the focus to the first key.
  void Enter();

  /// Where a key is, in the coordinates of this widget.
  QRect KeyArea(Key key) const;

 private:
  void keyPressEvent(QKeyEvent* event) override;
  KeyView* Neighbour(const KeyView& from, QPoint direction) const;

  std::vector<KeyView*> keys_;
};

}  // namespace kav
