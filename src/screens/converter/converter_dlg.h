// The unit converter on the screen.
#pragma once

#include "line/key_request.h"
#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// Lets the user convert `input.value` until the dialog is closed. The positions come back as they
/// were left, the register as it was handed in; what the user stores in memory variables and as
/// conversions of his own is in `store`, and on the disk, at once.
ConverterOutcome RunConverter(QWidget* parent, SettingsStore& store, const ConverterInput& input);

}  // namespace kav
