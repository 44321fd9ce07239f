#include "engine/calc_modes.h"

#include <gtest/gtest.h>

#include <limits>

namespace kav::calc_modes_test {
namespace {

TEST(CalcModes, HaveTheNumbersOfTheSettings) {
  EXPECT_EQ(static_cast<int>(AngleUnit::Degrees), 1);
  EXPECT_EQ(static_cast<int>(AngleUnit::Radians), 2);
  EXPECT_EQ(static_cast<int>(BaseMode::Decimal), 1);
  EXPECT_EQ(static_cast<int>(BaseMode::Hexadecimal), 2);
  EXPECT_EQ(static_cast<int>(BaseMode::Binary), 3);
  EXPECT_EQ(static_cast<int>(BaseMode::Octal), 4);
}

TEST(CalcModes, StartInDegreesAndDecimal) {
  EXPECT_EQ(CalcModes().angleUnit, AngleUnit::Degrees);
  EXPECT_EQ(CalcModes().baseMode, BaseMode::Decimal);
}

TEST(AngleUnitFromSetting, OneIsDegreesAndAllElseRadians) {
  EXPECT_EQ(AngleUnitFromSetting(1), AngleUnit::Degrees);
  for (const int stored : {2, 0, 3, -1, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(AngleUnitFromSetting(stored), AngleUnit::Radians) << stored;
  }
}

TEST(AngleUnit, EachIsTheOtherOfTheOther) {
  EXPECT_EQ(OtherAngleUnit(AngleUnit::Degrees), AngleUnit::Radians);
  EXPECT_EQ(OtherAngleUnit(AngleUnit::Radians), AngleUnit::Degrees);
}

TEST(BaseModeFromSetting, UnknownNumbersAreDecimal) {
  EXPECT_EQ(BaseModeFromSetting(2), BaseMode::Hexadecimal);
  EXPECT_EQ(BaseModeFromSetting(3), BaseMode::Binary);
  EXPECT_EQ(BaseModeFromSetting(4), BaseMode::Octal);
  for (const int stored : {1, 0, 5, -1, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(BaseModeFromSetting(stored), BaseMode::Decimal) << stored;
  }
}

}  // namespace
}  // namespace kav::calc_modes_test
