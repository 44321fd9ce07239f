// The list of constants as a widget.
#pragma once

#include <QTreeView>
#include <functional>

#include "memory/constants_model.h"

namespace kav {

/// The rows of a model that are shown, by name and value; who selects one here selects it there.
class ConstantsView final : public QTreeView {
 public:
  /// `model` must outlive it; `onSelect` is called after each change of the selection.
  ConstantsView(ConstantsModel& model, std::function<void()> onSelect);

  /// The model shows other rows.
  void Reload();

  /// Moves the selection where `key` is one that moves between rows; whether it is.
  bool TakeKey(int key);

 private:
  class Rows;

  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  void OnSelection();
  void ShowSelection();
  int RowsOnAPage() const;

  ConstantsModel& model_;
  std::function<void()> onSelect_;
  Rows* rows_;
};

}  // namespace kav
