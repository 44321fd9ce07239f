// What the scientific screen gives to the clipboard, and the memory register that it shows.
#include <gtest/gtest.h>

#include <string>

#include "support/scientific_screen.h"

namespace kav::scientific_model_copy_test {
namespace {

using test::kHexadecimalItem;

class Copy : public test::Screen {
 protected:
  std::u16string Copied() { return model_->CopiedResult().value_or(u"none"); }
  std::u16string Line() { return model_->CopiedLine().value_or(u"none"); }
};

TEST_F(Copy, TheResultIsCopiedInPlainDigits) {
  EXPECT_EQ(Copied(), u"0");
  Evaluate(u"-1234567.5");
  EXPECT_EQ(Result(), u"-1,234,567.5");
  EXPECT_EQ(Copied(), u"-1234567.5");
  Evaluate(u"255");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Copied(), u"FF");
}

TEST_F(Copy, ThereIsALineToCopyOnceItIsAnswered) {
  EXPECT_EQ(Line(), u"none");
  Evaluate(u"2*sin(30)+3!");
  EXPECT_EQ(Line(), u"2*sin(30)+3! = 7");
  // What is typed since has no answer yet.
  model_->SetLine(u"1+1", {3, 3});
  EXPECT_EQ(Line(), u"2*sin(30)+3! = 7");
}

TEST_F(Copy, AMessageIsNoResult) {
  Evaluate(u"1/0");
  EXPECT_EQ(Copied(), u"none");
  EXPECT_EQ(Line(), u"none");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Result(), u"0");
  EXPECT_EQ(Copied(), u"0") << "the message is gone";
  EXPECT_EQ(Line(), u"none");
  Evaluate(u"1+1");
  EXPECT_EQ(Copied(), u"2");
}

TEST_F(Copy, TheLineOfAnotherBaseIsNotCopiedWithAnAnswerOfThisOne) {
  Evaluate(u"10+10");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Result(), u"14");
  EXPECT_EQ(Line(), u"none");
}

TEST_F(Copy, TheMemoryIsShownWhileItIsNotZero) {
  EXPECT_EQ(model_->MemoryText(), u"");
  Evaluate(u"1234.5");
  model_->Choose(Key::MemoryMenu, memory_item::kAdd);
  EXPECT_EQ(model_->MemoryText(), u"1,234.5");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(model_->MemoryText(), u"4D2");
  model_->Choose(Key::MemoryMenu, memory_item::kClear);
  EXPECT_EQ(model_->MemoryText(), u"");
}

}  // namespace
}  // namespace kav::scientific_model_copy_test
