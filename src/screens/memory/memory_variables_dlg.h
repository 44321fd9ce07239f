// The memory variables on the screen: a list to store into or to recall from.
#pragma once

#include <optional>
#include <string>

#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// Lets the user store `value` into any of the variables, and clear them, until the dialog is
/// closed. All of it is in `store`, and on the disk, at once.
void RunStoreVariable(QWidget* parent, SettingsStore& store, const std::u16string& value);

/// The value of the variable that the user chose, as it was stored; nullopt where none was chosen.
std::optional<std::u16string> RunRecallVariable(QWidget* parent, SettingsStore& store);

}  // namespace kav
