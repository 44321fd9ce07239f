// The operations by elimination: inverse, linear equation, determinant, triangular form.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "matrix/matrix_operations.h"
#include "support/expect_matrix.h"

namespace kav::matrix_elimination_test {
namespace {

using test::ExpectMessage;
using test::ExpectRows;
using test::kColumn;
using test::kOutOfRange;
using test::kSquare;
using test::kWide;
using test::MatrixOfRows;
using test::PlainRows;

TEST(Elimination, NeedsASquare) {
  for (const MatrixValue& a : {kWide, kColumn, TransposeMatrix(kColumn)}) {
    ExpectMessage(InvertMatrix(a), "[Matrix Inverse] Matrix Size Mismatch");
    ExpectMessage(MatrixDeterminant(a), "[Matrix Determinant] Matrix Size Mismatch");
    ExpectMessage(TriangularMatrix(a), "[Matrix Triangular] Matrix Size Mismatch");
  }
}

TEST(LinearEquation, TakesASquareAndOneColumn) {
  const std::string message = "[Matrix Linear Equation] Matrix Size Mismatch";
  ExpectMessage(SolveLinearEquation(kWide, kColumn), message);
  ExpectMessage(SolveLinearEquation(kSquare, kSquare), message);
  ExpectMessage(SolveLinearEquation(kSquare, MatrixOfRows({{"1"}, {"2"}, {"3"}})), message);
  ExpectMessage(SolveLinearEquation(kSquare, MatrixOfRows({{"1"}})), message);
  EXPECT_TRUE(SolveLinearEquation(kSquare, kColumn));
}

TEST(MatrixInverse, EliminatesAgainstTheIdentity) {
  ExpectRows(InvertMatrix(kSquare), {{"-2", "1"}, {"1.5", "-0.5"}});
  ExpectRows(InvertMatrix(MatrixOfRows({{"4"}})), {{"0.25"}});
  ExpectRows(InvertMatrix(MatrixOfRows({{"2", "0", "0"}, {"0", "4", "0"}, {"0", "0", "-5"}})),
             {{"0.5", "0", "0"}, {"0", "0.25", "0"}, {"0", "0", "-0.2"}});
}

TEST(LinearEquation, UnknownsStandInTheRowsThatTheExchangesGiveThem) {
  using Unknowns = std::vector<int>;
  const auto unknownsOf = [](const PlainRows& rows) { return UnknownsInRows(MatrixOfRows(rows)); };
  EXPECT_EQ(unknownsOf({{"0", "1"}, {"1", "0"}}), (Unknowns{1, 0}));
  EXPECT_EQ(unknownsOf({{"1", "0"}, {"0", "1"}}), Unknowns()) << "in their own order";
  EXPECT_EQ(unknownsOf({{"0", "0"}, {"1", "0"}}), Unknowns()) << "no solution";
  EXPECT_EQ(UnknownsInRows(kWide), Unknowns());
  // The solution, 1 2 3, is written through the exchanges: row 3 of the equations, which the first
  // unknown is solved from, is where it stands.
  const PlainRows turned{{"0", "1", "0"}, {"0", "0", "1"}, {"1", "0", "0"}};
  EXPECT_EQ(unknownsOf(turned), (Unknowns{1, 2, 0}));
  ExpectRows(SolveLinearEquation(MatrixOfRows(turned), MatrixOfRows({{"2"}, {"3"}, {"1"}})),
             {{"2"}, {"3"}, {"1"}});
}

constexpr const char* kNotInvertible = "[Matrix Inverse] Not Invertible(Determinant Equals 0)";

TEST(MatrixInverse, AZeroPivotIsNotInvertible) {
  ExpectMessage(InvertMatrix(MatrixOfRows({{"0"}})), kNotInvertible);
  ExpectMessage(InvertMatrix(MatrixOfRows({{"1", "2"}, {"2", "4"}})), kNotInvertible);
  ExpectMessage(InvertMatrix(MatrixOfRows({{"x"}})), kNotInvertible);
}

TEST(MatrixInverse, NoRowIsExchangedForAPivot) {
  // Both have an inverse; the first is its own.
  ExpectMessage(InvertMatrix(MatrixOfRows({{"0", "1"}, {"1", "0"}})), kNotInvertible);
  ExpectMessage(InvertMatrix(MatrixOfRows({{"1", "1", "0"}, {"1", "1", "1"}, {"0", "1", "1"}})),
                kNotInvertible);
}

TEST(MatrixInverse, OnlyAnExactZeroIsNotInvertible) {
  ExpectRows(InvertMatrix(MatrixOfRows({{"1e-300"}})), {{"1.000000000000e+300"}});
}

TEST(MatrixInverse, RoundedCellsMayGiveAMatrixAnInverseThatHasNone) {
  // 1/3 as its cell holds it times 3 is just less than 1, so that the second pivot is 1e-12, not 0.
  EXPECT_TRUE(InvertMatrix(MatrixOfRows({{"3", "1"}, {"3", "1"}})));
  ExpectMessage(InvertMatrix(MatrixOfRows({{"4", "1"}, {"4", "1"}})), kNotInvertible);
}

TEST(MatrixInverse, CellsOutOfRangeReadAsZeroAndTheEliminationGoesOn) {
  // 1/1e-309 is infinite: the first row becomes messages, which count as zeros afterwards.
  ExpectRows(InvertMatrix(MatrixOfRows({{"1e-309"}})), {{kOutOfRange}});
  ExpectRows(InvertMatrix(MatrixOfRows({{"1e-309", "1"}, {"1", "2"}})), {{"0", "0"}, {"0", "0.5"}});
}

TEST(LinearEquation, SolvesARankedSystem) {
  // 2x + y = 7 and x + 2y = 8.
  ExpectRows(
      SolveLinearEquation(MatrixOfRows({{"2", "1"}, {"1", "2"}}), MatrixOfRows({{"7"}, {"8"}})),
      {{"2"}, {"3"}});
}

TEST(LinearEquation, AnExchangeOfRowsReordersTheUnknowns) {
  // The same system with its equations in the other order: x = 2 is now below y = 3.
  ExpectRows(
      SolveLinearEquation(MatrixOfRows({{"1", "2"}, {"2", "1"}}), MatrixOfRows({{"8"}, {"7"}})),
      {{"3"}, {"2"}});
}

TEST(LinearEquation, ThreeExchangedRowsReorderTheUnknownsByTheirTable) {
  // Rows 1, 2, 3 become rows 2, 3, 1: x = 1 goes to place 2, y = 2 to 3, z = 3 to 1.
  ExpectRows(SolveLinearEquation(MatrixOfRows({{"0", "0", "1"}, {"1", "0", "0"}, {"0", "1", "0"}}),
                                 MatrixOfRows({{"3"}, {"1"}, {"2"}})),
             {{"3"}, {"1"}, {"2"}});
}

TEST(LinearEquation, ValuesAreRankedAndNotMagnitudes) {
  // -3 is less than 1: nothing is exchanged, and the unknowns keep their places.
  ExpectRows(
      SolveLinearEquation(MatrixOfRows({{"1", "2"}, {"-3", "1"}}), MatrixOfRows({{"8"}, {"-3"}})),
      {{"2"}, {"3"}});
  // 1 is more than -3: the rows are exchanged.
  ExpectRows(
      SolveLinearEquation(MatrixOfRows({{"-3", "1"}, {"1", "2"}}), MatrixOfRows({{"-3"}, {"8"}})),
      {{"3"}, {"2"}});
}

TEST(LinearEquation, AmongEqualCandidatesTheFirstRowWins) {
  // x + y = 3 and x + 2y = 5: no exchange.
  ExpectRows(
      SolveLinearEquation(MatrixOfRows({{"1", "1"}, {"1", "2"}}), MatrixOfRows({{"3"}, {"5"}})),
      {{"1"}, {"2"}});
  // The first of the two rows with 2 is exchanged; the last stays in its place.
  ExpectRows(SolveLinearEquation(MatrixOfRows({{"1", "0", "0"}, {"2", "1", "0"}, {"2", "0", "1"}}),
                                 MatrixOfRows({{"1"}, {"4"}, {"7"}})),
             test::PlainLinearEquation({{"1", "0", "0"}, {"2", "1", "0"}, {"2", "0", "1"}},
                                       {{"1"}, {"4"}, {"7"}}));
}

TEST(LinearEquation, AZeroPivotEndsItSilently) {
  // Dependent equations: the second pivot is 0, and b as it is by then is the answer.
  ExpectRows(
      SolveLinearEquation(MatrixOfRows({{"1", "2"}, {"1", "2"}}), MatrixOfRows({{"3"}, {"5"}})),
      {{"3"}, {"2"}});
}

TEST(LinearEquation, AZeroPivotInTheFirstColumnAnswersTheTextsOfTheRightSide) {
  ExpectRows(
      SolveLinearEquation(MatrixOfRows({{"0", "2"}, {"0", "2"}}), MatrixOfRows({{"3.0"}, {"x"}})),
      {{"3.0"}, {"x"}});
  ExpectRows(
      SolveLinearEquation(MatrixOfRows({{"-1", "2"}, {"0", "2"}}), MatrixOfRows({{"3.0"}, {"x"}})),
      {{"3.0"}, {"x"}});
}

TEST(Determinant, IsTheProductOfTheReducedDiagonal) {
  ExpectRows(MatrixDeterminant(kSquare), {{"-2"}});
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"7"}})), {{"7"}});
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"2", "5", "7"}, {"0", "3", "9"}, {"0", "0", "4"}})),
             {{"24"}});
}

