// What users read, word for word.
#include "store/settings_texts.h"

#include <gtest/gtest.h>

#include <string>

namespace kav::settings_texts_test {
namespace {

TEST(SettingsTexts, DamageIsToldWithTheFileAndWhatBecomesOfIt) {
  EXPECT_EQ(SettingsAreDamaged("/home/ü/settings.toml"),
            u"The settings in /home/ü/settings.toml are damaged, so everything starts with its "
            u"default. Nothing is lost: when settings are next saved, the damaged file is kept "
            u"beside the new one with \".damaged\" after its name, to be repaired or deleted.");
}

TEST(SettingsTexts, AnUnreadableFileIsToldWithTheReason) {
  EXPECT_EQ(SettingsCannotBeRead("/a/settings.toml", FileError::NoPermission),
            u"The settings in /a/settings.toml cannot be read: there is no permission; check who "
            u"owns the file and its folder, and who may write. Until then everything starts with "
            u"its default, and nothing is saved.");
}

TEST(SettingsTexts, AFailedSaveIsToldWithTheReasonAndTheRemedy) {
  const struct {
    FileError error;
    const char16_t* reason;
  } rows[] = {
      {FileError::NotThere,
       u"a folder on the way there is missing and cannot be made; check the path"},
      {FileError::BadPath,
       u"a folder on the way there is missing and cannot be made; check the path"},
      {FileError::NotAFile,
       u"a folder or a device has this name; move it away or choose another file"},
      {FileError::TooLarge,
       u"the file would be too large to be read again; delete what is not needed"},
      {FileError::Busy,
       u"another program keeps the file locked; close other copies of the calculator"},
      {FileError::NoPermission,
       u"there is no permission; check who owns the file and its folder, and who may write"},
      {FileError::ReadOnly, u"the disk is read-only; make it writable or choose another place"},
      {FileError::Full, u"the disk is full or its quota is used up; free some space"},
      {FileError::Device, u"the disk reports an error; check the disk"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(SettingsCannotBeSaved("/a/settings.toml", row.error),
              u"The settings cannot be saved in /a/settings.toml: " + std::u16string(row.reason) +
                  u". Until then they last as long as the calculator runs.");
  }
}

TEST(SettingsTexts, WithoutAPlaceTheUserIsToldHowToGiveOne) {
  EXPECT_EQ(SettingsCannotBeSaved("", FileError::BadPath),
            u"The settings cannot be saved: this user has no home folder. Set HOME or "
            u"XDG_CONFIG_HOME to a folder to keep them in.");
}

}  // namespace
}  // namespace kav::settings_texts_test
