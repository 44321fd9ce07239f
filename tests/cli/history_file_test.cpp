#include "cli/history_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "support/temporary_folder.h"

namespace kav::history_file_test {
namespace {

using Lines = std::vector<std::string>;

class HistoryFileTest : public testing::Test {
 protected:
  std::string Text() const { return FileContent(path_); }

  TemporaryFolder folder_;
  std::string path_ = folder_.File("deep/below/lines");
};

TEST_F(HistoryFileTest, StartsEmptyAndKeepsEachLineAtOnce) {
  HistoryFile history(path_);
  EXPECT_EQ(history.Load(), Lines{});
  history.Append("1+1");
  EXPECT_EQ(Text(), "1+1\n");
  history.Append(" 2*\xc3\xa9 ");
  EXPECT_EQ(HistoryFile(path_).Load(), (Lines{"1+1", " 2*\xc3\xa9 "}));
}

TEST_F(HistoryFileTest, TwoPromptsAddToOneFile) {
  HistoryFile first(path_);
  HistoryFile second(path_);
  first.Append("1");
  second.Append("2");
  first.Append("3");
  EXPECT_EQ(HistoryFile(path_).Load(), (Lines{"1", "2", "3"}));
}

TEST_F(HistoryFileTest, KeepsTheNewestThousand) {
  HistoryFile history(path_);
  for (int i = 1; i <= 1001; ++i) history.Append(std::to_string(i));
  const Lines lines = HistoryFile(path_).Load();
  ASSERT_EQ(lines.size(), 1000U);
  EXPECT_EQ(lines.front(), "2");
  EXPECT_EQ(lines.back(), "1001");
  EXPECT_EQ(Text().substr(0, 4), "2\n3\n");
}

TEST_F(HistoryFileTest, PromptsThatStartAndAddAtOnceLoseNoLine) {
  constexpr int kPrompts = 4;
  constexpr int kLines = 6;
  HistoryFile history(path_);
  for (int i = 0; i < 900; ++i) history.Append("old");
  std::vector<std::thread> prompts;
  for (int prompt = 0; prompt < kPrompts; ++prompt) {
    prompts.emplace_back([this, prompt] {
      for (int i = 0; i < kLines; ++i) {
        HistoryFile mine(path_);
        mine.Append(std::to_string(prompt) + "+" + std::to_string(i));
        // Too many lines, so that most starts cut the file.
        for (int old = 0; old < 12; ++old) mine.Append("old");
        mine.Load();
      }
    });
  }
  for (std::thread& prompt : prompts) prompt.join();
  const Lines lines = HistoryFile(path_).Load();
  int kept = 0;
  for (const std::string& line : lines) kept += line.find('+') == line.npos ? 0 : 1;
  EXPECT_EQ(kept, kPrompts * kLines);
}

TEST_F(HistoryFileTest, ALinkStaysALink) {
  const std::string link = folder_.File("link");
  std::filesystem::create_symlink(path_, link);
  HistoryFile history(link);
  for (int i = 1; i <= 1001; ++i) history.Append(std::to_string(i));
  EXPECT_EQ(HistoryFile(link).Load().front(), "2");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_FALSE(std::filesystem::exists(path_ + ".lock"));
  EXPECT_EQ(Text().substr(0, 4), "2\n3\n");
}

TEST_F(HistoryFileTest, OfALargeFileOnlyTheEndIsRead) {
  std::filesystem::create_directories(folder_.File("deep/below"));
  // The start is a hole, which takes no room on the disk, and would take a gigabyte in memory.
  PutFile(path_, "");
  std::filesystem::resize_file(path_, std::uintmax_t{1} << 30U);
  HistoryFile history(path_);
  history.Append("");
  history.Append("1+1");
  history.Append("2+2");
  const Lines lines = HistoryFile(path_).Load();
  ASSERT_EQ(lines, (Lines{"1+1", "2+2"}));
  EXPECT_EQ(Text(), "1+1\n2+2\n");
}

TEST_F(HistoryFileTest, LinesOfMoreThan4096BytesAreNotKept) {
  HistoryFile history(path_);
  history.Append(std::string(4096, '1'));
  history.Append(std::string(4097, '2'));
  EXPECT_EQ(history.Load(), (Lines{std::string(4096, '1')}));
}

TEST_F(HistoryFileTest, EmptyLinesAndAMissingLastEndAreNoHarm) {
  std::filesystem::create_directories(folder_.File("deep/below"));
  PutFile(path_, "\n1\n\n2");
  EXPECT_EQ(HistoryFile(path_).Load(), (Lines{"1", "2"}));
}

TEST_F(HistoryFileTest, WithoutAPathNothingIsKept) {
  HistoryFile history("");
  history.Append("1+1");
  EXPECT_EQ(history.Load(), Lines{});
}

TEST_F(HistoryFileTest, AFolderInItsPlaceIsToldOnceAndLeft) {
  std::filesystem::create_directories(path_);
  HistoryFile history(path_);
  EXPECT_EQ(history.Load(), Lines{});
  testing::internal::CaptureStderr();
  history.Append("1+1");
  history.Append("2+2");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "kavcalc: the history is not kept: " + path_ + ": Is a directory\n");
  EXPECT_TRUE(std::filesystem::is_directory(path_));
}

}  // namespace
}  // namespace kav::history_file_test
