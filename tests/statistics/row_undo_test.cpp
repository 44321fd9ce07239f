#include "statistics/row_undo.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <utility>

namespace kav::row_undo_test {
namespace {

DataList ListOf(std::size_t rows) {
  DataList list(DataShape::OneVariable);
  for (std::size_t i = 0; i < rows; ++i) EXPECT_FALSE(list.Append({{"1", ""}, 1}));
  return list;
}

TEST(RowUndo, AReplacedListIsExchangedAndNotCopied) {
  DataList list = ListOf(3);
  const char* text = list.ValueText(0, 0).data();
  DataList empty = ListOf(0);
  std::swap(list, empty);
  RowUndo undo;
  undo.Keep(ReplaceRows{std::move(empty)},
            {.isModified = true, .selected = 2, .sorted = {}, .buttons = {}});
  RowsBeside beside;
  ASSERT_FALSE(undo.Undo(list, beside));
  EXPECT_EQ(list.RowCount(), 3U);
  EXPECT_EQ(list.ValueText(0, 0).data(), text);
  EXPECT_TRUE(beside.isModified);
  EXPECT_EQ(beside.selected, 2U);
  ASSERT_FALSE(undo.Redo(list, beside));
  EXPECT_EQ(list.RowCount(), 0U);
  EXPECT_FALSE(beside.isModified);
}

TEST(RowUndo, ShortListsAreHeldWhileAnotherIsLoaded) {
  RowUndo undo;
  undo.Keep(ReplaceRows{ListOf(1)}, {});
  undo.BeforeLoading();
  EXPECT_TRUE(undo.CanUndo());
  undo.Clear();
  EXPECT_FALSE(undo.CanUndo());
}

TEST(RowUndo, LongListsAreNotHeldWhileAnotherIsLoaded) {
  RowUndo undo;
  undo.Keep(ReplaceRows{ListOf(RowUndo::kMostBesideLoading + 1)}, {});
  undo.BeforeLoading();
  EXPECT_FALSE(undo.CanUndo());
}

TEST(RowUndo, WhatIsRefusedChangesNothing) {
  DataList list = ListOf(0);
  ASSERT_FALSE(list.Append({{"1", ""}, 2'147'483'647}));
  RowUndo undo;
  undo.Keep(PutRowBack{0, {{"1", ""}, 1}}, {});
  RowsBeside beside;
  EXPECT_EQ(undo.Undo(list, beside), DataRefusal::TotalOutOfRange);
  EXPECT_EQ(list.RowCount(), 1U);
  EXPECT_TRUE(undo.CanUndo());
  EXPECT_FALSE(undo.CanRedo());
}

}  // namespace
}  // namespace kav::row_undo_test
