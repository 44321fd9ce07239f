// The rows of a statistics screen: texts, counts and their total.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "common/expected.h"
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

/// Rows are numbered from 0 at the top. A row takes 8 bytes and its texts; 8 more if a text or the
/// count is a long one.
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
  std::int32_t Count(std::size_t row) const { return CountOf(rows_[row]); }
  /// Empty for a row without a count.
  std::string CountText(std::size_t row) const;

  /// Calls `use(double value, std::int32_t count)` for a variable of each row, from the top.
  template <class Use>
  void ForEachValue(std::size_t variable, Use use) const {
    for (const StoredRow& row : rows_) use(ReadLeadingNumber(TextOf(row, variable)), CountOf(row));
  }

  // Each answers why it is refused, or nullopt when it is done.
  std::optional<DataRefusal> InsertTop(const DataRow& row);
  /// Inserts all rows of `rows`, a list of the same shape, above the first row, in their order.
  std::optional<DataRefusal> InsertTop(const DataList& rows);
  /// Inserts `what` so that it becomes row `row`, at most RowCount().
  std::optional<DataRefusal> Insert(std::size_t row, const DataRow& what);
  std::optional<DataRefusal> Append(const DataRow& row) { return AppendRows({&row, 1}).refusal; }
  std::optional<DataRefusal> Rewrite(std::size_t row, const DataRow& with);
  std::optional<DataRefusal> Erase(std::size_t row);
  /// Why Erase would be refused: a file can hold negative counts, without which the total of the
  /// others is out of range.
  std::optional<DataRefusal> CheckErase(std::size_t row) const;

  /// Takes the first `rows` rows, at most RowCount(), out of the list.
  Expected<DataList, DataRefusal> TakeTop(std::size_t rows);

  /// Appends row by row, up to the first that is refused.
  TakenRows AppendRows(std::span<const DataRow> rows);

  enum class Direction { Ascending, Descending };
  /// Sorts by the numbers of a column: the variables from 0, then the count. The order of equal
  /// rows is not specified.
  void Sort(std::size_t column, Direction direction);

 private:
  /// What is known of a row besides its texts.
  struct RowFacts {
    std::array<std::uint16_t, kMostVariables> lengths{};
    std::int32_t count = 0;  ///< 0 for a row without one

    /// A bit of the second length, set for a row without a count.
    static constexpr std::uint16_t kNoCount = 0x8000;
    std::size_t Length(std::size_t variable) const { return lengths[variable] & (kNoCount - 1U); }
    bool IsComplete() const { return (lengths[1] & kNoCount) == 0; }
  };
  static_assert(kLongestValue < RowFacts::kNoCount);
  static_assert(kMostVariables * kLongestValue + sizeof(RowFacts) <= TextArena::kBlockSize);

  /// A row: the place of its first text, which the second follows, and its facts, which few bytes
  /// hold for nearly all rows. Those of any other stand before its texts.
  struct StoredRow {
    std::uint32_t place = 0;
    std::array<std::uint8_t, kMostVariables> lengths{};
    std::int16_t count = 0;

    static constexpr std::uint8_t kLongest = 0x7F;    ///< length of a text of the others
    static constexpr std::uint8_t kElsewhere = 0xFF;  ///< the first length of such a row
    static constexpr std::int16_t kNoCount = std::numeric_limits<std::int16_t>::min();
    bool HasFactsElsewhere() const { return lengths[0] == kElsewhere; }
    std::uint32_t FactsLength() const { return HasFactsElsewhere() ? sizeof(RowFacts) : 0; }
  };

  std::size_t Variables() const { return VariablesOf(shape_); }
  double Key(const StoredRow& row, std::size_t column) const;
  RowFacts FactsElsewhere(const StoredRow& row) const {
    RowFacts facts;
    std::memcpy(&facts, texts_.At(row.place, sizeof facts).data(), sizeof facts);
    return facts;
  }
  std::size_t LengthOf(const StoredRow& row, std::size_t variable) const {
    if (row.HasFactsElsewhere()) return FactsElsewhere(row).Length(variable);
    return row.lengths[variable];
  }
  std::int32_t CountOf(const StoredRow& row) const {
    if (row.HasFactsElsewhere()) return FactsElsewhere(row).count;
    return row.count == StoredRow::kNoCount ? 0 : row.count;
  }
  bool IsComplete(const StoredRow& row) const {
    if (row.HasFactsElsewhere()) return FactsElsewhere(row).IsComplete();
    return row.count != StoredRow::kNoCount;
  }
  /// All that the arena holds of a row.
  std::string_view HeldOf(const StoredRow& row) const {
    const std::size_t length = row.FactsLength() + LengthOf(row, 0) + LengthOf(row, 1);
    return length == 0 ? std::string_view() : texts_.At(row.place, length);
  }
  std::string_view TextOf(const StoredRow& row, std::size_t variable) const {
    const std::size_t length = LengthOf(row, variable);
    if (length == 0) return {};
    const std::size_t before = variable == 0 ? 0 : LengthOf(row, 0);
    return texts_.At(static_cast<std::uint32_t>(row.place + row.FactsLength() + before), length);
  }
  std::optional<DataRefusal> Check(const DataRow& row, std::int64_t replacedCount) const;
  std::optional<DataRefusal> CheckNew(const DataRow& row) const;
  template <class MakeRow>
  std::optional<DataRefusal> Store(const DataRow& row, MakeRow makeRow);
  void StoreElsewhere(StoredRow& stored, const DataRow& row, std::string_view second);
  std::optional<DataRefusal> AppendOne(const DataRow& row);
  std::optional<DataRefusal> InsertCopies(const DataList& rows);
  void Untally(const StoredRow& row);
  template <class Before>
  void SortBy(std::size_t column, Before before);
  void CompactTexts();

  DataShape shape_;
  std::int32_t total_ = 0;
  std::size_t completeRows_ = 0;
  std::size_t textLength_ = 0;  ///< held of all rows; what else `texts_` holds is waste
  std::deque<StoredRow> rows_;  ///< grows at both ends without copying rows
  TextArena texts_;
};

/// Empties `list`. The memory of a long one goes back to the machine.
void DropRows(DataList& list);

/// Hands the machine what was freed, which the allocator would keep for rows to come.
void GiveFreedMemoryBack();

/// A cell of a list; columns are as DataList::Sort numbers them.
struct DataCell {
  std::size_t row;
  std::size_t column;
};

/// What rows were sorted by: a column as DataList::Sort numbers them.
struct DataSorting {
  std::size_t column;
  DataList::Direction direction;
};

}  // namespace kav
