#include "cli/unusual_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "statistics/data_reader.h"
#include "support/effort.h"
#include "support/random.h"

namespace kav::unusual_lines_test {
namespace {

using Place = UnusualLines::Place;
using LastRow = UnusualLines::LastRow;

/// The remarks about `text`, which is a whole file, a line each.
std::string About(std::string_view text, DataShape shape = DataShape::OneVariable,
                  std::size_t missing = 0, LastRow lastRow = LastRow::LeftOut) {
  UnusualLines lines(shape);
  lines.Read(text, {1, 0});
  const auto lineEnds = static_cast<std::uint64_t>(std::count(text.begin(), text.end(), '\n'));
  lines.Finish({lineEnds + 1, missing}, lastRow);
  std::string remarks;
  for (const Remark& remark : lines.Remarks()) remarks += remark.text + '\n';
  return remarks;
}

struct Row {
  std::string_view text;
  std::string_view remarks;
};

TEST(UnusualLines, RowsAsTheScreensSaveThemNeedNoRemark) {
  for (const std::string_view text : {"", "2\t3\r\n4\t1\r\n", "-1.5e+3 2\n.5;10000\n",
                                      "\n\r\n2\t3\n\n", "+2\t+3\n", "2\t1e2\n"}) {
    EXPECT_EQ(About(text), "") << text;
  }
  EXPECT_EQ(About("1\t2\t3\r\n4\t5\t6\r\n", DataShape::TwoVariables), "");
}

TEST(UnusualLines, EachKindIsToldForItsFirstLine) {
  const std::vector<Row> table{
      {"value,count\n2 3\nx\n",
       "line 1 (\"value,count\"): it has text; 1 number was read from it\n"},
      {"2 3\n# data\n", "line 2 (\"# data\"): it has text and no number, and was left out\n"},
      {"2 3\n1,5 2\n2,5 1\n",
       "line 2 (\"1,5 2\"): its comma separates two numbers, it is no decimal point\n"},
      {"1.5E3 2\n",
       "line 1 (\"1.5E3 2\"): its \"E\" separates two numbers; an exponent is written "
       "with \"e\"\n"},
      {"1E+3 2\n",
       "line 1 (\"1E+3 2\"): its \"E\" separates two numbers; an exponent is written "
       "with \"e\"\n"},
      {"2 3\n1E\n", "line 2 (\"1E\"): it has text; 1 number was read from it\n"},
      {"5 1\n2 3 4\n4 1 1\n",
       "line 2 (\"2 3 4\"): it has 3 numbers instead of 2; each 2 made a row, whatever the "
       "lines\n"},
      {"7 2.9\n7 1.5\n",
       "line 1 (\"7 2.9\"): its count \"2.9\" is no whole number from 1 on; it was read as 2\n"},
      {"7 -3\n",
       "line 1 (\"7 -3\"): its count \"-3\" is no whole number from 1 on; it was read as "
       "-3\n"},
      {"7 0\n",
       "line 1 (\"7 0\"): its count \"0\" is no whole number from 1 on; it was read as 0\n"},
      {"1-2 5\n", "line 1 (\"1-2 5\"): \"1-2\" is no number and was read as 1\n"},
      {".. 5\n", "line 1 (\".. 5\"): \"..\" is no number and was read as 0\n"},
      {"\xef\xbb\xbf"
       "2 3\n",
       "line 1 (\"2 3\"): it begins with a byte order mark, which was left out\n"},
      {"2 3\n4 1", "line 2 (\"4 1\"): its last number was left out, because nothing ends it\n"},
  };
  for (const Row& row : table) EXPECT_EQ(About(row.text), row.remarks) << row.text;
}

TEST(UnusualLines, ARowWithoutACountIsToldWithWhatBecameOfIt) {
  EXPECT_EQ(About("2 3\n4\n", DataShape::OneVariable, 1),
            "line 2 (\"4\"): it has 1 number instead of 2; each 2 made a row, whatever the lines\n"
            "line 2: the last row was left out, because it has no count\n");
  EXPECT_EQ(About("1 2\n", DataShape::TwoVariables, 2, LastRow::Kept),
            "line 1 (\"1 2\"): it has 2 numbers instead of 3; each 3 made a row, whatever the "
            "lines\n"
            "line 1: the only row has no count, which was read as 0\n");
}

TEST(UnusualLines, BlocksMayCutALineAndUsualOnesMayBeLeftOut) {
  UnusualLines lines(DataShape::OneVariable);
  lines.Read("7 1\n8 1.", {1001, 0});
  EXPECT_TRUE(lines.IsWithinLine());
  lines.Read("5\n", {1002, 1});
  EXPECT_FALSE(lines.IsWithinLine());
  // This block begins with a count: a line before it had one number.
  lines.Read("3 4\n", {5000, 1});
  ASSERT_EQ(lines.Remarks().size(), 1U);
  EXPECT_EQ(lines.Remarks()[0].line, 1002U);
  EXPECT_EQ(lines.Remarks()[0].text,
            "line 1002 (\"8 1.5\"): its count \"1.5\" is no whole number from 1 on; it was read as "
            "1");
}

TEST(UnusualLines, WhatTheReaderCallsUsualNeedsNoRemark) {
  test::Random random(7);
  constexpr std::string_view kCharacters = "0123456789 \t\n\r;,E.x";
  int usual = 0;
  for (int i = 0; i < test::Tries(5000); ++i) {
    std::string text = "1\t2\r\n3.5 4\n\n";
    for (std::size_t changes = random.Below(3); changes > 0; --changes) {
      text[random.Below(text.size())] = random.Of(kCharacters);
    }
    text += '\n';
    DataReader reader(DataShape::OneVariable,
                      [](const DataRow&) { return std::optional<DataRefusal>(); });
    EXPECT_EQ(reader.Read(text), std::nullopt);
    if (reader.TakeUnusual() || reader.Field() != 0) continue;
    ++usual;
    const std::string remarks = About(text);
    // Whoever adds the values up sees for himself whether they are numbers.
    EXPECT_TRUE(remarks.empty() || remarks.find("is no number") != remarks.npos) << text << remarks;
  }
  EXPECT_GT(usual, 100);
}

TEST(UnusualLines, ALineOfAnyLengthIsQuotedByItsStart) {
  const std::string text = std::string(100'000, 'x') + "\n";
  EXPECT_EQ(About(text), "line 1 (\"" + std::string(40, 'x') +
                             "...\"): it has text and no number, and was left out\n");
}

}  // namespace
}  // namespace kav::unusual_lines_test
