// The dialog of the display settings: how numbers are shown, and what a new matrix is like.
#pragma once

#include "display/display_settings_model.h"
#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// Lets the user change the settings in `store` in a dialog over `parent`, which begins with the
/// page `first`. Returns whether it was closed with OK; only then anything was stored.
bool RunDisplaySettings(QWidget* parent, SettingsStore& store, DisplayPage first);

}  // namespace kav
