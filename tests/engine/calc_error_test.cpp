#include "engine/calc_error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/shown.h"

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

TEST(CalcError, ThePlaceTellsNoTwoApart) {
  CalcError here = MakeError(CalcErrorCode::Expression);
  here.place = TextPlace{1, 2};
  EXPECT_EQ(here, MakeError(CalcErrorCode::Expression));
}

/// `text`, to which `error` belongs, with the place of the error in braces.
std::string Marked(std::string text, const CalcError& error) {
  if (!error.place) return "nowhere: " + text;
  text.insert(error.place->position + error.place->length, "}");
  return text.insert(error.place->position, "{");
}

/// Evaluates the rows, which are marked as Marked does it, without their braces.
void ExpectPlaces(CalcModes modes, const std::vector<std::string>& rows) {
  for (const std::string& row : rows) {
    std::string text = row;
    std::erase_if(text, [](char c) { return c == '{' || c == '}'; });
    const auto answer = Evaluate(text, modes);
    ASSERT_FALSE(answer) << row;
    EXPECT_EQ(Marked(text, answer.error()), row);
  }
}

TEST(CalcErrorPlace, IsWhatCannotBeRead) {
  ExpectPlaces(test::kDegrees,
               {"2+{foo}*3", "  {Foo}(2)", "3{$}", "1+{\xC3\xA4}+1", "1{<}2", "2*{1.2.3}-1",
                "{1e5.2}", "1+ {sin}", "1+ {sin}  ", "2*{1234567890123456789012345678901}"});
  ExpectPlaces(test::kBinary, {"101+{111111111111111111111111111111111}", "10{2}", "1 {and}",
                               "1 {nand} 1", "1+{sin} 1"});
  ExpectPlaces(test::kHexadecimal, {"A+{g}+1", "ff AND {123456789}"});
}

TEST(CalcErrorPlace, OfATokenTooManyIsThatToken) {
  std::string ones = "1";
  for (int i = 0; i < 75; ++i) ones += "+1";
  ExpectPlaces(test::kDegrees, {ones + "{+}12"});
}

TEST(CalcErrorPlace, OfParenthesesIsTheOneWithoutAPartner) {
  ExpectPlaces(test::kDegrees,
               {"{(}1+2", "1+{(}(2)", "(1)+{(}2+(3", "{(}((1))", "1+2{)}", "(1){)}+(2)", "{)}+(("});
  ExpectPlaces(test::kOctal, {"7*{(}7"});
}

TEST(CalcErrorPlace, OfAWrongOrderIsTheOffender) {
  ExpectPlaces(test::kDegrees, {"1{+}", "2*(3{-})", "({*}2)", "{*}2", "4+{*}2", "2{(}3)", "(2){3}",
                                "2{sin}30", "3!{!}", "1+({)}", "1 + 2 {/} "});
  ExpectPlaces(test::kBinary, {"1 or {or} 1", "1{+}", "1 and {-}1", "{<<}1"});
}

TEST(CalcErrorPlace, OfACalculationIsItsOperatorOrFunction) {
  ExpectPlaces(test::kDegrees,
               {"1+1{/}0-2", "7{%}(1-1)", "8{>>}0", "2+{log}(0)", "{sqrt}-1", "3+({tan}90)",
                "2+2.5{!}", "2{c}5", "5.5{p}2+1", "150{!}", "4*{/}2", "1e300{*}1e300", "10{^}400",
                "{1e400}", "1+1e400{*}2", "2+({sin})", "{)}+(", "2 {3}", "5--1{/}0"});
  ExpectPlaces(test::kHexadecimal, {"F AND F {/} 0", "1-(2 {>>} 0)"});
}

TEST(CalcErrorPlace, IsNowhereInATextOfBlanks) {
  EXPECT_EQ(Evaluate(" ", test::kDegrees).error().place, std::nullopt);
  EXPECT_EQ(Evaluate("", test::kDegrees).error().place, std::nullopt);
}

TEST(CalcErrorPlace, OfAFormulaIsInTheFormula) {
  for (const std::string row : {"x+{foo}", "x*{y}", "2+x{(}3)", "{(}x", "X{+}"}) {
    std::string text = row;
    std::erase_if(text, [](char c) { return c == '{' || c == '}'; });
    const auto formula = CheckFormula(text, VariableType::X);
    ASSERT_FALSE(formula) << row;
    EXPECT_EQ(Marked(text, formula.error()), row);
  }
  EXPECT_EQ(CheckFormula("1+1", VariableType::X).error().place, std::nullopt);
}

}  // namespace
}  // namespace kav::calc_error_test
