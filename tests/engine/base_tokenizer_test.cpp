#include "engine/base_tokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/spelled_tokens.h"

namespace kav::base_tokenizer_test {
namespace {

using test::Spelled;

std::string Cut(std::string_view text, BaseMode base) {
  const auto tokens = TokenizeInBase(text, base);
  return tokens ? Spelled(*tokens) : tokens.error().message;
}

using Rows = std::vector<std::pair<std::string, std::string>>;

void ExpectCuts(BaseMode base, const Rows& rows) {
  for (const auto& [text, cut] : rows) EXPECT_EQ(Cut(text, base), cut) << text;
}

constexpr BaseMode kBases[] = {BaseMode::Binary, BaseMode::Octal, BaseMode::Hexadecimal};

TEST(BaseTokenizer, AnEmptyTextIsNone) {
  for (const BaseMode base : kBases) EXPECT_EQ(Cut("", base), "Expression is null.");
}

TEST(BaseTokenizer, ReadsTheDigitsOfItsBase) {
  ExpectCuts(BaseMode::Binary, {
                                   {"0", "0"},
                                   {"1011", "11"},
                                   {"00000001", "1"},
                                   {"1012", "2 is not supported."},
                                   {"2", "2 is not supported."},
                                   {"19", "9 is not supported."},
                               });
  ExpectCuts(BaseMode::Octal, {
                                  {"17", "15"},
                                  {"755", "493"},
                                  {"8", "8 is not supported."},
                                  {"78", "8 is not supported."},
                              });
  ExpectCuts(BaseMode::Hexadecimal, {
                                        {"9", "9"},
                                        {"ff", "255"},
                                        {"0a1b", "2587"},
                                        {"dead", "57005"},
                                        {"e+1", "14 + 1"},
                                        {"1e-3", "30 - 3"},
                                        {"ffg+1", "g is not supported."},
                                        {"FF+1", "FF is not supported."},
                                    });
}

struct LimitRow {
  BaseMode base;
  char largestDigit;
  std::size_t mostDigits;
  std::string largestValue;
  std::string_view message;
};

const LimitRow kLimits[] = {
    {BaseMode::Binary, '1', 32, "4294967295", "Out of range(BIN MODE)"},
    {BaseMode::Octal, '7', 11, "8589934591", "Out of range(OCT MODE)"},
    {BaseMode::Hexadecimal, 'f', 8, "4294967295", "Out of range(HEX MODE)"},
};

TEST(BaseTokenizer, NumbersHaveAMostNumberOfDigits) {
  for (const LimitRow& row : kLimits) {
    const std::string longest(row.mostDigits, row.largestDigit);
    EXPECT_EQ(Cut(longest, row.base), row.largestValue);
    const auto tooLong = TokenizeInBase(longest + row.largestDigit, row.base);
    ASSERT_FALSE(tooLong);
    EXPECT_EQ(tooLong.error(), MakeError(CalcErrorCode::Free, row.message));
    EXPECT_EQ(Cut("0" + longest, row.base), row.message) << "leading zeros count";
    EXPECT_EQ(Cut(std::string(row.mostDigits, '0'), row.base), "0");
    EXPECT_EQ(Cut(longest + " " + longest, row.base), row.largestValue + " " + row.largestValue);
  }
}

TEST(BaseTokenizer, KnowsOperatorsParenthesesAndShifts) {
  for (const BaseMode base : kBases) {
    ExpectCuts(base, {
                         {"+-*/()", "+ - * / ( )"},
                         {"1<<10>>1", base == BaseMode::Binary  ? "1 < 2 > 1"
                                      : base == BaseMode::Octal ? "1 < 8 > 1"
                                                                : "1 < 16 > 1"},
                         {"1<1", "< is not supported."},
                         {"1<>1", "<> is not supported."},
                         {"1>>>1", ">>> is not supported."},
                         {"   ", ""},
                         {" 1 1 ", "1 1"},
                     });
  }
}

TEST(BaseTokenizer, DecimalSignsAndPointsAreNotSupported) {
  for (const BaseMode base : kBases) {
    for (const std::string sign :
         {"^", "!", "%", ".", ",", "=", "\t", "\xC3\xA4", "\xE2\x82\xAC"}) {
      EXPECT_EQ(Cut("1" + sign + "1", base), sign + " is not supported.");
    }
  }
}

TEST(BaseTokenizer, WordsAreTheBitOperators) {
  for (const BaseMode base : {BaseMode::Binary, BaseMode::Octal}) {
    ExpectCuts(base, {
                         {"1 and 1", "1 a 1"},
                         {"1and1", "1 a 1"},
                         {"1 or 1 xor 1 xnor 1", "1 o 1 x 1 y 1"},
                         {"not 0", "n 0"},
                         {"1 AND 1", "AND is not supported."},
                         {"1 Or 1", "Or is not supported."},
                         {"1 nand 1", "nand is not supported."},
                         {"sin(1)", "sin is not supported."},
                         {"pi+1", "pi is not supported."},
                         {"x+1", "x is not supported."},
                         {"abcdefghijklmnopqr(", "abcdefghijklmno... is not supported."},
                     });
  }
}

TEST(BaseTokenizer, HexadecimalTakesAndInCapitals) {
  ExpectCuts(BaseMode::Hexadecimal, {
                                        {"ff AND f", "255 a 15"},
                                        {"1AND(f)", "1 a ( 15 )"},
                                        {"1 or f xor f xnor f", "1 o 15 x 15 y 15"},
                                        {"not f", "n 15"},
                                        {"1 And 1", "And is not supported."},
                                        {"1 OR 1", "OR is not supported."},
                                        {"sin(1)", "sin is not supported."},
                                    });
}

// The a and the d of "and" are digits.
TEST(BaseTokenizer, HexadecimalReadsASmallAndAsANumberAndAWord) {
  EXPECT_EQ(Cut("and 1", BaseMode::Hexadecimal), "nd is not supported.");
  EXPECT_EQ(Cut("f and f", BaseMode::Hexadecimal), "nd is not supported.");
  EXPECT_EQ(Cut("and", BaseMode::Hexadecimal), "Expression error.");
  EXPECT_EQ(Cut("aor 1", BaseMode::Hexadecimal), "10 o 1");
}

TEST(BaseTokenizer, AWordAtTheEndIsAnErrorWhateverItSays) {
  for (const BaseMode base : kBases) {
    for (const std::string word : {"or", "xor", "xnor", "not", "foo", "sin", "AND"}) {
      const auto tokens = TokenizeInBase("1 " + word, base);
      ASSERT_FALSE(tokens) << word;
      EXPECT_EQ(tokens.error().code, CalcErrorCode::Expression) << word;
      EXPECT_EQ(tokens.error().message, "Expression error.") << word;
    }
  }
  EXPECT_EQ(Cut("1 and", BaseMode::Binary), "Expression error.");
  EXPECT_EQ(Cut("FF", BaseMode::Hexadecimal), "Expression error.");
}

// "1orf" holds the word "orf": letters that could be digits do not end a word.
TEST(BaseTokenizer, HexadecimalWordsRunOverDigitLetters) {
  EXPECT_EQ(Cut("1orf+1", BaseMode::Hexadecimal), "orf is not supported.");
  EXPECT_EQ(Cut("1or 1", BaseMode::Hexadecimal), "1 o 1");
}

TEST(BaseTokenizer, The151stTokenIsStoredAndThe152ndRefused) {
  for (const BaseMode base : kBases) {
    std::string text;
    for (int i = 0; i < 151; ++i) text += "1 ";
    const auto tokens = TokenizeInBase(text, base);
    ASSERT_TRUE(tokens);
    EXPECT_EQ(tokens->Count(), 151);
    for (const std::string last : {"1", "(", "$", "or", "<"}) {
      EXPECT_EQ(Cut(text + last, base), "number exceeded length limit.") << last;
    }
  }
}

}  // namespace
}  // namespace kav::base_tokenizer_test
