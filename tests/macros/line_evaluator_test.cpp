#include "macros/line_evaluator.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>

#include "engine/expression_engine.h"
#include "support/stored_macros.h"

namespace {
std::size_t allocations = 0;
}  // namespace

// Counts what is allocated between two readings of the counter.
void* operator new(std::size_t size) {
  ++allocations;
  void* memory = std::malloc(size);
  if (memory == nullptr) std::abort();
  return memory;
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace kav::line_evaluator_test {
namespace {

using Cause = LineFailure::Cause;

constexpr CalcModes kDecimal{AngleUnit::Degrees, BaseMode::Decimal};
constexpr CalcModes kHexadecimal{AngleUnit::Degrees, BaseMode::Hexadecimal};

class LineEvaluator : public testing::Test {
 protected:
  LineEvaluator() {
    test::StoreMacros(store_, {{"F", "TYPE1 : F(X)", "x^2"},
                               {"third", "TYPE1 : F(X)", "x/3"},
                               {"inverse", "TYPE1 : F(X)", "1/x"}});
  }

  Expected<double, LineFailure> Value(std::string_view line, CalcModes modes = kDecimal) {
    return EvaluateLine(line, modes, MacroStore(store_));
  }

  MemorySettingsStore store_;
};

TEST_F(LineEvaluator, LinesHaveTheirValues) {
  struct Row {
    std::string_view line;
    CalcModes modes;
    double value;
  };
  const Row rows[] = {
      {"2+3*4", kDecimal, 14},
      {"  2+3  ", kDecimal, 5},
      {"SQRT(16)", kDecimal, 4},
      {"1E3", kDecimal, 1000},
      {"5C2", kDecimal, 10},
      {"sin(90)", kDecimal, 1},
      {"sin(Pi/2)", {AngleUnit::Radians, BaseMode::Decimal}, 1},
      {"FF", kHexadecimal, 255},
      {"FF AND F", kHexadecimal, 15},
      {"101", {AngleUnit::Degrees, BaseMode::Binary}, 5},
      {"17", {AngleUnit::Degrees, BaseMode::Octal}, 15},
      {"2*M:F( 3 )", kDecimal, 18},
      {" M:F(3) ", kDecimal, 9},
      {"M:third(1)*3", kDecimal, 0.999999},
      {"M:F(F)", kHexadecimal, 225},
  };
  for (const Row& row : rows) {
    const auto value = Value(row.line, row.modes);
    ASSERT_TRUE(value) << row.line << ": " << value.error().message;
    EXPECT_EQ(*value, row.value) << row.line;
  }
}

TEST_F(LineEvaluator, LineThatIsOneMacroCallKeepsAllDigits) {
  const auto value = Value("M:third(1)");
  ASSERT_TRUE(value);
  EXPECT_EQ(*value, 1.0 / 3.0);
}

TEST_F(LineEvaluator, EmbeddedMacroValuesKeepSixDecimalsOnly) {
  const auto value = Value("M:third(1)+0");
  ASSERT_TRUE(value);
  EXPECT_EQ(*value, 0.333333);
}

TEST_F(LineEvaluator, FailuresTellTheirCauseAndMessage) {
  struct Row {
    std::string_view line;
    CalcModes modes;
    Cause cause;
    std::string_view message;
  };
  const Row rows[] = {
      {"", kDecimal, Cause::EmptyLine, "Expression is null."},
      {"    ", kDecimal, Cause::EmptyLine, "Expression is null."},
      {"2M:F(3)", kDecimal, Cause::MacroCall, "Expression error."},
      {"M:F(3)2", kDecimal, Cause::MacroCall, "Expression error."},
      {"M:G(3)", kDecimal, Cause::MacroCall, "Macro Name error"},
      {"M:F(3,4)", kDecimal, Cause::MacroCall, "Macro argument error"},
      {"M:inverse(0)", kDecimal, Cause::MacroCall, "Division exceeded calculation limit."},
      {"1/0", kDecimal, Cause::Evaluation, "Division exceeded calculation limit."},
      {"2+", kDecimal, Cause::Evaluation, "Expression error."},
      {"M:F(3)+", kDecimal, Cause::Evaluation, "Expression error."},
      {"1/(M:F(0))", kDecimal, Cause::Evaluation, "Division exceeded calculation limit."},
      {"m:F(3)", kDecimal, Cause::Evaluation, "m is not supported."},
      {"2", {AngleUnit::Degrees, BaseMode::Binary}, Cause::Evaluation, "2 is not supported."},
  };
  for (const Row& row : rows) {
    const auto value = Value(row.line, row.modes);
    ASSERT_FALSE(value) << row.line;
    EXPECT_EQ(value.error().cause, row.cause) << row.line;
    EXPECT_EQ(value.error().message, row.message) << row.line;
  }
}

TEST_F(LineEvaluator, EmbeddedMacroValueDoesNotReadBackOutsideDecimal) {
  const auto value = Value("1+M:F(F)", kHexadecimal);
  ASSERT_FALSE(value);
  EXPECT_EQ(value.error().message, ". is not supported.");
}

TEST_F(LineEvaluator, LineWithoutAMacroCostsNoAllocationBeyondTheEngine) {
  const std::string line = "  2*sin(30)+3!+1234567890.123456789*987654321.123456789  ";
  const MacroStore macros(store_);
  const auto allocated = [](auto evaluate) {
    const std::size_t before = allocations;
    EXPECT_TRUE(evaluate());
    return allocations - before;
  };
  const std::size_t engine = allocated([&] { return bool(Evaluate(line, kDecimal)); });
  const std::size_t whole = allocated([&] { return bool(EvaluateLine(line, kDecimal, macros)); });
  EXPECT_LE(whole, engine);
}

}  // namespace
}  // namespace kav::line_evaluator_test
