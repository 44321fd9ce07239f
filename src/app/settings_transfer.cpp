#include "app/settings_transfer.h"

#include <array>
#include <utility>

#include "common/number_text.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/message_box.h"
#include "settings/atomic_file.h"
#include "settings/file_error.h"
#include "settings/file_error_texts.h"
#include "store/settings_texts.h"
#include "store/settings_toml.h"

namespace kav {
namespace {

constexpr FileKind kSettingsFile{u"Settings(*.toml)", u"toml"};

}  // namespace

void SaveExport(QWidget* parent, std::string_view text) {
  const std::array kinds{kSettingsFile, FileKind{u"All files (*)", u""}};
  const auto file = AskFileToSave(parent, kinds);
  if (!file) return;
  const auto error = SaveFile(file->path, text);
  if (!error) return;
  ShowStop(parent, FileFailure(kCannotExport, Widen(file->path), ReasonAndRemedy(*error)));
}

std::optional<std::string> AskForImport(QWidget* parent) {
  const auto path = AskFileToOpen(parent, kSettingsFile);
  if (!path) return std::nullopt;
  auto text = ReadWholeFile(*path, kLargestSettingsFile);
  if (!text) {
    const bool isTooLarge = text.error() == FileError::TooLarge;
    ShowStop(parent, isTooLarge
                         ? std::u16string(kTooLargeForSettings)
                         : FileFailure(kCannotImport, Widen(*path), ReasonOfReading(text.error())));
    return std::nullopt;
  }
  if (!IsExport(*text)) {
    ShowStop(parent, kNoSettingsToImport);
    return std::nullopt;
  }
  if (!AskNoOrYes(parent, kImportQuestion)) return std::nullopt;
  return *std::move(text);
}

}  // namespace kav
