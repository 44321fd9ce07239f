#include "store/settings_toml.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <limits>
#include <locale>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kav::settings_toml_test {
namespace {

using std::string_literals::operator""s;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

std::string Times(int count, const std::string& piece) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

/// The setting "x" of section "S" in `toml`, which must be sound.
std::optional<StoredSetting> SettingIn(std::string_view toml) {
  const auto settings = ReadSettings(toml);
  EXPECT_TRUE(settings) << toml;
  if (!settings) return std::nullopt;
  const StoredSetting* found = FindSetting(*settings, "S", "x");
  return found != nullptr ? std::optional(*found) : std::nullopt;
}

SettingsTable OneSetting(const StoredSetting& value) {
  return {{"S", {{"x", value}}}};
}

TEST(ReadSettings, IntegersAndStringsOfSectionsAreSettings) {
  const std::vector<std::pair<std::string_view, StoredSetting>> rows{
      {"[S]\nx = 7", 7},
      {"[S]\nx = -100", -100},
      {"[S]\nx = 0x10", 16},
      {"[S]\nx = 2147483647", kMost},
      {"[S]\nx = 2147483648", kMost},
      {"[S]\nx = 9223372036854775807", kMost},
      {"[S]\nx = -2147483648", kLeast},
      {"[S]\nx = -2147483649", kLeast},
      {"[S]\nx = -9223372036854775808", kLeast},
      {"[S]\nx = ''", ""s},
      {"[S]\nx = '7'", "7"s},
      {"[S]\nx = \"\"\"\none\ntwo\"\"\"", "one\ntwo"s},
      {"S.x = 7", 7},
      {"S = {x = 7}", 7},
      {"# by hand\r\n[ S ]\r\nx=7\r\n", 7},
      {"\xEF\xBB\xBF[S]\nx = 7", 7},
      {"['S']\n'x' = 7", 7},
      // A letter beyond ASCII after blanks.
      {"[S]\nx = \"\"\"a \\\n  \xC3\xA4\"\"\"", "a \xC3\xA4"s},
      {"[S]\nx = 7 # \xC3\xA4", 7},
  };
  for (const auto& [toml, value] : rows) EXPECT_EQ(SettingIn(toml), value) << toml;
}

TEST(ReadSettings, WhatIsNeitherIntegerNorStringInASectionIsNoSetting) {
  for (const std::string_view toml : {"",
                                      "\n",
                                      "# only a comment",
                                      "[S]",
                                      "x = 7",
                                      "S = 7",
                                      "S = 'x'",
                                      "S = [7]",
                                      "[s]\nx = 7",
                                      "[S]\nX = 7",
                                      "[S]\n'x ' = 7",
                                      "[S]\nx = 7.0",
                                      "[S]\nx = true",
                                      "[S]\nx = 1979-05-27",
                                      "[S]\nx = 07:32:00",
                                      "[S]\nx = 1979-05-27T07:32:00Z",
                                      "[S]\nx = [7]",
                                      "[S]\nx = {y = 7}",
                                      "[S.x]\nx = 7",
                                      "[[S]]\nx = 7"}) {
    EXPECT_EQ(SettingIn(toml), std::nullopt) << toml;
  }
}

/// Texts that are no TOML, or none that settings need.
std::vector<std::string> DamagedTexts() {
  return {
      "?",
      "x",
      "x =",
      "[S",
      "[S]]",
      "[]",
      "a = [ }",
      // Letters beyond ASCII stand in quotes only.
      "\xC3\xA4 = 1",
      "a\xC3\xA4 = 1",
      "x = 1\xC3\xA4",
      "x = \"\"\"\\\xC3\xA4\"\"\"",
      "a = [1 2]",
      "a = {b = 1",
      "a = 1 b = 2",
      "x = 9223372036854775808",
      "x = -9223372036854775809",
      "x = 1e",
      "x = 1979-13-01",
      "x = \"no end",
      "x = \"\"\"no end\"\"",
      "x = \"\\q\"",
      "x = \"\\ud800\"",
      "x = \"two\nlines\"",
      "x = \"\x01\"",
      // Keys and sections that are there twice.
      "x = 1\nx = 2",
      "[S]\n[S]",
      "[S]\nx = 1\n[S]\ny = 2",
      "S = 1\n[S]",
      // Not UTF-8: a byte alone, one too few, overlong, a surrogate, beyond Unicode; UTF-16.
      "x = \"\xFF\"",
      "x = \"\xC3\"",
      "x = \"\xC0\x80\"",
      "x = \"\xED\xA0\x80\"",
      "x = \"\xF4\x90\x80\x80\"",
      "\xFF\xFEx\0 \0=\0 \0001\0"s,
  };
}

/// Files that a crash left or that are built to break readers.
std::vector<std::string> HostileTexts() {
  return {
      // A file whose blocks never reached the disk.
      std::string(4096, '\0'),
      "[S]\nx = 7\n"s + std::string(100, '\0'),
      "a = " + std::string(100'000, '['),
      "a = " + std::string(40'000, '['),
      "a = " + Times(40, "[") + Times(40, "]"),
      "a = " + Times(20'000, "{a = "),
      "a = " + Times(40, "{a = ") + "1" + Times(40, "}"),
      "[" + Times(100'000, "a.") + "a]",
      Times(100'000, "a.") + "a = 1",
      Times(60'000, "[[a]]\n"),
  };
}

TEST(ReadSettings, DamageIsRefusedWhole) {
  std::vector<std::string> texts = DamagedTexts();
  for (std::string& toml : HostileTexts()) texts.push_back(std::move(toml));
  for (const auto& toml : texts) {
    EXPECT_EQ(ReadSettings(toml), std::nullopt) << toml.substr(0, 60);
    EXPECT_EQ(ReadSettings("[S]\nx = 7\n" + toml + "\n"), std::nullopt) << toml.substr(0, 60);
    EXPECT_EQ(WithChanges(toml, OneSetting(1)), std::nullopt) << toml.substr(0, 60);
  }
}

TEST(ReadSettings, ThirtyTwoLevelsAreReadAndThirtyThreeAreDamage) {
  EXPECT_NE(ReadSettings("a = " + Times(31, "[") + "1" + Times(31, "]")), std::nullopt);
  EXPECT_EQ(ReadSettings("a = " + Times(32, "[") + "1" + Times(32, "]")), std::nullopt);
  EXPECT_NE(ReadSettings(Times(31, "a.") + "a = 1"), std::nullopt);
  EXPECT_EQ(ReadSettings(Times(32, "a.") + "a = 1"), std::nullopt);
}

TEST(WithChanges, AnEmptyTextGetsAFirstLineThatSaysWhatEditorsMustKnow) {
  EXPECT_EQ(
      WithChanges("", {{"Config", {{"Angle Type", 2}, {"Version", "2.5"s}}},
                       {"History", {{"CalHistory1", "sin(30)"s}}}}),
      "# Settings of Kav Calculator. They can be edited here; comments and the order of lines "
      "are not kept.\n"
      "\n[Config]\n\"Angle Type\" = 2\nVersion = \"2.5\"\n"
      "\n[History]\nCalHistory1 = \"sin(30)\"\n");
}

TEST(WithChanges, WhatIsThereAlreadyLeavesTheTextUntouched) {
  for (const std::string_view toml : {"S.x=7#mine", "S = {x = 0x7}", "  [S]\n\n  x =   7 # mine"}) {
    EXPECT_EQ(WithChanges(toml, OneSetting(7)), toml);
    EXPECT_EQ(WithChanges(toml, {}), toml);
  }
  EXPECT_EQ(WithChanges("S.x = 9999999999", OneSetting(kMost)), "S.x = 9999999999");
}

TEST(WithChanges, ASettingIsFoundAgainWhateverStoodInItsPlace) {
  for (const std::string_view toml :
       {"", "x = 7", "S = 7", "S = [1]", "[[S]]\nx = 7", "[S]\nx = 8", "[S]\nx = '7'",
        "[S]\nx = 7.5", "[S]\nx = [7]", "[S.x]\ny = 7", "S = {x = 8, y = 9}", "S.y = 1",
        "[S.T]\nx = 1", "[T]\nx = 1"}) {
    for (const StoredSetting& value : {StoredSetting(7), StoredSetting("seven"s)}) {
      const auto changed = WithChanges(toml, OneSetting(value));
      ASSERT_TRUE(changed) << toml;
      EXPECT_EQ(SettingIn(*changed), value) << toml << "\n" << *changed;
    }
  }
}

TEST(WithChanges, EverythingElseKeepsItsValue) {
  constexpr std::string_view kByHand =
      "# mine\n"
      "title = 'by hand'\n"
      "list = [1, [2.5, 'x'], {deep = true}]\n"
      "[Other.Deeper]\n"
      "when = 1979-05-27T00:32:00-07:00\n"
      "[S]\n"
      "y = 0.1\n"
      "x = 1\n"
      "'a name' = 07:32:00\n"
      "[S.Own]\n"
      "z = 1e300\n"
      "[[Rows]]\n"
      "n = 1\n"
      "[[Rows]]\n"
      "n = 2\n";
  const auto changed = WithChanges(kByHand, OneSetting(2));
  ASSERT_TRUE(changed);
  EXPECT_EQ(changed->substr(changed->find('\n')),
            "\n"
            "Rows = [{n = 1}, {n = 2}]\n"
            "list = [1, [2.5, \"x\"], {deep = true}]\n"
            "title = \"by hand\"\n"
            "\n[Other.Deeper]\n"
            "when = 1979-05-27T00:32:00-07:00\n"
            "\n[S]\n"
            "\"a name\" = 07:32:00\n"
            "x = 2\n"
            "y = 0.1\n"
            "\n[S.Own]\n"
            "z = 1.0000000000000001e+300\n");
}

TEST(WithChanges, EveryCharacterComesBack) {
  std::string all;
  for (char32_t c = 0; c <= 0x10FFFF; ++c) {
    if (c >= 0xD800 && c <= 0xDFFF) continue;
    if (c < 0x80) {
      all += static_cast<char>(c);
    } else if (c < 0x800) {
      all += static_cast<char>(0xC0U | (c >> 6U));
    } else if (c < 0x10000) {
      all += static_cast<char>(0xE0U | (c >> 12U));
      all += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
    } else {
      all += static_cast<char>(0xF0U | (c >> 18U));
      all += static_cast<char>(0x80U | ((c >> 12U) & 0x3FU));
      all += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
    }
    if (c >= 0x80) all += static_cast<char>(0x80U | (c & 0x3FU));
  }
  const auto toml = WithChanges("", OneSetting(all));
  ASSERT_TRUE(toml);
  EXPECT_TRUE(SettingIn(*toml) == StoredSetting(all));
}

TEST(WithChanges, EveryCharacterComesBackInNames) {
  SettingsTable settings;
  for (int c = 0; c < 0x80; ++c) {
    const std::string name = "n" + std::string(1, static_cast<char>(c)) + " ";
    settings[name] = {{name, c}};
  }
  settings[""] = {{"", 1}};
  const auto toml = WithChanges("", settings);
  ASSERT_TRUE(toml);
  EXPECT_EQ(ReadSettings(*toml), settings);
}

TEST(WithChanges, ATruncatedTextIsReadOrRefusedButNeverReadWrong) {
  const auto whole = WithChanges("", OneSetting("a\\b\"c\n\xF0\x9F\x98\x80"s));
  ASSERT_TRUE(whole);
  for (std::size_t length = 0; length < whole->size(); ++length) {
    const auto settings = ReadSettings(whole->substr(0, length));
    if (!settings) continue;
    const StoredSetting* found = FindSetting(*settings, "S", "x");
    if (found == nullptr) continue;
    EXPECT_EQ(*found, StoredSetting("a\\b\"c\n\xF0\x9F\x98\x80"s)) << length;
  }
}

/// A locale that writes 1.234,5 for a thousand and so on, whether or not any is installed.
class GermanNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }     // NOLINT: a name of the library
  char do_thousands_sep() const override { return '.'; }     // NOLINT: a name of the library
  std::string do_grouping() const override { return "\3"; }  // NOLINT: a name of the library
};

TEST(WithChanges, NoLocaleChangesANumber) {
  for (const char* name : {"C.UTF-8", "de_DE.UTF-8", "tr_TR.UTF-8"}) {
    if (std::setlocale(LC_ALL, name) == nullptr) {
      ADD_FAILURE() << name << " is not installed";
      continue;
    }
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new GermanNumbers));
    const auto toml = WithChanges("f = 1234.5\ni = 1234567\n[S]\nx = 1000000", OneSetting(2000000));
    std::locale::global(before);
    std::setlocale(LC_ALL, "C");
    ASSERT_TRUE(toml);
    EXPECT_EQ(toml->substr(toml->find('\n')), "\nf = 1234.5\ni = 1234567\n\n[S]\nx = 2000000\n");
  }
}

TEST(FindSetting, TellsSectionsAndNamesApart) {
  const SettingsTable settings{{"S", {{"x", 1}}}, {"T", {{"y", 2}}}};
  ASSERT_NE(FindSetting(settings, "S", "x"), nullptr);
  EXPECT_EQ(*FindSetting(settings, "S", "x"), StoredSetting(1));
  EXPECT_EQ(FindSetting(settings, "S", "y"), nullptr);
  EXPECT_EQ(FindSetting(settings, "T", "x"), nullptr);
  EXPECT_EQ(FindSetting(settings, "U", "x"), nullptr);
}

}  // namespace
}  // namespace kav::settings_toml_test
