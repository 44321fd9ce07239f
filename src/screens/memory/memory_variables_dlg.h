// The dialog of the memory variables: the user stores into them or recalls one.
#pragma once

#include <optional>
#include <string>

#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// Lets the user store `value` into variables, and clear them, until the dialog over `parent` is
/// closed. Each change is in `store`, and on the disk, at once.
void RunStoreVariable(QWidget* parent, SettingsStore& store, const std::u16string& value);

/// The value of the variable that the user chose, as it was stored; nullopt if none was chosen. The
/// user can also clear variables, as above.
std::optional<std::u16string> RunRecallVariable(QWidget* parent, SettingsStore& store);

}  // namespace kav
