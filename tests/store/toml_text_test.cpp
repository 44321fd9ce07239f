#include "store/toml_text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace kav::toml_text_test {
namespace {

using std::string_literals::operator""s;

std::string Times(int count, const std::string& piece) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

TEST(AppendTomlString, EscapesWhatTomlCannotHoldInQuotes) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"", R"("")"},
      {"sin(30)", "\"sin(30)\""},
      {"  both ends  ", R"("  both ends  ")"},
      {"a=b;c#d'e", R"("a=b;c#d'e")"},
      {R"("quoted" \ and back)", R"("\"quoted\" \\ and back")"},
      {"\b\t\n\f\r", R"("\b\t\n\f\r")"},
      {"\0\x01\x0B\x1B\x1F\x7F"s, R"("\u0000\u0001\u000B\u001B\u001F\u007F")"},
      {"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", "\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\""},
  };
  for (const auto& [text, toml] : rows) {
    std::string out = "before ";
    AppendTomlString(out, text);
    EXPECT_EQ(out, "before " + toml);
  }
}

TEST(AppendTomlKey, IsBareOnlyWhereTomlAllowsIt) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"Precision", "Precision"},
      {"CalHistory10", "CalHistory10"},
      {"a-b_c", "a-b_c"},
      {"1", "1"},
      {"Angle Type", "\"Angle Type\""},
      {"", "\"\""},
      {"a.b", "\"a.b\""},
      {"a=b", "\"a=b\""},
      {"a\"b", R"("a\"b")"},
      {"\xC3\xA4", "\"\xC3\xA4\""},
      {"a\nb", R"("a\nb")"},
  };
  for (const auto& [key, toml] : rows) {
    std::string out;
    AppendTomlKey(out, key);
    EXPECT_EQ(out, toml);
  }
}

TEST(IsModestToml, SettingsAreModest) {
  EXPECT_TRUE(IsModestToml(""));
  EXPECT_TRUE(IsModestToml("[Config]\n\"Angle Type\" = 1\nPi = 3.14\n"));
}

TEST(IsModestToml, ThirtyTwoDotsInAKeyAreModestAndThirtyThreeAreNot) {
  EXPECT_TRUE(IsModestToml(Times(32, "a.") + "a = 1"));
  EXPECT_FALSE(IsModestToml(Times(33, "a.") + "a = 1"));
  EXPECT_FALSE(IsModestToml("[" + Times(33, "a.") + "a]"));
  EXPECT_FALSE(IsModestToml("[[" + Times(33, "a . ") + "a]]"));
  EXPECT_FALSE(IsModestToml("x = {" + Times(33, "a.") + "a = 1}"));
  EXPECT_FALSE(IsModestToml(Times(33, R"("a".)") + "a = 1"));
}

TEST(IsModestToml, DotsOfOneKeyDoNotCountForTheNext) {
  EXPECT_TRUE(IsModestToml(Times(40, "[a.b]\n")));
  EXPECT_TRUE(IsModestToml(Times(40, "a.b = 1\n")));
  EXPECT_TRUE(IsModestToml("a = [" + Times(40, "1.5, ") + "]"));
  EXPECT_TRUE(IsModestToml("a = [" + Times(40, "{b.c = 1.5},") + "]"));
}

TEST(IsModestToml, FiftyThousandMarksAreModestAndOneMoreIsNot) {
  EXPECT_TRUE(IsModestToml(Times(50'000, "a=1\n")));
  EXPECT_FALSE(IsModestToml(Times(50'001, "a=1\n")));
  EXPECT_FALSE(IsModestToml(std::string(50'001, '[')));
  EXPECT_FALSE(IsModestToml(std::string(50'001, '{')));
  EXPECT_FALSE(IsModestToml(std::string(50'001, ',')));
}

// Each holds more dots and marks than a modest document may have, but only in strings and comments.
TEST(IsModestToml, StringsAndCommentsDoNotCount) {
  const std::string dots(100'000, '.');
  const std::string marks = Times(20'000, "=,.[{\n");
  for (const auto& toml : {
           "a = \"" + dots + "\"",
           "a = '" + dots + "'",
           "a = \"\\\"" + dots + "\"",
           "a = \"\\\\\"#" + dots,
           "a = '\\'#" + dots,
           "a = \"\"\"" + marks + "\"\"\"",
           "a = '''" + marks + "'''",
           "a = \"\"\"\"" + marks + "\"\" \"\"\"",
           "# " + dots,
           "#'" + dots + "\n#\"" + dots,
           "a = 1 # ''' " + dots + "\nb = 2",
       }) {
    EXPECT_TRUE(IsModestToml(toml)) << toml.substr(0, 20);
  }
}

TEST(IsModestToml, WhatFollowsAStringCountsAgain) {
  const std::string deep = Times(33, "a.") + "a = 1";
  for (const std::string_view start : {
           R"(a = "" )",
           "a = '' ",
           R"(a = "x" )",
           "a = 'x' ",
           R"(a = "\"" )",
           R"(a = "\\" )",
           R"(a = '\' )",
           R"(a = """""" )",
           "a = '''''' ",
           R"(a = """x""" )",
           R"(a = """x"""" )",
           R"(a = """x""""" )",
           "a = '''x'''' ",
           "a = '''x''''' ",
           R"(a = """\"""" )",
           R"(a = """"x""" )",
           "# '''\n",
       }) {
    EXPECT_FALSE(IsModestToml(std::string(start) + "\n" + deep)) << start;
  }
}

TEST(IsModestToml, AStringThatNeverEndsIsReadToTheEndOnly) {
  for (const std::string_view toml : {"\"", "'", "\"\"\"", "'''", "\"\\", "\"\"\"\\", "\"\"\"\"",
                                      "a = \"x\\", "#", "\"\"", "''"}) {
    EXPECT_TRUE(IsModestToml(toml)) << toml;
  }
}

}  // namespace
}  // namespace kav::toml_text_test
