// What a new matrix is like: the part of the display settings that only matrices have.
#pragma once

#include <QWidget>

#include "display/display_settings_model.h"

class QComboBox;
class QLineEdit;

namespace kav {

/// Hands what is typed and chosen to `model`, which must outlive it.
class MatrixDefaultsView final : public QWidget {
 public:
  explicit MatrixDefaultsView(DisplaySettingsModel& model);

  /// Shows what the model has.
  void Refresh();
  QLineEdit& ColumnWidth() const { return *columnWidth_; }

 private:
  void LayOut();
  void Connect();

  DisplaySettingsModel& model_;
  QLineEdit* columnWidth_;
  QComboBox* rows_;
  QComboBox* columns_;
  QComboBox* alignment_;
};

}  // namespace kav
