#include "statistics/pasted_rows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "display/number_input.h"
#include "statistics/data_fields.h"
#include "statistics/data_texts.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

// A little more than the smallest double has when written in full.
constexpr std::size_t kLongestNumber = 1100;
constexpr std::size_t kLongestQuote = 20;
constexpr std::size_t kFaultsTold = 3;
constexpr std::size_t kLinesAtOnce = 256;
constexpr std::size_t kMostColumns = kMostVariables + 1;
constexpr std::array<std::u16string_view, kMostVariables> kHeadings{kXHeading, kYHeading};

using Pasted = std::variant<PastedRows, WorkFailed, WorkCancelled>;

/// Takes the text up to `end` and `end` itself from the front of `text`.
std::u16string_view TakeUpTo(char16_t end, std::u16string_view& text) {
  const std::u16string_view taken = text.substr(0, text.find(end));
  text.remove_prefix(std::min(taken.size() + 1, text.size()));
  return taken;
}

char16_t SeparatorOf(std::u16string_view line) {
  for (const char16_t separator : {u'\t', u';', u','}) {
    if (line.find(separator) != line.npos) return separator;
  }
  return u' ';
}

/// The columns of a line, without the empty ones at its end.
struct Columns {
  std::array<std::u16string_view, kMostColumns> cells;
  std::size_t count = 0;  ///< of the line; `cells` has the first kMostColumns
};

Columns Split(std::u16string_view line) {
  const char16_t separator = SeparatorOf(line);
  Columns columns;
  std::size_t column = 0;
  while (!line.empty()) {
    const std::u16string_view cell = TrimBlanks(TakeUpTo(separator, line));
    // Several blanks separate only once.
    if (cell.empty() && separator == u' ') continue;
    if (!cell.empty()) columns.count = column + 1;
    if (column < kMostColumns) columns.cells[column] = cell;
    ++column;
  }
  return columns;
}

std::optional<double> ReadNumber(std::u16string_view cell) {
  if (cell.size() > kLongestNumber) return std::nullopt;
  const auto number = ReadShownNumber(Narrow(cell));
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::int32_t> ReadCountCell(std::u16string_view cell) {
  if (cell.empty()) return kLeastCount;
  return cell.size() > kLongestNumber ? std::nullopt : ReadCount(cell);
}

std::u16string Quoted(std::u16string_view cell) {
  return Shortened(cell, kLongestQuote);
}

/// Takes the lines of a text one by one.
class LineTaker {
 public:
  LineTaker(DataShape shape, DisplayFormat format)
      : variables_(VariablesOf(shape)), format_(format), rows_(shape) {}

  /// Takes a line, good or bad. Answers why no more lines can be taken, or nullopt if they can.
  std::optional<DataRefusal> Take(std::u16string_view line) {
    ++line_;
    const Columns columns = Split(line);
    if (columns.count == 0) return std::nullopt;
    ++filledLines_;
    if (columns.count > variables_ + 1) return Refuse(std::u16string(kHasTooManyColumns));
    std::array<std::string, kMostVariables> texts;
    for (std::size_t i = 0; i < variables_; ++i) {
      const auto number = ReadNumber(columns.cells[i]);
      if (!number) return Refuse(LacksNumber(kHeadings[i], Quoted(columns.cells[i])));
      texts[i] = *FormatForInsertion(*number, format_);
    }
    const auto count = ReadCountCell(columns.cells[variables_]);
    if (!count) return Refuse(HasBadCount(Quoted(columns.cells[variables_])));
    return rows_.Append({{texts[0], texts[1]}, count});
  }

  std::uint64_t Line() const { return line_; }

  PastedRows Result() && {
    std::u16string complaint;
    if (refused_ > 0) complaint = LinesWereNotTaken(refused_, filledLines_, faults_);
    return {std::move(rows_), std::move(complaint)};
  }

 private:
  /// Notes a bad line, which does not end the taking.
  std::nullopt_t Refuse(const std::u16string& fault) {
    ++refused_;
    if (faults_.size() < kFaultsTold) {
      faults_.push_back(u"line " + IntegerText(static_cast<std::int64_t>(line_)) + fault);
    }
    return std::nullopt;
  }

  std::size_t variables_;
  DisplayFormat format_;
  DataList rows_;
  std::uint64_t line_ = 0;
  std::size_t filledLines_ = 0;
  std::size_t refused_ = 0;
  std::vector<std::u16string> faults_;
};

Pasted NotPasted(std::u16string_view reason) {
  return WorkFailed{RowsCannotBePasted(reason)};
}

Pasted ReadLines(std::u16string_view text, LineTaker lines, const WorkProgress& progress) {
  ProgressClock clock(progress);
  const auto size = static_cast<double>(text.size());
  while (!text.empty()) {
    if (lines.Line() % kLinesAtOnce == 0 &&
        !clock.GoesOn(1 - static_cast<double>(text.size()) / size)) {
      return WorkCancelled{};
    }
    std::u16string_view line = TakeUpTo(u'\n', text);
    if (line.ends_with(u'\r')) line.remove_suffix(1);
    if (const auto refusal = lines.Take(line)) return NotPasted(ReasonOf(*refusal, lines.Line()));
  }
  return std::move(lines).Result();
}

}  // namespace

Pasted ReadPastedRows(std::u16string_view text, DataShape shape, DisplayFormat format,
                      const WorkProgress& progress) {
  if (text.size() > kLongestPastedText) return NotPasted(kPastedTextIsTooLong);
  try {
    return ReadLines(text, LineTaker(shape, format), progress);
  } catch (const std::bad_alloc&) {
    return NotPasted(kNoMemoryForRows);
  }
}

std::optional<std::u16string_view> OneCellOf(std::u16string_view text) {
  const std::u16string_view cell = TrimBlanks(text.substr(0, text.find_last_not_of(u"\r\n") + 1));
  if (cell.empty() || cell.find_first_of(u"\t;, \r\n") != cell.npos) return std::nullopt;
  return cell;
}

std::u16string PrintRows(const DataList& list, std::span<const std::size_t> indices) {
  std::u16string text;
  const auto append = [&text](std::string_view column, char16_t end) {
    for (const char c : column) text += static_cast<unsigned char>(c);
    text += end;
  };
  for (const std::size_t row : indices) {
    for (std::size_t i = 0; i < VariablesOf(list.Shape()); ++i) {
      append(list.ValueText(row, i), u'\t');
    }
    append(list.CountText(row), u'\n');
  }
  return text;
}

}  // namespace kav
