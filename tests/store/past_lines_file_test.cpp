#include "store/past_lines_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "store/file_lock.h"
#include "support/temporary_folder.h"

namespace kav::past_lines_file_test {
namespace {

using Lines = std::vector<std::string>;

PastLine Line(std::string line, std::string answer = {},
              PastOrigin origin = PastOrigin::Scientific) {
  PastLine past;
  past.origin = origin;
  past.line = std::move(line);
  past.answer = std::move(answer);
  return past;
}

Lines TextsOf(PastLines& lines, PastRoom room = PastRoom::Calculator) {
  Lines texts;
  for (const PastLine& past : lines.Of(room)) texts.push_back(past.line);
  return texts;
}

class PastLinesFileTest : public testing::Test {
 protected:
  PastLinesFile Open(StoreUser user = StoreUser::Command) const { return {path_, old_, user}; }
  std::string Text() const { return FileContent(path_); }
  void MakeFolder() const { std::filesystem::create_directories(folder_.File("deep/below")); }

  TemporaryFolder folder_;
  std::string path_ = folder_.File("deep/below/lines");
  std::string old_ = folder_.File("deep/below/old");
};

TEST_F(PastLinesFileTest, NothingIsMadeBeforeTheFirstLine) {
  PastLinesFile file = Open();
  EXPECT_EQ(TextsOf(file), Lines{});
  EXPECT_TRUE(folder_.Names().empty());
}

TEST_F(PastLinesFileTest, KeepsEachLineAtOnceForItsOwner) {
  PastLinesFile file = Open(StoreUser::Window);
  file.Add(Line("1+1", "2"));
  const std::string text = Text();
  EXPECT_EQ(text.substr(text.find('\t')), "\tS\t1\t1+1\t2\n");
  EXPECT_EQ(PermissionsOf(path_), 0600U);
  file.Add(Line("[M1]", "", PastOrigin::Matrix));
  PastLinesFile other = Open();
  EXPECT_EQ(TextsOf(other), (Lines{"1+1"}));
  EXPECT_EQ(TextsOf(other, PastRoom::Matrix), (Lines{"[M1]"}));
}

TEST_F(PastLinesFileTest, WindowsAndPromptsAddToOneFile) {
  PastLinesFile window = Open(StoreUser::Window);
  PastLinesFile prompt = Open();
  window.Add(Line("1"));
  prompt.Add(Line("2", "", PastOrigin::Prompt));
  window.Add(Line("3"));
  prompt.Add(Line("3", "", PastOrigin::Prompt));
  EXPECT_EQ(TextsOf(window), (Lines{"1", "2", "3"})) << "equal neighbours are one line";
  EXPECT_EQ(TextsOf(prompt), (Lines{"1", "2", "3"}));
}

TEST_F(PastLinesFileTest, IdsGrowAlongTheFileWhateverTheClockSays) {
  constexpr std::int64_t kLast = std::numeric_limits<std::int64_t>::max();
  struct Row {
    std::int64_t before, first, second;
  };
  for (const Row& row : {Row{4102444800000000, 4102444800000001, 4102444800000002},
                         Row{kLast - 1, kLast, kLast}, Row{kLast, kLast, kLast}}) {
    MakeFolder();
    PutFile(path_, std::to_string(row.before) + "\tP\t1\t9+9\t18\n");
    PastLinesFile file = Open();
    file.Add(Line("1+1"));
    EXPECT_EQ(file.Of(PastRoom::Calculator).back().id, row.first);
    file.Add(Line("2+2"));
    EXPECT_EQ(TextsOf(file), (Lines{"9+9", "1+1", "2+2"}));
    EXPECT_EQ(file.Of(PastRoom::Calculator).back().id, row.second);
  }
}

TEST_F(PastLinesFileTest, ALineThatWaitsHasTheIdThatItKeeps) {
  MakeFolder();
  PutFile(path_, "4102444800000000\tP\t1\t9+9\t18\n");
  PastLinesFile window = Open(StoreUser::Window);
  EXPECT_EQ(TextsOf(window), (Lines{"9+9"}));
  std::int64_t seen = 0;
  {
    const auto lock = FileLock::AcquireFor(path_, std::chrono::milliseconds(0));
    window.Add(Line("1+1"));
    seen = window.Of(PastRoom::Calculator).back().id;
    EXPECT_EQ(Text().find("1+1"), std::string::npos);
  }
  EXPECT_TRUE(window.TrySave());
  EXPECT_TRUE(window.Remove(seen));
  EXPECT_EQ(TextsOf(window), (Lines{"9+9"}));
}

TEST_F(PastLinesFileTest, DeletingAndClearingReachTheDiskAndOtherProcesses) {
  PastLinesFile window = Open(StoreUser::Window);
  PastLinesFile prompt = Open();
  for (const char* text : {"1", "second", "3"}) window.Add(Line(text));
  window.Add(Line("[M1]", "", PastOrigin::Matrix));
  const PastLine second = prompt.Of(PastRoom::Calculator)[1];
  EXPECT_TRUE(window.Remove(second.id));
  EXPECT_EQ(Text().find("second"), std::string::npos);
  EXPECT_EQ(TextsOf(prompt), (Lines{"1", "3"}));
  EXPECT_TRUE(prompt.PutBack(second));
  EXPECT_EQ(TextsOf(window), (Lines{"1", "second", "3"}));
  EXPECT_TRUE(window.Clear(PastRoom::Calculator));
  EXPECT_EQ(TextsOf(prompt), Lines{});
  EXPECT_EQ(TextsOf(prompt, PastRoom::Matrix), (Lines{"[M1]"}));
  EXPECT_TRUE(window.Clear(PastRoom::Matrix));
  EXPECT_EQ(Text(), "");
}

TEST_F(PastLinesFileTest, ManyAtOnceLoseNoLine) {
  constexpr int kWriters = 4;
  constexpr int kLines = 4;
  std::vector<std::thread> writers;
  for (int writer = 0; writer < kWriters; ++writer) {
    writers.emplace_back([this, writer] {
      PastLinesFile mine = Open();
      const std::string gone = "gone" + std::to_string(writer);
      for (int i = 0; i < kLines; ++i) {
        mine.Add(Line(std::to_string(writer) + "+" + std::to_string(i)));
        // Deleting writes the whole file anew, with what others have just added.
        mine.Add(Line(gone));
        for (const PastLine& past : mine.Of(PastRoom::Calculator)) {
          if (past.line == gone) mine.Remove(past.id);
        }
      }
    });
  }
  for (std::thread& writer : writers) writer.join();
  PastLinesFile file = Open();
  EXPECT_EQ(TextsOf(file).size(), static_cast<std::size_t>(kWriters * kLines));
}

TEST_F(PastLinesFileTest, AWindowDoesNotWaitAndKeepsTheLineLater) {
  MakeFolder();
  PastLinesFile window = Open(StoreUser::Window);
  {
    const auto lock = FileLock::AcquireFor(path_, std::chrono::milliseconds(0));
    ASSERT_TRUE(lock);
    const auto start = std::chrono::steady_clock::now();
    window.Add(Line("1+1", "2"));
    EXPECT_FALSE(window.TrySave());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(150));
    EXPECT_FALSE(window.TakeNotice()) << "another process is no trouble";
    EXPECT_EQ(TextsOf(window), (Lines{"1+1"}));
    EXPECT_EQ(Text(), "");
  }
  EXPECT_TRUE(window.TrySave());
  PastLinesFile other = Open();
  EXPECT_EQ(TextsOf(other), (Lines{"1+1"}));
}

TEST_F(PastLinesFileTest, AHalfWrittenRecordSpoilsNoOther) {
  MakeFolder();
  PutFile(path_, "5\tS\t1\t1+1\t2\n6\tS\t1\t2+");
  PastLinesFile file = Open();
  file.Add(Line("3+3"));
  EXPECT_EQ(TextsOf(file), (Lines{"1+1", "3+3"}));
  // A part of an answer would be taken for the answer.
  PutFile(path_, Text() + "7\tS\t1\t1/7\t0.14");
  EXPECT_EQ(file.Of(PastRoom::Calculator).back().answer, "");
  file.Add(Line("4+4", "8"));
  const auto lines = file.Of(PastRoom::Calculator);
  EXPECT_EQ(TextsOf(file), (Lines{"1+1", "3+3", "1/7", "4+4"}));
  EXPECT_EQ(lines[2].answer, "");
  EXPECT_EQ(lines[3].answer, "8");
}

TEST_F(PastLinesFileTest, OfALargeFileOnlyTheEndIsReadAndLeft) {
  MakeFolder();
  // The start is a hole, which takes no room on the disk, and would take a gigabyte in memory.
  PutFile(path_, "");
  std::filesystem::resize_file(path_, std::uintmax_t{1} << 30U);
  PastLinesFile file = Open();
  file.Add(Line("1+1"));
  EXPECT_EQ(TextsOf(file), (Lines{"1+1"}));
  EXPECT_LT(std::filesystem::file_size(path_), 100U);
  // The end begins within an id.
  const std::string last = "7\tS\t1\t2+2\t4\n";
  PutFile(path_,
          "12345\tS\t1\t3+3\t6\n" + std::string((8U << 20U) - 14 - last.size(), '\n') + last);
  EXPECT_EQ(TextsOf(file), (Lines{"2+2"}));
}

TEST_F(PastLinesFileTest, OldLinesAreRemovedFromTheFileNowAndThen) {
  MakeFolder();
  std::string text;
  const std::string line(300, '1');
  for (int i = 1; i <= 1500; ++i) text += std::to_string(i) + "\tS\t1\t" + line + "\t\n";
  PutFile(path_, text);
  PastLinesFile file = Open();
  file.Add(Line("2"));
  EXPECT_EQ(TextsOf(file).size(), 1000U);
  EXPECT_LT(std::filesystem::file_size(path_), 320'000U);
}

TEST_F(PastLinesFileTest, ALinkStaysALink) {
  const std::string link = folder_.File("link");
  std::filesystem::create_symlink(path_, link);
  PastLinesFile file(link, "", StoreUser::Command);
  file.Add(Line("1"));
  file.Add(Line("2"));
  file.Remove(file.Of(PastRoom::Calculator).front().id);
  EXPECT_EQ(TextsOf(file), (Lines{"2"}));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_FALSE(Text().empty());
}

TEST_F(PastLinesFileTest, TheOldHistoryOfThePromptIsTakenOverOnce) {
  MakeFolder();
  PutFile(old_, "1+1\n\n2*\xc3\xa9\n2*\xc3\xa9\n\t3");
  PastLinesFile file = Open(StoreUser::Window);
  const auto lines = file.Of(PastRoom::Calculator);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0].line, "1+1");
  EXPECT_EQ(lines[0].answer, "");
  EXPECT_EQ(lines[0].origin, PastOrigin::Prompt);
  EXPECT_EQ(lines[1].line, "2*\xc3\xa9");
  EXPECT_EQ(lines[2].line, "\t3");
  EXPECT_FALSE(Exists(old_));
  PutFile(old_, "9+9\n");
  file.Add(Line("4"));
  EXPECT_EQ(TextsOf(file).back(), "4");
  EXPECT_EQ(TextsOf(file).size(), 4U) << "a later one is not taken over";
}

