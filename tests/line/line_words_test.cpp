#include "line/line_words.h"

#include <gtest/gtest.h>

#include <string>

#include "common/number_text.h"
#include "support/shown.h"

namespace kav::test::line_words_test {
namespace {

/// A letter for each kind and the text of each piece: "N2 Fsin O( N30 C)".
std::string Pieces(std::u16string_view line, CalcModes modes = kDegrees) {
  constexpr std::string_view kLetters = "NVFMOCP+?";
  KnownWords words = WordsOf(modes);
  words.push_back({u"sq", PieceKind::Call});
  std::string text;
  for (const LinePiece& piece : CutIntoPieces(line, words, modes.baseMode)) {
    if (!text.empty()) text += ' ';
    text += kLetters[static_cast<std::size_t>(piece.kind)];
    text += Narrow(line.substr(piece.start, piece.length));
  }
  return text;
}

TEST(LineWords, ALineIsCutIntoNumbersWordsAndSigns) {
  EXPECT_EQ(Pieces(u"2*sin( 30 )+3!"), "N2 +* Fsin O( N30 C) ++ N3 P!");
  EXPECT_EQ(Pieces(u"1.5e-3-PI"), "N1.5e-3 +- VPI");
  EXPECT_EQ(Pieces(u"2(3)(4)5"), "N2 O( N3 C) O( N4 C) N5");
  EXPECT_EQ(Pieces(u"5C2<<1"), "N5 +C N2 +<< N1");
  EXPECT_EQ(Pieces(u""), "");
}

TEST(LineWords, WhatNobodyKnowsIsAPieceToo) {
  EXPECT_EQ(Pieces(u"sine(30)"), "?sine O( N30 C)");
  EXPECT_EQ(Pieces(u"2$3"), "N2 ?$ N3");
}

TEST(LineWords, TheCallOfAMacroIsOnePieceWithItsMark) {
  EXPECT_EQ(Pieces(u"1+M:sq(2)"), "N1 ++ MM:sq O( N2 C)");
}

TEST(LineWords, BasesHaveDigitsAndWordsOfTheirOwn) {
  const CalcModes hex{AngleUnit::Degrees, BaseMode::Hexadecimal};
  EXPECT_EQ(Pieces(u"ff xor 1", hex), "Nff +xor N1");
}

TEST(LineWords, OnlyLettersOfTheAlphabetHaveLowerCase) {
  EXPECT_EQ(Narrow(InLowerCase(u"AbZ-1Ä")), "abz-1Ä");
}

}  // namespace
}  // namespace kav::test::line_words_test
