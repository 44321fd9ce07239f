#include "display/comma_reading.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav::comma_reading_test {
namespace {

using namespace std::string_view_literals;

constexpr CommaMeaning kPoint = CommaMeaning::DecimalPoint;
constexpr CommaMeaning kGroups = CommaMeaning::Grouping;
constexpr CommaMeaning kCells = CommaMeaning::Separator;

using Meanings = std::vector<CommaMeaning>;

TEST(QuestionOfCommas, AsksForWhatAllCommasOfATextCanMean) {
  struct Row {
    std::u16string_view text;
    std::u16string_view number;
    Meanings meanings;
  };
  const std::vector<Row> rows{
      {u"1,5", u"1,5", {kPoint, kCells}},
      {u",5", u",5", {kPoint, kCells}},
      {u"-1,5e3", u"1,5", {kPoint, kCells}},
      {u"1,234", u"1,234", {kPoint, kGroups, kCells}},
      {u"0,234", u"0,234", {kPoint, kCells}},
      {u"1.234,5", u"1.234,5", {kPoint, kCells}},
      {u"1,234.5", u"1,234.5", {kGroups, kCells}},
      {u"1,234,567", u"1,234,567", {kGroups, kCells}},
      {u"1,5\n2\n3,25\n", u"1,5", {kPoint, kCells}},
      {u"1,234\r\n5,678", u"1,234", {kPoint, kGroups, kCells}},
      {u"1,234\t5,6", u"1,234", {kPoint, kCells}},
      {u"7;2,5", u"2,5", {kPoint, kCells}},
      {u"1, 2,5", u"2,5", {kPoint, kCells}},
      {u"1,234.5\n1,5", u"1,234.5", {kCells}},
      {u"1.234\n1,5", u"1,5", {kCells}},
      {u"1.25\n1,5", u"1,5", {kPoint, kCells}},
  };
  for (const auto& [text, number, meanings] : rows) {
    const auto question = QuestionOfCommas(text);
    ASSERT_TRUE(question) << std::string(text.begin(), text.end());
    EXPECT_EQ(question->number, number);
    EXPECT_EQ(question->meanings, meanings) << std::string(text.begin(), text.end());
  }
}

TEST(QuestionOfCommas, NothingIsAskedIfCommasCanOnlySeparate) {
  for (const auto text :
       {u""sv, u"1.5"sv, u"1;2"sv, u"1, 2"sv, u"1,"sv, u"a,b"sv, u"1,2,3"sv, u"1.5,2"sv,
        u"1.5,2\n3,4"sv, u"3,4\n1.5,2"sv, u"1,5.2"sv, u"1,-5"sv, u"12,34,567"sv, u"."sv}) {
    EXPECT_EQ(QuestionOfCommas(text), std::nullopt) << std::string(text.begin(), text.end());
  }
}

TEST(WithCommas, ReadsEachNumberOfTheText) {
  struct Row {
    std::u16string_view text;
    CommaMeaning meaning;
    std::u16string_view read;
  };
  const std::vector<Row> rows{
      {u"1,5\n2\n-3,25e2\n", kPoint, u"1.5\n2\n-3.25e2\n"},
      {u"1.234,5\tx, y", kPoint, u"1234.5\tx, y"},
      {u",5", kPoint, u".5"},
      {u"1,234\n5,678.25", kGroups, u"1234\n5678.25"},
      {u"1,5\n2,5", kCells, u"1,5\n2,5"},
      {u"", kPoint, u""},
      {u"1.25", kPoint, u"1.25"},
  };
  for (const auto& [text, meaning, read] : rows) EXPECT_EQ(WithCommas(text, meaning), read);
}

TEST(CommaMeaningText, SaysWhatTheNumberBecomes) {
  EXPECT_EQ(CommaMeaningText(u"1,5", kPoint), u"1.5");
  EXPECT_EQ(CommaMeaningText(u"1,234", kGroups), u"1234");
  EXPECT_EQ(CommaMeaningText(u"1,234,567", kCells), u"1 | 234 | 567");
  EXPECT_EQ(CommaQuestionText({u"1,5", {kPoint}}), u"What is 1,5?");
}

TEST(CommaMeaningText, ShowsTheCommaOfALongNumber) {
  const auto number = u"12345678901234567890,1234567890"sv;
  EXPECT_EQ(CommaMeaningText(number, kPoint), u"…34567890.1234567…");
  EXPECT_EQ(CommaMeaningText(number, kGroups), u"…3456789012345678…");
  EXPECT_EQ(CommaQuestionText({std::u16string(number), {kPoint}}), u"What is …34567890,1234567…?");
  EXPECT_EQ(CommaRefusal(number),
            u"The comma in \"…34567890,1234567…\" can be read in two ways. Write "
            u"…34567890.1234567… or …345678901234567….");
  EXPECT_EQ(CommaMeaningText(u"123456789012345,5", kPoint), u"123456789012345.…");
}

TEST(CommaRefusal, NamesANumberWhoseCommaCouldBeADecimalOne) {
  EXPECT_EQ(CommaRefusal(u"1,5"),
            u"The comma in \"1,5\" can be read in two ways. Write 1.5 or 15.");
  EXPECT_EQ(CommaRefusal(u" -1,234 "),
            u"The comma in \"1,234\" can be read in two ways. Write 1.234 or 1234.");
  EXPECT_EQ(CommaRefusal(u"1.234,5"),
            u"The comma in \"1.234,5\" can be read in two ways. Write 1234.5 or 1.2345.");
  EXPECT_EQ(CommaRefusal(u",5"), u"The comma in \",5\" can be read in two ways. Write .5 or 5.");
}

TEST(CommaRefusal, OtherTextsAreNotItsMatter) {
  for (const auto text : {u""sv, u"12"sv, u"1.5"sv, u"1,234.5"sv, u"1,234,567"sv, u"1,"sv, u"a,b"sv,
                          u"1,5.2"sv, u"1,2,3"sv}) {
    EXPECT_EQ(CommaRefusal(text), std::nullopt) << std::string(text.begin(), text.end());
  }
}

TEST(QuestionOfLine, AsksForTheFirstNumberThatCanBeReadInTwoWays) {
  struct Row {
    std::u16string_view line;
    std::u16string_view number;
    std::u16string_view text;
  };
  const std::vector<Row> rows{
      {u"1,234", u"1,234", u"1234 or 1.234?"},
      {u"1,5", u"1,5", u"15 or 1.5?"},
      {u"1.234,5", u"1.234,5", u"1.2345 or 1234.5?"},
      {u"12345,6", u"12345,6", u"123456 or 12345.6?"},
      {u"0,5", u"0,5", u"0.5?"},
      {u",5", u",5", u".5?"},
      {u"1.234.567,8", u"1.234.567,8", u"1234567.8?"},
      {u"2*sin(1,5)+3", u"1,5", u"15 or 1.5?"},
      {u"1,234,567+1,5", u"1,5", u"15 or 1.5?"},
      {u"M:F(1,2)+1,234e3", u"1,234", u"1234 or 1.234?"},
      {u"linearequation([M1],2)*1,5", u"1,5", u"15 or 1.5?"},
  };
  for (const auto& [line, number, text] : rows) {
    const auto question = QuestionOfLine(line);
    ASSERT_TRUE(question) << std::string(line.begin(), line.end());
    EXPECT_EQ(question->number, number);
    EXPECT_EQ(LineQuestionText(*question), text);
  }
}

TEST(QuestionOfLine, AsksForNothingElse) {
  for (const auto line :
       {u""sv, u"1.5"sv, u"1,234,567"sv, u"1,234.5"sv, u"M:F(1,5)"sv, u"2*M:F(M:G(1,5),1,234)"sv,
        u"M:F(1,5"sv, u"linearequation(1,5)"sv, u"1,2,3"sv, u"1, 2"sv, u"a,b"sv}) {
    EXPECT_EQ(QuestionOfLine(line), std::nullopt) << std::string(line.begin(), line.end());
  }
}

TEST(QuestionOfLine, ALineOfManyCallsTakesNoTime) {
  for (const std::u16string_view call : {u"M:()"sv, u"linearequation()"sv, u"Ml"sv}) {
    std::u16string line;
    for (int i = 0; i < 100'000; ++i) line += call;
    line += u"1,5";
    EXPECT_TRUE(QuestionOfLine(line));
  }
}

TEST(LineWithCommas, ReadsAllNumbersOfTheSameKindAlike) {
  const std::u16string_view line = u"1,234+5,678*1,5-M:F(1,234)";
  const auto first = QuestionOfLine(line);
  ASSERT_TRUE(first);
  EXPECT_EQ(LineWithCommas(line, *first, kPoint), u"1.234+5.678*1,5-M:F(1,234)");
  const std::u16string read = LineWithCommas(line, *first, kGroups);
  EXPECT_EQ(read, u"1234+5678*1,5-M:F(1,234)");
  const auto second = QuestionOfLine(read);
  ASSERT_TRUE(second);
  EXPECT_EQ(second->number, u"1,5");
  EXPECT_EQ(LineWithCommas(read, *second, kPoint), u"1234+5678*1.5-M:F(1,234)");
}

}  // namespace
}  // namespace kav::comma_reading_test
