#include "line/near_words.h"

#include <gtest/gtest.h>

#include <string>

#include "common/number_text.h"
#include "support/shown.h"

namespace kav::test::near_words_test {
namespace {

std::string Near(std::u16string_view text) {
  KnownWords words = WordsOf(kDegrees);
  words.push_back({u"area", PieceKind::Call});
  std::string list;
  for (const std::u16string& word : WordsNear(text, words)) {
    if (!list.empty()) list += ' ';
    list += Narrow(word);
  }
  return list;
}

TEST(NearWords, AWordWithOneLetterMoreLessOrOther) {
  EXPECT_EQ(Near(u"sqt"), "sqrt");
  EXPECT_EQ(Near(u"sqrrt"), "sqrt");
  EXPECT_EQ(Near(u"sqrp"), "sqrt");
  EXPECT_EQ(Near(u"sqtr"), "sqrt");
  EXPECT_EQ(Near(u"frca"), "frac");
}

TEST(NearWords, AnotherUsualNameStandsForOneWord) {
  EXPECT_EQ(Near(u"sine"), "sin");
  EXPECT_EQ(Near(u"arctan"), "atan");
  EXPECT_EQ(Near(u"lg"), "log");
}

TEST(NearWords, TwoNeighboursAreBothTold) {
  const std::string near = Near(u"sinn");
  EXPECT_NE(near.find("sin"), std::string::npos);
  EXPECT_NE(near.find("sinh"), std::string::npos);
}

TEST(NearWords, FarWordsHaveNone) {
  for (const char16_t* word : {u"banana", u"q", u"xyzzy"}) EXPECT_EQ(Near(word), "");
}

TEST(NearWords, AMacroIsMeantByItsNameAlone) {
  EXPECT_EQ(Near(u"area"), "M:area");
}

TEST(NearWords, TheNameOfAMacroWithoutItsMarkCallsNothing) {
  const KnownWords words{{u"f", PieceKind::Call}};
  EXPECT_TRUE(IsUnknown({PieceKind::Call, 0, 1}, u"f", words));
  EXPECT_FALSE(IsUnknown({PieceKind::Call, 0, 3}, u"M:f", words));
  EXPECT_TRUE(IsUnknown({PieceKind::Call, 0, 3}, u"M:g", words));
}

std::u16string Nearest(std::u16string_view given) {
  const std::vector<std::u16string> names{u"Meters", u"Micrometers", u"Feet", u"Light years",
                                          u"AU"};
  const auto place = NearestName(given, names);
  return place ? names[*place] : std::u16string();
}

TEST(NearestName, TakesTheFewestLetters) {
  EXPECT_EQ(Nearest(u"metres"), u"Meters");
  EXPECT_EQ(Nearest(u"METER"), u"Meters");
  EXPECT_EQ(Nearest(u"mikrometres"), u"Micrometers");
  EXPECT_EQ(Nearest(u"foot"), u"") << "two of four letters";
  EXPECT_EQ(Nearest(u"feets"), u"Feet");
  EXPECT_EQ(Nearest(u"lightyears"), u"Light years");
}

TEST(NearestName, WhatIsFarMeansSomethingElse) {
  for (const char16_t* given : {u"", u"A", u"UA", u"Acres", u"xyzzy", u"1"}) {
    EXPECT_EQ(Nearest(given), u"") << Narrow(given);
  }
  EXPECT_EQ(Nearest(std::u16string(100000, u'e')), u"");
}

}  // namespace
}  // namespace kav::test::near_words_test
