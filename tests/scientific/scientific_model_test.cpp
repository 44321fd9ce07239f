#include "scientific/scientific_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

#include "support/is_stored.h"
#include "support/scientific_screen.h"
#include "support/stored_macros.h"

namespace kav::scientific_model_test {
namespace {

using test::kDecimalItem;
using test::kHexadecimalItem;
using test::kOctalItem;
using test::LinesOf;
using test::Press;
using test::Screen;
using test::Texts;

// The fresh screen and what it loads.

TEST_F(Screen, FreshScreenShowsAnEmptyLineAndZero) {
  EXPECT_EQ(MarkedNow(), u"|");
  EXPECT_EQ(Result(), u"0");
  EXPECT_EQ(model_->ErrorText(), u"");
  EXPECT_EQ(model_->LastAnswer(), 0);
  EXPECT_EQ(Memory(), 0);
  EXPECT_FALSE(IsShiftOn());
  EXPECT_EQ(model_->Caption(Key::Deg), u"DEG");
  EXPECT_EQ(model_->Caption(Key::Dec), u"DEC");
  EXPECT_FALSE(model_->IsEnabled(Key::PlayBack));
}

TEST_F(Screen, StoredAngleUnitOtherThanOneIsRadians) {
  for (const std::int32_t stored : {2, 0, 3, -1, 99}) {
    Set("Config", "Angle Type", stored);
    Open();
    EXPECT_EQ(model_->Caption(Key::Deg), u"RAD") << stored;
    Evaluate(u"sin(Pi/2)");
    EXPECT_EQ(Result(), u"1") << stored;
  }
  Set("Config", "Angle Type", 1);
  Open();
  EXPECT_EQ(model_->Caption(Key::Deg), u"DEG");
  Evaluate(u"sin(90)");
  EXPECT_EQ(Result(), u"1");
}

TEST_F(Screen, StoredBaseIsInForceFromTheStart) {
  struct Row {
    std::int32_t stored;
    std::u16string_view caption;
    double eleven;  ///< the value of the digits 11
  };
  for (const Row& row :
       {Row{1, u"DEC", 11}, Row{2, u"HEX", 17}, Row{3, u"BIN", 3}, Row{4, u"OCT", 9},
        Row{0, u"DEC", 11}, Row{5, u"DEC", 11}, Row{-1, u"DEC", 11}}) {
    Set("Config", "Base Type", row.stored);
    Open();
    EXPECT_EQ(model_->Caption(Key::Dec), row.caption) << row.stored;
    EXPECT_EQ(Result(), u"0") << row.stored;
    Evaluate(u"11");
    EXPECT_EQ(model_->LastAnswer(), row.eleven) << row.stored;
  }
}

TEST_F(Screen, ResultLineStartsAsZeroInTheDisplayFormat) {
  struct Row {
    std::int32_t type;
    std::int32_t precision;
    std::u16string_view zero;
  };
  for (const Row& row : {Row{0, 7, u"0"}, Row{1, 7, u"0.0000000"}, Row{2, 2, u"0.00e+00"},
                         Row{3, 7, u"0"}, Row{4, 3, u"0.000e+00"}}) {
    Set("Config", "Display Type", row.type);
    Set("Config", "Precision", row.precision);
    Open();
    EXPECT_EQ(Result(), row.zero) << row.type;
  }
}

// "=".

TEST_F(Screen, AnswerIsShownKeptAndRemembered) {
  Evaluate(u"1234.5*2");
  EXPECT_EQ(Result(), u"2,469");
  EXPECT_EQ(model_->LastAnswer(), 2469);
  EXPECT_EQ(model_->ErrorText(), u"");
  EXPECT_EQ(MarkedNow(), u"[1234.5*2]");
  EXPECT_EQ(History(), (Texts{u"=[D]2,469", u"1234.5*2"}));
  EXPECT_EQ(model_->Expression(), u"1234.5*2");
  EXPECT_TRUE(model_->IsEnabled(Key::PlayBack));
}

TEST_F(Screen, FailureShowsItsMessageAndLeavesTheAnswerZero) {
  test::StoreMacros(store_, {{"F", "TYPE1 : F(X)", "x^2"}, {"bad", "TYPE1 : F(X)", "x+foo"}});
  struct Row {
    std::u16string_view line;
    std::u16string_view message;
  };
  const Row rows[] = {
      {u"1/0", u"Division exceeded calculation limit."},
      {u"(1+2", u"Not matched '(' and ')'."},
      {u"2+", u"Expression error."},
      {u"foo(2)", u"foo is not supported."},
      {u"1e400", u"Out of range(overflow or underflow)"},
      {u"2M:F(3)", u"Expression error."},
      {u"M:F(3)2", u"Expression error."},
      {u"M:G(3)", u"Macro Name error"},
      {u"M:F(3,4)", u"Macro argument error"},
      {u"M:bad(3)", u"Macro formula is invalid"},
      {u"2$3", u"$ is not supported."},
      {u"2€", u"€ is not supported."},
  };
  for (const Row& row : rows) {
    Evaluate(u"7");
    Evaluate(row.line);
    EXPECT_EQ(Result(), row.message);
    EXPECT_EQ(model_->ErrorText(), row.message);
    EXPECT_EQ(model_->LastAnswer(), 0);
    EXPECT_EQ(model_->Line().Text(), row.line);
    EXPECT_EQ(model_->Line().Selected(), (Selection{0, row.line.size()}));
  }
}

TEST_F(Screen, EmptyLineIsShownAsNullAndKeptAsNoExpression) {
  for (const std::u16string_view line : {u"", u"   "}) {
    Evaluate(u"7");
    Evaluate(line);
    EXPECT_EQ(Result(), u"Expression is null.");
    EXPECT_EQ(model_->ErrorText(), u"There is no expression.");
    EXPECT_EQ(model_->LastAnswer(), 0);
    EXPECT_EQ(History().back(), u"7");
    EXPECT_EQ(model_->Line().Selected(), (Selection{0, line.size()}));
  }
}

TEST_F(Screen, AnswerAfterAFailureClearsTheError) {
  Evaluate(u"1/0");
  Evaluate(u"1/4");
  EXPECT_EQ(Result(), u"0.25");
  EXPECT_EQ(model_->ErrorText(), u"");
}

TEST_F(Screen, MacroCallsAreEvaluatedButTheLineAndTheHistoryKeepThem) {
  test::StoreMacros(store_, {{"F", "TYPE1 : F(X)", "x^2"}});
  Evaluate(u"2*M:F( 3 )");
  EXPECT_EQ(Result(), u"18");
  EXPECT_EQ(model_->Line().Text(), u"2*M:F( 3 )");
  EXPECT_EQ(History(), (Texts{u"=[D]18", u"2*M:F( 3 )"}));
}

TEST_F(Screen, LineThatIsOneMacroCallKeepsAllDigits) {
  test::StoreMacros(store_, {{"third", "TYPE1 : F(X)", "x/3"}});
  Evaluate(u"M:third(1)");
  EXPECT_EQ(model_->LastAnswer(), 1.0 / 3.0);
  Evaluate(u"M:third(1)+0");
  EXPECT_EQ(model_->LastAnswer(), 0.333333);
}

TEST_F(Screen, MacrosMadeWhileTheScreenIsOpenCanBeCalled) {
  Evaluate(u"M:F(3)");
  EXPECT_EQ(Result(), u"Macro Name error");
  test::StoreMacros(store_, {{"F", "TYPE1 : F(X)", "x^2"}});
  Evaluate(u"M:F(3)");
  EXPECT_EQ(Result(), u"9");
}

// Settings.

TEST_F(Screen, ScreenIsSavedUnderItsKeys) {
  Press(*model_, u"DEG");
  model_->TakeConverter({std::nullopt, {6, 1, 2}, 0});
  Evaluate(u"1+1");
  model_->Choose(Key::Dec, kOctalItem);
  model_->Save();
  EXPECT_EQ(Stored("Config", "Angle Type"), 2);
  EXPECT_EQ(Stored("Config", "Base Type"), 4);
  EXPECT_EQ(Stored("Convert", "ClassPos"), 6);
  EXPECT_EQ(Stored("Convert", "InputTypePos"), 1);
  EXPECT_EQ(Stored("Convert", "OutputTypePos"), 2);
  EXPECT_EQ(Stored("History", "CalHistoryCount"), 2);
  EXPECT_EQ(store_.Get(NumberedKey{"History", "CalHistory1", ""}), "=[D]2");
  EXPECT_EQ(store_.Get(NumberedKey{"History", "CalHistory2", ""}), "1+1");
}

TEST_F(Screen, FreshScreenIsSavedAsTheDefaults) {
  model_->Save();
  EXPECT_EQ(Stored("Config", "Angle Type"), 1);
  EXPECT_EQ(Stored("Config", "Base Type"), 1);
  EXPECT_EQ(Stored("Convert", "ClassPos"), -1);
  EXPECT_EQ(Stored("Convert", "InputTypePos"), -1);
  EXPECT_EQ(Stored("Convert", "OutputTypePos"), -1);
  EXPECT_EQ(Stored("History", "CalHistoryCount"), 0);
}

TEST_F(Screen, NothingIsStoredBeforeSave) {
  Evaluate(u"1+1");
  EXPECT_FALSE(test::IsStored(store_, "History", "CalHistoryCount"));
  EXPECT_FALSE(test::IsStored(store_, "Config", "Base Type"));
}

TEST_F(Screen, HistoryAngleUnitAndBaseComeBack) {
  Press(*model_, u"DEG");
  Evaluate(u"2*π");
  Evaluate(u"6*7");
  model_->Choose(Key::Dec, kHexadecimalItem);
  model_->Save();
  Open();
  EXPECT_EQ(model_->Caption(Key::Deg), u"RAD");
  EXPECT_EQ(model_->Caption(Key::Dec), u"HEX");
  EXPECT_EQ(History(), (Texts{u"2*π", u"=[D]42", u"6*7"}));
  EXPECT_TRUE(model_->IsEnabled(Key::PlayBack));
  EXPECT_FALSE(IsShiftOn());
  EXPECT_EQ(MarkedNow(), u"|");
}

TEST_F(Screen, NewDisplaySettingsRewriteTheAnswerInDecimalOnly) {
  Evaluate(u"1234.5");
  Set("Config", "Display Type", 1);
  Set("Config", "Precision", 2);
  EXPECT_EQ(Result(), u"1,234.5");
  model_->TakeDisplaySettings();
  EXPECT_EQ(Result(), u"1234.50");

  model_->Choose(Key::Dec, kHexadecimalItem);
  Evaluate(u"G+1");
  Set("Config", "Display Type", 2);
  model_->TakeDisplaySettings();
  EXPECT_EQ(Result(), u"g is not supported.");
  model_->Choose(Key::Dec, kDecimalItem);
  EXPECT_EQ(Result(), u"0.00e+00");
}

TEST_F(Screen, NewDisplaySettingsAfterAFailureShowZero) {
  Evaluate(u"1/0");
  model_->TakeDisplaySettings();
  EXPECT_EQ(Result(), u"0");
}

// Anything at all.

/// One random tap, key, choice or return of a dialog.
void DoSomething(ScientificModel& model, std::mt19937& random) {
  const auto anyKey = [&random] { return KeyPlaces()[random() % KeyPlaces().size()].key; };
  const auto anyNumber = [&random] { return static_cast<int>(random() % 30) - 2; };
  constexpr std::u16string_view kTexts[] = {u"1", u"M:F(2)", u"\U0001F600", u"FF", u"=[H]FF", u"("};
  const std::u16string text(kTexts[random() % std::size(kTexts)]);
  switch (random() % 16) {
    case 0:
      model.SetLine(model.Line().Text() + text, {random() % 50, random() % 50});
      break;
    case 1:
      model.Choose(Key::PlayBack, anyNumber());
      break;
    case 2:
      model.Choose(Key::Dec, 32804 + anyNumber() % 6);
      break;
    case 3:
      model.Choose(Key::MemoryMenu, anyNumber());
      break;
    case 4:
      model.TakeMacro(anyNumber() % 4);
      break;
    case 5:
      model.TakeVariable(text);
      break;
    case 6:
      model.TakeConstant(text);
      break;
    case 7:
      model.TakeConverter({text, {anyNumber(), anyNumber(), anyNumber()}, 0.5});
      break;
    case 8:
      model.TakeDisplaySettings();
      break;
    case 9:
    case 10:
      model.Press(Key::Equals);
      break;
    default:
      model.Press(anyKey());
  }
}

TEST(ScreenProperties, RandomKeysNeverTakeTheCaretOutAndAlwaysEndTheSameWay) {
  MemorySettingsStore store;
  test::StoreMacros(store, {{"F", "TYPE1 : F(X)", "x^2"}, {"G", "TYPE2 : F(X,Y)", "x/y"}});
  for (unsigned seed = 1; seed <= 60; ++seed) {
    ScientificModel first(store);
    ScientificModel second(store);
    std::mt19937 firstRandom(seed);
    std::mt19937 secondRandom(seed);
    for (int step = 0; step < 300; ++step) {
      DoSomething(first, firstRandom);
      DoSomething(second, secondRandom);
      const auto [start, end] = first.Line().Selected();
      ASSERT_LE(std::max(start, end), first.Line().Text().size());
      ASSERT_FALSE(first.ResultText().empty());
      ASSERT_LE(first.PastLines().Entries().size(), 20U);
      ASSERT_EQ(LinesOf(first), LinesOf(second));
      ASSERT_EQ(first.Line().Selected(), second.Line().Selected());
    }
    EXPECT_EQ(first.PastLines().Entries(), second.PastLines().Entries());
    EXPECT_EQ(first.LastAnswer(), second.LastAnswer());
  }
}

TEST(ScreenProperties, MegabyteLineHasItsMessage) {
  MemorySettingsStore store;
  ScientificModel model(store);
  model.SetLine(std::u16string(1U << 20U, u'1'), {});
  model.Press(Key::Equals);
  EXPECT_EQ(model.ResultText(), u"number exceeded length limit.");
}

// The history of all sessions.

TEST_F(Screen, WhatWasEvaluatedIsALineItsAnswerAndTheBase) {
  EXPECT_EQ(model_->Evaluated(), std::nullopt);
  Evaluate(u" 1000*2 ");
  EXPECT_EQ(model_->Evaluated(), (PastLine{0, PastOrigin::Scientific, 1, " 1000*2 ", "2,000"}));
  Evaluate(u"(1");
  EXPECT_EQ(model_->Evaluated(), (PastLine{0, PastOrigin::Scientific, 1, "(1", ""}));
  Evaluate(u"  ");
  EXPECT_EQ(model_->Evaluated(), std::nullopt);
  model_->Choose(Key::Dec, kHexadecimalItem);
  Evaluate(u"F+1");
  EXPECT_EQ(model_->Evaluated(), (PastLine{0, PastOrigin::Scientific, 2, "F+1", "10"}));
}

TEST_F(Screen, PastLinesAndAnswersReplaceTheSelection) {
  const PastLine past{1, PastOrigin::Prompt, 2, "F+1", "1F"};
  SetMarked(u"1[2]3");
  model_->TakePastLine(past);
  EXPECT_EQ(MarkedNow(), u"1F+1|3");
  SetMarked(u"1[2]3");
  model_->TakePastAnswer(past);
  EXPECT_EQ(MarkedNow(), u"131|3") << "1F is 31 in decimal";
  model_->TakePastAnswer({2, PastOrigin::Prompt, 1, "(1", ""});
  EXPECT_EQ(MarkedNow(), u"131|3");
}

}  // namespace
}  // namespace kav::scientific_model_test
