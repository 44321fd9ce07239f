// Checks of what an operation on matrices answers.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <variant>

#include "engine/calc_error.h"
#include "matrix/matrix_arithmetic.h"
#include "matrix/matrix_value.h"
#include "support/plain_matrix.h"

namespace kav::test {

inline constexpr const char* kOutOfRange = "Out of range(overflow or underflow)";

inline const MatrixValue kSquare = MatrixOfRows({{"1", "2"}, {"3", "4"}});
inline const MatrixValue kWide = MatrixOfRows({{"1", "2", "3"}, {"4", "5", "6"}});
inline const MatrixValue kColumn = MatrixOfRows({{"5"}, {"6"}});

/// The matrix that an operator makes of operands, one of which is a matrix.
inline CalcResult<MatrixValue> Combined(const MatrixOperand& left, MatrixOperator symbol,
                                        const MatrixOperand& right) {
  auto result = CombineOperands(left, symbol, right);
  if (!result) return std::move(result).error();
  return std::get<MatrixValue>(*std::move(result));
}

inline void ExpectRows(const CalcResult<MatrixValue>& answer, const PlainRows& expected) {
  ASSERT_TRUE(answer) << answer.error().message;
  EXPECT_EQ(RowsOf(*answer), expected);
}

inline void ExpectError(const CalcResult<MatrixValue>& answer, CalcErrorCode code,
                        const std::string& message) {
  ASSERT_FALSE(answer) << ::testing::PrintToString(RowsOf(*answer));
  EXPECT_EQ(answer.error().code, code);
  EXPECT_EQ(answer.error().message, message);
}

inline void ExpectMessage(const CalcResult<MatrixValue>& answer, const std::string& message) {
  ExpectError(answer, CalcErrorCode::Free, message);
}

}  // namespace kav::test
