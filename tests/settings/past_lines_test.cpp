#include "settings/past_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kav::past_lines_test {
namespace {

PastLine Line(std::string line, std::string answer, PastOrigin origin = PastOrigin::Scientific) {
  PastLine past;
  past.origin = origin;
  past.line = std::move(line);
  past.answer = std::move(answer);
  return past;
}

std::vector<std::string> Texts(const std::vector<PastLine>& lines) {
  std::vector<std::string> texts;
  for (const PastLine& past : lines) texts.push_back(past.line + "=" + past.answer);
  return texts;
}
using Strings = std::vector<std::string>;

TEST(PastLines, EachRoomHasItsOwnLines) {
  MemoryPastLines lines;
  lines.Add(Line("1+1", "2"));
  lines.Add(Line("[M1]", "", PastOrigin::Matrix));
  lines.Add(Line("2+2", "4", PastOrigin::Prompt));
  EXPECT_EQ(Texts(lines.Of(PastRoom::Calculator)), (Strings{"1+1=2", "2+2=4"}));
  EXPECT_EQ(Texts(lines.Of(PastRoom::Matrix)), (Strings{"[M1]="}));
}

TEST(PastLines, WhatTheNewestSaysIsNotAddedAgain) {
  MemoryPastLines lines;
  lines.Add(Line("1+1", "2"));
  lines.Add(Line("[M1]", "", PastOrigin::Matrix));
  lines.Add(Line("1+1", "2", PastOrigin::Prompt));
  EXPECT_EQ(Texts(lines.Of(PastRoom::Calculator)), (Strings{"1+1=2"}));
  PastLine hexadecimal = Line("1+1", "2");
  hexadecimal.base = 2;
  lines.Add(hexadecimal);
  lines.Add(Line("1+1", "2.0"));
  EXPECT_EQ(Texts(lines.Of(PastRoom::Calculator)), (Strings{"1+1=2", "1+1=2", "1+1=2.0"}));
}

TEST(PastLines, TheNewestThousandOfEachRoomStay) {
  MemoryPastLines lines;
  lines.Add(Line("[M1]", "", PastOrigin::Matrix));
  for (int i = 1; i <= 1001; ++i) lines.Add(Line(std::to_string(i), ""));
  const auto kept = lines.Of(PastRoom::Calculator);
  ASSERT_EQ(kept.size(), 1000U);
  EXPECT_EQ(kept.front().line, "2");
  EXPECT_EQ(kept.back().line, "1001");
  EXPECT_EQ(lines.Of(PastRoom::Matrix).size(), 1U);
}

TEST(PastLines, OverlongAndEmptyLinesAreNotKept) {
  MemoryPastLines lines;
  lines.Add(Line("", "0"));
  lines.Add(Line(std::string(8193, '1'), "0"));
  lines.Add(Line("1", std::string(2049, '1')));
  EXPECT_TRUE(lines.Of(PastRoom::Calculator).empty());
  lines.Add(Line(std::string(8192, '1'), std::string(2048, '1')));
  EXPECT_EQ(lines.Of(PastRoom::Calculator).size(), 1U);
}

TEST(PastLines, ARemovedLineGoesBackToItsPlace) {
  MemoryPastLines lines;
  for (const char* text : {"1", "2", "3"}) lines.Add(Line(text, text));
  const PastLine second = lines.Of(PastRoom::Calculator)[1];
  EXPECT_TRUE(lines.Remove(second.id));
  EXPECT_FALSE(lines.Remove(second.id));
  EXPECT_EQ(Texts(lines.Of(PastRoom::Calculator)), (Strings{"1=1", "3=3"}));
  EXPECT_TRUE(lines.PutBack(second));
  EXPECT_FALSE(lines.PutBack(second)) << "it is there";
  EXPECT_EQ(Texts(lines.Of(PastRoom::Calculator)), (Strings{"1=1", "2=2", "3=3"}));
}

TEST(PastLines, ClearingLeavesTheOtherRoom) {
  MemoryPastLines lines;
  lines.Add(Line("1", "1"));
  lines.Add(Line("2", "2", PastOrigin::Prompt));
  lines.Add(Line("[M1]", "", PastOrigin::Matrix));
  EXPECT_TRUE(lines.Clear(PastRoom::Calculator));
  EXPECT_TRUE(lines.Of(PastRoom::Calculator).empty());
  EXPECT_EQ(lines.Of(PastRoom::Matrix).size(), 1U);
}

}  // namespace
}  // namespace kav::past_lines_test
