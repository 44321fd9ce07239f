#include "engine/token_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kav::token_reader_test {
namespace {

using std::string_view_literals::operator""sv;

TEST(TokenReader, ReadsWordsBetweenBlanks) {
  TokenReader reader("  sin Cos30");
  reader.SkipBlanks();
  EXPECT_EQ(reader.Peek(), 's');
  EXPECT_EQ(reader.TakeWord(), "sin");
  EXPECT_EQ(reader.TakeWord(), "");
  reader.SkipBlanks();
  EXPECT_EQ(reader.TakeWord(), "Cos");
  EXPECT_EQ(reader.Rest(), "30");
  reader.Skip();
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_EQ(reader.TakeWhile(IsDigit<char>), "0");
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(reader.Rest(), "");
  reader.SkipBlanks();
  EXPECT_TRUE(reader.AtEnd());
}

TEST(TokenReader, OnlyTheBlankItselfIsBlank) {
  for (const char c : "\t\n\r\v\f\0"sv) {
    const std::string text(1, c);
    TokenReader reader(text);
    reader.SkipBlanks();
    EXPECT_FALSE(reader.AtEnd());
  }
}

TEST(ReadShift, TakesExactlyTwoOfAKind) {
  for (const std::string_view text : {"<<", ">>", "<<3", ">>(", "<< <"}) {
    TokenReader reader(text);
    TokenArray tokens;
    EXPECT_FALSE(ReadShift(reader, tokens)) << text;
    ASSERT_EQ(tokens.Count(), 1) << text;
    EXPECT_EQ(tokens[0].symbol, text.front());
    EXPECT_EQ(tokens[0].kind, TokenKind::Operator);
    EXPECT_EQ(reader.Rest(), text.substr(2));
  }
}

TEST(ReadShift, RefusesAnyOtherRunByName) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"<", "< is not supported."},
      {">", "> is not supported."},
      {"<2", "< is not supported."},
      {"< <", "< is not supported."},
      {"<>", "<> is not supported."},
      {"><", ">< is not supported."},
      {"<<<", "<<< is not supported."},
      {">>>5", ">>> is not supported."},
      {"<<>>", "<<>> is not supported."},
      {std::string(17, '<'), std::string(17, '<') + " is not supported."},
      {std::string(18, '>'), std::string(15, '>') + "... is not supported."},
  };
  for (const auto& [text, message] : rows) {
    TokenReader reader(text);
    TokenArray tokens;
    const auto error = ReadShift(reader, tokens);
    ASSERT_TRUE(error) << text;
    EXPECT_EQ(error->code, CalcErrorCode::NotSupported);
    EXPECT_EQ(error->message, message);
    EXPECT_EQ(tokens.Count(), 0);
  }
}

TEST(UnsupportedCharacter, NamesACharacterWhole) {
  const std::vector<std::pair<std::string_view, std::string_view>> rows{
      {"$", "$"},
      {"$1", "$"},
      {"\n", "\n"},
      {"\0"sv, "\0"sv},
      {"\xC3\xA4+1", "\xC3\xA4"},
      {"\xE2\x88\x9A"
       "2",
       "\xE2\x88\x9A"},
      {"\xF0\x9F\x98\x80!", "\xF0\x9F\x98\x80"},
      {"\xC3+1", "\xC3"},
      {"\xE2\x88+", "\xE2"},
      {"\xFF\xFF", "\xFF"},
  };
  for (const auto& [text, name] : rows) {
    EXPECT_EQ(UnsupportedCharacter(TokenReader(text)),
              MakeError(CalcErrorCode::NotSupported, name));
  }
}

}  // namespace
}  // namespace kav::token_reader_test
