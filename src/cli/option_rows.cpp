#include "cli/option_rows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "common/number_text.h"
#include "display/number_input.h"
#include "engine/fold_case.h"

namespace kav {
namespace {

/// The index (from 0) of `word` among the words of `choices`, which '|' separates; nullopt if it is
/// none of them.
std::optional<int> IndexIn(std::string_view choices, std::string_view word) {
  for (int index = 0;; ++index) {
    const std::size_t end = choices.find('|');
    if (choices.substr(0, end) == word) return index;
    if (end == choices.npos) return std::nullopt;
    choices.remove_prefix(end + 1);
  }
}

/// Reads one of `choices`, which are in the order of the enumeration Target. Its first number is
/// `first`.
template <class Target>
bool ReadChoice(std::string_view choices, std::string_view given, int first, Target& target) {
  const auto index = IndexIn(choices, given);
  if (index) target = static_cast<Target>(*index + first);
  return index.has_value();
}

/// Reads what follows '=' after a switch, as in "--raw=off": a word or a number; nothing means on.
bool ReadSwitch(std::string_view given, bool& isOn) {
  constexpr std::string_view kOn = "|true|on|yes|enable|t|y|+";
  constexpr std::string_view kOff = "false|off|no|disable|n|f|-";
  const std::string folded = FoldCase(given, BaseMode::Decimal);
  isOn = IndexIn(kOn, folded) || ReadLeadingNumber(given) > 0;
  return isOn || IndexIn(kOff, folded) || given.find_first_of("0123456789") != given.npos;
}

// The functions of the table. Those for several options name the member that they store into.

template <bool Options::*kMember>
bool TakeSwitch(std::string_view, std::string_view given, Options& options) {
  return ReadSwitch(given, options.*kMember);
}

template <auto kMember, int kFirst>
bool TakeChoice(std::string_view choices, std::string_view given, Options& options) {
  return ReadChoice(choices, given, kFirst, options.*kMember);
}

/// Takes a number as the field of the screen does.
template <std::vector<double> Options::*kMember>
bool TakeEstimate(std::string_view, std::string_view given, Options& options) {
  const auto number = ReadShownNumber(given);
  if (!number || !std::isfinite(*number)) return false;
  (options.*kMember).push_back(*number);
  return true;
}

/// Takes the path of the file for the matrix kSlot.
template <std::size_t kSlot>
bool TakeMatrixFile(std::string_view, std::string_view given, Options& options) {
  options.matrixFiles[kSlot] = given;
  return !given.empty();
}

bool TakeProperty(std::string_view, std::string_view given, Options& options) {
  options.property = FindProperty(given);
  return options.property != nullptr;
}

bool TakeHelp(std::string_view, std::string_view, Options& options) {
  return options.asksHelp = true;
}

bool TakeTwo(std::string_view, std::string_view given, Options& options) {
  bool isOn = false;
  if (!ReadSwitch(given, isOn)) return false;
  options.shape = isOn ? DataShape::TwoVariables : DataShape::OneVariable;
  return true;
}

bool TakeAngle(std::string_view choices, std::string_view given, Options& options) {
  return ReadChoice(choices, given, 1, options.angle.emplace());
}

bool TakeDisplay(std::string_view choices, std::string_view given, Options& options) {
  return ReadChoice(choices, given, 0, options.display.type);
}

bool TakePrecision(std::string_view, std::string_view given, Options& options) {
  const auto precision = ReadInteger<int>(given);
  if (!precision || *precision < 0 || *precision > DisplayFormat::kMaxPrecision) return false;
  options.display.precision = *precision;
  return true;
}

bool TakeSettings(std::string_view, std::string_view given, Options& options) {
  options.settingsFile = given;
  return !given.empty();
}

bool TakeRange(std::string_view values, std::string_view given, Options& options) {
  double* const bounds[] = {&options.range.xMin, &options.range.xMax, &options.range.yMin,
                            &options.range.yMax};
  const auto words = Words(given);
  if (words.size() != Words(values).size()) return false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const auto bound = ReadShownNumber(words[i]);
    if (!bound) return false;
    *bounds[i] = *bound;
  }
  return true;
}

bool TakeTable(std::string_view values, std::string_view given, Options& options) {
  const auto words = Words(given);
  if (words.size() != Words(values).size()) return false;
  const auto first = ReadShownNumber(words[0]);
  const auto last = ReadShownNumber(words[1]);
  const auto step = ReadShownNumber(words[2]);
  options.table = TablePlaces{first.value_or(0), last.value_or(0), step.value_or(0)};
  return first && last && step;
}

bool TakeArea(std::string_view values, std::string_view given, Options& options) {
  const auto words = Words(given);
  if (words.size() != Words(values).size()) return false;
  const auto top = ReadInteger<int>(words[0]);
  const auto bottom = ReadInteger<int>(words[1]);
  options.area.top = top.value_or(0);
  options.area.bottom = bottom.value_or(0);
  return top && bottom;
}

using Others = OptionRow::Others;
constexpr std::string_view kThatCalculate = "eval|matrix|plot|keys|memory";
constexpr std::string_view kThatReadSettings = "eval|matrix|plot|convert|keys|macro|memory";
constexpr std::string_view kThatShowNumbers = "eval|format|matrix|plot|convert|keys";
constexpr std::string_view kThatTakeABase = "eval|format|matrix|plot|convert|keys|memory";
constexpr std::string_view kVariables = "x|xy|xyz";
constexpr std::string_view kFindable =
    "rank|trace|norm|norm1|norm2|norminf|eigenvalues|lu-l|lu-u|lu-p|qr-q|qr-r";
static_assert(DisplayFormat::kMaxPrecision == 99, "the help names the limit");
constexpr std::array kOptions{
    OptionRow{"-h,--help", "", "print this help and end", "", Others::Ignore, TakeHelp},
    OptionRow{"--version", "", "print the version and end", "", Others::Ignore,
              TakeSwitch<&Options::asksVersion>},
    OptionRow{"--angle", "deg|rad", R"(angle unit [the stored "Angle Type"])", kThatCalculate,
              Others::Ignore, TakeAngle},
    OptionRow{"--base", "dec|hex|bin|oct", "number base [dec]", kThatTakeABase, Others::Ignore,
              TakeChoice<&Options::base, 1>},
    OptionRow{"--display", "floating|fixed|scientific|thousands|engineering",
              "how numbers are shown [floating]", kThatShowNumbers, Others::Ignore, TakeDisplay},
    OptionRow{"--precision", "0..99", "digits after the point [7]", kThatShowNumbers,
              Others::Ignore, TakePrecision},
    OptionRow{"--raw", "", "17 significant digits, in decimal, instead of the display",
              kThatShowNumbers, Others::Ignore, TakeSwitch<&Options::isRaw>},
    OptionRow{"--settings", "FILE", "the settings file to use instead of the user's",
              kThatReadSettings, Others::Ignore, TakeSettings},
    OptionRow{"--json", "", "a line of JSON for each item instead of text", "", Others::Ignore,
              TakeSwitch<&Options::isJson>},
    OptionRow{"--variables", kVariables, "the variables of the formulas [x]", "check|macro",
              Others::Refuse, TakeChoice<&Options::variables, 0>},
    OptionRow{"--steps", "", "show the order of the calculation", "check", Others::Refuse,
              TakeSwitch<&Options::showsSteps>},
    OptionRow{"--list", "", "list the units of the category, or of all", "convert", Others::Refuse,
              TakeSwitch<&Options::listsUnits>},
    OptionRow{"--m1", "FILE", "the matrix file that [M1] is loaded from", "matrix", Others::Refuse,
              TakeMatrixFile<0>},
    OptionRow{"--m2", "FILE", "the same for [M2]", "matrix", Others::Refuse, TakeMatrixFile<1>},
    OptionRow{"--m3", "FILE", "the same for [M3]", "matrix", Others::Refuse, TakeMatrixFile<2>},
    OptionRow{"--ans", "FILE", "the same for [M Ans]", "matrix", Others::Refuse,
              TakeMatrixFile<kAnswerMatrix>},
    OptionRow{"--find", kFindable, "of each matrix that answers an item, instead of it", "matrix",
              Others::Refuse, TakeProperty},
    OptionRow{"--crlf", "", "end the rows as the matrix screen does, with CR LF", "matrix",
              Others::Refuse, TakeSwitch<&Options::hasCrLf>},
    OptionRow{"--two", "", "files of two variables, and a curve through them", "stats",
              Others::Refuse, TakeTwo},
    OptionRow{"--model", "linear|power|inverse|logarithmic|exponential|quadratic",
              "the curve [linear]", "stats", Others::Refuse, TakeChoice<&Options::model, 1>},
    OptionRow{"--x", "NUMBER", "also estimate Y there; may be repeated", "stats", Others::Refuse,
              TakeEstimate<&Options::estimatesAtX>, Repeated::EachCounts},
    OptionRow{"--y", "NUMBER", "also estimate X there; may be repeated", "stats", Others::Refuse,
              TakeEstimate<&Options::estimatesAtY>, Repeated::EachCounts},
    OptionRow{"--range", "XMIN XMAX YMIN YMAX", "the range of the plot [-10 10 -10 10]", "plot",
              Others::Refuse, TakeRange},
    OptionRow{"--area", "TOP BOTTOM", "the pixel rows of the plot [0 229]", "plot", Others::Refuse,
              TakeArea},
    OptionRow{"--table", "X0 X1 STEP", "the values from X0 to X1 instead", "plot", Others::Refuse,
              TakeTable},
    OptionRow{"--svg", "", "the picture of up to three equations instead", "plot", Others::Refuse,
              TakeSwitch<&Options::asksSvg>},
};

}  // namespace

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  while (true) {
    const std::size_t start = text.find_first_not_of(' ');
    if (start == text.npos) return words;
    text.remove_prefix(start);
    words.push_back(text.substr(0, text.find(' ')));
    text.remove_prefix(words.back().size());
  }
}

bool IsFor(const OptionRow& row, std::string_view command) {
  return row.others == Others::Ignore || Matters(row, command);
}

bool Matters(const OptionRow& row, std::string_view command) {
  return row.commands.empty() || IndexIn(row.commands, command);
}

std::optional<VariableType> VariablesCalled(std::string_view names) {
  VariableType type{};
  if (!ReadChoice(kVariables, names, 0, type)) return std::nullopt;
  return type;
}

std::span<const OptionRow> OptionRows() {
  return kOptions;
}

const OptionRow* FindOption(std::string_view name) {
  // What follows -h would be more switches of one letter, and it is the only one.
  if (name == "--help" || name.substr(0, 2) == "-h") return kOptions.data();
  const auto found = std::find_if(kOptions.begin(), kOptions.end(),
                                  [name](const OptionRow& row) { return row.name == name; });
  return found == kOptions.end() ? nullptr : &*found;
}

}  // namespace kav
