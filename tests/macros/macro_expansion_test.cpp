#include "macros/macro_expansion.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/stored_macros.h"

namespace kav::macro_expansion_test {
namespace {

constexpr CalcModes kDegrees{AngleUnit::Degrees, BaseMode::Decimal};
constexpr CalcModes kHexadecimal{AngleUnit::Degrees, BaseMode::Hexadecimal};

const std::vector<test::StoredMacro> kMacros{
    {"sq", "TYPE1 : F(X)", "x^2"},
    {"third", "TYPE1 : F(X)", "x/3"},
    {"neg", "TYPE1 : F(X)", "-x"},
    {"inverse", "TYPE1 : F(X)", "1/x"},
    {"sine", "TYPE1 : F(X)", "sin(x)"},
    {"big", "TYPE1 : F(X)", "x*1e300"},
    {"F 1", "TYPE1 : F(X)", "X+1"},
    {"minus", "TYPE2 : F(X,Y)", "x-y"},
    {"swap", "TYPE2 : F(X,Y)", "y/x"},
    {"volume", "TYPE3 : F(X,Y,Z)", "x*100+y*10+z"},
    {"badWord", "TYPE1 : F(X)", "x+foo"},
    {"badSign", "TYPE1 : F(X)", "x$2"},
    {"badNumber", "TYPE1 : F(X)", "x+1.2.3"},
    {"noY", "TYPE2 : F(X,Y)", "x^2"},
    {"extraY", "TYPE1 : F(X)", "x+y"},
    {"empty", "TYPE1 : F(X)", ""},
    {"blank", "TYPE1 : F(X)", "  "},
    {"badOrder", "TYPE1 : F(X)", "x+"},
    {"unmatched", "TYPE1 : F(X)", "(x"},
};

class MacroExpansion : public testing::Test {
 protected:
  MacroExpansion() { test::StoreMacros(store_, kMacros); }

  /// The expanded text, or the message.
  std::string Expand(std::string_view line, CalcModes modes = kDegrees) {
    const auto expanded = ExpandMacros(line, modes, MacroStore(store_));
    return expanded ? expanded->text : expanded.error().message;
  }

