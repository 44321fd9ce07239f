// What holds for any text: the answer is that of the plain rules, it is given at once, it is the
// same the next time, and no locale changes it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/fold_case.h"
#include "support/effort.h"
#include "support/locales.h"
#include "support/plain_engine.h"
#include "support/plain_tokens.h"
#include "support/processor_time.h"
#include "support/random_text.h"
#include "support/shown.h"

namespace kav::expression_engine_random_test {
namespace {

using test::BitsOf;
using test::kBinary;
using test::kDegrees;
using test::kHexadecimal;
using test::kOctal;
using test::kRadians;
using test::Random;
using test::Shown;
using test::Tries;

constexpr CalcModes kModes[] = {kDegrees, kRadians, kHexadecimal, kBinary, kOctal};

void ExpectPlainAnswer(const std::string& text, CalcModes modes) {
  ExpressionEngine engine;
  engine.SetAngleUnit(modes.angleUnit);
  engine.SetBaseMode(modes.baseMode);
  engine.Evaluate(text);
  const test::PlainAnswer plain = test::PlainEvaluate(text, modes);
  ASSERT_EQ(engine.GetErrorText(), plain.message) << text;
  ASSERT_EQ(BitsOf(engine.GetResult()), BitsOf(plain.value)) << text;
}

TEST(RandomText, WellFormedExpressionsComeToTheirValue) {
  for (const CalcModes modes : {kDegrees, kRadians}) {
    test::ExpressionWriter writer(31, modes.angleUnit);
    for (int i = 0; i < Tries(50000); ++i) {
      const auto [text, value] = writer.Write(1 + i % 4);
      const auto answer = Evaluate(text, modes);
      ASSERT_TRUE(answer) << text << ": " << answer.error().message;
      ASSERT_EQ(BitsOf(*answer), BitsOf(value)) << text;
    }
  }
}

TEST(RandomText, PiecesInOrderGetTheAnswerOfTheRules) {
  for (const CalcModes modes : kModes) {
    test::OrderedWriter writer(32, modes.baseMode);
    for (int i = 0; i < Tries(25000); ++i) {
      ASSERT_NO_FATAL_FAILURE(
          ExpectPlainAnswer(writer.Write(1 + static_cast<std::size_t>(i % 16)), modes));
    }
  }
}

TEST(RandomText, PiecesThrownTogetherGetTheAnswerOfTheRules) {
  for (const CalcModes modes : kModes) {
    test::PieceThrower thrower(33, modes.baseMode);
    for (int i = 0; i < Tries(50000); ++i) {
      const std::size_t most = i % 100 == 0 ? 80 : 1 + static_cast<std::size_t>(i % 9);
      ASSERT_NO_FATAL_FAILURE(ExpectPlainAnswer(thrower.Throw(most), modes));
    }
  }
}

/// Whether a sign of `tokens` stands behind an operator, and the same sign behind a value earlier.
bool HasSignBehindBinaryOne(const test::PlainTokens& tokens) {
  bool isBehind[2] = {false, false};
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    const char symbol = tokens[i].symbol;
    if (symbol != '+' && symbol != '-') continue;
    bool& isBehindThis = isBehind[symbol == '+' ? 0 : 1];
    const bool isBinary = std::string_view("V)!").find(tokens[i - 1].symbol) != std::string::npos;
    if (!isBinary && isBehindThis) return true;
    isBehindThis = isBehindThis || isBinary;
  }
  return false;
}

/// Of the rule that signs belong to their operand only up to the first binary one: every answer
/// stays, and so does every message but those that such a sign causes.
void ExpectNothingElseChanged(const std::string& text, CalcModes modes) {
  const auto few = test::PlainEvaluate(text, modes, nullptr, test::PlainSigns::BeforeABinaryOne);
  const auto answer = EvaluateFolded(text, modes);
  const std::string message(MessageOf(answer));
  if (message != few.message) {
    ASSERT_NE(few.message, "") << text;
    ASSERT_TRUE(HasSignBehindBinaryOne(test::ReadPlainTokens(text, modes.baseMode).tokens)) << text;
  } else if (answer) {
    ASSERT_EQ(BitsOf(*answer), BitsOf(few.value)) << text;
  }
}

// KAV_TEST_SIGN_LINES asks for more of them, ten million for example.
TEST(RandomText, SignsBehindABinaryOneChangeNothingElse) {
  const char* asked = std::getenv("KAV_TEST_SIGN_LINES");
  const int lines = asked == nullptr ? Tries(100000) : std::atoi(asked);
  for (const CalcModes modes : kModes) {
    test::OrderedWriter writer(39, modes.baseMode);
    for (int i = 0; i < lines / 5; ++i) {
      ASSERT_NO_FATAL_FAILURE(
          ExpectNothingElseChanged(writer.Write(1 + static_cast<std::size_t>(i % 12)), modes));
    }
  }
}

TEST(RandomText, AnyBytesGetTheAnswerOfTheRules) {
  Random random(34);
  for (int i = 0; i < Tries(50000); ++i) {
    const std::string bytes = test::AnyBytes(random, 20);
    for (const CalcModes modes : kModes) ASSERT_NO_FATAL_FAILURE(ExpectPlainAnswer(bytes, modes));
  }
}

TEST(RandomText, AsTypedIsAnsweredAsFolded) {
  Random random(35);
  for (int i = 0; i < Tries(50000); ++i) {
    const std::string bytes = test::AnyBytes(random, 30);
    for (const CalcModes modes : kModes) {
      ASSERT_EQ(Shown(Evaluate(bytes, modes)), Shown(FoldCase(bytes, modes.baseMode), modes));
    }
  }
}

/// Texts of every kind with the modes to evaluate them in.
std::vector<std::pair<std::string, CalcModes>> TextsOfAllKinds() {
  std::vector<std::pair<std::string, CalcModes>> texts{
      {"1.5+2,5", kDegrees}, {"INT(2.5)", kDegrees}, {"I", kRadians}, {"\xC4\xB0", kRadians}};
  Random random(36);
  for (const CalcModes modes : kModes) {
    test::OrderedWriter writer(37, modes.baseMode);
    test::ExpressionWriter known(38, modes.angleUnit);
    for (int i = 0; i < Tries(5000); ++i) {
      texts.emplace_back(writer.Write(12), modes);
      texts.emplace_back(known.Write(3).text, modes);
      texts.emplace_back(test::AnyBytes(random, 20), modes);
    }
  }
  return texts;
}

TEST(RandomText, IsAnsweredTheSameTheNextTime) {
  ExpressionEngine engine;
  for (const auto& [text, modes] : TextsOfAllKinds()) {
    const auto first = Evaluate(text, modes);
    const auto second = Evaluate(text, modes);
    ASSERT_EQ(Shown(first), Shown(second)) << text;
    // An engine that was used for other texts answers what a new one does.
    engine.SetAngleUnit(modes.angleUnit);
    engine.SetBaseMode(modes.baseMode);
    engine.Evaluate(FoldCase(text, modes.baseMode));
    ASSERT_EQ(engine.GetErrorText(), first ? "" : first.error().message) << text;
    ASSERT_EQ(BitsOf(engine.GetResult()), BitsOf(first ? *first : 0)) << text;
  }
}

TEST(RandomText, IsAnsweredTheSameInEveryLocale) {
  const auto texts = TextsOfAllKinds();
  std::vector<std::string> answers;
  for (const auto& [text, modes] : texts) answers.push_back(Shown(Evaluate(text, modes)));
  for (const char* name : test::kLocales) {
    const test::LocaleInForce locale(name);
    if (!locale.IsThere()) continue;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      ASSERT_EQ(Shown(Evaluate(texts[i].first, texts[i].second)), answers[i])
          << name << " " << texts[i].first;
    }
  }
}

