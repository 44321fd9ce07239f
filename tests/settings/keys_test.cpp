// Every key and default, spelled out: files of users depend on them.
#include "settings/keys.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kav::keys_test {
namespace {

struct IntegerRow {
  IntegerKey key;
  const char* section;
  const char* name;
  std::int32_t fallback;
};

const std::vector<IntegerRow> kIntegers{
    {kMode, "Config", "Mode", -100},
    {kAngleType, "Config", "Angle Type", 1},
    {kBaseType, "Config", "Base Type", 1},
    {kDisplayType, "Config", "Display Type", 3},
    {kPrecision, "Config", "Precision", 7},
    {kLiveResult, "Config", "Live Result", 1},
    {kTextScale, "Config", "Text Scale", 100},
    {kWindowScale, "Config", "Window Scale", 100},
    {kCalHistoryCount, "History", "CalHistoryCount", 0},
    {kCalMHistoryCount, "MHistory", "CalMHistoryCount", 0},
    {kGrapHistoryCount, "History", "GrapHistoryCount", 0},
    {kEquationCount, "Grapher", "Grapher FunTotalNumber", 0},
    {kConverterClass, "Convert", "ClassPos", -1},
    {kConverterInput, "Convert", "InputTypePos", -1},
    {kConverterOutput, "Convert", "OutputTypePos", -1},
    {kUserConversionCount, "Converter", "UserDefine_TotalNumber", 0},
    {kMacroCount, "MacroInfo", "TotalNumber", 0},
    {kMatrixDisplayType, "Config", "Matrix Display Type", 0},
    {kMatrixPrecision, "Config", "Matrix Precision", 12},
    {kMatrixRows, "Config", "Matrix Default Row", 3},
    {kMatrixColumns, "Config", "Matrix Default Col", 3},
    {kMatrixAlignment, "Config", "Matrix Default Value", 0},
    {kMatrixColumnWidth, "Config", "Matrix Colum Width", 60},
    {kHistoryKept, "Config", "Keep History", 1},
    {kHistoryShown, "Config", "Show History", 1},
    {kCurvesOff, "Grapher", "Curves Off", 0},
};

struct TextRow {
  NumberedKey key;
  const char* section;
  const char* name;
  const char* fallback;
};

NumberedKey Spelled(const TextKey& key) {
  return {std::string(key.section), std::string(key.name), key.fallback};
}

const std::vector<TextRow> kTexts{
    {Spelled(kVersion), "Config", "Version", ""},
    {Spelled(kWindowGeometry), "Config", "Window Geometry", ""},
    {CalHistoryEntry(1), "History", "CalHistory1", ""},
    {CalHistoryEntry(9), "History", "CalHistory9", ""},
    {CalHistoryEntry(10), "History", "CalHistory10", ""},
    {CalHistoryEntry(20), "History", "CalHistory20", ""},
    {CalMHistoryEntry(0), "MHistory", "CalMHistory0", ""},
    {CalMHistoryEntry(19), "MHistory", "CalMHistory19", ""},
    {GrapHistoryEntry(1), "History", "GrapHistory1", ""},
    {GrapHistoryEntry(20), "History", "GrapHistory20", ""},
    {StoredEquation(0), "Grapher", "Fun0", ""},
    {StoredEquation(1), "Grapher", "Fun1", ""},
    {StoredEquation(2), "Grapher", "Fun2", ""},
    {Spelled(kPlotXMin), "Grapher", "X Min", "-10"},
    {Spelled(kPlotXMax), "Grapher", "X Max", "10"},
    {Spelled(kPlotYMin), "Grapher", "Y Min", "-10"},
    {Spelled(kPlotYMax), "Grapher", "Y Max", "10"},
    {UserConversionText(0), "UserDefine_Convert_0", "ConvType", ""},
    {UserConversionRate(0), "UserDefine_Convert_0", "Rate", ""},
    {UserConversionText(59), "UserDefine_Convert_59", "ConvType", ""},
    {UserConversionRate(59), "UserDefine_Convert_59", "Rate", ""},
    {MacroName(0), "Macro0", "Name", ""},
    {MacroType(0), "Macro0", "Type", ""},
    {MacroFormula(0), "Macro0", "Formula", ""},
    {MacroName(59), "Macro59", "Name", ""},
    {MacroType(59), "Macro59", "Type", ""},
    {MacroFormula(59), "Macro59", "Formula", ""},
    {MemoryVariable(0), "MemoryVar", "Var0", "0"},
    {MemoryVariable(19), "MemoryVar", "Var19", "0"},
};

TEST(Keys, IntegersAreSpelledAndDefaultedAsUsersFilesHaveThem) {
  for (const auto& row : kIntegers) {
    EXPECT_EQ(row.key.section, row.section) << row.name;
    EXPECT_EQ(row.key.name, row.name);
    EXPECT_EQ(row.key.fallback, row.fallback) << row.name;
  }
}

TEST(Keys, TextsAreSpelledAndDefaultedAsUsersFilesHaveThem) {
  for (const auto& row : kTexts) {
    EXPECT_EQ(row.key.section, row.section) << row.name;
    EXPECT_EQ(row.key.name, row.name);
    EXPECT_EQ(row.key.fallback, row.fallback) << row.name;
  }
}

TEST(Keys, NoTwoShareAnAddress) {
  std::set<std::pair<std::string, std::string>> addresses;
  for (const auto& row : kIntegers) {
    EXPECT_TRUE(addresses.emplace(row.key.section, row.key.name).second) << row.name;
  }
  for (const auto& row : kTexts) {
    EXPECT_TRUE(addresses.emplace(row.key.section, row.key.name).second) << row.name;
  }
}

}  // namespace
}  // namespace kav::keys_test
