#include "store/user_settings_store.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "store/file_lock.h"
#include "store/user_settings_fixture.h"
#include "support/effort.h"

namespace kav::user_settings_store_test {
namespace {

using std::string_literals::operator""s;
using Names = std::vector<std::string>;

TEST_F(UserSettingsStoreTest, WhatIsNotStoredHasItsDefaultAndMakesNoFile) {
  UserSettingsStore store(path);
  EXPECT_EQ(store.Get(kNumber), 42);
  EXPECT_EQ(store.Get(kText), "as ever");
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(UserSettingsStoreTest, WhatWasSetHoldsAtOnceAndOutlivesTheStoreOnceSaved) {
  {
    UserSettingsStore store(path);
    store.Set(kNumber, 2);
    store.Set(kText, "sin(30)");
    EXPECT_EQ(store.Get(kNumber), 2);
    EXPECT_EQ(store.Get(kText), "sin(30)");
    EXPECT_FALSE(Exists(path));
    EXPECT_TRUE(store.Save());
    EXPECT_EQ(store.Get(kNumber), 2);
    EXPECT_EQ(store.TakeNotice(), std::nullopt);
  }
  EXPECT_EQ(ReadNumber(), 2);
  EXPECT_EQ(ReadText(), "sin(30)");
}

TEST_F(UserSettingsStoreTest, WhatWasNotSavedIsGone) {
  { UserSettingsStore(path).Set(kNumber, 2); }
  EXPECT_FALSE(Exists(path));
}

TEST_F(UserSettingsStoreTest, TheFileIsForPeople) {
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  store.Set(kText, "sin(30)");
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(
      FileContent(path),
      "# Settings of Kav Calculator. They can be edited here; comments and the order of lines "
      "are not kept.\n"
      "\n[Config]\n\"Angle Type\" = 2\n"
      "\n[History]\nCalHistory1 = \"sin(30)\"\n");
}

TEST_F(UserSettingsStoreTest, WhatIsWrittenByHandIsRead) {
  PutByHand(
      "# mine\n[Config]\n\"Angle Type\" = 2 # radians\n[History]\nCalHistory1 = '''\n1+\n1'''");
  EXPECT_EQ(ReadNumber(), 2);
  EXPECT_EQ(ReadText(), "1+\n1");
}

TEST_F(UserSettingsStoreTest, AValueOfTheWrongTypeReadsAsTheDefaultAndCanBeSet) {
  PutByHand("[Config]\n\"Angle Type\" = '2'\n[History]\nCalHistory1 = 7");
  UserSettingsStore store(path);
  EXPECT_EQ(store.Get(kNumber), 42);
  EXPECT_EQ(store.Get(kText), "as ever");
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
  store.Set(kNumber, 3);
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(ReadNumber(), 3);
}

TEST_F(UserSettingsStoreTest, IntegersBeyond32BitsReadAsTheNearestOnes) {
  PutByHand("[Config]\n\"Angle Type\" = 99999999999");
  EXPECT_EQ(ReadNumber(), std::numeric_limits<std::int32_t>::max());
  PutByHand("[Config]\n\"Angle Type\" = -99999999999");
  EXPECT_EQ(ReadNumber(), std::numeric_limits<std::int32_t>::min());
}

TEST_F(UserSettingsStoreTest, AnyTextComesBackExactly) {
  const std::size_t kSigns = test::Sized(100'000);
  const std::vector<std::string> texts{
      "",
      " ",
      "  leading and trailing  ",
      "one\ntwo\n",
      "one\r\ntwo\r",
      "\r",
      "\0"s,
      "nul\0in\0it\0"s,
      "\x01\x02\x03\x1B\x1F\x7F",
      "a=b;c#d",
      "# no comment",
      "[no section]",
      "\"quoted\" 'and' \"\"\"so\"\"\" '''on'''",
      R"(back\slash \n \u0041 \)",
      "\tTab\t",
      "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80 \xEF\xBB\xBF\xEF\xBF\xBF\xF4\x8F\xBF\xBF",
      "\xC2\x85\xE2\x80\xA8\xE2\x80\xA9",
      std::string(test::Sized(1U << 20U), 'x'),
      std::string(test::Sized(1U << 20U), '\n'),
      std::string(kSigns, '.') + std::string(kSigns, '[') + std::string(kSigns, '='),
  };
  for (const auto& text : texts) {
    UserSettingsStore store(path);
    store.Set(kText, text);
    EXPECT_TRUE(store.Get(kText) == text);
    ASSERT_TRUE(store.Save());
    EXPECT_TRUE(store.Get(kText) == text);
    EXPECT_TRUE(ReadText() == text) << text.substr(0, 50);
  }
}

TEST_F(UserSettingsStoreTest, BytesThatAreNotUtf8BecomeReplacementCharacters) {
  UserSettingsStore store(path);
  store.Set(kText, "a\xFF\xC3z\xED\xA0\x80");
  const std::string stored = "a\xEF\xBF\xBD\xEF\xBF\xBDz\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD";
  EXPECT_EQ(store.Get(kText), stored);
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(ReadText(), stored);
}

const std::vector<std::string> kPieces{
    " ",   "\n",   "\r", "=", "#", ";", "\"", "'", "\\", "[", "]",        ".",
    "\0"s, "\x7F", "{",  "}", ",", "u", "\t", "0", "-",  "A", "\xC3\xA4", "\xF0\x9F\x98\x80"};

TEST_F(UserSettingsStoreTest, RandomSettingsComeBack) {
  std::mt19937 random(20240607);
  const auto upTo = [&](unsigned most) { return static_cast<unsigned>(random()) % (most + 1); };
  const auto text = [&] {
    std::string made;
    for (unsigned length = upTo(12); length > 0; --length) {
      made += kPieces[upTo(static_cast<unsigned>(kPieces.size()) - 1)];
    }
    return made;
  };
  std::map<std::pair<std::string, std::string>, StoredSetting> expected;
  for (int round = 0; round < 20; ++round) {
    UserSettingsStore store(path);
    for (int i = 0; i < 40; ++i) {
      const std::string section = text();
      const std::string name = text();
      if (upTo(1) == 0) {
        const auto value = static_cast<std::int32_t>(random());
        store.Set(SettingKey<std::int32_t>{section, name, 0}, value);
        expected[{section, name}] = value;
      } else {
        const std::string value = text();
        store.Set(NumberedKey{section, name, ""}, value);
        expected[{section, name}] = value;
      }
    }
    ASSERT_TRUE(store.Save());
    const UserSettingsStore reader(path);
    for (const auto& [address, value] : expected) {
      const auto& [section, name] = address;
      if (const auto* number = std::get_if<std::int32_t>(&value)) {
        EXPECT_EQ(reader.Get(SettingKey<std::int32_t>{section, name, ~*number}), *number);
      } else {
        EXPECT_EQ(reader.Get(NumberedKey{section, name, "none"}), std::get<std::string>(value));
      }
    }
  }
}

TEST_F(UserSettingsStoreTest, TheDiskIsTouchedWhenTheFirstSettingIsAskedForAndOnlyThen) {
  UserSettingsStore store(path);
  PutByHand("[Config]\n\"Angle Type\" = 2");
  EXPECT_EQ(store.Get(kNumber), 2);
  PutByHand("[Config]\n\"Angle Type\" = 3");
  EXPECT_EQ(store.Get(kNumber), 2);
}

TEST_F(UserSettingsStoreTest, TheFolderIsForTheUserOnlyAndTheFileAsTheirMaskGives) {
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  const mode_t before = umask(027);
  ASSERT_TRUE(store.Save());
  umask(before);
  EXPECT_EQ(PermissionsOf(folder.File("sub")), 0700U);
  EXPECT_EQ(PermissionsOf(path), 0640U);
}

TEST_F(UserSettingsStoreTest, PermissionsThatTheUserGaveAreKept) {
  PutByHand("");
  chmod(path.c_str(), 0640);
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(PermissionsOf(path), 0640U);
}

TEST_F(UserSettingsStoreTest, WithoutAChangeNothingIsWritten) {
  constexpr const char* kMine = "Config.'Angle Type' = 2 # mine";
  PutByHand(kMine);
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  EXPECT_TRUE(store.Save());
  store.Set(kNumber, 3);
  store.Set(kNumber, 2);
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(FileContent(path), kMine);
}

TEST_F(UserSettingsStoreTest, WhatIsSavedAlreadyIsNotWrittenAgain) {
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  ASSERT_TRUE(store.Save());
  const auto file = StatusOf(path).st_ino;
  EXPECT_TRUE(store.Save());
  store.Set(kNumber, 2);
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(StatusOf(path).st_ino, file);
}

TEST_F(UserSettingsStoreTest, WhatAnotherStoreWroteToTheSameEffectIsNotWrittenAgain) {
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  PutByHand("Config.'Angle Type' = 2 # by hand");
  const auto file = StatusOf(path).st_ino;
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(FileContent(path), "Config.'Angle Type' = 2 # by hand");
  EXPECT_EQ(StatusOf(path).st_ino, file);
}

TEST_F(UserSettingsStoreTest, WhatIsWrittenByHandSurvivesWhateverItIs) {
  PutByHand("mine = [1, 2.5]\n[Config]\nextra = 1979-05-27\n[Own.Table]\nx = true\n");
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(
      FileContent(path),
      "# Settings of Kav Calculator. They can be edited here; comments and the order of lines "
      "are not kept.\n"
      "mine = [1, 2.5]\n"
      "\n[Config]\n\"Angle Type\" = 2\nextra = 1979-05-27\n"
      "\n[Own.Table]\nx = true\n");
}

TEST_F(UserSettingsStoreTest, ALinkStaysALinkAndItsTargetIsWritten) {
  mkdir(folder.File("dotfiles").c_str(), 0755);
  mkdir(folder.File("sub").c_str(), 0755);
  PutFile(folder.File("dotfiles/kav.toml"), "[Config]\n\"Angle Type\" = 5");
  ASSERT_EQ(symlink("../dotfiles/kav.toml", path.c_str()), 0);
  UserSettingsStore store(path);
  EXPECT_EQ(store.Get(kNumber), 5);
  store.Set(kNumber, 6);
  ASSERT_TRUE(store.Save());
  EXPECT_TRUE(S_ISLNK(StatusOf(path).st_mode));
  EXPECT_TRUE(S_ISREG(StatusOf(folder.File("dotfiles/kav.toml")).st_mode));
  EXPECT_EQ(ReadNumber(), 6);
  const auto lock = FileLock::AcquireFor(folder.File("dotfiles/kav.toml"), {});
  store.Set(kNumber, 7);
  EXPECT_FALSE(store.TrySave()) << "one lock for all links to a file";
}

TEST_F(UserSettingsStoreTest, ALinkToAFileThatIsNotThereMakesTheFile) {
  mkdir(folder.File("sub").c_str(), 0755);
  ASSERT_EQ(symlink("../dotfiles/kav.toml", path.c_str()), 0);
  UserSettingsStore store(path);
  store.Set(kNumber, 6);
  ASSERT_TRUE(store.Save());
  EXPECT_TRUE(S_ISLNK(StatusOf(path).st_mode));
  EXPECT_TRUE(Exists(folder.File("dotfiles/kav.toml")));
  EXPECT_EQ(ReadNumber(), 6);
}

TEST_F(UserSettingsStoreTest, WhatAKilledSaveLeftIsCleanedByTheNext) {
  PutByHand("");
  PutFile(path + ".new-AbC123", "half");
  PutFile(path + ".new", "mine");
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  ASSERT_TRUE(store.Save());
  EXPECT_FALSE(Exists(path + ".new-AbC123"));
  EXPECT_TRUE(Exists(path + ".new"));
}

TEST_F(UserSettingsStoreTest, ANameAloneIsAFileInTheWorkingFolder) {
  EXPECT_EQ(InAnotherProcess([&] {
              if (chdir(folder.Path().c_str()) != 0) return 2;
              UserSettingsStore store("mine.toml");
              store.Set(kNumber, 2);
              return store.Save() ? 0 : 1;
            }),
            0);
  EXPECT_EQ(UserSettingsStore(folder.File("mine.toml")).Get(kNumber), 2);
}

}  // namespace
}  // namespace kav::user_settings_store_test
