#include "cli/line_reader.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <limits>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace kav::line_reader_test {
namespace {

constexpr std::size_t kBlock = 65536;
constexpr std::size_t kAnyLength = std::numeric_limits<std::size_t>::max();

/// A pipe that another thread fills with `parts`, one write for each.
class Source {
 public:
  explicit Source(std::vector<std::string> parts) {
    EXPECT_EQ(pipe(ends_), 0);
    writer_ = std::thread([this, parts = std::move(parts)] {
      for (const std::string& part : parts) Write(part);
      close(ends_[1]);
    });
  }
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;
  ~Source() {
    writer_.join();
    close(ends_[0]);
  }
  int Descriptor() const { return ends_[0]; }

 private:
  void Write(std::string_view part) const {
    while (!part.empty()) {
      const ssize_t written = write(ends_[1], part.data(), part.size());
      if (written > 0) part.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  int ends_[2];
  std::thread writer_;
};

using Lines = std::vector<std::string>;

Lines LinesOf(std::vector<std::string> parts, std::size_t longest = kAnyLength) {
  const Source source(std::move(parts));
  LineReader reader(source.Descriptor(), longest, [] {});
  Lines lines;
  while (const auto line = reader.Next()) lines.emplace_back(*line);
  EXPECT_EQ(reader.Error(), 0);
  return lines;
}

TEST(LineReader, LinesLoseTheirEndsAndNothingElse) {
  struct Row {
    std::string input;
    Lines lines;
  };
  const std::vector<Row> rows{
      {"", {}},
      {"a", {"a"}},
      {"a\n", {"a"}},
      {"a\nb", {"a", "b"}},
      {"\n", {""}},
      {"\n\n", {"", ""}},
      {"\na", {"", "a"}},
      {"a\r\nb\r\n", {"a", "b"}},
      {"a\rb\n", {"a\rb"}},
      {"a\r\r\n", {"a\r"}},
      {"a\r", {"a"}},
      {"\r\n", {""}},
      {std::string("a\0b\n\0\n", 6), {std::string("a\0b", 3), std::string("\0", 1)}},
      {" a \n", {" a "}},
  };
  for (const Row& row : rows) EXPECT_EQ(LinesOf({row.input}), row.lines) << row.input;
}

TEST(LineReader, LinesComeWholeHoweverTheyWereWritten) {
  EXPECT_EQ(LinesOf({"a", "b\r", "\nc", "\n"}), (Lines{"ab", "c"}));
}

TEST(LineReader, LinesOfAnyLengthComeWhole) {
  std::mt19937 random(7);
  Lines expected;
  std::string text;
  for (int i = 0; i < 300; ++i) {
    const std::size_t length = random() % (i % 10 == 0 ? 5 * kBlock : 100);
    expected.push_back(std::string(length, static_cast<char>('a' + i % 26)));
    text += expected.back() + (i % 3 == 0 ? "\r\n" : "\n");
  }
  for (const std::size_t length : {kBlock - 1, kBlock, kBlock + 1, kBlock / 2}) {
    expected.push_back(std::string(length, 'x'));
    text += expected.back() + "\n";
  }
  EXPECT_EQ(LinesOf({text}), expected);
}

TEST(LineReader, AnOverlongLineKeepsItsBeginningAndTheNextLineIsWhole) {
  const std::size_t longest = 2 * kBlock;
  const Lines lines =
      LinesOf({std::string(longest, 'a') + std::string(20 * kBlock, 'b') + "\nc\n"}, longest);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].substr(0, longest), std::string(longest, 'a'));
  EXPECT_LE(lines[0].size(), 2 * longest);
  EXPECT_EQ(lines[1], "c");
}

TEST(LineReader, AnOverlongLineOfBlanksLosesBlanksOnly) {
  const std::string blanks(30 * kBlock, ' ');
  const Lines lines = LinesOf({"1" + blanks + "+" + blanks + "2\nc\n"}, kBlock);
  ASSERT_EQ(lines.size(), 2U);
  std::string text = lines[0];
  EXPECT_LE(text.size(), 2 * kBlock);
  std::erase(text, ' ');
  EXPECT_EQ(text, "1+2");
  EXPECT_EQ(lines[1], "c");
}

TEST(LineReader, ALineWithinTheLimitKeepsItsBlanks) {
  const std::string line = "a" + std::string(kBlock - 2, ' ') + "b";
  EXPECT_EQ(LinesOf({line + "\n"}, kBlock), (Lines{line}));
}

TEST(LineReader, TellsBeforeItWaitsAndOnlyThen) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  int waits = 0;
  LineReader reader(ends[0], kAnyLength, [&] {
    ++waits;
    ASSERT_EQ(write(ends[1], "later\n", 6), 6);
  });
  ASSERT_EQ(write(ends[1], "a\nb\n", 4), 4);
  EXPECT_EQ(reader.Next(), "a");
  EXPECT_EQ(reader.Next(), "b");
  EXPECT_EQ(waits, 0);
  EXPECT_EQ(reader.Next(), "later");
  EXPECT_EQ(waits, 1);
  close(ends[1]);
  EXPECT_EQ(reader.Next(), std::nullopt);
  EXPECT_EQ(waits, 1);
  close(ends[0]);
}

TEST(LineReader, AFailureEndsTheLinesAndIsKept) {
  const int folder = open("/", O_RDONLY | O_DIRECTORY);
  LineReader reader(folder, kAnyLength, [] {});
  EXPECT_EQ(reader.Next(), std::nullopt);
  EXPECT_EQ(reader.Error(), EISDIR);
  EXPECT_EQ(reader.Next(), std::nullopt);
  close(folder);
}

TEST(LineReader, ALineThatLostSomethingSaysSo) {
  const Source source({std::string(3 * kBlock, 'x') + "\nshort\n"});
  LineReader reader(source.Descriptor(), kBlock, [] {});
  ASSERT_TRUE(reader.Next());
  EXPECT_TRUE(reader.IsShortened());
  EXPECT_EQ(reader.Next(), "short");
  EXPECT_FALSE(reader.IsShortened());
  EXPECT_FALSE(reader.Next());
  EXPECT_FALSE(reader.IsEndless());
}

}  // namespace
}  // namespace kav::line_reader_test