  MemorySettingsStore store_;
};

TEST_F(MacroExpansion, CallsBecomeTheirValuesInSixDecimals) {
  struct Row {
    std::string_view line;
    std::string_view text;
  };
  const Row rows[] = {
      {"M:sq(3)", "9.000000"},
      {"2*M:sq( 3 )", "2*9.000000"},
      {"M:sq(3)+M:sq(4)", "9.000000+16.000000"},
      {"M:sq(3)+M:sq(3)*M:third(6)", "9.000000+9.000000*2.000000"},
      {"M:third(1)*3", "0.333333*3"},
      {"M:third(2)*3", "0.666667*3"},
      {"M:neg(2)+1", "-2.000000+1"},
      {"1+M:third(0.0000001)", "1+0.000000"},
      {"M:sq((1+2)*3)", "81.000000"},
      {"M:sq(sqrt(9))", "9.000000"},
      {"M:sq(2E1)", "400.000000"},
      {"M:sq(Pi)", "9.869604"},
      {"M:minus(5,3)", "2.000000"},
      {"M:minus( 5 , 3 )", "2.000000"},
      {"M:minus((5+1)/2,-3)", "6.000000"},
      {"M:swap(4,2)", "0.500000"},
      {"M:volume(1,2,3)", "123.000000"},
      {"M:F 1(1)", "2.000000"},
      {"M:sine(30)*2", "0.500000*2"},
  };
  for (const Row& row : rows) EXPECT_EQ(Expand(row.line), row.text) << row.line;
}

TEST_F(MacroExpansion, TextWithoutACallStaysAsItIs) {
  for (const std::string_view line :
       {"", "1+1", "  2 ", "m:sq(3)", "M :sq(3)", "M", ":", "sq(3)"}) {
    EXPECT_EQ(Expand(line), line);
    EXPECT_FALSE(HoldsMacroCall(line)) << line;
  }
  EXPECT_TRUE(HoldsMacroCall("M:"));
  EXPECT_TRUE(HoldsMacroCall("1+M:sq(2)"));
}

TEST_F(MacroExpansion, OnlyOperatorsAndAnOpeningParenthesisMayStandBeforeACall) {
  for (const char before : std::string("^+-*/%(")) {
    const std::string line = std::string("1") + before + "M:sq(1)";
    EXPECT_EQ(Expand(line), std::string("1") + before + "1.000000");
  }
  for (const char before : std::string("2)x .,!<>M=:&")) {
    const std::string line = std::string("1+") + before + "M:sq(1)";
    EXPECT_EQ(Expand(line), "Expression error.") << line;
  }
  EXPECT_EQ(Expand("2M:sq(3)"), "Expression error.");
}

TEST_F(MacroExpansion, OnlyOperatorsAndAClosingParenthesisMayStandBehindACall) {
  for (const char behind : std::string("^+-*/%)")) {
    const std::string line = std::string("M:sq(1)") + behind + "1";
    EXPECT_EQ(Expand(line), std::string("1.000000") + behind + "1");
  }
  for (const char behind : std::string("2( .,!<>M=x")) {
    const std::string line = std::string("M:sq(1)") + behind + "1";
    EXPECT_EQ(Expand(line), "Expression error.") << line;
  }
  EXPECT_EQ(Expand("M:sq(3)2"), "Expression error.");
  EXPECT_EQ(Expand("M:sq(3)M:sq(3)"), "Expression error.");
}

TEST_F(MacroExpansion, EveryCallIsHeldToTheCharacterBeforeIt) {
  EXPECT_EQ(Expand("M:sq(1)+2M:sq(1)"), "Expression error.");
  EXPECT_EQ(Expand("M:sq(1)*M:sq(1)-7M:sq(1)"), "Expression error.");
}

TEST_F(MacroExpansion, UnknownNamesAreRefused) {
  for (const std::string_view line :
       {"M:nobody(1)", "M:(1)", "M:SQ(1)", "M: sq(1)", "M:sq (1)", "1+M:s(1)", "M:M:sq(1)"}) {
    EXPECT_EQ(Expand(line), "Macro Name error") << line;
  }
}

TEST_F(MacroExpansion, CallWithoutAParenthesisHasNoName) {
  for (const std::string_view line : {"M:", "M:sq", "M:sq)", "1+M:sq 3", "M:sq(1)+M:sq"}) {
    EXPECT_EQ(Expand(line), "Macro Name error") << line;
  }
}

TEST_F(MacroExpansion, CallThatNeverClosesHasNoArguments) {
  for (const std::string_view line : {"M:sq(", "M:sq(3", "M:sq((3)", "1+M:nobody(3"}) {
    EXPECT_EQ(Expand(line), "Macro argument error") << line;
  }
}

TEST_F(MacroExpansion, NumberOfCommasMustFitTheType) {
  for (const std::string_view line : {"M:sq(1,2)", "M:minus(1)", "M:minus(1,2,3)", "M:volume(1)",
                                      "M:volume(1,2)", "M:volume(1,2,3,4)", "M:minus( )"}) {
    EXPECT_EQ(Expand(line), "Macro argument error") << line;
  }
}

TEST_F(MacroExpansion, CommasInsideParenthesesCountToo) {
  EXPECT_EQ(Expand("M:minus((1,2),3)"), "Macro argument error");
  EXPECT_EQ(Expand("M:sq((1,2))"), "Macro argument error");
}

TEST_F(MacroExpansion, ArgumentsThatDoNotEvaluateAreRefused) {
  for (const std::string_view line :
       {"M:sq()", "M:sq(  )", "M:minus(,2)", "M:minus(1,)", "M:volume(1,,3)", "M:sq(1/0)",
        "M:sq(1+)", "M:sq(x)", "M:sq(foo(2))", "M:minus(1,sqrt(0))", "M:sq(1e400)"}) {
    EXPECT_EQ(Expand(line), "Macro argument error") << line;
  }
}

TEST_F(MacroExpansion, CallInsideAnArgumentIsAWrongArgument) {
  EXPECT_EQ(Expand("M:sq(M:sq(2))"), "Macro argument error");
}

TEST_F(MacroExpansion, FormulaThatCannotBeCutIntoTokensIsInvalid) {
  for (const std::string_view name :
       {"badWord", "badSign", "badNumber", "noY", "extraY", "empty", "blank"}) {
    const std::string arguments = name == "noY" ? "(1,2)" : "(1)";
    EXPECT_EQ(Expand("M:" + std::string(name) + arguments), "Macro formula is invalid") << name;
  }
}

TEST_F(MacroExpansion, FormulaThatFailsInCalculatingGivesTheMessageOfTheEngine) {
  struct Row {
    std::string_view line;
    std::string_view message;
  };
  const Row rows[] = {
      {"M:badOrder(1)", "Expression error."},
      {"M:unmatched(1)", "Not matched '(' and ')'."},
      {"M:inverse(0)", "Division exceeded calculation limit."},
      {"M:big(1e10)", "Out of range(overflow or underflow)"},
      {"1+M:inverse(0)", "Division exceeded calculation limit."},
  };
  for (const Row& row : rows) EXPECT_EQ(Expand(row.line), row.message) << row.line;
}

TEST_F(MacroExpansion, FirstFailingCallFromTheLeftGivesTheMessage) {
  EXPECT_EQ(Expand("M:inverse(0)+M:nobody(1)"), "Division exceeded calculation limit.");
  EXPECT_EQ(Expand("M:nobody(1)+M:inverse(0)"), "Macro Name error");
}

TEST_F(MacroExpansion, CheckOfOneCallGoesPlaceNameArgumentsFormula) {
  EXPECT_EQ(Expand("2M:nobody(1/0)"), "Expression error.");
  EXPECT_EQ(Expand("M:nobody(1/0)2"), "Expression error.");
  EXPECT_EQ(Expand("M:nobody(1/0)"), "Macro Name error");
  EXPECT_EQ(Expand("M:badWord(1/0)"), "Macro argument error");
}

TEST_F(MacroExpansion, LineThatIsOneCallKeepsAllDigits) {
  const auto whole = ExpandMacros("M:third(1)", kDegrees, MacroStore(store_));
  ASSERT_TRUE(whole);
  EXPECT_EQ(whole->wholeValue, 1.0 / 3.0);
  EXPECT_EQ(whole->text, "0.333333");
}

TEST_F(MacroExpansion, EmbeddedCallsHaveNoWholeValue) {
  for (const std::string_view line :
       {"(M:third(1))", "M:third(1)+0", "+M:third(1)", "M:third(1)+M:third(1)", "1"}) {
    const auto expanded = ExpandMacros(line, kDegrees, MacroStore(store_));
    ASSERT_TRUE(expanded) << line;
    EXPECT_EQ(expanded->wholeValue, std::nullopt) << line;
  }
}

TEST_F(MacroExpansion, ArgumentsAreReadInTheBaseAndFormulasInDecimal) {
  EXPECT_EQ(Expand("M:sq(F)", kHexadecimal), "225.000000");
  EXPECT_EQ(Expand("M:minus(10,FF AND F)", kHexadecimal), "1.000000");
  EXPECT_EQ(Expand("M:sq(11)", {AngleUnit::Degrees, BaseMode::Binary}), "9.000000");
  EXPECT_EQ(Expand("M:sq(10)", {AngleUnit::Degrees, BaseMode::Octal}), "64.000000");
  EXPECT_EQ(Expand("M:sq(2)", {AngleUnit::Degrees, BaseMode::Binary}), "Macro argument error");
  EXPECT_EQ(Expand("M:third(9)", kHexadecimal), "3.000000");
}

TEST_F(MacroExpansion, AngleUnitHoldsInArgumentsAndFormulas) {
  const CalcModes radians{AngleUnit::Radians, BaseMode::Decimal};
  EXPECT_EQ(Expand("M:sine(90)"), "1.000000");
  EXPECT_EQ(Expand("M:sine(90)", radians), "0.893997");
  EXPECT_EQ(Expand("M:sq(sin(90))"), "1.000000");
  EXPECT_EQ(Expand("M:sq(sin(90))", radians), "0.799230");
}

TEST_F(MacroExpansion, LargestValuesAreWrittenInFull) {
  // 1e300 has 301 digits, then the point and six decimals.
  EXPECT_EQ(Expand("1+M:big(1)").size(), 2 + 301 + 1 + 6U);
}

/// Settings that count how often they are read.
class CountingStore final : public SettingsStore {
 public:
  mutable int reads = 0;

