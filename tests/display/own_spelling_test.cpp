#include "display/own_spelling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "display/comma_reading.h"
#include "display/number_format.h"
#include "display/number_input.h"
#include "engine/expression_engine.h"

namespace kav::own_spelling_test {
namespace {

using namespace std::string_view_literals;

struct Row {
  std::u16string_view foreign;
  std::u16string_view own;
};

TEST(OwnSpelling, WritesSignsOfOtherKeyboardsAsItsOwn) {
  const std::vector<Row> rows{
      {u"2×3·4⋅5∙6✕7", u"2*3*4*5*6*7"},
      {u"6÷3∕2", u"6/3/2"},
      {u"−5–3—2", u"-5-3-2"},
      {u"3²+4³", u"3^2+4^3"},
      {u"10⁻³", u"10^-3"},
      {u"2¹²", u"2^12"},
      {u"2²3", u"2^(2)3"},
      {u"2²³", u"2^23"},
      {u"π", u"Pi"},
      {u"2*π*6371", u"2*Pi*6371"},
      {u"sinπ", u"sin Pi"},
      {u"πx", u"Pi x"},
      {u"ｓｉｎ（３０）＋１．５", u"sin(30)+1.5"},
      {u"1\u00A0+\u20092\u202F*\u30003", u"1 + 2 * 3"},
      {u"\uFEFF1\u200B2", u"12"},
      {u"π×5²÷2−√9", u"Pi*5^2/2-sqrt(9)"},
  };
  for (const auto& [foreign, own] : rows) EXPECT_EQ(OwnSpelling(foreign), own) << Narrow(foreign);
}

TEST(OwnSpelling, WritesARootAsACallOfWhatStandsBehindIt) {
  const std::vector<Row> rows{
      {u"√2", u"sqrt(2)"},
      {u"√(2+2)", u"sqrt(2+2)"},
      {u"√2^2", u"sqrt(2)^2"},
      {u"√1.5e3*2", u"sqrt(1.5e3)*2"},
      {u"√2e", u"sqrt(2)e"},
      {u"√π", u"sqrt(Pi)"},
      {u"√ans^2", u"sqrt(ans)^2"},
      {u"√x+1", u"sqrt(x)+1"},
      {u"√√16", u"sqrt(sqrt(16))"},
      {u"√sin(30)", u"sqrt(sin(30))"},
      {u"√M:F(4)", u"sqrt(M:F(4))"},
      {u"√[M1]", u"sqrt([M1])"},
      {u"√ 9", u"sqrt(9)"},
      {u"√1 234", u"sqrt(1234)"},
      {u"2*√((1+2)*3)", u"2*sqrt((1+2)*3)"},
      {u"sin√4", u"sin sqrt(4)"},
      {u"√", u"sqrt "},
      {u"√sin30", u"sqrt sin30"},
      {u"√(2", u"sqrt(2"},
      {u"√-4", u"sqrt-4"},
  };
  for (const auto& [foreign, own] : rows) EXPECT_EQ(OwnSpelling(foreign), own) << Narrow(foreign);
}

TEST(OwnSpelling, ATextOfRootsAloneTakesNoTime) {
  const std::u16string roots(100'000, u'√');
  EXPECT_EQ(OwnSpelling(roots), roots);
}

TEST(OwnSpelling, TakesTheGroupingOfNumbersAway) {
  const std::vector<Row> rows{
      {u"2,469,134.5", u"2469134.5"},
      {u"-1,000.25", u"-1000.25"},
      {u"1,234,567", u"1234567"},
      {u"1,234.5+2,000,000", u"1234.5+2000000"},
      {u"1 234", u"1234"},
      {u"1 234 567.5", u"1234567.5"},
      {u"1\u202F234\u00A0567", u"1234567"},
      {u"1'234'567", u"1234567"},
      {u"1’234.5", u"1234.5"},
      {u"sin(1 234)", u"sin(1234)"},
      {u"2*M:F(1 234,5)", u"2*M:F(1234,5)"},
      {u"12 345,6", u"12345,6"},
  };
  for (const auto& [foreign, own] : rows) EXPECT_EQ(OwnSpelling(foreign), own) << Narrow(foreign);
}

TEST(OwnSpelling, LeavesWhatIsNoGrouping) {
  for (const auto text : {u"1 23"sv,
                          u"1234 567"sv,
                          u"0 123"sv,
                          u"1 234 56"sv,
                          u"1 2345"sv,
                          u"1.5 123"sv,
                          u"1e5 123"sv,
                          u"1  234"sv,
                          u"1,234"sv,
                          u"1.234,5"sv,
                          u"1,5"sv,
                          u"12,34,567"sv,
                          u"1,234.5.6"sv,
                          u"M:F(1,234,567)"sv,
                          u"M:F(1,234.5)"sv,
                          u"linearequation([M1],1,234.5)"sv,
                          u"M:F( 3 )"sv,
                          u"1 + 2"sv,
                          u""sv,
                          u"sin(30)*2e-3"sv,
                          u"foo $ é"sv}) {
    EXPECT_EQ(OwnSpelling(text), text) << Narrow(text);
  }
}

TEST(OwnSpelling, DropsOneLineBreakAtTheEnd) {
  EXPECT_EQ(OwnSpelling(u"12\n"), u"12");
  EXPECT_EQ(OwnSpelling(u"12\r\n"), u"12");
  EXPECT_EQ(OwnSpelling(u"12\r"), u"12");
  EXPECT_EQ(OwnSpelling(u"12\n\n"), u"12\n");
}

TEST(OwnSpelling, NumbersOfTwoCellsOrLinesStayTwo) {
  EXPECT_EQ(OwnSpelling(u"1\t234"), u"1\t234");
  EXPECT_EQ(OwnSpelling(u"1\n234\n"), u"1\n234");
}

TEST(OwnPiece, DoesNotGrowTogetherWithWordsBesideIt) {
  EXPECT_EQ(OwnPiece(u'n', u"π", 0), u" Pi");
  EXPECT_EQ(OwnPiece(0, u"π", u'x'), u"Pi ");
  EXPECT_EQ(OwnPiece(u'2', u"π", u')'), u"Pi");
  EXPECT_EQ(OwnPiece(u'n', u"√2", u'x'), u" sqrt(2)");
  EXPECT_EQ(OwnPiece(u's', u"i", u'n'), u"i");
  EXPECT_EQ(OwnPiece(u's', u"in", 0), u"in");
}

TEST(OwnCells, KeepsWhatSeparatesCells) {
  const std::vector<Row> rows{
      {u"1 234\n5 678\n", u"1 234\n5 678\n"},
      {u"1 234\t5\n", u"1234\t5\n"},
      {u"1 234;5", u"1234;5"},
      {u"1 234；5", u"1234;5"},
      {u"1\u202F234\t5\u00A0678\n", u"1234\t5678\n"},
      {u"1\u00A0234 5", u"1234 5"},
      {u"1'234\n−5\n", u"1234\n-5\n"},
      {u"1’234’567 2", u"1234567 2"},
      {u"１２\t３", u"12\t3"},
      {u"1,234\t5,6", u"1,234\t5,6"},
      {u"1\t2\n3\t4\n", u"1\t2\n3\t4\n"},
  };
  for (const auto& [foreign, own] : rows) {
    EXPECT_EQ(OwnCells(std::u16string(foreign)), own) << Narrow(foreign);
  }
}

/// Any double that has a text, small and large ones as often as others.
double AnyValue(std::mt19937_64& random) {
  std::uniform_real_distribution<double> digits(-10, 10);
  std::uniform_int_distribution<int> powers(-20, 20);
  return digits(random) * std::pow(10, powers(random));
}

TEST(OwnSpelling, TakesTheCalculatorsOwnAnswersBack) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 2000; ++i) {
    const double value = AnyValue(random);
    const DisplayFormat format{static_cast<DisplayType>(random() % 5),
                               static_cast<int>(random() % 16)};
    const std::string shown = *FormatNumber(value, format);
    const std::u16string own = OwnSpelling(Widen(shown));
    // 1,234 alone is asked about; with commas between thousands it is what is shown.
    const auto question = QuestionOfLine(own);
    const std::string taken =
        Narrow(question ? LineWithCommas(own, *question, CommaMeaning::Grouping) : own);
    const auto evaluated = Evaluate(taken, {});
    ASSERT_TRUE(evaluated) << shown;
    std::string digits = shown;
    std::erase(digits, ',');
    EXPECT_EQ(*evaluated, ReadWholeNumber(digits)) << shown;
    const auto field = ReadNumberField(Widen(taken), u"");
    ASSERT_TRUE(field) << shown;
    EXPECT_EQ(*field, *evaluated) << shown;
  }
}

TEST(OwnSpelling, TakesAnswersOfIntegerBasesBack) {
  std::mt19937_64 random(2);
  for (const BaseMode base : {BaseMode::Hexadecimal, BaseMode::Binary, BaseMode::Octal}) {
    for (int i = 0; i < 200; ++i) {
      const auto value = static_cast<double>(static_cast<std::int32_t>(random()));
      const std::string shown = *FormatNumber(value, {}, base);
      CalcModes modes;
      modes.baseMode = base;
      const auto evaluated = Evaluate(Narrow(OwnSpelling(Widen(shown))), modes);
      ASSERT_TRUE(evaluated) << shown;
      EXPECT_EQ(*FormatNumber(*evaluated, {}, base), shown);
    }
  }
}

}  // namespace
}  // namespace kav::own_spelling_test
