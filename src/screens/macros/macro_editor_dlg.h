// The macro editor on the screen.
#pragma once

#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// Lets the user write, change and remove macros until the dialog over `parent` is closed. Each
/// change is in `store`, and on the disk, at once.
void RunMacroEditor(QWidget* parent, SettingsStore& store);

}  // namespace kav
