// The word "ans", operators behind "=", and lines that are mended.
#include <string>

#include "support/scientific_screen.h"
#include "support/stored_macros.h"

namespace kav::scientific_model_answer_test {
namespace {

using test::kBinaryItem;
using test::kDecimalItem;
using test::kHexadecimalItem;
using test::Press;

class AnswerWord : public test::Screen {
 protected:
  std::u16string Of(std::u16string_view line) {
    Evaluate(line);
    return Result();
  }
};

TEST_F(AnswerWord, IsTheLastAnswerInAnyCase) {
  EXPECT_EQ(Of(u"ans+1"), u"1");
  EXPECT_EQ(Of(u"6*7"), u"42");
  EXPECT_EQ(Of(u"ANS/2"), u"21");
  EXPECT_EQ(Of(u"-Ans^2"), u"441");
  EXPECT_EQ(Of(u"sqrt(ans)"), u"21");
  EXPECT_EQ(Of(u"asin(0.5)"), u"30");
  EXPECT_EQ(Of(u"ansa"), u"ansa is not supported.");
}

TEST_F(AnswerWord, HasAllDigits) {
  Evaluate(u"1/3");
  Evaluate(u"ans");
  EXPECT_EQ(model_->LastAnswer(), 1.0 / 3);
  EXPECT_EQ(Of(u"ans-1/3"), u"0");
}

TEST_F(AnswerWord, AFailureDoesNotChangeIt) {
  Evaluate(u"8");
  Evaluate(u"1/0");
  EXPECT_EQ(model_->LastAnswer(), 0);
  EXPECT_EQ(Of(u"ans"), u"8");
}

TEST_F(AnswerWord, SurvivesTheBase) {
  Evaluate(u"300/2");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Of(u"ans"), u"96");
  EXPECT_EQ(Of(u"ANS AND F"), u"6");
  EXPECT_EQ(Of(u"(ans+A)*2"), u"20");
  model_->Choose(Key::Dec, kBinaryItem);
  EXPECT_EQ(Of(u"ans or 1"), u"100001");
  EXPECT_EQ(Of(u"1 and ans"), u"1");
  model_->Choose(Key::Dec, kDecimalItem);
  Evaluate(u"5/2");
  model_->Choose(Key::Dec, kHexadecimalItem);
  // The value counts, not what the base shows of it.
  EXPECT_EQ(Of(u"ans*2"), u"5");
}

TEST_F(AnswerWord, IsAnArgumentOfAMacroButNoVariable) {
  test::StoreMacros(store_, {{"sq", "TYPE1 : F(X)", "x^2"}, {"bad", "TYPE1 : F(X)", "x+ans"}});
  Open();
  Evaluate(u"3");
  EXPECT_EQ(Of(u"M:sq(ans)+ans"), u"12");
  EXPECT_EQ(Of(u"M:bad(1)"), u"Macro formula is invalid");
}

TEST_F(AnswerWord, TheHistoryKeepsTheLineAsTyped) {
  Evaluate(u"7");
  Evaluate(u"Ans+1");
  EXPECT_EQ(History(), (test::Texts{u"=[D]7", u"7", u"=[D]8", u"Ans+1"}));
}

class TypedOperator : public AnswerWord {
 protected:
  std::u16string Typed(std::u16string_view marked, char16_t typed) {
    SetMarked(marked);
    return model_->TypeOperator(typed) ? MarkedNow() : u"as any character";
  }
};

TEST_F(TypedOperator, DoesWhatItsKeyDoesWithTheWholeLine) {
  struct Row {
    char16_t typed;
    const char16_t* line;
  };
  for (const Row& row : {Row{u'+', u"1+2+|"}, Row{u'-', u"1+2-|"}, Row{u'*', u"(1+2)*|"},
                         Row{u'/', u"(1+2)/|"}, Row{u'^', u"(1+2)^|"}, Row{u'%', u"(1+2)%|"},
                         Row{u'!', u"(1+2)!|"}, Row{u'<', u"(1+2)<|"}, Row{u'>', u"(1+2)>|"}}) {
    Evaluate(u"1+2");
    EXPECT_TRUE(model_->TypeOperator(row.typed));
    EXPECT_EQ(MarkedNow(), row.line);
  }
  Evaluate(u"1/0");
  EXPECT_TRUE(model_->TypeOperator(u'*'));
  EXPECT_EQ(MarkedNow(), u"(1/0)*|");
}

TEST_F(TypedOperator, OtherwiseIsACharacterLikeOthers) {
  for (const char16_t typed : std::u16string_view(u"(0a.")) {
    EXPECT_EQ(Typed(u"[1+2]", typed), u"as any character");
  }
  EXPECT_EQ(Typed(u"1[+2]", u'*'), u"as any character");
  EXPECT_EQ(Typed(u"[1+]2", u'*'), u"as any character");
  EXPECT_EQ(Typed(u"|1+2", u'*'), u"as any character");
  EXPECT_EQ(Typed(u"1+2|", u'*'), u"as any character");
  EXPECT_EQ(Typed(u"|", u'*'), u"as any character");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Typed(u"[1+2]", u'!'), u"as any character");
  EXPECT_EQ(Typed(u"[1+2]", u'/'), u"(1+2)/|");
}

TEST_F(TypedOperator, GoesOnWithALineThatWasSelectedFromItsEnd) {
  model_->SetLine(u"1+2", {3, 0});
  EXPECT_TRUE(model_->TypeOperator(u'*'));
  EXPECT_EQ(MarkedNow(), u"(1+2)*|");
}

using Fault = AnswerWord;

TEST_F(Fault, IsThereAsLongAsTheLineIsTheOneThatFailed) {
  EXPECT_EQ(model_->Fault(), std::nullopt);
  Evaluate(u"2(3)");
  ASSERT_TRUE(model_->Fault());
  EXPECT_EQ(model_->Fault()->mended, u"2*(3)");
  EXPECT_TRUE(model_->Fault()->place);
  Press(*model_, u"4");
  EXPECT_EQ(model_->Fault(), std::nullopt);
  Evaluate(u"2(3)");
  Press(*model_, u"CLR");
  model_->SetLine(u"2(3)", {});
  EXPECT_EQ(model_->Fault(), std::nullopt);
  Evaluate(u"2(3)");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(model_->Fault(), std::nullopt);
  Evaluate(u"2*(3)");
  EXPECT_EQ(model_->Fault(), std::nullopt);
}

TEST_F(Fault, TheMendedLineIsEvaluatedAsIfItWasTyped) {
  Evaluate(u"2sine(30)");
  EXPECT_TRUE(std::holds_alternative<Nothing>(model_->TakeMend()));
  EXPECT_EQ(Result(), u"sine is not supported.");
  Evaluate(u"2+sine(30)");
  model_->TakeMend();
  EXPECT_EQ(MarkedNow(), u"[2+sin(30)]");
  EXPECT_EQ(Result(), u"2.5");
  EXPECT_EQ(model_->LastAnswer(), 2.5);
  EXPECT_EQ(model_->Fault(), std::nullopt);
  EXPECT_EQ(History(), (test::Texts{u"2sine(30)", u"2+sine(30)", u"=[D]2.5", u"2+sin(30)"}));
}

}  // namespace
}  // namespace kav::scientific_model_answer_test
