#include "matrix/matrix_error.h"

#include <gtest/gtest.h>

#include "matrix/matrix_texts.h"

namespace kav::matrix_error_test {
namespace {

TEST(MatrixError, EachHasItsMessage) {
  const struct {
    CalcError error;
    const char* message;
  } rows[] = {
      {MatrixSizeMismatch(kMatrixAddition), "[Matrix Addition(+)] Matrix Size Mismatch"},
      // Users know the message with its misspelling.
      {MatrixSizeMismatch(kMatrixSubtraction), "[Matrix Subtration(-)] Matrix Size Mismatch"},
      {MatrixSizeMismatch(kMatrixMultiplication),
       "[Matrix Multiplication(*)] Matrix Size Mismatch"},
      {MatrixSizeMismatch(kMatrixPower), "[Matrix Power(^)] Matrix Size Mismatch"},
      {MatrixArgumentError(kMatrixTranspose), "[Matrix Transpose] Matrix Argument Error"},
      {MatrixArgumentError(kMatrixLinearEquation),
       "[Matrix Linear Equation] Matrix Argument Error"},
      {MatrixArgumentError(kMatrixDeterminant), "[Matrix Determinant] Matrix Argument Error"},
      {MatrixIsNotInvertible(), "[Matrix Inverse] Not Invertible(Determinant Equals 0)"},
      {MatrixHasZeroInDiagonal(), "[Matrix Triangular] Error(0 in Diagonal)."},
      {NoRoomForMatrix(), "System Error : Check your freespace on PDA"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.error.message, row.message);
    EXPECT_EQ(row.error.code, CalcErrorCode::Free) << row.message;
  }
}

TEST(MatrixError, TheExponentHasAMessageOfItsOwnUnderTheCodeOfIntegers) {
  const CalcError error = MatrixExponentIsNotNatural();
  EXPECT_EQ(error.message, "Matrix Power(^) is not supported non-integer and negative integer.");
  EXPECT_EQ(error.code, CalcErrorCode::NotInteger);
}

}  // namespace
}  // namespace kav::matrix_error_test
