// The prompt, at a terminal. Keys are typed only when the prompt is there: the terminal is set up
// for each line, and what was typed before may be lost.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <utility>

#include "cli/terminal.h"
#include "settings/past_lines.h"
#include "support/temporary_folder.h"

namespace kav::test::prompt_test {
namespace {

constexpr const char* kUp = "\x1b[A";
constexpr const char* kControlC = "\x03";
constexpr const char* kControlD = "\x04";

class Prompt : public testing::Test {
 protected:
  Terminal::Environment Environment() const {
    return {{"HOME", home_.Path()},
            {"TERM", "xterm"},
            {"LC_ALL", "tr_TR.UTF-8"},
            // The library for line editing never frees the names of the functions it was given.
            {"ASAN_OPTIONS", "detect_leaks=0"}};
  }
  std::string State(const std::string& name) const {
    return home_.File(".local/state/kav-calculator/" + name);
  }
  /// The records of the history without their ids.
  std::string HistoryText() const {
    std::istringstream records(FileContent(State("past_lines")));
    std::string text;
    for (std::string record; std::getline(records, record);) {
      text.append(record.substr(std::min(record.find('\t'), record.size()))).append("\n");
    }
    return text;
  }

  TemporaryFolder home_;
};

TEST_F(Prompt, AnswersEachLineAtOnceUntilControlD) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1+1\r");
  ASSERT_TRUE(terminal.Shows("1+1\r\n2\r\n> "));
  terminal.Type("2*sin(30)+3!\r");
  ASSERT_TRUE(terminal.Shows("\r\n7\r\n> "));
  terminal.Type(kControlD);
  EXPECT_EQ(terminal.Status(), 0);
}

TEST_F(Prompt, AnswersWithTheOptionsGiven) {
  Terminal terminal({"eval", "--base", "hex"}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("FF AND F\r");
  EXPECT_TRUE(terminal.Shows("\r\nF\r\n> "));
}

TEST_F(Prompt, ShowsFailuresAndCountsThemInTheStatus) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("(1\r");
  ASSERT_TRUE(terminal.Shows("\r\nerror: Not matched '(' and ')'.\r\n> "));
  terminal.Type(kControlD);
  EXPECT_EQ(terminal.Status(), 1);
}

TEST_F(Prompt, NoControlCharacterOfANameReachesTheTerminal) {
  const std::string name = "a\x7f\x1b[31m\xc2\x9b";
  Terminal answer({"macro", "add", name, "x"}, Environment());
  EXPECT_TRUE(answer.Shows("a\\x7f [31m\\xc2\\x9b(X)\r\n"));
  EXPECT_EQ(answer.Status(), 0);
  Terminal failure({"format", name}, Environment());
  EXPECT_TRUE(failure.Shows("error: \"a\\x7f\\x1b[31m\\xc2\\x9b\" is not a number.\r\n"));
  Terminal complaint({"convert", name}, Environment());
  EXPECT_TRUE(complaint.Shows("no category \"a\\x7f\\x1b[31m\\xc2\\x9b\";"));
}

TEST_F(Prompt, AnEmptyLineIsNoQuestion) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("\r");
  ASSERT_TRUE(terminal.Shows("\r\n> "));
  terminal.Type("  \r");
  ASSERT_TRUE(terminal.Shows("\r\n> "));
  terminal.Type(kControlD);
  EXPECT_EQ(terminal.Status(), 0);
  EXPECT_EQ(HistoryText(), "");
}

TEST_F(Prompt, TakesCharactersBeyondAscii) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1+\xc3\xa9\r");
  EXPECT_TRUE(terminal.Shows("error: \xc3\xa9 is not supported.\r\n"));
}

TEST_F(Prompt, ReadsTypedLinesInItsOwnSpelling) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  for (const auto& [line, answer] :
       {std::pair{"2×3−√4", "4"}, std::pair{"1,234,567.5*2", "2469135"},
        std::pair{"1 234+1’000", "2234"}, std::pair{"２²", "4"}}) {
    terminal.Type(std::string(line) + "\r");
    ASSERT_TRUE(terminal.Shows("\r\n" + std::string(answer) + "\r\n> ")) << line;
  }
}

TEST_F(Prompt, AsksWhatACommaMeansAndWaits) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  for (const auto& [answer, value] :
       {std::pair{"1", "2468"}, std::pair{"2", "2.468"}, std::pair{"1.234", "2.468"}}) {
    terminal.Type("1,234*2\r");
    ASSERT_TRUE(terminal.Shows("\r\n1,234: 1234 or 1.234? [1/2] "));
    terminal.Type(std::string(answer) + "\r");
    ASSERT_TRUE(terminal.Shows("\r\n" + std::string(value) + "\r\n> ")) << answer;
  }
  terminal.Type("0,5\r");
  ASSERT_TRUE(terminal.Shows("\r\n0,5: 0.5? [1] "));
  terminal.Type("\r");
  ASSERT_TRUE(terminal.Shows("\r\nerror: , is not supported."));
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1,5\r");
  ASSERT_TRUE(terminal.Shows("1,5: 15 or 1.5? [1/2] "));
  terminal.Type(kControlC);
  ASSERT_TRUE(terminal.Shows("error: , is not supported."));
}

