// What dialogs ask of the screen that they stand over.
#pragma once

#include <optional>

#include "line/guide_pages.h"
#include "line/screen_commands.h"

class QWidget;

namespace kav {

/// A screen, as the dialogs over it see it.
class GuideCaller {
 public:
  GuideCaller() = default;
  GuideCaller(const GuideCaller&) = delete;
  GuideCaller& operator=(const GuideCaller&) = delete;
  virtual ~GuideCaller() = default;

  /// Opens the guide beside `window`, this screen or a dialog over it; nullopt for the page of the
  /// screen.
  virtual void OpenGuide(QWidget* window, std::optional<GuidePage> page) = 0;
  /// Carries out what one of its shortcuts does.
  virtual void Obey(ScreenCommand command) = 0;
};

}  // namespace kav
