#include "matrix/unknown_order.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "matrix/temporary_matrices.h"
#include "support/matrix_table.h"

namespace kav::unknown_order_test {
namespace {

/// With [M1] exchanging three rows in turn, and [M2] and [M3] two columns.
std::u16string OrderIn(std::string_view line) {
  Matrices matrices;
  matrices[0] = test::MatrixOf(u"0 1 0; 0 0 1; 1 0 0");
  matrices[1] = test::MatrixOf(u"1; 2; 3");
  matrices[2] = test::MatrixOf(u"1 0 0; 0 1 0; 0 0 1");
  TemporaryMatrices files;
  return OrderOfUnknowns(line, matrices, files, 2.0).value_or(u"");
}

TEST(OrderOfUnknowns, CountsTheUnknownsThatStandInTheRows) {
  EXPECT_EQ(OrderIn("linearequation([M1],[M2])"), u"2, 3, 1");
  EXPECT_EQ(OrderIn(" ( LinearEquation( ( [M1] * [M3] ) , ([M2]+1) ) ) "), u"2, 3, 1");
  EXPECT_EQ(OrderIn("linearequation([M1]*ans,[M2])"), u"2, 3, 1");
  EXPECT_EQ(OrderIn("linearequation(transpose([M1]),[M2])"), u"3, 1, 2");
}

TEST(OrderOfUnknowns, IsOfNothingElse) {
  for (const char* line : {
           "",
           "(",
           "linearequation",
           "linearequation(",
           "linearequation()",
           "[M1]",
           "linearequation([M3],[M2])",    // in their own order
           "linearequation([M1]*0,[M2])",  // no solution
           "linearequation([M2],[M2])",    // no square
           "linearequation([M1],[M2])*1",  // no unknowns any more
           "linearequation([M1],[M2])+linearequation([M1],[M2])",
           "(linearequation([M1],[M2]))+([M2])",
           "-linearequation([M1],[M2])",
           "inverse([M1])",
           "linearequation([M4],[M2])",
           "linearequation(2,[M2])",
       }) {
    EXPECT_EQ(OrderIn(line), u"") << line;
  }
}

}  // namespace
}  // namespace kav::unknown_order_test