TEST_F(Prompt, ControlCGivesUpTheLineAndNothingElse) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("999");
  ASSERT_TRUE(terminal.Shows("999"));
  terminal.Type(kControlC);
  ASSERT_TRUE(terminal.Shows("\r\n> "));
  terminal.Type("1+1\r");
  ASSERT_TRUE(terminal.Shows("\r\n2\r\n> "));
  terminal.Type(kControlD);
  EXPECT_EQ(terminal.Status(), 0);
}

TEST_F(Prompt, EndsWhenItsTerminalGoes) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Close();
  EXPECT_TRUE(terminal.Ends());
}

TEST_F(Prompt, TheArrowGoesBackToTheLineBefore) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("20+3\r");
  ASSERT_TRUE(terminal.Shows("\r\n23\r\n> "));
  terminal.Type(kUp);
  ASSERT_TRUE(terminal.Shows("20+3"));
  terminal.Type("*2\r");
  EXPECT_TRUE(terminal.Shows("\r\n26\r\n> "));
}

TEST_F(Prompt, LinesOutliveTheirRunEvenIfItWasKilled) {
  {
    Terminal terminal({}, Environment());
    ASSERT_TRUE(terminal.Shows("> "));
    terminal.Type("20+3\r");
    ASSERT_TRUE(terminal.Shows("\r\n23\r\n> "));
    terminal.Kill();
  }
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type(kUp);
  EXPECT_TRUE(terminal.Shows("20+3"));
}

TEST_F(Prompt, EqualNeighboursAreRememberedOnce) {
  Terminal terminal({}, Environment());
  for (const char* line : {"1+1\r", "1+1\r", "3+1\r", "1+1\r"}) {
    ASSERT_TRUE(terminal.Shows("> "));
    terminal.Type(line);
    ASSERT_TRUE(terminal.Shows("\r\n"));
  }
  ASSERT_TRUE(terminal.Shows("> "));
  EXPECT_EQ(HistoryText(), "\tP\t1\t1+1\t2\n\tP\t1\t3+1\t4\n\tP\t1\t1+1\t2\n");
}

TEST_F(Prompt, TheHistoryHasAnswersBasesAndFailedLines) {
  Terminal terminal({"--base", "hex"}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("F+1\r");
  ASSERT_TRUE(terminal.Shows("\r\n10\r\n> "));
  terminal.Type("(1\r");
  ASSERT_TRUE(terminal.Shows("error: "));
  ASSERT_TRUE(terminal.Shows("> "));
  EXPECT_EQ(HistoryText(), "\tP\t2\tF+1\t10\n\tP\t2\t(1\t\n");
}

TEST_F(Prompt, TheArrowGoesBackToLinesOfTheWindowToo) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1+1\r");
  ASSERT_TRUE(terminal.Shows("\r\n2\r\n> "));
  PutFile(State("past_lines"), FileContent(State("past_lines")) +
                                   "9000000000000000\tS\t1\t40+4\t44\n"
                                   "9000000000000001\tM\t1\t[M1]\t\n");
  terminal.Type("\r");
  ASSERT_TRUE(terminal.Shows("\r\n> "));
  terminal.Type(kUp);
  EXPECT_TRUE(terminal.Shows("40+4"));
}

TEST_F(Prompt, TheFileOfAnEarlierVersionIsTakenOver) {
  std::filesystem::create_directories(home_.File(".local/state/kav-calculator"));
  PutFile(State("kavcalc_history"), "20+3\n");
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type(kUp);
  ASSERT_TRUE(terminal.Shows("20+3"));
  EXPECT_EQ(HistoryText(), "\tP\t1\t20+3\t\n");
  EXPECT_FALSE(Exists(State("kavcalc_history")));
}

TEST_F(Prompt, NothingIsKeptIfTheSettingsSaySo) {
  std::filesystem::create_directories(home_.File(".config/kav-calculator"));
  PutFile(home_.File(".config/kav-calculator/settings.toml"), "[Config]\n\"Keep History\" = 0\n");
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("20+3\r");
  ASSERT_TRUE(terminal.Shows("\r\n23\r\n> "));
  terminal.Type(kUp);
  EXPECT_TRUE(terminal.Shows("20+3")) << "until the prompt ends";
  EXPECT_FALSE(Exists(State("past_lines")));
}

TEST_F(Prompt, ALineThatIsTooLongToBeKeptIsStillTheOneBefore) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type(std::string(PastLines::kLongestLine + 1, '1') + "\r");
  ASSERT_TRUE(terminal.Shows("error: "));
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type(std::string(kUp) + "\r");
  EXPECT_TRUE(terminal.Shows("error: "));
}

TEST_F(Prompt, TheHistoryFollowsXdgStateHomeAndIsForItsOwnerOnly) {
  auto environment = Environment();
  environment["XDG_STATE_HOME"] = home_.File("state");
  Terminal terminal({}, environment);
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1+1\r");
  ASSERT_TRUE(terminal.Shows("\r\n2\r\n> "));
  EXPECT_EQ(PermissionsOf(home_.File("state/kav-calculator/past_lines")), 0600U);
}

