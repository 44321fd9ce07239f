#include "store/past_record.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kav::past_record_test {
namespace {

PastLine Line(std::int64_t id, PastOrigin origin, std::int32_t base, std::string line,
              std::string answer) {
  return {id, origin, base, std::move(line), std::move(answer)};
}

TEST(PastRecord, AsItStandsInTheFile) {
  EXPECT_EQ(RecordOf(Line(7, PastOrigin::Scientific, 1, "1+1", "2")), "7\tS\t1\t1+1\t2\n");
  EXPECT_EQ(RecordOf(Line(8, PastOrigin::Prompt, 2, "FF", "FF")), "8\tP\t2\tFF\tFF\n");
  EXPECT_EQ(RecordOf(Line(9, PastOrigin::Matrix, 1, "(1", "")), "9\tM\t1\t(1\t\n");
  EXPECT_EQ(RecordOf(Line(9, PastOrigin::Matrix, 1, "a\tb\nc\rd\\e", "")),
            "9\tM\t1\ta\\tb\\nc\\rd\\\\e\t\n");
}

TEST(PastRecord, WhatIsWrittenReadsBack) {
  const std::vector<PastLine> lines{
      Line(1, PastOrigin::Scientific, 1, "sin(30)", "0.5"),
      Line(2, PastOrigin::Prompt, 4, "\xc3\xa9\\n\\", "\t"),
      Line(3, PastOrigin::Matrix, 1, "a\tb\nc\rd", ""),
  };
  EXPECT_EQ(ReadRecords(RecordsOf(lines)), lines);
}

TEST(PastRecord, WhatIsNoRecordIsPassedOver) {
  for (const char* text :
       {"", "1+1", "1\tS\t1\t1+1", "x\tS\t1\t1+1\t2", "0\tS\t1\t1+1\t2", "-1\tS\t1\t1+1\t2",
        "1\tX\t1\t1+1\t2", "1\t\t1\t1+1\t2", "1\tS\t0\t1+1\t2", "1\tS\t5\t1+1\t2", "1\tS\t1\t\t2",
        "99999999999999999999\tS\t1\t1+1\t2", "\t\t\t\t", "\x80\xff"}) {
    EXPECT_FALSE(ReadRecord(text)) << text;
  }
  EXPECT_EQ(ReadRecords("junk\n\n5\tS\t1\t1+1\t2\n\n6\tS\t1\thal").size(), 1U);
}

TEST(PastRecord, WrongBytesBecomeReplacementCharacters) {
  const auto past = ReadRecord("5\tS\t1\t1+\xff\t\x80");
  ASSERT_TRUE(past);
  EXPECT_EQ(past->line, "1+\xef\xbf\xbd");
  EXPECT_EQ(past->answer, "\xef\xbf\xbd");
}

TEST(PastRecord, OfEachRoomTheNewestThousandAreRead) {
  std::string text;
  for (int i = 1; i <= 1500; ++i) {
    text += RecordOf(Line(2 * i, PastOrigin::Prompt, 1, std::to_string(i), ""));
    if (i % 10 == 0) text += RecordOf(Line(2 * i + 1, PastOrigin::Matrix, 1, "m", ""));
  }
  const auto lines = ReadRecords(text);
  ASSERT_EQ(lines.size(), 1150U);
  EXPECT_EQ(lines.front().line, "m");
  EXPECT_EQ(lines.back().id, 3001);
}

TEST(PastRecord, APartOfAnAnswerIsNone) {
  const auto lines = ReadRecords("5\tS\t1\t1+1\t2\n6\tS\t1\t1/7\t0.14");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].answer, "2");
  EXPECT_EQ(lines[1], Line(6, PastOrigin::Scientific, 1, "1/7", ""));
  const auto ended = ReadRecord("6\tS\t1\t1/7\t0.14\t");
  ASSERT_TRUE(ended);
  EXPECT_EQ(*ended, lines[1]);
}

TEST(PastRecord, APartOfARecordIsEndedAsWhatItIs) {
  EXPECT_EQ(MissingEnd(""), "");
  EXPECT_EQ(MissingEnd("5\tS\t1\t1+1\t2\n"), "");
  EXPECT_EQ(MissingEnd("5\tS\t1\t1+1\t2\n6\tS\t1\t1/7\t0.14"), "\t\n");
  EXPECT_EQ(MissingEnd("6\tS\t1\t1/7\t"), "\t\n");
  EXPECT_EQ(MissingEnd("6\tS\t1\t1/7"), "\n");
  EXPECT_EQ(MissingEnd("6"), "\n");
}

TEST(PastRecord, OverlongFieldsAreNotRead) {
  const std::string longLine(2 * PastLines::kLongestLine + 1, '1');
  EXPECT_FALSE(ReadRecord("5\tS\t1\t" + longLine + "\t2"));
  EXPECT_FALSE(ReadRecord("5\tS\t1\t1\t" + longLine));
  const std::string longest(PastLines::kLongestLine, '1');
  const std::string longestAnswer(PastLines::kLongestAnswer, '2');
  EXPECT_TRUE(ReadRecord("5\tS\t1\t" + longest + "\t" + longestAnswer));
  EXPECT_FALSE(ReadRecord("5\tS\t1\t" + longest + "1\t2"));
  EXPECT_FALSE(ReadRecord("5\tS\t1\t1\t" + longestAnswer + "2"));
  const std::string wrongBytes(PastLines::kLongestAnswer / 2, '\xff');
  EXPECT_FALSE(ReadRecord("5\tS\t1\t1\t" + wrongBytes)) << "each takes three bytes";
}

}  // namespace
}  // namespace kav::past_record_test
