// How many digits of certified results the sums reach. docs/statistics.md has the table.
#include "support/certified_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "statistics/one_variable.h"
#include "statistics/regression.h"

namespace kav::certified_data_test {
namespace {

constexpr double kCertifiedDigits = 15;

/// Takes the next number from the front of `numbers`.
std::string_view Next(std::string_view& numbers) {
  const std::string_view number = numbers.substr(0, numbers.find(' '));
  numbers.remove_prefix(std::min(number.size() + 1, numbers.size()));
  return number;
}

DataList ListOf(std::string_view numbers, DataShape shape) {
  DataList list(shape);
  while (!numbers.empty()) {
    const std::string_view x = Next(numbers);
    const std::string_view y =
        shape == DataShape::TwoVariables ? Next(numbers) : std::string_view();
    EXPECT_EQ(list.Append({{x, y}, 1}), std::nullopt);
  }
  return list;
}

/// The number of correct decimal digits of a value, at most those of `certified`.
double Digits(double value, double certified) {
  const double error = std::fabs(value - certified) / std::fabs(certified);
  return error == 0 ? kCertifiedDigits : std::min(kCertifiedDigits, -std::log10(error));
}

struct UnivariateSet {
  const char* name;
  std::string numbers;
  std::size_t size;
  double mean;
  double deviation;
  double meanDigits;  ///< the fewest that must be reached
  double deviationDigits;
};

TEST(CertifiedData, MeansAndSampleDeviationsHaveTheseDigits) {
  const UnivariateSet sets[] = {
      {"Lew", std::string(test::kLew), 200, -177.435, 277.332168044316, 14.9, 14.9},
      {"Lottery", std::string(test::kLottery), 218, 518.958715596330, 291.699727470969, 14.9, 14.9},
      {"Mavro", std::string(test::kMavro), 50, 2.001856, 0.000429123454003053, 14.9, 8.4},
      {"Michelso", std::string(test::kMichelso), 100, 299.8524, 0.0790105478190518, 14.9, 8.4},
      {"NumAcc1", std::string(test::kNumAcc1), 3, 10000002, 1, 14.9, 14.9},
      {"NumAcc2", test::NumAcc("1"), 1001, 1.2, 0.1, 14, 11.5},
      {"NumAcc3", test::NumAcc("1000000"), 1001, 1000000.2, 0.1, 14.9, 1.1},
  };
  for (const UnivariateSet& set : sets) {
    const DataList list = ListOf(set.numbers, DataShape::OneVariable);
    EXPECT_EQ(list.RowCount(), set.size) << set.name;
    EXPECT_GE(Digits(MomentOf(list, 0, Moment::Mean), set.mean), set.meanDigits) << set.name;
    EXPECT_GE(Digits(MomentOf(list, 0, Moment::SampleDeviation), set.deviation),
              set.deviationDigits)
        << set.name;
  }
}

TEST(CertifiedData, OfNumAcc4TheSquaresLeaveNoDeviation) {
  const DataList list = ListOf(test::NumAcc("10000000"), DataShape::OneVariable);
  EXPECT_GE(Digits(MomentOf(list, 0, Moment::Mean), 10000000.2), 14);
  // The root of a negative number.
  EXPECT_TRUE(std::isnan(MomentOf(list, 0, Moment::SampleDeviation)));
}

TEST(CertifiedData, TheLineThroughNorrisHasTheseDigits) {
  const DataList list = ListOf(test::kNorris, DataShape::TwoVariables);
  ASSERT_EQ(list.RowCount(), 36U);
  const RegressionSums sums = SumUp(list, RegressionModel::Linear);
  const Coefficients line = sums.Fit(list.Total());
  EXPECT_GE(Digits(line.a, 1.00211681802045), 14.3);
  EXPECT_GE(Digits(line.b, -0.262323073774029), 12.2);
  const double r = sums.Correlation(list.Total());
  EXPECT_GE(Digits(r * r, 0.999993745883712), 14.9);
}

TEST(CertifiedData, TheParabolaThroughPontiusHasTheseDigits) {
  const DataList list = ListOf(test::kPontius, DataShape::TwoVariables);
  ASSERT_EQ(list.RowCount(), 40U);
  const Coefficients parabola = SumUp(list, RegressionModel::Quadratic).Fit(list.Total());
  EXPECT_GE(Digits(parabola.a, -0.316081871345029e-14), 12.2);
  EXPECT_GE(Digits(parabola.b, 0.732059160401003e-06), 14.1);
  EXPECT_GE(Digits(parabola.c, 0.673565789473684e-03), 11.3);
}

}  // namespace
}  // namespace kav::certified_data_test
