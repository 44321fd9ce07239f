// Held against the definitions: products of factors, sums and products of eigenvalues.
#include "matrix/matrix_decompositions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <numbers>
#include <optional>
#include <vector>

#include "support/random.h"

namespace kav::matrix_decompositions_test {
namespace {

using Complex = std::complex<double>;

constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
constexpr double kSquareBeyondRange = 1e300;

RealMatrix MatrixFrom(std::initializer_list<std::initializer_list<double>> rows) {
  RealMatrix a{static_cast<int>(rows.size()), static_cast<int>(rows.begin()->size())};
  int row = 0;
  for (const auto& cells : rows) {
    int column = 0;
    for (const double cell : cells) a.At(row, column++) = cell;
    ++row;
  }
  return a;
}

RealMatrix RandomMatrix(test::Random& random, int rows, int columns) {
  RealMatrix a{rows, columns};
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) a.At(row, column) = random.Fraction() * 2 - 1;
  }
  return a;
}

RealMatrix Product(const RealMatrix& a, const RealMatrix& b) {
  EXPECT_EQ(a.columns, b.rows);
  RealMatrix product{a.rows, b.columns};
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < b.columns; ++column) {
      for (int i = 0; i < a.columns; ++i) product.At(row, column) += a.At(row, i) * b.At(i, column);
    }
  }
  return product;
}

RealMatrix Transposed(const RealMatrix& a) {
  RealMatrix transposed{a.columns, a.rows};
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column)
      transposed.At(column, row) = a.At(row, column);
  }
  return transposed;
}

RealMatrix Diagonal(const std::vector<double>& values) {
  const int size = static_cast<int>(values.size());
  RealMatrix diagonal{size, size};
  for (int i = 0; i < size; ++i) diagonal.At(i, i) = values[static_cast<std::size_t>(i)];
  return diagonal;
}

double LargestDifference(const RealMatrix& a, const RealMatrix& b) {
  EXPECT_EQ(a.rows, b.rows);
  EXPECT_EQ(a.columns, b.columns);
  double largest = 0;
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column) {
      largest = std::max(largest, std::abs(a.At(row, column) - b.At(row, column)));
    }
  }
  return largest;
}

std::vector<Complex> EigenvaluesOrNone(const RealMatrix& a) {
  auto values = EigenvaluesOf(a);
  EXPECT_TRUE(values.has_value());
  return values.value_or(std::vector<Complex>());
}

void ExpectEigenvalues(const RealMatrix& a, const std::vector<Complex>& expected, double error) {
  const auto values = EigenvaluesOrNone(a);
  ASSERT_EQ(values.size(), expected.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_NEAR(values[i].real(), expected[i].real(), error) << i;
    EXPECT_NEAR(values[i].imag(), expected[i].imag(), error) << i;
  }
}

RealMatrix Hilbert(int size) {
  RealMatrix a{size, size};
  for (int row = 0; row < size; ++row) {
    for (int column = 0; column < size; ++column) a.At(row, column) = 1.0 / (row + column + 1);
  }
  return a;
}

TEST(Rank, CountsIndependentRows) {
  EXPECT_EQ(RankOf(MatrixFrom({{0, 0}, {0, 0}})), 0);
  EXPECT_EQ(RankOf(MatrixFrom({{0}})), 0);
  EXPECT_EQ(RankOf(MatrixFrom({{-3}})), 1);
  EXPECT_EQ(RankOf(MatrixFrom({{1, 2}, {2, 4}})), 1);
  EXPECT_EQ(RankOf(MatrixFrom({{1, 2}, {2, 5}})), 2);
  EXPECT_EQ(RankOf(MatrixFrom({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}})), 2);
  EXPECT_EQ(RankOf(MatrixFrom({{1, 2, 3}, {2, 4, 6}})), 1);
  EXPECT_EQ(RankOf(MatrixFrom({{1}, {0}, {5}})), 1);
  EXPECT_EQ(RankOf(MatrixFrom({{kSquareBeyondRange, 0}, {0, -kSquareBeyondRange}})), 2);
}

TEST(Rank, IsThatOfTheFactorsOfAProduct) {
  test::Random random(1);
  for (int rank = 1; rank <= kLargestMatrix; ++rank) {
    const RealMatrix a = RandomMatrix(random, kLargestMatrix, rank);
    EXPECT_EQ(RankOf(Product(a, RandomMatrix(random, rank, kLargestMatrix))), rank);
  }
}