TEST_F(PastLinesFileTest, AnOldHistoryIsNotForgottenOnAFullDisk) {
  MakeFolder();
  PutFile(old_, "1+1\n2+2\n");
  // What is left when a file can be made and nothing can be written into it.
  PutFile(path_, "");
  PastLinesFile file = Open();
  EXPECT_EQ(TextsOf(file), (Lines{"1+1", "2+2"}));
  EXPECT_FALSE(Exists(old_));
}

TEST_F(PastLinesFileTest, AnOldHistoryOfAnySizeGivesItsNewestThousand) {
  MakeFolder();
  std::string text;
  for (int i = 1; i <= 5000; ++i) text += std::to_string(i) + "\n";
  PutFile(old_, text);
  PastLinesFile file = Open();
  const Lines lines = TextsOf(file);
  ASSERT_EQ(lines.size(), 1000U);
  EXPECT_EQ(lines.front(), "4001");
  EXPECT_EQ(lines.back(), "5000");
}

TEST_F(PastLinesFileTest, WhatCannotBeKeptIsToldOnceAndLastsAsLongAsTheProgram) {
  std::filesystem::create_directories(path_);
  PastLinesFile file = Open(StoreUser::Window);
  EXPECT_EQ(TextsOf(file), Lines{});
  file.Add(Line("1+1"));
  const auto notice = file.TakeNotice();
  ASSERT_TRUE(notice);
  EXPECT_TRUE(notice->starts_with(u"The history cannot be kept in /"));
  EXPECT_TRUE(
      notice->ends_with(u": a folder or a device has this name; move it away or choose "
                        u"another file."));
  file.Add(Line("2+2"));
  EXPECT_FALSE(file.TakeNotice());
  EXPECT_EQ(TextsOf(file), (Lines{"1+1", "2+2"}));
  EXPECT_TRUE(std::filesystem::is_directory(path_));
  std::filesystem::remove(path_);
  file.Add(Line("3+3"));
  PastLinesFile other = Open();
  EXPECT_EQ(TextsOf(other), (Lines{"1+1", "2+2", "3+3"}));
}

TEST_F(PastLinesFileTest, APipeIsNotWaitedFor) {
  MakeFolder();
  ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
  PastLinesFile file = Open(StoreUser::Window);
  file.Add(Line("1+1"));
  EXPECT_TRUE(file.TakeNotice());
  EXPECT_EQ(TextsOf(file), (Lines{"1+1"}));
}

TEST_F(PastLinesFileTest, WithoutAPlaceLinesLastAsLongAsTheProgram) {
  PastLinesFile file("", "", StoreUser::Window);
  file.Add(Line("1+1"));
  EXPECT_EQ(TextsOf(file), (Lines{"1+1"}));
  EXPECT_EQ(file.TakeNotice(),
            u"The history cannot be kept: this user has no home folder. Set HOME or "
            u"XDG_STATE_HOME to a folder to keep it in.");
  EXPECT_FALSE(file.Clear(PastRoom::Calculator));
  EXPECT_EQ(TextsOf(file), Lines{});
}

}  // namespace
}  // namespace kav::past_lines_file_test
