#include "macros/line_fault.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "macros/macro_expansion.h"
#include "support/shown.h"
#include "support/stored_macros.h"

namespace kav::test::line_fault_test {
namespace {

struct Row {
  const char16_t* line;
  const char16_t* mended;  ///< empty for none
};

class LineFaults : public testing::Test {
 protected:
  LineFaults() {
    StoreMacros(store_, {{"area", "TYPE2 : F(X,Y)", "x*y"}, {"sq", "TYPE1 : F(X)", "x^2"}});
  }

  LineFault Of(std::u16string_view line, CalcModes modes = kDegrees) {
    modes.answer = 5;
    const auto value = EvaluateLine(Narrow(line), modes, MacroStore(store_));
    EXPECT_FALSE(value) << Narrow(line);
    return value ? LineFault() : FaultOf(line, value.error(), modes, MacroStore(store_));
  }
  template <std::size_t kCount>
  void Expect(const Row (&rows)[kCount], CalcModes modes = kDegrees) {
    for (const Row& row : rows) {
      EXPECT_EQ(Narrow(Of(row.line, modes).mended.value_or(u"")), Narrow(row.mended))
          << Narrow(row.line);
    }
  }

  MemorySettingsStore store_;
};

TEST_F(LineFaults, MissingParenthesesAreClosedAtTheEnd) {
  const Row rows[] = {
      {u"(1+2", u"(1+2)"},
      {u"2*(3+sin(30", u"2*(3+sin(30))"},
      {u"sqrt(2  ", u"sqrt(2)  "},
      {u"M:sq(3", u"M:sq(3)"},
      {u"1+2)", u""},
      {u"(", u""},
      {u"M:area(2,", u""},
  };
  Expect(rows);
}

TEST_F(LineFaults, MissingProductsAreOneMendOfAKind) {
  const Row rows[] = {
      {u"2(3)", u"2*(3)"},
      {u"(1+2)(3)", u"(1+2)*(3)"},
      {u"2pi", u"2*pi"},
      {u"(2)3", u"(2)*3"},
      {u"2sin(30)", u"2*sin(30)"},
      {u"2pi(3)", u"2*pi*(3)"},
      {u"2exp(1)", u"2*exp(1)"},
      {u"3!(2)", u"3!*(2)"},
      {u"2ans", u"2*ans"},
      {u"2M:sq(3)", u"2*M:sq(3)"},
      {u"M:sq(3)2", u"M:sq(3)*2"},
      {u"2Pi+3(4)", u"2*Pi+3*(4)"},
      {u"1e3(2)", u"1e3*(2)"},
      {u"pi2(3)", u"pi*2*(3)"},
      {u"2 3", u""},
      {u"2(3", u""},
      {u"sin30(2)", u""},
  };
  Expect(rows);
}

TEST_F(LineFaults, AnOperatorAtTheEndIsDropped) {
  const Row rows[] = {
      {u"2+3+", u"2+3"}, {u"2*3 * ", u"2*3 "},
      {u"4^", u"4"},     {u"5c", u"5"},
      {u"2<<", u"2"},    {u"2+-", u""},
      {u"200!", u""},    {u"+", u""},
      {u"2.5!", u""},    {u"M:sq(3)/", u"M:sq(3)"},
  };
  Expect(rows);
}

TEST_F(LineFaults, AWordBecomesItsOneNeighbour) {
  const Row rows[] = {
      {u"sine(30)", u"sin(30)"},
      {u"SINE(30)+cosine(60)", u"sin(30)+cos(60)"},
      {u"arctan(1)", u"atan(1)"},
      {u"squareroot(2)", u"sqrt(2)"},
      {u"sqt(4)", u"sqrt(4)"},
      {u"sqrtt(4)", u"sqrt(4)"},
      {u"csoh(1)", u"cosh(1)"},
      {u"aps(1)", u"abs(1)"},
      {u"log10(100)", u"log(100)"},
      {u"1+answer", u"1+ans"},
      {u"M:aera(2,3)", u"M:area(2,3)"},
      {u"M:Area(2,3)", u"M:area(2,3)"},
      {u"area(2,3)", u"M:area(2,3)"},
      // Both sin and sinh would do.
      {u"sinn(30)", u""},
      {u"log2(8)", u""},
      {u"nothing(2)", u""},
      {u"2x3", u""},
      {u"M:volume(2)", u""},
      {u"sine(30", u""},
  };
  Expect(rows);
}

TEST_F(LineFaults, BasesHaveTheirOwnWords) {
  const Row hexadecimal[] = {
      {u"FF AND", u"FF"},  {u"2(A)", u"2*(A)"},      {u"nto F", u"not F"},
      {u"(ans", u"(ans)"}, {u"F xro A", u"F xor A"}, {u"sine(30)", u""},
  };
  Expect(hexadecimal, kHexadecimal);
  const Row binary[] = {{u"1 adn 11", u"1 and 11"}, {u"(1 or 10", u"(1 or 10)"}, {u"12", u""}};
  Expect(binary, {AngleUnit::Degrees, BaseMode::Binary});
}

TEST_F(LineFaults, WhatCannotBeCalculatedHasNoMend) {
  const Row rows[] = {{u"1/0", u""}, {u"sqrt(0)", u""}, {u"1e400", u""}, {u"tan(90)", u""}};
  Expect(rows);
}

TEST_F(LineFaults, ALongLineIsNotMended) {
  const std::u16string line = u"(1" + std::u16string(2000, u' ') + u"+1";
  EXPECT_EQ(Of(line).mended, std::nullopt);
}

TEST_F(LineFaults, TheMendTellsThePlaceThatNothingElseTells) {
  EXPECT_EQ(MakeFault(u"1+sine(30)", {}, u"1+sin(30)").place, (TextPlace{2, 4}));
  EXPECT_EQ(MakeFault(u"2(3)", {}, u"2*(3)").place, (TextPlace{0, 0}));
  EXPECT_EQ(MakeFault(u"(1+2", {}, u"(1+2)").place, (TextPlace{3, 0}));
  EXPECT_EQ(MakeFault(u"2+", {}, u"2").place, (TextPlace{1, 1}));
  EXPECT_EQ(MakeFault(u"2+", {}, {}).place, std::nullopt);
  // Bytes of UTF-8 become units of UTF-16.
  EXPECT_EQ(MakeFault(u"\u00e9\u00e9+", TextPlace{4, 1}, {}).place, (TextPlace{2, 1}));
}

TEST_F(LineFaults, ACallIsMarkedAsItWasTyped) {
  EXPECT_EQ(Of(u" 1+M:none(2)").place, (TextPlace{5, 4}));
  EXPECT_EQ(Of(u"1+M:sq(2,3)").place, (TextPlace{7, 3}));
  EXPECT_EQ(Of(u"1+M:sq()").place, (TextPlace{6, 0}));
  EXPECT_EQ(Of(u"2M:sq(3)").place, (TextPlace{1, 2}));
  EXPECT_EQ(Of(u"M:sq(3)2").place, (TextPlace{7, 1}));
}

TEST_F(LineFaults, PlacesBehindValuesAreThoseOfTheLine) {
  const auto expanded = ExpandMacros("M:sq(3)+M:sq(4)*2", kDegrees, MacroStore(store_));
  ASSERT_TRUE(expanded);
  ASSERT_EQ(expanded->text, "9.000000+16.000000*2");
  EXPECT_EQ(expanded->PlaceInLine({0, 1}), (TextPlace{0, 7}));
  EXPECT_EQ(expanded->PlaceInLine({8, 1}), (TextPlace{7, 1}));
  EXPECT_EQ(expanded->PlaceInLine({12, 1}), (TextPlace{8, 7}));
  EXPECT_EQ(expanded->PlaceInLine({18, 2}), (TextPlace{15, 2}));
}

}  // namespace
}  // namespace kav::test::line_fault_test
