#include "scientific/scientific_model.h"

#include <gtest/gtest.h>

#include "support/scientific_screen.h"
#include "support/stored_macros.h"
#include "support/unit_places.h"

namespace kav::scientific_model_menus_test {
namespace {

using test::kBinaryItem;
using test::kDecimalItem;
using test::kHexadecimalItem;
using test::kOctalItem;
using test::Places;
using test::PlacesOf;
using test::Press;
using test::Screen;
using test::Texts;

// History.

TEST_F(Screen, EqualsTwiceOnTheSameLineAddsItOnce) {
  Evaluate(u"1+1");
  Press(*model_, u"= = =");
  EXPECT_EQ(History(), (Texts{u"=[D]2", u"1+1"}));
}

TEST_F(Screen, FailedLinesAreRememberedWithoutAnAnswer) {
  Evaluate(u"1/0");
  Press(*model_, u"=");
  EXPECT_EQ(History(), (Texts{u"1/0"}));
}

TEST_F(Screen, FailedMacroCallsAndEmptyLinesAreNotRemembered) {
  Evaluate(u"M:G(3)");
  Evaluate(u"2M:G(3)");
  Evaluate(u"  ");
  EXPECT_TRUE(History().empty());
  EXPECT_FALSE(model_->IsEnabled(Key::PlayBack));
}

TEST_F(Screen, HistoryKeepsBlanksAndComparesThem) {
  Evaluate(u" 1+1");
  Evaluate(u"1+1");
  EXPECT_EQ(History(), (Texts{u"=[D]2", u" 1+1", u"=[D]2", u"1+1"}));
}

TEST_F(Screen, LineThatFailedAndThenAnswersIsNotAddedAgain) {
  Evaluate(u"FF");
  EXPECT_EQ(Result(), u"ff is not supported.");
  model_->Choose(Key::Dec, kHexadecimalItem);
  Press(*model_, u"=");
  EXPECT_EQ(Result(), u"FF");
  EXPECT_EQ(History(), (Texts{u"FF"}));
}

TEST_F(Screen, HistoryHoldsTwentyEntries) {
  for (const char16_t digit : std::u16string(u"0123456789A")) {
    Evaluate(std::u16string(u"1+") + digit);
  }
  EXPECT_EQ(History().size(), 20U);
  // "A" failed and so brought one entry only: the oldest answer made room for it.
  EXPECT_EQ(History().front(), u"1+0");
  EXPECT_EQ(History().back(), u"1+A");
}

TEST_F(Screen, AnswersCarryTheBaseTheyWereShownIn) {
  model_->Choose(Key::Dec, kHexadecimalItem);
  Evaluate(u"F0+F");
  model_->Choose(Key::Dec, kBinaryItem);
  Evaluate(u"101");
  model_->Choose(Key::Dec, kOctalItem);
  Evaluate(u"7+1");
  EXPECT_EQ(History(), (Texts{u"=[H]FF", u"F0+F", u"=[B]101", u"101", u"=[O]10", u"7+1"}));
}

TEST_F(Screen, ChosenEntriesReplaceTheSelection) {
  Evaluate(u"1234*2");
  ASSERT_EQ(model_->MenuOf(Key::PlayBack), (Menu{{2, u"1234*2"}, {1, u"=[D]2,468"}}));
  model_->Choose(Key::PlayBack, 1);
  EXPECT_EQ(MarkedNow(), u"2468|");
  Press(*model_, u"+");
  model_->Choose(Key::PlayBack, 2);
  EXPECT_EQ(MarkedNow(), u"2468+1234*2|");
}

TEST_F(Screen, LongEntriesAreInsertedWhole) {
  Evaluate(u"1+2+3+4+5+6+7+8+9+10+11");
  EXPECT_EQ(model_->MenuOf(Key::PlayBack)[0].text, u"1+2+3+4+5+6+7+8+9...");
  SetMarked(u"|");
  model_->Choose(Key::PlayBack, 2);
  EXPECT_EQ(MarkedNow(), u"1+2+3+4+5+6+7+8+9+10+11|");
}

TEST_F(Screen, CancelledHistoryMenuLeavesTheLine) {
  Evaluate(u"1+1");
  for (const int id : {0, -1, 3, 21, 2147483647}) {
    model_->Choose(Key::PlayBack, id);
    EXPECT_EQ(MarkedNow(), u"[1+1]") << id;
  }
}

// Memory.

TEST_F(Screen, MemoryAddsSubtractsRecallsAndClears) {
  Evaluate(u"5");
  model_->Choose(Key::MemoryMenu, 9);
  model_->Choose(Key::MemoryMenu, 9);
  EXPECT_EQ(Memory(), 10);
  Evaluate(u"3");
  model_->Choose(Key::MemoryMenu, 8);
  EXPECT_EQ(Memory(), 7);
  SetMarked(u"2*|");
  model_->Choose(Key::MemoryMenu, 7);
  EXPECT_EQ(MarkedNow(), u"2*7|");
  model_->Choose(Key::MemoryMenu, 6);
  EXPECT_EQ(Memory(), 0);
}

TEST_F(Screen, MemoryIsRecalledWithoutSeparatorsAndInTheBase) {
  Evaluate(u"1234567.5");
  EXPECT_EQ(Result(), u"1,234,567.5");
  model_->Choose(Key::MemoryMenu, 9);
  model_->Choose(Key::MemoryMenu, 7);
  EXPECT_EQ(MarkedNow(), u"1234567.5|");
  model_->Choose(Key::Dec, kHexadecimalItem);
  SetMarked(u"|");
  model_->Choose(Key::MemoryMenu, 7);
  EXPECT_EQ(MarkedNow(), u"12D687|");
}

TEST_F(Screen, MemoryIsNotKeptBetweenRuns) {
  Evaluate(u"5");
  model_->Choose(Key::MemoryMenu, 9);
  model_->Save();
  Open();
  EXPECT_EQ(Memory(), 0);
  EXPECT_EQ(model_->LastAnswer(), 0);
  EXPECT_EQ(Result(), u"0");
}

TEST_F(Screen, MemoryMenuOffersNothingOfTheAnswerAfterAFailure) {
  EXPECT_EQ(model_->MenuOf(Key::MemoryMenu).size(), 9U);
  Evaluate(u"5");
  model_->Choose(Key::MemoryMenu, 9);
  for (const std::u16string_view failing : {u"1/0", u"", u"M:G(1)"}) {
    Evaluate(failing);
    EXPECT_EQ(model_->MenuOf(Key::MemoryMenu).size(), 6U);
    for (const int id : {9, 8, 3}) {
      EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Choose(Key::MemoryMenu, id))) << id;
    }
    EXPECT_EQ(Memory(), 5);
  }
  Evaluate(u"1");
  EXPECT_EQ(model_->MenuOf(Key::MemoryMenu).size(), 9U);
}

