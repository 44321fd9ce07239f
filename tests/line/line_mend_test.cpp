#include "line/line_mend.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "common/number_text.h"
#include "support/shown.h"

namespace kav::test::line_mend_test {
namespace {

/// The mend of `line` where only the lines of `valid` have a value.
std::string Mend(std::u16string_view line, const std::set<std::u16string, std::less<>>& valid) {
  const auto mended =
      MendOf(line, WordsOf(kDegrees), BaseMode::Decimal,
             [&](std::u16string_view tried) { return valid.find(tried) != valid.end(); });
  return mended ? Narrow(*mended) : "none";
}

TEST(LineMend, OnlyALineThatHasAValueIsOffered) {
  EXPECT_EQ(Mend(u"(1+2", {u"(1+2)"}), "(1+2)");
  EXPECT_EQ(Mend(u"(1+2", {}), "none");
  EXPECT_EQ(Mend(u"2(3)", {u"2*(3)"}), "2*(3)");
  EXPECT_EQ(Mend(u"1+2+", {u"1+2"}), "1+2");
}

TEST(LineMend, TwoDifferentMendsAreNone) {
  EXPECT_EQ(Mend(u"sinn(1)", {u"sin(1)", u"sinh(1)"}), "none");
  EXPECT_EQ(Mend(u"sinn(1)", {u"sinh(1)"}), "sinh(1)");
}

TEST(LineMend, AFaultTellsThePlaceInTheLineAsTyped) {
  // The place counts bytes of UTF-8: π has two.
  const LineFault fault = MakeFault(u"π+sine(1)", TextPlace{3, 4}, std::nullopt);
  ASSERT_TRUE(fault.place);
  EXPECT_EQ(fault.place->position, 2U);
  EXPECT_EQ(fault.place->length, 4U);
  EXPECT_EQ(fault.mended, std::nullopt);
}

TEST(LineMend, AMendTellsThePlaceThatNothingElseTells) {
  const LineFault fault = MakeFault(u"2(3)", std::nullopt, u"2*(3)");
  ASSERT_TRUE(fault.place);
  // Behind the 2.
  EXPECT_EQ(*fault.place, (TextPlace{0, 0}));
}

TEST(LineMend, ACharacterOfTwoUnitsCountsAsTwo) {
  // U+1D70B: four bytes, two units.
  const TextPlace place = WidenedPlace("\U0001D70B+1", TextPlace{4, 1});
  EXPECT_EQ(place.position, 2U);
  EXPECT_EQ(place.length, 1U);
}

}  // namespace
}  // namespace kav::test::line_mend_test
