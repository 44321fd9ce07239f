#include "line/screen_menus.h"

#include <gtest/gtest.h>

namespace kav::screen_menus_test {
namespace {

TEST(ScreenMenus, HistoryMenuShowsTheNewestOnTop) {
  History history;
  history.Add(u"=[D]2");
  history.Add(u"1+1");
  history.Add(u"123456789012345678901");
  EXPECT_EQ(BuildHistoryMenu(history),
            (Menu{{3, u"12345678901234567..."}, {2, u"1+1"}, {1, u"=[D]2"}}));
  EXPECT_EQ(BuildHistoryMenu({}), Menu{});
}

TEST(ScreenMenus, EntriesThatAreNotThereAreNotOffered) {
  MemorySettingsStore store;
  store.Set(SettingKey<std::int32_t>{"History", "CalHistoryCount", 0}, 500);
  EXPECT_EQ(BuildHistoryMenu(History::Load(store, kCalculatorHistory)), Menu{});
  store.Set(SettingKey<std::string_view>{"History", "CalHistory3", ""}, "1+1");
  EXPECT_EQ(BuildHistoryMenu(History::Load(store, kCalculatorHistory)), (Menu{{3, u"1+1"}}));
}

TEST(ScreenMenus, BaseMenuOffersTheFourBases) {
  EXPECT_EQ(BuildBaseMenu(BaseMode::Octal), (Menu{{32805, u"Binary", MenuMark::Unset},
                                                  {32806, u"Octal", MenuMark::Set},
                                                  {32807, u"Decimal", MenuMark::Unset},
                                                  {32808, u"Hexadecimal", MenuMark::Unset}}));
}

TEST(ScreenMenus, ItemsOfTheBaseMenuStandForTheirBases) {
  EXPECT_EQ(BaseOfItem(32805), BaseMode::Binary);
  EXPECT_EQ(BaseOfItem(32806), BaseMode::Octal);
  EXPECT_EQ(BaseOfItem(32807), BaseMode::Decimal);
  EXPECT_EQ(BaseOfItem(32808), BaseMode::Hexadecimal);
  for (const int id : {0, -1, 1, 32804, 32809}) EXPECT_EQ(BaseOfItem(id), std::nullopt) << id;
}

TEST(ScreenMenus, BasesHaveShortNames) {
  EXPECT_EQ(BaseCaption(BaseMode::Decimal), u"DEC");
  EXPECT_EQ(BaseCaption(BaseMode::Hexadecimal), u"HEX");
  EXPECT_EQ(BaseCaption(BaseMode::Binary), u"BIN");
  EXPECT_EQ(BaseCaption(BaseMode::Octal), u"OCT");
}

TEST(ScreenMenus, AngleUnitsHaveShortNames) {
  EXPECT_EQ(AngleCaption(AngleUnit::Degrees), u"DEG");
  EXPECT_EQ(AngleCaption(AngleUnit::Radians), u"RAD");
}

TEST(ScreenMenus, MemoryMenuOffersAllAfterAnAnswer) {
  EXPECT_EQ(BuildMemoryMenu(u""), (Menu{{9, u"Memory +"},
                                        {8, u"Memory -"},
                                        {7, u"Memory Recall"},
                                        {6, u"Memory Clear"},
                                        {0, u""},
                                        {4, u"ReCall MemVar"},
                                        {3, u"Store MemVar"},
                                        {0, u""},
                                        {1, u"Constants"}}));
}

TEST(ScreenMenus, MemoryMenuOffersNothingOfTheAnswerAfterAFailure) {
  EXPECT_EQ(BuildMemoryMenu(u"Expression error."), (Menu{{7, u"Memory Recall"},
                                                         {6, u"Memory Clear"},
                                                         {0, u""},
                                                         {4, u"ReCall MemVar"},
                                                         {0, u""},
                                                         {1, u"Constants"}}));
}

TEST(ScreenMenus, SeparatorsAreNotOffered) {
  const Menu menu = BuildMemoryMenu(u"");
  EXPECT_FALSE(Offers(menu, 0));
  EXPECT_FALSE(Offers(menu, 5));
  EXPECT_TRUE(Offers(menu, 9));
  EXPECT_FALSE(Offers(BuildMemoryMenu(u"Expression error."), 9));
}

}  // namespace
}  // namespace kav::screen_menus_test
