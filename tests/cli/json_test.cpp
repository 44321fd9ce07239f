// Answers as JSON: how values are written, and that every command's objects say what its lines say.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/answer_json.h"
#include "cli/json_text.h"
#include "cli/json_value.h"
#include "support/temporary_folder.h"

namespace kav::test::json_test {
namespace {

std::string TextOf(std::string_view text) {
  std::string out;
  AppendJsonText(out, text);
  return out;
}

std::string NumberOf(double value) {
  std::string out;
  AppendJsonNumber(out, value);
  return out;
}

TEST(Json, TextsHoldNoCharacterThatATerminalObeysAndNothingButUtf8) {
  EXPECT_EQ(TextOf(""), "\"\"");
  EXPECT_EQ(TextOf("a\"b\\c/"), "\"a\\\"b\\\\c/\"");
  EXPECT_EQ(TextOf("\b\f\n\r\t"), "\"\\b\\f\\n\\r\\t\"");
  EXPECT_EQ(TextOf(std::string_view("\0\x1b\x1f \x7f", 5)), "\"\\u0000\\u001b\\u001f \\u007f\"");
  EXPECT_EQ(TextOf("\xC2\x9B\xC2\xA0"), "\"\\u009b\xC2\xA0\"");
  EXPECT_EQ(TextOf("é→😀"), "\"é→😀\"");
  EXPECT_EQ(TextOf("\xFF\xC3(\xE2\x82"), "\"\uFFFD\uFFFD(\uFFFD\uFFFD\"");
  // Half of a pair, and an ASCII character in two bytes.
  EXPECT_EQ(TextOf("\xED\xA0\x80\xC1\x81"), "\"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\"");
}

TEST(Json, NumbersReadBackAsTheSameWithTheFewestDigits) {
  EXPECT_EQ(NumberOf(0), "0");
  EXPECT_EQ(NumberOf(-0.0), "-0");
  EXPECT_EQ(NumberOf(0.1), "0.1");
  EXPECT_EQ(NumberOf(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(NumberOf(1e22), "1e+22");
  EXPECT_EQ(NumberOf(5e-324), "5e-324");
  for (const double value : {1.0 / 3, 123456789.123456789, 1.7976931348623157e308, -2.5e-7}) {
    const auto read = ReadJson(NumberOf(value));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Number(), value);
  }
  EXPECT_EQ(NumberOf(INFINITY), "\"inf\"");
  EXPECT_EQ(NumberOf(-INFINITY), "\"-inf\"");
  EXPECT_EQ(NumberOf(-std::numeric_limits<double>::quiet_NaN()), "\"nan\"");
}

std::string ObjectOf(std::optional<std::string_view> item, const Answer& answer) {
  Options options;
  options.isJson = true;
  std::string out;
  AppendJsonAnswer(out, item, answer, options);
  return out;
}

TEST(Json, PositionsCountTheCharactersOfTheItem) {
  const auto positionIn = [](std::string_view item, std::size_t byte) {
    return (*ReadJson(ObjectOf(item, Failure{"no", byte})))["position"].text;
  };
  EXPECT_EQ(positionIn("1+x", 2), "2");
  EXPECT_EQ(positionIn("é😀+x", 7), "3");
  EXPECT_EQ(positionIn("\xFF\xFE+x", 3), "3");
  EXPECT_EQ(positionIn("ab", 2), "2");
  EXPECT_FALSE(ReadJson(ObjectOf("a", Failure{"no"}))->Has("position"));
}

TEST(Json, ANumberThatTheDisplayCannotShowIsAFailure) {
  EXPECT_EQ(ObjectOf("x", std::numeric_limits<double>::infinity()),
            "{\"item\":\"x\",\"error\":\"Out of range(overflow or underflow)\","
            "\"text\":\"error: Out of range(overflow or underflow)\"}\n");
}

JsonValue Schema() {
  const auto schema = ReadJson(FileContent(KAV_DOCS_FOLDER "/kavcalc.schema.json"));
  EXPECT_TRUE(schema);
  return schema.value_or(JsonValue());
}

TEST(Json, TheSchemaRefusesWhatNoCommandAnswers) {
  const JsonValue schema = Schema();
  for (const char* good :
       {R"({"item":"1","result":1.5,"text":"1.5"})", R"({"item":null,"result":[],"text":""})",
        R"({"item":"x","error":"no","position":0,"text":"error: no"})"}) {
    EXPECT_EQ(SchemaCheck::Fault(*ReadJson(good), schema), "") << good;
  }
  for (const char* bad :
       {R"([])", R"({"item":"1","result":1})", R"({"result":1,"text":"1"})",
        R"({"item":"1","text":"1"})", R"({"item":"1","result":1,"error":"no","text":"1"})",
        R"({"item":1,"result":1,"text":"1"})", R"({"item":"1","result":null,"text":"1"})",
        R"({"item":"1","result":[1],"text":"1"})", R"({"item":"1","result":[[]],"text":"1"})",
        R"({"item":"1","result":[[[]]],"text":"1"})", R"({"item":"1","result":true,"text":"1"})",
        R"({"item":"x","error":"","text":"error: "})",
        R"({"item":"x","error":"no","position":-1,"text":"error: no"})",
        R"({"item":"x","error":"no","position":0.5,"text":"error: no"})",
        R"({"item":"x","result":1,"position":0,"text":"1"})",
        R"({"item":"x","result":1,"text":"1","more":1})"}) {
    const auto value = ReadJson(bad);
    ASSERT_TRUE(value) << bad;
    EXPECT_NE(SchemaCheck::Fault(*value, schema), "") << bad;
  }
  for (const char* none : {"", "{", "{}{}", "{\"a\":1,\"a\":2}", "01", "1.", "nan", "\"\n\"",
                           "\"\\x\"", "\"a", "[1,]"}) {
    EXPECT_FALSE(ReadJson(none)) << none;
  }
}

/// Each command of kavcalc, with items that it answers and others that fail.
constexpr const char* kScript = R"sh(
printf '[2*2]\n2\t1\n1\t0.1\n' >m.txt
printf '2\t3\n4\t1\n1e400\t1\n' >d.txt
printf '1 1 1\n2 4 1\n3 9 1\n' >two.txt
run() { kavcalc "$@"; echo "status $?"; }
printf '1+1\n\n(1\n\377+1\n' | run $1
run $1 --angle deg 1/3 'sin(30)' 'M:none(1)' 1e400 1/0
run $1 --base hex 'FF AND F' 'G' '10^20'
run $1 check 'x^2+1' 'x+y' x --steps
run $1 format 12 1e3 nan -- inf abc
run $1 format --raw nan -- -inf
run $1 matrix --m1 m.txt 'inverse([M1])' '[M1]+[M Ans]' 1+1 '[M2]' '[M1]+[Q]'
run $1 matrix --m1 m.txt --crlf '[M1]'
run $1 stats d.txt missing
run $1 stats --two --model quadratic --x 4 --y 4 --y -1 two.txt
run $1 plot --range -1 1 -1 1 '1/x' 'x+' 'sin(x)'
run $1 convert length Miles Meters 1 abc 1e308
run $1 convert --list
run $1 convert user add inch cm 2.54
printf 'a\tb\t0\nc\td\t1e-3\n' | run $1 convert user add
run $1 convert user list
run $1 convert user remove 'inch -> cm' nothing
run $1 keys --angle deg SIN 3 0 =
run $1 keys 1 / 0 =
run $1 keys 7 Seven 8
run $1 keys '"a	b"'
run $1 macro add sq x^2
printf 'sq\tx\ncube\tx^3\n' | run $1 macro add
run $1 macro list
run $1 macro remove sq nothing
run $1 memory store 3 2^3+1
printf '1\t1+sine(2)\n21\t5\n2\t1/8\n' | run $1 memory store
run $1 memory list
run $1 memory clear 3 0 all
run $1 settings export
run $1 settings export all.toml
run $1 settings import all.toml
run $1 settings import missing
run $1 constants speed light
run $1 constants nothing at all
)sh";

/// The lines of `text` that are not blank, without CR: objects have no blank line between two
/// plots, and their texts no end.
std::vector<std::string> LinesIn(std::string text) {
  std::erase(text, '\r');
  std::istringstream all(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(all, line);) {
    if (!line.empty()) lines.push_back(line);
  }
  return lines;
}

/// What the script writes with `option` in an empty folder, line by line.
std::vector<std::string> LinesOfScript(const std::string& option) {
  const TemporaryFolder folder;
  PutFile(folder.File("script.sh"), kScript);
  std::filesystem::create_symlink(KAVCALC, folder.File("kavcalc"));
  const std::string shell = "cd '" + folder.Path() +
                            "' && HOME=$PWD XDG_CONFIG_HOME=$PWD PATH=$PWD:$PATH sh script.sh " +
                            option + " 2>err";
  FILE* const output = popen(shell.c_str(), "r");
  if (output == nullptr) return {};
  std::string text;
  for (int c = getc(output); c != EOF; c = getc(output)) text += static_cast<char>(c);
  pclose(output);
  return LinesIn(text);
}

TEST(Json, EveryCommandSaysTheSameInObjectsAsInLines) {
  const JsonValue schema = Schema();
  std::vector<std::string> said;
  for (const std::string& line : LinesOfScript("--json")) {
    if (line.starts_with("status ")) {
      said.push_back(line);
      continue;
    }
    const auto object = ReadJson(line);
    ASSERT_TRUE(object) << line;
    ASSERT_EQ(SchemaCheck::Fault(*object, schema), "") << line;
    const std::string& text = (*object)["text"].text;
    EXPECT_EQ(object->Has("error"), text.starts_with("error: ")) << line;
    for (const std::string& one : LinesIn(text)) said.push_back(one);
  }
  std::vector<std::string> lines = LinesOfScript("");
  // Objects cannot hold bytes that are no UTF-8.
  for (std::string& line : lines) line = ReadJson(TextOf(line))->text;
  ASSERT_EQ(said.size(), lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) ASSERT_EQ(said[i], lines[i]) << "line " << i;
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "status 2"), 0) << "each is a command";
}

}  // namespace
}  // namespace kav::test::json_test
