#include "engine/calc_error.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kav::calc_error_test {
namespace {

struct MessageRow {
  CalcErrorCode code;
  int number;
  std::string_view message;  ///< about "sin"
};

constexpr MessageRow kMessages[] = {
    {CalcErrorCode::OutOfRange, 0, "Out of range(overflow or underflow)"},
    {CalcErrorCode::UnmatchedParentheses, 1, "Not matched '(' and ')'."},
    {CalcErrorCode::Expression, 2, "Expression error."},
    {CalcErrorCode::TooManyOperators, 3, "Too many operator."},
    {CalcErrorCode::NeedsArgument, 4, "(sin) needs an argument."},
    {CalcErrorCode::NotSupported, 5, "sin is not supported."},
    {CalcErrorCode::CalculationLimit, 6, "sin exceeded calculation limit."},
    {CalcErrorCode::NotInteger, 7, "sin is not supported non-integer."},
    {CalcErrorCode::LengthLimit, 8, "number exceeded length limit."},
    {CalcErrorCode::NullExpression, 9, "Expression is null."},
    {CalcErrorCode::Free, 10, "sin"},
};

TEST(CalcError, EveryCodeHasItsNumberAndMessage) {
  for (const MessageRow& row : kMessages) {
    EXPECT_EQ(static_cast<int>(row.code), row.number);
    const CalcError error = MakeError(row.code, "sin");
    EXPECT_EQ(error.code, row.code);
    EXPECT_EQ(error.message, row.message);
  }
}

TEST(CalcError, NoNameLeavesItsPlaceEmpty) {
  EXPECT_EQ(MakeError(CalcErrorCode::NeedsArgument).message, "() needs an argument.");
  EXPECT_EQ(MakeError(CalcErrorCode::Free).message, "");
}

TEST(CalcError, UnsupportedNamesOfMoreThan17CharactersAreCutTo15) {
  const std::string letters = "abcdefghijklmnopqrst";
  const auto message = [&](std::size_t length) {
    return MakeError(CalcErrorCode::NotSupported, letters.substr(0, length)).message;
  };
  EXPECT_EQ(message(15), "abcdefghijklmno is not supported.");
  EXPECT_EQ(message(17), "abcdefghijklmnopq is not supported.");
  EXPECT_EQ(message(18), "abcdefghijklmno... is not supported.");
  EXPECT_EQ(message(20), "abcdefghijklmno... is not supported.");
}

TEST(CalcError, OnlyUnsupportedNamesAreCut) {
  const std::string name(30, 'n');
  EXPECT_EQ(MakeError(CalcErrorCode::NeedsArgument, name).message,
            "(" + name + ") needs an argument.");
  EXPECT_EQ(MakeError(CalcErrorCode::CalculationLimit, name).message,
            name + " exceeded calculation limit.");
  EXPECT_EQ(MakeError(CalcErrorCode::NotInteger, name).message,
            name + " is not supported non-integer.");
  EXPECT_EQ(MakeError(CalcErrorCode::Free, name).message, name);
}

TEST(CalcError, AreEqualWhereCodeAndMessageAre) {
  EXPECT_EQ(MakeError(CalcErrorCode::Free, "a"), MakeError(CalcErrorCode::Free, "a"));
  EXPECT_NE(MakeError(CalcErrorCode::Free, "a"), MakeError(CalcErrorCode::Free, "b"));
  EXPECT_NE(MakeError(CalcErrorCode::Free, "Expression error."),
            MakeError(CalcErrorCode::Expression));
}

}  // namespace
}  // namespace kav::calc_error_test
