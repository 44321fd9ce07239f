// What linear algebra says of a matrix of plain numbers. Nothing here is rounded to the texts of
// cells.
#pragma once

#include <array>
#include <complex>
#include <cstddef>
#include <optional>
#include <vector>

#include "matrix/matrix_value.h"

namespace kav {

/// A matrix of numbers, 1 to kLargestMatrix rows and columns, all of them finite where one of the
/// functions below takes it. What they return may be infinite where a result is beyond double.
struct RealMatrix {
  int rows = 0;
  int columns = 0;
  std::array<std::array<double, kLargestMatrix>, kLargestMatrix> cells{};

  double At(int row, int column) const {
    return cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }
  double& At(int row, int column) {
    return cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }
};

// In what follows, n is the larger number of rows and columns, eps is 2^-52, and |A| is the 2-norm.

/// The number of singular values above n * eps * |A|: what is smaller cannot be told from 0 in
/// numbers of double precision.
int RankOf(const RealMatrix& a);

/// The sum of the diagonal of the square matrix `a`, wrong by n * eps * the sum of its magnitudes
/// at most.
double TraceOf(const RealMatrix& a);

enum class MatrixNorm {
  Frobenius,  ///< the root of the sum of all squares
  One,        ///< the largest sum of magnitudes of a column
  Two,        ///< the largest singular value
  Infinity,   ///< the largest sum of magnitudes of a row
};
/// Wrong by a few n * eps of itself at most.
double NormOf(const RealMatrix& a, MatrixNorm norm);

/// The n eigenvalues of the square matrix `a`, each as often as it occurs, the largest real parts
/// first, those of a conjugate pair side by side, the positive imaginary part first. They are
/// exactly those of a matrix that differs from `a` by a few n * eps * |A|: of a symmetric matrix
/// each is wrong by that much at most, and all are real; of others, those that lie close together
/// may be wrong by more. nullopt if the iteration does not end.
std::optional<std::vector<std::complex<double>>> EigenvaluesOf(const RealMatrix& a);

/// permutation * a = lower * upper. With r the smaller number of rows and columns, `lower` has r
/// columns, 1 on its diagonal and magnitudes of at most 1 below; `upper` has r rows. Rows are
/// exchanged for the pivot of the largest magnitude. The product differs from the rows of `a` by a
/// few n * eps * |lower| * |upper|.
struct LuFactors {
  RealMatrix permutation;
  RealMatrix lower;
  RealMatrix upper;
};
LuFactors FactorLu(const RealMatrix& a);

/// a = orthogonal * upper. `orthogonal` is square, `upper` has the size of `a` and no negative
/// diagonal. The product differs from `a`, and the columns of `orthogonal` from orthogonal ones of
/// length 1, by a few n * eps * |A| and n * eps.
struct QrFactors {
  RealMatrix orthogonal;
  RealMatrix upper;
};
QrFactors FactorQr(const RealMatrix& a);

}  // namespace kav
