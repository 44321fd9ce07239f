#include "statistics/data_reader.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "support/effort.h"
#include "support/random.h"

namespace kav::data_reader_test {
namespace {

std::string Spelled(const DataRow& row, DataShape shape) {
  std::string text = std::string(row.values[0]) + ' ';
  if (shape == DataShape::TwoVariables) text.append(row.values[1]) += ' ';
  return text + (row.count ? std::to_string(*row.count) : "") + ';';
}

std::string NameOf(DataRefusal refusal) {
  if (refusal == DataRefusal::CountOutOfRange) return " count in ";
  if (refusal == DataRefusal::NoNumber) return " no number in ";
  return refusal == DataRefusal::ValueTooLong ? " too long in " : " other in ";
}

/// The rows that a reader reads from blocks, and then its fault.
class Reading {
 public:
  explicit Reading(DataShape shape, Mistakes mistakes = Mistakes::Taken)
      : reader_(
            shape,
            [this, shape](const DataRow& row) {
              rows_ += Spelled(row, shape);
              return std::optional<DataRefusal>();
            },
            mistakes) {}

  Reading& Read(std::string_view block) {
    if (!fault_) fault_ = reader_.Read(block);
    return *this;
  }
  std::string Finish() {
    if (!fault_) fault_ = reader_.Finish();
    if (!fault_) return rows_;
    return rows_ + NameOf(fault_->refusal) + std::to_string(fault_->line);
  }