TEST(Determinant, OfZeroIsZero) {
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"0"}})), {{"0"}});
}

TEST(Determinant, ExchangesRowsOnlyIfAPivotIsZero) {
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"0", "1"}, {"1", "0"}})), {{"-1"}});
  // Two exchanges: the sign is as it was.
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"0", "0", "2"}, {"3", "0", "0"}, {"0", "5", "0"}})),
             {{"30"}});
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"1", "1", "0"}, {"1", "1", "1"}, {"0", "1", "1"}})),
             {{"-1"}});
}

TEST(Determinant, TakesTheFirstRowBelowThatIsNotZero) {
  // With the second row on top a third is rounded in its cell; with the third row 3 is exact.
  const PlainRows rows{{"0", "1", "1"}, {"3", "1", "0"}, {"1", "1", "1"}};
  ExpectRows(MatrixDeterminant(MatrixOfRows(rows)), test::PlainDeterminant(rows));
}

TEST(Determinant, OfAColumnOfZerosIsZero) {
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"0", "1"}, {"0", "1"}})), {{"0"}});
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"1", "2", "3"}, {"2", "4", "5"}, {"3", "6", "7"}})),
             {{"0"}});
  // Even if the product of the pivots before it is too large.
  ExpectRows(
      MatrixDeterminant(MatrixOfRows({{"1e200", "0", "0"}, {"0", "1e200", "0"}, {"0", "0", "0"}})),
      {{"0"}});
}

