#include "macros/live_result.h"

#include <gtest/gtest.h>

#include <string>

#include "support/stored_macros.h"

namespace kav::live_result_test {
namespace {

constexpr CalcModes kDecimal{AngleUnit::Degrees, BaseMode::Decimal};
constexpr CalcModes kHexadecimal{AngleUnit::Degrees, BaseMode::Hexadecimal};
constexpr const char16_t* kNone = u"none";

struct Row {
  const char16_t* line;
  const char16_t* shown;
  CalcModes modes = kDecimal;
  DisplayFormat format = {};
};

class LiveResult : public testing::Test {
 protected:
  LiveResult() { test::StoreMacros(store_, {{"F", "TYPE1 : F(X)", "x^2"}}); }

  std::u16string Live(const Row& row) {
    return LiveNumber(row.line, row.modes, row.format, MacroStore(store_)).value_or(kNone);
  }

  MemorySettingsStore store_;
};

TEST_F(LiveResult, IsWhatTheResultLineWouldShow) {
  const Row rows[] = {
      {u"2+3*4", u"14"},
      {u" 2+3 ", u"5"},
      {u"sin(30)", u"0.5"},
      {u"sin(0)", u"0", {AngleUnit::Radians, BaseMode::Decimal}},
      {u"1000*1000", u"1,000,000"},
      {u"1000*1000", u"1000000", kDecimal, {DisplayType::FloatingPoint, 7}},
      {u"2/4", u"0.50", kDecimal, {DisplayType::FixedPoint, 2}},
      {u"F*2", u"1E", kHexadecimal},
      {u"111 AND 101", u"101", {AngleUnit::Degrees, BaseMode::Binary}},
      {u"2*M:F(3)", u"18"},
      {u"(5)", u"5"},
      {u"pi-pi", u"0"},
  };
  for (const Row& row : rows) EXPECT_EQ(Live(row), row.shown);
}

TEST_F(LiveResult, IsNothingForWhatHasNoAnswerYet) {
  for (const char16_t* line : {u"", u"  ", u"2+", u"2*(3", u"sin(", u"1/0", u"M:F(", u"M:G(1)",
                               u"nosuch(2)", u"171!", u"\u00e9"}) {
    EXPECT_EQ(Live({line, nullptr}), kNone) << testing::PrintToString(line);
  }
}

TEST_F(LiveResult, DoesNotRepeatANumber) {
  for (const char16_t* line : {u"7", u"-7", u"+7", u"1234567.5", u" 7 ", u".5", u"1E5", u"2e-3"}) {
    EXPECT_EQ(Live({line, nullptr}), kNone) << testing::PrintToString(line);
  }
  for (const char16_t* line : {u"FF", u"-1", u"e", u"beef"}) {
    EXPECT_EQ(Live({line, nullptr, kHexadecimal}), kNone) << testing::PrintToString(line);
  }
}

TEST_F(LiveResult, IsNotWorkedOutForALineThatIsTooLong) {
  std::u16string line(kLongestLiveLine - 3, u' ');
  line += u"1+1";
  EXPECT_EQ(Live({line.c_str(), nullptr}), u"2");
  line.insert(0, u" ");
  EXPECT_EQ(Live({line.c_str(), nullptr}), kNone);
}

TEST(AnsweredLine, IsAnotherInOtherModes) {
  const AnsweredLine answered{u"sin(30)", kDecimal};
  EXPECT_TRUE(answered.Is(u"sin(30)", kDecimal));
  EXPECT_FALSE(answered.Is(u"sin(30", kDecimal));
  EXPECT_FALSE(answered.Is(u"sin(30)", kHexadecimal));
  EXPECT_FALSE(answered.Is(u"sin(30)", {AngleUnit::Radians, BaseMode::Decimal}));
}

}  // namespace
}  // namespace kav::live_result_test
