// The operations on random matrices: against the same operations on texts alone, and against laws
// of matrices.
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "matrix/matrix_operations.h"
#include "support/effort.h"
#include "support/expect_matrix.h"
#include "support/plain_matrix.h"
#include "support/random.h"

namespace kav::matrix_operations_random_test {
namespace {

using test::Combined;
using test::MatrixOfRows;
using test::PlainRows;
using test::Random;
using test::RowsOf;
using test::Tries;

std::string TypedDecimal(Random& random) {
  const double hundreds = static_cast<double>(random.Below(20001)) - 10000;
  return PrintFixed(hundreds / 100, 2);
}

/// Like what users type and results are: small integers, decimals, quotients, numbers near and
/// beyond the exponent form, and texts that are no numbers or more than a number.
std::string RandomCell(Random& random) {
  static const std::vector<std::string> kOdd{
      "0",     "-0",      "1.50",  "+2",   " 3", "4 x",           "x", "1e13", "-2e-13",
      "1e200", "-1e-200", "5e307", "1e-9", ".5", "0.333333333333"};
  switch (random.Below(6)) {
    case 0:
    case 1:
      return std::to_string(static_cast<int>(random.Below(7)) - 3);
    case 2:
      return TypedDecimal(random);
    case 3:
      return test::PlainCell(random.Fraction() * 2 - 1);
    case 4:
      return test::PlainCell(random.Fraction() * std::pow(10, random.Below(30)) * 1e-14);
    default:
      return random.Below(4) == 0 ? random.Of(kOdd) : TypedDecimal(random);
  }
}

PlainRows RandomRows(Random& random, std::size_t rows, std::size_t columns) {
  PlainRows made(rows, std::vector<std::string>(columns));
  for (auto& row : made) {
    for (auto& cell : row) cell = RandomCell(random);
  }
  return made;
}

std::size_t RandomSize(Random& random) {
  return random.Below(20) == 0 ? 10 : 1 + random.Below(5);
}

/// `answer` must be `expected`, or an error if that has no rows.
void ExpectRows(const CalcResult<MatrixValue>& answer, const PlainRows& expected,
                const PlainRows& argument) {
  ASSERT_EQ(static_cast<bool>(answer), !expected.empty()) << ::testing::PrintToString(argument);
  if (!answer) return;
  EXPECT_EQ(RowsOf(*answer), expected) << ::testing::PrintToString(argument);
}

TEST(MatrixOperationsRandom, SumsAndProductsAreThoseOfTexts) {
  Random random(51);
  for (int i = 0; i < Tries(8000); ++i) {
    const std::size_t rows = RandomSize(random);
    const std::size_t columns = RandomSize(random);
    const PlainRows a = RandomRows(random, rows, columns);
    const PlainRows b = RandomRows(random, rows, columns);
    const PlainRows c = RandomRows(random, columns, RandomSize(random));
    ExpectRows(Combined(MatrixOfRows(a), MatrixOperator::Add, MatrixOfRows(b)),
               test::PlainSum(a, b), a);
    ExpectRows(Combined(MatrixOfRows(a), MatrixOperator::Subtract, MatrixOfRows(b)),
               test::PlainDifference(a, b), a);
    ExpectRows(MultiplyMatrices(MatrixOfRows(a), MatrixOfRows(c)), test::PlainProduct(a, c), a);
    ExpectRows(TransposeMatrix(MatrixOfRows(a)), test::PlainTranspose(a), a);
  }
}

TEST(MatrixOperationsRandom, PowersAreThoseOfTexts) {
  Random random(52);
  for (int i = 0; i < Tries(3000); ++i) {
    const std::size_t size = 1 + random.Below(3);
    const PlainRows a = RandomRows(random, size, size);
    const int exponent = static_cast<int>(random.Below(20));
    ExpectRows(RaiseMatrix(MatrixOfRows(a), exponent), test::PlainPower(a, exponent), a);
  }
}

TEST(MatrixOperationsRandom, PowersThatComeBackAreThoseOfTexts) {
  Random random(53);
  for (int i = 0; i < Tries(200); ++i) {
    const std::size_t size = 1 + random.Below(4);
    PlainRows a(size, std::vector<std::string>(size));
    for (auto& row : a) {
      for (auto& cell : row) cell = random.Of(std::vector<std::string>{"0", "1", "-1", "0.5"});
    }
    const int exponent = static_cast<int>(random.Below(100));
    ExpectRows(RaiseMatrix(MatrixOfRows(a), exponent), test::PlainPower(a, exponent), a);
  }
}

TEST(MatrixOperationsRandom, EliminationsAreThoseOfTexts) {
  Random random(54);
  for (int i = 0; i < Tries(4000); ++i) {
    const std::size_t size = RandomSize(random);
    const PlainRows a = RandomRows(random, size, size);
    const PlainRows b = RandomRows(random, size, 1);
    const MatrixValue matrix = MatrixOfRows(a);
    ExpectRows(InvertMatrix(matrix), test::PlainInverse(a), a);
    ExpectRows(MatrixDeterminant(matrix), test::PlainDeterminant(a), a);
    ExpectRows(TriangularMatrix(matrix), test::PlainTriangular(a), a);
    ExpectRows(SolveLinearEquation(matrix, MatrixOfRows(b)), test::PlainLinearEquation(a, b), a);
  }
}

// Both may have misread the rules in the same way; the laws have not.

/// Cells are far from 0 on the diagonal and small elsewhere, so that few digits are lost.
MatrixValue WellConditioned(Random& random, std::size_t size) {
  PlainRows rows(size, std::vector<std::string>(size));
  for (std::size_t i = 0; i < size; ++i) {
    for (std::size_t j = 0; j < size; ++j) {
      rows[i][j] = test::PlainCell((i == j ? 4 : 0) + (random.Fraction() - 0.5));
    }
  }
  return MatrixOfRows(rows);
}

double NumberAt(const MatrixValue& matrix, int row, int column) {
  return test::PlainNumber(
      RowsOf(matrix)[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
}

TEST(MatrixOperationsRandom, AMatrixTimesItsInverseIsNearTheIdentity) {
  Random random(55);
  for (int i = 0; i < Tries(100); ++i) {
    const MatrixValue a = WellConditioned(random, RandomSize(random));
    const auto inverse = InvertMatrix(a);
    ASSERT_TRUE(inverse);
    const auto product = MultiplyMatrices(a, *inverse);
    ASSERT_TRUE(product);
    for (int row = 0; row < a.rows; ++row) {
      for (int column = 0; column < a.rows; ++column) {
        EXPECT_NEAR(NumberAt(*product, row, column), row == column ? 1 : 0, 1e-9);
      }
    }
  }
}

TEST(MatrixOperationsRandom, TheDeterminantOfAProductIsNearTheProductOfDeterminants) {
  Random random(56);
  for (int i = 0; i < Tries(200); ++i) {
    const std::size_t size = RandomSize(random);
    const MatrixValue a = WellConditioned(random, size);
    const MatrixValue b = WellConditioned(random, size);
    const auto product = MultiplyMatrices(a, b);
    ASSERT_TRUE(product);
    const double expected =
        NumberAt(*MatrixDeterminant(a), 0, 0) * NumberAt(*MatrixDeterminant(b), 0, 0);
    EXPECT_NEAR(NumberAt(*MatrixDeterminant(*product), 0, 0) / expected, 1, 1e-9);
  }
}

TEST(MatrixOperationsRandom, TheDeterminantIsNearTheDiagonalOfTheTriangularForm) {
  Random random(57);
  for (int i = 0; i < Tries(200); ++i) {
    const MatrixValue a = WellConditioned(random, RandomSize(random));
    const auto triangular = TriangularMatrix(a);
    ASSERT_TRUE(triangular);
    double product = 1;
    for (int k = 0; k < a.rows; ++k) product *= NumberAt(*triangular, k, k);
    EXPECT_NEAR(NumberAt(*MatrixDeterminant(a), 0, 0) / product, 1, 1e-9);
  }
}

TEST(MatrixOperationsRandom, TransposedTwiceItIsTheSameMatrix) {
  Random random(58);
  for (int i = 0; i < Tries(500); ++i) {
    const MatrixValue a = MatrixOfRows(RandomRows(random, RandomSize(random), RandomSize(random)));
    EXPECT_TRUE(SameMatrix(TransposeMatrix(TransposeMatrix(a)), a));
  }
}

TEST(MatrixOperationsRandom, ASystemInTheRankedOrderIsSolved) {
  Random random(59);
  for (int i = 0; i < Tries(100); ++i) {
    // The cell on the diagonal is the largest of its column: no row is exchanged.
    const MatrixValue a = WellConditioned(random, RandomSize(random));
    MatrixValue x = MatrixOfSize(a.rows, 1);
    for (int row = 0; row < a.rows; ++row) x.At(row, 0) = Widen(TypedDecimal(random));
    const auto b = MultiplyMatrices(a, x);
    ASSERT_TRUE(b);
    const auto solved = SolveLinearEquation(a, *b);
    ASSERT_TRUE(solved);
    for (int row = 0; row < a.rows; ++row) {
      EXPECT_NEAR(NumberAt(*solved, row, 0), NumberAt(x, row, 0), 1e-8);
    }
  }
}

}  // namespace
}  // namespace kav::matrix_operations_random_test
