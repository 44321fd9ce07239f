// All settings, with their defaults. Their spellings are those of users' files and never change.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "settings/setting_key.h"

namespace kav {

using IntegerKey = SettingKey<std::int32_t>;
using TextKey = SettingKey<std::string_view>;

// The application: the screen to open, and the version that wrote the settings last. If no screen
// is stored, this is the first start.
inline constexpr std::int32_t kNoModeStored = -100;
inline constexpr IntegerKey kMode{"Config", "Mode", kNoModeStored};
inline constexpr TextKey kVersion{"Config", "Version", ""};

// The colours of all windows: 0 the desktop's, 1 light, 2 dark, 3 of high contrast.
inline constexpr IntegerKey kColourScheme{"Config", "Colour Scheme", 0};

// How numbers are read and shown.
inline constexpr IntegerKey kAngleType{"Config", "Angle Type", 1};
inline constexpr IntegerKey kBaseType{"Config", "Base Type", 1};
inline constexpr IntegerKey kDisplayType{"Config", "Display Type", 3};
inline constexpr IntegerKey kPrecision{"Config", "Precision", 7};
// Whether a line's result is shown while it is being typed: 1 or 0.
inline constexpr IntegerKey kLiveResult{"Config", "Live Result", 1};

// How large texts are: of their usual size, and of that how much the window has taken by growing.
// Both in percent.
inline constexpr IntegerKey kTextScale{"Config", "Text Scale", 100};
inline constexpr IntegerKey kWindowScale{"Config", "Window Scale", 100};

// The same for the cells of the matrix screen, and the defaults of a new matrix: rows and columns
// (1 to 10), the alignment of its cells (0 left, 1 right) and the width of its columns in pixels.
inline constexpr IntegerKey kMatrixDisplayType{"Config", "Matrix Display Type", 0};
inline constexpr IntegerKey kMatrixPrecision{"Config", "Matrix Precision", 12};
inline constexpr IntegerKey kMatrixRows{"Config", "Matrix Default Row", 3};
inline constexpr IntegerKey kMatrixColumns{"Config", "Matrix Default Col", 3};
inline constexpr IntegerKey kMatrixAlignment{"Config", "Matrix Default Value", 0};
inline constexpr IntegerKey kMatrixColumnWidth{"Config", "Matrix Colum Width", 60};

// The scientific screen's history: a count, then entries numbered from 1, the newest last.
inline constexpr IntegerKey kCalHistoryCount{"History", "CalHistoryCount", 0};
inline NumberedKey CalHistoryEntry(int number) {
  return {"History", "CalHistory" + std::to_string(number), ""};
}

// The lines of all sessions: whether any are kept, and whether they are shown beside a screen that
// has room for them (1 or 0).
inline constexpr IntegerKey kHistoryKept{"Config", "Keep History", 1};
inline constexpr IntegerKey kHistoryShown{"Config", "Show History", 1};

// The matrix screen's history: a count, then entries numbered from 0, the newest last.
inline constexpr IntegerKey kCalMHistoryCount{"MHistory", "CalMHistoryCount", 0};
inline NumberedKey CalMHistoryEntry(int number) {
  return {"MHistory", "CalMHistory" + std::to_string(number), ""};
}

// The function plotter: its equations (0 to 3), numbered from 0; the texts of its four fields; and
// its history, stored like that of the scientific screen.
inline constexpr IntegerKey kEquationCount{"Grapher", "Grapher FunTotalNumber", 0};
inline NumberedKey StoredEquation(int index) {
  return {"Grapher", "Fun" + std::to_string(index), ""};
}
/// A bit for each equation whose curve is not drawn, the lowest for the first.
inline constexpr IntegerKey kCurvesOff{"Grapher", "Curves Off", 0};
inline constexpr TextKey kPlotXMin{"Grapher", "X Min", "-10"};
inline constexpr TextKey kPlotXMax{"Grapher", "X Max", "10"};
inline constexpr TextKey kPlotYMin{"Grapher", "Y Min", "-10"};
inline constexpr TextKey kPlotYMax{"Grapher", "Y Max", "10"};
inline constexpr IntegerKey kGrapHistoryCount{"History", "GrapHistoryCount", 0};
inline NumberedKey GrapHistoryEntry(int number) {
  return {"History", "GrapHistory" + std::to_string(number), ""};
}

// The unit converter's choices: positions in its lists, -1 for none.
inline constexpr IntegerKey kConverterClass{"Convert", "ClassPos", -1};
inline constexpr IntegerKey kConverterInput{"Convert", "InputTypePos", -1};
inline constexpr IntegerKey kConverterOutput{"Convert", "OutputTypePos", -1};

// The unit conversions that the user defined: a count, then a section each, numbered from 0.
inline constexpr IntegerKey kUserConversionCount{"Converter", "UserDefine_TotalNumber", 0};
inline std::string UserConversionSection(int index) {
  return "UserDefine_Convert_" + std::to_string(index);
}
inline NumberedKey UserConversionText(int index) {
  return {UserConversionSection(index), "ConvType", ""};
}
inline NumberedKey UserConversionRate(int index) {
  return {UserConversionSection(index), "Rate", ""};
}

// Macros: a count, then a section each, numbered from 0.
inline constexpr IntegerKey kMacroCount{"MacroInfo", "TotalNumber", 0};
inline std::string MacroSection(int index) {
  return "Macro" + std::to_string(index);
}
inline NumberedKey MacroName(int index) {
  return {MacroSection(index), "Name", ""};
}
inline NumberedKey MacroType(int index) {
  return {MacroSection(index), "Type", ""};
}
inline NumberedKey MacroFormula(int index) {
  return {MacroSection(index), "Formula", ""};
}

// The memory variables, numbered from 0: numbers as texts.
inline NumberedKey MemoryVariable(int index) {
  return {"MemoryVar", "Var" + std::to_string(index), "0"};
}

// The position and size of the window on the desktop, shared by all screens: "x y width height",
// followed by " maximized" if the window was maximized.
inline constexpr TextKey kWindowGeometry{"Config", "Window Geometry", ""};

}  // namespace kav
