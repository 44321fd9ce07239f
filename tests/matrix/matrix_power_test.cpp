// The powers of matrices.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <string>

#include "matrix/matrix_operations.h"
#include "support/expect_matrix.h"

namespace kav::matrix_power_test {
namespace {

using test::ExpectError;
using test::ExpectMessage;
using test::ExpectRows;
using test::kOutOfRange;
using test::kSquare;
using test::kWide;
using test::MatrixOfRows;
using test::PlainRows;
using test::RowsOf;

TEST(MatrixPower, NeedsASquare) {
  for (const MatrixValue& a : {kWide, TransposeMatrix(kWide)}) {
    for (const double exponent : {0.0, 1.0, 2.0}) {
      ExpectMessage(RaiseMatrix(a, exponent), "[Matrix Power(^)] Matrix Size Mismatch");
    }
  }
}

TEST(MatrixPower, MultipliesInTurn) {
  ExpectRows(RaiseMatrix(kSquare, 2), {{"7", "10"}, {"15", "22"}});
  ExpectRows(RaiseMatrix(kSquare, 3), {{"37", "54"}, {"81", "118"}});
  ExpectRows(RaiseMatrix(MatrixOfRows({{"0.1"}}), 3), {{"0.001"}});
}

TEST(MatrixPower, OfZeroIsTheIdentity) {
  ExpectRows(RaiseMatrix(MatrixOfRows({{"1", "2", "3"}, {"4", "5", "6"}, {"7", "8", "x"}}), 0),
             {{"1", "0", "0"}, {"0", "1", "0"}, {"0", "0", "1"}});
  ExpectRows(RaiseMatrix(MatrixOfRows({{"0"}}), 0), {{"1"}});
  ExpectRows(RaiseMatrix(MatrixOfRows({{"5"}}), -0.0), {{"1"}});
}

TEST(MatrixPower, OfOneKeepsTheVeryTexts) {
  const PlainRows texts{{"1.50", "x"}, {"", "+2e0"}};
  ExpectRows(RaiseMatrix(MatrixOfRows(texts), 1), texts);
}

TEST(MatrixPower, TakesWholeExponentsFromZeroOn) {
  const std::string message = "Matrix Power(^) is not supported non-integer and negative integer.";
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double exponent : {2.5, -1.0, -0.5, 1e-9, -kInfinity, kInfinity, std::nan("")}) {
    ExpectError(RaiseMatrix(kSquare, exponent), CalcErrorCode::NotInteger, message);
  }
}

TEST(MatrixPower, TheExponentIsCheckedBeforeTheSize) {
  ExpectError(RaiseMatrix(kWide, 2.5), CalcErrorCode::NotInteger,
              "Matrix Power(^) is not supported non-integer and negative integer.");
}

TEST(MatrixPower, RoundsEachProductToItsText) {
  // 0.111111111111 times 0.333333333333 is 0.037037037036963 before it is rounded.
  ExpectRows(RaiseMatrix(MatrixOfRows({{"0.333333333333"}}), 3), {{"0.037037037037"}});
}

TEST(MatrixPower, PassesThroughOutOfRangeAndReadsItAsZero) {
  const MatrixValue tens = MatrixOfRows({{"1e200"}});
  ExpectRows(RaiseMatrix(tens, 2), {{kOutOfRange}});
  ExpectRows(RaiseMatrix(tens, 3), {{"0"}});
  ExpectRows(RaiseMatrix(tens, 1e300), {{"0"}});
}

using Clock = std::chrono::steady_clock;

/// `test` must not take longer than users wait.
template <class Test>
void ExpectPrompt(Test test) {
  const auto start = Clock::now();
  test();
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(20));
}

TEST(MatrixPower, HugeExponentsOfPowersThatComeBackAreAnsweredAtOnce) {
  const MatrixValue turn = MatrixOfRows({{"0", "-1"}, {"1", "0"}});  // A quarter of a circle.
  // Three cells and two cells take turns: after six powers all are back in their places.
  const MatrixValue six = MatrixOfRows({{"0", "1", "0", "0", "0"},
                                        {"0", "0", "1", "0", "0"},
                                        {"1", "0", "0", "0", "0"},
                                        {"0", "0", "0", "0", "1"},
                                        {"0", "0", "0", "1", "0"}});
  ExpectPrompt([&] {
    ExpectRows(RaiseMatrix(turn, 4e15), {{"1", "0"}, {"0", "1"}});
    ExpectRows(RaiseMatrix(turn, 4e15 + 1), {{"0", "-1"}, {"1", "0"}});
    ExpectRows(RaiseMatrix(turn, 4e15 + 2), {{"-1", "0"}, {"0", "-1"}});
    ExpectRows(RaiseMatrix(turn, 4e15 + 3), {{"0", "1"}, {"-1", "0"}});
    // 2^1000 is even and 1 more than a multiple of 3, so it leaves 4 when divided by 6.
    ExpectRows(RaiseMatrix(six, std::ldexp(1, 1000)), RowsOf(*RaiseMatrix(six, 4)));
    ExpectRows(RaiseMatrix(MatrixOfRows({{"1"}}), 1e308), {{"1"}});
    ExpectRows(RaiseMatrix(MatrixOfRows({{"-1"}}), 1e15 + 1), {{"-1"}});
    ExpectRows(RaiseMatrix(MatrixOfRows({{"0.5"}}), 1e308), {{"0"}});
    ExpectRows(RaiseMatrix(MatrixOfRows({{"2"}}), 1e308), {{"0"}});
  });
}

TEST(MatrixPower, EveryExponentAroundTheReturnIsRight) {
  const PlainRows turn{{"0", "-1", "0"}, {"1", "0", "0"}, {"0", "0", "0.5"}};
  for (int exponent = 0; exponent < 60; ++exponent) {
    ExpectRows(RaiseMatrix(MatrixOfRows(turn), exponent), test::PlainPower(turn, exponent));
  }
}

TEST(MatrixPower, TheTextsOfTheFirstPowerDoNotComeBack) {
  // The second power has the numbers of the first, but only the first keeps its texts.
  const MatrixValue one = MatrixOfRows({{"1.0", "x"}, {"", "+1"}});
  ExpectRows(RaiseMatrix(one, 1), {{"1.0", "x"}, {"", "+1"}});
  ExpectRows(RaiseMatrix(one, 2), {{"1", "0"}, {"0", "1"}});
  ExpectRows(RaiseMatrix(one, 1e9), {{"1", "0"}, {"0", "1"}});
}

TEST(MatrixPower, PowersThatNeverComeBackAreGivenUp) {
  // A turn by 3.5 degrees; rounded to twelve decimals, it never completes a circle.
  const MatrixValue turn =
      MatrixOfRows({{"0.998134798422", "-0.061048539535"}, {"0.061048539535", "0.998134798422"}});
  ExpectPrompt([&] {
    EXPECT_TRUE(RaiseMatrix(turn, 10'000));
    ExpectError(RaiseMatrix(turn, 1e300), CalcErrorCode::CalculationLimit,
                "Matrix Power(^) exceeded calculation limit.");
  });
}

}  // namespace
}  // namespace kav::matrix_power_test