TEST_F(Screen, ItemsTheMemoryMenuDoesNotHaveDoNothing) {
  Evaluate(u"5");
  for (const int id : {0, -1, 2, 5, 10}) {
    EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Choose(Key::MemoryMenu, id))) << id;
  }
  EXPECT_EQ(MarkedNow(), u"[5]");
  EXPECT_EQ(Memory(), 0);
}

std::u16string StoredValue(const ScientificRequest& request) {
  const auto* store = std::get_if<StoreMemoryVariable>(&request);
  return store != nullptr ? store->value : u"no StoreMemoryVariable";
}

TEST_F(Screen, AnswerIsStoredInDecimalWithoutSeparators) {
  Evaluate(u"1234567.5");
  EXPECT_EQ(StoredValue(model_->Choose(Key::MemoryMenu, 3)), u"1234567.5");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(StoredValue(model_->Choose(Key::MemoryMenu, 3)), u"1234567.5");
  EXPECT_EQ(Result(), u"12D687");
}

TEST_F(Screen, RecallAndConstantsAreAskedForAlsoAfterAFailure) {
  for (const std::u16string_view line : {u"1", u"1/0"}) {
    Evaluate(line);
    EXPECT_TRUE(std::holds_alternative<RecallMemoryVariable>(model_->Choose(Key::MemoryMenu, 4)));
    EXPECT_TRUE(std::holds_alternative<OpenConstants>(model_->Choose(Key::MemoryMenu, 1)));
  }
}

