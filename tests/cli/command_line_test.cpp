#include "cli/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "cli/command_hint.h"
#include "cli/commands.h"
#include "cli/option_rows.h"

namespace kav::command_line_test {
namespace {

using Arguments = std::vector<const char*>;
using Items = std::vector<std::string_view>;

/// The command line that `arguments` are, which must be usable.
CommandLine Read(const Arguments& arguments) {
  const auto line = ReadCommandLine(arguments, Commands());
  EXPECT_TRUE(line) << line.error().text;
  return line ? *line : CommandLine{&Commands().front(), {}, {}};
}

TEST(CommandLine, WithoutArgumentsAllIsAsTheHelpSays) {
  const CommandLine line = Read({});
  EXPECT_EQ(line.command->name, "eval");
  EXPECT_EQ(line.items, Items{});
  EXPECT_EQ(line.options.angle, std::nullopt);
  EXPECT_EQ(line.options.base, BaseMode::Decimal);
  EXPECT_EQ(line.options.display.type, DisplayType::FloatingPoint);
  EXPECT_EQ(line.options.display.precision, 7);
  EXPECT_FALSE(line.options.isRaw);
  EXPECT_EQ(line.options.settingsFile, "");
  EXPECT_EQ(line.options.variables, VariableType::X);
  EXPECT_FALSE(line.options.showsSteps);
  EXPECT_EQ(line.options.range, (PlotRange{-10, 10, -10, 10}));
  EXPECT_EQ(line.options.area.top, 0);
  EXPECT_EQ(line.options.area.bottom, 229);
}

TEST(CommandLine, EachChoiceStandsForItsValue) {
  EXPECT_EQ(Read({"--angle", "deg"}).options.angle, AngleUnit::Degrees);
  EXPECT_EQ(Read({"--angle", "rad"}).options.angle, AngleUnit::Radians);
  EXPECT_EQ(Read({"--base", "dec"}).options.base, BaseMode::Decimal);
  EXPECT_EQ(Read({"--base", "hex"}).options.base, BaseMode::Hexadecimal);
  EXPECT_EQ(Read({"--base", "bin"}).options.base, BaseMode::Binary);
  EXPECT_EQ(Read({"--base", "oct"}).options.base, BaseMode::Octal);
  const auto display = [](const char* type) {
    return Read({"--display", type}).options.display.type;
  };
  EXPECT_EQ(display("floating"), DisplayType::FloatingPoint);
  EXPECT_EQ(display("fixed"), DisplayType::FixedPoint);
  EXPECT_EQ(display("scientific"), DisplayType::ScientificNotation);
  EXPECT_EQ(display("thousands"), DisplayType::Thousands);
  EXPECT_EQ(display("engineering"), DisplayType::EngineeringNotation);
  const auto variables = [](const char* names) {
    return Read({"check", "--variables", names}).options.variables;
  };
  EXPECT_EQ(variables("x"), VariableType::X);
  EXPECT_EQ(variables("xy"), VariableType::XY);
  EXPECT_EQ(variables("xyz"), VariableType::XYZ);
  EXPECT_EQ(Read({"macro", "--variables", "xy"}).options.variables, VariableType::XY);
}

TEST(CommandLine, VariablesAreCalledAsTheirOptionTakesThem) {
  EXPECT_EQ(VariablesCalled("x"), VariableType::X);
  EXPECT_EQ(VariablesCalled("xy"), VariableType::XY);
  EXPECT_EQ(VariablesCalled("xyz"), VariableType::XYZ);
  for (const char* text : {"", "y", "X", "x ", "xyzx", "x|xy", "|"}) {
    EXPECT_EQ(VariablesCalled(text), std::nullopt) << text;
  }
}

TEST(CommandLine, SwitchesTextsAndNumbers) {
  const CommandLine line =
      Read({"check", "--raw", "--steps", "--settings", "a=b", "--precision", "12"});
  EXPECT_TRUE(line.options.isRaw);
  EXPECT_TRUE(line.options.showsSteps);
  EXPECT_EQ(line.options.settingsFile, "a=b");
  EXPECT_EQ(line.options.display.precision, 12);
  EXPECT_EQ(Read({"--settings=a=b"}).options.settingsFile, "a=b");
  EXPECT_EQ(Read({"--settings", "[a,b]"}).options.settingsFile, "[a,b]");
  EXPECT_EQ(Read({"--settings", "--raw"}).options.settingsFile, "--raw");
}

TEST(CommandLine, ASwitchMayBeToldToBeOnOrOff) {
  for (const char* on : {"--raw", "--raw=", "--raw=true", "--raw=ON", "--raw=yes", "--raw=1"}) {
    EXPECT_TRUE(Read({on}).options.isRaw) << on;
  }
  for (const char* off : {"--raw=false", "--raw=Off", "--raw=no", "--raw=0", "--raw=-1"}) {
    EXPECT_FALSE(Read({"--raw", off}).options.isRaw) << off;
  }
  EXPECT_EQ(Read({"stats", "--two", "--two=no"}).options.shape, DataShape::OneVariable);
  EXPECT_FALSE(Read({"--version=no"}).options.asksVersion);
}

TEST(CommandLine, OptionsOfSeveralValuesTakeThemAsOneArgumentOrSeveral) {
  const Arguments rows[] = {{"plot", "--range", "-1", "2", "-3e2", ".5", "x"},
                            {"plot", "--range", "-1 2 -3e2 .5", "x"},
                            {"plot", "--range=-1", "2", "-3e2 .5", "x"},
                            {"--range= -1  2 -3e2  .5 ", "plot", "x"},
                            {"plot", "x", "--range", "-1", "2", "-300", "0.5"}};
  for (const Arguments& arguments : rows) {
    const CommandLine line = Read(arguments);
    EXPECT_EQ(line.options.range, (PlotRange{-1, 2, -300, 0.5}));
    EXPECT_EQ(line.items, Items{"x"});
  }
  const CommandLine line = Read({"plot", "--area", "-5", "7", "-1"});
  EXPECT_EQ(line.options.area.top, -5);
  EXPECT_EQ(line.options.area.bottom, 7);
  EXPECT_EQ(line.items, Items{"-1"});
}

TEST(CommandLine, WordsAreWhatIsBetweenBlanks) {
  EXPECT_EQ(Words(""), Items{});
  EXPECT_EQ(Words("  "), Items{});
  EXPECT_EQ(Words("a"), Items{"a"});
  EXPECT_EQ(Words(" a  bc d "), (Items{"a", "bc", "d"}));
}

TEST(CommandLine, TheFirstArgumentThatIsNoOptionMayNameACommand) {
  struct Row {
    Arguments arguments;
    std::string_view command;
    Items items;
  };
  const std::vector<Row> rows{
      {{"1+1"}, "eval", {"1+1"}},
      {{"eval", "1"}, "eval", {"1"}},
      {{"check", "x"}, "check", {"x"}},
      {{"format", "1"}, "format", {"1"}},
      {{"plot", "x"}, "plot", {"x"}},
      {{"keys", "1"}, "keys", {"1"}},
      {{"macro", "list"}, "macro", {"list"}},
      {{"memory", "store", "3", "-1"}, "memory", {"store", "3", "-1"}},
      {{"constants", "list"}, "constants", {"list"}},
      {{"macro", "--variables", "xy", "add", "f", "x"}, "macro", {"add", "f", "x"}},
      {{"--raw", "format", "1"}, "format", {"1"}},
      {{"--base", "hex", "format", "1"}, "format", {"1"}},
      {{"--base=hex", "format", "1"}, "format", {"1"}},
      {{"--settings", "format", "1"}, "eval", {"1"}},
      {{"1", "check"}, "eval", {"1", "check"}},
      {{"keys", "keys", "eval"}, "keys", {"keys", "eval"}},
      {{"--", "check", "x"}, "eval", {"check", "x"}},
      {{"check", "--", "--steps"}, "check", {"--steps"}},
      {{"check", "x", "--steps", "--", "--"}, "check", {"x", "--"}},
      {{"Check"}, "eval", {"Check"}},
      {{""}, "eval", {""}},
      {{"-1", "-.5", "-(1)", "-"}, "eval", {"-1", "-.5", "-(1)", "-"}},
      {{"keys", "[1:2]", "++", "/", "{}"}, "keys", {"[1:2]", "++", "/", "{}"}},
  };
  for (const Row& row : rows) {
    const CommandLine line = Read(row.arguments);
    EXPECT_EQ(line.command->name, row.command) << row.arguments.front();
    EXPECT_EQ(line.items, row.items) << row.arguments.front();
  }
}

TEST(CommandLine, TheFirstArgumentMayBeTheMisspeltNameOfACommand) {
  const auto hint = [](const Arguments& arguments) {
    return CommandHint(Read(arguments), Commands()).value_or("");
  };
  EXPECT_EQ(hint({"--raw", "statz", "data.txt"}),
            "\"statz\" is no command; did you mean \"kavcalc stats\"?");
  for (const auto& [word, call] :
       {std::pair{"evla", "eval"}, std::pair{"matrx", "matrix"}, std::pair{"CONVERT", "convert"},
        std::pair{"key", "keys"}, std::pair{"Help", "--help"}, std::pair{"version", "--version"}}) {
    EXPECT_NE(hint({word}).find("\"kavcalc " + std::string(call) + "\""), std::string::npos)
        << word;
  }
  for (const Arguments& none : {Arguments{},
                                {"e"},
                                {"sin"},
                                {"stats1"},
                                {"1+1", "statz"},
                                {"eval", "statz"},
                                {"--", "statz"},
                                {"stats", "statz"}}) {
    EXPECT_EQ(hint(none), "") << none.size();
  }
}

TEST(CommandLine, UnusableArgumentsEndWithStatus2) {
  const std::vector<Arguments> rows{
      {"--bogus"},
      {"-pi"},
      {"--angle"},
      {"--angle", "grad"},
      {"--angle=", "1"},
      {"--base", "16"},
      {"--precision", "-1"},
      {"--precision", "100"},
      {"--precision="},
      {"--settings="},
      {"--variables", "x"},
      {"--steps"},
      {"--raw=perhaps"},
      {"---"},
      {"-x", "1"},
      {"memory", "--variables", "x"},
      {"macro", "--steps"},
      {"plot", "--range", "1", "2", "3"},
      {"plot", "--area", "1"},
      {"plot", "--area", "1", "x"},
      {"--range", "0", "1", "0", "1"},
  };
  for (const Arguments& arguments : rows) {
    const auto line = ReadCommandLine(arguments, Commands());
    ASSERT_FALSE(line) << arguments.front();
    EXPECT_EQ(line.error().status, 2) << arguments.front();
    EXPECT_EQ(line.error().text.substr(0, 9), "kavcalc: ") << arguments.front();
    EXPECT_NE(line.error().text.find("\nUsage: kavcalc "), std::string::npos) << arguments.front();
  }
}

TEST(CommandLine, OptionsThatTheCommandLacksAreNamedTheLastFirst) {
  const auto line = ReadCommandLine(Arguments{"--bogus=3", "1", "--x", "2", "--two"}, Commands());
  ASSERT_FALSE(line);
  EXPECT_EQ(line.error().text,
            "kavcalc: The following arguments were not expected: --two 2 --x --bogus=3\n"
            "Usage: kavcalc [eval] [OPTION]... [--] [EXPRESSION]...\n");
}

TEST(CommandLine, HelpAndVersionEndWithStatus0) {
  for (const char* argument : {"--help", "-h", "--version"}) {
    const auto line = ReadCommandLine(Arguments{argument}, Commands());
    ASSERT_FALSE(line) << argument;
    EXPECT_EQ(line.error().status, 0) << argument;
    EXPECT_EQ(line.error().text.back(), '\n') << argument;
  }
}

}  // namespace
}  // namespace kav::command_line_test
