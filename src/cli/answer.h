// What an item is answered with.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "cli/options.h"
#include "engine/calc_error.h"

namespace kav {

/// Why an item has no answer. The message may hold line breaks.
struct Failure {
  std::string message;
  std::optional<std::size_t> position = {};  ///< where in the item, in bytes, if that is known
};

/// The failure that `error`, with a message and perhaps a place, stands for. The text that failed
/// begins `start` bytes behind the start of the item.
template <class Error>
Failure FailureOf(Error error, std::size_t start = 0) {
  Failure failure{std::move(error.message)};
  if (error.place) failure.position = start + error.place->position;
  return failure;
}

/// One value of a row, with the text that shows it: a number, a text, or nothing, which an empty
/// text shows. Views the text.
struct Cell {
  Cell(std::string_view shown) : text(shown) {}    // NOLINT: reads as a cell
  Cell(const std::string& shown) : text(shown) {}  // NOLINT: the same
  Cell(const char* shown) : text(shown) {}         // NOLINT: the same
  Cell(std::string_view shown, double value) : text(shown), number(value) {}

  std::string_view text;
  std::optional<double> number;
};

/// A number if `text` is one as a whole, else a text.
Cell CellOf(std::string_view text);

/// Rows of values, and the lines of text that show them. The values are kept only where the options
/// ask for JSON.
class Rows {
 public:
  explicit Rows(const Options& options, std::string lines = {})
      : keepsValues_(options.isJson), lines_(std::move(lines)) {}

  /// Adds a row, and its line: the cells with a tab between two of them. Tabs, line breaks and
  /// other control characters within them become blanks there.
  void Add(std::initializer_list<Cell> cells);

  /// The two parts of Add, for rows that other lines show.
  void AddLines(std::string_view lines) { lines_ += lines; }
  void AddValues(std::span<const Cell> cells);
  void AddValues(std::initializer_list<Cell> cells) {
    AddValues(std::span(cells.begin(), cells.size()));
  }
  bool KeepsValues() const { return keepsValues_; }

  const std::string& Lines() const { return lines_; }
  /// The values as JSON: an array of arrays.
  std::string Json() const { return '[' + values_ + ']'; }

 private:
  bool keepsValues_;
  std::string lines_;
  std::string values_;  ///< as JSON, without the brackets around all of them
};

/// What an item is answered with: a number, lines of text, each with its end, rows of values, or a
/// failure.
using Answer = std::variant<double, std::string, Rows, Failure>;

/// `text` as one line, with its end. Line breaks within it become blanks: a message may name a
/// character, and an argument may hold line breaks.
std::string Line(std::string_view text);

/// Appends `value` to `out` in the display, precision and base of the options, or with 17
/// significant digits if they ask for raw numbers. Returns why it cannot be shown so; `out` is
/// unchanged then.
std::optional<CalcError> AppendShown(std::string& out, double value, const Options& options);

/// Appends `answer` to `out` as lines: a number as it is shown, a failure with its mark. Returns
/// whether there is an answer, and one that can be shown.
bool AppendLines(std::string& out, const Answer& answer, const Options& options);

}  // namespace kav
