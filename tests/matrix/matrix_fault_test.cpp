#include "matrix/matrix_fault.h"

#include <gtest/gtest.h>

#include <string>

#include "common/number_text.h"
#include "settings/settings_store.h"
#include "support/shown.h"

namespace kav::test::matrix_fault_test {
namespace {

class MatrixFaultTest : public testing::Test {
 protected:
  MatrixFaultTest() {
    for (MatrixValue& matrix : matrices_) matrix = MatrixOfSize(1, 1);
    matrices_[0].At(0, 0) = u"2";
  }
  LineFault Of(std::u16string_view line, std::optional<TextPlace> place = std::nullopt) {
    return MatrixFaultOf(line, place, {matrices_, kDegrees, MacroStore(store_), true});
  }

  Matrices matrices_;
  MemorySettingsStore store_;
};

TEST_F(MatrixFaultTest, AMatrixLineIsMendedAsALineOfNumbersIs) {
  EXPECT_EQ(Of(u"determinant([M1]").mended, u"determinant([M1])");
  EXPECT_EQ(Of(u"2[M1]").mended, u"2*[M1]");
  EXPECT_EQ(Of(u"2*sine(30)").mended, u"2*sin(30)");
  // More than is calculated after each key.
  EXPECT_EQ(Of(u"2[M1]^12").mended, u"2*[M1]^12");
  EXPECT_EQ(Of(u"2[M1]*1*1*1*1*1*1*1*1*1").mended, u"2*[M1]*1*1*1*1*1*1*1*1*1");
}

TEST_F(MatrixFaultTest, WhatHasNoValueThenIsNoMend) {
  EXPECT_EQ(Of(u"2[M2]").mended, std::nullopt);  // its cell is empty
  EXPECT_EQ(Of(u"hello").mended, std::nullopt);
}

TEST_F(MatrixFaultTest, ThePlaceCountsTheBlanksBeforeTheLine) {
  const LineFault fault = Of(u"  [M1]*$", TextPlace{5, 1});
  ASSERT_TRUE(fault.place);
  EXPECT_EQ(fault.place->position, 7U);
}

}  // namespace
}  // namespace kav::test::matrix_fault_test
