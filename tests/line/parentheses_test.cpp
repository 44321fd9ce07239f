#include "line/parentheses.h"

#include <gtest/gtest.h>

#include <string>

#include "support/marked_line.h"

namespace kav::test::parentheses_test {
namespace {

/// `marked` without its caret, with the pair at it written as "<" and ">".
std::u16string Paired(std::u16string_view marked) {
  const ExpressionLine line = MarkedLine(marked);
  std::u16string text = line.Text();
  if (const auto pair = PairAtCaret(text, line.Selected().start)) {
    text[pair->open] = u'<';
    text[pair->close] = u'>';
  }
  return text;
}

TEST(Parentheses, ThoseBesideTheCaretAreFound) {
  struct Row {
    const char16_t* line;
    const char16_t* paired;
  };
  const Row rows[] = {
      {u"|sin(30)", u"sin(30)"},
      {u"sin|(30)", u"sin<30>"},
      {u"sin(|30)", u"sin<30>"},
      {u"sin(3|0)", u"sin(30)"},
      {u"sin(30|)", u"sin<30>"},
      {u"sin(30)|", u"sin<30>"},
      // Each with its own partner, whatever stands between.
      {u"|((1)(2))", u"<(1)(2)>"},
      {u"(|(1)(2))", u"<(1)(2)>"},
      {u"((|1)(2))", u"(<1>(2))"},
      {u"((1)(2)|)", u"((1)<2>)"},
      {u"((1)(2))|", u"<(1)(2)>"},
      {u"f(|)", u"f<>"},
      // Between two, the one before the caret counts.
      {u"(1)|(2)", u"<1>(2)"},
      // If that has no partner, the other one.
      {u"(|(2)", u"(<2>"},
      {u"(2)|)", u"<2>)"},
      {u"(2))|", u"(2))"},
      {u"|(2", u"(2"},
      {u")|(", u")("},
      {u"|", u""},
  };
  for (const Row& row : rows) EXPECT_EQ(Paired(row.line), row.paired);
}

TEST(Parentheses, ACaretBehindTheTextIsBesideNothing) {
  EXPECT_EQ(PairAtCaret(u"(1)", 4), std::nullopt);
}

}  // namespace
}  // namespace kav::test::parentheses_test
