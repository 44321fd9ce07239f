// What the user chose about the look of all windows.
#pragma once

#include <cstdint>

#include "settings/settings_store.h"

namespace kav {

/// The colours of all windows: those of the desktop, or whatever it has, light, dark, or black and
/// white ones. The numbers are those of the settings.
enum class ColourChoice : std::int32_t { System = 0, Light = 1, Dark = 2, HighContrast = 3 };

inline constexpr std::int32_t kColourChoices = 4;

struct LookSettings {
  ColourChoice colours = ColourChoice::System;
  /// Whether the result of a line is shown while it is typed.
  bool hasLiveResult = true;
};

/// The stored settings. Colours of an unknown number are those of the desktop, and any number but 0
/// shows live results.
LookSettings LoadLookSettings(const SettingsStore& store);

/// Stores all of `settings` in one step.
void StoreLookSettings(const LookSettings& settings, SettingsStore& store);

}  // namespace kav
