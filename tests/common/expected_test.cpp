#include "common/expected.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace kav::expected_test {
namespace {

using Answer = Expected<int, std::string>;

Answer Half(int number) {
  if (number % 2 != 0) return "odd: " + std::to_string(number);
  return number / 2;
}

TEST(Expected, HoldsTheValueOfASuccess) {
  const Answer answer = Half(42);
  ASSERT_TRUE(answer);
  EXPECT_EQ(*answer, 21);
}

TEST(Expected, HoldsTheErrorOfAFailure) {
  const Answer answer = Half(7);
  ASSERT_FALSE(answer);
  EXPECT_EQ(answer.error(), "odd: 7");
}

TEST(Expected, AnEmptyErrorIsStillAFailureAndAZeroASuccess) {
  EXPECT_FALSE(Answer(std::string()));
  EXPECT_TRUE(Answer(0));
}

TEST(Expected, ValueCanBeChangedInPlace) {
  Expected<std::string, int> text = std::string("ab");
  *text += "cd";
  text->push_back('e');
  const Expected<std::string, int> copy = text;
  EXPECT_EQ(*copy, "abcde");
  EXPECT_EQ(copy->size(), 5U);
}

TEST(Expected, MovesOutWhatCannotBeCopied) {
  Expected<std::unique_ptr<int>, std::string> answer = std::make_unique<int>(5);
  const std::unique_ptr<int> owner = *std::move(answer);
  EXPECT_EQ(*owner, 5);

  Expected<int, std::unique_ptr<int>> failure = std::make_unique<int>(6);
  const std::unique_ptr<int> reason = std::move(failure).error();
  EXPECT_EQ(*reason, 6);
}

TEST(Expected, AssignmentTurnsASuccessIntoAFailureAndBack) {
  Answer answer = Half(2);
  answer = Half(3);
  EXPECT_FALSE(answer);
  answer = Half(4);
  ASSERT_TRUE(answer);
  EXPECT_EQ(*answer, 2);
}

}  // namespace
}  // namespace kav::expected_test
