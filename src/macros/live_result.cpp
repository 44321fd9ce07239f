#include "macros/live_result.h"

#include <algorithm>

#include "common/ascii.h"
#include "common/number_text.h"
#include "macros/line_evaluator.h"

namespace kav {
namespace {

bool IsNumberAlone(std::string_view text, BaseMode base) {
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  // In an integer base a line without an operator, a blank or a word is one number.
  if (base == BaseMode::Decimal) return ReadWholeNumber(text).has_value();
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return DigitValue(LowerCase(c)) < 16; });
}

}  // namespace

std::optional<std::u16string> LiveNumber(std::u16string_view line, CalcModes modes,
                                         DisplayFormat format, const MacroStore& macros) {
  if (line.size() > kLongestLiveLine) return std::nullopt;
  const std::string text = Narrow(line);
  if (IsNumberAlone(TrimBlanks(text), modes.baseMode)) return std::nullopt;
  const auto value = EvaluateLine(text, modes, macros);
  if (!value) return std::nullopt;
  const auto shown = FormatNumber(*value, format, modes.baseMode);
  return shown ? std::optional(Widen(*shown)) : std::nullopt;
}

}  // namespace kav
