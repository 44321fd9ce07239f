#include "matrix/matrix_functions.h"

#include <gtest/gtest.h>

#include "support/matrix_table.h"

namespace kav::matrix_functions_test {
namespace {

using test::MatrixOf;
using test::Spelled;

TEST(MatrixFunctions, HaveTheirCodesAndNames) {
  const struct {
    int code;
    const char* name;
    std::size_t argumentCount;
  } rows[] = {{41, "inverse", 1},
              {42, "transpose", 1},
              {43, "linearequation", 2},
              {44, "determinant", 1},
              {45, "triangular", 1}};
  ASSERT_EQ(MatrixFunctions().size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const MatrixFunctionRow& function = MatrixFunctions()[i];
    EXPECT_EQ(static_cast<int>(function.code), rows[i].code);
    EXPECT_EQ(function.name, rows[i].name);
    EXPECT_EQ(function.argumentCount, rows[i].argumentCount);
    EXPECT_EQ(&RowOf(function.code), &function);
  }
}

TEST(ApplyMatrixFunction, EachFunctionIsItsOperation) {
  const MatrixValue a = MatrixOf("2 1; 1 1");
  const MatrixValue b = MatrixOf("3; 2");
  const struct {
    MatrixFunction function;
    MatrixArguments arguments;
    const char* result;
  } rows[] = {
      {MatrixFunction::Inverse, {&a}, "1 -1; -1 2"},
      {MatrixFunction::Transpose, {&b}, "3 2"},
      {MatrixFunction::Determinant, {&a}, "1"},
      {MatrixFunction::Triangular, {&a}, "2 1; 0 0.5"},
      {MatrixFunction::LinearEquation, {&a, &b}, "1; 1"},
      {MatrixFunction::Inverse, {&b}, "error: [Matrix Inverse] Matrix Size Mismatch"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Spelled(ApplyMatrixFunction(row.function, row.arguments)), row.result);
  }
}

TEST(ApplyMatrixFunction, ANumberOrAMissingMatrixIsAnArgumentError) {
  const MatrixValue a = MatrixOf("1");
  const struct {
    MatrixFunction function;
    MatrixArguments arguments;
    const char* message;
  } rows[] = {
      {MatrixFunction::Inverse, {}, "error: [Matrix Inverse] Matrix Argument Error"},
      {MatrixFunction::Transpose, {}, "error: [Matrix Transpose] Matrix Argument Error"},
      {MatrixFunction::Determinant, {}, "error: [Matrix Determinant] Matrix Argument Error"},
      {MatrixFunction::Triangular, {}, "error: [Matrix Triangular] Matrix Argument Error"},
      {MatrixFunction::LinearEquation, {}, "error: [Matrix Linear Equation] Matrix Argument Error"},
      {MatrixFunction::LinearEquation,
       {nullptr, &a},
       "error: [Matrix Linear Equation] Matrix Argument Error"},
      {MatrixFunction::LinearEquation,
       {&a},
       "error: [Matrix Linear Equation] Matrix Argument Error"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Spelled(ApplyMatrixFunction(row.function, row.arguments)), row.message);
  }
}

}  // namespace
}  // namespace kav::matrix_functions_test
