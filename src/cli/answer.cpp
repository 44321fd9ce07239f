#include "cli/answer.h"

#include <algorithm>
#include <iterator>

#include "cli/cli_texts.h"
#include "cli/json_text.h"
#include "cli/visible_text.h"
#include "common/number_text.h"
#include "display/number_format.h"

namespace kav {
namespace {

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}

void AppendCell(std::string& out, const Cell& cell) {
  if (cell.number) {
    AppendJsonNumber(out, *cell.number);
  } else if (cell.text.empty()) {
    out += "null";
  } else {
    AppendJsonText(out, cell.text);
  }
}

void AppendFailure(std::string& out, std::string_view message) {
  out.append(kFailureMark).append(Visible(Line(message)));
}

}  // namespace

Cell CellOf(std::string_view text) {
  const auto number = ReadWholeNumber(text);
  return number ? Cell(text, *number) : Cell(text);
}

void Rows::Add(std::initializer_list<Cell> cells) {
  for (const Cell& cell : cells) {
    std::replace_copy_if(cell.text.begin(), cell.text.end(), std::back_inserter(lines_), IsControl,
                         ' ');
    lines_ += '\t';
  }
  lines_.back() = '\n';
  AddValues(cells);
}

void Rows::AddValues(std::span<const Cell> cells) {
  if (!keepsValues_) return;
  values_ += values_.empty() ? "[" : ",[";
  for (const Cell& cell : cells) {
    AppendCell(values_, cell);
    values_ += ',';
  }
  values_.back() = ']';
}

std::string Line(std::string_view text) {
  std::string line(text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line += '\n';
}

std::optional<CalcError> AppendShown(std::string& out, double value, const Options& options) {
  if (options.isRaw) {
    AppendRoundTrip(out, value);
    return std::nullopt;
  }
  auto shown = FormatNumber(value, options.display, options.base);
  if (!shown) return std::move(shown).error();
  out += *shown;
  return std::nullopt;
}

bool AppendLines(std::string& out, const Answer& answer, const Options& options) {
  if (const auto* number = std::get_if<double>(&answer)) {
    const auto error = AppendShown(out, *number, options);
    error ? AppendFailure(out, error->message) : out.push_back('\n');
    return !error;
  }
  if (const auto* failure = std::get_if<Failure>(&answer)) {
    AppendFailure(out, failure->message);
    return false;
  }
  const auto* rows = std::get_if<Rows>(&answer);
  out += rows != nullptr ? rows->Lines() : *std::get_if<std::string>(&answer);
  return true;
}

}  // namespace kav
