#include "line/history_walk.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/marked_line.h"

namespace kav::test::history_walk_test {
namespace {

/// A line with its walk, and how often the earlier lines were asked for.
class Walk : public testing::Test {
 protected:
  std::u16string Up() {
    line_ = walk_.Up(line_, [this] {
      ++asked_;
      return earlier_;
    });
    return Marked(line_);
  }
  std::u16string Down() {
    const auto later = walk_.Down(line_);
    if (!later) return u"free";
    line_ = *later;
    return Marked(line_);
  }
  void Put(std::u16string_view marked) { line_ = MarkedLine(marked); }

  HistoryWalk walk_;
  HistoryWalk::Lines earlier_{u"1+1", u"2+2", u"3+3"};
  ExpressionLine line_;
  int asked_ = 0;
};

TEST_F(Walk, UpGoesBackAndDownReturnsToTheUnfinishedLine) {
  Put(u"sin(|");
  EXPECT_EQ(Up(), u"3+3|");
  EXPECT_EQ(Up(), u"2+2|");
  EXPECT_EQ(Up(), u"1+1|");
  EXPECT_EQ(Up(), u"1+1|");
  EXPECT_EQ(Down(), u"2+2|");
  EXPECT_EQ(Down(), u"3+3|");
  EXPECT_EQ(Down(), u"sin(|");
  EXPECT_EQ(Down(), u"free");
  EXPECT_EQ(asked_, 1);
}

TEST_F(Walk, BeginsAtTheEndsOfTheLineAndWhereAllOfItIsSelected) {
  for (const char16_t* line : {u"|5*6", u"5*6|", u"[5*6]", u"]5*6[", u"|"}) {
    walk_.End();
    Put(line);
    EXPECT_EQ(Up(), u"3+3|");
  }
}

TEST_F(Walk, InTheMiddleUpGoesToTheStartFirst) {
  for (const char16_t* line : {u"5|*6", u"[5]*6", u"5[*6]", u"5*]6["}) {
    walk_.End();
    Put(line);
    EXPECT_EQ(Up(), u"|5*6");
    EXPECT_EQ(Down(), u"free");
    EXPECT_EQ(Up(), u"3+3|");
  }
}

TEST_F(Walk, TheLineThatWasJustEvaluatedDoesNotComeAgain) {
  earlier_ = {u"1+1", u"3+3", u"3+3"};
  Put(u"[3+3]");
  EXPECT_EQ(Up(), u"1+1|");
  EXPECT_EQ(Down(), u"3+3|");
  EXPECT_EQ(Down(), u"free");
  // Nor do neighbours that are equal.
  Put(u"7|");
  EXPECT_EQ(Up(), u"3+3|");
  EXPECT_EQ(Up(), u"1+1|");
  EXPECT_EQ(Down(), u"3+3|");
  EXPECT_EQ(Down(), u"7|");
}

TEST_F(Walk, WhoEditsALineBeginsANewWalkWithIt) {
  Put(u"9|");
  Up();
  Up();
  Put(u"2+25|");
  EXPECT_EQ(Down(), u"free");
  EXPECT_EQ(Up(), u"3+3|");
  EXPECT_EQ(Down(), u"2+25|");
}

TEST_F(Walk, WhatIsFinishedIsNoWalkAnyMore) {
  Put(u"9|");
  Up();
  Up();
  walk_.End();
  Put(u"[2+2]");
  EXPECT_EQ(Down(), u"free");
  EXPECT_EQ(Up(), u"3+3|");
  EXPECT_EQ(Down(), u"2+2|");
}

TEST_F(Walk, WithoutEarlierLinesNothingChanges) {
  earlier_.clear();
  Put(u"9|");
  EXPECT_EQ(Up(), u"9|");
  EXPECT_EQ(Down(), u"free");
}

TEST(TypedLines, AreThoseWithoutAnswers) {
  History history;
  for (const char16_t* entry : {u"=[D]2", u"1+1", u"", u"=[H]FF", u"2*127+1", u"sin(="}) {
    history.Add(entry);
  }
  EXPECT_EQ(TypedLines(history), (HistoryWalk::Lines{u"1+1", u"2*127+1", u"sin(="}));
}

}  // namespace
}  // namespace kav::test::history_walk_test
