// The list of constants as a widget.
#pragma once

#include <QStringList>
#include <QTreeView>
#include <functional>

#include "memory/constants_model.h"

namespace kav {

/// Shows the filtered rows of a model by name and value, and selects in it what the user selects.
class ConstantsView final : public QTreeView {
 public:
  /// `model` must outlive the view. `onSelect` is called after each change of the selection.
  ConstantsView(ConstantsModel& model, std::function<void()> onSelect);

  /// To be called when the model has other rows.
  void Reload();

  /// Moves the selection if `key` (Qt::Key) moves between rows. Returns whether it does.
  bool TakeKey(int key);

  QSize minimumSizeHint() const override;

 private:
  class TableModel;

  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

  void LayOutColumns();
  void OnSelection();
  void ShowSelection();
  int RowsOnAPage() const;

  ConstantsModel& model_;
  std::function<void()> onSelect_;
  TableModel* table_;
  QStringList longValues_;  ///< those that may be the widest
  int widestValue_ = 0;     ///< in pixels
};

}  // namespace kav
