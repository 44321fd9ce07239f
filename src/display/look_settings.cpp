#include "display/look_settings.h"

#include "settings/keys.h"

namespace kav {

LookSettings LoadLookSettings(const SettingsStore& store) {
  LookSettings settings;
  const std::int32_t colours = store.Get(kColourScheme);
  const bool isKnown = colours >= 0 && colours < kColourChoices;
  settings.colours = static_cast<ColourChoice>(isKnown ? colours : kColourScheme.fallback);
  settings.hasLiveResult = store.Get(kLiveResult) != 0;
  return settings;
}

void StoreLookSettings(const LookSettings& settings, SettingsStore& store) {
  store.Change([&] {
    store.Set(kColourScheme, static_cast<std::int32_t>(settings.colours));
    store.Set(kLiveResult, settings.hasLiveResult ? 1 : 0);
  });
}

}  // namespace kav
