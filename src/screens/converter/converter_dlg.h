// The unit converter on the screen.
#pragma once

#include "line/key_request.h"
#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// Lets the user convert `input.value` until the dialog over `parent` is closed. Returns the result
/// only if that was with OK, the positions as the user left them, and the register as it was handed
/// in. Memory variables and conversions that the user stores are in `store`, and on the disk, at
/// once.
ConverterOutcome RunConverter(QWidget* parent, SettingsStore& store, const ConverterInput& input);

}  // namespace kav
