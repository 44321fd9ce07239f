// The display settings on the screen: how numbers are shown, and what a new matrix is like.
#pragma once

#include "display/display_settings_model.h"
#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// Lets the user change the settings in `store`, `first` being the page to begin with. Whether it
/// was closed with OK; only then was anything stored.
bool RunDisplaySettings(QWidget* parent, SettingsStore& store, DisplayPage first);

}  // namespace kav