TEST(Rank, ToleratesWhatIsBelowTheDigitsOfDouble) {
  const auto rankWith = [](double small) { return RankOf(MatrixFrom({{1, 0}, {0, small}})); };
  EXPECT_EQ(rankWith(2.1 * kEpsilon), 2);
  EXPECT_EQ(rankWith(1.9 * kEpsilon), 1);
  // Its smallest singular value is 1.0931e-13, its largest 1.7519: far above 10 * 2^-52 of that.
  EXPECT_EQ(RankOf(Hilbert(kLargestMatrix)), kLargestMatrix);
}

TEST(Trace, IsTheSumOfTheDiagonal) {
  EXPECT_EQ(TraceOf(MatrixFrom({{7}})), 7);
  EXPECT_EQ(TraceOf(MatrixFrom({{1, 2, 3}, {4, 5, 6}, {7, 8, -9.5}})), -3.5);
  EXPECT_EQ(TraceOf(MatrixFrom({{1e308, 0, 0}, {0, 1e308, 0}, {0, 0, -1e308}})), 1e308);
  EXPECT_EQ(TraceOf(MatrixFrom({{1e308, 0}, {0, 1e308}})), std::numeric_limits<double>::infinity());
}

TEST(Norm, FollowsItsDefinition) {
  const RealMatrix a = MatrixFrom({{1, -2, 3}, {-4, 5, -6}});
  EXPECT_DOUBLE_EQ(NormOf(a, MatrixNorm::Frobenius), std::sqrt(91.0));
  EXPECT_EQ(NormOf(a, MatrixNorm::One), 9);
  EXPECT_EQ(NormOf(a, MatrixNorm::Infinity), 15);
  // The eigenvalues of a times its transpose, 14 32; 32 77, are (91 + sqrt(8065)) / 2 and less.
  EXPECT_DOUBLE_EQ(NormOf(a, MatrixNorm::Two), std::sqrt((91 + std::sqrt(8065.0)) / 2));
  for (const MatrixNorm norm :
       {MatrixNorm::Frobenius, MatrixNorm::One, MatrixNorm::Two, MatrixNorm::Infinity}) {
    EXPECT_EQ(NormOf(MatrixFrom({{0, 0}}), norm), 0);
    EXPECT_EQ(NormOf(MatrixFrom({{-kSquareBeyondRange}}), norm), kSquareBeyondRange);
    EXPECT_EQ(NormOf(MatrixFrom({{5e-324}}), norm), 5e-324);
  }
  EXPECT_DOUBLE_EQ(NormOf(MatrixFrom({{3e300, 4e300}}), MatrixNorm::Frobenius), 5e300);
}

TEST(Eigenvalues, AreThoseThatArePublished) {
  for (const int size : {1, 2, 5, kLargestMatrix}) {
    RealMatrix a{size, size};
    std::vector<Complex> expected;
    for (int i = 0; i < size; ++i) {
      a.At(i, i) = 2;
      if (i > 0) a.At(i, i - 1) = a.At(i - 1, i) = -1;
      expected.emplace_back(2 - 2 * std::cos((size - i) * std::numbers::pi / (size + 1)));
    }
    ExpectEigenvalues(a, expected, 40 * kEpsilon);
  }
  // The companion of (x-1)(x-2)(x-3), and a turn by 90 degrees.
  ExpectEigenvalues(MatrixFrom({{6, -11, 6}, {1, 0, 0}, {0, 1, 0}}), {3, 2, 1}, 1e-13);
  ExpectEigenvalues(MatrixFrom({{0, -1}, {1, 0}}), {Complex(0, 1), Complex(0, -1)}, 1e-15);
  ExpectEigenvalues(MatrixFrom({{0, 0}, {0, 0}}), {0, 0}, 0);
  ExpectEigenvalues(MatrixFrom({{kSquareBeyondRange, 0}, {1, kSquareBeyondRange / 2}}),
                    {kSquareBeyondRange, kSquareBeyondRange / 2}, 1e285);
}

TEST(Eigenvalues, StandThePairsSideBySideTheLargestRealPartFirst) {
  const RealMatrix a = MatrixFrom(
      {{1, -1, 0, 0, 0}, {1, 1, 0, 0, 0}, {0, 0, 1, -2, 0}, {0, 0, 2, 1, 0}, {0, 0, 0, 0, 4}});
  ExpectEigenvalues(a, {4, Complex(1, 2), Complex(1, -2), Complex(1, 1), Complex(1, -1)},
                    20 * kEpsilon);
}

TEST(Eigenvalues, OfASymmetricMatrixAreRealEvenIfTheyAreEqual) {
  // All cells 1: once 10, nine times 0.
  RealMatrix a{kLargestMatrix, kLargestMatrix};
  for (auto& row : a.cells) row.fill(1);
  std::vector<Complex> expected(kLargestMatrix, 0);
  expected.front() = kLargestMatrix;
  ExpectEigenvalues(a, expected, 100 * kEpsilon);
  for (const Complex& value : EigenvaluesOrNone(a)) EXPECT_EQ(value.imag(), 0);
}

