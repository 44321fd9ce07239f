#include "matrix/matrix_line.h"

#include <gtest/gtest.h>

#include "support/matrix_table.h"

namespace kav::matrix_line_test {
namespace {

using test::MatrixOf;

TEST(IsMatrixExpression, ABracketOrAFunctionOutsideOfMacrosNamesMakesOne) {
  const char16_t* const rows[] = {
      u"[M1]",
      u"[M Ans]",
      u"[m2]+1",
      u"[M4]",
      u"[",
      u"1+[",
      u"inverse",
      u"INVERSE(2)",
      u"determinant(2)",
      u"2*Transpose(1)",
      u"2linearequation",
      u"triangular",
      u" inverse ",
      u"inverse sin",
      u"M:f(1)+[M1]",
      u"[M1]+M:f(1)",
      u"M:f([M1])",
      u"M:f(inverse(1))",
      u"m:[x](1)",
      u"M:f(1)+M:g(1)*[M2]",
      u"inverse+M:f(1)",
  };
  for (const auto* line : rows) EXPECT_TRUE(IsMatrixExpression(line)) << Narrow(line);
}

TEST(IsMatrixExpression, AnyOtherLineIsANumberExpression) {
  const char16_t* const rows[] = {
      u"",
      u"1+1",
      u"M1",
      u"M Ans",
      u"sin(30)",
      u"]",
      u"M:[M1](2)",
      u"M:inverse(2)",
      u"M:my inverse(2)",
      u"M:[",
      u"M:inverse",
      u"inverses(2)",
      u"sininverse(2)",
      u"M:f(1)+M:[g](2)",
      u"inver se",
      u"\u0130nverse(2)",
  };
  for (const auto* line : rows) EXPECT_FALSE(IsMatrixExpression(line)) << Narrow(line);
}

TEST(FirstInvalidMatrix, IsTheFirstOfThoseNamedInTheirOwnOrder) {
  const Matrices allEmpty{MatrixOf("1 _; 3 4"), MatrixOf("_; _"), MatrixOf("1; _"),
                          MatrixOf("_ _")};
  const struct {
    const char16_t* line;
    std::optional<int> index;
  } rows[] = {
      {u"[M1]", 0},
      {u"[M2]", 1},
      {u"[M3]", 2},
      {u"[M Ans]", 3},
      {u"[m1]+1", 0},
      {u"[M ANS]*2", 3},
      {u"[m ans]+[M3]+[M2]", 1},
      {u"1+1", std::nullopt},
      {u"[M4]", std::nullopt},
      {u"[MAns]", std::nullopt},
      {u"[M  Ans]", std::nullopt},
      {u"[M1", std::nullopt},
      {u"", std::nullopt},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(FirstInvalidMatrix(row.line, allEmpty), row.index) << Narrow(row.line);
  }
}

TEST(FirstInvalidMatrix, OnlyCellsWithinTheSizeOfNamedMatricesCount) {
  Matrices matrices{MatrixOf("1 2; 3 4"), MatrixOf("1 _; _ _"), MatrixOf("x"), MatrixValue{}};
  EXPECT_EQ(FirstInvalidMatrix(u"[M1]+[M3]*[M Ans]", matrices), std::nullopt);
  EXPECT_EQ(FirstInvalidMatrix(u"[M1]+[M2]", matrices), 1);
  matrices[1].rows = matrices[1].columns = 1;
  EXPECT_EQ(FirstInvalidMatrix(u"[M1]+[M2]", matrices), std::nullopt);
  matrices[0].rows = 3;
  EXPECT_EQ(FirstInvalidMatrix(u"[M1]+[M2]", matrices), 0);
}

TEST(MatrixIsInvalid, NamesTheMatrix) {
  EXPECT_EQ(MatrixIsInvalid(0), u"Matrix [M1] is invalid");
  EXPECT_EQ(MatrixIsInvalid(1), u"Matrix [M2] is invalid");
  EXPECT_EQ(MatrixIsInvalid(2), u"Matrix [M3] is invalid");
  EXPECT_EQ(MatrixIsInvalid(3), u"Matrix [M Ans] is invalid");
}

}  // namespace
}  // namespace kav::matrix_line_test
