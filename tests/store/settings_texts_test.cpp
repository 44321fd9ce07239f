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
      {FileError::LinkLoop, u"the links on the way there lead in a circle; check the path"},
      {FileError::NameTooLong, u"the path, or a name in it, is too long; choose a shorter one"},
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
      {FileError::SizeLimit,
       u"no file may grow so large here; raise the limit (ulimit -f) or choose another place"},
      {FileError::TooManyOpen,
       u"too many files are open; close other programs or raise the limit (ulimit -n)"},
      {FileError::NoMemory, u"there is not enough memory; close other programs"},
      {FileError::Device, u"the disk reports an error; check the disk"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(
        SettingsCannotBeSaved("/a/settings.toml", row.error),
        u"The settings cannot be saved in /a/settings.toml: " + std::u16string(row.reason) + u".");
  }
}

TEST(SettingsTexts, AFileThatIsTooLargeIsToldWithWhatBecomesOfIt) {
  EXPECT_EQ(
      SettingsAreTooLarge("/a/settings.toml"),
      u"The settings in /a/settings.toml are larger than 4 MB, so everything starts with its "
      u"default. Nothing is lost: when settings are next saved, the large file is kept beside "
      u"the new one with \".damaged\" after its name, to be made smaller or deleted.");
}

TEST(SettingsTexts, SettingsReadTooLateAreToldWithWhereTheyAre) {
  EXPECT_EQ(
      SettingsWereUnread("/a/settings.toml"),
      u"The settings in /a/settings.toml could be read only now, and what was changed without "
      u"them is saved there. As they were, they are kept beside them with \".damaged\" after "
      u"the name.");
}

TEST(SettingsTexts, ANameCannotCommandTheTerminalThatShowsIt) {
  const std::string path = "/a/\x1B[31m\xC2\x9Bü\n";
  const std::u16string shown = u"/a/\\x1B[31m\\x9Bü\\x0A";
  for (const std::u16string& text : {SettingsAreDamaged(path), SettingsAreTooLarge(path),
                                     SettingsCannotBeRead(path, FileError::Device),
                                     SettingsCannotBeSaved(path, FileError::Device)}) {
    EXPECT_NE(text.find(shown), std::u16string::npos) << testing::PrintToString(text);
  }
}

TEST(SettingsTexts, WithoutAPlaceTheUserIsToldHowToGiveOne) {
  EXPECT_EQ(SettingsCannotBeSaved("", FileError::BadPath),
            u"The settings cannot be saved: this user has no home folder. Set HOME or "
            u"XDG_CONFIG_HOME to a folder to keep them in.");
}

}  // namespace
}  // namespace kav::settings_texts_test
