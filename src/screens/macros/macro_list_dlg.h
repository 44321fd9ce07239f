// The list to choose a macro from.
#pragma once

#include <optional>

#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// The number of the macro that the user chose; nullopt where none was chosen.
std::optional<int> RunMacroList(QWidget* parent, SettingsStore& store);

}  // namespace kav
