#include "cli/stored_settings.h"

#include "cli/answer_writer.h"
#include "common/number_text.h"
#include "settings/keys.h"
#include "store/settings_path.h"

namespace kav {

StoredSettings::StoredSettings(const Options& options)
    : store_(options.settingsFile.empty() ? DefaultSettingsPath() : options.settingsFile) {}

StoredSettings::~StoredSettings() {
  TellNotices();
}

AngleUnit StoredSettings::Angle() {
  const AngleUnit angle = AngleUnitFromSetting(store_.Get(kAngleType));
  TellNotices();
  return angle;
}

std::optional<std::string> StoredSettings::TakeFailure() {
  const auto failure = store_.TakeBackUnsaved();
  while (const auto notice = store_.TakeNotice()) {
    if (notice != failure) Tell(Narrow(*notice));
  }
  if (!failure) return std::nullopt;
  return Narrow(*failure);
}

void StoredSettings::TellNotices() {
  while (const auto notice = store_.TakeNotice()) Tell(Narrow(*notice));
}

}  // namespace kav
