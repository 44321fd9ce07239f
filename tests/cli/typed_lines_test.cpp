// Commands whose items are typed at a terminal. Keys are typed only when the command waits for
// them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/terminal.h"
#include "support/temporary_folder.h"

namespace kav::test::typed_lines_test {
namespace {

constexpr const char* kUp = "\x1b[A";
constexpr const char* kControlC = "\x03";
constexpr const char* kControlD = "\x04";

class TypedLines : public testing::Test {
 protected:
  Terminal::Environment Environment() const {
    return {{"HOME", home_.Path()},
            {"TERM", "xterm"},
            {"LC_ALL", "tr_TR.UTF-8"},
            // The library for line editing never frees the names of the functions it was given.
            {"ASAN_OPTIONS", "detect_leaks=0"}};
  }

  TemporaryFolder home_;
};

TEST_F(TypedLines, EachCommandSaysWhatItWaitsFor) {
  struct Row {
    std::vector<std::string> arguments;
    const char* awaited;
  };
  for (const Row& row :
       {Row{{"check"}, "A formula a line; Ctrl+D ends.\r\n"},
        Row{{"format"}, "A number a line; Ctrl+D ends.\r\n"},
        Row{{"matrix"}, "A matrix expression a line; Ctrl+D ends.\r\n"},
        Row{{"stats"}, "The name of a data file a line; Ctrl+D ends.\r\n"},
        Row{{"stats", "-"}, "Rows of data; Ctrl+D ends.\r\n"},
        Row{{"plot"}, "An equation in x a line; Ctrl+D ends.\r\n"},
        Row{{"convert", "length", "Miles", "Meters"}, "A value a line; Ctrl+D ends.\r\n"},
        Row{{"convert", "user", "add"},
            "A unit, a tab, the unit to convert it to, a tab and the rate a line; Ctrl+D "
            "ends.\r\n"},
        Row{{"convert", "user", "remove"}, "A conversion a line; Ctrl+D ends.\r\n"},
        Row{{"keys"}, "A key a line; Ctrl+D ends.\r\n"},
        Row{{"macro", "add"}, "A name, a tab and a formula a line; Ctrl+D ends.\r\n"},
        Row{{"macro", "remove"}, "The name of a macro a line; Ctrl+D ends.\r\n"},
        Row{{"memory", "store"}, "A number, a tab and an expression a line; Ctrl+D ends.\r\n"},
        Row{{"memory", "clear"}, "A number, or \"all\", a line; Ctrl+D ends.\r\n"},
        Row{{"settings", "import"}, "What settings export printed; Ctrl+D ends.\r\n"},
        Row{{"matrix", "--m1", "-", "[M1]"}, "A matrix as its file holds it; Ctrl+D ends.\r\n"}}) {
    Terminal terminal(row.arguments, Environment());
    EXPECT_TRUE(terminal.Shows(row.awaited)) << row.awaited;
  }
}

TEST_F(TypedLines, WithItemsNothingIsAwaited) {
  Terminal terminal({"format", "1"}, Environment());
  ASSERT_TRUE(terminal.Shows("1\r\n"));
  EXPECT_EQ(terminal.Status(), 0);
  EXPECT_EQ(terminal.Unread(), "");
}

TEST_F(TypedLines, CanBeEditedRecalledAndGivenUp) {
  Terminal terminal({"format", "--base", "hex"}, Environment());
  ASSERT_TRUE(terminal.Shows("Ctrl+D ends.\r\n"));
  terminal.Type("2556\x7f\r");
  ASSERT_TRUE(terminal.Shows("\r\nFF\r\n"));
  terminal.Type(kUp);
  ASSERT_TRUE(terminal.Shows("255"));
  terminal.Type("0\r");
  ASSERT_TRUE(terminal.Shows("\r\n9F6\r\n"));
  // What the arrow recalls shows that the line is being edited: until then Ctrl-C ends the program.
  terminal.Type(kUp);
  ASSERT_TRUE(terminal.Shows("2550"));
  terminal.Type(kControlC);
  ASSERT_TRUE(terminal.Shows("\r\n"));
  terminal.Type("x\r");
  ASSERT_TRUE(terminal.Shows("\r\nerror: \"x\" is not a number.\r\n"));
  terminal.Type(kControlD);
  EXPECT_EQ(terminal.Status(), 1);
}

TEST_F(TypedLines, TabCompletesFunctionsInFormulas) {
  Terminal terminal({"check"}, Environment());
  ASSERT_TRUE(terminal.Shows("Ctrl+D ends.\r\n"));
  terminal.Type("sq\t");
  ASSERT_TRUE(terminal.Shows("rt("));
  terminal.Type("x)\r");
  EXPECT_TRUE(terminal.Shows("\r\nok\r\n"));
  Terminal matrix({"matrix"}, Environment());
  ASSERT_TRUE(matrix.Shows("Ctrl+D ends.\r\n"));
  matrix.Type("transp\t");
  EXPECT_TRUE(matrix.Shows("ose("));
}

TEST_F(TypedLines, TabPartsAnItemThatHasParts) {
  Terminal terminal({"macro", "add"}, Environment());
  ASSERT_TRUE(terminal.Shows("Ctrl+D ends.\r\n"));
  terminal.Type("area\tx*y\txy\r");
  ASSERT_TRUE(terminal.Shows("\r\narea(X,Y)\r\n"));
  terminal.Type(kControlD);
  EXPECT_EQ(terminal.Status(), 0);
}

TEST_F(TypedLines, KeysAreAnsweredAtTheEnd) {
  Terminal terminal({"keys"}, Environment());
  ASSERT_TRUE(terminal.Shows("Ctrl+D ends.\r\n"));
  for (const char* key : {"7", "*", "6", "="}) {
    terminal.Type(std::string(key) + "\r");
    ASSERT_TRUE(terminal.Shows("\r\n"));
  }
  terminal.Type(kControlD);
  EXPECT_TRUE(terminal.Shows("[7*6]"));
  EXPECT_EQ(terminal.Status(), 0);
}

TEST_F(TypedLines, AnswersThatGoToAFileLeaveTheTerminalAsItIs) {
  const std::string answers = home_.File("answers");
  {
    Terminal terminal({}, Environment(), answers);
    ASSERT_TRUE(terminal.Shows("An expression a line; Ctrl+D ends.\r\n"));
    terminal.Type("1+1\n");
    ASSERT_TRUE(terminal.Shows("1+1\r\n"));
    terminal.Type(kControlD);
    ASSERT_EQ(terminal.Status(), 0);
  }
  EXPECT_EQ(FileContent(answers), "2\n");
}

TEST_F(TypedLines, ThePromptEndsByEitherWordAndAnswersInJson) {
  Terminal terminal({"--json"}, Environment());
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("2*(3\r");
  ASSERT_TRUE(terminal.Shows("2*(3\r\n{\"item\":\"2*(3\",\"error\":\"Not matched '(' and ')'.\""));
  ASSERT_TRUE(terminal.Shows("}\r\n> "));
  terminal.Type("ans+1\r");
  ASSERT_TRUE(terminal.Shows("\r\n{\"item\":\"ans+1\",\"result\":1,\"text\":\"1\"}\r\n> "));
  terminal.Type("help\r");
  ASSERT_TRUE(terminal.Shows("\r\nType an expression and press Enter:\r\n"));
  ASSERT_TRUE(terminal.Shows("\"kavcalc --help\" names"));
  ASSERT_TRUE(terminal.Shows("> "));
  terminal.Type("Exit\r");
  EXPECT_EQ(terminal.Status(), 1);
}

TEST_F(TypedLines, AMisspeltCommandIsSaidOnce) {
  Terminal terminal({"statz", "data.txt"}, Environment());
  ASSERT_TRUE(
      terminal.Shows("kavcalc: \"statz\" is no command; did you mean \"kavcalc stats\"?\r\n"
                     "error: statz is not supported.\r\n"));
  EXPECT_EQ(terminal.Status(), 1);
  // It shows where the next one failed, which is no command anyway.
  EXPECT_EQ(terminal.Unread().find("did you mean"), std::string::npos);
}

}  // namespace
}  // namespace kav::test::typed_lines_test
