#include "engine/fold_case.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>
#include <vector>

namespace kav::fold_case_test {
namespace {

TEST(FoldCase, TakesTheLettersOfAsciiDown) {
  EXPECT_EQ(FoldCase("2*SIN(PI)+Ans\xC3\x84", BaseMode::Decimal), "2*sin(pi)+ans\xC3\x84");
  EXPECT_EQ(FoldCase("1 AND 1 Or 0", BaseMode::Binary), "1 and 1 or 0");
  EXPECT_EQ(FoldCase("@[`{", BaseMode::Octal), "@[`{");
  EXPECT_EQ(FoldCase("", BaseMode::Hexadecimal), "");
}

// The a and d of a small "and" are digits there.
TEST(FoldCase, HandsOverAndInCapitalsInHexadecimal) {
  const std::vector<std::pair<std::string_view, std::string_view>> rows{
      {"FF AND F", "ff AND f"},
      {"ff and f", "ff AND f"},
      {"f And(f)", "f AND(f)"},
      {"and", "AND"},
      {"andand", "ANDAND"},
      {"1AND1AND1", "1AND1AND1"},
      {"XOR XNOR NOT", "xor xnor not"},
      {"an d", "an d"},
      {"DAND", "dAND"},
  };
  for (const auto& [text, folded] : rows) {
    EXPECT_EQ(FoldCase(text, BaseMode::Hexadecimal), folded);
  }
  EXPECT_EQ(FoldCase("FF AND F", BaseMode::Decimal), "ff and f");
}

TEST(IsFolded, IsTrueOfSmallTextsThatFoldCaseLeavesAsTheyAre) {
  for (const BaseMode base : {BaseMode::Decimal, BaseMode::Hexadecimal}) {
    for (const std::string_view text : {"", "sin", "ff or f", "an d", "\xC3\x84"}) {
      EXPECT_TRUE(IsFolded(text, base)) << text;
      EXPECT_EQ(FoldCase(text, base), text);
    }
    for (const std::string_view text : {"Sin", "siN", "ff AND f"}) {
      EXPECT_FALSE(IsFolded(text, base)) << text;
    }
  }
  EXPECT_TRUE(IsFolded("ff and f", BaseMode::Decimal));
  EXPECT_FALSE(IsFolded("ff and f", BaseMode::Hexadecimal));
}

}  // namespace
}  // namespace kav::fold_case_test