TEST(Eigenvalues, AddUpToTheTraceAndToThatOfTheSquare) {
  test::Random random(2);
  for (int size = 1; size <= kLargestMatrix; ++size) {
    for (int i = 0; i < 20; ++i) {
      const RealMatrix a = RandomMatrix(random, size, size);
      Complex sum;
      Complex squares;
      for (const Complex& value : EigenvaluesOrNone(a)) {
        sum += value;
        squares += value * value;
      }
      EXPECT_NEAR(sum.real(), TraceOf(a), 1e-13);
      EXPECT_EQ(sum.imag(), 0);
      EXPECT_NEAR(squares.real(), TraceOf(Product(a, a)), 1e-12);
    }
  }
}

TEST(Lu, IsTheExchangedMatrixWithPivotsOfTheLargestMagnitude) {
  const LuFactors factors = FactorLu(MatrixFrom({{1, 2}, {-4, 4}}));
  EXPECT_EQ(LargestDifference(factors.permutation, MatrixFrom({{0, 1}, {1, 0}})), 0);
  EXPECT_EQ(LargestDifference(factors.lower, MatrixFrom({{1, 0}, {-0.25, 1}})), 0);
  EXPECT_EQ(LargestDifference(factors.upper, MatrixFrom({{-4, 4}, {0, 3}})), 0);
  const LuFactors zeros = FactorLu(MatrixFrom({{0, 0}, {0, 0}}));
  EXPECT_EQ(LargestDifference(zeros.lower, Diagonal({1, 1})), 0);
  EXPECT_EQ(LargestDifference(zeros.upper, Diagonal({0, 0})), 0);
}

void ExpectLu(const RealMatrix& a) {
  const auto [permutation, lower, upper] = FactorLu(a);
  const int rank = std::min(a.rows, a.columns);
  EXPECT_EQ(lower.columns, rank);
  EXPECT_EQ(upper.rows, rank);
  EXPECT_LE(LargestDifference(Product(permutation, a), Product(lower, upper)), 100 * kEpsilon);
  EXPECT_EQ(LargestDifference(Product(permutation, Transposed(permutation)),
                              Diagonal(std::vector<double>(static_cast<std::size_t>(a.rows), 1))),
            0);
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column) {
      if (column < rank) {
        EXPECT_LE(std::abs(lower.At(row, column)), row < column ? 0 : 1);
        if (row == column) {
          EXPECT_EQ(lower.At(row, column), 1);
        }
      }
      if (row < rank && row > column) {
        EXPECT_EQ(upper.At(row, column), 0);
      }
    }
  }
}

void ExpectQr(const RealMatrix& a) {
  const auto [orthogonal, upper] = FactorQr(a);
  EXPECT_LE(LargestDifference(Product(orthogonal, upper), a), 100 * kEpsilon);
  EXPECT_LE(LargestDifference(Product(Transposed(orthogonal), orthogonal),
                              Diagonal(std::vector<double>(static_cast<std::size_t>(a.rows), 1))),
            50 * kEpsilon);
  for (int row = 0; row < upper.rows; ++row) {
    for (int column = 0; column < std::min(row, upper.columns); ++column) {
      EXPECT_EQ(upper.At(row, column), 0);
    }
    if (row < upper.columns) {
      EXPECT_GE(upper.At(row, row), 0);
    }
  }
}

TEST(LuAndQr, MultiplyToTheMatrixInEverySize) {
  test::Random random(3);
  for (int rows = 1; rows <= kLargestMatrix; ++rows) {
    for (int columns = 1; columns <= kLargestMatrix; ++columns) {
      const RealMatrix a = RandomMatrix(random, rows, columns);
      ExpectLu(a);
      ExpectQr(a);
      RealMatrix flat = a;
      for (int row = 0; row < rows; ++row) flat.At(row, columns / 2) = 0;
      ExpectLu(flat);
      ExpectQr(flat);
    }
  }
}

TEST(Qr, HasNoNegativeDiagonal) {
  const QrFactors factors = FactorQr(MatrixFrom({{3, 5}, {4, -5}}));
  EXPECT_LE(LargestDifference(factors.orthogonal, MatrixFrom({{0.6, 0.8}, {0.8, -0.6}})), 1e-15);
  EXPECT_LE(LargestDifference(factors.upper, MatrixFrom({{5, -1}, {0, 7}})), 1e-14);
  const QrFactors large = FactorQr(MatrixFrom({{3e300}, {4e300}}));
  EXPECT_DOUBLE_EQ(large.upper.At(0, 0), 5e300);
}

}  // namespace
}  // namespace kav::matrix_decompositions_test
