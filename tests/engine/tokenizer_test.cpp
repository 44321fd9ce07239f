#include "engine/tokenizer.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/function_names.h"
#include "support/spelled_tokens.h"

namespace kav::tokenizer_test {
namespace {

using std::string_view_literals::operator""sv;
using test::Spelled;

/// The tokens of `text`, or the message.
std::string Cut(std::string_view text) {
  const auto tokens = Tokenize(text);
  return tokens ? Spelled(*tokens) : tokens.error().message;
}

std::string CutFormula(std::string_view text, VariableType type) {
  const auto tokens = TokenizeFormula(text, type);
  return tokens ? Spelled(*tokens) : tokens.error().message;
}

using Rows = std::vector<std::pair<std::string, std::string>>;

void ExpectCuts(const Rows& rows) {
  for (const auto& [text, cut] : rows) EXPECT_EQ(Cut(text), cut) << text;
}

TEST(Tokenizer, CutsALineIntoTokens) {
  ExpectCuts({
      {"2*sin(30)+3!", "2 * F41 ( 30 ) + 3 !"},
      {"^+-*/!%", "^ + - * / ! %"},
      {"()", "( )"},
      {"1<<2>>3", "1 < 2 > 3"},
      {"5c2p1", "5 c 2 p 1"},
      {"pi", "3.1415926535897931"},
      {"2pi", "2 3.1415926535897931"},
      {"sin30", "F41 30"},
      {"log10", "F47 10"},
      {"4*/2", "4 * / 2"},
  });
}

TEST(Tokenizer, BlanksSeparateAndAreNoTokens) {
  ExpectCuts({
      {"   ", ""},
      {" 1 + 2 ", "1 + 2"},
      {"1 2", "1 2"},
      {"1 .5", "1 0.5"},
      {"5 c 2", "5 c 2"},
      {"sin   30  ", "F41 30"},
      {"< <", "< is not supported."},
      {"p i", "i is not supported."},
      {"1\t2", "\t is not supported."},
      {"1\n", "\n is not supported."},
  });
}

TEST(Tokenizer, NumbersRunOverDigitsPointsAndExponents) {
  ExpectCuts({
      {"0", "0"},
      {"007", "7"},
      {"3.25", "3.25"},
      {".5", "0.5"},
      {"5.", "5"},
      {".", "0"},
      {"1e3", "1000"},
      {"1e-3", "0.001"},
      {"1e+3", "1000"},
      {"1.e2", "100"},
      {"1e", "1"},
      {"1e+", "1"},
      {"1e-", "1"},
      {".e5", "0"},
      {"1e++2", "1 + 2"},
      {"1e-+2", "1 + 2"},
      {"1+2", "1 + 2"},
      {"1e3+2", "1000 + 2"},
      {"2e3-", "2000 -"},
      {"0x10", "x is not supported."},
      {"1E5", "E is not supported."},
      {"1,5", ", is not supported."},
      {"e5", "e is not supported."},
  });
}

// The e of exp belongs to the number before it.
TEST(Tokenizer, ANumberRightBeforeExpTakesItsE) {
  ExpectCuts({{"2exp(0)", "xp is not supported."}, {"2 exp(0)", "2 F49 ( 0 )"}});
}

TEST(Tokenizer, SecondPointsAndExponentsAreErrors) {
  ExpectCuts({
      {"1.2.3", "Expression error."},
      {"..", "Expression error."},
      {"1e5e", "Expression error."},
      {"1ee5", "Expression error."},
      {"1e5.2", "Expression error."},
      {"1e.", "Expression error."},
      {"1e-5.", "Expression error."},
      {"1.5e5.5", "Expression error."},
  });
}

TEST(Tokenizer, NumbersOfUpTo30CharactersPass) {
  const std::string digits30 = "123456789012345678901234567890";
  ExpectCuts({
      {digits30, "1.2345678901234568e+29"},
      {digits30 + "1", "number exceeded length limit."},
      {"0." + std::string(28, '3'), "0.33333333333333331"},
      {"0." + std::string(29, '3'), "number exceeded length limit."},
      {std::string(26, '0') + "1e+2", "100"},
      {std::string(27, '0') + "1e+2", "number exceeded length limit."},
      {digits30 + " " + digits30, "1.2345678901234568e+29 1.2345678901234568e+29"},
      // Which is found first: two points, then the length, then a point behind the e.
      {std::string(40, '1') + "..", "Expression error."},
      {"1e5." + std::string(27, '1'), "number exceeded length limit."},
  });
}

TEST(Tokenizer, NumbersBeyondTheRangeReadAsTheNearestThereIs) {
  ExpectCuts({
      {"1e400", "inf"},
      {"1e99999999999999999999", "inf"},
      {"123e9223372036854775807", "inf"},
      {"1e-400", "0"},
      {"1e-99999999999999999999", "0"},
      {"4e-324", "4.9406564584124654e-324"},
      {"2e-324", "0"},
  });
}

TEST(Tokenizer, KnowsEveryFunctionByItsName) {
  const std::vector<std::pair<std::string, int>> functions{
      {"sin", 41},  {"cos", 42},  {"tan", 43},  {"asin", 44}, {"acos", 45}, {"atan", 46},
      {"sinh", 50}, {"cosh", 51}, {"tanh", 52}, {"log", 47},  {"ln", 48},   {"exp", 49},
      {"sqrt", 53}, {"abs", 54},  {"int", 55},  {"frac", 56},
  };
  ASSERT_EQ(kFunctionNames.size(), functions.size());
  for (std::size_t i = 0; i < functions.size(); ++i) {
    const auto& [name, code] = functions[i];
    EXPECT_EQ(kFunctionNames[i].name, name);
    EXPECT_EQ(static_cast<int>(kFunctionNames[i].code), code);
    EXPECT_EQ(Cut(name + "1"), "F" + std::to_string(code) + " 1");
    EXPECT_EQ(Cut(name), "(" + name + ") needs an argument.");
    EXPECT_EQ(Cut(name + "x(1)"), name + "x is not supported.");
  }
}

TEST(Tokenizer, AFunctionThatEndsTheTextNeedsAnArgument) {
  ExpectCuts({
      {"1+cosh", "(cosh) needs an argument."},
      {"sin   ", "(sin) needs an argument."},
      {"sin cos", "(cos) needs an argument."},
      {"(sin)", "( F41 )"},
      {"$sin", "$ is not supported."},
  });
}

TEST(Tokenizer, UnknownWordsAreNamed) {
  ExpectCuts({
      {"foo(2)", "foo is not supported."},
      {"foo", "foo is not supported."},
      {"SIN(30)", "SIN is not supported."},
      {"Sin(30)", "Sin is not supported."},
      {"PI", "PI is not supported."},
      {"5C2", "C is not supported."},
      {"sinsin30", "sinsin is not supported."},
      {"5cpi", "cpi is not supported."},
      {"x", "x is not supported."},
      {"y+1", "y is not supported."},
      {"1 and 2", "and is not supported."},
      {"abcdefghijklmnopq", "abcdefghijklmnopq is not supported."},
      {"abcdefghijklmnopqr", "abcdefghijklmno... is not supported."},
      {"abcdefghijklmnopqrst", "abcdefghijklmno... is not supported."},
  });
}

TEST(Tokenizer, UnknownCharactersAreNamedWhole) {
  ExpectCuts({
      {"3$", "$ is not supported."},
      {"=", "= is not supported."},
      {"[1]", "[ is not supported."},
      {"2\xC3\x97"
       "3",
       "\xC3\x97 is not supported."},
      {"\xE2\x88\x9A"
       "4",
       "\xE2\x88\x9A is not supported."},
      {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80 is not supported."},
      {"1\x80", "\x80 is not supported."},
      {std::string("1\0002", 3), std::string("\0 is not supported."sv)},
      {"1<2", "< is not supported."},
      {"1<>2", "<> is not supported."},
      {"8>>>1", ">>> is not supported."},
  });
}

std::string Repeated(std::string_view piece, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

TEST(Tokenizer, The151stTokenIsStoredAndThe152ndRefused) {
  for (const int count : {150, 151}) {
    const auto tokens = Tokenize(Repeated("1 ", count));
    ASSERT_TRUE(tokens) << count;
    EXPECT_EQ(tokens->Count(), count);
  }
  for (const std::string last : {"1", "(", "$", "1.2.3", "foo", "sin", "<"}) {
    EXPECT_EQ(Cut(Repeated("1 ", 151) + last), "number exceeded length limit.") << last;
  }
  const auto tokens = Tokenize(Repeated("(", 151) + "    ");
  ASSERT_TRUE(tokens);
  EXPECT_EQ(tokens->Count(), 151);
}

TEST(Tokenizer, AnEmptyTextIsNone) {
  EXPECT_EQ(Cut(""), "Expression is null.");
  EXPECT_EQ(CutFormula("", VariableType::X), "Expression is null.");
}

TEST(FormulaTokenizer, VariablesAreOperands) {
  const auto tokens = TokenizeFormula("x^2+y z", VariableType::XYZ);
  ASSERT_TRUE(tokens);
  EXPECT_EQ(Spelled(*tokens), "x ^ 2 + y z");
  for (const int i : {0, 4, 5}) {
    EXPECT_EQ((*tokens)[i].isNumber, 1);
    EXPECT_EQ((*tokens)[i].value, 0);
    EXPECT_EQ((*tokens)[i].kind, TokenKind::Operand);
  }
  EXPECT_EQ(CutFormula("2x", VariableType::X), "2 x");
  EXPECT_EQ(CutFormula("sinx", VariableType::X), "sinx is not supported.");
  EXPECT_EQ(CutFormula("xx", VariableType::X), "xx is not supported.");
  EXPECT_EQ(CutFormula("X", VariableType::X), "X is not supported.");
}

struct FormulaRow {
  std::string_view text;
  std::string_view forX;
  std::string_view forXY;
  std::string_view forXYZ;
};

constexpr std::string_view kNoY = "Can not use variable Y";
constexpr std::string_view kNoZ = "Can not use variable Z";
constexpr std::string_view kLacksX = "Argument error : Missing variable X";
constexpr std::string_view kLacksY = "Argument error : Missing variable Y";
constexpr std::string_view kLacksZ = "Argument error : Missing variable Z";

TEST(FormulaTokenizer, VariablesAreThoseOfTheType) {
  constexpr FormulaRow kRows[] = {
      {"x", "x", kLacksY, kLacksY},
      {"y", kNoY, kLacksX, kLacksX},
      {"z", kNoZ, kNoZ, kLacksX},
      {"1", kLacksX, kLacksX, kLacksX},
      {"   ", kLacksX, kLacksX, kLacksX},
      {"x y", kNoY, "x y", kLacksZ},
      {"x z", kNoZ, kNoZ, kLacksY},
      {"y z", kNoY, kNoZ, kLacksX},
      {"z y", kNoZ, kNoZ, kLacksX},
      {"z y x", kNoZ, kNoZ, "z y x"},
      {"x x", "x x", kLacksY, kLacksY},
      // What comes first in the text is met first, and what is missing only at its end.
      {"y $", kNoY, "$ is not supported.", "$ is not supported."},
      {"$ y", "$ is not supported.", "$ is not supported.", "$ is not supported."},
      {"sin", "(sin) needs an argument.", "(sin) needs an argument.", "(sin) needs an argument."},
      {"+*", kLacksX, kLacksX, kLacksX},
  };
  for (const FormulaRow& row : kRows) {
    EXPECT_EQ(CutFormula(row.text, VariableType::X), row.forX) << row.text;
    EXPECT_EQ(CutFormula(row.text, VariableType::XY), row.forXY) << row.text;
    EXPECT_EQ(CutFormula(row.text, VariableType::XYZ), row.forXYZ) << row.text;
  }
}

TEST(FormulaTokenizer, MissingAndForbiddenVariablesAreFreeMessages) {
  for (const std::string_view text : {"y", "1"}) {
    const auto tokens = TokenizeFormula(text, VariableType::X);
    ASSERT_FALSE(tokens) << text;
    EXPECT_EQ(tokens.error().code, CalcErrorCode::Free) << text;
  }
}

}  // namespace
}  // namespace kav::tokenizer_test
