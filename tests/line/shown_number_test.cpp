#include "line/shown_number.h"

#include <gtest/gtest.h>

#include <limits>

namespace kav::shown_number_test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Row {
  double value;
  DisplayFormat format;
  BaseMode base;
  std::u16string_view shown;
  std::u16string_view inserted;
};

TEST(ShownNumber, NumbersAreShownInTheFormatAndInsertedWithoutSeparators) {
  const Row rows[] = {
      {1234567.5, {DisplayType::Thousands, 7}, BaseMode::Decimal, u"1,234,567.5", u"1234567.5"},
      {1234567.5, {DisplayType::FloatingPoint, 7}, BaseMode::Decimal, u"1234567.5", u"1234567.5"},
      {0.5, {DisplayType::FixedPoint, 3}, BaseMode::Decimal, u"0.500", u"0.5"},
      {1500, {DisplayType::ScientificNotation, 2}, BaseMode::Decimal, u"1.50e+03", u"1500"},
      {12345.678,
       {DisplayType::EngineeringNotation, 3},
       BaseMode::Decimal,
       u"12.346E+003",
       u"12345.678"},
      {1.5e15, {DisplayType::Thousands, 2}, BaseMode::Decimal, u"1.50e+15", u"1.50e+15"},
      {255, {DisplayType::Thousands, 7}, BaseMode::Hexadecimal, u"FF", u"FF"},
      {5, {DisplayType::FixedPoint, 7}, BaseMode::Binary, u"101", u"101"},
      {-1, {DisplayType::Thousands, 7}, BaseMode::Octal, u"37777777777", u"37777777777"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ShownNumber(row.value, row.format, row.base), row.shown);
    EXPECT_EQ(InsertedNumber(row.value, row.format, row.base), row.inserted);
  }
}

TEST(ShownNumber, WhatIsNotFiniteGivesTheMessageInEveryBase) {
  for (const double value : {kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()}) {
    for (const BaseMode base :
         {BaseMode::Decimal, BaseMode::Hexadecimal, BaseMode::Binary, BaseMode::Octal}) {
      EXPECT_EQ(ShownNumber(value, {}, base), u"Out of range(overflow or underflow)");
      EXPECT_EQ(InsertedNumber(value, {}, base), u"Out of range(overflow or underflow)");
    }
  }
}

}  // namespace
}  // namespace kav::shown_number_test
