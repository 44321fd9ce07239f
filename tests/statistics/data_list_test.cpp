#include "statistics/data_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/random.h"
#include "support/spelled_list.h"

namespace kav::data_list_test {
namespace {

using test::Spelled;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::size_t kNone = 0;

DataRow One(std::string_view x, std::optional<std::int32_t> count = 1) {
  return {{x, {}}, count};
}

DataRow Two(std::string_view x, std::string_view y, std::optional<std::int32_t> count = 1) {
  return {{x, y}, count};
}

DataList ListOf(std::initializer_list<std::pair<std::string_view, std::int32_t>> rows) {
  DataList list(DataShape::OneVariable);
  for (const auto& [x, count] : rows) EXPECT_EQ(list.Append(One(x, count)), std::nullopt);
  return list;
}

TEST(DataList, ANewListIsEmpty) {
  const DataList list(DataShape::TwoVariables);
  EXPECT_EQ(list.Shape(), DataShape::TwoVariables);
  EXPECT_EQ(list.RowCount(), 0U);
  EXPECT_EQ(list.CompleteRowCount(), 0U);
  EXPECT_EQ(list.Total(), 0);
}

TEST(DataList, RowsAreInsertedOnTopAndAppendedBelow) {
  DataList list(DataShape::OneVariable);
  EXPECT_EQ(list.InsertTop(One("2", 3)), std::nullopt);
  EXPECT_EQ(list.InsertTop(One("4", 1)), std::nullopt);
  EXPECT_EQ(list.Append(One("6", 2)), std::nullopt);
  EXPECT_EQ(Spelled(list), "4 1;2 3;6 2;");
  EXPECT_EQ(list.Total(), 6);
  EXPECT_EQ(list.CompleteRowCount(), 3U);
}

TEST(DataList, ValuesAreKeptAsTheyStandAndReadAsTheNumberAtTheirStart) {
  DataList list(DataShape::TwoVariables);
  EXPECT_EQ(list.Append(Two("1.50e+3", "-0.250")), std::nullopt);
  EXPECT_EQ(list.Append(Two("1e", "..")), std::nullopt);
  EXPECT_EQ(list.Append(Two("+-5", "")), std::nullopt);
  EXPECT_EQ(list.Append(Two("1e400", "12345678901234567890")), std::nullopt);
  EXPECT_EQ(Spelled(list), "1.50e+3 -0.250 1;1e .. 1;+-5  1;1e400 12345678901234567890 1;");
  EXPECT_EQ(list.Value(0, 0), 1500);
  EXPECT_EQ(list.Value(0, 1), -0.25);
  EXPECT_EQ(list.Value(1, 0), 1);
  EXPECT_EQ(list.Value(1, 1), 0);
  EXPECT_EQ(list.Value(2, 0), 0);
  EXPECT_EQ(list.Value(2, 1), 0);
  EXPECT_EQ(list.Value(3, 0), std::numeric_limits<double>::infinity());
  EXPECT_EQ(list.Value(3, 1), 12345678901234567890.0);
}

TEST(DataList, AListOfOneVariableHasNoSecondValue) {
  DataList list(DataShape::OneVariable);
  EXPECT_EQ(list.Append({{"5", "7"}, 2}), std::nullopt);
  EXPECT_EQ(Spelled(list), "5 2;");
  EXPECT_EQ(list.ValueText(0, 1), "");
}

TEST(DataList, ARowWithoutACountReadsAsCount0AndIsNotComplete) {
  DataList list(DataShape::TwoVariables);
  EXPECT_EQ(list.Append(Two("5", "", std::nullopt)), std::nullopt);
  EXPECT_EQ(list.CountText(0), "");
  EXPECT_EQ(list.Count(0), 0);
  EXPECT_EQ(list.RowCount(), 1U);
  EXPECT_EQ(list.CompleteRowCount(), 0U);
  EXPECT_EQ(list.Rewrite(0, Two("5", "6", 4)), std::nullopt);
  EXPECT_EQ(Spelled(list), "5 6 4;");
  EXPECT_EQ(list.CompleteRowCount(), 1U);
  EXPECT_EQ(list.Total(), 4);
}

TEST(DataList, ARewrittenRowChangesTheTotalByTheDifference) {
  DataList list = ListOf({{"1", 5}, {"2", 7}});
  EXPECT_EQ(list.Rewrite(1, One("2.25", 10)), std::nullopt);
  EXPECT_EQ(Spelled(list), "1 5;2.25 10;");
  EXPECT_EQ(list.Total(), 15);
  EXPECT_EQ(list.Rewrite(0, One("", 5)), std::nullopt);
  EXPECT_EQ(Spelled(list), " 5;2.25 10;");
}

TEST(DataList, ARowMayBeRewrittenWithItsOwnTexts) {
  DataList list(DataShape::TwoVariables);
  EXPECT_EQ(list.Append(Two("12", "34")), std::nullopt);
  for (int i = 0; i < 100'000; ++i) {
    ASSERT_EQ(list.Rewrite(0, Two(list.ValueText(0, 1), list.ValueText(0, 0), i)), std::nullopt);
  }
  EXPECT_EQ(Spelled(list), "12 34 99999;");
}

TEST(DataList, AnErasedRowTakesItsCountOutOfTheTotal) {
  DataList list = ListOf({{"1", 5}, {"2", 7}, {"3", 1}});
  EXPECT_EQ(list.Erase(1), std::nullopt);
  EXPECT_EQ(Spelled(list), "1 5;3 1;");
  EXPECT_EQ(list.Total(), 6);
  EXPECT_EQ(list.CompleteRowCount(), 2U);
  EXPECT_EQ(list.Erase(0), std::nullopt);
  EXPECT_EQ(list.Erase(0), std::nullopt);
  EXPECT_EQ(Spelled(list), "");
  EXPECT_EQ(list.Total(), 0);
}

TEST(DataList, ATotalBeyond32BitsIsRefusedAndNeverWrapped) {
  DataList list = ListOf({{"1", kMost - 1}});
  EXPECT_EQ(list.Append(One("2", 2)), DataRefusal::TotalOutOfRange);
  EXPECT_EQ(list.InsertTop(One("2", kMost)), DataRefusal::TotalOutOfRange);
  EXPECT_EQ(Spelled(list), "1 2147483646;");
  EXPECT_EQ(list.Append(One("2", 1)), std::nullopt);
  EXPECT_EQ(list.Total(), kMost);
  EXPECT_EQ(list.Rewrite(1, One("3", 2)), DataRefusal::TotalOutOfRange);
  EXPECT_EQ(list.Rewrite(1, One("3", 0)), std::nullopt);
  EXPECT_EQ(list.Total(), kMost - 1);
}

TEST(DataList, NegativeCountsOfFilesHaveTheirLimitToo) {
  DataList list = ListOf({{"1", kLeast}});
  EXPECT_EQ(list.Append(One("2", -1)), DataRefusal::TotalOutOfRange);
  EXPECT_EQ(list.Append(One("2", 5)), std::nullopt);
  EXPECT_EQ(list.Append(One("3", -5)), std::nullopt);
  EXPECT_EQ(list.Total(), kLeast);
  EXPECT_EQ(list.Erase(1), DataRefusal::TotalOutOfRange);
  EXPECT_EQ(Spelled(list), "1 -2147483648;2 5;3 -5;");
  EXPECT_EQ(list.Erase(2), std::nullopt);
  EXPECT_EQ(list.Erase(1), std::nullopt);
}

TEST(DataList, RowsAreAppendedUpToTheFirstThatIsRefused) {
  DataList list = ListOf({{"8", kMost - 5}});
  const std::vector<DataRow> rows{One("1", 3), One("2", 2), One("3", 1), One("4", -9)};
  const TakenRows taken = list.AppendRows(rows);
  EXPECT_EQ(taken.count, 2U);
  EXPECT_EQ(taken.refusal, DataRefusal::TotalOutOfRange);
  EXPECT_EQ(Spelled(list), "8 2147483642;1 3;2 2;");
  EXPECT_EQ(list.Total(), kMost);
  const TakenRows rest = list.AppendRows(std::span(rows).subspan(3));
  EXPECT_EQ(rest.count, 1U);
  EXPECT_EQ(rest.refusal, std::nullopt);
  EXPECT_EQ(list.AppendRows({}).count, 0U);
  EXPECT_EQ(list.RowCount(), 4U);
}

TEST(DataList, EachValueIsVisitedWithItsCountFromTheTop) {
  DataList list(DataShape::TwoVariables);
  EXPECT_EQ(list.Append(Two("1.5", "-2", 3)), std::nullopt);
  EXPECT_EQ(list.Append(Two("abc", "1e2", 4)), std::nullopt);
  EXPECT_EQ(list.Append(Two("7", "", std::nullopt)), std::nullopt);
  for (const std::size_t variable : {0U, 1U}) {
    std::size_t row = 0;
    list.ForEachValue(variable, [&](double value, std::int32_t count) {
      EXPECT_EQ(value, list.Value(row, variable));
      EXPECT_EQ(count, list.Count(row));
      ++row;
    });
    EXPECT_EQ(row, 3U);
  }
}

TEST(DataList, AValueMayHave30000CharactersAndNoMore) {
  const std::string longest(30'000, '1');
  DataList list(DataShape::TwoVariables);
  EXPECT_EQ(list.Append(Two(longest, longest, 2)), std::nullopt);
  EXPECT_EQ(list.Append(Two(longest + '1', "1", 2)), DataRefusal::ValueTooLong);
  EXPECT_EQ(list.Append(Two("1", longest + '1', 2)), DataRefusal::ValueTooLong);
  EXPECT_EQ(list.Rewrite(0, Two("1", longest + '1', 2)), DataRefusal::ValueTooLong);
  EXPECT_EQ(list.RowCount(), 1U);
  EXPECT_EQ(list.ValueText(0, 0), longest);
  EXPECT_EQ(list.ValueText(0, 1), longest);
  EXPECT_EQ(list.CompleteRowCount(), 1U);
}

TEST(DataList, RowsOfAnotherListAreInsertedOnTopInTheirOrder) {
  DataList list = ListOf({{"8", 1}, {"9", 2}});
  DataList rows = ListOf({{"1", 3}, {"2", 4}});
  EXPECT_EQ(rows.Append(One("", std::nullopt)), std::nullopt);
  EXPECT_EQ(list.InsertTop(rows), std::nullopt);
  EXPECT_EQ(Spelled(list), "1 3;2 4; ;8 1;9 2;");
  EXPECT_EQ(list.Total(), 10);
  EXPECT_EQ(list.CompleteRowCount(), 4U);
  EXPECT_EQ(list.InsertTop(DataList(DataShape::OneVariable)), std::nullopt);
  EXPECT_EQ(list.RowCount(), 5U);
}

TEST(DataList, RowsThatDoNotFitIntoTheTotalAreAllRefused) {
  DataList list = ListOf({{"8", kMost}});
  EXPECT_EQ(list.InsertTop(ListOf({{"1", -5}, {"2", 6}})), DataRefusal::TotalOutOfRange);
  EXPECT_EQ(Spelled(list), "8 2147483647;");
  EXPECT_EQ(list.InsertTop(ListOf({{"1", 5}, {"2", -6}})), std::nullopt);
  EXPECT_EQ(list.Total(), kMost - 1);
}

TEST(DataList, AListMayBeInsertedIntoItself) {
  DataList list = ListOf({{"1", 2}, {"3", 4}});
  EXPECT_EQ(list.InsertTop(list), std::nullopt);
  EXPECT_EQ(Spelled(list), "1 2;3 4;1 2;3 4;");
}

TEST(DataList, TwentyMillionRowsAreTheMost) {
  DataList list(DataShape::OneVariable);
  EXPECT_EQ(list.Append(One("", 0)), std::nullopt);
  // Doubling the lists gets there fastest.
  while (2 * list.RowCount() <= 20'000'000) ASSERT_EQ(list.InsertTop(list), std::nullopt);
  EXPECT_EQ(list.InsertTop(list), DataRefusal::TooManyRows);
  DataList rest(DataShape::OneVariable);
  const std::size_t lacking = 20'000'000 - list.RowCount();
  for (std::size_t bit = std::bit_floor(lacking); bit != 0; bit /= 2) {
    ASSERT_EQ(rest.InsertTop(rest), std::nullopt);
    if ((lacking & bit) != 0) {
      ASSERT_EQ(rest.Append(One("", 0)), std::nullopt);
    }
  }
  EXPECT_EQ(list.InsertTop(rest), std::nullopt);
  EXPECT_EQ(list.RowCount(), 20'000'000U);
  EXPECT_EQ(list.Append(One("", 0)), DataRefusal::TooManyRows);
  EXPECT_EQ(list.InsertTop(One("", 0)), DataRefusal::TooManyRows);
  EXPECT_EQ(list.Rewrite(kNone, One("1", 0)), std::nullopt);
}

TEST(DataList, SortingFollowsTheNumbersOfTheColumn) {
  DataList list = ListOf({{"10", 3}, {"9", 20}, {"-1e3", 1}, {"1e400", 0}, {"abc", -7}});
  list.Sort(0, DataList::Direction::Ascending);
  EXPECT_EQ(Spelled(list), "-1e3 1;abc -7;9 20;10 3;1e400 0;");
  list.Sort(0, DataList::Direction::Descending);
  EXPECT_EQ(Spelled(list), "1e400 0;10 3;9 20;abc -7;-1e3 1;");
  list.Sort(1, DataList::Direction::Ascending);
  EXPECT_EQ(Spelled(list), "abc -7;1e400 0;-1e3 1;10 3;9 20;");
  EXPECT_EQ(list.Total(), 17);
}

TEST(DataList, TheSecondColumnIsYWhereThereIsOne) {
  DataList list(DataShape::TwoVariables);
  EXPECT_EQ(list.Append(Two("1", "30", 5)), std::nullopt);
  EXPECT_EQ(list.Append(Two("2", "10", 9)), std::nullopt);
  EXPECT_EQ(list.Append(Two("3", "20", 7)), std::nullopt);
  list.Sort(1, DataList::Direction::Ascending);
  EXPECT_EQ(Spelled(list), "2 10 9;3 20 7;1 30 5;");
  list.Sort(2, DataList::Direction::Ascending);
  EXPECT_EQ(Spelled(list), "1 30 5;3 20 7;2 10 9;");
  list.Sort(0, DataList::Direction::Descending);
  EXPECT_EQ(Spelled(list), "3 20 7;2 10 9;1 30 5;");
}

/// The rows of `list` as pairs, to see whether one list is a permutation of another.
std::vector<std::pair<std::string, std::int32_t>> RowsOf(const DataList& list) {
  std::vector<std::pair<std::string, std::int32_t>> rows;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    rows.emplace_back(list.ValueText(row, 0), list.Count(row));
  }
  return rows;
}

TEST(DataList, ASortedListIsAPermutationInOrder) {
  test::Random random(2);
  for (int round = 0; round < test::Tries(50); ++round) {
    DataList list(DataShape::OneVariable);
    const std::size_t size = random.Below(500);
    for (std::size_t i = 0; i < size; ++i) {
      const std::string x = PrintInteger(static_cast<std::int64_t>(random.Below(60)));
      ASSERT_EQ(list.Append(One(x, static_cast<std::int32_t>(random.Below(9)))), std::nullopt);
    }
    auto before = RowsOf(list);
    const std::size_t column = random.Below(2);
    const bool isAscending = random.Below(2) == 0;
    list.Sort(column,
              isAscending ? DataList::Direction::Ascending : DataList::Direction::Descending);
    for (std::size_t row = 1; row < size; ++row) {
      const double above = column == 0 ? list.Value(row - 1, 0) : list.Count(row - 1);
      const double below = column == 0 ? list.Value(row, 0) : list.Count(row);
      ASSERT_TRUE(isAscending ? above <= below : above >= below);
    }
    auto after = RowsOf(list);
    std::sort(before.begin(), before.end());
    std::sort(after.begin(), after.end());
    ASSERT_EQ(after, before);
  }
}

TEST(DataList, NoOrderOfAMillionRowsOverflowsTheStackOrTakesLong) {
  const std::int64_t kRows = test::Tries(1'000'000);
  test::Random random(3);
  const std::vector<std::pair<const char*, std::int64_t>> orders{
      {"sorted", 0}, {"reversed", 1}, {"equal", 2}, {"organ pipe", 3}, {"random", 4}};
  for (const auto& [name, order] : orders) {
    DataList list(DataShape::OneVariable);
    for (std::int64_t i = 0; i < kRows; ++i) {
      const std::int64_t keys[] = {i, -i, 7, std::min(i, kRows - i),
                                   static_cast<std::int64_t>(random.Below(kRows))};
      ASSERT_EQ(list.Append(One(PrintInteger(keys[order]))), std::nullopt);
    }
    list.Sort(0, DataList::Direction::Ascending);
    for (std::size_t row = 1; row < list.RowCount(); row += 97) {
      ASSERT_LE(list.Value(row - 1, 0), list.Value(row, 0)) << name;
    }
  }
}

TEST(DataListRows, TextsAndCountsOfAnySizeStayWhatTheyAre) {
  using Limits = std::numeric_limits<std::int32_t>;
  std::vector<std::optional<std::int32_t>> counts{std::nullopt};
  for (const std::int32_t count : {0, 1, -1, 254, 255, 32766, 32767, 32768, -32767, -32768, -32769,
                                   Limits::max() / 4, Limits::min() / 4}) {
    counts.emplace_back(count);
  }
  constexpr std::array<std::size_t, 7> kLengths{0, 1, 127, 128, 255, 256, 30'000};
  for (const DataShape shape : {DataShape::OneVariable, DataShape::TwoVariables}) {
    for (const std::size_t length : kLengths) {
      const std::string first(length, '1');
      const std::string second(shape == DataShape::TwoVariables ? 257 - length % 257 : 0, '2');
      for (const auto& count : counts) {
        DataList list(shape);
        ASSERT_EQ(list.Append({{"5", "6"}, 7}), std::nullopt);
        ASSERT_EQ(list.Rewrite(0, {{first, second}, count}), std::nullopt);
        DataList copy(shape);
        ASSERT_EQ(copy.InsertTop(list), std::nullopt);
        for (const DataList* one : {&list, &copy}) {
          ASSERT_EQ(one->ValueText(0, 0), first);
          ASSERT_EQ(one->ValueText(0, 1), second);
          ASSERT_EQ(one->CountText(0), count ? std::to_string(*count) : "");
          ASSERT_EQ(one->Count(0), count.value_or(0));
          ASSERT_EQ(one->Total(), count.value_or(0));
          ASSERT_EQ(one->CompleteRowCount(), count ? 1U : 0U);
        }
        ASSERT_EQ(list.Erase(0), std::nullopt);
        ASSERT_EQ(list.Total(), 0);
      }
    }
  }
}

}  // namespace
}  // namespace kav::data_list_test
