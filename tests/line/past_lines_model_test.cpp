#include "line/past_lines_model.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/keys.h"

namespace kav::past_lines_model_test {
namespace {

using Texts = std::vector<std::u16string>;

class PastLinesModelTest : public testing::Test {
 protected:
  void Add(std::u16string_view line, std::u16string_view answer,
           BaseMode base = BaseMode::Decimal) {
    KeepPastLine(lines_, store_, MakePastLine(PastOrigin::Scientific, line, answer, base));
  }
  Texts Found() const {
    Texts texts;
    for (std::size_t row = 0; row < model_.Count(); ++row) texts.push_back(model_.Row(row).line);
    return texts;
  }

  MemoryPastLines lines_;
  MemorySettingsStore store_;
  PastLinesModel model_{lines_, store_, PastRoom::Calculator};
};

TEST_F(PastLinesModelTest, ShowsTheNewestFirst) {
  Add(u"1+1", u"2");
  Add(u"FF", u"FF", BaseMode::Hexadecimal);
  Add(u"(1", u"");
  EXPECT_EQ(model_.Count(), 0U) << "nothing is read before it is asked for";
  model_.Load();
  EXPECT_EQ(Found(), (Texts{u"(1", u"FF", u"1+1"}));
  EXPECT_EQ(model_.Row(1).answer, u"FF");
  EXPECT_EQ(model_.Row(1).tag, u"HEX");
  EXPECT_EQ(model_.Row(2).answer, u"2");
  EXPECT_EQ(model_.Row(2).tag, u"");
  EXPECT_EQ(model_.Tip(0), u"(1");
  EXPECT_EQ(model_.Tip(1), u"FF\n= FF HEX");
  EXPECT_EQ(model_.Tip(2), u"1+1\n= 2");
}

TEST_F(PastLinesModelTest, SearchesLinesAndAnswersWhateverTheCase) {
  Add(u"sin(30)", u"0.5");
  Add(u"1/2", u"0.5");
  Add(u"10^3", u"1,000");
  model_.Load();
  model_.Search(u"SIN");
  EXPECT_EQ(Found(), (Texts{u"sin(30)"}));
  model_.Search(u"0.5");
  EXPECT_EQ(Found(), (Texts{u"1/2", u"sin(30)"}));
  model_.Search(u"nothing");
  EXPECT_EQ(Found(), Texts{});
  EXPECT_EQ(model_.WhyNone(), u"No line or answer holds that text.");
  model_.Search(u"");
  EXPECT_EQ(Found(), (Texts{u"10^3", u"1/2", u"sin(30)"}));
}

TEST_F(PastLinesModelTest, WhatIsAddedWhileOneSearchesIsFoundToo) {
  model_.Search(u"2");
  Add(u"2+2", u"4");
  Add(u"3+3", u"6");
  model_.Load();
  EXPECT_EQ(Found(), (Texts{u"2+2"}));
}

TEST_F(PastLinesModelTest, DeletesOneAndPutsItBack) {
  for (const char16_t* line : {u"1", u"2", u"3"}) Add(line, line);
  model_.Load();
  EXPECT_FALSE(model_.CanUndo());
  model_.Delete(1);
  model_.Delete(0);
  EXPECT_EQ(Found(), (Texts{u"1"}));
  EXPECT_EQ(lines_.Of(PastRoom::Calculator).size(), 1U);
  EXPECT_TRUE(model_.CanUndo());
  EXPECT_EQ(model_.Undo(), 0U);
  EXPECT_EQ(Found(), (Texts{u"3", u"1"}));
  EXPECT_EQ(model_.Undo(), 1U);
  EXPECT_EQ(Found(), (Texts{u"3", u"2", u"1"}));
  EXPECT_FALSE(model_.CanUndo());
  EXPECT_FALSE(model_.Undo());
}

TEST_F(PastLinesModelTest, ClearsAllEvenWhatTheSearchHides) {
  EXPECT_FALSE(model_.CanClear());
  Add(u"1", u"1");
  Add(u"2", u"2");
  model_.Load();
  model_.Search(u"1");
  EXPECT_TRUE(model_.CanClear());
  EXPECT_EQ(model_.ClearQuestion(), u"Delete the whole history, 2 lines? This cannot be undone.");
  model_.Delete(0);
  model_.Clear();
  EXPECT_FALSE(model_.CanUndo());
  model_.Search(u"");
  EXPECT_EQ(model_.Count(), 0U);
  EXPECT_TRUE(lines_.Of(PastRoom::Calculator).empty());
}

TEST_F(PastLinesModelTest, TheSwitchKeepsNone) {
  EXPECT_TRUE(model_.IsKept());
  EXPECT_EQ(model_.WhyNone(), u"What you calculate will be listed here.");
  EXPECT_EQ(model_.KeepNone(), std::nullopt) << "there is nothing to delete";
  Add(u"1+1", u"2");
  model_.Load();
  EXPECT_EQ(model_.Count(), 0U);
  EXPECT_FALSE(model_.IsKept());
  EXPECT_EQ(store_.Get(kHistoryKept), 0);
  EXPECT_EQ(model_.WhyNone(), u"The history is off: no line is kept.");
  model_.Keep();
  Add(u"1+1", u"2");
  model_.Load();
  EXPECT_EQ(Found(), (Texts{u"1+1"}));
  EXPECT_EQ(model_.KeepNone(),
            u"From now on no line is kept. Delete what is kept so far, 1 line, too? This cannot "
            u"be undone.");
  EXPECT_EQ(Found(), (Texts{u"1+1"})) << "only on Yes";
}

TEST_F(PastLinesModelTest, LineBreaksAreShownAsBlanks) {
  lines_.Add({0, PastOrigin::Prompt, 1, "1\t+\n2", "3"});
  model_.Load();
  EXPECT_EQ(model_.Row(0).line, u"1 + 2");
}

TEST_F(PastLinesModelTest, LinesAsTheyWereTypedTheNewestLast) {
  Add(u"1+1", u"2");
  Add(u"(1", u"");
  EXPECT_EQ(TypedLinesOf(lines_, PastRoom::Calculator), (Texts{u"1+1", u"(1"}));
  EXPECT_EQ(TypedLinesOf(lines_, PastRoom::Matrix), Texts{});
}

TEST(PastLinesOfAScreen, StandBeforeThoseOfAllSessionsThatDoNotHoldThem) {
  EXPECT_EQ(Joined({u"1", u"3"}, {u"2", u"3"}), (Texts{u"1", u"2", u"3"}));
  EXPECT_EQ(Joined({u"1"}, {}), Texts{u"1"});
  EXPECT_EQ(Joined({}, {u"1"}), Texts{u"1"});
}

TEST(PastAnswers, AreInsertedAsTheTwentyEntriesAre) {
  struct Row {
    const char16_t* answer;
    BaseMode from;
    BaseMode to;
    const char16_t* inserted;
  };
  const std::vector<Row> rows{
      {u"1,234.5", BaseMode::Decimal, BaseMode::Decimal, u"1234.5"},
      {u"-2", BaseMode::Decimal, BaseMode::Decimal, u"-2"},
      {u"FF", BaseMode::Hexadecimal, BaseMode::Decimal, u"255"},
      {u"255", BaseMode::Decimal, BaseMode::Hexadecimal, u"FF"},
      {u"101", BaseMode::Binary, BaseMode::Decimal, u"5"},
      {u"17", BaseMode::Octal, BaseMode::Decimal, u"15"},
  };
  for (const Row& row : rows) {
    const PastLine past = MakePastLine(PastOrigin::Prompt, u"x", row.answer, row.from);
    ASSERT_TRUE(HasNumber(past));
    EXPECT_EQ(AnswerInsertion(past, {DisplayType::Thousands, 7}, row.to), row.inserted);
  }
}

TEST(PastAnswers, WhatIsNoNumberIsNotInserted) {
  for (const char16_t* answer :
       {u"", u"-", u"Matrix 3 x 3", u"Out of range(overflow or underflow)", u"FF"}) {
    EXPECT_FALSE(HasNumber(MakePastLine(PastOrigin::Scientific, u"x", answer, BaseMode::Decimal)));
  }
}

}  // namespace
}  // namespace kav::past_lines_model_test