std::string Repeated(std::string_view piece, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += piece;
  return text;
}

/// The processor time of the first of five tries that took less than `most`, or of the shortest, in
/// milliseconds: what other programs take on a busy machine does not count.
double Milliseconds(const std::string& text, CalcModes modes, double most) {
  double least = 1e9;
  for (int i = 0; i < 5 && least >= most; ++i) {
    const test::ProcessorTime time;
    const auto answer = Evaluate(text, modes);
    least = std::min(least, time.Milliseconds());
    EXPECT_EQ(Shown(answer), Shown(Evaluate(text, modes)));
  }
  return least;
}

TEST(LongText, IsAnsweredWithin10Milliseconds) {
  constexpr std::size_t kMegabyte = 1U << 20U;
  const double most = test::IsFast() ? 10 : 500;
  const std::vector<std::pair<std::string_view, std::string>> texts{
      {"digits", std::string(kMegabyte, '7')},
      {"points", std::string(kMegabyte, '.')},
      {"letters", std::string(kMegabyte, 'a')},
      {"capitals", std::string(kMegabyte, 'S')},
      {"ands", Repeated("and ", kMegabyte / 4)},
      {"ANDs", Repeated("1AND", kMegabyte / 4)},
      {"shifts", std::string(kMegabyte, '<')},
      {"blanks", std::string(kMegabyte, ' ')},
      {"blanks and a value", std::string(kMegabyte, ' ') + "1"},
      {"blanks behind a value", "1" + std::string(kMegabyte, ' ')},
      {"blanks behind a function", "sin" + std::string(kMegabyte, ' ')},
      {"sums", Repeated("1+", kMegabyte / 2) + "1"},
      {"parentheses", std::string(10000, '(') + "1" + std::string(10000, ')')},
      {"functions", Repeated("sin(", 10000) + "1" + std::string(10000, ')')},
      {"signs", std::string(kMegabyte, '-') + "1"},
      {"zeros", std::string(kMegabyte, '\0')},
      {"bytes", std::string(kMegabyte, '\xE2')},
      {"151 groups", std::string(75, '(') + "1" + std::string(75, ')')},
      {"151 tokens", Repeated("1+", 75) + "1"},
      {"152 tokens", "-" + Repeated("1+", 75) + "1"},
      {"functions of functions", Repeated("sin ", 149) + "1"},
      {"powers", Repeated("1^", 75) + "1"},
  };
  for (const auto& [name, text] : texts) {
    for (const CalcModes modes : kModes) EXPECT_LT(Milliseconds(text, modes, most), most) << name;
  }
}

