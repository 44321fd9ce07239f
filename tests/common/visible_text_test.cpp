#include "common/visible_text.h"

#include <gtest/gtest.h>

#include <string>

namespace kav::visible_text_test {
namespace {

using std::string_literals::operator""s;

TEST(VisibleText, ShowsEachControlCharacterByItsNumber) {
  const struct {
    std::u16string text;
    std::u16string shown;
  } rows[] = {
      {u"", u""},
      {u"a name, ü 😀", u"a name, ü 😀"},
      {u"\u001B[31m", u"\\x1B[31m"},
      {u"\0"s, u"\\x00"},
      {u"\t\r\n\u001F ", u"\\x09\\x0D\\x0A\\x1F "},
      {u"~\u007F\u0080\u009B\u009F\u00A0", u"~\\x7F\\x80\\x9B\\x9F\u00A0"},
      {u"\\x1B", u"\\x1B"},
  };
  for (const auto& row : rows) EXPECT_EQ(WithVisibleControls(row.text), row.shown);
}

TEST(VisibleText, ShowsBytesThatAreNoTextAsSuch) {
  EXPECT_EQ(ShownName("a\x1B\xC2\x9B\xFF"), u"a\\x1B\\x9B\uFFFD");
}

}  // namespace
}  // namespace kav::visible_text_test
