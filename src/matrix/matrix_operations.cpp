#include "matrix/matrix_operations.h"

#include <cmath>

#include "matrix/matrix_error.h"
#include "matrix/matrix_texts.h"
#include "matrix/working_matrix.h"

namespace kav {
namespace {

// About a second of work. Powers that have neither come back nor died out by then, such as turns by
// an odd angle, may go on for longer than anyone waits.
constexpr double kMostPowerCells = 4e6;

WorkingMatrix ProductOf(const WorkingMatrix& a, const WorkingMatrix& b) {
  WorkingMatrix product(a.Rows(), b.Columns());
  for (int row = 0; row < a.Rows(); ++row) {
    for (int column = 0; column < b.Columns(); ++column) {
      double sum = 0;
      for (int i = 0; i < a.Columns(); ++i) sum += a.At(row, i) * b.At(i, column);
      product.Store(row, column, sum);
    }
  }
  return product;
}

/// The powers of a matrix in turn, and when they begin to come back (Brent's cycle detection):
/// equal numbers are followed by equal numbers, whatever the texts they were read from.
class PowerSequence {
 public:
  explicit PowerSequence(const MatrixValue& a) : factor_(a), power_(factor_), milestone_(factor_) {}

  void Next() {
    if (sinceMilestone_ == milestoneGap_) {
      milestone_ = power_;
      milestoneGap_ *= 2;
      sinceMilestone_ = 0;
    }
    power_ = ProductOf(power_, factor_);
    exponent_ += 1;
    sinceMilestone_ += 1;
  }
  const WorkingMatrix& Power() const { return power_; }
  double Exponent() const { return exponent_; }
  /// After how many exponents the powers come back; 0 as long as that is not known.
  double Period() const { return power_.IsSame(milestone_) ? sinceMilestone_ : 0; }

 private:
  WorkingMatrix factor_;
  WorkingMatrix power_;
  WorkingMatrix milestone_;
  double exponent_ = 1;
  double sinceMilestone_ = 0;
  double milestoneGap_ = 1;
};

/// The power with the exponent `last`, unless it takes more than `most` steps.
CalcResult<MatrixValue> LastPower(PowerSequence powers, double last, double most) {
  while (powers.Exponent() < last) {
    if (powers.Exponent() > most) return MakeError(CalcErrorCode::CalculationLimit, kMatrixPower);
    powers.Next();
    const double period = powers.Period();
    if (period == 0) continue;
    // Not the difference of the exponents: beyond 2^53 it would be rounded.
    double rest = std::fmod(last, period) - std::fmod(powers.Exponent(), period);
    if (rest < 0) rest += period;
    const double same = powers.Exponent() + rest;
    while (powers.Exponent() < same) powers.Next();
    break;
  }
  return powers.Power().Texts();
}

}  // namespace

CalcResult<MatrixValue> MultiplyMatrices(const MatrixValue& a, const MatrixValue& b) {
  if (a.columns != b.rows) return MatrixSizeMismatch(kMatrixMultiplication);
  return ProductOf(WorkingMatrix(a), WorkingMatrix(b)).Texts();
}

CalcResult<MatrixValue> RaiseMatrix(const MatrixValue& a, double exponent) {
  const bool isWhole = std::isfinite(exponent) && std::trunc(exponent) == exponent;
  if (!isWhole || exponent < 0) return MatrixExponentIsNotNatural();
  if (a.rows != a.columns) return MatrixSizeMismatch(kMatrixPower);
  if (exponent == 0) return WorkingMatrix::Identity(a.rows).Texts();
  return LastPower(PowerSequence(a), exponent, kMostPowerCells / (a.rows * a.rows));
}

MatrixValue TransposeMatrix(const MatrixValue& a) {
  MatrixValue transposed = MatrixOfSize(a.columns, a.rows);
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column) {
      transposed.At(column, row) = a.At(row, column);
    }
  }
  return transposed;
}

}  // namespace kav