TEST(LongText, HasItsMessage) {
  constexpr char kTooLong[] = "number exceeded length limit.";
  EXPECT_EQ(Shown(std::string(1U << 20U, '7')), kTooLong);
  EXPECT_EQ(Shown(Repeated("1+", 1U << 19U) + "1"), kTooLong);
  EXPECT_EQ(Shown(std::string(10000, '(') + "1" + std::string(10000, ')')), kTooLong);
  EXPECT_EQ(Shown(std::string(1U << 20U, 'a')), "aaaaaaaaaaaaaaa... is not supported.");
  EXPECT_EQ(Shown(std::string(1U << 20U, ' ') + "1"), "1");
}

TEST(LongText, Of151TokensIsCalculatedAndOf152Refused) {
  EXPECT_EQ(Shown(Repeated("1+", 74) + "1 "), "75");       // 149
  EXPECT_EQ(Shown("-" + Repeated("1+", 74) + "1"), "73");  // 150
  EXPECT_EQ(Shown(Repeated("1+", 75) + "1"), "76");        // 151
  EXPECT_EQ(Shown(Repeated("1+", 75) + "1   "), "76");     // blanks are no tokens
  EXPECT_EQ(Shown("-" + Repeated("1+", 75) + "1"), "number exceeded length limit.");
  EXPECT_EQ(Shown(std::string(75, '(') + "1" + std::string(75, ')')), "1");
  EXPECT_EQ(Shown(std::string(76, '(') + "1" + std::string(76, ')')),
            "number exceeded length limit.");
  for (const CalcModes modes : {kBinary, kOctal, kHexadecimal}) {
    EXPECT_EQ(Shown(Repeated("1+", 75) + "1", modes), "76");
    EXPECT_EQ(Shown("-" + Repeated("1+", 75) + "1", modes), "number exceeded length limit.");
  }
}

}  // namespace
}  // namespace kav::expression_engine_random_test
