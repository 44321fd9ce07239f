#include "macros/macro_expansion.h"

#include <array>
#include <cstddef>
#include <utility>

#include "common/number_text.h"
#include "engine/expression_engine.h"
#include "macros/macros_texts.h"

namespace kav {
namespace {

constexpr std::string_view kCallMark = "M:";
constexpr std::string_view kMayStandBefore = "^+-*/%(";
constexpr std::string_view kMayStandBehind = "^+-*/%)";
// An embedded value enters the line as text and keeps this many decimals only: users' expressions
// rely on the answers this has always given.
constexpr int kEmbeddedDecimals = 6;

struct Call {
  std::string_view name;
  std::string_view arguments;
  std::string_view behind;  ///< the rest of the line
};

/// What is wrong with a call, and where.
struct CallFailure {
  std::string_view where;  ///< views the line; of no length at its end
  std::string message;
};

/// The position of the ')' that closes the '(' at the start of `text`; npos if none does.
std::size_t ClosingParenthesis(std::string_view text) {
  std::size_t open = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '(') ++open;
    if (text[i] == ')' && --open == 0) return i;
  }
  return std::string_view::npos;
}

/// The parts of the call at the start of `text`, from which the mark is taken off.
Expected<Call, CallFailure> ReadCall(std::string_view text) {
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) return CallFailure{text, std::string(kMacroNameUnknown)};
  const std::string_view group = text.substr(open);
  const std::size_t close = ClosingParenthesis(group);
  if (close == std::string_view::npos) {
    return CallFailure{group.substr(0, 1), std::string(kMacroArgumentsWrong)};
  }
  const Call call{text.substr(0, open), group.substr(1, close - 1), group.substr(close + 1)};
  if (!call.behind.empty() && kMayStandBehind.find(call.behind[0]) == std::string_view::npos) {
    return CallFailure{call.behind.substr(0, 1), std::string(kMacroCallMisplaced)};
  }
  return call;
}

/// The values of the texts between the commas of `arguments`; nullopt unless there are as many as
/// `type` has variables and all can be evaluated. A comma inside parentheses separates too.
std::optional<VariableValues> ReadArguments(std::string_view arguments, VariableType type,
                                            CalcModes modes) {
  std::array<double, 3> values{};
  const auto last = static_cast<std::size_t>(type);
  for (std::size_t i = 0; i <= last; ++i) {
    const std::size_t comma = arguments.find(',');
    if ((comma == std::string_view::npos) != (i == last)) return std::nullopt;
    const auto value = Evaluate(arguments.substr(0, comma), modes);
    if (!value) return std::nullopt;
    values[i] = *value;
    if (i < last) arguments.remove_prefix(comma + 1);
  }
  return VariableValues{values[0], values[1], values[2]};
}

Expected<double, CallFailure> ValueOf(const Call& call, CalcModes modes, const MacroStore& macros) {
  const auto index = macros.Find(call.name);
  if (!index) return CallFailure{call.name, std::string(kMacroNameUnknown)};
  const auto values = ReadArguments(call.arguments, macros.At(*index).type, modes);
  if (!values) return CallFailure{call.arguments, std::string(kMacroArgumentsWrong)};
  const auto& formula = macros.Checked(*index);
  if (!formula) return CallFailure{call.name, std::string(formula.error())};
  auto value = EvaluateFormula(*formula, *values, modes.angleUnit);
  if (!value) return CallFailure{call.name, std::move(value).error().message};
  return *value;
}

/// Appends the text before the first mark of `line` to `expanded`, and the value of its call.
/// Returns what stands behind the call.
Expected<std::string_view, CallFailure> ExpandCall(std::string_view line, std::size_t mark,
                                                   CalcModes modes, const MacroStore& macros,
                                                   ExpandedLine& expanded) {
  std::string& text = expanded.text;
  text += line.substr(0, mark);
  if (!text.empty() && kMayStandBefore.find(text.back()) == std::string_view::npos) {
    return CallFailure{line.substr(mark, kCallMark.size()), std::string(kMacroCallMisplaced)};
  }
  auto call = ReadCall(line.substr(mark + kCallMark.size()));
  if (!call) return std::move(call).error();
  auto value = ValueOf(*call, modes, macros);
  if (!value) return std::move(value).error();
  if (text.empty() && call->behind.empty()) expanded.wholeValue = *value;
  AppendFixed(text, *value, kEmbeddedDecimals);
  return call->behind;
}

TextPlace PlaceOf(std::string_view part, std::string_view line) {
  const auto start = static_cast<std::size_t>(part.data() - line.data());
  // What is missing is missing behind a character.
  return {part.empty() && start > 0 ? start - 1 : start, part.size()};
}

}  // namespace

bool HoldsMacroCall(std::string_view line) {
  return line.find(kCallMark) != std::string_view::npos;
}

TextPlace ExpandedLine::PlaceInLine(TextPlace place) const {
  std::size_t moved = place.position;  // what the values before it have moved
  for (const EmbeddedValue& row : values) {
    if (place.position < row.value.position) break;
    if (place.position < row.value.position + row.value.length) return row.call;
    moved = place.position - (row.value.position + row.value.length) + row.call.position +
            row.call.length;
  }
  return {moved, place.length};
}

Expected<ExpandedLine, MacroFailure> ExpandMacros(std::string_view line, CalcModes modes,
                                                  const MacroStore& macros) {
  ExpandedLine expanded;
  std::string_view rest = line;
  // What stands before a call is never read again: a value holds no call, and no call begins in one
  // part and ends in the other.
  for (std::size_t mark; (mark = rest.find(kCallMark)) != std::string_view::npos;) {
    const std::size_t begin = expanded.text.size() + mark;
    auto behind = ExpandCall(rest, mark, modes, macros, expanded);
    if (!behind) return MacroFailure{behind.error().message, PlaceOf(behind.error().where, line)};
    const std::string_view call =
        rest.substr(mark, static_cast<std::size_t>(behind->data() - rest.data()) - mark);
    expanded.values.push_back({{begin, expanded.text.size() - begin}, PlaceOf(call, line)});
    rest = *behind;
  }
  expanded.text += rest;
  return expanded;
}

}  // namespace kav