TEST_F(Screen, RecalledVariableIsWrittenInTheBase) {
  SetMarked(u"1+[2]");
  model_->TakeVariable(u"2.500");
  EXPECT_EQ(MarkedNow(), u"1+2.5|");
  model_->TakeVariable(u"not a number");
  EXPECT_EQ(MarkedNow(), u"1+2.50|");
  model_->Choose(Key::Dec, kHexadecimalItem);
  SetMarked(u"|");
  model_->TakeVariable(u"255.9");
  EXPECT_EQ(MarkedNow(), u"FF|");
}

TEST_F(Screen, WhatIsBeyondTheRangeOfDoubleIsToldAndNotRecalled) {
  const std::u16string told =
      u"The recalled number is beyond 1.79e308 in size, the largest that can be calculated with. "
      u"Nothing was inserted.";
  const auto expectTold = [&](const ScientificRequest& request) {
    ASSERT_TRUE(std::holds_alternative<TellStop>(request));
    EXPECT_EQ(std::get<TellStop>(request).text, told);
    EXPECT_EQ(MarkedNow(), u"1+[2]");
  };
  Evaluate(u"9*10^307");
  for (int i = 0; i < 2; ++i) model_->Choose(Key::MemoryMenu, 9);
  SetMarked(u"1+[2]");
  expectTold(model_->Choose(Key::MemoryMenu, 7));
  expectTold(model_->TakeVariable(u"-1e999"));
  model_->Choose(Key::Dec, kHexadecimalItem);
  expectTold(model_->TakeConstant(u"1e999"));
  EXPECT_TRUE(std::holds_alternative<Nothing>(model_->TakeVariable(u"255")));
}

TEST_F(Screen, ConstantIsInsertedAsItStandsInDecimalOnly) {
  SetMarked(u"2*|");
  model_->TakeConstant(u"6.02E23 ");
  EXPECT_EQ(MarkedNow(), u"2*6.02E23 |");
  model_->Choose(Key::Dec, kOctalItem);
  SetMarked(u"|");
  model_->TakeConstant(u"9.81");
  EXPECT_EQ(MarkedNow(), u"11|");
}

TEST_F(Screen, OnlyAnotherBaseShowsTheAnswerInPlaceOfAMessage) {
  for (const std::u16string_view failing : {u"1/0", u"", u"M:G(1)"}) {
    Evaluate(failing);
    const std::u16string message = Result();
    EXPECT_NE(message, u"0");
    model_->Choose(Key::Dec, kDecimalItem);
    EXPECT_EQ(Result(), message);
    Evaluate(u"1");
    EXPECT_EQ(Result(), u"1");
  }
  Evaluate(u"1/0");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Result(), u"0");
}

// Macros.

TEST_F(Screen, MacroKeyWithoutMacrosTellsSoAndOpensTheEditor) {
  const ScientificRequest request = Press(*model_, u"Mac");
  const auto* editor = std::get_if<OpenMacroEditor>(&request);
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->message, u"Not exist saved macro");
}

TEST_F(Screen, MacroKeyWithMacrosOpensTheList) {
  test::StoreMacros(store_, {{"F1", "TYPE1 : F(X)", "x"}});
  EXPECT_TRUE(std::holds_alternative<OpenMacroList>(Press(*model_, u"Mac")));
}

