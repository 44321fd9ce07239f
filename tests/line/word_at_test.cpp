#include "line/word_at.h"

#include <gtest/gtest.h>

#include <string>

namespace kav::word_at_test {
namespace {

/// What a double click on the character at `position` selects.
std::u16string Word(std::u16string_view text, std::size_t position,
                    BaseMode base = BaseMode::Decimal) {
  const Selection word = WordAt(text, position, base);
  return std::u16string(text.substr(word.start, word.end - word.start));
}

TEST(WordAt, TakesTheWholeNumberFromEachOfItsCharacters) {
  struct Row {
    const char16_t* text;
    std::size_t from;
    const char16_t* number;
  };
  const Row rows[] = {
      {u"12.5+3", 0, u"12.5"},
      {u"2-12.5", 2, u"12.5"},
      {u"-7", 1, u"7"},
      {u"2*1.5E-3*x", 2, u"1.5E-3"},
      {u"1e+10-2", 0, u"1e+10"},
      {u".5+1", 0, u".5"},
      {u"5.", 0, u"5."},
      {u"-1,234,567.5", 1, u"1,234,567.5"},
      {u"1.2345670e+20", 0, u"1.2345670e+20"},
      {u"2sin(30)", 5, u"30"},
      {u"12 34", 3, u"34"},
  };
  for (const Row& row : rows) {
    const std::u16string number = row.number;
    for (std::size_t i = 0; i < number.size(); ++i) EXPECT_EQ(Word(row.text, row.from + i), number);
  }
}

TEST(WordAt, TakesNamesAndSignsForThemselves) {
  EXPECT_EQ(Word(u"2sin(30)", 0), u"2");
  EXPECT_EQ(Word(u"2sin(30)", 2), u"sin");
  EXPECT_EQ(Word(u"2sin(30)", 4), u"(");
  EXPECT_EQ(Word(u"log2(8)", 3), u"log2");
  EXPECT_EQ(Word(u"2+3", 1), u"+");
  EXPECT_EQ(Word(u"2E+3E", 4), u"E");
  EXPECT_EQ(Word(u"2E", 1), u"E");
  EXPECT_EQ(Word(u"Division by zero.", 3), u"Division");
  EXPECT_EQ(Word(u"M:F(2)", 2), u"F");
  EXPECT_EQ(Word(u".", 0), u".");
}

TEST(WordAt, CommasGroupDigitsOnlyInThreesAndOutsideOfParentheses) {
  EXPECT_EQ(Word(u"1,23", 0), u"1");
  EXPECT_EQ(Word(u"1,2345", 0), u"1");
  EXPECT_EQ(Word(u"M:F(1,234)", 4), u"1");
  EXPECT_EQ(Word(u"M:F(1,234)", 6), u"234");
  EXPECT_EQ(Word(u"abs(1)+1,234", 8), u"1,234");
}

TEST(WordAt, InHexadecimalLettersAreDigits) {
  EXPECT_EQ(Word(u"1F+2", 0, BaseMode::Hexadecimal), u"1F");
  EXPECT_EQ(Word(u"1E+2", 1, BaseMode::Hexadecimal), u"1E");
  EXPECT_EQ(Word(u"FF+1", 1, BaseMode::Hexadecimal), u"FF");
  EXPECT_EQ(Word(u"1F", 0), u"1");
}

TEST(WordAt, BehindTheTextTheLastWordCounts) {
  EXPECT_EQ(Word(u"2+34", 4), u"34");
  EXPECT_EQ(Word(u"2+34", 400), u"34");
  EXPECT_EQ(Word(u"", 0), u"");
}

TEST(WordAt, ACharacterOfTwoUnitsStaysWhole) {
  EXPECT_EQ(Word(u"\U0001D70B+1", 0), u"\U0001D70B");
  EXPECT_EQ(Word(u"\U0001D70B+1", 1), u"\U0001D70B");
}

}  // namespace
}  // namespace kav::word_at_test
