// The part of number_text that takes texts from 8 to 16 bits and back, and their ends off.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/random.h"

namespace kav::text_conversion_test {
namespace {

using test::Random;
using test::Tries;
using std::string_view_literals::operator""sv;

using WidthRow = std::pair<std::string_view, std::u16string_view>;

const std::vector<WidthRow> kWellFormed{
    {"", u""},
    {"sin(30)", u"sin(30)"},
    {"\0\x01\x7F"sv, u"\0\x01\x7F"sv},
    {"\xC2\x80", u"\x80"},
    {"\xC3\xA4=\xCF\x80", u"\u00E4=\u03C0"},
    {"\xDF\xBF", u"\u07FF"},
    {"\xE0\xA0\x80", u"\u0800"},
    {"\xE2\x82\xAC", u"\u20AC"},
    {"\xED\x9F\xBF\xEE\x80\x80", u"\uD7FF\uE000"},
    {"\xEF\xBF\xBF", u"\uFFFF"},
    {"\xF0\x90\x80\x80", u"\U00010000"},
    {"x\xF0\x9F\x98\x80y", u"x\U0001F600y"},
    {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
};

TEST(Widen, TakesUtf8ToUtf16) {
  for (const auto& [narrow, wide] : kWellFormed) EXPECT_EQ(Widen(narrow), wide) << narrow;
}

TEST(Narrow, TakesUtf16ToUtf8) {
  for (const auto& [narrow, wide] : kWellFormed) EXPECT_EQ(Narrow(wide), narrow) << narrow;
}

TEST(Widen, EachByteThatIsNotWellFormedBecomesAReplacement) {
  const std::vector<WidthRow> rows{
      {"\x80", u"\uFFFD"},
      {"a\xBF"sv, u"a\uFFFD"},
      {"\xC3", u"\uFFFD"},
      {"\xC3(", u"\uFFFD("},
      {"\xE2\x82", u"\uFFFD\uFFFD"},
      {"\xE2\x82+1", u"\uFFFD\uFFFD+1"},
      {"\xF0\x9F\x98", u"\uFFFD\uFFFD\uFFFD"},
      {"\xC0\xAF", u"\uFFFD\uFFFD"},                      // '/' in two bytes
      {"\xC1\xBF", u"\uFFFD\uFFFD"},                      // 0x7F in two
      {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},            // U+07FF in three
      {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // U+FFFF in four
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},            // half of a surrogate pair
      {"\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD"},            // the other half
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // beyond U+10FFFF
      {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xF9\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // leads that no character has
      {"\xFC\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xFE\xFF", u"\uFFFD\uFFFD"},
      {"\xC3\xC3\xA4", u"\uFFFD\u00E4"},
  };
  for (const auto& [narrow, wide] : rows) EXPECT_EQ(Widen(narrow), wide);
}

TEST(Narrow, HalfOfASurrogatePairBecomesAReplacement) {
  const std::u16string high(1, char16_t{0xD83D});
  const std::u16string low(1, char16_t{0xDE00});
  const std::string replacement = "\xEF\xBF\xBD";
  EXPECT_EQ(Narrow(high), replacement);
  EXPECT_EQ(Narrow(low), replacement);
  EXPECT_EQ(Narrow(high + u"a"), replacement + "a");
  EXPECT_EQ(Narrow(u"a" + low), "a" + replacement);
  EXPECT_EQ(Narrow(low + high), replacement + replacement);
  EXPECT_EQ(Narrow(high + high + low), replacement + "\xF0\x9F\x98\x80");
  EXPECT_EQ(Narrow(high + low + low), "\xF0\x9F\x98\x80" + replacement);
}

TEST(WidenAndNarrow, AreInversesOverEveryCharacter) {
  for (char32_t c = 0; c <= 0x10FFFF; ++c) {
    if (c == 0xD800) c = 0xE000;
    std::u16string wide;
    if (c < 0x10000) {
      wide = static_cast<char16_t>(c);
    } else {
      wide = {static_cast<char16_t>(0xD7C0 + (c >> 10U)),
              static_cast<char16_t>(0xDC00 + (c & 0x3FFU))};
    }
    const std::string narrow = Narrow(wide);
    const std::size_t length = c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    ASSERT_EQ(narrow.size(), length) << std::hex << static_cast<std::uint32_t>(c);
    ASSERT_EQ(Utf8Length(narrow), length) << std::hex << static_cast<std::uint32_t>(c);
    ASSERT_EQ(Widen(narrow), wide) << std::hex << static_cast<std::uint32_t>(c);
  }
}

TEST(WidenAndNarrow, AnyBytesSettleAfterOneTurn) {
  Random random(4);
  for (int i = 0; i < Tries(100000); ++i) {
    std::string bytes(random.Below(12), ' ');
    for (char& c : bytes) c = static_cast<char>(random.Below(3) == 0 ? 'a' : random.Below(256));
    const std::u16string wide = Widen(bytes);
    EXPECT_LE(wide.size(), bytes.size());
    EXPECT_EQ(Widen(Narrow(wide)), wide);
  }
}

TEST(Utf8Length, CountsTheBytesOfTheFirstCharacter) {
  const std::vector<std::pair<std::string_view, std::size_t>> rows{
      {"a", 1},
      {"ab", 1},
      {"\0"sv, 1},
      {"\xC3\xA4z", 2},
      {"\xE2\x82\xACz", 3},
      {"\xF0\x9F\x98\x80z", 4},
      {"\xC3", 1},
      {"\xE2\x82", 1},
      {"\x80\x80", 1},
      {"\xED\xA0\x80", 1},
      {"\xFF", 1},
  };
  for (const auto& [text, length] : rows) EXPECT_EQ(Utf8Length(text), length);
}

TEST(TrimBlanks, TakesBlanksOffBothEndsAndNothingElse) {
  const std::vector<std::pair<std::string_view, std::string_view>> rows{
      {"", ""},           {"   ", ""},    {" a b ", "a b"},
      {"a", "a"},         {"  a", "a"},   {"a  ", "a"},
      {"\ta\n", "\ta\n"}, {" \t ", "\t"}, {"\xC2\xA0", "\xC2\xA0"},
  };
  for (const auto& [text, trimmed] : rows) {
    EXPECT_EQ(TrimBlanks(text), trimmed);
    EXPECT_EQ(TrimBlanks(std::u16string_view(Widen(text))), Widen(trimmed));
  }
}

TEST(OnOneLine, ControlCharactersBecomeBlanks) {
  EXPECT_EQ(OnOneLine(u""), u"");
  EXPECT_EQ(OnOneLine(u"größe 1"), u"größe 1");
  EXPECT_EQ(OnOneLine(u"a\nb\tc\r\nd\u0001"), u"a b c  d ");
  EXPECT_EQ(OnOneLine(std::u16string(1, u'\0')), u" ");
}

TEST(Shortened, TellsByAnEllipsisThatThereIsMore) {
  EXPECT_EQ(Shortened(u"", 0), u"");
  EXPECT_EQ(Shortened(u"abc", 3), u"abc");
  EXPECT_EQ(Shortened(u"abcd", 3), u"abc…");
  EXPECT_EQ(Shortened(u"abcd", 0), u"…");
  EXPECT_EQ(Shortened(u"a\nb", 3), u"a b");
  EXPECT_EQ(Shortened(u"a\nbc", 3), u"a b…");
}

TEST(Shortened, NeverCutsACharacter) {
  EXPECT_EQ(Shortened(u"ab\U0001F600c", 3), u"ab…");
  EXPECT_EQ(Shortened(u"ab\U0001F600c", 4), u"ab\U0001F600…");
  EXPECT_EQ(Shortened(u"ab\U0001F600", 4), u"ab\U0001F600");
}

}  // namespace
}  // namespace kav::text_conversion_test
