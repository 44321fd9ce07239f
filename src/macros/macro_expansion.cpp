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

/// The ')' that closes the '(' which opens `text`; npos where none does.
std::size_t ClosingParenthesis(std::string_view text) {
  std::size_t open = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '(') ++open;
    if (text[i] == ')' && --open == 0) return i;
  }
  return std::string_view::npos;
}

/// Takes the call that opens `text`, its mark already taken off, apart.
Expected<Call, std::string> ReadCall(std::string_view text) {
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) return std::string(kMacroNameUnknown);
  const std::string_view group = text.substr(open);
  const std::size_t close = ClosingParenthesis(group);
  if (close == std::string_view::npos) return std::string(kMacroArgumentsWrong);
  const Call call{text.substr(0, open), group.substr(1, close - 1), group.substr(close + 1)};
  if (!call.behind.empty() && kMayStandBehind.find(call.behind[0]) == std::string_view::npos) {
    return std::string(kMacroCallMisplaced);
  }
  return call;
}

/// The values of the texts between the commas of `arguments`, as many as `type` has variables. A
/// comma inside parentheses separates too.
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

/// The checker's verdict on a formula, in the words of a call: a text that cannot be cut into
/// tokens is an invalid formula, a wrong order of tokens is an error of the calculation itself.
std::string FormulaFailure(const std::string& formula, VariableType type, const CalcError& error) {
  const std::string folded = FoldCase(formula, BaseMode::Decimal);
  TokenArray tokens;
  const bool isInvalid = folded.empty() || TokenizeFormula(folded, type, tokens).has_value();
  return isInvalid ? std::string(kMacroFormulaInvalid) : error.message;
}

Expected<double, std::string> ValueOf(const Call& call, CalcModes modes, const MacroStore& macros) {
  const auto index = macros.Find(call.name);
  if (!index) return std::string(kMacroNameUnknown);
  const Macro& macro = macros.At(*index);
  const auto values = ReadArguments(call.arguments, macro.type, modes);
  if (!values) return std::string(kMacroArgumentsWrong);
  const auto& formula = macros.Checked(*index);
  if (!formula) return FormulaFailure(macro.formula, macro.type, formula.error());
  ExpressionEngine engine;
  engine.SetAngleUnit(modes.angleUnit);
  engine.EvaluateTokens(*formula, *values);
  if (engine.HasError()) return std::string(engine.GetErrorText());
  return engine.GetResult();
}

}  // namespace

bool HoldsMacroCall(std::string_view line) {
  return line.find(kCallMark) != std::string_view::npos;
}

Expected<ExpandedLine, std::string> ExpandMacros(std::string_view line, CalcModes modes,
                                                 const MacroStore& macros) {
  ExpandedLine expanded;
  std::string& text = expanded.text;
  // What stands before a call is never looked at again: a value holds no call, and none can begin
  // in one part and end in the other.
  for (std::size_t mark; (mark = line.find(kCallMark)) != std::string_view::npos;) {
    text += line.substr(0, mark);
    if (!text.empty() && kMayStandBefore.find(text.back()) == std::string_view::npos) {
      return std::string(kMacroCallMisplaced);
    }
    const auto call = ReadCall(line.substr(mark + kCallMark.size()));
    if (!call) return std::string(call.error());
    auto value = ValueOf(*call, modes, macros);
    if (!value) return std::move(value).error();
    if (text.empty() && call->behind.empty()) expanded.wholeValue = *value;
    AppendFixed(text, *value, kEmbeddedDecimals);
    line = call->behind;
  }
  text += line;
  return expanded;
}

}  // namespace kav
