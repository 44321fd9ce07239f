#include "memory/constants_table.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace kav::constants_table_test {
namespace {

using std::string_literals::operator""s;

using Rows = std::vector<Constant>;

/// A user that owns nothing: what root may not do is tried as this one.
constexpr uid_t kNobody = 65534;

struct ParseRow {
  std::string bytes;
  Rows rows;
};

TEST(ParseConstants, ARecordIsAGroupANameAndAValue) {
  const ParseRow rows[] = {
      {"[universal]speed of light c (m/s)=299792458;",
       {{u"universal", u"speed of light c (m/s)", u"299792458"}}},
      {"[a]b=1;[c]d=2;", {{u"a", u"b", u"1"}, {u"c", u"d", u"2"}}},
      {"]b=1;", {{u"", u"b", u"1"}}},
      {"[]b=1;", {{u"", u"b", u"1"}}},
      {"a remark [a]b=1;", {{u"a", u"b", u"1"}}},
      {"a [remark [a]b=1;", {{u"a", u"b", u"1"}}},
      {"remark]b=1;", {{u"", u"b", u"1"}}},
      {"[ a ] b = 1 ;", {{u" a ", u" b ", u" 1 "}}},
      {"[b=1;[a]c=2;", {{u"a", u"c", u"2"}}},
  };
  for (const auto& row : rows) EXPECT_EQ(ParseConstants(row.bytes), row.rows) << row.bytes;
}

TEST(ParseConstants, TheFirstBracketAndTheFirstEqualsSignDivide) {
  const ParseRow rows[] = {
      {"[a]b]c=1;", {{u"a", u"b]c", u"1"}}}, {"[a]b[c]=1;", {{u"a", u"b[c]", u"1"}}},
      {"[a]b=1=2;", {{u"a", u"b", u"1=2"}}}, {"[a]b==;", {{u"a", u"b", u"="}}},
      {"[a]b=];", {{u"a", u"b", u"]"}}},
  };
  for (const auto& row : rows) EXPECT_EQ(ParseConstants(row.bytes), row.rows) << row.bytes;
}

TEST(ParseConstants, ARecordWithoutANameOrAValueIsSkipped) {
  for (const std::string record :
       {"", " ", "\r\n", "text", "[a]", "[a]b", "[a]b=", "[a]=1", "a=1", "=", "]", "]=", "=]",
        "=]b", "a=[b]c=1", "a=b]c", "[a=b]c=1", "[a", "="}) {
    EXPECT_EQ(ParseConstants(record + ";"), Rows()) << record;
    const Rows others{{u"", u"x", u"1"}, {u"", u"y", u"2"}};
    EXPECT_EQ(ParseConstants("]x=1;" + record + ";]y=2;"), others) << record;
  }
}

TEST(ParseConstants, TheLastRecordIsLostWithoutItsSemicolon) {
  const Rows first{{u"a", u"b", u"1"}};
  EXPECT_EQ(ParseConstants("[a]b=1;[c]d=2"), first);
  EXPECT_EQ(ParseConstants("[a]b=1;[c]d=2\n"), first);
  EXPECT_EQ(ParseConstants("[a]b=1"), Rows());
  EXPECT_EQ(ParseConstants(""), Rows());
}

TEST(ParseConstants, LineBreaksBelongToTheRecord) {
  const Rows spread{{u"a\r\nb", u"c\r\nd", u"1\r\n"}, {u"e", u"f", u"2"}};
  EXPECT_EQ(ParseConstants("\r\n[a\r\nb]c\r\nd=1\r\n;\r\n[e]f=2;\r\n"), spread);
  const Rows broken{{u"a", u"b", u"\n"}};
  EXPECT_EQ(ParseConstants("[a]b=\n;"), broken);
}

TEST(ParseConstants, AByteIsTheCharacterOfItsNumber) {
  std::string bytes = "]";
  std::u16string name;
  for (unsigned byte = 0; byte < 256; ++byte) {
    if (byte == '=' || byte == ';') continue;
    bytes += static_cast<char>(byte);
    name += static_cast<char16_t>(byte);
  }
  const Rows rows{{u"", name, u"1"}};
  EXPECT_EQ(ParseConstants(bytes + "=1;"), rows);
  const Rows zeros{{u"\0"s, u"a\0b"s, u"\0"s}};
  EXPECT_EQ(ParseConstants("[\0]a\0b=\0;"s), zeros);
}

TEST(Matches, EachWordOccursSomewhereInAnyCase) {
  const Constant constant{u"Universal", u"Planck constant h (J s) \u00C4", u"6.62607015e-34"};
  for (const std::u16string filter :
       {u"", u" ", u"   ", u"planck", u"PLANCK", u"anck con", u"universal", u"6.626", u"E-34",
        u"h planck", u"  h  6.6  univ ", u"(J s)", u"\u00E4", u"\u00C4"}) {
    EXPECT_TRUE(Matches(constant, filter)) << testing::PrintToString(filter);
  }
  for (const std::u16string filter :
       {u"planckk", u"planck x", u"x planck", u"6,6", u"constantplanck", u"\u00E5", u"l(", u"\t"}) {
    EXPECT_FALSE(Matches(constant, filter)) << testing::PrintToString(filter);
  }
}

TEST(SymbolOf, IsTheLastWordBeforeTheUnit) {
  const std::pair<std::u16string_view, std::u16string_view> rows[] = {
      {u"molar gas constant R (J/(mol K))", u"R"},
      {u"inch", u"inch"},
      {u"", u""},
      {u"deuteron g factor g_d", u"g_d"},
      {u"a c (m) ", u"c"}};
  for (const auto& [name, symbol] : rows) {
    const Constant constant{u"", std::u16string(name), u"1"};
    EXPECT_EQ(SymbolOf(constant), symbol);
  }
}

TEST(Matches, SignsAreNotTakenForLetters) {
  EXPECT_FALSE(Matches({u"", u"[", u"1"}, u"{"));
  EXPECT_FALSE(Matches({u"", u"@", u"1"}, u"`"));
  EXPECT_FALSE(Matches({u"", u"\u00D7", u"1"}, u"\u00F7"));
  EXPECT_FALSE(Matches({u"", u"\u00DF", u"1"}, u"\u00FF"));
  EXPECT_TRUE(Matches({u"", u"\u00DEz", u"1"}, u"\u00FEZ"));
  EXPECT_TRUE(Matches({u"", u"\u00C0a", u"1"}, u"\u00E0A"));
}

TEST(Matches, ARowWithoutTextsMatchesOnlyWhatLooksForNothing) {
  EXPECT_TRUE(Matches({}, u""));
  EXPECT_TRUE(Matches({}, u"  "));
  EXPECT_FALSE(Matches({}, u"a"));
}

TEST(LoadConstants, ReadsTheFirstFolderThatHasTheFile) {
  const TemporaryFolder first;
  const TemporaryFolder second;
  PutFile(second.File("constable.dat"), "[a]b=2;");
  const Rows fromSecond{{u"a", u"b", u"2"}};
  auto rows = LoadConstants({first.Path(), second.Path()});
  ASSERT_TRUE(rows);
  EXPECT_EQ(*rows, fromSecond);

  PutFile(first.File("constable.dat"), "[a]b=1;");
  const Rows fromFirst{{u"a", u"b", u"1"}};
  rows = LoadConstants({first.Path(), second.Path()});
  ASSERT_TRUE(rows);
  EXPECT_EQ(*rows, fromFirst);
}

TEST(LoadConstants, AnEmptyFileIsATableWithoutRows) {
  const TemporaryFolder folder;
  PutFile(folder.File("constable.dat"), "");
  const auto rows = LoadConstants({folder.Path()});
  ASSERT_TRUE(rows);
  EXPECT_EQ(*rows, Rows());
}

TEST(LoadConstants, WithoutAFileTheMessageNamesThePathInTheFirstFolder) {
  const TemporaryFolder folder;
  const auto rows = LoadConstants({folder.Path(), "/nowhere"});
  ASSERT_FALSE(rows);
  const std::string path = folder.File("constable.dat");
  EXPECT_EQ(rows.error(), std::u16string(path.begin(), path.end()) + u" file was not found.");
}

TEST(LoadConstants, WithoutAFolderTheMessageNamesTheFile) {
  const auto rows = LoadConstants({});
  ASSERT_FALSE(rows);
  EXPECT_EQ(rows.error(), u"constable.dat file was not found.");
}

TEST(LoadConstants, AFolderOfAnyNameIsNamedAsItIsShown) {
  const auto rows = LoadConstants({"/nowhere/\xC3\xA4\xFF"});
  ASSERT_FALSE(rows);
  EXPECT_EQ(rows.error(), u"/nowhere/\u00E4\uFFFD/constable.dat file was not found.");
}

TEST(LoadConstants, WhatIsNoFileIsPassedOver) {
  const TemporaryFolder folder;
  const TemporaryFolder pipe;
  const TemporaryFolder good;
  mkdir(folder.File("constable.dat").c_str(), 0755);
  mkfifo(pipe.File("constable.dat").c_str(), 0600);
  PutFile(good.File("constable.dat"), "[a]b=1;");
  EXPECT_TRUE(LoadConstants({folder.Path(), pipe.Path(), good.Path()}));
  EXPECT_FALSE(LoadConstants({folder.Path(), pipe.Path()}));
}

TEST(LoadConstants, AFileThatMayNotBeReadIsPassedOver) {
  const TemporaryFolder folder;
  const TemporaryFolder good;
  PutFile(folder.File("constable.dat"), "[a]b=1;");
  chmod(folder.File("constable.dat").c_str(), 0);
  PutFile(good.File("constable.dat"), "[a]b=2;");
  EXPECT_EQ(InAnotherProcess([&] {
              if (geteuid() == 0 && seteuid(kNobody) != 0) return 2;
              if (LoadConstants({folder.Path()})) return 3;
              const auto rows = LoadConstants({folder.Path(), good.Path()});
              return rows && rows->at(0).value == u"2" ? 0 : 1;
            }),
            0);
}

TEST(LoadConstants, ALinkLeadsToItsFile) {
  const TemporaryFolder folder;
  PutFile(folder.File("table"), "[a]b=1;");
  ASSERT_EQ(symlink("table", folder.File("constable.dat").c_str()), 0);
  EXPECT_TRUE(LoadConstants({folder.Path()}));
}

TEST(LoadConstants, FourMebibytesAreReadAndNoByteMore) {
  constexpr std::size_t kMost = 4194304;
  const TemporaryFolder folder;
  const TemporaryFolder other;
  PutFile(other.File("constable.dat"), "[a]b=2;");
  const std::string row = "[a]b=1;";
  const std::string path = folder.File("constable.dat");

  PutFile(path, std::string(kMost - row.size(), ' ') + row);
  const auto rows = LoadConstants({folder.Path()});
  ASSERT_TRUE(rows);
  const Rows last{{u"a", u"b", u"1"}};
  EXPECT_EQ(*rows, last);

  PutFile(path, std::string(kMost + 1 - row.size(), ' ') + row);
  const auto tooMany = LoadConstants({folder.Path(), other.Path()});
  ASSERT_FALSE(tooMany);
  EXPECT_EQ(tooMany.error(), std::u16string(path.begin(), path.end()) +
                                 u" file is larger than 4 MB: it is no table of constants.");
}

TEST(ConstantsFolders, AreTheFolderOfTheProgramAndTheDataInstalledBesideIt) {
  namespace fs = std::filesystem;
  const fs::path program = fs::canonical("/proc/self/exe").parent_path();
  const std::vector<std::string> folders{
      program.string(), (program.parent_path() / "share" / "kav-calculator").string()};
  EXPECT_EQ(ConstantsFolders(), folders);
}

}  // namespace
}  // namespace kav::constants_table_test
