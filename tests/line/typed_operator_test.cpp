#include "line/typed_operator.h"

#include <gtest/gtest.h>

#include "common/number_text.h"
#include "support/marked_line.h"

namespace kav::test::typed_operator_test {
namespace {

struct Row {
  const char16_t* line;
  char16_t typed;
  const char16_t* then;
};

TEST(TypedOperator, DoesWhatItsKeyDoesWithAWholeLine) {
  const Row rows[] = {
      {u"[1+2]", u'+', u"1+2+"},   {u"[1+2]", u'-', u"1+2-"},   {u"[1+2]", u'*', u"(1+2)*"},
      {u"[1+2]", u'/', u"(1+2)/"}, {u"[1+2]", u'^', u"(1+2)^"}, {u"[1+2]", u'%', u"(1+2)%"},
      {u"[1+2]", u'!', u"(1+2)!"}, {u"]1+2[", u'*', u"(1+2)*"}, {u"[1+2]", u'<', u"(1+2)<"},
      {u"[1+2]", u'>', u"(1+2)>"},
  };
  for (const Row& row : rows) {
    ExpressionLine line = MarkedLine(row.line);
    EXPECT_TRUE(TypeOperator(row.typed, BaseMode::Decimal, line));
    EXPECT_EQ(Narrow(line.Text()), Narrow(row.then));
  }
}

TEST(TypedOperator, LeavesAllElseToTheLine) {
  const Row rows[] = {
      {u"1[+2]", u'*', u"1+2"}, {u"[1+]2", u'*', u"1+2"}, {u"1+2|", u'*', u"1+2"},
      {u"|", u'*', u""},        {u"[1+2]", u'(', u"1+2"}, {u"[1+2]", u'7', u"1+2"},
  };
  for (const Row& row : rows) {
    ExpressionLine line = MarkedLine(row.line);
    EXPECT_FALSE(TypeOperator(row.typed, BaseMode::Decimal, line));
    EXPECT_EQ(Narrow(line.Text()), Narrow(row.then));
  }
}

TEST(TypedOperator, IntegerBasesHaveNoPowersRemaindersAndFactorials) {
  for (const char16_t typed : {u'^', u'%', u'!'}) {
    ExpressionLine line = MarkedLine(u"[ff]");
    EXPECT_FALSE(TypeOperator(typed, BaseMode::Hexadecimal, line));
  }
  ExpressionLine line = MarkedLine(u"[ff]");
  EXPECT_TRUE(TypeOperator(u'*', BaseMode::Hexadecimal, line));
  EXPECT_EQ(Narrow(line.Text()), "(ff)*");
}

}  // namespace
}  // namespace kav::test::typed_operator_test
