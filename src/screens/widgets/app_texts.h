// What the user reads of the application itself: captions, menus and notices.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/version.h"

namespace kav {

inline constexpr std::u16string_view kApplicationName = u"Kav Calculator";
inline constexpr std::u16string_view kLoading = u"Loading...";

// The version that the settings and the about box name.
inline constexpr std::string_view kVersionNumber = KAV_VERSION;
inline constexpr std::u16string_view kAbout = u"Kav Calculator " KAV_VERSION
                                              "\n\n"
                                              u"Scientific calculator, matrix calculator, "
                                              u"statistics of one and of two variables, and "
                                              u"function plotter, with a unit converter, macros, "
                                              u"memory variables and constants.\n\n"
                                              u"kavcalc, the program beside it, calculates at the "
                                              u"command line.";

// One per screen, as its window and the Mode menu call it.
inline constexpr std::u16string_view kScientificScreen = u"Scientific Calculator";
inline constexpr std::u16string_view kMatrixScreen = u"Matrix Calculator";
inline constexpr std::u16string_view kOneVariableScreen = u"1-Var Statistics";
inline constexpr std::u16string_view kTwoVariableScreen = u"2-Var Statistics";
inline constexpr std::u16string_view kPlotterScreen = u"Function Plotter";

// The menus; '&' stands before the letter that chooses the entry together with Alt.
inline constexpr std::u16string_view kFileMenu = u"&File";
inline constexpr std::u16string_view kAboutEntry = u"&About...";
inline constexpr std::u16string_view kConfigEntry = u"&Config...";
inline constexpr std::u16string_view kEditUnitsEntry = u"Edit &Unit Convert";
inline constexpr std::u16string_view kEditMacroEntry = u"Edit &Macro";
inline constexpr std::u16string_view kPlotterEditMacroEntry = u"Edit &Macro...";
inline constexpr std::u16string_view kExportEntry = u"Ex&port Settings...";
inline constexpr std::u16string_view kImportEntry = u"&Import Settings...";
inline constexpr std::u16string_view kImportQuestion =
    u"Replace everything that is stored (settings, macros, memory variables, conversions, "
    u"equations) by what this file holds? What is stored now is kept beside the settings, with "
    u"\".before-import\" after the name.";
inline constexpr std::u16string_view kExitEntry = u"E&xit";

inline constexpr std::u16string_view kEditMenu = u"&Edit";
inline constexpr std::u16string_view kUndoEntry = u"&Undo";
inline constexpr std::u16string_view kRedoEntry = u"&Redo";
inline constexpr std::u16string_view kCutEntry = u"Cu&t";
inline constexpr std::u16string_view kCopyEntry = u"&Copy";
inline constexpr std::u16string_view kCopyResultEntry = u"Copy R&esult";
inline constexpr std::u16string_view kCopyLineEntry = u"Copy &Line and Result";
inline constexpr std::u16string_view kPasteEntry = u"&Paste";
inline constexpr std::u16string_view kSelectAllEntry = u"Select &All";
inline constexpr std::u16string_view kCopyTip = u"Copy the selection and put it on the Clipboard";
inline constexpr std::u16string_view kCutTip = u"Cut the selection and put it on the Clipboard";
inline constexpr std::u16string_view kPasteTip = u"Insert Clipboard contents";

inline constexpr std::u16string_view kModeMenu = u"&Mode";

inline constexpr std::u16string_view kHelpMenu = u"&Help";
inline constexpr std::u16string_view kGuideEntry = u"&Guide";
inline constexpr std::u16string_view kKeysEntry = u"&Keys";

// The guide and the list of keys.
inline constexpr std::u16string_view kGuideTitle = u"Guide";
inline constexpr std::u16string_view kGuidePagesName = u"Pages";
inline constexpr std::u16string_view kBackCaption = u"Back";
inline constexpr std::u16string_view kBackHelp = u"return to the place before";
inline constexpr std::u16string_view kSearchCaption = u"Search";
inline constexpr std::u16string_view kNotFound = u"not found";
inline constexpr std::u16string_view kKeysTitle = u"Keys";
inline constexpr std::u16string_view kKeyHeading = u"Key";
inline constexpr std::u16string_view kWorkHeading = u"What it does";

// As screen readers call what has no caption.
inline constexpr std::u16string_view kMenuBarName = u"Menus";
inline constexpr std::u16string_view kKeysName = u"Keys";
inline constexpr std::u16string_view kStopSign = u"Error";
inline constexpr std::u16string_view kWarningSign = u"Warning";
inline constexpr std::u16string_view kQuestionSign = u"Question";
inline constexpr std::u16string_view kInformationSign = u"Information";

// The line beside a field that asks about what stands in it.
inline constexpr std::u16string_view kOfferName = u"Question";
inline constexpr std::u16string_view kGiveUpOffer = u"Leave it as it is (Esc)";
/// The key that chooses the answer `number`, 1 to 9.
inline std::u16string KeyOfOffer(std::size_t number) {
  std::u16string text = u"Key 0";
  text.back() = static_cast<char16_t>(text.back() + number);
  return text;
}

// Asked by a copy of the program that is started while another one hangs.
inline constexpr std::u16string_view kDoesNotAnswer =
    u"Kav Calculator is already running, but it does not answer. Wait until it shows itself, or "
    u"start another one beside it.";
inline constexpr std::u16string_view kStartAnother = u"Start another";

// Told on the standard error output of the program that was started.
inline constexpr std::string_view kTakesNoArguments =
    "kav-calculator takes no arguments; kavcalc is the calculator for the command line\n";

}  // namespace kav
