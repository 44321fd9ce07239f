#include "cli/visible_text.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>

namespace kav::visible_text_test {
namespace {

using namespace std::string_view_literals;

TEST(Visible, ControlCharactersAreShownByTheirBytes) {
  const std::pair<std::string_view, std::string_view> table[] = {
      {"", ""},
      {"sin(30)\t=\r\n0.5\n", "sin(30)\t=\r\n0.5\n"},
      {"a\x1b[2Jb", "a\\x1b[2Jb"},
      {"\0\a\x7f"sv, "\\x00\\x07\\x7f"},
      {"1\r2", "1\\x0d2"},
      {"\xc2\x9b"
       "31m",
       "\\xc2\\x9b31m"},
      {"\x9b"
       "31m",
       "\\x9b31m"},
      {"\xc3\x9b \xe2\x82\xac \xf0\x9f\x98\x80 \xce\xa3X \xff",
       "\xc3\x9b \xe2\x82\xac \xf0\x9f\x98\x80 \xce\xa3X \xff"},
  };
  for (const auto& row : table) EXPECT_EQ(Visible(row.first), row.second);
}

}  // namespace
}  // namespace kav::visible_text_test
