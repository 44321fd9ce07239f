#include "cli/answer_json.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "cli/json_text.h"
#include "common/number_text.h"

namespace kav {
namespace {

/// How many characters begin before the byte at `position` of `text` (UTF-8). A byte that is no
/// part of a well-formed character is one, as it is in JSON.
std::int64_t CharactersBefore(std::string_view text, std::size_t position) {
  std::int64_t characters = 0;
  for (std::size_t at = 0; at < std::min(position, text.size()); ++characters) {
    at += Utf8Length(text.substr(at));
  }
  return characters;
}

void AppendResult(std::string& out, const Answer& answer, std::string_view text) {
  out += ",\"result\":";
  if (const auto* number = std::get_if<double>(&answer)) {
    AppendJsonNumber(out, *number);
  } else if (const auto* rows = std::get_if<Rows>(&answer)) {
    out += rows->Json();
  } else {
    AppendJsonText(out, text);
  }
}

/// The failure that `answer` is, or which keeps its number from being shown.
Failure FailureIn(const Answer& answer, const Options& options) {
  if (const auto* failure = std::get_if<Failure>(&answer)) return *failure;
  std::string shown;
  return FailureOf(*AppendShown(shown, *std::get_if<double>(&answer), options));
}

void AppendError(std::string& out, const Failure& failure, std::string_view item) {
  out += ",\"error\":";
  AppendJsonText(out, failure.message);
  if (!failure.position) return;
  out.append(",\"position\":").append(PrintInteger(CharactersBefore(item, *failure.position)));
}

std::string_view WithoutLastEnd(std::string_view lines) {
  if (lines.ends_with('\n')) lines.remove_suffix(1);
  if (lines.ends_with('\r')) lines.remove_suffix(1);
  return lines;
}

}  // namespace

bool AppendJsonAnswer(std::string& out, std::optional<std::string_view> item, const Answer& answer,
                      const Options& options) {
  std::string lines;
  const bool isAnswered = AppendLines(lines, answer, options);
  const std::string_view text = WithoutLastEnd(lines);
  out += "{\"item\":";
  item ? AppendJsonText(out, *item) : void(out.append("null"));
  isAnswered ? AppendResult(out, answer, text)
             : AppendError(out, FailureIn(answer, options), item.value_or(""));
  out += ",\"text\":";
  AppendJsonText(out, text);
  out += "}\n";
  return isAnswered;
}

}  // namespace kav
