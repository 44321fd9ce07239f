#include "statistics/pasted_rows.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <string>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/locales.h"
#include "support/random.h"
#include "support/spelled_list.h"

namespace kav::pasted_rows_test {
namespace {

using test::Spelled;

constexpr DisplayFormat kFormat;

/// The rows of `text`, and then what the user is told.
std::string Paste(std::u16string_view text, DataShape shape, DisplayFormat format = kFormat) {
  const auto pasted = ReadPastedRows(text, shape, format, {});
  if (const auto* failed = std::get_if<WorkFailed>(&pasted)) return Narrow(failed->text);
  const auto& [rows, complaint] = std::get<PastedRows>(pasted);
  EXPECT_EQ(rows.Shape(), shape);
  return Spelled(rows) + Narrow(complaint);
}

std::string PasteOne(std::u16string_view text) {
  return Paste(text, DataShape::OneVariable);
}

std::string PasteTwo(std::u16string_view text) {
  return Paste(text, DataShape::TwoVariables);
}

struct Row {
  std::u16string text;
  std::string rows;
};

TEST(PastedRows, ColumnsOfOneVariableAreValueAndCount) {
  const std::vector<Row> table{
      {u"", ""},
      {u"2\t3\n4\t1\n", "2 3;4 1;"},
      {u"2\t3\r\n4\t1", "2 3;4 1;"},
      {u"2;3\n4,1\n5 6\n7", "2 3;4 1;5 6;7 1;"},
      {u"2\n\n  \n\r\n\t\t\n;;\n4\n", "2 1;4 1;"},
      {u"  2  \t  3  \n", "2 3;"},
      {u"   2     3   \n", "2 3;"},
      {u"2\t\n4\t1\t\t\n", "2 1;4 1;"},
      {u"1,234.5\t1,000\n", "1234.5 1000;"},
      {u"1,234;2\n", "1234 2;"},
      {u"1,5\n", "1 5;"},
      {u"+5\t10000\n", "5 10000;"},
      {u"5\t2.0\n5\t1e1\n", "5 2;5 10;"},
  };
  for (const Row& row : table) EXPECT_EQ(PasteOne(row.text), row.rows) << Narrow(row.text);
}

TEST(PastedRows, ColumnsOfTwoVariablesAreXAndYAndTheCount) {
  const std::vector<Row> table{
      {u"1\t2\t3\n4\t5\n", "1 2 3;4 5 1;"},
      {u"1;2;3\n4,5,6\n7 8 9\n", "1 2 3;4 5 6;7 8 9;"},
      {u"1,5;2;3\n", "1 of 1 line was not taken: line 1 has no number in X (\"1,5\")."},
      {u"1\t\t3\n", "1 of 1 line was not taken: line 1 has no number in Y."},
      {u"1\n", "1 of 1 line was not taken: line 1 has no number in Y."},
      {u"\t2\n", "1 of 1 line was not taken: line 1 has no number in X."},
  };
  for (const Row& row : table) EXPECT_EQ(PasteTwo(row.text), row.rows) << Narrow(row.text);
}

TEST(PastedRows, ValuesAreWrittenAsIntoLists) {
  EXPECT_EQ(PasteOne(u"1.50\n0.30000000000000004\n1e3\n1E-3\n"), "1.5 1;0.3 1;1000 1;0.001 1;");
  // The precision matters only in exponent form.
  EXPECT_EQ(Paste(u"1e20\n0.125\n", DataShape::OneVariable, {DisplayType::FixedPoint, 2}),
            "1.00e+20 1;0.125 1;");
  EXPECT_EQ(Paste(u"1234567\n", DataShape::OneVariable, {DisplayType::Thousands, 7}), "1234567 1;");
}

TEST(PastedRows, BadLinesAreCountedAndTold) {
  EXPECT_EQ(PasteOne(u"x\tcount\n5\t2\n"),
            "5 2;1 of 2 lines was not taken: line 1 has no number in X (\"x\").");
  EXPECT_EQ(
      PasteOne(u"1\n\nabc\n2\t0\n3\n"),
      "1 1;3 1;2 of 4 lines were not taken: line 3 has no number in X (\"abc\"), line 4 has a "
      "count that is no whole number from 1 to 10000 (\"0\").");
  EXPECT_EQ(PasteOne(u"a\nb\nc\nd\ne\n"),
            "5 of 5 lines were not taken: line 1 has no number in X (\"a\"), line 2 has no number "
            "in X (\"b\"), line 3 has no number in X (\"c\"), and 2 more.");
  EXPECT_EQ(PasteOne(u"1\t2\t3\n"), "1 of 1 line was not taken: line 1 has too many columns.");
  EXPECT_EQ(PasteTwo(u"1 2 3 4\n"), "1 of 1 line was not taken: line 1 has too many columns.");
}

TEST(PastedRows, ACountIsAWholeNumberFrom1To10000) {
  for (const char16_t* count :
       {u"0", u"10001", u"-1", u"2.5", u"1e5", u"x", u"4294967297", u"1e999"}) {
    EXPECT_EQ(PasteOne(std::u16string(u"5\t") + count),
              "1 of 1 line was not taken: line 1 has a count that is no whole number from 1 to "
              "10000 (\"" +
                  Narrow(count) + "\").");
  }
}

TEST(PastedRows, WhatIsNotFiniteOrNoNumberIsNoValue) {
  for (const char16_t* value : {u"inf", u"nan", u"1e400", u"0x10", u"1e", u"--1", u"١", u"5%"}) {
    EXPECT_EQ(PasteOne(value),
              "1 of 1 line was not taken: line 1 has no number in X (\"" + Narrow(value) + "\").");
  }
}

TEST(PastedRows, ALongCellIsToldByItsStart) {
  const std::u16string cell(1'000'000, u'x');
  EXPECT_EQ(PasteOne(cell), "1 of 1 line was not taken: line 1 has no number in X (\"" +
                                std::string(20, 'x') + "…\").");
  // Longer than any number.
  EXPECT_EQ(PasteOne(std::u16string(1'000'000, u'7')).substr(0, 30),
            "1 of 1 line was not taken: lin");
  EXPECT_EQ(PasteOne(u"0." + std::u16string(1'000, u'0') + u"7"), "0 1;");
}

TEST(PastedRows, ATotalBeyond32BitsIsRefused) {
  std::u16string text;
  for (int i = 0; i < 214'748; ++i) text += u"1\t10000\n";
  text += u"1\t3647\n";
  const auto pasted = ReadPastedRows(text, DataShape::OneVariable, kFormat, {});
  EXPECT_EQ(std::get<PastedRows>(pasted).rows.Total(), 2'147'483'647);
  text += u"1\n2\n";
  EXPECT_EQ(PasteOne(text),
            "The rows cannot be pasted: in line 214750 the total of the counts goes beyond "
            "-2147483648 to 2147483647; split the data into parts.");
}

TEST(PastedRows, ATextOfMoreThan400MillionCharactersIsNotRead) {
  // Memory that is never touched costs nothing.
  constexpr std::size_t kLength = 400'000'001;
  void* const map = mmap(nullptr, kLength * sizeof(char16_t), PROT_READ,
                         MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  ASSERT_NE(map, MAP_FAILED);
  EXPECT_EQ(PasteOne({static_cast<const char16_t*>(map), kLength}),
            "The rows cannot be pasted: the text is too long; copy it in several parts.");
  munmap(map, kLength * sizeof(char16_t));
}

TEST(PastedRows, ItTellsHowMuchIsDoneAndCanBeGivenUp) {
  std::u16string text;
  for (int i = 0; i < 100'000; ++i) text += u"12.5\t1\n";
  std::vector<double> told;
  const auto pasted = ReadPastedRows(text, DataShape::OneVariable, kFormat, [&told](double done) {
    told.push_back(done);
    return true;
  });
  EXPECT_EQ(std::get<PastedRows>(pasted).rows.RowCount(), 100'000U);
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.front(), 0);
  EXPECT_LT(told.back(), 1);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_TRUE(std::holds_alternative<WorkCancelled>(
      ReadPastedRows(text, DataShape::OneVariable, kFormat, [](double) { return false; })));
}

TEST(PastedRows, NoLocaleChangesANumber) {
  for (const char* name : test::kLocales) {
    const test::LocaleInForce locale(name);
    EXPECT_EQ(PasteOne(u"1.5\t2\n1,5;2\n"),
              "1.5 2;1 of 2 lines was not taken: line 2 has no number in X (\"1,5\").")
        << name;
  }
}

TEST(PastedRows, OneCellHasNothingThatSeparates) {
  for (const auto* text : {u"7", u" 7 ", u"7\n", u"7\r\n", u" 7 \n\n"}) {
    EXPECT_EQ(OneCellOf(text), u"7") << Narrow(text);
  }
  for (const auto* text : {u"", u" ", u"\n", u"7 8", u"7\t8", u"7;", u"1,5", u"\t7", u"7\n8"}) {
    EXPECT_EQ(OneCellOf(text), std::nullopt) << Narrow(text);
  }
}

TEST(PrintRows, RowsAreLinesWithTabsInTheGivenOrder) {
  DataList one(DataShape::OneVariable);
  EXPECT_EQ(one.Append({{"2", {}}, 3}), std::nullopt);
  EXPECT_EQ(one.Append({{"4.5", {}}, {}}), std::nullopt);
  EXPECT_EQ(PrintRows(one, std::vector<std::size_t>{1, 0}), u"4.5\t\n2\t3\n");
  EXPECT_EQ(PrintRows(one, {}), u"");
  DataList two(DataShape::TwoVariables);
  EXPECT_EQ(two.Append({{"1", "\xff"}, 3}), std::nullopt);
  EXPECT_EQ(PrintRows(two, std::vector<std::size_t>{0}), u"1\t\u00ff\t3\n");
}

/// A number of few digits. One of many digits would be rounded again each time it is written.
double Short(test::Random& random) {
  return (static_cast<double>(random.Below(2'000'001)) - 1e6) / 1000;
}

TEST(PrintRows, WhatIsPrintedIsPastedAgain) {
  test::Random random(7);
  for (int i = 0; i < test::Tries(300); ++i) {
    const auto shape = random.Below(2) == 0 ? DataShape::OneVariable : DataShape::TwoVariables;
    DataList list(shape);
    std::vector<std::size_t> all;
    for (std::size_t n = random.Below(30); n > 0; --n) {
      const std::string x = *FormatForInsertion(Short(random), kFormat);
      const std::string y = *FormatForInsertion(Short(random), kFormat);
      const auto count = static_cast<std::int32_t>(1 + random.Below(10'000));
      ASSERT_EQ(list.Append({{x, y}, count}), std::nullopt);
      all.push_back(all.size());
    }
    ASSERT_EQ(Paste(PrintRows(list, all), shape), Spelled(list));
  }
}

}  // namespace
}  // namespace kav::pasted_rows_test
