#include "matrix/matrix_decompositions.h"

#if !defined(__clang__)
// What the compiler takes for uninitialised is a matrix without rows, which nobody hands over.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <limits>

namespace kav {
namespace {

/// Of at most kLargestMatrix rows and columns, so that nothing is allocated.
using Numbers = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::ColMajor,
                              kLargestMatrix, kLargestMatrix>;

/// `numbers` times 2^exponent is the matrix meant; their largest magnitude is below 1 and not below
/// a half, so that no square of one leaves the range of double.
struct Scaled {
  Numbers numbers;
  int exponent = 0;
};

double TimesPowerOfTwo(double number, int exponent) {
  // Of 0 without its sign, which no cell should show.
  return number == 0 ? 0 : std::ldexp(number, exponent);
}

Scaled ScaledFrom(const RealMatrix& a) {
  Scaled scaled{Numbers(a.rows, a.columns)};
  double largest = 0;
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column) {
      largest = std::max(largest, std::abs(a.At(row, column)));
    }
  }
  std::frexp(largest, &scaled.exponent);
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column) {
      scaled.numbers(row, column) = TimesPowerOfTwo(a.At(row, column), -scaled.exponent);
    }
  }
  return scaled;
}

RealMatrix RealMatrixFrom(const Numbers& numbers, int exponent) {
  RealMatrix a{static_cast<int>(numbers.rows()), static_cast<int>(numbers.cols())};
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column) {
      a.At(row, column) = TimesPowerOfTwo(numbers(row, column), exponent);
    }
  }
  return a;
}

/// The same matrix with rows or columns of 0 to make it a square: that changes neither the other
/// singular values nor the factors beside them.
Numbers Square(const Numbers& numbers) {
  const Eigen::Index size = std::max(numbers.rows(), numbers.cols());
  Numbers square = Numbers::Zero(size, size);
  square.topLeftCorner(numbers.rows(), numbers.cols()) = numbers;
  return square;
}

using Column = Eigen::Matrix<double, Eigen::Dynamic, 1, Eigen::ColMajor, kLargestMatrix, 1>;

/// Largest first. Rotations find small ones to more digits than other ways do.
Column SingularValues(const Numbers& numbers) {
  return Eigen::JacobiSVD<Numbers, Eigen::NoQRPreconditioner>(Square(numbers)).singularValues();
}

/// The larger real part first, then the larger imaginary magnitude, then the positive one.
bool StandsBefore(const std::complex<double>& a, const std::complex<double>& b) {
  if (a.real() != b.real()) return a.real() > b.real();
  if (std::abs(a.imag()) != std::abs(b.imag())) return std::abs(a.imag()) > std::abs(b.imag());
  return a.imag() > b.imag();
}

/// Of the scaled matrix, in any order.
std::optional<std::vector<std::complex<double>>> EigenvaluesOf(const Numbers& numbers) {
  std::vector<std::complex<double>> values;
  values.reserve(static_cast<std::size_t>(numbers.rows()));
  if (numbers == numbers.transpose()) {
    const Eigen::SelfAdjointEigenSolver<Numbers> solver(numbers, Eigen::EigenvaluesOnly);
    if (solver.info() != Eigen::Success) return std::nullopt;
    for (const double value : solver.eigenvalues()) values.emplace_back(value);
  } else {
    const Eigen::EigenSolver<Numbers> solver(numbers, /*computeEigenvectors=*/false);
    if (solver.info() != Eigen::Success) return std::nullopt;
    for (const auto& value : solver.eigenvalues()) values.push_back(value);
  }
  return values;
}

}  // namespace

int RankOf(const RealMatrix& a) {
  const Column values = SingularValues(ScaledFrom(a).numbers);
  const auto size = static_cast<double>(values.size());
  const double least = size * std::numeric_limits<double>::epsilon() * values(0);
  return static_cast<int>((values.array() > least).count());
}

double TraceOf(const RealMatrix& a) {
  const Scaled scaled = ScaledFrom(a);
  return TimesPowerOfTwo(scaled.numbers.trace(), scaled.exponent);
}

double NormOf(const RealMatrix& a, MatrixNorm norm) {
  const auto [numbers, exponent] = ScaledFrom(a);
  switch (norm) {
    case MatrixNorm::Frobenius:
      return TimesPowerOfTwo(numbers.norm(), exponent);
    case MatrixNorm::One:
      return TimesPowerOfTwo(numbers.cwiseAbs().colwise().sum().maxCoeff(), exponent);
    case MatrixNorm::Two:
      return TimesPowerOfTwo(SingularValues(numbers)(0), exponent);
    case MatrixNorm::Infinity:
      break;
  }
  return TimesPowerOfTwo(numbers.cwiseAbs().rowwise().sum().maxCoeff(), exponent);
}

std::optional<std::vector<std::complex<double>>> EigenvaluesOf(const RealMatrix& a) {
  const Scaled scaled = ScaledFrom(a);
  auto values = EigenvaluesOf(scaled.numbers);
  if (!values) return std::nullopt;
  for (auto& value : *values) {
    value = {TimesPowerOfTwo(value.real(), scaled.exponent),
             TimesPowerOfTwo(value.imag(), scaled.exponent)};
  }
  std::sort(values->begin(), values->end(), StandsBefore);
  return values;
}

LuFactors FactorLu(const RealMatrix& a) {
  const Scaled scaled = ScaledFrom(a);
  const Eigen::PartialPivLU<Numbers> lu(Square(scaled.numbers));
  const int rank = std::min(a.rows, a.columns);
  Numbers lower = lu.matrixLU().topLeftCorner(a.rows, rank);
  lower.triangularView<Eigen::StrictlyUpper>().setZero();
  lower.diagonal().setOnes();
  const Numbers corner = lu.matrixLU().topLeftCorner(rank, a.columns);
  const Numbers upper = corner.triangularView<Eigen::Upper>();
  const Numbers exchanges = lu.permutationP().toDenseMatrix().cast<double>();
  return {RealMatrixFrom(exchanges.topLeftCorner(a.rows, a.rows), 0), RealMatrixFrom(lower, 0),
          RealMatrixFrom(upper, scaled.exponent)};
}

QrFactors FactorQr(const RealMatrix& a) {
  const Scaled scaled = ScaledFrom(a);
  const Eigen::HouseholderQR<Numbers> qr(scaled.numbers);
  Numbers orthogonal = qr.householderQ();
  Numbers upper = qr.matrixQR().triangularView<Eigen::Upper>();
  for (Eigen::Index i = 0; i < std::min(upper.rows(), upper.cols()); ++i) {
    if (upper(i, i) >= 0) continue;
    upper.row(i) = -upper.row(i);
    orthogonal.col(i) = -orthogonal.col(i);
  }
  return {RealMatrixFrom(orthogonal, 0), RealMatrixFrom(upper, scaled.exponent)};
}

}  // namespace kav
