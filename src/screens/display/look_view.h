// The part of the display settings that is about the look of all windows.
#pragma once

#include <QWidget>

#include "display/display_settings_model.h"

class QCheckBox;
class QComboBox;

namespace kav {

/// Hands what the user chooses to a model.
class LookView final : public QWidget {
 public:
  /// `model` must outlive the view.
  explicit LookView(DisplaySettingsModel& model);

  /// Shows what the model has.
  void Refresh();

 private:
  void TakeChoice();

  DisplaySettingsModel& model_;
  QComboBox* colours_;
  QCheckBox* liveResult_;
};

}  // namespace kav