 private:
  std::string rows_;
  std::optional<DataFault> fault_;
  DataReader reader_;
};

std::string OneOf(std::string_view text) {
  return Reading(DataShape::OneVariable).Read(text).Finish();
}

std::string TwoOf(std::string_view text) {
  return Reading(DataShape::TwoVariables).Read(text).Finish();
}

struct Row {
  std::string text;
  std::string rows;
};

TEST(DataReader, TokensOfOneVariableAreValueAndCountInTurn) {
  using namespace std::string_literals;
  const std::vector<Row> table{
      {"", ""},
      {"2\t3\r\n4\t1\r\n", "2 3;4 1;"},
      {"1.5e+3\t2\r\n", "1.5e+3 2;"},
      {"1.5E3\r\n", "1.5 3;"},
      {"1,5\n", "1 5;"},
      {"2 3 4 1 ", "2 3;4 1;"},
      {"2;3x4y1z", "2 3;4 1;"},
      {"\r\n\r\n \t2\t\t\n\n3\n", "2 3;"},
      {"2\0003\0004\0001\n"s, "2 3;4 1;"},
      {"\0\0\0"s, ""},
      {"see here\r\n", "ee 0;"},
      {"\xef\xbb\xbf"
       "2\t3\n",
       "2 3;"},
      {"\xff"
       "2\xe9"
       "3\x80",
       "2 3;"},
      {"007\t05\n", "007 5;"},
      {"1e5\t1e2\n", "1e5 100;"},
      {"+5\t+3\n-5\t-3\n", "+5 3;-5 -3;"},
      {"..\t..\n", ".. 0;"},
      {"1-2\t3-4\n", "1-2 3;"},
  };
  for (const Row& row : table) EXPECT_EQ(OneOf(row.text), row.rows) << row.text;
}

TEST(DataReader, TokensOfTwoVariablesAreXAndYAndTheCount) {
  const std::vector<Row> table{
      {"1\t2\t3\r\n4\t5\t6\r\n", "1 2 3;4 5 6;"},
      {"1 2\n3 4 5 6\n", "1 2 3;4 5 6;"},
      {"1.5E3\t7\n", "1.5 3 7;"},
  };
  for (const Row& row : table) EXPECT_EQ(TwoOf(row.text), row.rows) << row.text;
}

TEST(DataReader, ATokenThatNothingEndsIsNone) {
  EXPECT_EQ(OneOf("2\t3\r\n4"), "2 3;");
  EXPECT_EQ(OneOf("2\t3\r\n4\t1"), "2 3;");
  EXPECT_EQ(OneOf("2"), "");
  EXPECT_EQ(TwoOf("1\t2\t3"), "1 2 ;");
  EXPECT_EQ(TwoOf("1"), "");
}

TEST(DataReader, ALastRowWithoutItsCountIsGoneUnlessItIsTheOnlyOne) {
  EXPECT_EQ(OneOf("2\t3\r\n4\r\n"), "2 3;");
  EXPECT_EQ(OneOf("4\r\n"), "4 ;");
  EXPECT_EQ(OneOf("4\t1"), "4 ;");
  EXPECT_EQ(TwoOf("1\t2\t3\r\n4\t5\r\n"), "1 2 3;");
  EXPECT_EQ(TwoOf("1\t2\t3\r\n4\r\n"), "1 2 3;");
  EXPECT_EQ(TwoOf("4\t5\r\n"), "4 5 ;");
  EXPECT_EQ(TwoOf("4\r\n"), "4  ;");
}

TEST(DataReader, CountsAreTruncatedModulo2To32) {
  const std::vector<Row> table{
      {"1 2.9 ", "1 2;"},
      {"1 -2.9 ", "1 -2;"},
      {"1 0.999 ", "1 0;"},
      {"1 2147483647 ", "1 2147483647;"},
      {"1 2147483648 ", "1 -2147483648;"},
      {"1 4294967297 ", "1 1;"},
      {"1 999999999 ", "1 999999999;"},
      {"1 -4294967299 ", "1 -3;"},
      {"1 1e300 ", "1 0;"},  // a multiple of 2^32
      {"1 1e9999 ", "1 0;"},
      {"1 -1e9999 ", "1 0;"},
      {"1 e ", "1 0;"},
      {"1 5-3 ", "1 5;"},
      {"1 -0 ", "1 0;"},
  };
  for (const Row& row : table) EXPECT_EQ(OneOf(row.text), row.rows) << row.text;
}

TEST(DataReader, MistakesThatAreRefusedNameTheirLine) {
  const std::vector<Row> table{
      {"1 2147483647 ", "1 2147483647;"},
      {"1 2147483647.9 ", "1 2147483647;"},
      {"1 -2147483648.9 ", "1 -2147483648;"},
      {"1 2.9 ", "1 2;"},
      {"5 5\n1 2147483648 ", "5 5; count in 2"},
      {"1 -2147483649 ", " count in 1"},
      {"5 5\n1 1\n1 3000000000\n6 6\n", "5 5;1 1; count in 3"},
      {"1 1e300 ", " count in 1"},
      {"1 -1e9999 ", " count in 1"},
      {"1 " + std::string(30'000, '1') + " ", " count in 1"},
      {"1 " + std::string(30'000, '0') + " ", "1 0;"},
      {"1 " + std::string(30'001, '0') + " ", " too long in 1"},
  };
  for (const Row& row : table) {
    EXPECT_EQ(Reading(DataShape::OneVariable, Mistakes::Refused).Read(row.text).Finish(), row.rows)
        << row.text.substr(0, 40);
  }
}

TEST(DataReader, AnEndlessStretchWithoutNumbersIsRefused) {
  Reading reading(DataShape::OneVariable, Mistakes::Refused);
  const std::string block(65'536, '\0');
  reading.Read("1 1\n");
  for (int i = 0; i < 16; ++i) reading.Read(block);
  reading.Read("2 2\n");
  for (int i = 0; i < 17; ++i) reading.Read(block);
  EXPECT_EQ(reading.Finish(), "1 1;2 2; no number in 3");
  Reading zeros(DataShape::OneVariable, Mistakes::Refused);
  for (int i = 0; i < 40'000; ++i) zeros.Read(i == 0 ? "5\t0" : "0");
  EXPECT_EQ(zeros.Finish(), " too long in 1");
}

TEST(DataReader, WhatIsUnusualIsRemembered) {
  const std::vector<std::pair<std::string, bool>> table{
      {"2\t3\r\n4\t1\r\n", false}, {"2 3\n4;1\n", false},
      {"2 3\n\n4 1\n", true},      {"2,3\n", true},
      {"x\n2 3\n", true},          {"2 0\n", true},
      {"2 1.5\n", true},           {"2 -1\n", true},
      {"2 1234567890\n", true},    {"1\n2\n", true},
      {"1 2 3 4\n", true},         {"1 2 3\n4\n5 6\n", true},
  };
  for (const auto& row : table) {
    DataReader reader(DataShape::OneVariable,
                      [](const DataRow&) { return std::optional<DataRefusal>(); });
    EXPECT_EQ(reader.Read(row.first), std::nullopt);
    EXPECT_EQ(reader.TakeUnusual(), row.second) << row.first;
    EXPECT_FALSE(reader.TakeUnusual());
  }
}

TEST(DataReader, OfACountTheFirst30CharactersAreRead) {
  // With the ones behind them it would be another number.
  EXPECT_EQ(OneOf("1 " + std::string(28, '0') + "12 "), "1 12;");
  EXPECT_EQ(OneOf("1 " + std::string(28, '0') + "123 "), "1 12;");
  EXPECT_EQ(OneOf("1 " + std::string(27, '0') + "2e12 "), "1 20;");
  EXPECT_EQ(OneOf("1 " + std::string(30, '0') + "7 "), "1 0;");
  EXPECT_EQ(OneOf("1 7." + std::string(1'000'000, '1') + " "), "1 7;");
}

TEST(DataReader, AValueOfMoreThan30000CharactersIsAFaultInItsLine) {
  const std::string longest(30'000, '1');
  EXPECT_EQ(OneOf("5 5\n" + longest + " 2\n"), "5 5;" + longest + " 2;");
  EXPECT_EQ(OneOf("5 5\n\n" + longest + "1 2\n"), "5 5; too long in 3");
  EXPECT_EQ(TwoOf("5 5 5\n6 " + longest + "1 2\n"), "5 5 5; too long in 2");
}

TEST(DataReader, DigitsWithoutAnEndAreAFaultAtOnce) {
  Reading reading(DataShape::OneVariable);
  const std::string block(65'536, '7');
  reading.Read("1\t1\r\n").Read(block);
  EXPECT_EQ(reading.Finish(), "1 1; too long in 2");
  Reading small(DataShape::OneVariable);
  for (int i = 0; i < 30'001; ++i) small.Read("7");
  EXPECT_EQ(small.Finish(), " too long in 1");
}

TEST(DataReader, AGigabyteOfDigitsMakesOneCount) {
  const int kBlocks = test::Tries(16'384);
  Reading reading(DataShape::OneVariable);
  const std::string block(65'536, '0');
  reading.Read("5\t");
  for (int i = 0; i < kBlocks; ++i) reading.Read(block);
  EXPECT_EQ(reading.Read("\r\n").Finish(), "5 0;");
}

TEST(DataReader, TabsWithoutEndAreNoRows) {
  const int kBlocks = test::Tries(1'000);
  Reading reading(DataShape::TwoVariables);
  const std::string block(65'536, '\t');
  for (int i = 0; i < kBlocks; ++i) reading.Read(block);
  EXPECT_EQ(reading.Read("1\t2\t3\n").Finish(), "1 2 3;");
}

TEST(DataReader, ARefusalEndsTheReadingInItsLine) {
  int taken = 0;
  DataReader reader(DataShape::OneVariable, [&taken](const DataRow&) {
    return ++taken < 3 ? std::nullopt : std::optional(DataRefusal::NoMemory);
  });
  const auto fault = reader.Read("1 1\n2 2\n\n3 3\n4 4\n");
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->refusal, DataRefusal::NoMemory);
  EXPECT_EQ(fault->line, 4U);
  EXPECT_EQ(taken, 3);
}

/// A text of `rows` lines, each with a row.
std::string Lines(int rows) {
  std::string text;
  for (int i = 0; i < rows; ++i) text += "1.5\t2\r\n";
  return text;
}

TEST(DataReader, ARefusalIsToldInItsLineHoweverManyRowsThereAre) {
  constexpr int kRows = 300;
  for (int refused = 1; refused <= kRows; ++refused) {
    int taken = 0;
    DataReader reader(DataShape::OneVariable, [&](const DataRow&) {
      return ++taken < refused ? std::nullopt : std::optional(DataRefusal::TotalOutOfRange);
    });
    const auto fault = reader.Read(Lines(kRows));
    ASSERT_TRUE(fault);
    ASSERT_EQ(fault->refusal, DataRefusal::TotalOutOfRange);
    ASSERT_EQ(fault->line, static_cast<std::uint64_t>(refused));
    ASSERT_EQ(taken, refused);
  }
}

TEST(DataReader, RowsComeTogetherWhereTheyMayInTheirOrder) {
  std::string rows;
  std::size_t calls = 0;
  DataReader reader(DataShape::TwoVariables, [&](std::span<const DataRow> some) {
    ++calls;
    for (const DataRow& row : some) rows += Spelled(row, DataShape::TwoVariables);
    return TakenRows{some.size(), std::nullopt};
  });
  std::string text;
  std::string expected;
  for (int i = 0; i < 1000; ++i) {
    const std::string number = std::to_string(i);
    text += number + " 2 3\n";
    expected += number + " 2 3;";
  }
  EXPECT_EQ(reader.Read(text), std::nullopt);
  EXPECT_EQ(reader.Finish(), std::nullopt);
  EXPECT_EQ(rows, expected);
  EXPECT_GT(calls, 0U);
  EXPECT_LT(calls, 1000U);
}

TEST(DataReader, EachRowIsHandedOverBeforeTheNextBlock) {
  int taken = 0;
  DataReader reader(DataShape::OneVariable, [&taken](const DataRow&) {
    ++taken;
    return std::optional<DataRefusal>();
  });
  EXPECT_EQ(reader.Read("1 2\n3 4\n5"), std::nullopt);
  EXPECT_EQ(taken, 2);
  EXPECT_EQ(reader.Read(" 6\n"), std::nullopt);
  EXPECT_EQ(taken, 3);
}

TEST(DataReader, OfTwoFaultsTheFirstInTheFileCounts) {
  const std::string tooLong(30'001, '1');
  DataReader reader(DataShape::OneVariable,
                    [](const DataRow&) { return std::optional(DataRefusal::TooManyRows); });
  const auto fault = reader.Read("\n1 1\n\n" + tooLong + " 2\n");
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->refusal, DataRefusal::TooManyRows);
  EXPECT_EQ(fault->line, 2U);
}

TEST(DataReader, ValuesAreReadAsTheNumberAtTheirStart) {
  double x = 0;
  double y = 0;
  DataReader reader(DataShape::TwoVariables, [&](const DataRow& row) {
    x = row.Value(0);
    y = row.Value(1);
    return std::optional<DataRefusal>();
  });
  EXPECT_EQ(reader.Read("-1.25\t1.5e3\t1\n"), std::nullopt);
  EXPECT_EQ(x, -1.25);
  EXPECT_EQ(y, 1500);
}

TEST(DataReader, ALoneRowMayBeRefusedAsWell) {
  DataReader reader(DataShape::OneVariable,
                    [](const DataRow&) { return std::optional(DataRefusal::TooManyRows); });
  EXPECT_EQ(reader.Read("\n1\n"), std::nullopt);
  const auto fault = reader.Finish();
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->refusal, DataRefusal::TooManyRows);
}

/// A text that is mostly rows, with random characters between.
std::string AnyText(test::Random& random) {
  static constexpr std::string_view kCharacters = "0123456789.e+-0123456789\t\n\t\n\r E,x\0\xff";
  std::string text;
  for (std::size_t i = random.Below(200); i > 0; --i) {
    text += kCharacters[random.Below(kCharacters.size())];
    if (random.Below(100) == 0) text.append(random.Below(40), '1');
    if (random.Below(1000) == 0) text.append(29'990 + random.Below(20), '1');
  }
  return text;
}

TEST(DataReader, BlocksMayBeCutAnywhere) {
  test::Random random(4);
  for (int i = 0; i < test::Tries(20'000); ++i) {
    const std::string text = AnyText(random);
    const auto shape = random.Below(2) == 0 ? DataShape::OneVariable : DataShape::TwoVariables;
    Reading cut(shape);
    for (std::size_t at = 0; at < text.size();) {
      // Each block is a copy that is freed, so that the sanitizers find a view into an old one.
      const std::string block = text.substr(at, random.Below(3) == 0 ? 1 : random.Below(60));
      cut.Read(block);
      at += block.size();
    }
    ASSERT_EQ(cut.Finish(), Reading(shape).Read(text).Finish()) << text;
  }
}

}  // namespace
}  // namespace kav::data_reader_test
