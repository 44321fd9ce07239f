#include "cli/cli_texts.h"

#include "cli/build_note.h"
#include "common/number_text.h"
#include "common/version.h"

namespace kav {
namespace {

/// As many whole characters of `text` as fit into `longest` bytes.
std::string_view StartOf(std::string_view text, std::size_t longest) {
  std::size_t length = 0;
  while (length < text.size()) {
    const std::size_t next = length + Utf8Length(text.substr(length));
    if (next > longest) break;
    length = next;
  }
  return text.substr(0, length);
}

std::string Joined(std::string_view start, std::string_view middle, std::string_view end) {
  return std::string(start).append(middle).append(end);
}

/// A hint at the units of the category numbered `number`.
std::string SeeList(int number) {
  return "; kavcalc convert --list " + PrintInteger(number) + " shows all";
}

std::string BytesOf(std::size_t count) {
  return PrintInteger(static_cast<std::int64_t>(count)) + " bytes";
}

std::string NumbersOf(std::size_t count) {
  return PrintInteger(static_cast<std::int64_t>(count)) + (count == 1 ? " number" : " numbers");
}

}  // namespace

std::string VersionLine() {
  return Joined(kProgramName, " ", KAV_VERSION " (").append(BuildNote()).append(")\n");
}

std::string Quoted(std::string_view text) {
  constexpr std::size_t kLongest = 40;
  if (text.size() <= kLongest) return Joined("\"", text, "\"");
  return Joined("\"", StartOf(text, kLongest), "...\"");
}

std::string IsTooLong(std::size_t most) {
  return "The line has more than " + BytesOf(most) + ".";
}

std::string NotANumber(std::string_view text) {
  return Quoted(text) + " is not a number.";
}

std::string NoKeyShows(std::string_view caption) {
  return "No key shows " + Quoted(caption) + ".";
}

std::string KeyIsDisabled(std::string_view caption) {
  return "The key " + Quoted(caption) + " is disabled.";
}

std::string MenuDoesNotOffer(std::string_view text) {
  return "The menu does not offer " + Quoted(text) + ".";
}

std::string NeedsTheWindow(std::string_view key) {
  return Quoted(key) + " opens a dialog, which only the window has.";
}

std::string NotVariables(std::string_view text) {
  return Quoted(text) + " names no variables: x, xy or xyz does.";
}

std::string NotAMemoryVariable(std::string_view text, int count) {
  return Quoted(text) + " is no memory variable: they are numbered from 1 to " +
         PrintInteger(count) + ".";
}

std::string DidYouMean(std::string_view line) {
  return std::string("did you mean ").append(line) + '?';
}

std::string LinesAwaited(std::string_view item) {
  return Joined(item, " a line; Ctrl+D ends.", "");
}

std::string TextAwaited(std::string_view text) {
  return Joined(text, "; Ctrl+D ends.", "");
}

std::string IsNoCommand(std::string_view word, std::string_view call) {
  return Quoted(word) + " is no command; did you mean " + Quoted(call) + "?";
}

std::string NotAUserConversion(std::string_view text) {
  return Quoted(text) + " is no user-define unit convert.";
}

std::string CannotRead(std::string_view reason) {
  return Joined("cannot read standard input: ", reason, "");
}

std::string HasEndlessLine(std::size_t most) {
  return "cannot read standard input: it has a line of more than " + BytesOf(most) +
         "; check that it is text";
}

std::string CannotWrite(std::string_view reason) {
  return Joined("cannot write to standard output: ", reason, "");
}

std::string RatesLostDigits(std::string_view conversions) {
  return Joined("all rates were stored with six decimals, and these lost digits:", conversions, "");
}

std::string MatrixCannotBeLoaded(std::string_view path, std::string_view reason) {
  return Joined("The matrix cannot be loaded from ", path, ": ").append(reason).append(".");
}

std::string TooLargeForAMatrix(std::size_t most) {
  return "it has more than " + BytesOf(most) + "; check that it is a matrix file";
}

std::string HasNoMatrixSize(int largest) {
  return "line 1 is no size such as \"[2*3]\", rows and columns from 1 to " +
         PrintInteger(largest) + "; check that it is a matrix file";
}

std::string HasOtherCells(int line) {
  return "line " + PrintInteger(line) +
         " has not as many cells as line 1 says; put a tab between two cells";
}

std::string LacksARow(int line) {
  return "line " + PrintInteger(line) + " is missing; line 1 says that there are more rows";
}

std::string HasRowLeft(int line) {
  return "line " + PrintInteger(line) + " is one more than line 1 says; correct the size there";
}

std::string InLine(std::uint64_t line, std::string_view start) {
  std::string text = "line " + PrintInteger(static_cast<std::int64_t>(line));
  if (!start.empty()) text.append(" (").append(Quoted(start)).append(")");
  return text.append(": ");
}

std::string HasText(std::size_t numbers) {
  if (numbers == 0) return "it has text and no number, and was left out";
  return "it has text; " + NumbersOf(numbers) + (numbers == 1 ? " was" : " were") + " read from it";
}

std::string HasOtherNumbers(std::size_t numbers, std::size_t usual) {
  const std::string usualText = PrintInteger(static_cast<std::int64_t>(usual));
  return "it has " + NumbersOf(numbers) + " instead of " + usualText + "; each " + usualText +
         " made a row, whatever the lines";
}

std::string ValueReadAs(std::string_view text, double number) {
  return Quoted(text) + " is no number and was read as " + PrintRoundTrip(number);
}

std::string CountReadAs(std::string_view text, std::int32_t count) {
  return "its count " + Quoted(text) + " is no whole number from 1 on; it was read as " +
         PrintInteger(count);
}

std::string NoCategoryIs(std::string_view name) {
  return Joined("there is no category ", Quoted(name), "; kavcalc convert --list shows all");
}

std::string DidYouMean(const std::vector<std::string>& names) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const bool isLast = i + 1 == names.size();
    text += i == 0 ? "; did you mean " : isLast ? " or " : ", ";
    text += Quoted(names[i]);
  }
  return text.empty() ? text : text + '?';
}