TEST(Determinant, OutOfRangeIsTheTextOfItsCell) {
  ExpectRows(MatrixDeterminant(MatrixOfRows({{"1e200", "0"}, {"0", "1e200"}})), {{kOutOfRange}});
}

TEST(Triangular, ReducesWithoutExchanges) {
  ExpectRows(TriangularMatrix(kSquare), {{"1", "2"}, {"0", "-2"}});
  ExpectRows(TriangularMatrix(MatrixOfRows({{"2", "1", "1"}, {"4", "3", "3"}, {"8", "7", "9"}})),
             {{"2", "1", "1"}, {"0", "1", "1"}, {"0", "0", "2"}});
}

TEST(Triangular, AZeroOnTheDiagonalOfTheArgumentIsRefused) {
  const std::string message = "[Matrix Triangular] Error(0 in Diagonal).";
  ExpectMessage(TriangularMatrix(MatrixOfRows({{"0"}})), message);
  ExpectMessage(TriangularMatrix(MatrixOfRows({{"1", "2"}, {"3", "0"}})), message);
  ExpectMessage(TriangularMatrix(MatrixOfRows({{"1", "2"}, {"3", "-0.0"}})), message);
  ExpectMessage(TriangularMatrix(MatrixOfRows({{"x", "2"}, {"3", "1"}})), message);
}

TEST(Triangular, AZeroThatTheEliminationMakesIsNotTestedAgain) {
  ExpectRows(TriangularMatrix(MatrixOfRows({{"1", "2"}, {"2", "4"}})), {{"1", "2"}, {"0", "0"}});
  // The second pivot is 0: the third row is reduced with an infinite factor.
  ExpectRows(TriangularMatrix(MatrixOfRows({{"1", "1", "1"}, {"1", "1", "2"}, {"1", "2", "3"}})),
             {{"1", "1", "1"}, {"0", "0", "1"}, {"0", "0", kOutOfRange}});
}

TEST(Triangular, RowsWithNothingToClearKeepTheirTexts) {
  ExpectRows(TriangularMatrix(MatrixOfRows({{"1.50", "2.0"}, {"x", "+4"}})),
             {{"1.50", "2.0"}, {"x", "+4"}});
  ExpectRows(TriangularMatrix(MatrixOfRows({{"1.0", "2.0"}, {"2.0", "5.0"}})),
             {{"1.0", "2.0"}, {"0", "1"}});
}

}  // namespace
}  // namespace kav::matrix_elimination_test
