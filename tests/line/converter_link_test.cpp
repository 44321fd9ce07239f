#include "line/converter_link.h"

#include <gtest/gtest.h>

#include "support/marked_line.h"
#include "support/unit_places.h"

namespace kav::converter_link_test {
namespace {

using test::Marked;
using test::MarkedLine;
using test::Places;
using test::PlacesOf;

const SettingKey<std::int32_t> kClass{"Convert", "ClassPos", -99};
const SettingKey<std::int32_t> kInput{"Convert", "InputTypePos", -99};
const SettingKey<std::int32_t> kOutput{"Convert", "OutputTypePos", -99};

TEST(ConverterLink, NothingIsChosenOnAFirstStart) {
  const MemorySettingsStore store;
  const ConverterLink link(store);
  EXPECT_EQ(PlacesOf(link.positions), (Places{-1, -1, -1}));
  EXPECT_EQ(link.memory, 0);
}

TEST(ConverterLink, PositionsOutliveARun) {
  MemorySettingsStore store;
  ConverterLink link(store);
  link.positions = {6, 1, 2};
  link.memory = 8;
  link.Save(store);
  EXPECT_EQ(store.Get(kClass), 6);
  EXPECT_EQ(store.Get(kInput), 1);
  EXPECT_EQ(store.Get(kOutput), 2);
  const ConverterLink next(store);
  EXPECT_EQ(PlacesOf(next.positions), (Places{6, 1, 2}));
  EXPECT_EQ(next.memory, 0);
}

TEST(ConverterLink, RequestHandsOverValuePositionsAndMemory) {
  const MemorySettingsStore store;
  ConverterLink link(store);
  link.positions = {3, 2, 1};
  link.memory = -4.5;
  const OpenConverter request = link.Request(u"25.4");
  EXPECT_EQ(request.input.value, u"25.4");
  EXPECT_EQ(PlacesOf(request.input.positions), (Places{3, 2, 1}));
  EXPECT_EQ(request.input.memory, -4.5);
}

TEST(ConverterLink, ResultReplacesTheSelectionAndTheRestIsTakenInAnyCase) {
  const MemorySettingsStore store;
  ConverterLink link(store);
  ExpressionLine line = MarkedLine(u"1+[2]");
  link.Take({u"39.37", {6, 1, 2}, 8}, line);
  EXPECT_EQ(Marked(line), u"1+39.37|");
  EXPECT_EQ(PlacesOf(link.positions), (Places{6, 1, 2}));
  EXPECT_EQ(link.memory, 8);
  link.Take({std::nullopt, {7, 3, 4}, 9}, line);
  EXPECT_EQ(Marked(line), u"1+39.37|");
  EXPECT_EQ(PlacesOf(link.positions), (Places{7, 3, 4}));
  EXPECT_EQ(link.memory, 9);
}

}  // namespace
}  // namespace kav::converter_link_test
