// What the user is told about the history on disk.
#pragma once

#include <string>
#include <string_view>

#include "common/number_text.h"
#include "settings/file_error_texts.h"

namespace kav {

inline constexpr std::u16string_view kNoPlaceForHistory =
    u"The history cannot be kept: this user has no home folder. Set HOME or XDG_STATE_HOME to a "
    u"folder to keep it in.";

inline std::u16string HistoryCannotBeKept(std::string_view path, FileError error) {
  if (path.empty()) return std::u16string(kNoPlaceForHistory);
  return FileFailure(u"The history cannot be kept in ", Widen(path), ReasonAndRemedy(error));
}

inline std::u16string HistoryCannotBeDeleted(std::string_view path, FileError error) {
  if (path.empty()) return std::u16string(kNoPlaceForHistory);
  return FileFailure(u"The history cannot be changed in ", Widen(path), ReasonAndRemedy(error));
}

}  // namespace kav
