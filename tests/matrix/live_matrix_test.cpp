#include "matrix/live_matrix.h"

#include <gtest/gtest.h>

#include <string>

#include "support/matrix_screen.h"

namespace kav::live_matrix_test {
namespace {

class LiveMatrix : public test::MatrixScreen {
 protected:
  LiveMatrix() {
    Fill(0, u"1 2; 3 4");
    Fill(1, u"1 2 3; 4 5 6");
  }
  std::u16string Of(std::u16string_view line) { return model_->LiveResult(line).value_or(u"none"); }
};

TEST_F(LiveMatrix, AMatrixIsSaidByItsOrder) {
  struct Row {
    const char16_t* line;
    const char16_t* order;
  };
  const Row rows[] = {
      {u"[M1]*[M2]", u"2x3"},
      {u" transpose([m2]) ", u"3x2"},
      {u"[M2]*2", u"2x3"},
      {u"[M1]^9", u"2x2"},
      {u"[M1]^ 2*[M2]", u"2x3"},
      {u"determinant([M1])", u"1x1"},
      {u"([M1]+[M1])*([M1]-2)*-[M2]", u"2x3"},
  };
  for (const Row& row : rows) EXPECT_EQ(Of(row.line), row.order);
}

TEST_F(LiveMatrix, WhatHasNoAnswerHasNone) {
  for (const char16_t* line : {u"[", u"[M1]*", u"[M2]*[M2]", u"[M3]", u"[M1]+[M Ans]", u"inverse(",
                               u"inverse([M1]-[M1])", u"determinant([M2])", u"[M1]^0.5"}) {
    EXPECT_EQ(Of(line), u"none") << testing::PrintToString(line);
  }
}

TEST_F(LiveMatrix, WhatIsMuchWorkWaitsForEquals) {
  for (const char16_t* line : {u"[M1]^10", u"[M1]^1E2", u"[M1]^(2)", u"[M1]*1*1*1*1*1*1*1*1*1"}) {
    EXPECT_EQ(Of(line), u"none") << testing::PrintToString(line);
  }
  EXPECT_EQ(Of(u"[M1]*" + std::u16string(1990, u' ') + u"2"), u"2x2");
  EXPECT_EQ(Of(u"[M1]*" + std::u16string(2000, u' ') + u"2"), u"none");
}

TEST_F(LiveMatrix, ANumberIsSaidAsItIsShown) {
  EXPECT_EQ(Of(u"1000*1000"), u"1,000,000");
  EXPECT_EQ(Of(u"1000"), u"none");
  // There "=" does not answer it either.
  model_->Show(3);
  EXPECT_EQ(Of(u"1000*1000"), u"none");
}

TEST_F(LiveMatrix, IsSaidUntilTheLineIsAnswered) {
  EXPECT_EQ(Of(u"2+3"), u"5");
  Evaluate(u"2+3");
  EXPECT_EQ(Of(u"2+3"), u"none");
  EXPECT_EQ(Of(u"2+34"), u"36");
  Evaluate(u"[M1]*2");
  EXPECT_EQ(Of(u"[M1]*2"), u"none");
  // With other cells it has another answer.
  Fill(0, u"1");
  EXPECT_EQ(Of(u"[M1]*2"), u"1x1");
}

TEST_F(LiveMatrix, IsNotSaidToWhoSwitchedItOff) {
  Set("Config", "Live Result", 0);
  EXPECT_EQ(Of(u"2+3"), u"none");
  EXPECT_EQ(Of(u"[M1]*2"), u"none");
}

}  // namespace
}  // namespace kav::live_matrix_test
