#include "matrix/matrix_properties.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstddef>
#include <utility>
#include <vector>

#include "matrix/cell_number.h"
#include "matrix/matrix_decompositions.h"
#include "matrix/matrix_error.h"
#include "matrix/matrix_texts.h"

namespace kav {
namespace {

using Value = PropertyValue;
using Row = MatrixProperty;
using Result = CalcResult<Value>;

bool IsFinite(const RealMatrix& a) {
  for (int row = 0; row < a.rows; ++row) {
    for (int column = 0; column < a.columns; ++column) {
      if (!std::isfinite(a.At(row, column))) return false;
    }
  }
  return true;
}

RealMatrix NumbersOf(const MatrixValue& matrix) {
  RealMatrix numbers{matrix.rows, matrix.columns};
  for (int row = 0; row < matrix.rows; ++row) {
    for (int column = 0; column < matrix.columns; ++column) {
      numbers.At(row, column) = ReadCell(matrix.At(row, column));
    }
  }
  return numbers;
}

Result NumberResult(double number) {
  if (!std::isfinite(number)) return MakeError(CalcErrorCode::OutOfRange);
  return Value{number, {}};
}

Result MatrixResult(const RealMatrix& numbers) {
  if (!IsFinite(numbers)) return MakeError(CalcErrorCode::OutOfRange);
  Value value{std::nullopt, MatrixOfSize(numbers.rows, numbers.columns)};
  for (int row = 0; row < numbers.rows; ++row) {
    for (int column = 0; column < numbers.columns; ++column) {
      value.matrix.At(row, column) = CellText(numbers.At(row, column));
    }
  }
  return value;
}

bool IsSquare(const MatrixValue& matrix) {
  return matrix.rows == matrix.columns;
}

Result Rank(const Row&, const MatrixValue& matrix) {
  return NumberResult(RankOf(NumbersOf(matrix)));
}

Result Trace(const Row& row, const MatrixValue& matrix) {
  if (!IsSquare(matrix)) return MatrixSizeMismatch(row.operation);
  return NumberResult(TraceOf(NumbersOf(matrix)));
}

template <MatrixNorm kNorm>
Result Norm(const Row&, const MatrixValue& matrix) {
  return NumberResult(NormOf(NumbersOf(matrix), kNorm));
}

/// One column, or a second one with the imaginary parts if one of them is not 0.
Result Eigenvalues(const Row& row, const MatrixValue& matrix) {
  if (!IsSquare(matrix)) return MatrixSizeMismatch(row.operation);
  const auto values = EigenvaluesOf(NumbersOf(matrix));
  if (!values) return MatrixHasNoConvergence(row.operation);
  const bool areReal = std::all_of(values->begin(), values->end(),
                                   [](const auto& value) { return value.imag() == 0; });
  RealMatrix columns{matrix.rows, areReal ? 1 : 2};
  for (int i = 0; i < matrix.rows; ++i) {
    const std::complex<double>& value = (*values)[static_cast<std::size_t>(i)];
    columns.At(i, 0) = value.real();
    if (!areReal) columns.At(i, 1) = value.imag();
  }
  return MatrixResult(columns);
}

template <RealMatrix LuFactors::*kFactor>
Result FactorOfLu(const Row&, const MatrixValue& matrix) {
  return MatrixResult(FactorLu(NumbersOf(matrix)).*kFactor);
}

template <RealMatrix QrFactors::*kFactor>
Result FactorOfQr(const Row&, const MatrixValue& matrix) {
  return MatrixResult(FactorQr(NumbersOf(matrix)).*kFactor);
}

// clang-format off
constexpr std::array kProperties{
    Row{"rank", u"Rank", u"how many rows are independent: singular values above n * 2^-52 of the largest",
        kMatrixRank, u"Rank of ", {}, Rank},
    Row{"trace", u"Trace", u"the sum of the diagonal, to about 15 digits",
        kMatrixTrace, u"Trace of ", {}, Trace},
    Row{"norm", u"Norm (Frobenius)", u"the root of the sum of all squares, to about 15 digits",
        kMatrixNorm, u"Norm of ", {}, Norm<MatrixNorm::Frobenius>},
    Row{"norm1", u"Norm (1)", u"the largest sum of magnitudes of a column, to about 15 digits",
        kMatrixNorm, u"1-Norm of ", {}, Norm<MatrixNorm::One>},
    Row{"norm2", u"Norm (2)", u"the largest singular value, to about 15 digits",
        kMatrixNorm, u"2-Norm of ", {}, Norm<MatrixNorm::Two>},
    Row{"norminf", u"Norm (Infinity)", u"the largest sum of magnitudes of a row, to about 15 digits",
        kMatrixNorm, u"Infinity norm of ", {}, Norm<MatrixNorm::Infinity>},
    Row{"eigenvalues", u"Eigenvalues", u"the largest first, exact for a matrix that differs by a few n * 2^-52 of its norm; imaginary parts in a second column",
        kMatrixEigenvalues, u"Eigenvalues of ", u": real, imaginary", Eigenvalues},
    Row{"lu-l", u"LU: L", u"the lower factor of P*M = L*U, to a few n * 2^-52 of its norm",
        kMatrixLu, u"L of P*", u" = L*U", FactorOfLu<&LuFactors::lower>},
    Row{"lu-u", u"LU: U", u"the upper factor of P*M = L*U, to a few n * 2^-52 of its norm",
        kMatrixLu, u"U of P*", u" = L*U", FactorOfLu<&LuFactors::upper>},
    Row{"lu-p", u"LU: P", u"the exchanges of rows in P*M = L*U",
        kMatrixLu, u"P of P*", u" = L*U", FactorOfLu<&LuFactors::permutation>},
    Row{"qr-q", u"QR: Q", u"the orthogonal factor of M = Q*R, to a few n * 2^-52",
        kMatrixQr, u"Q of ", u" = Q*R", FactorOfQr<&QrFactors::orthogonal>},
    Row{"qr-r", u"QR: R", u"the upper factor of M = Q*R, to a few n * 2^-52 of its norm",
        kMatrixQr, u"R of ", u" = Q*R", FactorOfQr<&QrFactors::upper>},
};
// clang-format on

}  // namespace

std::span<const MatrixProperty> MatrixProperties() {
  return kProperties;
}

const MatrixProperty* FindProperty(std::string_view name) {
  const auto* const found = std::find_if(kProperties.begin(), kProperties.end(),
                                         [name](const Row& row) { return row.name == name; });
  return found == kProperties.end() ? nullptr : &*found;
}

CalcResult<PropertyValue> PropertyOf(const MatrixProperty& property, const MatrixValue& matrix) {
  if (!IsFinite(NumbersOf(matrix))) return MakeError(CalcErrorCode::OutOfRange);
  return property.find(property, matrix);
}

std::u16string PropertyTitle(const MatrixProperty& property, const PropertyValue& value,
                             int index) {
  std::u16string title(property.told);
  title.append(kMatrixNames[static_cast<std::size_t>(index)]);
  const bool isAllReal = property.find == Eigenvalues && value.matrix.columns == 1;
  return isAllReal ? title : title.append(property.toldMore);
}

}  // namespace kav
