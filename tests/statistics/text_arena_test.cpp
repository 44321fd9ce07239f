#include "statistics/text_arena.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/random.h"

namespace kav::text_arena_test {
namespace {

TEST(TextArena, TheTwoTextsStandOneBehindTheOther) {
  TextArena arena;
  const auto first = arena.Put("12", "3.5");
  const auto second = arena.Put("7", "");
  ASSERT_TRUE(first && second);
  EXPECT_EQ(arena.At(*first, 5), "123.5");
  EXPECT_EQ(arena.At(*second, 1), "7");
  EXPECT_EQ(arena.Size(), 6U);
}

TEST(TextArena, NoCharactersTakeNoRoom) {
  TextArena arena;
  EXPECT_EQ(arena.Put("", ""), 0U);
  EXPECT_EQ(arena.Size(), 0U);
  EXPECT_EQ(arena.Put("1", ""), 0U);
  EXPECT_EQ(arena.Put("", ""), 0U);
  EXPECT_EQ(arena.Put("2", ""), 1U);
}

TEST(TextArena, ATextThatDoesNotFitBehindTheOthersBeginsABlock) {
  TextArena arena;
  const std::string almostABlock(TextArena::kBlockSize - 1, 'a');
  EXPECT_EQ(arena.Put(almostABlock, ""), 0U);
  EXPECT_EQ(arena.Put("bc", ""), TextArena::kBlockSize);
  EXPECT_EQ(arena.At(TextArena::kBlockSize, 2), "bc");
  EXPECT_EQ(arena.At(0, almostABlock.size()), almostABlock);
  EXPECT_EQ(arena.Size(), TextArena::kBlockSize + 1);
}

TEST(TextArena, TextsOfAnyLengthAreCopiedWhole) {
  TextArena arena;
  std::string first = "0";
  for (std::size_t length = 0; length < 40; ++length) {
    const std::string second(length, static_cast<char>('a' + length % 26));
    const auto place = arena.Put(first, second);
    const auto behind = arena.Put("|", "");
    ASSERT_TRUE(place && behind);
    ASSERT_EQ(arena.At(*place, first.size() + second.size()), first + second);
    ASSERT_EQ(arena.At(*behind, 1), "|");
    first += static_cast<char>('0' + first.size() % 10);
  }
}

TEST(TextArena, PuttingInRoomThatWasMadeIsPutting) {
  TextArena arena;
  ASSERT_TRUE(arena.MakeRoom(5));
  EXPECT_EQ(arena.PutInRoom("12", "345"), 0U);
  ASSERT_TRUE(arena.MakeRoom(TextArena::kBlockSize));
  EXPECT_EQ(arena.PutInRoom(std::string(TextArena::kBlockSize, '6'), ""), TextArena::kBlockSize);
  EXPECT_EQ(arena.At(0, 5), "12345");
  EXPECT_EQ(arena.Size(), TextArena::kBlockSize + 5);
}

TEST(TextArena, TextsStayWhereTheyAreWhenMoreAreAdded) {
  test::Random random(1);
  TextArena arena;
  std::vector<std::pair<std::uint32_t, std::string>> put;
  for (int i = 0; i < 2000; ++i) {
    const std::string text(random.Below(3000), static_cast<char>('a' + random.Below(26)));
    put.emplace_back(
        arena.Put(text.substr(0, text.size() / 2), text.substr(text.size() / 2)).value(), text);
  }
  for (const auto& [place, text] : put) ASSERT_EQ(arena.At(place, text.size()), text);
}

TEST(TextArena, ItMayCopyATextOfItsOwn) {
  TextArena arena;
  const std::uint32_t place = arena.Put("123456", "").value();
  for (int i = 0; i < 100'000; ++i) {
    const std::uint32_t copy = arena.Put(arena.At(place, 6), "").value();
    ASSERT_EQ(arena.At(copy, 6), "123456");
  }
}

TEST(TextArena, CutToAMarkItIsAsItWasThere) {
  TextArena arena;
  const auto empty = arena.End();
  const std::uint32_t kept = arena.Put("kept", "").value();
  const auto mark = arena.End();
  for (int i = 0; i < 3; ++i) arena.Put(std::string(TextArena::kBlockSize, 'x'), "");
  arena.CutTo(mark);
  EXPECT_EQ(arena.Size(), 4U);
  EXPECT_EQ(arena.At(kept, 4), "kept");
  EXPECT_EQ(arena.Put("next", ""), 4U);
  arena.CutTo(empty);
  EXPECT_EQ(arena.Size(), 0U);
  EXPECT_EQ(arena.Put("first", ""), 0U);
}

}  // namespace
}  // namespace kav::text_arena_test