TEST_F(Screen, ChosenMacroIsWrittenWithPlacesForItsArguments) {
  test::StoreMacros(store_, {{"F1", "TYPE1 : F(X)", "x"},
                             {"sum", "TYPE2 : F(X,Y)", "x+y"},
                             {"vol", "TYPE3 : F(X,Y,Z)", "x*y*z"},
                             {"other", "anything", "x*y*z"}});
  struct Row {
    int index;
    std::u16string_view bare;
    std::u16string_view selected;
  };
  const Row rows[] = {
      {0, u"1+M:F1(| )", u"1+M:F1(2 )|"},
      {1, u"1+M:sum(| , )", u"1+M:sum(2 , )|"},
      {2, u"1+M:vol(| , , )", u"1+M:vol(2 , , )|"},
      {3, u"1+M:other(| , , )", u"1+M:other(2 , , )|"},
      {4, u"1+|", u"1+[2]"},
      {-1, u"1+|", u"1+[2]"},
  };
  for (const Row& row : rows) {
    SetMarked(u"1+|");
    model_->TakeMacro(row.index);
    EXPECT_EQ(MarkedNow(), row.bare);
    SetMarked(u"1+[2]");
    model_->TakeMacro(row.index);
    EXPECT_EQ(MarkedNow(), row.selected);
  }
}

// The unit converter.

ConverterInput InputOf(const ScientificRequest& request) {
  const auto* open = std::get_if<OpenConverter>(&request);
  return open != nullptr ? open->input : ConverterInput{u"no OpenConverter", {}, 0};
}

TEST_F(Screen, ConverterTakesTheAnswerWithoutSeparators) {
  struct Row {
    std::int32_t type;
    std::u16string_view value;
  };
  for (const Row& row : {Row{0, u"12345.678"}, Row{1, u"12345.678"}, Row{2, u"1.235e+04"},
                         Row{3, u"12345.678"}, Row{4, u"12.346E+003"}, Row{9, u"12345.678"}}) {
    Set("Config", "Display Type", row.type);
    Set("Config", "Precision", 3);
    Open();
    Evaluate(u"12345.678");
    EXPECT_EQ(InputOf(Press(*model_, u"Cnv")).value, row.value) << row.type;
  }
}

TEST_F(Screen, ConverterTakesOneWhereThereIsNoAnswer) {
  EXPECT_EQ(InputOf(Press(*model_, u"Cnv")).value, u"1");
  Evaluate(u"5-5");
  EXPECT_EQ(InputOf(Press(*model_, u"Cnv")).value, u"1");
  Evaluate(u"-0.0");
  EXPECT_EQ(InputOf(Press(*model_, u"Cnv")).value, u"1");
  Evaluate(u"1/0");
  EXPECT_EQ(InputOf(Press(*model_, u"Cnv")).value, u"1");
  Evaluate(u"5");
  EXPECT_EQ(InputOf(Press(*model_, u"Cnv")).value, u"5");
}

TEST_F(Screen, ConverterOpensWithTheStoredPositionsAndTheMemory) {
  EXPECT_EQ(PlacesOf(InputOf(Press(*model_, u"Cnv")).positions), (Places{-1, -1, -1}));
  Set("Convert", "ClassPos", 6);
  Set("Convert", "InputTypePos", 2);
  Set("Convert", "OutputTypePos", 14);
  Open();
  Evaluate(u"5");
  model_->Choose(Key::MemoryMenu, 9);
  const ConverterInput input = InputOf(Press(*model_, u"Cnv"));
  EXPECT_EQ(PlacesOf(input.positions), (Places{6, 2, 14}));
  EXPECT_EQ(input.memory, 5);
}

TEST_F(Screen, ConverterResultIsInsertedAndItsStateTakenBackEitherWay) {
  SetMarked(u"2*[3]");
  model_->TakeConverter({u"39.37", {6, 1, 2}, 8});
  EXPECT_EQ(MarkedNow(), u"2*39.37|");
  EXPECT_EQ(Memory(), 8);
  EXPECT_EQ(PlacesOf(InputOf(Press(*model_, u"Cnv")).positions), (Places{6, 1, 2}));
  model_->TakeConverter({std::nullopt, {7, 3, 4}, 9});
  EXPECT_EQ(MarkedNow(), u"2*39.37|");
  EXPECT_EQ(Memory(), 9);
  EXPECT_EQ(PlacesOf(InputOf(Press(*model_, u"Cnv")).positions), (Places{7, 3, 4}));
}

}  // namespace
}  // namespace kav::scientific_model_menus_test
