#include "store/toml_document.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace kav::toml_document_test {
namespace {

/// What `document` becomes when it is read and written.
std::string Rewritten(std::string_view document) {
  const auto read = ReadToml(document);
  EXPECT_TRUE(read) << document;
  return read ? PrintToml(*read) : "";
}

struct Row {
  std::string_view read;
  std::string_view written;
};

void ExpectWritten(const std::vector<Row>& rows) {
  for (const auto& row : rows) {
    EXPECT_EQ(Rewritten(row.read), row.written) << row.read;
    EXPECT_EQ(Rewritten(row.written), row.written);
  }
}

TEST(PrintToml, NumbersAndTextsAreWrittenAsTheyRead) {
  const std::vector<Row> rows{
      {"a = 0", "a = 0\n"},
      {"a = -7", "a = -7\n"},
      {"a = 9223372036854775807", "a = 9223372036854775807\n"},
      {"a = -9223372036854775808", "a = -9223372036854775808\n"},
      {"a = 0xFF", "a = 255\n"},
      {"a = 1_000", "a = 1000\n"},
      {"a = true", "a = true\n"},
      {"a = false", "a = false\n"},
      {"a = 0.1", "a = 0.1\n"},
      {"a = 7.0", "a = 7.0\n"},
      {"a = -0.0", "a = -0.0\n"},
      {"a = 1e16", "a = 10000000000000000.0\n"},
      {"a = 1e300", "a = 1.0000000000000001e+300\n"},
      {"a = 5e-324", "a = 4.9406564584124654e-324\n"},
      {"a = 0.00001", "a = 0.00001\n"},
      {"a = inf", "a = inf\n"},
      {"a = -inf", "a = -inf\n"},
      {"a = nan", "a = nan\n"},
      {"a = -nan", "a = nan\n"},
      {"a = ''", "a = \"\"\n"},
      {"a = ' \"x\" '", "a = \" \\\"x\\\" \"\n"},
      {"a = \"\"\"\none\ntwo\"\"\"", "a = \"one\\ntwo\"\n"},
  };
  ExpectWritten(rows);
}

TEST(PrintToml, TimesAndCollectionsAreWrittenAsTheyRead) {
  const std::vector<Row> rows{
      {"a = 1979-05-27", "a = 1979-05-27\n"},
      {"a = 0001-01-01", "a = 0001-01-01\n"},
      {"a = 07:32:01", "a = 07:32:01\n"},
      {"a = 00:00:00.5", "a = 00:00:00.500000000\n"},
      {"a = 23:59:59.000000001", "a = 23:59:59.000000001\n"},
      {"a = 1979-05-27T07:32:00", "a = 1979-05-27T07:32:00\n"},
      {"a = 1979-05-27 07:32:00Z", "a = 1979-05-27T07:32:00+00:00\n"},
      {"a = 1979-05-27T00:32:00-07:05", "a = 1979-05-27T00:32:00-07:05\n"},
      {"a = 1979-05-27T00:32:00.25+13:30", "a = 1979-05-27T00:32:00.250000000+13:30\n"},
      {"a = []", "a = []\n"},
      {"a = [1, 'x', [2.5, []], {b = 1}]", "a = [1, \"x\", [2.5, []], {b = 1}]\n"},
      {"a = {}", "a = {}\n"},
      {"a = {b = 1, c.d = 2}", "a = {b = 1, c = {d = 2}}\n"},
      {"a = [-9223372036854775808, inf, 0.001]", "a = [-9223372036854775808, inf, 0.001]\n"},
  };
  ExpectWritten(rows);
}

TEST(PrintToml, ValuesComeFirstAndTablesUnderTheirHeadings) {
  const std::vector<Row> rows{
      {"", ""},
      {"[a]\nx = 1", "\n[a]\nx = 1\n"},
      {"[a]", "\n[a]\n"},
      {"b.x = 1\na = 2", "a = 2\n\n[b]\nx = 1\n"},
      {"[b]\n[a]\n", "\n[a]\n\n[b]\n"},
      {"[a.b.c]\nx = 1", "\n[a.b.c]\nx = 1\n"},
      {"[a.b]\nx = 1\n[a]\ny = 2", "\n[a]\ny = 2\n\n[a.b]\nx = 1\n"},
      {"[a.b]\n[a.c]", "\n[a.b]\n\n[a.c]\n"},
      {"[a]\nb = {x = 1}\n", "\n[a]\nb = {x = 1}\n"},
      {"[[a]]\nx = 1\n[[a]]\n[a.b]\ny = 2", "a = [{x = 1}, {b = {y = 2}}]\n"},
      {"['a.b'.'']\n'c d' = 1", "\n[\"a.b\".\"\"]\n\"c d\" = 1\n"},
      {"'' = 1", "\"\" = 1\n"},
      {"\"it's\" = 1", "\"it's\" = 1\n"},
      {"[\"two\\nlines\"]\nx = 1", "\n[\"two\\nlines\"]\nx = 1\n"},
  };
  ExpectWritten(rows);
}

}  // namespace
}  // namespace kav::toml_document_test
