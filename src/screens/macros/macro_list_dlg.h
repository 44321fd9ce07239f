// The list to choose a macro from.
#pragma once

#include <optional>

#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// Lets the user choose one of the macros in `store`, in a dialog over `parent`. Returns its index;
/// nullopt if none was chosen.
std::optional<int> RunMacroList(QWidget* parent, SettingsStore& store);

}  // namespace kav
