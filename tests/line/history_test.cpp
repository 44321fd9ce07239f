#include "line/history.h"

#include <gtest/gtest.h>

#include "support/is_stored.h"

namespace kav::history_test {
namespace {

const SettingKey<std::int32_t> kCount{"History", "CalHistoryCount", 0};
constexpr DisplayFormat kDefaultFormat{};

NumberedKey Entry(int number) {
  return {"History", "CalHistory" + std::to_string(number), ""};
}

History OfNumbers(int first, int last) {
  History history;
  for (int number = first; number <= last; ++number) {
    const std::string text = std::to_string(number);
    history.Add(std::u16string(text.begin(), text.end()));
  }
  return history;
}

TEST(History, FreshHistoryIsEmpty) {
  const MemorySettingsStore store;
  const History history = History::Load(store, kCalculatorHistory);
  EXPECT_TRUE(history.IsEmpty());
  EXPECT_FALSE(history.NewestIs(u""));
}

TEST(History, EntriesAreKeptOldestFirst) {
  const History history = OfNumbers(1, 3);
  EXPECT_FALSE(history.IsEmpty());
  EXPECT_EQ(history.Entries(), (std::vector<std::u16string>{u"1", u"2", u"3"}));
  EXPECT_TRUE(history.NewestIs(u"3"));
  EXPECT_FALSE(history.NewestIs(u"2"));
}

TEST(History, TextEqualToTheNewestIsNotAdded) {
  History history;
  history.Add(u"1+1");
  history.Add(u"1+1");
  history.Add(u"1+1 ");
  history.Add(u"1+1");
  EXPECT_EQ(history.Entries(), (std::vector<std::u16string>{u"1+1", u"1+1 ", u"1+1"}));
}

TEST(History, TwentyFirstEntryPushesOutTheOldest) {
  const History full = OfNumbers(1, 20);
  ASSERT_EQ(full.Entries().size(), 20U);
  EXPECT_EQ(full.Entries().front(), u"1");
  const History pushed = OfNumbers(1, 21);
  ASSERT_EQ(pushed.Entries().size(), 20U);
  EXPECT_EQ(pushed.Entries().front(), u"2");
  EXPECT_EQ(pushed.Entries().back(), u"21");
}

TEST(History, FullHistoryStaysWhenTheNewestIsAddedAgain) {
  History history = OfNumbers(1, 20);
  history.Add(u"20");
  EXPECT_EQ(history.Entries().front(), u"1");
  EXPECT_EQ(history.Entries().size(), 20U);
}

TEST(History, StoredCountIsHeldBetweenZeroAndTwenty) {
  struct Row {
    std::int32_t stored;
    std::size_t loaded;
  };
  for (const Row& row : {Row{0, 0}, Row{1, 1}, Row{20, 20}, Row{21, 20}, Row{35, 20},
                         Row{2147483647, 20}, Row{-1, 0}, Row{-2147483647 - 1, 0}}) {
    MemorySettingsStore store;
    store.Set(kCount, row.stored);
    EXPECT_EQ(History::Load(store, kCalculatorHistory).Entries().size(), row.loaded) << row.stored;
  }
}

TEST(History, CountOfThirtyFiveLoadsTheFirstTwentyEntries) {
  MemorySettingsStore store;
  store.Set(kCount, 35);
  for (int number = 1; number <= 35; ++number) store.Set(Entry(number), std::to_string(number));
  const History history = History::Load(store, kCalculatorHistory);
  EXPECT_EQ(history.Entries(), OfNumbers(1, 20).Entries());
}

TEST(History, MissingEntriesLoadAsEmptyTexts) {
  MemorySettingsStore store;
  store.Set(kCount, 3);
  store.Set(Entry(2), "1+1");
  EXPECT_EQ(History::Load(store, kCalculatorHistory).Entries(),
            (std::vector<std::u16string>{u"", u"1+1", u""}));
}

TEST(History, SavedEntriesAreNumberedFromOneTheNewestLast) {
  MemorySettingsStore store;
  OfNumbers(7, 9).Save(store, kCalculatorHistory);
  EXPECT_EQ(store.Get(kCount), 3);
  EXPECT_EQ(store.Get(Entry(1)), "7");
  EXPECT_EQ(store.Get(Entry(2)), "8");
  EXPECT_EQ(store.Get(Entry(3)), "9");
  EXPECT_FALSE(test::IsStored(store, "History", "CalHistory0"));
  EXPECT_FALSE(test::IsStored(store, "History", "CalHistory4"));
}

TEST(History, MatrixEntriesAreNumberedFromZeroInASectionOfTheirOwn) {
  MemorySettingsStore store;
  OfNumbers(7, 9).Save(store, kMatrixHistory);
  EXPECT_EQ(store.Get(IntegerKey{"MHistory", "CalMHistoryCount", -1}), 3);
  EXPECT_EQ(store.Get(NumberedKey{"MHistory", "CalMHistory0", ""}), "7");
  EXPECT_EQ(store.Get(NumberedKey{"MHistory", "CalMHistory1", ""}), "8");
  EXPECT_EQ(store.Get(NumberedKey{"MHistory", "CalMHistory2", ""}), "9");
  EXPECT_FALSE(test::IsStored(store, "MHistory", "CalMHistory3"));
  EXPECT_FALSE(test::IsStored(store, "History", "CalHistoryCount"));
  EXPECT_EQ(History::Load(store, kMatrixHistory).Entries(),
            (std::vector<std::u16string>{u"7", u"8", u"9"}));
  EXPECT_TRUE(History::Load(store, kCalculatorHistory).IsEmpty());
}

TEST(History, StoredMatrixCountOfThirtyFiveLoadsTheFirstTwentyEntries) {
  MemorySettingsStore store;
  store.Set(IntegerKey{"MHistory", "CalMHistoryCount", 0}, 35);
  for (int number = 0; number < 35; ++number) {
    const std::string text = std::to_string(number);
    store.Set(NumberedKey{"MHistory", "CalMHistory" + text, ""}, text);
  }
  const History history = History::Load(store, kMatrixHistory);
  ASSERT_EQ(history.Entries().size(), 20U);
  EXPECT_EQ(history.Entries().front(), u"0");
  EXPECT_EQ(history.Entries().back(), u"19");
}

TEST(History, AnyTextComesBackAsItWas) {
  History history;
  const std::vector<std::u16string> texts{u"  1 + 1 ",  u"=[D]1,234.5",
                                          u"π·2",       u"\U0001F600",
                                          u"\"a;b#c\"", std::u16string(100000, u'1')};
  for (const auto& text : texts) history.Add(text);
  MemorySettingsStore store;
  history.Save(store, kCalculatorHistory);
  EXPECT_EQ(History::Load(store, kCalculatorHistory).Entries(), texts);
}

TEST(History, OfEntriesBeyondAllMeasureTheNewestThatFitAreStored) {
  const std::u16string ones(500'000, u'1');
  const std::u16string threes(548'575, u'3');
  History history;
  for (const auto& text : {std::u16string(u"1+1"), ones, std::u16string(1'048'576, u'2'), threes,
                           std::u16string(u"2")}) {
    history.Add(text);
  }
  MemorySettingsStore store;
  store.Set(CalMHistoryEntry(4), "from earlier");
  history.Save(store, kMatrixHistory);
  EXPECT_TRUE(History::Load(store, kMatrixHistory).Entries() ==
              (std::vector<std::u16string>{ones, threes, u"2"}));
  EXPECT_EQ(store.Get(CalMHistoryEntry(4)), "");
  EXPECT_EQ(history.Entries().size(), 5U);
}

TEST(History, AnswerEntriesCarryTheirBase) {
  EXPECT_EQ(AnswerEntry(u"1,234.5", BaseMode::Decimal), u"=[D]1,234.5");
  EXPECT_EQ(AnswerEntry(u"FF", BaseMode::Hexadecimal), u"=[H]FF");
  EXPECT_EQ(AnswerEntry(u"101", BaseMode::Binary), u"=[B]101");
  EXPECT_EQ(AnswerEntry(u"17", BaseMode::Octal), u"=[O]17");
}

TEST(History, ExpressionsAreInsertedAsTheyStand) {
  for (const std::u16string_view entry :
       {u"", u"2+3", u"  2 + 3 ", u"2*M:F( 3 )", u"1,234.5", u"2=3", u"[D]5"}) {
    for (const BaseMode base : {BaseMode::Decimal, BaseMode::Hexadecimal}) {
      EXPECT_EQ(EntryInsertion(entry, kDefaultFormat, base), entry);
    }
  }
}

struct InsertionRow {
  std::u16string_view entry;
  std::u16string_view inserted;
};

void ExpectInsertions(BaseMode base, std::initializer_list<InsertionRow> rows,
                      DisplayFormat format = kDefaultFormat) {
  for (const InsertionRow& row : rows) {
    EXPECT_EQ(EntryInsertion(row.entry, format, base), row.inserted)
        << std::string(row.entry.begin(), row.entry.end());
  }
}

TEST(History, AnswersAreReadInTheBaseOfTheirTag) {
  ExpectInsertions(BaseMode::Decimal, {
                                          {u"=[H]ff", u"255"},
                                          {u"=[H]FF", u"255"},
                                          {u"=[H]FFFFFFFF", u"4294967295"},
                                          {u"=[B]101", u"5"},
                                          {u"=[B]11111111111111111111111111111111", u"4294967295"},
                                          {u"=[O]17", u"15"},
                                          {u"=[O]37777777777", u"4294967295"},
                                          {u"=[D]0", u"0"},
                                          {u"=[D]1,234.5", u"1234.5"},
                                          {u"=[D]-1,234,567", u"-1234567"},
                                          {u"=[D]0.05", u"0.05"},
                                          {u"=[D]12.346E+003", u"12346"},
                                          {u"=[D]5.0000000e-01", u"0.5"},
                                      });
}

TEST(History, AnswersAreWrittenInTheBaseInForce) {
  ExpectInsertions(BaseMode::Hexadecimal, {{u"=[D]255", u"FF"},
                                           {u"=[H]FFFFFFFF", u"FFFFFFFF"},
                                           {u"=[D]-1", u"FFFFFFFF"},
                                           {u"=[D]2.9", u"2"}});
  ExpectInsertions(BaseMode::Binary, {{u"=[H]A", u"1010"}, {u"=[O]17", u"1111"}});
  ExpectInsertions(BaseMode::Octal, {{u"=[H]A", u"12"}});
}

TEST(History, DigitsOfOtherCharactersAddNothingButKeepTheirPlace) {
  ExpectInsertions(BaseMode::Decimal, {{u"=[H]1g", u"16"},
                                       {u"=[H]1 0", u"256"},
                                       {u"=[B]1x1", u"5"},
                                       {u"=[B]1a", u"2"},
                                       {u"=[O]1,000", u"4096"},
                                       {u"=[B]12", u"4"},
                                       {u"=[O]19", u"17"}});
}

TEST(History, AnswersInsertedKeepThePrecisionOfTheScreenInExponentForm) {
  ExpectInsertions(BaseMode::Decimal,
                   {{u"=[D]1.2345678e+15", u"1.23e+15"}, {u"=[D]0.12345", u"0.12345"}},
                   {DisplayType::Thousands, 2});
  ExpectInsertions(BaseMode::Decimal, {{u"=[D]1,234.5", u"1234.5"}}, {DisplayType::FixedPoint, 0});
}

TEST(History, AnswersSpoiledByHandAreReadAsFarAsTheyGo) {
  ExpectInsertions(BaseMode::Decimal, {{u"=", u"0"},
                                       {u"=[", u"0"},
                                       {u"=[H", u"0"},
                                       {u"=[H]", u"0"},
                                       {u"=[D]", u"0"},
                                       {u"=[D]abc", u"0"},
                                       {u"=[Q]12", u"12"},
                                       {u"=[h]12", u"12"},
                                       {u"=5", u"0"},
                                       {u"=====", u"0"}});
  const std::u16string tooLarge = u"=[H]" + std::u16string(400, u'F');
  EXPECT_EQ(EntryInsertion(tooLarge, kDefaultFormat, BaseMode::Decimal),
            u"Out of range(overflow or underflow)");
}

TEST(History, LabelsOfMoreThanTwentyCharactersAreCut) {
  struct Row {
    std::u16string_view entry;
    std::u16string_view label;
  };
  const Row rows[] = {{u"", u""},
                      {u"1+1", u"1+1"},
                      {u"12345678901234567890", u"12345678901234567890"},
                      {u"123456789012345678901", u"12345678901234567..."},
                      {u"1234567890123456789012345", u"12345678901234567..."}};
  for (const Row& row : rows) EXPECT_EQ(EntryLabel(row.entry), row.label);
}

TEST(History, LabelsHoldNoHalfOfACharacter) {
  const std::u16string entry = u"1234567890123456\U0001F600" + std::u16string(10, u'+');
  EXPECT_EQ(EntryLabel(entry), u"1234567890123456...");
}

}  // namespace
}  // namespace kav::history_test
