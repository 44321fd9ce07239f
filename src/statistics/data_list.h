// The rows of a statistics screen: texts, counts and their total.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "statistics/text_arena.h"

namespace kav {

/// What the rows of a list hold besides their counts.
enum class DataShape { OneVariable = 1, TwoVariables = 2 };

inline constexpr std::size_t kMostVariables = 2;
constexpr std::size_t VariablesOf(DataShape shape) {
  return static_cast<std::size_t>(shape);
}

/// The bounds of the counts that users type and paste; files may hold any other 32-bit integer.
inline constexpr std::int32_t kLeastCount = 1;
inline constexpr std::int32_t kLargestCount = 10'000;

/// A row to be put into a list. The list keeps the texts of the values as they are.
struct DataRow {
  /// X and Y as 8-bit texts, not owned. A list of one variable ignores the second.
  std::array<std::string_view, kMostVariables> values;
  /// nullopt for a row that a file leaves unfinished; it counts as 0.
  std::optional<std::int32_t> count;

  /// The number at the start of the text of variable 0 (X) or 1 (Y).
  double Value(std::size_t variable) const { return ReadLeadingNumber(values[variable]); }
};

/// Why a list refuses a change. The list is then as it was.
enum class DataRefusal {
  TotalOutOfRange,  ///< the total would be no 32-bit integer
  TooManyRows,      ///< more than DataList::kMostRows
  ValueTooLong,     ///< more than DataList::kLongestValue
  CountOutOfRange,  ///< no 32-bit integer
  NoNumber,         ///< a long stretch of a file without any
  NoMemory,
};

/// How many of some rows were taken, from the first on, and why the next one was refused: nullopt
/// if all were taken.
struct TakenRows {
  std::size_t count;
  std::optional<DataRefusal> refusal;
};

/// Rows are numbered from 0 at the top. A row takes 12 bytes and its texts.
class DataList {
 public:
  static constexpr std::size_t kMostRows = 20'000'000;
  static constexpr std::size_t kLongestValue = 30'000;  ///< characters

  explicit DataList(DataShape shape) : shape_(shape) {}

  DataShape Shape() const { return shape_; }
  std::size_t RowCount() const { return rows_.size(); }
  /// The number of rows that have a count.
  std::size_t CompleteRowCount() const { return completeRows_; }
  /// The sum of the counts of all rows.
  std::int32_t Total() const { return total_; }

  /// The text of variable 0 (X) or 1 (Y), empty if the row lacks it. Valid until the list changes.
  std::string_view ValueText(std::size_t row, std::size_t variable) const;
  /// The number at the start of that text, 0 if there is none.
  double Value(std::size_t row, std::size_t variable) const;
  std::int32_t Count(std::size_t row) const { return rows_[row].count; }
  /// Empty for a row without a count.
  std::string CountText(std::size_t row) const;

  /// Calls `use(double value, std::int32_t count)` for a variable of each row, from the top.
  template <class Use>
  void ForEachValue(std::size_t variable, Use use) const {
    for (const StoredRow& row : rows_) use(ReadLeadingNumber(TextOf(row, variable)), row.count);
  }

  // Each answers why it is refused, or nullopt when it is done.
  std::optional<DataRefusal> InsertTop(const DataRow& row);
  /// Inserts all rows of `rows`, a list of the same shape, above the first row, in their order.
  std::optional<DataRefusal> InsertTop(const DataList& rows);
  std::optional<DataRefusal> Append(const DataRow& row) { return AppendRows({&row, 1}).refusal; }
  std::optional<DataRefusal> Rewrite(std::size_t row, const DataRow& with);
  std::optional<DataRefusal> Erase(std::size_t row);
  /// Why Erase would be refused: a file can hold negative counts, without which the total of the
  /// others is out of range.
  std::optional<DataRefusal> CheckErase(std::size_t row) const;

  /// Appends row by row, up to the first that is refused.
  TakenRows AppendRows(std::span<const DataRow> rows);

  enum class Direction { Ascending, Descending };
  /// Sorts by the numbers of a column: the variables from 0, then the count. The order of equal
  /// rows is not specified.
  void Sort(std::size_t column, Direction direction);

 private:
  /// A bit of the second length, set for a row without a count.
  static constexpr std::uint16_t kNoCount = 0x8000;
  static_assert(kLongestValue < kNoCount);
  static_assert(kMostVariables * kLongestValue <= TextArena::kBlockSize);

  /// A row: the place of its first text, which the second follows, and the lengths of both.
  struct StoredRow {
    std::uint32_t place = 0;
    std::array<std::uint16_t, kMostVariables> lengths{};
    std::int32_t count = 0;

    std::size_t Length(std::size_t variable) const { return lengths[variable] & (kNoCount - 1U); }
    std::size_t TextLength() const { return Length(0) + Length(1); }
    bool IsComplete() const { return (lengths[1] & kNoCount) == 0; }
  };

  std::size_t Variables() const { return VariablesOf(shape_); }
  double Key(const StoredRow& row, std::size_t column) const;
  std::string_view TextOf(const StoredRow& row, std::size_t variable) const {
    const std::size_t length = row.Length(variable);
    if (length == 0) return {};
    return texts_.At(row.place + (variable == 0 ? 0U : row.lengths[0]), length);
  }
  std::optional<DataRefusal> Check(const DataRow& row, std::int64_t replacedCount) const;
  std::optional<DataRefusal> CheckNew(const DataRow& row) const;
  template <class MakeRow>
  std::optional<DataRefusal> Store(const DataRow& row, MakeRow makeRow);
  std::optional<DataRefusal> AppendOne(const DataRow& row);
  std::optional<DataRefusal> InsertCopies(const DataList& rows);
  void Tally(const StoredRow& row);
  void Untally(const StoredRow& row);
  template <class Before>
  void SortBy(std::size_t column, Before before);
  void CompactTexts();

  DataShape shape_;
  std::int32_t total_ = 0;
  std::size_t completeRows_ = 0;
  std::size_t textLength_ = 0;  ///< of all rows; what else `texts_` holds is waste
  std::deque<StoredRow> rows_;  ///< grows at both ends without copying rows
  TextArena texts_;
};

/// What rows were sorted by: a column as DataList::Sort numbers them.
struct DataSorting {
  std::size_t column;
  DataList::Direction direction;
};

}  // namespace kav
