// What the scientific screen says of a line before "=".
#include <gtest/gtest.h>

#include <string>

#include "support/scientific_screen.h"

namespace kav::scientific_model_live_test {
namespace {

using test::kHexadecimalItem;

class Live : public test::Screen {
 protected:
  std::u16string Of(std::u16string_view line) { return model_->LiveResult(line).value_or(u"none"); }
};

TEST_F(Live, IsShownUntilTheLineIsAnswered) {
  EXPECT_EQ(Of(u"2+3"), u"5");
  Evaluate(u"2+3");
  EXPECT_EQ(Of(u"2+3"), u"none");
  EXPECT_EQ(Of(u"2+34"), u"36");
  // What CLR took away was not answered.
  model_->SetLine(u"6*7", {});
  test::Press(*model_, u"CLR");
  EXPECT_EQ(Of(u"6*7"), u"42");
}

TEST_F(Live, ChangesNothing) {
  Evaluate(u"2+3");
  EXPECT_EQ(Of(u"6*7"), u"42");
  EXPECT_EQ(Result(), u"5");
  EXPECT_EQ(model_->LastAnswer(), 5);
  EXPECT_EQ(model_->Line().Text(), u"2+3");
  EXPECT_EQ(History(), (test::Texts{u"=[D]5", u"2+3"}));
}

TEST_F(Live, ALineHasANewAnswerInOtherModes) {
  Evaluate(u"sin(90)");
  test::Press(*model_, u"DEG");
  EXPECT_EQ(Of(u"sin(90)"), u"0.893996663601");
  Evaluate(u"10*10");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Of(u"10*10"), u"100");
}

TEST_F(Live, FollowsTheDisplaySettings) {
  Set("Config", "Display Type", 1);
  Set("Config", "Precision", 3);
  EXPECT_EQ(Of(u"1/4"), u"0.25");
  model_->TakeDisplaySettings();
  EXPECT_EQ(Of(u"1/4"), u"0.250");
}

TEST_F(Live, IsNotShownToWhoSwitchedItOff) {
  Set("Config", "Live Result", 0);
  EXPECT_EQ(Of(u"2+3"), u"none");
  Set("Config", "Live Result", 1);
  EXPECT_EQ(Of(u"2+3"), u"5");
}

}  // namespace
}  // namespace kav::scientific_model_live_test
