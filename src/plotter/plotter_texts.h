// What the user reads about plots.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/number_text.h"

namespace kav {

// Why a range is not taken from the user.
inline constexpr std::u16string_view kXRangeIsEmpty =
    u"The maximum value of X should be bigger than the minimum value of X.";
inline constexpr std::u16string_view kYRangeIsEmpty =
    u"The maximum value of Y should be bigger than the minimum value of Y.";

// Why a zoom or a move is taken back.
inline constexpr std::u16string_view kXBoundsAreEqual = u"Can not draw graph(X min = X max)";
inline constexpr std::u16string_view kYBoundsAreEqual = u"Can not draw graph(Y min = Y max)";

/// Why the number in a field is refused.
inline std::u16string FieldTakesNumbers(std::u16string_view field, std::u16string_view typed) {
  // A text can be of any length, but a message box cannot.
  constexpr std::size_t kMostShown = 60;
  std::u16string text(field);
  text += u" takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size";
  if (TrimBlanks(typed).empty()) return text + u"; it is empty.";
  return text + u", not \"" + Shortened(typed, kMostShown) + u"\".";
}
inline constexpr std::u16string_view kTracedXField = u"\"X =\"";

// The results list.
inline constexpr std::array<std::u16string_view, 3> kShortCurveNames{u"R:F1", u"G:F2", u"B:F3"};
/// As much the equation selector shows at least.
inline constexpr std::u16string_view kBeginningOfCurve = u"G:F2(X)=8*\u2026";
inline constexpr std::u16string_view kTouchedYPrefix = u"y = ";
inline constexpr std::u16string_view kValueOutOfRange = u"Out of range";

/// Opens the line of curve `index`, from 0.
inline std::u16string CurveValuePrefix(std::size_t index) {
  return std::u16string(kShortCurveNames[index]) + u"(X) = ";
}

// In the picture.
inline constexpr std::u16string_view kYAxisLabel = u"x=0";
inline constexpr std::u16string_view kXAxisLabel = u"y=0";
/// In the order of RangeField.
inline constexpr std::array<std::u16string_view, 4> kRangeLabels{u"x min=", u"x max=", u"y min=",
                                                                 u"y max="};

// The screen.
inline constexpr std::u16string_view kAddCaption = u"A";
inline constexpr std::u16string_view kDeleteEquationCaption = u"D";
inline constexpr std::u16string_view kPlotCaption = u"Plot";
inline constexpr std::u16string_view kVariableCaption = u"X-Var";
inline constexpr std::u16string_view kGridCaption = u"Grid";
inline constexpr std::u16string_view kLineCaption = u"Line";
inline constexpr std::u16string_view kXMinCaption = u"X min";
inline constexpr std::u16string_view kXMaxCaption = u"X max";
inline constexpr std::u16string_view kYMinCaption = u"Y min";
inline constexpr std::u16string_view kYMaxCaption = u"Y max";

// What the options of a graph do.
inline constexpr std::u16string_view kGridHelp = u"draw a grid behind the curves";
inline constexpr std::u16string_view kLineHelp = u"join the points of a curve by lines";
inline constexpr std::u16string_view kCoordinatesHelp = u"write the borders of the graph into it";

/// The variable of an equation.
inline constexpr std::u16string_view kVariable = u"x";

// The options dialog, which has the captions above as well.
inline constexpr std::u16string_view kPlotterOptionsTitle = u"Plotter Options";
inline constexpr std::u16string_view kCoordinatesCaption = u"Coordinates";

// What screen readers call the parts of the screen that have no caption, or a short one.
inline constexpr std::u16string_view kEquationInputName = u"Equation";
inline constexpr std::u16string_view kEquationListName = u"Equations";

// What keys do that no other keypad has.
inline constexpr std::u16string_view kAddName = u"add the equation to the list";
inline constexpr std::u16string_view kDeleteEquationName = u"delete the selected equation";
inline constexpr std::u16string_view kPlotName = u"draw the graph of the equations";
inline constexpr std::u16string_view kVariableName = u"the variable x";

/// Open the labels of the curves. Users know them as they are, with the lower-case x.
inline constexpr std::array<std::u16string_view, 3> kCurvePrefixes{u"R:F1(X)=", u"G:F2(x)=",
                                                                   u"B:F3(X)="};

/// `text` on one line: all of it if it has at most `longest` UTF-16 units, else its first `kept`
/// and three points. One unit less is kept if that would halve a character.
inline std::u16string CutTo(std::u16string_view text, std::size_t longest, std::size_t kept) {
  if (text.size() <= longest) return OnOneLine(std::u16string(text));
  const bool halves = (text[kept - 1] & 0xFC00U) == 0xD800U;
  return OnOneLine(std::u16string(text.substr(0, halves ? kept - 1 : kept))) + u"...";
}

// Why an equation is not added or plotted.
inline constexpr std::u16string_view kEquationIsNull = u"Equation is null.";
inline constexpr std::u16string_view kNoEquationToPlot = u"Please, Add a graph equation.";
inline std::u16string MaximumOfEquations(std::size_t most) {
  return u"Maximum of graph equation is " + Widen(PrintInteger(static_cast<std::int64_t>(most)));
}
inline std::u16string EquationIsAddedAlready(std::u16string_view equation) {
  return CutTo(equation, 17, 14) + u" is added already.";
}
/// `message` is the engine's.
inline std::u16string EquationFails(std::u16string_view equation, std::u16string_view message) {
  return CutTo(equation, 7, 5) + u" : " + std::u16string(message);
}

inline constexpr std::u16string_view kAllCurvesAreOff =
    u"All curves are switched off. Switch one on in the menu Edit, or press F8.";

// What is asked about an equation that was typed and not added when the graph is to be opened.
inline std::u16string AddTypedFirst(std::u16string_view equation) {
  return u"Add the typed equation " + CutTo(equation, 40, 37) + u" to the list first?";
}
inline std::u16string PlotWithoutTyped(std::u16string_view equation) {
  return u"The list is full, and the typed equation " + CutTo(equation, 40, 37) +
         u" is not in it. Plot without it?";
}

// Why a curve is not seen. `message` is the engine's.
inline std::u16string CurveIsEmpty(std::size_t place, std::u16string_view message) {
  return std::u16string(kShortCurveNames[place]) + u"(X): " + std::u16string(message) +
         u" (at every point)";
}

// An equation in the list.
inline constexpr std::u16string_view kSwitchedOff = u"(off) ";

// Behind the entries that every Edit menu has.
inline constexpr std::u16string_view kReplaceEquationEntry = u"Replace &Equation";
inline constexpr std::u16string_view kReplaceEquationTip =
    u"Put what is typed in the place of the selected equation";
inline constexpr std::u16string_view kSwitchCurveEntry = u"Curve &On/Off";
inline constexpr std::u16string_view kSwitchCurveTip =
    u"Draw the curve of the selected equation, or leave it out";

// The graph beside the keys of a wide window.
inline constexpr std::u16string_view kNothingToDraw = u"Type an equation in x, such as sin(x).";
inline constexpr std::u16string_view kSideGraphName = u"Live graph";
inline std::u16string CurveBoxName(std::size_t place) {
  return u"Curve " + Widen(PrintInteger(static_cast<std::int64_t>(place) + 1));
}
inline constexpr std::u16string_view kTracedXPrefix = u"x = ";
inline constexpr std::u16string_view kTakeRangeCaption = u"Use Range";
inline constexpr std::u16string_view kTakeRangeHelp =
    u"write the borders of this graph into the fields of the range";

inline constexpr std::u16string_view kDeleteEquationQuestion =
    u"Are you sure you want to delete the selected graph equation?";

// The graph on the screen.
inline constexpr std::u16string_view kGraphTitle = u"Graph";
inline constexpr std::u16string_view kTraceCaption = u"Trace";
inline constexpr std::u16string_view kSaveGraphCaption = u"Save Graph";
inline constexpr std::u16string_view kTracedXCaption = u"X =";
inline constexpr std::u16string_view kCalculateCaption = u"Cal";
inline constexpr std::u16string_view kGraphFileError = u"File Error";

// What its buttons do.
inline constexpr std::u16string_view kTraceHelp = u"show the values of the curves where you tap";
inline constexpr std::u16string_view kSaveGraphHelp = u"save the picture in a file";
inline constexpr std::u16string_view kCalculateHelp = u"show the values of the curves at this X";

// Its menu; '&' stands before the letter that chooses the entry.
inline constexpr std::u16string_view kGraphMenu = u"&Graph";
inline constexpr std::u16string_view kMoveLeftEntry = u"Move &Left";
inline constexpr std::u16string_view kMoveRightEntry = u"Move &Right";
inline constexpr std::u16string_view kMoveUpEntry = u"Move &Up";
inline constexpr std::u16string_view kMoveDownEntry = u"Move &Down";
inline constexpr std::u16string_view kZoomInEntry = u"Zoom &In";
inline constexpr std::u16string_view kZoomOutEntry = u"Zoom &Out";
inline constexpr std::u16string_view kResetEntry = u"Re&set";
inline constexpr std::u16string_view kUndoRangeEntry = u"U&ndo";
inline constexpr std::u16string_view kGraphOptionsEntry = u"&Graph Options";

// What it finds on the curves.
inline constexpr std::u16string_view kRootsEntry = u"Roo&ts";
inline constexpr std::u16string_view kExtremaEntry = u"&Extrema";
inline constexpr std::u16string_view kIntersectionsEntry = u"Interse&ctions";
inline constexpr std::u16string_view kSlopeEntry = u"Slo&pe";
inline constexpr std::u16string_view kAreaEntry = u"&Area";
inline constexpr std::u16string_view kCopyPictureEntry = u"Cop&y Picture";
inline constexpr std::u16string_view kRootName = u"Root";
inline constexpr std::u16string_view kMinimumName = u"Minimum";
inline constexpr std::u16string_view kMaximumName = u"Maximum";
inline constexpr std::u16string_view kSlopeName = u"Slope";
inline constexpr std::u16string_view kAreaName = u"Area";
inline constexpr std::u16string_view kFoundX = u": x = ";
inline constexpr std::u16string_view kFoundUntil = u" to ";
inline constexpr std::u16string_view kFoundY = u", y = ";
inline constexpr std::u16string_view kFoundIs = u": ";
inline constexpr std::u16string_view kNoSlope = u"none";
inline constexpr std::u16string_view kWithoutGaps = u" (gaps left out)";
inline constexpr std::u16string_view kNothingIsFound = u"None in this range";
inline constexpr std::u16string_view kMoreAreThere = u"There are more; zoom in to see them";
inline constexpr std::u16string_view kSlopeNeedsX = u"Put the x of the slope into \"X =\".";

// The menu of the values that it shows, and what screen readers say of that.
inline constexpr std::u16string_view kCopyPointEntry = u"&Copy x and y";
inline constexpr std::u16string_view kCopyXEntry = u"Copy &x";
inline constexpr std::u16string_view kCopyYEntry = u"Copy &y";
inline constexpr std::u16string_view kCopyPointTip =
    u"Copy x and the selected value in plain digits, with a tab between them";
inline constexpr std::u16string_view kCopyXTip = u"Copy x in plain digits";
inline constexpr std::u16string_view kCopyYTip = u"Copy the selected value in plain digits";
inline constexpr std::u16string_view kGraphResultsHint = u"Ctrl+C copies x and the selected value";

// What screen readers call its parts.
inline constexpr std::u16string_view kGraphName = u"Graph";
inline constexpr std::u16string_view kCurveSelectorName = u"Selected equation";
inline constexpr std::u16string_view kTracedXName = u"X";
inline constexpr std::u16string_view kGraphResultsName = u"Results";

// The description of a graph.
inline constexpr std::u16string_view kBetweenParts = u"; ";
inline std::u16string DataPointsText(std::size_t count) {
  return Widen(PrintInteger(static_cast<std::int64_t>(count))) +
         (count == 1 ? u" data point" : u" data points");
}

}  // namespace kav
