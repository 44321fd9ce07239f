#include "cli/failure_note.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace kav::test::failure_note_test {
namespace {

std::string Marked(const std::u16string& line, TextPlace place) {
  return FailureNote(line, {place, std::nullopt});
}

TEST(FailureNotes, SayAsMuchAsIsKnown) {
  EXPECT_EQ(FailureNote(u"1/0", {}), "");
  EXPECT_EQ(FailureNote(u"2+", {std::nullopt, u"2"}), "did you mean 2?\n");
  EXPECT_EQ(Marked(u"2+sine(1)", {2, 4}), "  2+sine(1)\n    ^\n");
  // Of no length: behind the character.
  EXPECT_EQ(Marked(u"(1", {1, 0}), "  (1\n    ^\n");
}

TEST(FailureNotes, TheMarkStandsBelowItsCharacter) {
  // Two columns each, none for an accent of its own, a blank for a TAB, a code for a bell.
  EXPECT_EQ(Marked(u"\u6f22\u5b57$", {2, 1}), "  \u6f22\u5b57$\n      ^\n");
  EXPECT_EQ(Marked(u"e\u0301$", {2, 1}), "  e\u0301$\n   ^\n");
  EXPECT_EQ(Marked(u"\U0001F600$", {2, 1}), "  \U0001F600$\n    ^\n");
  EXPECT_EQ(Marked(u"1\t$", {2, 1}), "  1 $\n    ^\n");
  EXPECT_EQ(Marked(u"\x07$", {1, 1}), "  \\x07$\n      ^\n");
}

TEST(FailureNotes, ALongLineIsShownAroundThePlace) {
  const std::u16string line = std::u16string(100, u'1') + u"$" + std::u16string(100, u'2');
  EXPECT_EQ(Marked(line, {100, 1}), "  ..." + std::string(30, '1') + "$" + std::string(29, '2') +
                                        "...\n" + std::string(35, ' ') + "^\n");
}

}  // namespace
}  // namespace kav::test::failure_note_test