 private:
  std::optional<StoredSetting> Read(std::string_view section,
                                    std::string_view name) const override {
    ++reads;
    if (section == "MacroInfo" && name == "TotalNumber") return StoredSetting(1);
    if (section != "Macro0") return std::nullopt;
    if (name == "Name") return StoredSetting("sq");
    if (name == "Type") return StoredSetting("TYPE1 : F(X)");
    return StoredSetting("x^2");
  }
  void Write(std::string_view, std::string_view, StoredSetting) override {}
};

TEST(MacroExpansionCost, MacroIsReadOncePerLine) {
  CountingStore store;
  std::string line = "M:sq(2)";
  ASSERT_TRUE(ExpandMacros(line, kDegrees, MacroStore(store)));
  const int readsForOne = std::exchange(store.reads, 0);
  EXPECT_GT(readsForOne, 0);
  for (int i = 0; i < 100; ++i) line += "+M:sq(2)";
  ASSERT_TRUE(ExpandMacros(line, kDegrees, MacroStore(store)));
  EXPECT_EQ(store.reads, readsForOne);
}

TEST(MacroExpansionCost, MegabyteOfCallsIsExpandedInOnePass) {
  // A pass that began anew behind each call would move 100 GB and run into the time limit.
  constexpr std::size_t kCalls = 131072;
  CountingStore store;
  std::string line;
  std::string expected;
  for (std::size_t i = 0; i < kCalls; ++i) {
    line += "M:sq(2)+";
    expected += "4.000000+";
  }
  const auto expanded = ExpandMacros(line, kDegrees, MacroStore(store));
  ASSERT_TRUE(expanded);
  EXPECT_TRUE(expanded->text == expected);
}

TEST(MacroExpansionCost, MegabyteOfMarksOrParenthesesIsRefusedAtOnce) {
  CountingStore store;
  std::string marks;
  for (int i = 0; i < 524288; ++i) marks += "M:";
  const auto refused = ExpandMacros(marks, kDegrees, MacroStore(store));
  ASSERT_FALSE(refused);
  EXPECT_EQ(refused.error().message, "Macro Name error");

  const auto open = ExpandMacros("M:sq" + std::string(1048576, '('), kDegrees, MacroStore(store));
  ASSERT_FALSE(open);
  EXPECT_EQ(open.error().message, "Macro argument error");
}

TEST_F(MacroExpansion, RandomLinesAreExpandedOrRefusedAndAlwaysTheSameWay) {
  constexpr std::string_view kPieces[] = {
      "M:", "sq", "minus", "volume", "(",    ")",     ",",      "1",        "2.5", "+", "-", "*",
      "/",  " ",  "F",     "sin(",   "\xC3", "M:sq(", "nobody", "badOrder", "^",   "%", ":"};
  std::mt19937 random(20020101);
  for (int round = 0; round < 20000; ++round) {
    std::string line;
    for (auto length = random() % 12; length > 0; --length) {
      line += kPieces[random() % std::size(kPieces)];
    }
    const CalcModes modes{AngleUnit::Degrees, static_cast<BaseMode>(1 + random() % 4)};
    const std::string first = Expand(line, modes);
    EXPECT_EQ(Expand(line, modes), first) << line;
    EXPECT_EQ(first.find("M:"), std::string::npos) << line;
  }
}

}  // namespace
}  // namespace kav::macro_expansion_test
