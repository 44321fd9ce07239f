// The part of the display settings that tells what a new matrix is like.
#pragma once

#include <QWidget>

#include "display/display_settings_model.h"

class QComboBox;
class QLineEdit;

namespace kav {

/// Hands what the user types and chooses to a model.
class MatrixDefaultsView final : public QWidget {
 public:
  /// `model` must outlive the view.
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
