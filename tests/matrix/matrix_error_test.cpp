#include "matrix/matrix_error.h"

#include <gtest/gtest.h>

namespace kav {
namespace {

TEST(MakeMatrixError, OnlyTheExponentHasAMessageOfItsOwn) {
  using enum CalcErrorCode;
  const struct {
    CalcErrorCode code;
    const char* subject;
    const char* message;
  } rows[] = {
      {OutOfRange, "", "Out of range(overflow or underflow)"},
      {UnmatchedParentheses, "", "Not matched '(' and ')'."},
      {Expression, "", "Expression error."},
      {TooManyOperators, "", "Too many operator."},
      {NeedsArgument, "inverse", "(inverse) needs an argument."},
      {NotSupported, "12345678901234567", "12345678901234567 is not supported."},
      {NotSupported, "123456789012345678", "123456789012345... is not supported."},
      {CalculationLimit, "x", "x exceeded calculation limit."},
      {NotInteger, "Matrix Power(^)",
       "Matrix Power(^) is not supported non-integer and negative integer."},
      {LengthLimit, "", "number exceeded length limit."},
      {NullExpression, "", "Expression is null."},
      {Free, "System Error : Check your freespace on PDA",
       "System Error : Check your freespace on PDA"},
  };
  for (const auto& row : rows) {
    const CalcError error = MakeMatrixError(row.code, row.subject);
    EXPECT_EQ(error.message, row.message);
    EXPECT_EQ(error.code, row.code) << row.message;
  }
}

}  // namespace
}  // namespace kav
