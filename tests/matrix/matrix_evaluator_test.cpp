#include "matrix/matrix_evaluator.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>

#include "support/matrix_table.h"
#include "support/temporary_folder.h"

namespace kav::matrix_evaluator_test {
namespace {

using test::MatrixOf;
using test::Spelled;

struct Row {
  const char* text;
  const char* result;
};

class MatrixEvaluatorTest : public ::testing::Test {
 protected:
  std::string Told(const std::string& text) {
    return Spelled(MatrixEvaluator(matrices_, files_).Evaluate(text));
  }

  Matrices matrices_{MatrixOf("1 2; 3 4"), MatrixOf("2 0; 1 1"), MatrixOf("1 2 3; 4 5 6"),
                     MatrixOf("5; 6")};
  TemporaryFolder parent_;
  TemporaryMatrices files_{parent_.Path()};
};

TEST_F(MatrixEvaluatorTest, ExpressionsHaveValues) {
  const Row rows[] = {
      {"[M1]", "1 2; 3 4"},
      {"[m ANS]", "5; 6"},
      {"  [M1]+[M2]  ", "3 2; 4 5"},
      {"[M1]-[M2]", "-1 2; 2 3"},
      {"[M1]*[M2]", "4 2; 10 4"},
      {"[M1]*[M3]", "9 12 15; 19 26 33"},
      {"[M1]^0", "1 0; 0 1"},
      {"[M1]^1", "1 2; 3 4"},
      {"[M1]^3", "37 54; 81 118"},
      {"INVERSE([M2])", "0.5 0; -0.5 1"},
      {"Transpose([M3])", "1 4; 2 5; 3 6"},
      {"determinant([M1])", "-2"},
      {"triangular([M1])", "1 2; 0 -2"},
      {"linearequation([M2],[M Ans])", "2.5; 3.5"},
      {"1E1*[M1]", "10 20; 30 40"},
      {"[M1]*2-1", "1 3; 5 7"},
  };
  for (const auto& row : rows) EXPECT_EQ(Told(row.text), row.result) << row.text;
}

TEST_F(MatrixEvaluatorTest, EveryMessage) {
  const Row rows[] = {
      {"", "Expression is null."},
      {"   ", "Expression is null."},
      {"(([M1])", "Not matched '(' and ')'."},
      {"[M1]+", "Expression error."},
      {"inverse[M1]", "Expression error."},
      {"[M1],[M2]", "Expression error."},
      {"[M1]^[M2]", "Expression error."},
      {"2^[M2]", "Expression error."},
      {"1+1", "Expression error."},
      {"1.2.3*[M1]", "Expression error."},
      {"inverse", "(inverse) needs an argument."},
      {"sin([M1])", "sin is not supported."},
      {"[M4]", "[m4] is not supported."},
      {"[M1]/2", "/ is not supported."},
      {"ABCDEFGHIJKLMNOPQR([M1])", "abcdefghijklmno... is not supported."},
      {"10^309*[M1]", "Out of range(overflow or underflow)"},
      {"1e999+[M1]", "Out of range(overflow or underflow)"},
      {"[M1]*1234567890123456789012345678901", "number exceeded length limit."},
      {"[M1]^2.5", "Matrix Power(^) is not supported non-integer and negative integer."},
      {"[M1]^-1", "Matrix Power(^) is not supported non-integer and negative integer."},
      {"[M3]^2.5", "Matrix Power(^) is not supported non-integer and negative integer."},
      {"[M1]+[M3]", "[Matrix Addition(+)] Matrix Size Mismatch"},
      {"[M1]-[M3]", "[Matrix Subtration(-)] Matrix Size Mismatch"},
      {"[M3]*[M1]", "[Matrix Multiplication(*)] Matrix Size Mismatch"},
      {"[M3]^2", "[Matrix Power(^)] Matrix Size Mismatch"},
      {"inverse([M3])", "[Matrix Inverse] Matrix Size Mismatch"},
      {"inverse([M1]*0)", "[Matrix Inverse] Not Invertible(Determinant Equals 0)"},
      {"inverse(2)", "[Matrix Inverse] Matrix Argument Error"},
      {"transpose(2)", "[Matrix Transpose] Matrix Argument Error"},
      {"linearequation([M3],[M Ans])", "[Matrix Linear Equation] Matrix Size Mismatch"},
      {"linearequation([M1],[M2])", "[Matrix Linear Equation] Matrix Size Mismatch"},
      {"linearequation([M1],transpose([M3]))", "Expression error."},
      {"linearequation(2,[M Ans])", "[Matrix Linear Equation] Matrix Argument Error"},
      {"linearequation([M1],2)", "[Matrix Linear Equation] Matrix Argument Error"},
      {"linearequation([M1])", "[Matrix Linear Equation] Matrix Argument Error"},
      {"determinant([M3])", "[Matrix Determinant] Matrix Size Mismatch"},
      {"determinant(2)", "[Matrix Determinant] Matrix Argument Error"},
      {"triangular([M3])", "[Matrix Triangular] Matrix Size Mismatch"},
      {"triangular([M1]-1)", "[Matrix Triangular] Error(0 in Diagonal)."},
      {"triangular(2)", "[Matrix Triangular] Matrix Argument Error"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Told(row.text), std::string("error: ") + row.result) << row.text;
  }
}

TEST_F(MatrixEvaluatorTest, AFailureHasItsPlace) {
  // In braces.
  for (const std::string row :
       {"[M1]+{[M4]}", " [M1]*{foo}([M2])", "[M1]{/}2", "{1.2.3}*[M1]", "[M1]+ {inverse} ",
        "{(}([M1])", "([M1]){)}+[M1]", "[M1]{+}", "[M1]*([M1]{-})", "[M1]+{*}[M2]", "[M1]{(}[M2])",
        "[M1],{[M2]}", "  [M1]-[M1] {+} [M3]", "2*[M1]{^}2.5", "1-{Determinant}([M3])",
        "[M1]*{inverse}(2)", "[M1]{-}1e999+[M1]", "{)}+("}) {
    std::string text = row;
    std::erase_if(text, [](char c) { return c == '{' || c == '}'; });
    const auto answer = MatrixEvaluator(matrices_, files_).Evaluate(text);
    ASSERT_FALSE(answer) << row;
    ASSERT_TRUE(answer.error().place) << row;
    const auto [position, length] = *answer.error().place;
    EXPECT_EQ(text.insert(position + length, "}").insert(position, "{"), row);
  }
  EXPECT_EQ(MatrixEvaluator(matrices_, files_).Evaluate("").error().place, std::nullopt);
}

TEST_F(MatrixEvaluatorTest, SignsBehindOperatorsBelongToTheOperandBehindThem) {
  EXPECT_EQ(Told("[M1]--[M2]"), "3 2; 4 5");
  EXPECT_EQ(Told("[M1]-2*-[M2]"), "5 2; 5 6");
  EXPECT_EQ(Told("[M1]-[M2]--[M2]"), "1 2; 3 4");
  EXPECT_EQ(Told("[M1]++[M2]"), "3 2; 4 5");
  EXPECT_EQ(Told("5*[M1]---[M1]"), "4 8; 12 16");
  EXPECT_EQ(Told("[M1]-2^-1"), "0.5 1.5; 2.5 3.5");
  EXPECT_EQ(Told("[M1]--[M1]^2"), "-6 -8; -12 -18");
  EXPECT_EQ(Told("[M1]--transpose([M1])"), "2 5; 5 8");
}

TEST_F(MatrixEvaluatorTest, TheCellsOfAResultThatOverflowsHoldTheMessage) {
  matrices_[0] = MatrixOf("1e200 1");
  matrices_[1] = MatrixOf("1e200; 1");
  EXPECT_EQ(Told("[M1]*[M2]"), "Out of range(overflow or underflow)");
  EXPECT_EQ(Told("[M1]*[M2]+1"), "1");
}

TEST_F(MatrixEvaluatorTest, AMatrixThatIsTheWholeExpressionKeepsItsTexts) {
  matrices_[0] = MatrixOf("+1.50 1e3; abc 007");
  EXPECT_EQ(Told("[M1]"), "+1.50 1e3; abc 007");
  EXPECT_EQ(Told("([M1])^1"), "+1.50 1e3; abc 007");
  EXPECT_EQ(Told("transpose([M1])"), "+1.50 abc; 1e3 007");
  EXPECT_EQ(Told("--[M1]"), "1.5 1000; 0 7");
}

TEST_F(MatrixEvaluatorTest, OneCellOfZeroHasADeterminantAndNoInverse) {
  matrices_[0] = MatrixOf("0");
  EXPECT_EQ(Told("inverse([M1])"), "error: [Matrix Inverse] Not Invertible(Determinant Equals 0)");
  EXPECT_EQ(Told("determinant([M1])"), "0");
}

TEST_F(MatrixEvaluatorTest, OnlyTheDeterminantExchangesRowsForAZeroOnTop) {
  matrices_[0] = MatrixOf("0 1; 1 0");
  EXPECT_EQ(Told("inverse([M1])"), "error: [Matrix Inverse] Not Invertible(Determinant Equals 0)");
  EXPECT_EQ(Told("determinant([M1])"), "-1");
}

TEST_F(MatrixEvaluatorTest, SeventyOneTokensAreTheMost) {
  std::string text = "[M1]";
  for (int i = 0; i < 35; ++i) text += "+[M1]";
  EXPECT_EQ(Told(text), "36 72; 108 144");
  EXPECT_EQ(Told("+" + text), "error: number exceeded length limit.");
}

TEST_F(MatrixEvaluatorTest, WithoutSpaceForIntermediateResultsNothingChanges) {
  PutFile(parent_.File("file"), "");
  TemporaryMatrices none(parent_.File("file"));
  const Matrices before = matrices_;
  MatrixEvaluator evaluator(matrices_, none);
  EXPECT_EQ(Spelled(evaluator.Evaluate("[M1]*[M2]+[M1]")),
            "error: System Error : Check your freespace on PDA");
  for (std::size_t i = 0; i < before.size(); ++i) {
    EXPECT_TRUE(SameMatrix(matrices_[i], before[i])) << i;
  }
  EXPECT_EQ(Spelled(evaluator.Evaluate("[M1]*[M2]")), "4 2; 10 4");
}

TEST_F(MatrixEvaluatorTest, TheLongestExpressionOfTheLargestMatricesAnswersAtOnce) {
  MatrixValue large;
  large.rows = large.columns = kLargestMatrix;
  for (int i = 0; i < 100; ++i) large.At(i / 10, i % 10) = Widen(PrintFixed(0.1 * i - 3.3, 13));
  matrices_[0] = large;
  std::string text = "[M1]";
  for (int i = 0; i < 17; ++i) text += "*0.01*[M1]";
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(MatrixEvaluator(matrices_, files_).Evaluate(text));
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  EXPECT_LT(took.count(), 0.5);
}

}  // namespace
}  // namespace kav::matrix_evaluator_test
