#include "cli/stored_settings.h"

#include <algorithm>

#include "common/number_text.h"
#include "engine/token_reader.h"
#include "settings/keys.h"
#include "store/settings_path.h"

namespace kav {

StoredSettings::StoredSettings(const Options& options)
    : store_(options.settingsFile.empty() ? DefaultSettingsPath() : options.settingsFile),
      angle_(options.angle) {}

StoredSettings::~StoredSettings() {
  TellNotices();
}

AngleUnit StoredSettings::Angle() {
  if (angle_) return *angle_;
  angle_ = AngleUnitFromSetting(store_.Get(kAngleType));
  TellNotices();
  return *angle_;
}

AngleUnit StoredSettings::AngleFor(std::string_view line, std::string_view variables) {
  if (angle_) return *angle_;
  const bool isNeeded = std::any_of(line.begin(), line.end(), [&](char c) {
    return IsLetter(c) && variables.find(c) == variables.npos;
  });
  return isNeeded ? Angle() : AngleUnit::Degrees;
}

std::optional<Failure> StoredSettings::TakeFailure() {
  const auto failure = store_.TakeBackUnsaved();
  while (const auto notice = store_.TakeNotice()) {
    if (notice != failure) Tell(Narrow(*notice));
  }
  if (!failure) return std::nullopt;
  return Failure{Narrow(*failure)};
}

void StoredSettings::TellNotices() {
  while (const auto notice = store_.TakeNotice()) Tell(Narrow(*notice));
}

}  // namespace kav
