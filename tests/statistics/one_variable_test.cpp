#include "statistics/one_variable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/random.h"

namespace kav::one_variable_test {
namespace {

DataList ListOf(const std::vector<DataRow>& rows, DataShape shape = DataShape::OneVariable) {
  DataList list(shape);
  for (const DataRow& row : rows) EXPECT_EQ(list.Append(row), std::nullopt);
  return list;
}

TEST(OneVariableSums, TwoAndFourWithCountsThreeAndOne) {
  const DataList list = ListOf({{{"4", {}}, 1}, {{"2", {}}, 3}});
  EXPECT_EQ(MomentOf(list, 0, Moment::Sum), 10);
  EXPECT_EQ(MomentOf(list, 0, Moment::SumOfSquares), 28);
  EXPECT_EQ(MomentOf(list, 0, Moment::Mean), 2.5);
  EXPECT_EQ(MomentOf(list, 0, Moment::PopulationDeviation), std::pow(0.75, 0.5));
  EXPECT_EQ(MomentOf(list, 0, Moment::SampleDeviation), 1);
}

TEST(OneVariableSums, TheMomentsOfAVariableAreThoseOfItsColumn) {
  const DataList list = ListOf({{{"1", "10"}, 1}, {{"3", "30"}, 1}}, DataShape::TwoVariables);
  EXPECT_EQ(MomentOf(list, 0, Moment::Sum), 4);
  EXPECT_EQ(MomentOf(list, 1, Moment::Sum), 40);
  EXPECT_EQ(MomentOf(list, 1, Moment::SumOfSquares), 1000);
  EXPECT_EQ(MomentOf(list, 1, Moment::Mean), 20);
}

TEST(OneVariableSums, TextsThatAreNoNumbersReadAs0AndRowsWithoutACountCountNothing) {
  const DataList list = ListOf({{{"abc", {}}, 5}, {{"7", {}}, 2}, {{"1000", {}}, {}}});
  EXPECT_EQ(MomentOf(list, 0, Moment::Sum), 14);
  EXPECT_EQ(MomentOf(list, 0, Moment::SumOfSquares), 98);
  EXPECT_EQ(MomentOf(list, 0, Moment::Mean), 2);
}

TEST(OneVariableSums, SumsAreAddedFromTheTop) {
  // 1e16 + 1 is rounded to 1e16, but 1e16 + 2 is exact.
  const DataList down = ListOf({{{"1e16", {}}, 1}, {{"1", {}}, 1}, {{"1", {}}, 1}});
  const DataList up = ListOf({{{"1", {}}, 1}, {{"1", {}}, 1}, {{"1e16", {}}, 1}});
  EXPECT_EQ(MomentOf(down, 0, Moment::Sum), 1e16);
  EXPECT_EQ(MomentOf(up, 0, Moment::Sum), 10'000'000'000'000'002.0);
}

TEST(OneVariableSums, SquaresAreMultipliedBeforeTheyAreWeighted) {
  const double x = 0.3;
  ASSERT_NE((x * x) * 3, x * (x * 3));
  const DataList list = ListOf({{{"0.3", {}}, 3}});
  EXPECT_EQ(MomentOf(list, 0, Moment::SumOfSquares), (x * x) * 3);
}

TEST(OneVariableSums, DeviationsMultiplyTheTotalByTheMeanTwiceFromTheLeft) {
  // With this sum of squares the difference would be 0 if the mean were squared first.
  WeightedSums sums;
  sums.sum = 0.9;
  const double mean = sums.sum / 3;
  sums.squares = 3 * (mean * mean);
  const double residue = sums.squares - (3 * mean) * mean;
  ASSERT_GT(residue, 0);
  EXPECT_EQ(MomentOf(sums, 3, Moment::PopulationDeviation), std::pow(residue / 3, 0.5));
  EXPECT_EQ(MomentOf(sums, 3, Moment::SampleDeviation), std::pow(residue / 2, 0.5));
}

TEST(OneVariableSums, ANegativeResidueIsNotGuarded) {
  WeightedSums sums;
  sums.sum = 2;
  sums.squares = 1;
  EXPECT_TRUE(std::isnan(MomentOf(sums, 2, Moment::PopulationDeviation)));
  EXPECT_TRUE(std::isnan(MomentOf(sums, 2, Moment::SampleDeviation)));
}

TEST(OneVariableSums, ATotalOf0Or1HasWhatTheDivisionMakesOfIt) {
  const DataList none(DataShape::OneVariable);
  EXPECT_EQ(MomentOf(none, 0, Moment::Sum), 0);
  EXPECT_TRUE(std::isnan(MomentOf(none, 0, Moment::Mean)));
  const DataList one = ListOf({{{"5", {}}, 1}});
  EXPECT_EQ(MomentOf(one, 0, Moment::PopulationDeviation), 0);
  EXPECT_TRUE(std::isnan(MomentOf(one, 0, Moment::SampleDeviation)));
  const DataList lost = ListOf({{{"5", {}}, 1}, {{"6", {}}, -1}});
  EXPECT_EQ(MomentOf(lost, 0, Moment::Mean), -std::numeric_limits<double>::infinity());
}

TEST(OneVariableSums, ValuesBeyondAllRangesComeOutAsSuch) {
  const DataList list = ListOf({{{"1e400", {}}, 1}, {{"2", {}}, 1}});
  EXPECT_EQ(MomentOf(list, 0, Moment::Sum), std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(MomentOf(list, 0, Moment::SampleDeviation)));
  // 0 times infinity.
  EXPECT_TRUE(std::isnan(MomentOf(ListOf({{{"1e400", {}}, 0}}), 0, Moment::Sum)));
}

TEST(OneVariableSums, SumsOfRandomDataAreNearThoseOfMoreDigits) {
  test::Random random(8);
  for (int round = 0; round < test::Tries(100); ++round) {
    DataList list(DataShape::OneVariable);
    long double sum = 0;
    long double squares = 0;
    long double weights = 0;
    for (std::size_t n = 2 + random.Below(500); n > 0; --n) {
      const std::string text = PrintFixed(random.Fraction() * 100, 4);
      const auto count = static_cast<std::int32_t>(1 + random.Below(20));
      ASSERT_EQ(list.Append({{text, {}}, count}), std::nullopt);
      const long double x = std::stold(text);
      sum += count * x;
      squares += count * x * x;
      weights += count;
    }
    const auto near = [](double value, long double exact) {
      return std::fabs(value - static_cast<double>(exact)) <= 1e-12 * static_cast<double>(exact);
    };
    ASSERT_TRUE(near(MomentOf(list, 0, Moment::Sum), sum));
    ASSERT_TRUE(near(MomentOf(list, 0, Moment::SumOfSquares), squares));
    ASSERT_TRUE(near(MomentOf(list, 0, Moment::Mean), sum / weights));
    const long double residue = squares - sum * sum / weights;
    ASSERT_TRUE(near(MomentOf(list, 0, Moment::PopulationDeviation), std::sqrt(residue / weights)));
    ASSERT_TRUE(
        near(MomentOf(list, 0, Moment::SampleDeviation), std::sqrt(residue / (weights - 1))));
  }
}

}  // namespace
}  // namespace kav::one_variable_test