std::string CategoryTakes(std::string_view category, int number, std::string_view arguments) {
  return Quoted(category).append(" takes ").append(arguments) + SeeList(number);
}

std::string HasNoUnit(std::string_view category, int number, std::string_view given) {
  return Joined(Quoted(category), " has no ", Quoted(given)) + SeeList(number);
}

std::string IsSeveralUnits(std::string_view category, std::string_view given) {
  return Joined(Quoted(category), " has several ", Quoted(given)) +
         ", which differ in upper and lower case";
}

std::string LacksVerb(std::string_view command) {
  return Joined(command, " lacks its verb", "");
}

std::string HasNoVerb(std::string_view command, std::string_view given) {
  return Joined(command, " has no verb ", Quoted(given));
}

std::string VerbTakes(std::string_view command, std::string_view verb, std::string_view arguments) {
  return Joined(command, " ", verb).append(" takes ").append(arguments);
}

std::string NotExpected(const std::vector<std::string_view>& arguments) {
  std::string text = arguments.size() == 1 ? "The following argument was not expected:"
                                           : "The following arguments were not expected:";
  for (const std::string_view argument : arguments) text.append(" ").append(argument);
  return text;
}

std::string CannotConvert(std::string_view option, std::string_view given) {
  return Joined("Could not convert: ", option, " = ").append(given);
}

std::string OptionLacksValue(std::string_view option) {
  return Joined(option, " lacks its value", "");
}

std::string OptionTakes(std::string_view option, std::string_view values, std::string_view given) {
  return Joined(option, " takes ", values).append(", not ").append(Quoted(given));
}

}  // namespace kav
