#include "matrix/matrix_properties.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "matrix/cell_number.h"
#include "support/expect_matrix.h"
#include "support/matrix_table.h"

namespace kav::matrix_properties_test {
namespace {

CalcResult<PropertyValue> Find(std::string_view name, std::u16string_view table) {
  const MatrixProperty* property = FindProperty(name);
  EXPECT_NE(property, nullptr) << name;
  return PropertyOf(*property, test::MatrixOf(table));
}

/// The number, or the cells; or the message.
std::u16string Found(std::string_view name, std::u16string_view table) {
  const auto value = Find(name, table);
  if (!value) return Widen(value.error().message);
  return value->number ? CellText(*value->number) : test::TableOf(value->matrix);
}

TEST(MatrixProperties, StandInTheMenuInThisOrderEachUnderANameOfItsOwn) {
  std::vector<std::u16string_view> items;
  std::set<std::string_view> names;
  for (const MatrixProperty& property : MatrixProperties()) {
    items.push_back(property.item);
    names.insert(property.name);
    EXPECT_EQ(FindProperty(property.name), &property);
    EXPECT_FALSE(property.help.empty());
  }
  EXPECT_EQ(items,
            (std::vector<std::u16string_view>{u"Rank", u"Trace", u"Norm (Frobenius)", u"Norm (1)",
                                              u"Norm (2)", u"Norm (Infinity)", u"Eigenvalues",
                                              u"LU: L", u"LU: U", u"LU: P", u"QR: Q", u"QR: R"}));
  EXPECT_EQ(names.size(), items.size());
  EXPECT_EQ(FindProperty(""), nullptr);
  EXPECT_EQ(FindProperty("Rank"), nullptr);
}

TEST(MatrixProperties, AreNumbersOrMatrices) {
  constexpr std::u16string_view kMatrix = u"1 2; -4 4";
  EXPECT_EQ(Found("rank", kMatrix), u"2");
  EXPECT_EQ(Found("trace", kMatrix), u"5");
  EXPECT_EQ(Found("norm", u"3 4"), u"5");
  EXPECT_EQ(Found("norm1", kMatrix), u"6");
  EXPECT_EQ(Found("norm2", u"3; 4"), u"5");
  EXPECT_EQ(Found("norminf", kMatrix), u"8");
  EXPECT_EQ(Found("lu-l", kMatrix), u"1 0; -0.25 1");
  EXPECT_EQ(Found("lu-u", kMatrix), u"-4 4; 0 3");
  EXPECT_EQ(Found("lu-p", kMatrix), u"0 1; 1 0");
  EXPECT_EQ(Found("qr-q", u"2 0; 0 -4"), u"1 0; 0 -1");
  EXPECT_EQ(Found("qr-r", u"2 0; 0 -4"), u"2 0; 0 4");
}

TEST(Eigenvalues, HaveASecondColumnForImaginaryPartsIfThereAreAny) {
  EXPECT_EQ(Found("eigenvalues", u"2 0; 0 3"), u"3; 2");
  EXPECT_EQ(Found("eigenvalues", u"0 -2 0; 2 0 0; 0 0 5"), u"5 0; 0 2; 0 -2");
}

TEST(PropertyTitle, SaysWhatIsShownAndOfWhichMatrix) {
  const auto titleOf = [](std::string_view name, std::u16string_view table) {
    const MatrixProperty& property = *FindProperty(name);
    return PropertyTitle(property, *PropertyOf(property, test::MatrixOf(table)), 1);
  };
  EXPECT_EQ(titleOf("eigenvalues", u"2 0; 0 3"), u"Eigenvalues of [M2]");
  EXPECT_EQ(titleOf("eigenvalues", u"0 -2; 2 0"), u"Eigenvalues of [M2]: real, imaginary");
  EXPECT_EQ(titleOf("norminf", u"1"), u"Infinity norm of [M2]");
  EXPECT_EQ(titleOf("lu-u", u"1"), u"U of P*[M2] = L*U");
  EXPECT_EQ(titleOf("qr-q", u"1; 2"), u"Q of [M2] = Q*R");
}

TEST(MatrixProperties, ReadCellsAsOperationsDo) {
  EXPECT_EQ(Found("trace", u"1.5x 0; 0 abc"), u"1.5");
}

TEST(MatrixProperties, RefuseWhatIsNoSquareAndWhatIsOutOfRange) {
  for (const std::u16string_view table : {u"1 2 3; 4 5 6", u"1; 2"}) {
    EXPECT_EQ(Found("trace", table), u"[Matrix Trace] Matrix Size Mismatch");
    EXPECT_EQ(Found("eigenvalues", table), u"[Matrix Eigenvalues] Matrix Size Mismatch");
  }
  for (const MatrixProperty& property : MatrixProperties()) {
    EXPECT_EQ(Found(property.name, u"1e999"), Widen(test::kOutOfRange)) << property.name;
  }
  EXPECT_EQ(Found("trace", u"1e308 0; 0 1e308"), Widen(test::kOutOfRange));
  EXPECT_EQ(Found("norm1", u"1e308; 1e308"), Widen(test::kOutOfRange));
  EXPECT_EQ(Found("eigenvalues", u"1e308 1e308; 1e308 1e308"), Widen(test::kOutOfRange));
}

}  // namespace
}  // namespace kav::matrix_properties_test