TEST_F(Prompt, AHistoryThatCannotBeKeptIsToldOnce) {
  auto environment = Environment();
  environment["XDG_STATE_HOME"] = "/dev/null/nowhere";
  Terminal terminal({}, environment);
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1+1\r");
  ASSERT_TRUE(terminal.Shows("\r\n2\r\n"));
  ASSERT_TRUE(terminal.Shows(
      "kavcalc: The history cannot be kept in /dev/null/nowhere/kav-calculator/past_lines: "));
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("2+2\r");
  ASSERT_TRUE(terminal.Shows("2+2\r\n4\r\n> "));
}

TEST_F(Prompt, TabCompletesTheNameOfAFunction) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1+sq\t");
  ASSERT_TRUE(terminal.Shows("rt("));
  terminal.Type("9)\r");
  EXPECT_TRUE(terminal.Shows("\r\n4\r\n> "));
}

TEST_F(Prompt, TabListsWhatItCannotTellApart) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("sin\t");
  EXPECT_TRUE(terminal.Shows("\r\nsin(  sinh(\r\n"));
  EXPECT_TRUE(terminal.Shows("> sin"));
}

TEST_F(Prompt, TabCompletesTheNameOfAMacro) {
  const std::string settings = home_.File("mine.toml");
  PutFile(settings,
          "[MacroInfo]\nTotalNumber = 1\n[Macro0]\nName = \"area\"\n"
          "Type = \"TYPE2 : F(X,Y)\"\nFormula = \"x*y\"\n");
  Terminal terminal({"--settings", settings}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("M\t");
  ASSERT_TRUE(terminal.Shows(":area("));
  terminal.Type("2,3)\r");
  EXPECT_TRUE(terminal.Shows("\r\n6\r\n> "));
}

TEST_F(Prompt, InABaseNoFunctionIsOffered) {
  Terminal terminal({"--base", "bin"}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("sq\t");
  terminal.Type("\r");
  EXPECT_TRUE(terminal.Shows("error: Expression error.\r\n"));
}

TEST_F(Prompt, ThereIsNoneIfTheAnswersGoToAFile) {
  const std::string answers = home_.File("answers");
  {
    Terminal terminal({}, Environment(), answers);
    terminal.Type("1+1\n");
    terminal.Type(kControlD);
    ASSERT_EQ(terminal.Status(), 0);
  }
  EXPECT_EQ(FileContent(answers), "2\n");
}

TEST_F(Prompt, OtherCommandsReadATerminalLineByLine) {
  Terminal terminal({"format", "--base", "hex"}, Environment());
  terminal.Type("255\n");
  ASSERT_TRUE(terminal.Shows("255\r\nFF\r\n"));
  terminal.Type(kControlD);
  EXPECT_EQ(terminal.Status(), 0);
  EXPECT_EQ(terminal.Unread().find("> "), std::string::npos);
}

TEST_F(Prompt, AnUnknownTerminalWillDo) {
  auto environment = Environment();
  environment["TERM"] = "unheard-of";
  Terminal terminal({}, environment);
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1+1\r");
  EXPECT_TRUE(terminal.Shows("2\r\n> "));
}

TEST_F(Prompt, TheLastAnswerIsAWord) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1/8\r");
  ASSERT_TRUE(terminal.Shows("\r\n0.125\r\n> "));
  terminal.Type("1/0\r");
  ASSERT_TRUE(terminal.Shows("limit.\r\n> "));
  terminal.Type("8*an\t\r");
  ASSERT_TRUE(terminal.Shows("s\r\n1\r\n> "));
}

TEST_F(Prompt, AFailureIsShownWithItsPlaceAndWhatWasMeant) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("1+sine(30)\r");
  ASSERT_TRUE(
      terminal.Shows("\r\n  1+sine(30)\r\n    ^\r\ndid you mean 1+sin(30)?\r\n"
                     "error: sine is not supported.\r\n> "));
}

TEST_F(Prompt, AnArgumentThatFailsAtATerminalIsShownSo) {
  Terminal terminal({"2*(1+sine(30))", "7"}, Environment());
  EXPECT_TRUE(
      terminal.Shows("  2*(1+sine(30))\r\n       ^\r\ndid you mean 2*(1+sin(30))?\r\n"
                     "error: sine is not supported.\r\n7\r\n"));
  EXPECT_EQ(terminal.Status(), 1);
}

TEST_F(Prompt, HelpTellsWhatToTypeAndQuitEnds) {
  Terminal terminal({}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type(" Help \r");
  ASSERT_TRUE(terminal.Shows("\r\nType an expression"));
  ASSERT_TRUE(terminal.Shows("\"quit\" or Ctrl-D ends"));
  ASSERT_TRUE(terminal.Shows("\r\n> "));
  terminal.Type("help+1\r");
  ASSERT_TRUE(terminal.Shows("error: help is not supported.\r\n> "));
  terminal.Type("quit\r");
  EXPECT_EQ(terminal.Status(), 1);
}

}  // namespace
}  // namespace kav::test::prompt_test
