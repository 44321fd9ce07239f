#include "line/expression_line.h"

#include <gtest/gtest.h>

#include <random>

#include "support/marked_line.h"

namespace kav::expression_line_test {
namespace {

using test::Marked;
using test::MarkedLine;

TEST(ExpressionLine, FreshLineIsEmptyWithTheCaretInIt) {
  const ExpressionLine line;
  EXPECT_EQ(line.Text(), u"");
  EXPECT_EQ(line.Selected(), (Selection{0, 0}));
  EXPECT_TRUE(line.Selected().IsEmpty());
}

TEST(ExpressionLine, InsertedTextReplacesTheSelectionAndTheCaretEndsBehindIt) {
  struct Row {
    std::u16string_view before;
    std::u16string_view text;
    std::u16string_view after;
  };
  const Row rows[] = {
      {u"|", u"7", u"7|"},       {u"|12", u"00", u"00|12"},  {u"1|2", u" AND ", u"1 AND |2"},
      {u"12|", u"Pi", u"12Pi|"}, {u"1[23]4", u"7", u"17|4"}, {u"[1234]", u"7", u"7|"},
      {u"1[23]4", u"", u"1|4"},  {u"1]23[4", u"7", u"17|4"}, {u"]12[", u"345", u"345|"},
      {u"1|2", u"", u"1|2"},
  };
  for (const Row& row : rows) {
    ExpressionLine line = MarkedLine(row.before);
    line.InsertText(row.text);
    EXPECT_EQ(Marked(line), row.after);
  }
}

struct WrapRow {
  std::u16string_view before;
  std::u16string_view prefix;
  std::u16string_view suffix;
  std::size_t shift;
  std::u16string_view after;
};

void ExpectWraps(std::initializer_list<WrapRow> rows) {
  for (const WrapRow& row : rows) {
    ExpressionLine line = MarkedLine(row.before);
    line.WrapSelection(row.prefix, row.suffix, row.shift);
    EXPECT_EQ(Marked(line), row.after);
  }
}

TEST(ExpressionLine, WrapWithoutSelectionLeavesTheCaretBetweenPrefixAndSuffix) {
  ExpectWraps({
      {u"|", u"sin(", u")", 3, u"sin(|)"},
      {u"1+|2", u"abs(", u")", 3, u"1+abs(|)2"},
      {u"8|", u"^(1/", u")", 3, u"8^(1/|)"},
      {u"|", u"(", u")", 0, u"(|)"},
  });
}

TEST(ExpressionLine, WrapOfASelectionLeavesTheCaretBehindTheSuffix) {
  ExpectWraps({
      {u"[30]", u"sin(", u")", 3, u"sin(30)|"},
      {u"[45]", u"asin(", u")", 4, u"asin(45)|"},
      {u"1[23]45", u"(", u")*", 0, u"1(23)*|45"},
      {u"1[23]45", u"10^(", u")", 3, u"110^(23)|45"},
  });
}

TEST(ExpressionLine, EmptyPrefixPutsTheSuffixOneCharacterBehindTheSelection) {
  ExpectWraps({
      {u"1[23]45", u"", u"+", 0, u"1234+|5"},
      {u"[1]2", u"", u"-", 0, u"12-|"},
  });
}

TEST(ExpressionLine, SuffixBeyondTheEndOfTheLineLandsAtTheEnd) {
  ExpectWraps({
      {u"123[45]", u"", u"+", 0, u"12345+|"},
      {u"[12345]", u"", u"+", 0, u"12345+|"},
      {u"[12]", u"(", u")", 9, u"(12)|"},
  });
}

TEST(ExpressionLine, SelectionFromRightToLeftExchangesPrefixAndSuffix) {
  // The prefix position is where the selection began, at its right end; the suffix position is the
  // left end moved by the shift, as if the prefix had gone in before it.
  ExpectWraps({
      {u"1]23[45", u"(", u")*", 0, u"12(|3)*45"},
      {u"]30[", u"sin(", u")", 3, u"30)sin(|"},
      {u"1]23[45", u"", u"+", 0, u"12|3+45"},
  });
}

TEST(ExpressionLine, BackspaceDeletesTheSelectionOrTheCharacterBeforeTheCaret) {
  struct Row {
    std::u16string_view before;
    std::u16string_view after;
  };
  const Row rows[] = {{u"12|3", u"1|3"},  {u"123|", u"12|"}, {u"|123", u"|123"}, {u"|", u"|"},
                      {u"1[2]3", u"1|3"}, {u"[123]", u"|"},  {u"]12[3", u"|3"},  {u"1|", u"|"}};
  for (const Row& row : rows) {
    ExpressionLine line = MarkedLine(row.before);
    line.DeleteBackward();
    EXPECT_EQ(Marked(line), row.after);
  }
}

TEST(ExpressionLine, DeleteDeletesTheSelectionOrTheCharacterAfterTheCaret) {
  struct Row {
    std::u16string_view before;
    std::u16string_view after;
  };
  const Row rows[] = {{u"1|23", u"1|3"},  {u"|123", u"|23"}, {u"123|", u"123|"}, {u"|", u"|"},
                      {u"1[2]3", u"1|3"}, {u"[123]", u"|"},  {u"]12[3", u"|3"},  {u"|1", u"|"}};
  for (const Row& row : rows) {
    ExpressionLine line = MarkedLine(row.before);
    line.DeleteForward();
    EXPECT_EQ(Marked(line), row.after);
  }
}

TEST(ExpressionLine, PositionsBeyondTheTextAreTakenToItsEnd) {
  ExpressionLine line;
  line.Set(u"123", {2, 99});
  EXPECT_EQ(line.Selected(), (Selection{2, 3}));
  line.Select({99, 1});
  EXPECT_EQ(line.Selected(), (Selection{3, 1}));
  line.Set(u"1", {static_cast<std::size_t>(-1), static_cast<std::size_t>(-1)});
  EXPECT_EQ(line.Selected(), (Selection{1, 1}));
}

TEST(ExpressionLine, SelectAllTakesTheWholeTextFromLeftToRight) {
  ExpressionLine line = MarkedLine(u"12|3");
  line.SelectAll();
  EXPECT_EQ(Marked(line), u"[123]");
  line.Clear();
  EXPECT_EQ(Marked(line), u"|");
  line.SelectAll();
  EXPECT_EQ(Marked(line), u"|");
}

// U+1F600 is one character of two halves.
constexpr std::u16string_view kFace = u"\U0001F600";

TEST(ExpressionLine, CharacterOfTwoHalvesIsDeletedWhole) {
  ExpressionLine line;
  const std::u16string text = u"1" + std::u16string(kFace) + u"2";
  line.Set(text, {3, 3});
  line.DeleteBackward();
  EXPECT_EQ(Marked(line), u"1|2");
  line.Set(text, {1, 1});
  line.DeleteForward();
  EXPECT_EQ(Marked(line), u"1|2");
}

TEST(ExpressionLine, PositionInsideACharacterMovesBehindIt) {
  const std::u16string face(kFace);
  ExpressionLine line;
  line.Set(face + u"2", {1, 1});
  EXPECT_EQ(line.Selected(), (Selection{2, 2}));
  line.InsertText(u"+");
  EXPECT_EQ(line.Text(), face + u"+2");
  line.Set(u"1" + face, {0, 1});
  line.WrapSelection(u"", u"+", 0);
  EXPECT_EQ(line.Text(), u"1" + face + u"+");
}

TEST(ExpressionLine, LoneHalvesAreDeletedOneByOne) {
  ExpressionLine line;
  line.Set(u"\xD83D\xD83D", {2, 2});
  line.DeleteBackward();
  EXPECT_EQ(line.Text(), u"\xD83D");
  line.Set(u"\xDE00\xDE00", {0, 0});
  line.DeleteForward();
  EXPECT_EQ(line.Text(), u"\xDE00");
}

TEST(ExpressionLine, CutsCharacterOnlyBetweenTheHalvesOfOne) {
  const std::u16string text = u"1" + std::u16string(kFace) + u"2";
  const bool cuts[] = {false, false, true, false, false, false};
  for (std::size_t i = 0; i < std::size(cuts); ++i) EXPECT_EQ(CutsCharacter(text, i), cuts[i]) << i;
  EXPECT_FALSE(CutsCharacter(u"\xDE00\xD83D", 1));
}

TEST(ExpressionLine, NoSequenceOfEditsTakesTheCaretOutOfTheTextOrIntoACharacter) {
  std::mt19937 random(7);
  constexpr std::u16string_view kTexts[] = {u"", u"(", u")*", u"sin(", u" AND ", kFace};
  for (int round = 0; round < 500; ++round) {
    ExpressionLine line;
    for (int step = 0; step < 60; ++step) {
      const std::u16string_view text = kTexts[random() % std::size(kTexts)];
      switch (random() % 6) {
        case 0:
          line.InsertText(text);
          break;
        case 1:
          line.WrapSelection(text, kTexts[random() % std::size(kTexts)], random() % 8);
          break;
        case 2:
          line.DeleteBackward();
          break;
        case 3:
          line.DeleteForward();
          break;
        case 4:
          line.Select({random() % 40, random() % 40});
          break;
        default:
          line.Set(line.Text() + std::u16string(text), {random() % 40, random() % 40});
      }
      const auto [start, end] = line.Selected();
      ASSERT_LE(start, line.Text().size());
      ASSERT_LE(end, line.Text().size());
      ASSERT_FALSE(CutsCharacter(line.Text(), start));
      ASSERT_FALSE(CutsCharacter(line.Text(), end));
    }
  }
}

TEST(ExpressionLine, TheChangeBetweenTwoTextsIsTheSmallestThereIs) {
  struct Row {
    std::u16string_view old;
    std::u16string_view now;
    std::size_t start;
    std::size_t length;
    std::u16string_view text;
  };
  const Row rows[] = {
      {u"", u"", 0, 0, u""},
      {u"x+1", u"x+1", 3, 0, u""},
      {u"", u"abc", 0, 0, u"abc"},
      {u"abc", u"", 0, 3, u""},
      {u"x+1", u"x+12", 3, 0, u"2"},
      {u"x+1", u"2x+1", 0, 0, u"2"},
      {u"x+1", u"x1", 1, 1, u""},
      {u"x+1", u"x*1", 1, 1, u"*"},
      {u"x", u"sin(x)", 0, 1, u"sin(x)"},
      {u"11", u"111", 2, 0, u"1"},
      {u"aba", u"a", 1, 2, u""},
  };
  for (const Row& row : rows) {
    const TextChange change = ChangeBetween(row.old, row.now);
    EXPECT_EQ(change.start, row.start) << row.start;
    EXPECT_EQ(change.length, row.length) << row.start;
    EXPECT_EQ(change.text, row.text) << row.start;
    std::u16string changed(row.old);
    EXPECT_EQ(changed.replace(change.start, change.length, change.text), row.now);
  }
}

TEST(ShownText, IsOneLineOfAThousandCharactersAtMost) {
  EXPECT_EQ(ShownText(u"2*x+1"), u"2*x+1");
  EXPECT_EQ(ShownText(std::u16string(1000, u'1')), std::u16string(1000, u'1'));
  EXPECT_EQ(ShownText(std::u16string(1001, u'1')), std::u16string(1000, u'1') + u"\u2026");
}

}  // namespace
}  // namespace kav::expression_line_test
