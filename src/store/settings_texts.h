// What the user is told about the settings on disk: what happened, to which file, and what to do.
#pragma once

#include <string>
#include <string_view>

#include "common/number_text.h"
#include "common/visible_text.h"
#include "settings/file_error_texts.h"

namespace kav {

inline constexpr std::u16string_view kNoPlaceForSettings =
    u"The settings cannot be saved: this user has no home folder. Set HOME or XDG_CONFIG_HOME to a "
    u"folder to keep them in.";

inline std::u16string SettingsAreDamaged(std::string_view path) {
  return u"The settings in " + ShownName(path) +
         u" are damaged, so everything starts with its default. Nothing is lost: when settings are "
         u"next saved, the damaged file is kept beside the new one with \".damaged\" after its "
         u"name, to be repaired or deleted.";
}

inline std::u16string SettingsAreTooLarge(std::string_view path) {
  return u"The settings in " + ShownName(path) +
         u" are larger than 4 MB, so everything starts with its default. Nothing is lost: when "
         u"settings are next saved, the large file is kept beside the new one with \".damaged\" "
         u"after its name, to be made smaller or deleted.";
}

inline std::u16string SettingsCannotBeRead(std::string_view path, FileError error) {
  return u"The settings in " + ShownName(path) + u" cannot be read: " +
         std::u16string(ReasonAndRemedy(error)) +
         u". Until then everything starts with its default, and nothing is saved.";
}

inline std::u16string SettingsWereUnread(std::string_view path) {
  return u"The settings in " + ShownName(path) +
         u" could be read only now, and what was changed without them is saved there. As they "
         u"were, they are kept beside them with \".damaged\" after the name.";
}

inline std::u16string SettingsCannotBeSaved(std::string_view path, FileError error) {
  if (path.empty()) return std::u16string(kNoPlaceForSettings);
  return FileFailure(u"The settings cannot be saved in ", Widen(path), ReasonAndRemedy(error));
}

inline constexpr std::u16string_view kCannotExport = u"The settings cannot be written to ";
inline constexpr std::u16string_view kCannotImport = u"The settings cannot be read from ";

// Why a text is not taken as all settings.
inline constexpr std::u16string_view kNoSettingsToImport =
    u"This is no file of settings that the calculator has exported. Nothing was changed.";
inline constexpr std::u16string_view kTooLargeForSettings =
    u"This is larger than 4 MB, and no file of settings. Nothing was changed.";

/// Follows SettingsCannotBeSaved in a program that goes on with them.
inline constexpr std::u16string_view kUntilThenTheyLast =
    u" Until then they last as long as the calculator runs.";

}  // namespace kav
