// The texts of kavcalc, except its help and those of the calculator itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

inline constexpr std::string_view kProgramName = "kavcalc";
inline constexpr std::string_view kFailureMark = "error: ";
inline constexpr std::string_view kPrompt = "> ";
// What is no expression at the prompt, in any case.
inline constexpr std::string_view kHelpWord = "help";
inline constexpr std::string_view kQuitWord = "quit";
inline constexpr std::string_view kExitWord = "exit";
/// The argument that stands for standard input where a file may be named, and what messages call
/// it.
inline constexpr std::string_view kStandardInput = "-";
inline constexpr std::string_view kStandardInputName = "standard input";

/// The name and version of the program, with a line end.
std::string VersionLine();

/// `text` in quotes, as messages name it. A text of more than 40 bytes is cut.
std::string Quoted(std::string_view text);

// Answers, and messages that follow the failure mark.
inline constexpr std::string_view kDone = "ok";
std::string IsTooLong(std::size_t most);
std::string NotANumber(std::string_view text);
std::string NoKeyShows(std::string_view caption);
std::string KeyIsDisabled(std::string_view caption);
std::string MenuDoesNotOffer(std::string_view text);
std::string NeedsTheWindow(std::string_view key);
std::string NotVariables(std::string_view text);
std::string NotAMemoryVariable(std::string_view text, int count);
std::string NotAUserConversion(std::string_view text);
std::string DidYouMean(std::string_view line);

// What a command that reads a terminal waits for: lines of items, or a text of many lines.
std::string LinesAwaited(std::string_view item);
std::string TextAwaited(std::string_view text);
inline constexpr std::string_view kDataAwaited = "Rows of data";
inline constexpr std::string_view kMatrixAwaited = "A matrix as its file holds it";
inline constexpr std::string_view kExportAwaited = "What settings export printed";

// Words in the place of a command's name that ask for what an option gives.
inline constexpr std::string_view kVersionWord = "version";
/// `call` is how the command is called that `word` may stand for.
std::string IsNoCommand(std::string_view word, std::string_view call);

// Messages on standard error, which follow the program's name. `reason` is a text of the system.
std::string CannotRead(std::string_view reason);
std::string HasEndlessLine(std::size_t most);
std::string CannotWrite(std::string_view reason);
inline constexpr std::string_view kNothingToClear =
    "memory clear lacks what to clear: numbers from 1 to 20, or all";
inline constexpr std::string_view kNeedsTwo =
    "stats takes --model, --x and --y only together with --two";
std::string RatesLostDigits(std::string_view conversions);
inline constexpr std::string_view kLacksCategory =
    "convert lacks the category; kavcalc convert --list shows all";
inline constexpr std::string_view kListTakesOneCategory = "convert --list takes one category";
inline constexpr std::string_view kTwoUnits = "a unit and the unit to convert it to";
inline constexpr std::string_view kOneConversion = "one of its conversions";
inline constexpr std::string_view kTableLeadsNowhere =
    "the STEP of --table has to lead from X0 to X1, in at most 1000000 lines";
inline constexpr std::string_view kTableOrPicture = "--table and --svg exclude each other";
inline constexpr std::string_view kTooManyCurves = "a picture has at most three equations";
inline constexpr std::string_view kAreaIsEmpty =
    "the TOP of --area has to be a smaller number than its BOTTOM";
// Why a matrix file is none; each follows MatrixCannotBeLoaded. Lines are counted from 1.
std::string MatrixCannotBeLoaded(std::string_view path, std::string_view reason);
std::string TooLargeForAMatrix(std::size_t most);
std::string HasNoMatrixSize(int largest);
std::string HasOtherCells(int line);
std::string LacksARow(int line);
std::string HasRowLeft(int line);
inline constexpr std::string_view kInputIsOneMatrix = "standard input can be one matrix only";
inline constexpr std::string_view kInputIsAMatrix =
    "standard input is a matrix here; give the expressions as arguments";
// About lines of data that are read, but perhaps not as they are meant. They follow InLine.
/// `line` is counted from 1, `start` are the first bytes of the line; without any it is not quoted.
std::string InLine(std::uint64_t line, std::string_view start);
inline constexpr std::string_view kHasByteOrderMark =
    "it begins with a byte order mark, which was left out";
/// `numbers` is how many numbers were read from the line.
std::string HasText(std::size_t numbers);
inline constexpr std::string_view kCommaSeparates =
    "its comma separates two numbers, it is no decimal point";
inline constexpr std::string_view kLargeESeparates =
    "its \"E\" separates two numbers; an exponent is written with \"e\"";
std::string HasOtherNumbers(std::size_t numbers, std::size_t usual);
std::string ValueReadAs(std::string_view text, double number);
std::string CountReadAs(std::string_view text, std::int32_t count);
inline constexpr std::string_view kLastNumberIsLeftOut =
    "its last number was left out, because nothing ends it";
inline constexpr std::string_view kLastRowIsLeftOut =
    "the last row was left out, because it has no count";
inline constexpr std::string_view kOnlyRowLacksCount =
    "the only row has no count, which was read as 0";
std::string NoCategoryIs(std::string_view name);
/// Follows a complaint about a name; empty without `names`.
std::string DidYouMean(const std::vector<std::string>& names);
std::string CategoryTakes(std::string_view category, int number, std::string_view arguments);
std::string HasNoUnit(std::string_view category, int number, std::string_view given);
std::string IsSeveralUnits(std::string_view category, std::string_view given);
std::string LacksVerb(std::string_view command);
std::string HasNoVerb(std::string_view command, std::string_view given);
std::string VerbTakes(std::string_view command, std::string_view verb, std::string_view arguments);
/// `arguments` must not be empty.
std::string NotExpected(const std::vector<std::string_view>& arguments);
std::string CannotConvert(std::string_view option, std::string_view given);
std::string OptionLacksValue(std::string_view option);
std::string OptionTakes(std::string_view option, std::string_view values, std::string_view given);

}  // namespace kav
